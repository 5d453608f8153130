// Long days of work in the program, one kind of work after the other, and what the program holds after each
// hundredth of it. What is not flat once a tenth is done is told; then the process ends with 1.

#include "bench/day_programs/Figures.h"
#include "bench/day_programs/RealProgram.h"
#include "core/PaletteSet.h"
#include "project/CTPFDocument.h"
#include "project/widgets/ProjectTreeWidget.h"
#include "ui/CMainFrame.h"
#include "ui/palettebar/PaletteBarIds.h"

#include <QDialog>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kSide = 64; // Of the images that are painted.
constexpr int kFiles = 100;

/// A user's work of one kind.
class Work {
public:
    explicit Work(RealProgram& program)
        : program_(program) {}
    virtual ~Work() = default;
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    virtual void begin() {}
    virtual void doOne(int number) = 0;
    virtual void end() {}

protected:
    [[nodiscard]] QString file(const char* name) const {
        return program_.folder() + u'/' + QString::fromLatin1(name);
    }
    [[nodiscard]] QString file(const char* name, int number) const { return file(name).arg(number % kFiles); }
    void openPainted() {
        program_.drop({file("painted.tlf"), file("painted.tmf")});
        program_.attach();
        program_.settle();
    }
    /// What has changed is not to be kept. The last window of an image asks.
    void closeImage() {
        if (program_.image().hasUnsavedChanges() && program_.image().views().size() == 1)
            program_.answerNext(Qt::Key_N);
        program_.key(Qt::Key_W, Qt::ControlModifier);
        program_.settle();
        RealProgram::check(program_.allAnswered(), "nothing was asked when an image closed");
    }
    void closePalette() {
        if (program_.app().paletteSet()->lookup("")->hasUnsavedChanges())
            program_.answerNext(Qt::Key_N);
        program_.run(ID_PALETTE_CLOSE);
        program_.settle();
        RealProgram::check(program_.allAnswered(), "nothing was asked when a palette closed");
    }

    RealProgram& program_;
};

/// Work on one painted image and its palette, which changes nearly each time.
class ChangesOfOne : public Work {
public:
    using Work::Work;

    void begin() override { openPainted(); }
    void end() override {
        closeImage();
        closePalette();
        // Some change nothing, as a fill with the value that is there.
        RealProgram::check(changed_ * 10 > done_ * 9, "too little of the work changed anything");
    }

protected:
    void count(bool hasChanged) {
        ++done_;
        changed_ += hasChanged ? 1 : 0;
    }

private:
    int done_ = 0;
    int changed_ = 0;
};

/// Every tool, selections and keys, with undo and redo among them.
class Edits : public ChangesOfOne {
public:
    using ChangesOfOne::ChangesOfOne;

    void doOne(int number) override {
        const std::int32_t before = program_.image().edits().position();
        constexpr int kKinds = 20;
        const int kind = number % kKinds;
        if (kind % 4 == 0)
            program_.clickCell(number / 4 * 37 % 256);
        const int x = number * 13 % (kSide - 16);
        const int y = number * 7 % (kSide - 16);
        edit(kind, {x, y}, {x + 15, y + 9});
        program_.settle();
        count(program_.image().edits().position() != before);
        if (number % 1000 == 999)
            program_.key(Qt::Key_S, Qt::ControlModifier);
    }

private:
    void edit(int kind, QPoint from, QPoint to) {
        const auto tool = [&](Qt::Key key, Qt::KeyboardModifiers held = {}) {
            program_.key(key, held);
            program_.drag({from, (from + to) / 2, to});
        };
        switch (kind) {
        case 0:
        case 1:
        case 2:
        case 12:
            return tool(Qt::Key_N);
        case 3:
            return tool(Qt::Key_X);
        case 4:
            return tool(Qt::Key_L);
        case 5:
            return tool(Qt::Key_B);
        case 6:
            return tool(Qt::Key_B, Qt::ShiftModifier);
        case 7:
            return tool(Qt::Key_C);
        case 8:
            return tool(Qt::Key_C, Qt::ShiftModifier);
        case 9:
            return tool(Qt::Key_P);
        case 11:
            tool(Qt::Key_S); // A piece is cut out, moved and put down.
            program_.drag({(from + to) / 2, from, to});
            return program_.key(Qt::Key_Return);
        case 13:
            program_.key(Qt::Key_C, Qt::ControlModifier);
            program_.key(Qt::Key_V, Qt::ControlModifier);
            program_.drag({QPoint(2, 2), from});
            return program_.key(Qt::Key_Return);
        case 14:
            program_.key(Qt::Key_S);
            program_.key(Qt::Key_A, Qt::ControlModifier);
            program_.run(ID_FLIP_X);
            return program_.key(Qt::Key_Return);
        case 15:
            return program_.run(ID_IMAGE_SHIFT_HALF);
        case 16:
            return program_.run(ID_IMAGE_TURN_LEFT);
        case 10:
        case 17:
        case 18:
            return program_.key(Qt::Key_Z, Qt::ControlModifier);
        default:
            return program_.key(Qt::Key_Y, Qt::ControlModifier);
        }
    }
};

