#include "ui/HangNotice.h"

#include "platform/StringId.h"
#include "platform/Text.h"
#include "platform/qt/Language.h"
#include "platform/qt/QtTexts.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <span>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace dyeworks {

namespace {

constexpr std::string_view kSwitch = "--plug-in-hangs";

enum Argument { kProgram, kSwitchItself, kPlugIn, kSeconds, kLanguage, kArguments };

QString shown(StringId id, const QtTexts& texts, std::initializer_list<std::string> with = {}) {
    return QString::fromStdString(filled(texts.translate(kTextContext, englishText(id)), with));
}

} // namespace

void HangNotice::show(const std::string& plugIn, std::chrono::seconds after) {
    const std::lock_guard lock(mutex_);
    std::array<int, 2> ends{};
    if (program_.empty() || lifeline_ || ::pipe2(ends.data(), O_CLOEXEC) != 0)
        return;
    std::array<std::string, kArguments> arguments{program_, std::string(kSwitch), plugIn,
                                                  std::to_string(after.count()),
                                                  QLocale().name().toStdString()};
    std::array<char*, kArguments + 1> pointers{};
    for (std::size_t i = 0; i < arguments.size(); ++i)
        pointers[i] = arguments[i].data();
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, ends[0], STDIN_FILENO);
    pid_t process = 0;
    const bool started =
        ::posix_spawn(&process, program_.c_str(), &actions, nullptr, pointers.data(), environ) == 0;
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(ends[0]);
    if (!started) {
        ::close(ends[1]);
        return;
    }
    lifeline_ = ends[1];
    std::thread([process] { (void)::waitpid(process, nullptr, 0); }).detach();
}

void HangNotice::close() {
    const std::lock_guard lock(mutex_);
    if (const auto end = std::exchange(lifeline_, std::nullopt))
        ::close(*end);
}

bool isHangNotice(int argc, char** argv) {
    return argc == kArguments && argv[kSwitchItself] == kSwitch;
}

int runHangNotice(int argc, char** argv) {
    const std::array<std::string, 3> given{argv[kPlugIn], argv[kSeconds], argv[kLanguage]};
    const pid_t parent = ::getppid();
    QApplication application(argc, argv);
    installLanguage(application, given[2].substr(0, 2));
    const QtTexts texts;
    QMessageBox box(QMessageBox::Warning, shown(StringId::ApplicationTitle, texts),
                    shown(StringId::PlugInHangs, texts, {given[0], given[1]}));
    box.setInformativeText(shown(StringId::PlugInHangsAdvice, texts));
    QPushButton* const wait = box.addButton(shown(StringId::PlugInHangsWait, texts), QMessageBox::RejectRole);
    const QPushButton* const end =
        box.addButton(shown(StringId::PlugInHangsEnd, texts), QMessageBox::DestructiveRole);
    box.setDefaultButton(wait);
    box.setEscapeButton(wait);
    // Nothing is ever written there: it can be read when the other end has been closed.
    const QSocketNotifier lifeline(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&lifeline, &QSocketNotifier::activated, &box, &QMessageBox::reject);
    box.exec();
    if (box.clickedButton() == end && ::getppid() == parent)
        ::kill(parent, SIGTERM);
    return 0;
}

} // namespace dyeworks
