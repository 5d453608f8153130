#include "DeskModel.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

std::string fileNameOf(const std::string& path) {
    return path.substr(path.rfind('\\') + 1);
}

} // namespace

PaletteModel* DeskModel::current() {
    const auto found = palettes.find(currentPalette);
    return found == palettes.end() ? nullptr : &found->second;
}

PaletteModel* DeskModel::paletteOf(const ViewModel& image) {
    const auto found = palettes.find(image.document.attached);
    return found == palettes.end() ? nullptr : &found->second;
}

std::string DeskModel::titleOf(const ViewModel& image) {
    std::string title = image.document.name;
    if (const PaletteModel* const palette = paletteOf(image))
        title += " [" + palette->title + "]";
    return title + (image.document.modified ? " * " : "");
}

ViewModel* DeskModel::imageOf(const std::string& path) {
    const auto found =
        std::ranges::find_if(images, [&](const auto& image) { return image->document.path == path; });
    return found == images.end() ? nullptr : found->get();
}

std::optional<bool> DeskModel::enabled(CommandId id) {
    switch (id) {
    case ID_PALETTE_CLOSE:
    case ID_PALETTE_SAVE:
    case ID_PALETTE_SAVE_AS:
        return current() != nullptr;
    case ID_PALETTE_UNDO:
        return current() != nullptr && !current()->states.undone.empty();
    case ID_PALETTE_REDO:
        return current() != nullptr && !current()->states.redone.empty();
    case ID_IMAGE_ATTACH:
        return active != nullptr && !palettes.empty() && active->document.attached != currentPalette;
    case ID_FILE_REVERT:
        return active != nullptr && !active->document.path.empty() && active->hasUnsavedChanges();
    case ID_FILE_SAVE:
    case ID_FILE_SAVE_AS:
    case ID_FILE_CLOSE:
        return active != nullptr || projectInFront;
    case ID_PROJECT_SAVE:
    case ID_PROJECT_CLOSE:
    case ID_PICTURE_REMOVE:
        return project.has_value();
    case ID_PROJECT_OPEN:
    case ID_FILE_NEW:
    case ID_FILE_OPEN:
    case ID_PALETTE_NEW:
    case ID_PALETTE_OPEN:
        return true;
    default:
        return active == nullptr ? false : active->enabled(id);
    }
}

void DeskModel::refreshImages() {
    for (const auto& image : images) {
        if (paletteOf(*image) == nullptr)
            image->document.attached.clear();
    }
    if (current() != nullptr)
        current()->stale = false;
}

void DeskModel::refreshReplaced() {
    for (const auto& image : images) {
        if (std::exchange(image->replaced, false) && paletteOf(*image) == nullptr)
            image->document.attached.clear();
    }
}

void DeskModel::openPalette(const std::string& path) {
    if (!palettes.contains(path)) {
        PaletteModel& palette = palettes[path];
        palette.states.restart(readPaletteFile(files.at(path)));
        palette.named(path);
        knows(path);
    }
    currentPalette = path;
    refreshImages();
}

void DeskModel::newPalette(int type, int count, int alpha) {
    const std::string name = "palette" + std::to_string(palettesMade++);
    PaletteModel& palette = palettes["*" + name];
    palette.states.restart(PlainTable::fresh(type, count, alpha));
    palette.path = currentPalette = "*" + name;
    palette.title = name;
}

bool DeskModel::closePalette(const Answers& answers) {
    if (current()->hasUnsavedChanges()) {
        ++messages;
        if (answers.answer == 2)
            return false;
        if (answers.answer == 0) {
            PaletteModel& palette = *current();
            const std::string file = palette.unnamed() ? answers.file : palette.path;
            if (palettes.contains(file) && &palettes[file] != &palette) {
                ++messages;
                return false;
            }
            if (!palette.unnamed() && !mayReplace(file))
                return false;
            files[file] = paletteFile(palette.table());
        }
    }
    palettes.erase(currentPalette);
    currentPalette = palettes.empty() ? "" : palettes.begin()->first;
    refreshImages();
    return true;
}

bool DeskModel::savePalette(bool ask, const std::string& file) {
    PaletteModel& palette = *current();
    const std::string target = ask || palette.unnamed() ? file : palette.path;
    if (const auto other = palettes.find(target); other != palettes.end() && &other->second != &palette) {
        ++messages;
        return false;
    }
    if (target == palette.path && !mayReplace(target))
        return false;
    files[target] = paletteFile(palette.table());
    palette.named(target);
    knows(target);
    if (target != currentPalette)
        rename(currentPalette, target);
    refreshImages();
    return true;
}

void DeskModel::rename(const std::string& key, const std::string& file) {
    for (const auto& image : images) {
        if (image->document.attached == key)
            image->document.attached = file;
    }
    auto node = palettes.extract(key);
    node.key() = file;
    palettes.insert(std::move(node));
    currentPalette = file;
}