/// Images with palettes, most of them painted in, are opened and closed; a few are open at a time.
class Documents : public Work {
public:
    using Work::Work;

    void doOne(int number) override {
        if (number % 10 == 0)
            program_.drop({file("palette%1.tlf", number / 10)});
        if (number % 10 == 5) {
            program_.answerNext(Qt::Key_Return); // As the sheet proposes.
            program_.run(ID_FILE_NEW);
        } else {
            program_.drop({file("image%1.tmf", number)});
        }
        program_.settle();
        if (number % 2 == 0 && program_.app().paletteSet()->lookup("") != nullptr) {
            program_.attach();
            program_.key(Qt::Key_N);
            program_.drag({QPoint(1, 1), QPoint(5, 9)});
        }
        if (number % 10 == 7)
            program_.run(ID_WINDOW_NEW);
        program_.settle();
        // Some stay open for a while.
        if (number % 3 == 0)
            closeAll();
        if (number % 10 == 9)
            closePalette();
    }
    void end() override {
        closeAll();
        while (program_.app().paletteSet()->lookup("") != nullptr)
            closePalette();
    }

private:
    void closeAll() {
        while (program_.frame().activeImageView() != nullptr) {
            const CDyeworksView* const view = &program_.view().view();
            closeImage();
            const ImageView* const next = program_.frame().activeImageView();
            RealProgram::check(next == nullptr || &const_cast<ImageView*>(next)->view() != view,
                               "an image does not close");
        }
    }
};

/// Entries are typed, dragged, moved and turned round, while an image shows them.
class PaletteEdits : public ChangesOfOne {
public:
    using ChangesOfOne::ChangesOfOne;

    void doOne(int number) override {
        const std::vector<std::uint16_t> before = entries();
        const int cell = number * 37 % 256;
        switch (number % 10) {
        case 0:
        case 1:
        case 2:
            program_.clickCell(cell);
            program_.enter(IDC_ENTRY, QString::number(number * 2654435761U % 65536, 16));
            program_.clickButton(IDC_APPLY);
            break;
        case 3:
        case 4:
            program_.clickCell(cell);
            program_.dragSlider(number % 2 == 0 ? IDC_RED_SLIDER : IDC_BLUE_SLIDER, 0.1,
                                number % 20 < 10 ? 0.9 : 0.4);
            program_.clickButton(IDC_APPLY);
            break;
        case 5:
            program_.clickCell(cell % 200);
            program_.clickCell(cell % 200 + 40, Qt::ShiftModifier);
            program_.run(ID_RANGE_INVERT);
            break;
        case 6:
            program_.run(ID_RANGE_REVERSE);
            break;
        case 7:
        case 8:
            program_.run(ID_PALETTE_UNDO);
            break;
        default:
            program_.run(ID_PALETTE_REDO);
        }
        program_.settle();
        count(entries() != before);
        if (number % 500 == 499)
            program_.run(ID_PALETTE_SAVE);
    }

private:
    [[nodiscard]] std::vector<std::uint16_t> entries() {
        const TlutData& table = program_.app().paletteSet()->lookup("")->table;
        std::vector<std::uint16_t> all;
        for (std::int32_t i = 0; i < table.count; ++i)
            all.push_back(table.getEntry(i));
        return all;
    }
};

