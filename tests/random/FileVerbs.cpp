#include "Desk.h"
#include "core/PaletteSet.h"
#include "ui/CMainFrame.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>

#include <algorithm>
#include <array>
#include <set>

namespace dyeworks {

namespace {

/// While something is dragged the pointer does nothing else.
bool busy(Desk& desk) {
    return desk.model.active != nullptr && desk.model.active->dragging();
}

void openImage(Desk& desk, const std::vector<int>& n) {
    const std::string path = Desk::imagePath(n[0]);
    if (busy(desk) || (desk.model.images.size() >= Desk::kMostImages && desk.model.imageOf(path) == nullptr))
        return;
    desk.fake.dialogs.answerWith(path);
    desk.run(ID_FILE_OPEN);
    desk.model.openImage(path);
    // Of its windows the foremost.
    desk.readActive();
}

void newWindow(Desk& desk, const std::vector<int>& /*n*/) {
    if (busy(desk) || desk.model.images.size() >= Desk::kMostImages || desk.model.active == nullptr)
        return;
    desk.expectRun(ID_WINDOW_NEW, true);
    desk.model.newWindow();
}

void newImage(Desk& desk, const std::vector<int>& n) {
    if (busy(desk) || desk.model.images.size() >= Desk::kMostImages)
        return;
    desk.withNextDialog([&](QDialog& sheet) {
        sheet.findChild<QLineEdit*>(QStringLiteral("IDC_TEXTURE_WIDTH"))->setText(QString::number(n[0] + 1));
        sheet.findChild<QLineEdit*>(QStringLiteral("IDC_TEXTURE_HEIGHT"))->setText(QString::number(n[1] + 1));
        sheet
            .findChild<QAbstractButton*>(n[2] == 0 ? QStringLiteral("IDC_BITMODE_4BIT")
                                                   : QStringLiteral("IDC_BITMODE_8BIT"))
            ->click();
        sheet.findChild<QAbstractButton*>(QStringLiteral("IDOK"))->click();
    });
    desk.run(ID_FILE_NEW);
    desk.model.newImage(n[0] + 1, n[1] + 1, n[2] == 0 ? 4 : 8);
}

void activate(Desk& desk, const std::vector<int>& n) {
    if (busy(desk) || desk.model.images.empty())
        return;
    const std::size_t at = static_cast<std::size_t>(n[0]) % desk.model.images.size();
    desk.model.activated(*desk.model.images[at]);
    desk.activate(*desk.views()[at]);
}

void saveImage(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    ViewModel& image = *desk.model.active;
    const bool as = n[0] == 0;
    const std::string path = Desk::imagePath(n[1]);
    if (as || image.document.path.empty())
        desk.fake.dialogs.answerWith(path);
    desk.run(as ? ID_FILE_SAVE_AS : ID_FILE_SAVE);
    desk.model.saveImage(image, as, path);
}

void closeImage(Desk& desk, const std::vector<int>& n) {
    if (busy(desk) || desk.model.active == nullptr)
        return;
    ViewModel& image = *desk.model.active;
    const Answers answers{n[0], Desk::imagePath(n[1])};
    if (image.hasUnsavedChanges() && image.document.views.size() == 1) {
        desk.answerNext(answers.answer);
        if (answers.answer == 0 && image.document.path.empty())
            desk.fake.dialogs.answerWith(answers.file);
    }
    desk.run(ID_FILE_CLOSE);
    if (desk.model.closeImage(image, answers))
        desk.readActive();
}

void revert(Desk& desk, const std::vector<int>& n) {
    if (!desk.model.enabled(ID_FILE_REVERT).value_or(false))
        return;
    ViewModel& image = *desk.model.active;
    // A drag is taken back first, with what it alone has changed.
    image.cancel();
    const bool asks = image.hasUnsavedChanges();
    if (asks)
        desk.answerNext(n[0]);
    if (!desk.app().router().run(ID_FILE_REVERT))
        desk.wonder("an image does not go back to its file");
    desk.model.revert(image, n[0]);
}

/// Nothing can be written just now.
void failToSave(Desk& desk, const std::vector<int>& n) {
    const PaletteModel* const palette = desk.model.current();
    CommandId id = ID_PROJECT_SAVE;
    std::string path = desk.model.project ? desk.model.project->path : "";
    if (n[0] == 0 && desk.model.active != nullptr) {
        id = ID_FILE_SAVE;
        path = desk.model.active->document.path;
    } else if (n[0] == 1 && palette != nullptr) {
        id = ID_PALETTE_SAVE;
        path = palette->unnamed() ? "" : palette->path;
    }
    if (path.empty() || desk.model.asksToReplace(path))
        return;
    if (id == ID_FILE_SAVE)
        desk.model.active->settle();
    ++desk.model.messages;
    desk.fake.files.failNextWrite(FileError::NoSpace);
    desk.run(id);
}

/// What was open is open again, as the files hold it. In which order its windows stand is theirs to say.
void leaveAndStart(Desk& desk, const std::vector<int>& /*n*/) {
    DeskModel& model = desk.model;
    if (busy(desk))
        return;
    std::vector<std::string> palettes;
    for (const auto& [key, palette] : model.palettes) {
        if (!palette.unnamed())
            palettes.push_back(key);
    }
    std::vector<std::string> images;
    std::set<std::string> inWindows;
    for (const auto& image : model.images) {
        if (!image->isFirst())
            inWindows.insert(image->document.path);
        if (!image->document.path.empty() && image->isFirst())
            images.push_back(image->document.path);
    }
    const std::string project = model.project ? model.project->path : "";
    for (std::size_t i = 0; i < model.unsaved(); ++i)
        desk.answerNext(1);
    model.leave();
    if (!desk.frame().close() || desk.app().ExitInstance() != 0)
        desk.wonder("the program cannot be left");
    desk.end();

    desk.start();
    for (const std::string& key : palettes)
        model.openPalette(key);
    for (const CDocument* const document : desk.app().imageTemplate().documents()) {
        if (std::erase(images, document->pathName()) == 0)
            continue;
        // Of several windows the one that closed last is remembered, which is theirs to say, too.
        if (inWindows.contains(document->pathName())) {
            const auto& shown = dynamic_cast<const CDyeworksView&>(*document->views().front());
            model.remembered.at(document->pathName()).zoom = shown.zoom();
            model.remembered.at(document->pathName()).grid = shown.gridShown();
            model.remembered.at(document->pathName()).repeated = shown.repeated();
        }
        model.openImage(document->pathName());
    }
    if (!images.empty())
        desk.wonder("an image does not come back");
    if (!project.empty())
        model.openProject(project);
    const ImageHost& host = desk.app().imageHost();
    const ViewModel* const last = desk.modelOf(host.lastActivatedImage());
    model.lastActivated = last == nullptr ? nullptr : &last->document;
    if (model.palettes.contains(desk.app().paletteSet()->currentKey))
        model.currentPalette = desk.app().paletteSet()->currentKey;
    desk.readActive();
}

void attach(Desk& desk, const std::vector<int>& /*n*/) {
    const bool enabled = desk.model.enabled(ID_IMAGE_ATTACH).value_or(false);
    desk.run(ID_IMAGE_ATTACH);
    if (enabled)
        desk.model.attach(*desk.model.active);
}

} // namespace

const std::vector<Verb>& fileVerbs() {
    static const std::vector<Verb> verbs{{"open", 25, {Desk::kImages}, openImage},
                                         {"new-window", 12, {}, newWindow},
                                         {"new", 6, {30, 30, 2}, newImage},
                                         {"activate", 15, {4}, activate},
                                         {"save", 14, {3, Desk::kImages}, saveImage},
                                         {"close", 12, {3, Desk::kImages}, closeImage},
                                         {"revert", 5, {2}, revert},
                                         {"fail-to-save", 6, {3}, failToSave},
                                         {"leave-and-start", 3, {}, leaveAndStart},
                                         {"attach", 15, {}, attach}};
    return verbs;
}

} // namespace dyeworks