void DeskModel::remember(const ViewModel& image) {
    if (!image.document.path.empty())
        remembered[image.document.path] = {image.zoom, image.grid, image.document.attached, image.repeated};
}

std::size_t DeskModel::unsaved() {
    std::size_t questions = project && project->modified ? 1 : 0;
    for (const auto& [key, palette] : palettes)
        questions += palette.hasUnsavedChanges() ? 1 : 0;
    for (const auto& image : images)
        questions += image->isFirst() && image->hasUnsavedChanges() ? 1 : 0;
    return questions;
}

void DeskModel::leave() {
    messages += unsaved();
    if (!palettes.empty())
        refreshImages();
    for (const auto& image : images)
        remember(*image);
    images.clear();
    palettes.clear();
    project.reset();
    active = nullptr;
    lastActivated = nullptr;
    projectInFront = false;
    currentPalette.clear();
    untitled = 0;
}

ViewModel& DeskModel::openImage(const std::string& path) {
    if (ViewModel* const open = imageOf(path)) {
        activated(*open);
        return *open;
    }
    ViewModel& view =
        *images.emplace_back(std::make_unique<ViewModel>(shared, std::make_shared<ImageModel>()));
    view.document.states.restart(readImageFile(files.at(path)));
    view.document.path = path;
    view.document.name = fileNameOf(path);
    knows(path);
    begin(view);
    if (const auto found = remembered.find(path); found != remembered.end())
        view.document.attached = found->second.attached;
    activated(view);
    return view;
}

void DeskModel::begin(ViewModel& view) {
    view.begin();
    if (const auto found = remembered.find(view.document.path); found != remembered.end()) {
        view.zoom = found->second.zoom;
        view.grid = found->second.grid;
        view.repeated = found->second.repeated;
    }
}

void DeskModel::newWindow() {
    const auto last =
        std::ranges::find(images, active->document.views.back(), &std::unique_ptr<ViewModel>::get);
    begin(**images.insert(last + 1, std::make_unique<ViewModel>(shared, active->owned)));
    activated(*active->document.views.back());
}

ViewModel& DeskModel::newImage(std::int32_t width, std::int32_t height, int bits) {
    ViewModel& view =
        *images.emplace_back(std::make_unique<ViewModel>(shared, std::make_shared<ImageModel>()));
    view.document.states.restart(PlainImage::blank(width, height, bits));
    view.document.name = "Texture" + std::to_string(++untitled);
    view.begin();
    activated(view);
    return view;
}

void DeskModel::activated(ViewModel& image) {
    active = &image;
    projectInFront = false;
    if (std::exchange(lastActivated, &image.document) != &image.document && paletteOf(image) != nullptr)
        currentPalette = image.document.attached;
}

bool DeskModel::saveImage(ViewModel& image, bool ask, const std::string& file) {
    image.settle();
    ImageModel& document = image.document;
    const std::string target = ask || document.path.empty() ? file : document.path;
    if (target == document.path && !mayReplace(target))
        return false;
    if (const ViewModel* const other = imageOf(target); other != nullptr && other->owned != image.owned) {
        ++messages;
        return false;
    }
    files[target] = imageFile(document.image());
    document.path = target;
    document.name = fileNameOf(target);
    document.isInFile();
    knows(target);
    return true;
}

bool DeskModel::closeImage(ViewModel& image, const Answers& answers) {
    const bool last = image.document.views.size() == 1;
    if (!last)
        image.close();
    if (last && image.hasUnsavedChanges()) {
        ++messages;
        if (answers.answer == 2 || (answers.answer == 0 && !saveImage(image, false, answers.file)))
            return false;
    }
    remember(image);
    active = active == &image ? nullptr : active;
    lastActivated = last && lastActivated == &image.document ? nullptr : lastActivated;
    std::erase_if(images, [&](const auto& open) { return open.get() == &image; });
    return true;
}

void DeskModel::revert(ViewModel& image, int answer) {
    image.cancel();
    if (image.hasUnsavedChanges()) {
        ++messages;
        if (answer != 0)
            return;
    }
    image.drop();
    image.document.states.restart(readImageFile(files.at(image.document.path)));
    for (ViewModel* const view : image.document.views)
        view->value &= image.document.image().mask();
    image.document.isInFile();
    knows(image.document.path);
    if (paletteOf(image) == nullptr)
        image.document.attached.clear();
}

void DeskModel::attach(ViewModel& image) {
    image.document.attached = currentPalette;
}

std::size_t DeskModel::Leg::wayThrough(long joint, bool back) const {
    return image != nullptr ? image->document.states.wayThrough(joint, back)
                            : palette->states.wayThrough(joint, back);
}

long DeskModel::Leg::jointAt(std::size_t n, bool back) const {
    return image != nullptr ? image->document.states.jointAt(n, back) : palette->states.jointAt(n, back);
}