/// Projects are opened, walked through, one of their pictures opened, and closed.
class Projects : public Work {
public:
    using Work::Work;

    void doOne(int number) override {
        program_.drop({file("project%1.tpf", number)});
        program_.settle();
        auto* const tree = program_.frame().findChild<ProjectTreeWidget*>();
        RealProgram::check(tree != nullptr, "a project shows no tree");
        tree->setFocus();
        tree->expandAll();
        for (int i = 0; i < 3 + number % 10; ++i)
            QTest::keyClick(tree, Qt::Key_Down);
        program_.settle();
        const bool opens = number % 4 == 0;
        if (opens) {
            const QPoint place = tree->visualRect(tree->currentIndex()).center();
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
            QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, place);
            program_.settle();
            RealProgram::check(program_.frame().activeImageView() != nullptr, "a picture does not open");
        }
        if (number % 10 == 3) {
            program_.answerNext(Qt::Key_Escape);
            program_.run(ID_PROJECT_PROPERTY);
        }
        if (number % 10 == 7) {
            program_.run(ID_PROJECT_CHECK);
            program_.settle();
        }
        if (opens)
            program_.answerNext(Qt::Key_Y); // The picture goes with it.
        program_.run(ID_PROJECT_CLOSE);
        program_.settle();
        RealProgram::check(program_.app().projectDocument() == nullptr, "a project does not close");
        RealProgram::check(program_.allAnswered(), "nothing was asked");
    }
};

/// Strokes of the pen and colours that are dragged while the viewer shows the image.
class Previews : public Work {
public:
    using Work::Work;

    void begin() override {
        openPainted();
        program_.drop({file("image%1.tmf", 0)});
        program_.attach();
        program_.run(ID_PREVIEW1);
        program_.settle();
        RealProgram::check(viewer() != nullptr, "the viewer does not come up");
        program_.key(Qt::Key_N);
    }
    void doOne(int number) override {
        program_.clickCell(number * 37 % 256);
        const QPoint from(number * 13 % 40, number * 7 % 40);
        if (number % 5 == 4) {
            program_.dragSlider(IDC_GREEN_SLIDER, 0.1, number % 2 == 0 ? 0.9 : 0.4);
            program_.clickButton(IDC_APPLY);
        } else {
            program_.drag({from, from + QPoint(9, 3), from + QPoint(5, 12)});
        }
        if (number % 50 == 49) {
            program_.run(ID_PREVIEW1);
            program_.settle();
            program_.run(ID_PREVIEW1);
        }
        if (number % 100 == 98) {
            program_.run(ID_PREVIEW2); // The second window, too.
            program_.settle();
            program_.run(ID_PREVIEW2);
        }
        program_.settle();
        RealProgram::check(viewer() != nullptr, "the viewer has gone");
    }
    void end() override {
        program_.run(ID_PREVIEW1);
        closeImage();
        closeImage();
        closePalette();
    }

private:
    static QWidget* viewer() {
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto found = std::ranges::find_if(windows, [](const QWidget* window) {
            return window->objectName() == QLatin1String("Preview1") && window->isVisible();
        });
        return found == windows.end() ? nullptr : *found;
    }
};

/// Dialogs that come up and are left, bars that come and go.
class Dialogs : public Work {
public:
    using Work::Work;

