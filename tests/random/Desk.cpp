#include "Desk.h"

#include "core/PaletteSet.h"
#include "framework/widgets/ChildFrame.h"
#include "paint/DrawingOptions.h"
#include "project/CTPFDocument.h"
#include "ui/CMainFrame.h"
#include "ui/CommandLine.h"
#include "ui/controls/dispatch/Dispatch.h"
#include "ui/palettebar/CPaletteBar.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QVariant>

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <sstream>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::array kCompared{ID_EDIT_UNDO,    ID_EDIT_REDO,    ID_EDIT_SELECT_ALL, ID_CANCEL_SELECTION,
                               ID_FLIP_X,       ID_FLIP_Y,       ID_EDIT_COPY,       ID_EDIT_CUT,
                               ID_EDIT_PASTE,   ID_ZOOM_IN,      ID_ZOOM_OUT,        ID_PALETTE_CLOSE,
                               ID_PALETTE_SAVE, ID_PALETTE_UNDO, ID_PALETTE_REDO,    ID_IMAGE_ATTACH,
                               ID_FILE_REVERT,  ID_FILE_SAVE,    ID_FILE_CLOSE};

/// Width, height and bits.
constexpr std::array<std::array<int, 3>, Desk::kImages> kSizes{
    {{13, 9, 4}, {16, 16, 8}, {24, 20, 4}, {7, 33, 8}, {32, 8, 4}, {1, 5, 8}}};

PlainImage plain(const TextureCanvas& canvas) {
    PlainImage image = PlainImage::blank(canvas.width(), canvas.height(), canvas.bitsPerPixel());
    for (std::int32_t y = 0; y < image.height; ++y) {
        for (std::int32_t x = 0; x < image.width; ++x)
            image.put({x, y}, canvas.GetPixel(x, y));
    }
    return image;
}

std::string text(const std::optional<Rect>& area) {
    if (!area)
        return "none";
    std::ostringstream out;
    out << area->left << ' ' << area->top << ' ' << area->right << ' ' << area->bottom;
    return out.str();
}

/// Collects what differs.
class Differences {
public:
    template <typename Value>
    void compare(const std::string& what, const Value& program, const Value& model) {
        if (program != model)
            told_ << what << ": program \"" << program << "\", model \"" << model << "\"\n";
    }
    void compareImage(const std::string& what, const PlainImage& program, const PlainImage& model) {
        if (program != model)
            told_ << what << ": program\n" << program.text() << "model\n" << model.text();
    }
    void tell(const std::string& what) { told_ << what; }
    [[nodiscard]] std::string told() const { return told_.str(); }

private:
    std::ostringstream told_;
};

void compareHistory(Differences& differences, const std::string& name, const EditHistory& program,
                    std::size_t undone, std::size_t redone) {
    differences.compare(name + " can undo", program.canUndo(), undone > 0);
    differences.compare(name + " can redo", program.canRedo(), redone > 0);
    differences.compare(name + " steps", static_cast<std::size_t>(program.steps->count()), undone + redone);
}

void compareView(Differences& differences, const std::string& name, const CDyeworksView& program,
                 const ViewModel& model) {
    differences.compare(name + " selection", text(program.selection().texels()), text(model.selection));
    differences.compare(name + " exists", program.selection().exists(), model.exists());
    differences.compare(name + " floats", program.selection().hasFloatingPiece(), model.piece.has_value());
    differences.compare(name + " value", program.drawingValue(), model.value);
    differences.compare(name + " zoom", program.zoom(), model.zoom);
    differences.compare(name + " grid", program.gridShown(), model.grid);
    differences.compare(name + " repeats", program.repeated(), model.repeated);
    differences.compare(name + " drags", program.dragging(), model.dragging());
    const auto piece = program.selection().floatingPiece();
    if (piece && model.piece)
        differences.compareImage(name + " piece", plain(*piece->texels), *model.piece);
}