void DeskModel::Leg::go(bool back) {
    for (; steps > 0; --steps) {
        if (image == nullptr) {
            static_cast<void>(back ? palette->undo() : palette->redo());
            continue;
        }
        ImageModel& document = image->document;
        if (back)
            document.undo();
        else
            document.redo();
        if ((back ? document.states.redone : document.states.undone).back().whole)
            image->imageReplaced();
    }
}

void DeskModel::undoImage(ViewModel& image, bool back, int answer) {
    // What is being drawn is the newest edit.
    const bool tookBack = image.cancel();
    const auto& steps = back ? image.document.states.undone : image.document.states.redone;
    if ((!back || !tookBack) && !steps.empty())
        move(image.document.views.front(), back, answer);
}

void DeskModel::undoPalette(bool back, int answer) {
    PaletteModel* const palette = current();
    if (palette == nullptr || (back ? palette->states.undone : palette->states.redone).empty())
        return;
    move(palette, back, answer);
    refreshImages();
}

/// Goes on until everything that has a part in a joint step on somebody's way goes through it, too.
void DeskModel::move(const void* first, bool back, int answer) {
    std::vector<Leg> legs;
    for (const auto& image : images) {
        if (image->isFirst())
            legs.push_back({image.get(), nullptr});
    }
    for (auto& [key, palette] : palettes)
        legs.push_back({nullptr, &palette});
    const auto isFirst = [&](const Leg& leg) { return leg.image == first || leg.palette == first; };
    Leg& own = *std::ranges::find_if(legs, isFirst);
    own.steps = 1;
    const long step = own.jointAt(1, back);
    bool gone = false;
    const auto reach = [&] {
        for (bool farther = true; farther;) {
            farther = false;
            for (const Leg& leg : legs) {
                for (std::size_t n = 1; n <= leg.steps; ++n) {
                    const long passed = leg.jointAt(n, back);
                    std::size_t parts = 0;
                    for (Leg& other : legs) {
                        const std::size_t way = passed == 0 ? 0 : other.wayThrough(passed, back);
                        parts += way > 0 ? 1 : 0;
                        farther = farther || way > other.steps;
                        other.steps = std::max(other.steps, way);
                    }
                    gone = gone || (passed != 0 && parts < joint.at(passed));
                }
            }
        }
    };
    reach();
    // What is dragged there is no step, whatever it has drawn so far.
    for (Leg& leg : legs) {
        if (step != 0 && leg.image != nullptr && leg.steps > 0)
            leg.image->cancel();
        leg.steps = &leg == &own ? 1 : 0;
    }
    gone = false;
    reach();
    bool others = false;
    for (const Leg& leg : legs) {
        const std::size_t way = step == 0 ? leg.steps : leg.wayThrough(step, back);
        others = others || (step != 0 && leg.steps > (way > 0 ? 1U : 0U));
    }
    if (gone || others) {
        ++messages;
        if (answer != 0)
            return;
    }
    for (Leg& leg : legs)
        leg.go(back);
    refreshReplaced();
    if (step != 0)
        refreshImages();
}

bool DeskModel::movesSilently() {
    const std::size_t count = current()->table().entries.size();
    return !project && std::ranges::all_of(images, [&](const auto& image) {
        if (image->document.attached != currentPalette)
            return true;
        const PlainImage& shown = image->document.image();
        const bool banked = shown.bits == 4 && count > 16;
        return !banked && std::ranges::all_of(shown.texels, [&](unsigned value) { return value < count; }) &&
               (!image->piece ||
                std::ranges::all_of(image->piece->texels, [&](unsigned value) { return value < count; }));
    });
}

void DeskModel::moveEntry(std::size_t entry, std::size_t place) {
    PaletteModel& palette = *current();
    std::vector<std::uint8_t> now(palette.table().entries.size());
    for (std::size_t i = 0; i < now.size(); ++i)
        now[i] = static_cast<std::uint8_t>(i);
    const std::uint8_t moved = now[entry];
    now.erase(now.begin() + static_cast<std::ptrdiff_t>(entry));
    now.insert(now.begin() + static_cast<std::ptrdiff_t>(place), moved);
    // By the old entry, the new one.
    std::vector<std::uint8_t> to(now.size());
    PlainTable table = palette.table();
    for (std::size_t i = 0; i < now.size(); ++i) {
        to[now[i]] = static_cast<std::uint8_t>(i);
        table.entries[i] = palette.table().entries[now[i]];
    }
    const long step = static_cast<long>(joint.size()) + 1;
    std::size_t& parts = joint[step];
    palette.move(std::move(table), step);
    ++parts;
    for (const auto& image : images) {
        if (!image->isFirst() || image->document.attached != currentPalette)
            continue;
        image->settle();
        // Part of the step also with no texel that shows it, because of what is drawn later.
        PlainImage renumbered = image->document.image();
        for (std::uint8_t& texel : renumbered.texels)
            texel = to[texel];
        image->document.states.keep(std::exchange(image->document.image(), std::move(renumbered)), step);
        image->document.modified = true;
        ++parts;
    }
    refreshImages();
}

} // namespace dyeworks