    void begin() override {
        openPainted();
        program_.drop({file("project%1.tpf", 0)});
        program_.settle();
        activateImage();
    }
    void doOne(int number) override {
        static constexpr std::array kAsk{
            ID_APP_ABOUT,    ID_OPTIONS,     ID_FILE_NEW,         ID_FILE_OPEN,    ID_IMAGE_RESIZE,
            ID_IMAGE_SCALE,  ID_IMAGE_SHIFT, ID_IMAGE_TO_4_BITS,  ID_PALETTE_NEW,  ID_PALETTE_EDIT,
            ID_PALETTE_SORT, ID_PICTURE_ADD, ID_PROJECT_PROPERTY, ID_FILE_SAVE_AS, ID_PALETTE_EXPORT};
        static constexpr std::array kShow{ID_VIEW_BANKSBAR, ID_VIEW_UNDO_LIST, ID_VIEW_FINDINGS,
                                          ID_VIEW_USAGE,    ID_VIEW_REPEAT,    ID_VIEW_FULL_SCREEN,
                                          ID_VIEW_GRID,     ID_VIEW_CELLS_ONLY};
        activateImage();
        if (number % 3 == 2) {
            const CommandId id = kShow[static_cast<std::size_t>(number / 3) % kShow.size()];
            program_.run(id);
            program_.settle();
            program_.run(id);
        } else {
            program_.answerNext(Qt::Key_Escape);
            program_.run(kAsk[static_cast<std::size_t>(number) % kAsk.size()]);
        }
        program_.settle();
        RealProgram::check(program_.allAnswered(), "a dialog has not come up");
    }
    void end() override {
        activateImage();
        closeImage();
        closePalette();
        program_.run(ID_PROJECT_CLOSE);
        program_.settle();
    }

private:
    void activateImage() {
        program_.frame().activateWindowOf(*program_.app().imageTemplate().documents().front());
    }
};

struct Row {
    double seconds = 0;
    double worked = 0; ///< Seconds of the processor, which other programs change little.
    Figures figures;
};

double medianWork(const std::vector<Row>& rows, std::size_t first, std::size_t last) {
    std::vector<double> times;
    for (std::size_t i = first; i < last; ++i)
        times.push_back(rows[i].worked);
    std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
    return times[times.size() / 2];
}

/// Compares the last tenth with the second one, and prints what has grown. Memory comes in pieces of which
/// some are filled later than others, and a timer or a thread may just run.
bool isFlat(const std::string& name, const std::vector<Row>& rows) {
    constexpr std::array<std::size_t, Figures::kNames.size()> kSlack{256U << 10U, 8U << 20U, 1, 2,
                                                                     4,           3,         2, 1};
    const std::size_t tenth = rows.size() / 10;
    const auto largest = [&](std::size_t figure, std::size_t first) {
        std::size_t most = 0;
        for (std::size_t i = first; i < first + tenth; ++i)
            most = std::max(most, rows[i].figures.values()[figure]);
        return most;
    };
    bool flat = true;
    for (std::size_t figure = 0; figure < Figures::kNames.size(); ++figure) {
        const std::size_t early = largest(figure, tenth);
        const std::size_t late = largest(figure, rows.size() - tenth);
        const bool grown = late > early + early / 100 + kSlack[figure];
        std::printf("%-10s %-10s second tenth %12zu, last tenth %12zu%s\n", name.c_str(),
                    Figures::kNames[figure], early, late, grown ? "  GROWS" : "");
        flat = flat && !grown;
    }
    const double early = medianWork(rows, tenth, 2 * tenth);
    const double late = medianWork(rows, rows.size() - tenth, rows.size());
    const bool slower = late > early * 1.25;
    std::printf("%-10s %-10s second tenth %12.4f, last tenth %12.4f%s\n", name.c_str(), "worked", early, late,
                slower ? "  GROWS" : "");
    std::fflush(stdout);
    return flat && !slower;
}

