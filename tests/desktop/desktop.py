"""A desktop of its own for a test: a screen that nobody sees, a window manager, a session bus, and the program on it.

The program is worked as a person works it, with keys and the pointer, and seen as a screen reader sees it.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SKIPPED = 77
PATIENCE = 30  # seconds, on a machine that does much else


def ensure_tools():
    """Ends the test as skipped where a tool is missing; begins it anew on a bus of its own otherwise."""
    missing = [tool for tool in ("Xvfb", "openbox", "xdotool", "dbus-run-session") if not shutil.which(tool)]
    try:
        import gi

        gi.require_version("Atspi", "2.0")
    except (ImportError, ValueError):
        missing.append("python3-gi with gir1.2-atspi-2.0")
    if missing:
        print("not here:", ", ".join(missing))
        sys.exit(SKIPPED)
    if "DYEWORKS_TEST_BUS" not in os.environ:
        # The bus of screen readers has its socket in there, and there is one for all who share the folder.
        with tempfile.TemporaryDirectory(prefix="dyeworks-") as folder:
            environment = {**os.environ, "DYEWORKS_TEST_BUS": "own", "XDG_RUNTIME_DIR": folder}
            sys.exit(subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv], env=environment,
                                    check=False).returncode)


ensure_tools()
from gi.repository import Atspi, GLib  # noqa: E402

# A screen reader's own programs, which the bus starts, look for the screen, too.
SHOWING = Atspi.StateType.SHOWING


def wait(for_what, sign, patience=PATIENCE):
    """Waits until `sign()` is true, and answers that."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            if found := sign():
                return found
        except GLib.Error:
            pass  # Windows come and go while they are looked at.
        time.sleep(0.02)
    raise AssertionError(f"waited in vain for {for_what}")


# Of a long list or table the cells that come first stand for the rest: each is asked of the program on its own.
MOST_CELLS = 60


def tree(root):
    """All that is in a part of the program, itself first."""
    if root is None:
        return
    yield root
    count = root.get_child_count()
    if count > MOST_CELLS and root.get_role_name() in ("list", "table", "tree", "tree table"):
        count = MOST_CELLS
    for index in range(count):
        yield from tree(root.get_child_at_index(index))


def has(item, state):
    return item.get_state_set().contains(state)


class Desktop:
    def __init__(self, program, scratch, size="1600x1200"):
        self.program = program
        self.scratch = Path(scratch)
        shutil.rmtree(self.scratch, ignore_errors=True)
        for folder in ("home", "runtime"):
            (self.scratch / folder).mkdir(parents=True)
        (self.scratch / "runtime").chmod(0o700)
        reading, writing = os.pipe()
        self.processes = [
            subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", size + "x24"], pass_fds=[writing],
                             stderr=subprocess.DEVNULL)]
        os.environ["DISPLAY"] = ":" + os.read(reading, 16).decode().strip()
        self.environment = dict(os.environ, HOME=str(self.scratch / "home"), QT_QPA_PLATFORM="xcb",
                                QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                                XDG_RUNTIME_DIR=str(self.scratch / "runtime"))
        for name in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"):
            self.environment.pop(name, None)
        ready = self.scratch / "ready"
        self.processes.append(subprocess.Popen(["openbox", "--startup", f"touch '{ready}'"], env=self.environment,
                                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        wait("the window manager", ready.exists)
        Atspi.init()
        self.running = None

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        if failure[0] is not None:
            subprocess.run(["import", "-window", "root", str(self.scratch / "failed.png")], check=False)
            print(f"the screen is in {self.scratch}/failed.png")
        for process in filter(None, [self.running, *reversed(self.processes)]):
            process.kill()
            process.wait()

    def start(self, *arguments):
        self.running = subprocess.Popen(
            [self.program, "--no-splash", "--new-instance", "--settings", str(self.scratch / "settings.ini"),
             *arguments], env=self.environment)
        self.frame = wait("the main window", self.main_window)
        self.activate("Orrery Dyeworks")

    def leave(self):
        self.keys("alt+F4")
        wait("the program's end", lambda: self.running.poll() is not None)
        assert self.running.returncode == 0
        self.running = None

    def application(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_process_id() == self.running.pid:
                # All that may change is asked for each time.
                child.set_cache_mask(Atspi.Cache.ROLE | Atspi.Cache.INTERFACES | Atspi.Cache.PARENT)
                return child
        return None

    def windows(self):
        application = self.application()
        children = [application.get_child_at_index(index) for index in range(application.get_child_count())]
        return [child for child in children if child is not None and has(child, SHOWING)]

    def main_window(self):
        if self.application() is None:
            return None
        return next((window for window in self.windows() if window.get_role_name() == "frame"), None)

    def window(self, name):
        """The window of that title, as soon as it is there."""
        return wait(name, lambda: next((child for child in self.windows() if child.get_name() == name), None))

    def activate(self, name):
        found = wait(name, lambda: self.xdotool("search", "--onlyvisible", "--name", "^" + name).split())
        self.xdotool("windowactivate", "--sync", found[0])

    def find(self, role, name=None, root=None):
        """What shows with that role, and name, as soon as it does."""
        def look():
            for item in tree(root or self.application()):
                if item.get_role_name() == role and name in (None, item.get_name()) and has(item, SHOWING):
                    return item
            return None
        return wait(f"{role} {name}", look)

    def keys(self, *names):
        self.xdotool("key", *names)

    def type(self, text):
        self.xdotool("type", text)

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *arguments], env=self.environment, check=False, text=True,
                              stdout=subprocess.PIPE).stdout
