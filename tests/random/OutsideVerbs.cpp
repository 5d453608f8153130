#include "Desk.h"
#include "core/PaletteSet.h"
#include "framework/ReloadOption.h"
#include "framework/widgets/ChildFrame.h"
#include "ui/CMainFrame.h"
#include "ui/OutsideBar.h"
#include "ui/palettebar/CPaletteBar.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>

namespace dyeworks {

namespace {

/// Bars that are not there by then do not come.
constexpr qint64 kLongestWait = 3000;

/// What the program knows of the files of what is open.
std::vector<KnownFile*> knownFiles(Desk& desk) {
    std::vector<KnownFile*> files;
    for (const auto& [key, palette] : desk.app().paletteSet()->palettes)
        files.push_back(&palette->file());
    for (CDocument* const document : desk.app().documents())
        files.push_back(&document->file());
    std::erase_if(files, [](const KnownFile* file) { return file->path().empty(); });
    return files;
}

/// The bar speaks of the current palette, or else of the first that asks.
std::string askingPalette(const DeskModel& model) {
    const auto asks = [&](const std::string& path) {
        return model.palettes.contains(path) && path.front() != '*' && model.outside.at(path).asks();
    };
    if (asks(model.currentPalette))
        return model.currentPalette;
    const auto first =
        std::ranges::find_if(model.palettes, [&](const auto& palette) { return asks(palette.first); });
    return first == model.palettes.end() ? "" : first->first;
}

/// Each bar tells of a file.
std::string barsThatDiffer(Desk& desk) {
    const auto asks = [&](const std::string& path) {
        return !path.empty() && desk.model.outside.at(path).asks();
    };
    const auto compared = [&](const QWidget* bar, const std::string& path) {
        const auto* const told = qobject_cast<const OutsideBar*>(bar);
        const std::string program = told == nullptr ? "" : told->notice().path;
        if (program != path)
            return "bar of \"" + program + "\", model \"" + path + "\"\n";
        if (path.empty())
            return std::string();
        const FileModel& file = desk.model.outside.at(path);
        const bool same = told->notice().offersReload() == file.offersReload() &&
                          (told->notice().state == KnownFile::State::Back) == file.isBack;
        return same ? "" : "bar of " + path + ": \"" + told->notice().words() + "\"\n";
    };
    std::string differences;
    for (const KnownFile* const file : knownFiles(desk)) {
        if (file->asks() != asks(file->path()))
            differences += file->path() + (file->asks() ? " asks\n" : " does not ask\n");
    }
    for (const ChildFrame* const frame : desk.frame().childFrames()) {
        if (CDocument* const document = frame->document())
            differences += compared(frame->bar(), asks(document->pathName()) ? document->pathName() : "");
    }
    return differences + compared(desk.frame().paletteBar().bar(), askingPalette(desk.model));
}

void awaitBars(Desk& desk) {
    QElapsedTimer time;
    time.start();
    while (!barsThatDiffer(desk).empty() && time.elapsed() < kLongestWait) {
        QThread::msleep(1);
        QCoreApplication::processEvents();
    }
    if (const std::string differences = barsThatDiffer(desk); !differences.empty())
        desk.wonder(differences);
}

/// Contents that are others, or as good as.
std::string changed(const std::string& path, const std::string& bytes, int how, int number) {
    if (path.ends_with(".tmf")) {
        PlainImage image = readImageFile(bytes);
        if (how == 0)
            return imageFile(image.turned(true));
        if (how == 1)
            return imageFile(image.inDepth(12 - image.bits, [](unsigned texel) { return texel % 16; }));
        image.put({number % image.width, number / 16 % image.height}, static_cast<std::uint32_t>(number));
        return imageFile(image);
    }
    if (path.ends_with(".tlf")) {
        PlainTable table = readPaletteFile(bytes);
        if (how == 0)
            table.type = 1 - table.type;
        if (how == 1)
            table.entries.resize(table.entries.size() == 16 ? 256 : 16);
        table.entries[static_cast<std::size_t>(number) % table.entries.size()] ^= 0x0840;
        return paletteFile(table);
    }
    ProjectModel project;
    project.read(path, bytes);
    project.setValue("Note", std::to_string(number % 4));
    if (how == 0 && !project.order.empty())
        project.removePicture(project.order.front());
    return project.write();
}

void put(Desk& desk, const std::string& path, const std::optional<std::string>& bytes) {
    // When there is time the program reads what it has opened.
    for (KnownFile* const file : knownFiles(desk))
        static_cast<void>(file->rememberContents());
    if (bytes)
        desk.fake.files.putFile(path, *bytes);
    else
        desk.fake.files.remove(path);
    if (bytes)
        desk.model.files[path] = *bytes;
    else
        desk.model.files.erase(path);
}

/// It is noticed at once, so that nothing comes in between.
void notice(Desk& desk, const std::string& path) {
    for (int look = 0; look < 2; ++look) {
        for (KnownFile* const file : knownFiles(desk))
            static_cast<void>(file->look());
    }
    const auto now = desk.model.files.find(path);
    if (const auto file = desk.model.outside.find(path); file != desk.model.outside.end())
        file->second.look(now == desk.model.files.end() ? std::nullopt : std::optional(now->second));
    desk.fake.fileWatcher.happen();
}

void press(Desk& desk, const std::string& path, bool reloads) {
    QWidget* bar = path.ends_with(".tlf") ? desk.frame().paletteBar().bar() : nullptr;
    for (const ChildFrame* const frame : desk.frame().childFrames()) {
        if (frame->document() != nullptr && frame->document()->pathName() == path)
            bar = frame->bar();
    }
    auto* const button = bar == nullptr
                             ? nullptr
                             : bar->findChild<QAbstractButton*>(reloads ? QStringLiteral("IDC_OUTSIDE_RELOAD")
                                                                        : QStringLiteral("IDC_OUTSIDE_KEEP"));
    if (button == nullptr)
        return desk.wonder("no button for " + path);
    button->click();
}

/// A file, mostly of something open, is written by another program, or taken away and brought back.
void change(Desk& desk, const std::vector<int>& n) {
    std::vector<std::string> paths = desk.model.openFiles();
    paths.push_back(Desk::imagePath(n[0] % Desk::kImages));
    const std::string path = paths[static_cast<std::size_t>(n[0]) % paths.size()];
    const std::string before = desk.model.files.at(path);
    const bool isOpen = std::ranges::count(desk.model.openFiles(), path) > 0;
    const bool goes = n[3] < 2;
    if (goes) {
        put(desk, path, std::nullopt);
        notice(desk, path);
        awaitBars(desk);
        if (isOpen && n[3] == 0 && !path.ends_with(".tlf")) {
            press(desk, path, false);
            desk.model.keep(path);
        }
    }
    const bool follows = n[4] == 0 && (desk.model.active == nullptr || !desk.model.active->dragging());
    put(desk, path, n[1] == 3 ? before : changed(path, before, n[1], n[2]));
    notice(desk, path);
    setReloadsUnchanged(follows);
    for (const std::string& open : desk.model.openFiles()) {
        const FileModel& file = desk.model.outside.at(open);
        if (follows && file.asks() && file.offersReload() && !desk.model.isUnsaved(open))
            desk.model.reload(open, 0);
    }
    awaitBars(desk);
    setReloadsUnchanged(false);
}

void answer(Desk& desk, const std::vector<int>& n) {
    awaitBars(desk);
    std::vector<std::string> asking = desk.model.openFiles();
    std::erase_if(asking, [&](const std::string& path) { return !desk.model.outside.at(path).asks(); });
    std::erase_if(asking, [&](const std::string& path) {
        return path.ends_with(".tlf") && path != askingPalette(desk.model);
    });
    if (asking.empty())
        return;
    const std::string path = asking[static_cast<std::size_t>(n[0]) % asking.size()];
    const bool reloads = n[1] > 0 && desk.model.outside.at(path).offersReload();
    const std::size_t asked = desk.model.messages;
    if (reloads)
        desk.model.reload(path, n[2]);
    else
        desk.model.keep(path);
    if (desk.model.messages > asked)
        desk.answerNext(n[2]);
    press(desk, path, reloads);
    awaitBars(desk);
}

/// Another program is faster by a moment.
void saveOver(Desk& desk, const std::vector<int>& n) {
    DeskModel& model = desk.model;
    const bool ofPalette = n[0] == 0;
    const std::string path = ofPalette                 ? model.currentPalette
                             : model.active != nullptr ? model.active->document.path
                                                       : "";
    if (path.empty() || path.front() == '*')
        return;
    put(desk, path, changed(path, model.files.at(path), n[1], n[2]));
    model.savesOver = n[3] == 0;
    if (model.asksToReplace(path))
        desk.fake.messages.answerWith(model.savesOver ? MessageAnswer::Ok : MessageAnswer::Cancel);
    desk.run(ofPalette ? ID_PALETTE_SAVE : ID_FILE_SAVE);
    if (ofPalette)
        model.savePalette(false, path);
    else
        model.saveImage(*model.active, false, path);
    model.savesOver = false;
    notice(desk, path);
    awaitBars(desk);
}

} // namespace

const std::vector<Verb>& outsideVerbs() {
    static const std::vector<Verb> verbs{{"change-outside", 20, {16, 4, 256, 6, 3}, change},
                                         {"answer-bar", 15, {8, 3, 2}, answer},
                                         {"save-over", 6, {2, 4, 256, 2}, saveOver}};
    return verbs;
}

} // namespace dyeworks