/// The rows of one kind of work; the last one after everything of it has been closed.
bool play(RealProgram& program, const std::string& name, Work& work, int count, std::ostream& out) {
    constexpr int kParts = 100;
    std::vector<Row> rows;
    const auto print = [&](int done, const Row& row) {
        out << name << ',' << done << ',' << row.seconds << ',' << row.worked;
        for (const std::size_t value : row.figures.values())
            out << ',' << value;
        out << std::endl;
    };
    work.begin();
    program.settle();
    print(0, {0, 0, figuresNow()});
    int done = 0;
    for (int part = 1; part <= kParts; ++part) {
        const Clock::time_point start = Clock::now();
        const double worked = secondsWorked();
        for (const int end = static_cast<int>(std::int64_t{count} * part / kParts); done < end; ++done)
            work.doOne(done);
        program.settle();
        const std::chrono::duration<double> took = Clock::now() - start;
        rows.push_back({took.count(), secondsWorked() - worked, figuresNow()});
        print(done, rows.back());
    }
    work.end();
    program.settle();
    print(count, {0, 0, figuresNow()});
    return isFlat(name, rows);
}

void putFiles(const RealProgram& program) {
    const auto path = [&](const char* name, int number = 0) {
        const QString file = program.folder() + u'/' + QString::fromLatin1(name);
        return file.contains(u'%') ? file.arg(number) : file;
    };
    writeImageFile(path("painted.tmf"), kSide, kSide, 8);
    writePaletteFile(path("painted.tlf"), 256, 1);
    for (int i = 0; i < kFiles; ++i) {
        writeImageFile(path("image%1.tmf", i), 64 + i % 7 * 16, 64 + i % 5 * 32, i % 3 == 0 ? 4 : 8);
        writePaletteFile(path("palette%1.tlf", i), i % 2 == 0 ? 16 : 256, i);
        constexpr int kPictures = 20;
        QByteArray project = "PICT_NUM = " + QByteArray::number(kPictures) + "\n";
        for (int picture = 0; picture < kPictures; ++picture)
            project += "PICT." + QByteArray::number(picture) + " = Picture" + QByteArray::number(picture) +
                       ",image" + QByteArray::number((i + picture) % kFiles) + ".tmf,palette" +
                       QByteArray::number((i + picture) % kFiles) + ".tlf,0\n";
        QFile file(path("project%1.tpf", i));
        RealProgram::check(file.open(QIODevice::WriteOnly) && file.write(project) == project.size(),
                           "a file cannot be made");
    }
}

template <typename Kind>
std::unique_ptr<Work> make(RealProgram& program) {
    return std::make_unique<Kind>(program);
}

struct KindOfWork {
    const char* name;
    int count;
    std::unique_ptr<Work> (*make)(RealProgram& program);
};
constexpr std::array kKinds{
    KindOfWork{"edits", 100'000, make<Edits>},         KindOfWork{"documents", 1000, make<Documents>},
    KindOfWork{"palette", 10'000, make<PaletteEdits>}, KindOfWork{"projects", 1000, make<Projects>},
    KindOfWork{"previews", 10'000, make<Previews>},    KindOfWork{"dialogs", 1000, make<Dialogs>}};

int run(int argc, char** argv) {
    if (argc < 2) {
        std::fputs(
            "usage: dyeworks_long_days FIGURES.csv [SHARE [KIND...]]\n"
            "Kinds: edits, documents, palette, projects, previews, dialogs; a share of 1 is all of it.\n",
            stderr);
        return 2;
    }
    const double share = argc > 2 ? std::atof(argv[2]) : 1;
    const std::vector<std::string_view> wanted(argv + std::min(argc, 3), argv + argc);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    countObjects();
    RealProgram program(argc, argv);
    program.start();
    putFiles(program);
    std::ofstream out(argv[1]);
    out << "work,done,seconds,worked";
    for (const char* const figure : Figures::kNames)
        out << ',' << figure;
    out << '\n';
    bool flat = true;
    for (const KindOfWork& kind : kKinds) {
        if (!wanted.empty() && std::ranges::find(wanted, kind.name) == wanted.end())
            continue;
        const std::unique_ptr<Work> work = kind.make(program);
        flat =
            play(program, kind.name, *work, std::max(100, static_cast<int>(kind.count * share)), out) && flat;
    }
    return flat ? 0 : 1;
}

} // namespace
} // namespace dyeworks

int main(int argc, char** argv) {
    return dyeworks::run(argc, argv);
}