/// The colours of a palette that the image shows from its first entry on.
void compareColours(Differences& differences, const std::string& name, const TextureCanvas& program,
                    const PaletteModel* palette) {
    if (palette == nullptr || palette->stale)
        return;
    const std::size_t entries = palette->table().entries.size();
    const std::span<const std::uint8_t> colours = program.colourTable();
    if (program.bitsPerPixel() == 4 && entries > 16)
        return;
    for (std::size_t i = 0; i < std::min(entries, colours.size() / 4); ++i) {
        const std::vector<std::uint8_t> shown = palette->table().shown(i);
        const bool same =
            colours[4 * i] == shown[2] && colours[4 * i + 1] == shown[1] && colours[4 * i + 2] == shown[0];
        if (!same)
            differences.tell(name + " shows another colour of entry " + std::to_string(i) + "\n");
    }
}

void compareProject(Differences& differences, const CTPFDocument& program, const ProjectModel& model) {
    differences.compare("project path", program.pathName(), model.path);
    differences.compare("project title", program.title(), model.title());
    differences.compare("project modified", program.isModified(), model.modified);
    std::string names;
    std::string expected;
    for (const std::string& name : program.pictureNames()) {
        PictureEntry entry;
        static_cast<void>(program.GetPicture(name, entry));
        names +=
            name + ',' + entry.tmfFile + ',' + entry.tlfFile + ',' + std::to_string(entry.paletteNo) + ' ';
    }
    for (const std::string& name : model.order) {
        const ProjectModel::Picture& picture = model.pictures.at(name);
        expected +=
            name + ',' + picture.image + ',' + picture.palette + ',' + std::to_string(picture.number) + ' ';
    }
    differences.compare("pictures", names, expected);
    for (const ProjectModel::Line& line : model.lines) {
        std::string value;
        if (!line.name.empty() && (!program.GetValue(line.name, value) || value != line.text))
            differences.compare("value of " + line.name, value, line.text);
    }
}

} // namespace

std::string Desk::imagePath(int number) {
    return "c:\\tex\\image" + std::to_string(number) + ".tmf";
}

std::string Desk::palettePath(int number) {
    return "c:\\tex\\palette" + std::to_string(number) + ".tlf";
}

std::string Desk::projectPath(int number) {
    return "c:\\tex\\project" + std::to_string(number) + ".tpf";
}

Desk::Desk() {
    for (const char* control : {"SwatchGrid.ocx", "FolderPick.ocx", "RampSlider.ocx"})
        fake.library.defineFile(control, std::string(DYEWORKS_CONTROL_FOLDER "/") + control);
    fake.profile.sections["Start Page"]["Shown"] = "0";
    fake.profile.sections["Settings"]["UseNotify_AskUseProject"] = "0";
    fake.fileWatcher.patienceToHave = 0;
    setCurrentTool(Tool::Select);
    putFiles();
    start();
}

Desk::~Desk() {
    end();
}

void Desk::start() {
    app_ = std::make_unique<CDyeworksApp>();
    CommandLine commandLine;
    commandLine.noSplash = true;
    if (!app_->InitInstance(commandLine))
        wonder("the program does not start: " + fake.messages.lastText());
}

void Desk::end() {
    app_.reset();
    // A program starts with no companion control registered.
    QCoreApplication* const application = QCoreApplication::instance();
    for (const QByteArray& name : application->dynamicPropertyNames()) {
        if (name.startsWith(kControlPropertyPrefix))
            application->setProperty(name.constData(), QVariant());
    }
}

