#include "Desk.h"
#include "dyeworks/plugin.h"
#include "project/CTPFDocument.h"
#include "ui/CMainFrame.h"

#include <algorithm>
#include <array>

namespace dyeworks {

namespace {

// What the functions for plug-ins take besides paths.
constexpr std::array kKeys{"Note", "\\Project\\Sounds\\horn", "Level.3", "no key"};
constexpr std::array kPictures{"Sea", "Sky1", "Sky2", "Sky", "a,b"};

const char* keyOf(int n) {
    return kKeys[static_cast<std::size_t>(n) % kKeys.size()];
}

const char* pictureOf(int n) {
    return kPictures[static_cast<std::size_t>(n) % kPictures.size()];
}

std::string nameOf(const std::string& path) {
    return path.substr(path.rfind('\\') + 1);
}

bool busy(Desk& desk) {
    return desk.model.active != nullptr && desk.model.active->dragging();
}

void expect(Desk& desk, const char* function, std::uint32_t result, bool expected) {
    if ((result != 0) != expected)
        desk.wonder(std::string(function) + " answers " + std::to_string(result));
}

void open(Desk& desk, const std::vector<int>& n) {
    const std::string path = Desk::projectPath(n[0]);
    if (busy(desk) || (desk.model.project && desk.model.project->path != path))
        return;
    desk.fake.dialogs.answerWith(path);
    desk.run(ID_PROJECT_OPEN);
    if (!desk.model.project)
        desk.model.openProject(path);
    desk.readActive();
}

void save(Desk& desk, const std::vector<int>& /*n*/) {
    desk.run(ID_PROJECT_SAVE);
    if (desk.model.project)
        desk.model.saveProject();
}

void close(Desk& desk, const std::vector<int>& n) {
    std::optional<ProjectModel>& project = desk.model.project;
    if (busy(desk) || !project)
        return;
    bool closes = true;
    if (project->modified) {
        desk.answerNext(n[0]);
        ++desk.model.messages;
        closes = n[0] == 1 || (n[0] == 0 && desk.model.saveProject());
    }
    bool anyOpen = false;
    for (const auto& [name, picture] : project->pictures) {
        const std::string folder = project->path.substr(0, project->path.rfind('\\') + 1);
        anyOpen = anyOpen || desk.model.imageOf(folder + picture.image) != nullptr ||
                  desk.model.palettes.contains(folder + picture.palette);
    }
    if (closes && anyOpen) {
        desk.answerNext(1);
        ++desk.model.messages;
    }
    desk.run(ID_PROJECT_CLOSE);
    if (closes)
        project.reset();
    desk.readActive();
}

void openPicture(Desk& desk, const std::vector<int>& n) {
    if (busy(desk) || !desk.model.project || desk.model.project->order.empty())
        return;
    const ProjectModel& project = *desk.model.project;
    const std::string name = project.order[static_cast<std::size_t>(n[0]) % project.order.size()];
    const ProjectModel::Picture picture = project.pictures.at(name);
    const std::string folder = project.path.substr(0, project.path.rfind('\\') + 1);
    if (desk.model.images.size() >= Desk::kMostImages &&
        desk.model.imageOf(folder + picture.image) == nullptr)
        return;
    desk.app().projectDocument()->OnNodeDoubleClick("\\Project\\Picture\\" + name);
    desk.model.openPalette(folder + picture.palette);
    ViewModel& image = desk.model.openImage(folder + picture.image);
    desk.model.currentPalette = folder + picture.palette;
    desk.model.attach(image);
    desk.readActive();
}

void drop(Desk& desk, const std::vector<int>& n) {
    if (!desk.model.project || desk.model.project->order.empty())
        return;
    ProjectModel& project = *desk.model.project;
    const std::string name = project.order[static_cast<std::size_t>(n[0]) % project.order.size()];
    const std::string target = project.order[static_cast<std::size_t>(n[1]) % project.order.size()];
    const bool copies = n[2] == 1;
    if (name == target && !copies)
        return;
    const std::string node = "\\Project\\Picture\\";
    CTPFDocument& document = *desk.app().projectDocument();
    std::string text;
    expect(desk, "a drag", document.NodeToString(node + name, text) ? 1 : 0, true);
    document.DropOnNode(node + target, text, copies ? drop_effect::kCopy : drop_effect::kMove);
    const ProjectModel::Picture picture = project.pictures.at(name);
    if (!copies)
        project.removePicture(name);
    project.setPicture(project.freeName(name), picture, target);
}

void remove(Desk& desk, const std::vector<int>& n) {
    if (!desk.model.project || desk.model.project->order.empty())
        return;
    ProjectModel& project = *desk.model.project;
    const std::string name = project.order[static_cast<std::size_t>(n[0]) % project.order.size()];
    desk.frame().SelectPicture(name);
    desk.run(ID_PICTURE_REMOVE);
    project.removePicture(name);
}

// What plug-ins call.
void setPicture(Desk& desk, const std::vector<int>& n) {
    const std::string name = pictureOf(n[0]);
    const ProjectModel::Picture picture{nameOf(Desk::imagePath(n[1])), nameOf(Desk::palettePath(n[2])), n[3]};
    const bool taken = desk.model.project && name.find(',') == name.npos;
    expect(desk, "DW_setPicture",
           DW_setPicture(name.c_str(), picture.image.c_str(), picture.palette.c_str(),
                         static_cast<std::uint32_t>(n[3])),
           taken);
    if (taken)
        desk.model.project->setPicture(name, picture);
}

void setValue(Desk& desk, const std::vector<int>& n) {
    const std::string key = keyOf(n[0]);
    const std::string value = n[1] == 0 ? "" : "value = " + std::to_string(n[1]);
    const bool taken = desk.model.project && key.find(' ') == key.npos;
    expect(desk, "DW_setValue", DW_setValue(key.c_str(), value.c_str()), taken);
    if (taken)
        desk.model.project->setValue(key, value);
}

void removeKey(Desk& desk, const std::vector<int>& n) {
    const bool removed = desk.model.project && desk.model.project->removeKey(keyOf(n[0]));
    expect(desk, "DW_removeKey", DW_removeKey(keyOf(n[0])), removed);
}

void setTable(Desk& desk, const std::vector<int>& n) {
    const std::string path = Desk::palettePath(n[0]);
    const std::vector<std::uint16_t> entries(n[1] == 0 ? 16 : 256, static_cast<std::uint16_t>(n[2]));
    ::TlutData* const table = DW_newPalette(0, static_cast<std::int32_t>(entries.size()));
    std::ranges::copy(entries, table->entries);
    const std::uint32_t result = DW_setTLF(path.c_str(), table);
    DW_freePalette(table);
    if (const auto at = desk.model.palettes.find(path); at != desk.model.palettes.end()) {
        PlainTable changed = at->second.table();
        const std::size_t count = std::min(changed.entries.size(), entries.size());
        std::copy_n(entries.begin(), count, changed.entries.begin());
        at->second.setEntries(std::move(changed));
        expect(desk, "DW_setTLF", result, true);
        return;
    }
    expect(desk, "DW_setTLF", result, desk.model.project.has_value());
    if (desk.model.project)
        desk.model.files[path] = paletteFile({0, entries});
}

/// Reads an image, turns it over and puts it back.
void turnImage(Desk& desk, const std::vector<int>& n) {
    const std::string path = Desk::imagePath(n[0]);
    const auto turn = [](PlainImage& image) { image.flip(image.whole(), true, false); };
    ::TmfImage* const image = DW_getTMF(path.c_str());
    if (image == nullptr) {
        desk.wonder("DW_getTMF has no " + path);
        return;
    }
    for (std::int32_t y = 0; y < image->height; ++y) {
        for (std::int32_t x = 0; x < image->width / 2; ++x) {
            const std::uint8_t left = DW_getTexel(image, x, y);
            DW_setTexel(image, x, y, DW_getTexel(image, image->width - 1 - x, y));
            DW_setTexel(image, image->width - 1 - x, y, left);
        }
    }
    const std::uint32_t result = DW_setTMF(path.c_str(), image);
    DW_freeImage(image);
    expect(desk, "DW_setTMF", result, true);
    if (ViewModel* const open = desk.model.imageOf(path)) {
        // What a drag has drawn was there when the image was read, and is taken back for the new one.
        PlainImage turned = open->document.image();
        turn(turned);
        open->cancel();
        open->document.edit([&](PlainImage& now) { now = turned; });
        return;
    }
    PlainImage stored = readImageFile(desk.model.files.at(path));
    turn(stored);
    desk.model.files[path] = imageFile(stored);
}

} // namespace

const std::vector<Verb>& projectVerbs() {
    static const std::vector<Verb> verbs{
        {"open-project", 6, {Desk::kProjects}, open},
        {"save-project", 8, {}, save},
        {"close-project", 4, {3}, close},
        {"open-picture", 10, {8}, openPicture},
        {"drop", 8, {8, 8, 2}, drop},
        {"remove-picture", 5, {8}, remove},
        {"set-picture", 15, {5, Desk::kImages, Desk::kPalettes, 16}, setPicture},
        {"set-value", 10, {4, 5}, setValue},
        {"remove-key", 6, {4}, removeKey},
        {"set-table", 8, {Desk::kPalettes, 2, 65536}, setTable},
        {"turn-image", 6, {Desk::kImages}, turnImage}};
    return verbs;
}

} // namespace dyeworks
