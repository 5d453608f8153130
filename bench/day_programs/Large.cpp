// What large files cost in the program, from the user's hand to the finished screen, beside the least that
// their bytes can cost. Each case runs in a process of its own and prints lines of a table.

#include "bench/day_programs/Figures.h"
#include "bench/day_programs/RealProgram.h"
#include "core/PaletteSet.h"
#include "core/TmfFormat.h"
#include "core/TmfImage.h"
#include "framework/widgets/ScrollView.h"
#include "paint/CanvasBlock.h"
#include "platform/posix/HugePages.h"
#include "project/CTPFDocument.h"
#include "project/widgets/ProjectTreeWidget.h"
#include "ui/CMainFrame.h"
#include "ui/palettebar/CPaletteBar.h"
#include "ui/palettebar/PaletteBarIds.h"

#include <QDialog>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace dyeworks {
namespace {

using Clock = std::chrono::steady_clock;

double millisecondsOf(const std::function<void()>& work) {
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double mebibytes(std::size_t bytes) {
    return static_cast<double>(bytes) / (1U << 20U);
}

/// Fastest and slowest of some times, as a line of the table with the memory that is held afterwards and the
/// most that was held meanwhile.
class Line {
public:
    explicit Line(std::string name)
        : name_(std::move(name)) {
        forgetPeak();
    }
    ~Line() {
        const auto [fastest, slowest] = std::ranges::minmax(times_);
        std::printf("| %s | %.1f | %.1f | %.0f | %.0f |\n", name_.c_str(), fastest, slowest,
                    mebibytes(figuresNow().resident), mebibytes(peakResident()));
        std::fflush(stdout);
    }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    void time(const std::function<void()>& work) { times_.push_back(millisecondsOf(work)); }

private:
    std::string name_;
    std::vector<double> times_;
};

constexpr int kRuns = 5;

/// Times it several times.
void time(const std::string& name, const std::function<void()>& work, int runs = kRuns) {
    Line line(name);
    for (int i = 0; i < runs; ++i)
        line.time(work);
}

void writePattern(const QString& file, int width, int height) {
    TmfImage image;
    RealProgram::check(image.create(width, height, 8), "no memory for an image");
    std::size_t at = 0;
    // Runs of one value, as images have them, in rows that differ.
    for (std::byte& texel : image.block()) {
        texel = static_cast<std::byte>(at / 24 * 7 + at / static_cast<std::size_t>(image.stride()) / 24);
        ++at;
    }
    const auto laidOut = layOutTmf(image);
    QFile out(file);
    RealProgram::check(out.open(QIODevice::WriteOnly), "a file cannot be made");
    for (const std::span<const std::byte> part : {std::span<const std::byte>(laidOut->header), laidOut->body})
        RealProgram::check(out.write(reinterpret_cast<const char*>(part.data()),
                                     static_cast<qint64>(part.size())) == static_cast<qint64>(part.size()),
                           "a file cannot be written");
}

/// What the machine takes for as many bytes.
void timeMachine(const QString& folder, std::size_t bytes) {
    const std::string size = std::to_string(bytes >> 20U) + " MiB";
    std::vector<char> from(bytes, 1);
    std::vector<char> to(bytes, 2);
    time("machine: copy " + size, [&] {
        std::memcpy(to.data(), from.data(), bytes);
        from[0] = to[bytes - 1];
    });
    time("machine: copy " + size + " into new memory", [&] {
        const std::unique_ptr<char[]> fresh(new char[bytes]);
        std::memcpy(fresh.get(), from.data(), bytes);
        from[0] = fresh[bytes - 1];
    });
    const std::string file = QFile::encodeName(folder + QStringLiteral("/machine")).toStdString();
    time("machine: write and flush " + size, [&] {
        const int descriptor = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        for (std::size_t done = 0; done < bytes;)
            done += static_cast<std::size_t>(write(descriptor, from.data() + done, bytes - done));
        fsync(descriptor);
        close(descriptor);
    });
    time("machine: read " + size, [&] {
        const std::unique_ptr<char[]> fresh(new char[bytes]);
        const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
        for (std::size_t done = 0; done < bytes;)
            done += static_cast<std::size_t>(read(descriptor, fresh.get() + done, bytes - done));
        close(descriptor);
    });
    unlink(file.c_str());
}

/// Lets the program live, as while the user looks, until something is so; the longest that it was busy in
/// one go.
double busiestUntil(RealProgram& program, const std::function<bool()>& holds) {
    constexpr int kPatience = 60'000;
    double busiest = 0;
    QElapsedTimer waited;
    waited.start();
    while (!holds() && waited.elapsed() < kPatience) {
        busiest = std::max(busiest, millisecondsOf([&] { program.settle(); }));
        usleep(1000);
    }
    RealProgram::check(holds(), "nothing has come of waiting");
    return busiest;
}

qint64 keptBytes(const QString& home) {
    qint64 bytes = 0;
    QDirIterator files(home + QStringLiteral("/XDG_STATE_HOME"), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        // Not those that are being written.
        if (!files.fileName().contains(QLatin1String("tmp")))
            bytes += files.fileInfo().size();
    }
    return bytes;
}

void wheel(RealProgram& program, int turn, Qt::KeyboardModifiers held = {}) {
    QWidget* const viewport = program.view().viewport();
    const QPoint place = viewport->rect().center();
    QWheelEvent event(place, viewport->mapToGlobal(place), {}, {0, turn}, Qt::NoButton, held,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(viewport, &event);
}

void openPainted(RealProgram& program, const std::string& name, int width, int height) {
    const QString image = program.folder() + QStringLiteral("/large.tmf");
    const QString palette = program.folder() + QStringLiteral("/large.tlf");
    writePattern(image, width, height);
    writePaletteFile(palette, 256, 1);
    program.drop({palette});
    Line line(name + ": open");
    constexpr int kTimes = 3;
    for (int i = 0; i < kTimes; ++i) {
        line.time([&] {
            program.drop({image});
            program.settle();
        });
        if (i + 1 < kTimes) {
            program.key(Qt::Key_W, Qt::ControlModifier);
            program.settle();
        }
    }
    program.attach();
    program.settle();
}

/// Everything that a user does with one image; in the end there is unsaved work.
void useImage(RealProgram& program, const std::string& name, int width, int height) {
    const auto line = [&](const char* what) { return name + ": " + what; };
    const auto key = [&](Qt::Key which, Qt::KeyboardModifiers held = {}) {
        return [&program, which, held] {
            program.key(which, held);
            program.settle();
        };
    };
    const auto settled = [&](auto work) {
        return [&program, work] {
            work();
            program.settle();
        };
    };
    openPainted(program, name, width, height);
    const int y = std::min(height, 300);
    program.key(Qt::Key_N);
    program.clickCell(200);
    for (int round = 0; round < 2; ++round) {
        const char* const which = round == 0 ? ", the first" : "";
        {
            Line pressed(line("pen, press") + which);
            Line moved(line("pen, move") + which);
            Line released(line("pen, release") + which);
            for (int i = 0; i < (round == 0 ? 1 : kRuns); ++i) {
                pressed.time(settled([&] { program.press({5 + i, 5}); }));
                moved.time(settled([&] { program.move({300, y - 6 - i}); }));
                moved.time(settled([&] { program.move({20, y - 3 - i}); }));
                released.time(settled([&] { program.release({20, y - 3 - i}); }));
            }
        }
    }
    const QPoint corner(width - 1, height - 1);
    const auto holds = [&](int value) {
        RealProgram::check(program.image().canvas().GetPixel(width - 1, height - 1) ==
                               static_cast<std::uint32_t>(value),
                           "the last texel has another value");
    };
    const auto boxFill = [&](int cell) {
        program.clickCell(cell);
        program.key(Qt::Key_B, Qt::ShiftModifier);
        program.press({0, 0});
        program.move(corner);
        program.settle();
        program.release(corner);
        program.settle();
        holds(cell);
    };
    int cell = 1;
    time(
        line("box fill of everything, press to release"), [&] { boxFill(cell++); }, 3);
    program.key(Qt::Key_P);
    time(
        line("fill of everything"),
        [&] {
            program.clickCell(cell);
            program.press({3, 3});
            program.release({3, 3});
            program.settle();
            holds(cell++);
        },
        3);
    {
        Line undone(line("undo of that"));
        Line redone(line("redo of that"));
        for (int i = 0; i < kRuns; ++i) {
            undone.time(key(Qt::Key_Z, Qt::ControlModifier));
            redone.time(key(Qt::Key_Y, Qt::ControlModifier));
        }
    }
    for (int i = 0; i < 6; ++i)
        key(Qt::Key_Z, Qt::ControlModifier)();
    time(line("zoom in"), key(Qt::Key_Plus, Qt::ControlModifier));
    time(line("zoom out"), key(Qt::Key_Minus, Qt::ControlModifier));
    time(line("zoom with the wheel"), settled([&] { wheel(program, 120, Qt::ControlModifier); }));
    time(line("scroll with the wheel"), settled([&] { wheel(program, -120); }), 20);
    time(line("scroll to a far place"), settled([&] {
             QScrollBar& bar =
                 height > width ? *program.view().verticalScrollBar() : *program.view().horizontalScrollBar();
             bar.setValue(bar.value() > bar.maximum() / 2 ? 0 : bar.maximum());
         }),
         20);
    program.run(ID_ZOOM_X1);
    program.view().horizontalScrollBar()->setValue(0);
    program.view().verticalScrollBar()->setValue(0);
    program.settle();
    time(line("all turned left"), settled([&] { program.run(ID_IMAGE_TURN_LEFT); }), 4);
    time(line("undo of that"), key(Qt::Key_Z, Qt::ControlModifier), 4);
    {
        Line saved(line("save"));
        program.key(Qt::Key_N);
        for (int i = 0; i < 3; ++i) {
            program.drag({QPoint(3 + i, 3), QPoint(30, 9)});
            program.settle();
            saved.time(key(Qt::Key_S, Qt::ControlModifier));
        }
    }
    // Painted on until everything was kept once.
    program.clickCell(cell++);
    program.drag({QPoint(3, 3), QPoint(40, 9)});
    program.settle();
}

void largeImage(RealProgram& program, const QString& home) {
    constexpr int kSide = 16384;
    const std::string name = "16384 x 16384";
    useImage(program, name, kSide, kSide);
    timeMachine(program.folder(), std::size_t{kSide} * kSide);
    double busiest = 0;
    {
        Line kept(name + ": kept in case of a crash, from the last change");
        kept.time([&] {
            busiest = busiestUntil(program, [&] { return keptBytes(home) >= qint64{kSide} * kSide; });
        });
    }
    std::printf("| %s: the longest wait meanwhile | | %.1f | | |\n", name.c_str(), busiest);
    std::fflush(stdout);
    std::_Exit(0); // It crashes.
}

void recoverLarge(RealProgram& program) {
    program.settle();
    RealProgram::check(program.allAnswered() && program.image().canvas().width() == 16384,
                       "nothing was recovered");
    std::_Exit(0);
}

void wideImage(RealProgram& program) {
    useImage(program, "65536 x 16", 65536, 16);
    std::_Exit(0);
}

void highImage(RealProgram& program) {
    useImage(program, "16 x 65536", 16, 65536);
    std::_Exit(0);
}

void largeProject(RealProgram& program) {
    constexpr int kPictures = 10'000;
    const QString project = program.folder() + QStringLiteral("/large.tpf");
    QByteArray text = "PICT_NUM = " + QByteArray::number(kPictures) + "\n";
    for (int i = 0; i < kPictures; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "PICT." + number + " = Picture" + number + ",image" + number + ".tmf,palette" + number +
                ".tlf,0\n";
    }
    for (int i = kPictures - 2; i < kPictures; ++i) { // What a plug-in shows may stand behind the last one.
        writeImageFile(program.folder() + QStringLiteral("/image%1.tmf").arg(i), 64, 64, 8);
        writePaletteFile(program.folder() + QStringLiteral("/palette%1.tlf").arg(i), 256, 3);
    }
    {
        QFile file(project);
        RealProgram::check(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(),
                           "a file cannot be made");
    }
    Line opened("10000 pictures: open");
    Line expanded("10000 pictures: expand");
    Line ended("10000 pictures: End in the tree");
    Line moved("10000 pictures: up by one");
    Line clicked("10000 pictures: click on one");
    Line picture("10000 pictures: open one");
    Line closed("10000 pictures: close, with that");
    for (int run = 0; run < kRuns; ++run) {
        opened.time([&] {
            program.drop({project});
            program.settle();
        });
        auto* const tree = program.frame().findChild<ProjectTreeWidget*>();
        tree->setFocus();
        tree->collapseAll();
        program.settle();
        const auto press = [&](Qt::Key key) {
            QTest::keyClick(tree, key);
            program.settle();
        };
        press(Qt::Key_Home);
        press(Qt::Key_Right);
        press(Qt::Key_Down);
        expanded.time([&] { press(Qt::Key_Right); });
        ended.time([&] { press(Qt::Key_End); });
        moved.time([&] { press(Qt::Key_Up); });
        const QPoint place = tree->visualRect(tree->currentIndex()).center();
        clicked.time([&] {
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
            program.settle();
        });
        picture.time([&] {
            QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, place);
            program.settle();
        });
        RealProgram::check(program.frame().activeImageView() != nullptr, "a picture does not open");
        program.answerNext([&](QDialog& dialog) { dialog.done(QDialog::Accepted); });
        closed.time([&] {
            program.run(ID_PROJECT_CLOSE);
            program.settle();
        });
        if (program.frame().activeImageView() != nullptr) {
            program.key(Qt::Key_W, Qt::ControlModifier);
            program.settle();
        }
    }
}

void manyPalettes(RealProgram& program) {
    constexpr int kPalettes = 50;
    {
        Line opened("50 palettes: open one");
        for (int i = 0; i < kPalettes; ++i) {
            const QString file = program.folder() + QStringLiteral("/palette%1.tlf").arg(i);
            writePaletteFile(file, 256, i);
            opened.time([&] {
                program.drop({file});
                program.settle();
            });
        }
    }
    const QString image = program.folder() + QStringLiteral("/image.tmf");
    writeImageFile(image, 1024, 1024, 8);
    program.drop({image});
    program.attach();
    program.settle();
    auto& tabs = *program.frame().paletteBar().findChild<QTabBar*>();
    {
        Line switched("50 palettes: switch to the next");
        tabs.setFocus();
        tabs.setCurrentIndex(0);
        for (int i = 0; i + 1 < tabs.count(); ++i) {
            switched.time([&] {
                QTest::keyClick(&tabs, Qt::Key_Right);
                program.settle();
            });
        }
    }
    int number = 0;
    time(
        "50 palettes: type an entry and apply it",
        [&] {
            program.enter(IDC_ENTRY, QString::number(++number * 997 % 65536, 16));
            program.clickButton(IDC_APPLY);
            program.settle();
        },
        20);
    time(
        "50 palettes: choose another cell",
        [&] {
            program.clickCell(++number % 256);
            program.settle();
        },
        20);
    Line closed("50 palettes: close one");
    for (int i = 0; i < kPalettes; ++i) {
        if (program.app().paletteSet()->lookup("")->hasUnsavedChanges())
            program.run(ID_PALETTE_SAVE);
        program.settle();
        closed.time([&] {
            program.run(ID_PALETTE_CLOSE);
            program.settle();
        });
    }
}

int play(std::string_view name, int argc, char** argv, const char* home) {
    RealProgram program(argc, argv, QString::fromLocal8Bit(home));
    if (name == "recover") {
        program.answerNext(Qt::Key_Return);
        Line line("16384 x 16384: start and recover it");
        line.time([&] { program.start(); });
        RealProgram::check(program.frame().activeImageView() != nullptr, "nothing was recovered");
    } else {
        program.start();
    }
    if (name == "image")
        largeImage(program, QString::fromLocal8Bit(home));
    else if (name == "recover")
        recoverLarge(program);
    else if (name == "wide")
        wideImage(program);
    else if (name == "high")
        highImage(program);
    else if (name == "project")
        largeProject(program);
    else
        manyPalettes(program);
    return 0;
}

/// In a process of its own.
bool runCase(const char* name, const QString& home) {
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        execl("/proc/self/exe", "dyeworks_large", "--case", name, qPrintable(home), nullptr);
        std::_Exit(127);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// A virtual machine may have to fetch memory that it has not used of late from its host, at a tenth of the
/// speed. As much as the largest case uses is used once, in pages as large, so that no case pays for being
/// the first.
void useMachineMemory() {
    constexpr std::size_t kBytes = std::size_t{4} << 30U;
    const pid_t child = fork();
    if (child == 0) {
        const CanvasBlock block = allocateCanvasBlock(kBytes, BlockContents::Undefined);
        if (block != nullptr) {
            askForHugePages(block.get(), kBytes);
            std::memset(block.get(), 1, kBytes);
        }
        std::_Exit(0);
    }
    if (child > 0)
        waitpid(child, nullptr, 0);
}

int run(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 4 && std::string_view(argv[1]) == "--case")
        return play(argv[2], argc, argv, argv[3]);
    static constexpr std::array kCases{"image", "recover", "wide", "high", "project", "palettes"};
    const std::vector<std::string_view> wanted(argv + 1, argv + argc);
    QTemporaryDir home;
    bool all = true;
    useMachineMemory();
    std::puts(
        "| | fastest, ms | slowest, ms | resident then, MiB | at most, MiB |\n|---|---:|---:|---:|---:|");
    for (const char* const name : kCases) {
        if (!wanted.empty() && std::ranges::find(wanted, name) == wanted.end())
            continue;
        // What one leaves unsaved is offered to the next one that has its home.
        if (std::string_view(name) != "recover")
            home = QTemporaryDir();
        all = runCase(name, home.path()) && all;
    }
    return all ? 0 : 1;
}

} // namespace
} // namespace dyeworks

int main(int argc, char** argv) {
    return dyeworks::run(argc, argv);
}