void Desk::putFiles() {
    for (int i = 0; i < kImages; ++i) {
        const auto [width, height, bits] = kSizes[static_cast<std::size_t>(i)];
        PlainImage image = PlainImage::blank(width, height, bits);
        for (std::int32_t y = 0; y < height; ++y) {
            for (std::int32_t x = 0; x < width; ++x)
                image.put({x, y}, static_cast<std::uint32_t>((x / 3 + y / 2 * 5) * (i + 1)));
        }
        model.files[imagePath(i)] = imageFile(image);
    }
    for (int i = 0; i < kPalettes; ++i) {
        PlainTable table = PlainTable::fresh(i / 2 % 2, i % 2 == 0 ? 16 : 256, 0);
        for (std::size_t entry = 0; entry < table.entries.size(); ++entry)
            table.entries[entry] = static_cast<std::uint16_t>(entry * 193 + static_cast<unsigned>(i) * 7);
        model.files[palettePath(i)] = paletteFile(table);
    }
    model.files[projectPath(0)] = "# Textures of the sea\r\n\r\nNote = 7\nwhatever\r\n";
    model.files[projectPath(1)] = "PICT_NUM = 2\nPICT.0 = Sea,image0.tmf,palette0.tlf,0\n; rest\n"
                                  "PICT.1=Sky1,image2.tmf,palette1.tlf,3\nPICT.4 = Old,a.tmf,a.tlf,1\n";
    for (const auto& [path, bytes] : model.files)
        fake.files.putFile(path, bytes);
}

ImageView* Desk::view() {
    return frame().activeImageView();
}

bool Desk::run(CommandId id) {
    return expectRun(id, model.enabled(id).value_or(true));
}

bool Desk::expectRun(CommandId id, bool expected) {
    const bool ran = app().router().run(id);
    if (ran != expected)
        wonder("command " + std::to_string(id) + (ran ? " runs" : " does not run"));
    return ran;
}

void Desk::answerNext(int answer) {
    static constexpr std::array kAnswers{MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel};
    fake.messages.answerWith(kAnswers[static_cast<std::size_t>(answer) % kAnswers.size()]);
}

void Desk::withNextDialog(std::function<void(QDialog&)> use) {
    QTimer::singleShot(0, qApp, [this, use = std::move(use)] {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            use(*dialog);
        else
            wonder("no dialog comes up");
    });
}

void Desk::readBar() {
    model.shared.cell = app().imageHost().paletteBarCell();
    model.shared.firstEntry = app().imageHost().paletteBarFirstEntry();
    const PaletteModel* const palette = model.current();
    model.shared.cells = palette == nullptr ? 0 : static_cast<int>(palette->table().entries.size());
}

std::vector<CDyeworksView*> Desk::views() {
    std::vector<CDyeworksView*> all;
    for (const CDocument* const document : app().imageTemplate().documents()) {
        for (DocumentView* const view : document->views())
            all.push_back(dynamic_cast<CDyeworksView*>(view));
    }
    return all;
}

void Desk::activate(const CDyeworksView& wanted) {
    for (ChildFrame* const child : frame().childFrames()) {
        if (auto* const image = qobject_cast<ImageView*>(child->widget());
            image != nullptr && &image->view() == &wanted)
            frame().activateChild(*child);
    }
}

const ViewModel* Desk::modelOf(const CDyeworksDoc* document) {
    const auto open = views();
    for (std::size_t i = 0; i < std::min(open.size(), model.images.size()); ++i) {
        if (&open[i]->document() == document)
            return model.images[i].get();
    }
    return nullptr;
}

void Desk::readActive() {
    ImageView* const shown = view();
    if (shown == nullptr) {
        model.active = nullptr;
        model.projectInFront = frame().activeChild() != nullptr;
        return;
    }
    const auto open = views();
    const auto at = std::ranges::find(open, &shown->view()) - open.begin();
    if (static_cast<std::size_t>(at) < model.images.size())
        model.activated(*model.images[static_cast<std::size_t>(at)]);
}

bool Desk::play(const Step& step) {
    for (const Verb* const verb : allVerbs()) {
        if (step.verb != verb->name)
            continue;
        std::vector<int> numbers = step.numbers;
        numbers.resize(verb->limits.size());
        readBar();
        verb->play(*this, numbers);
        // Windows that have closed go.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        return true;
    }
    return false;
}

std::string Desk::differences(bool all) {
    Differences found;
    found.tell(std::exchange(wonders_, {}));
    found.compare("messages", fake.messages.shown.size(), model.messages);
    found.compare("answers left", fake.messages.unusedAnswers() + fake.dialogs.unusedAnswers(),
                  std::size_t{0});
    found.compare("tool", static_cast<int>(currentTool()), static_cast<int>(model.shared.tool));
    const PlainPen& pen = model.shared.pen;
    if (drawingOptions() != DrawingOptions{{pen.size, pen.round}, pen.across, pen.down, pen.wrap})
        found.tell("drawing options differ\n");

    const std::vector<CDyeworksView*> open = views();
    found.compare("windows of images", open.size(), model.images.size());
    for (std::size_t i = 0; i < std::min(open.size(), model.images.size()); ++i) {
        CDyeworksDoc& document = open[i]->document();
        ViewModel& image = *model.images[i];
        const std::string name = "image " + std::to_string(i);
        found.compare(name + " path", document.pathName(), image.document.path);
        found.compare(name + " title", document.title(), model.titleOf(image));
        found.compare(name + " attached", document.attachedName(), image.document.attached);
        found.compare(name + " unsaved", document.hasUnsavedChanges(), image.hasUnsavedChanges());
        found.compareImage(name, plain(document.canvas()), image.document.image());
        compareHistory(found, name, document.edits(), image.document.states.undone.size(),
                       image.document.states.redone.size());
        compareView(found, name, *open[i], image);
        compareColours(found, name, document.canvas(), model.paletteOf(image));
        found.compare(name + " is active", view() != nullptr && &view()->view() == open[i],
                      model.active == &image);
    }

    const PaletteSet& set = *app().paletteSet();
    found.compare("current palette", set.currentKey, model.currentPalette);
    found.compare("open palettes", set.palettes.size(), model.palettes.size());
    for (const auto& [key, palette] : set.palettes) {
        const auto at = model.palettes.find(key);
        if (at == model.palettes.end()) {
            found.tell("palette " + key + " is not the model's\n");
            continue;
        }
        const PaletteModel& expected = at->second;
        found.compare(key + " title", palette->title, expected.title);
        found.compare(key + " modified", palette->modified, expected.modified);
        found.compare(key + " unsaved", palette->hasUnsavedChanges(), expected.hasUnsavedChanges());
        PlainTable table{static_cast<int>(palette->table.colourType), {}};
        for (std::int32_t i = 0; i < palette->table.count; ++i)
            table.entries.push_back(palette->table.getEntry(i));
        if (table != expected.table())
            found.tell(key + ": entries differ\n");
        found.compare(key + " can undo", palette->canUndo(), !expected.states.undone.empty());
        found.compare(key + " can redo", palette->canRedo(), !expected.states.redone.empty());
    }
    const CTPFDocument* const project = app().projectDocument();
    found.compare("a project is open", project != nullptr, model.project.has_value());
    if (project != nullptr && model.project)
        compareProject(found, *project, *model.project);
    for (const CommandId id : kCompared) {
        if (const std::optional<bool> enabled = model.enabled(id))
            found.compare("enabled " + std::to_string(id), app().router().state(id).enabled, *enabled);
    }
    if (model.active != nullptr) {
        for (CommandId id = ID_TOOL_PIXEL; id <= ID_TOOL_REPLACER; ++id) {
            if (const std::optional<Tool> tool = toolOf(id))
                found.compare("checked " + std::to_string(id),
                              app().router().state(id).checked.value_or(false), *tool == model.shared.tool);
        }
        found.compare("spuit", app().router().state(ID_TOOL_SPUIT).checked.value_or(false),
                      model.active->spuit);
    }
    if (all) {
        for (const auto& [path, bytes] : model.files) {
            if (fake.files.textOf(path) != bytes)
                found.tell("file " + path + " differs\n");
        }
    }
    return found.told();
}

std::vector<const Verb*> allVerbs() {
    std::vector<const Verb*> all;
    for (const auto* const verbs :
         {&imageVerbs(), &fileVerbs(), &paletteVerbs(), &projectVerbs(), &outsideVerbs()}) {
        for (const Verb& verb : *verbs)
            all.push_back(&verb);
    }
    return all;
}

} // namespace dyeworks
