#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "platform/Platform.h"
#include "platform/ProgramPath.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "project/CTPFDocument.h"
#include "project/PathHelpers.h"
#include "project/PictureName.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr std::string_view kBelowProject = "\\Project\\";
constexpr std::string_view kPictureNodes = "\\Project\\Picture";

/// The name of the picture that the node is; nothing for any other node.
std::optional<std::string> pictureOf(const std::string& node) {
    if (!node.starts_with(kBelowPictures))
        return std::nullopt;
    return node.substr(kBelowPictures.size());
}

/// A project of another host may name drives that stand for nothing here.
std::string whyNotFound(const std::string& directories, const std::string& file) {
    const std::string place = isRooted(file) ? file : directories;
    if (place.size() > 1 && place[1] == ':' && platform().files().hostPath(place.substr(0, 2) + "\\").empty())
        return text(StringId::DriveIsNotMapped, {displayPath(file), place.substr(0, 1)});
    return text(StringId::FileIsNotFound, {displayPath(file)});
}

/// What is dragged, by the text that the drag carries.
std::string keyOf(const std::string& data) {
    const std::size_t equals = data.find('=');
    return equals == std::string::npos || equals == 0 ? data : data.substr(0, equals);
}

bool canBeTarget(const std::string& target, const std::optional<std::string>& data) {
    return data.has_value() && target.starts_with(kBelowProject);
}

} // namespace

std::vector<std::string> CTPFDocument::PicturesOfOtherNumber(const std::string& imageFile,
                                                             std::int32_t paletteNumber) const {
    std::vector<std::string> names;
    for (const std::string& name : projectFile_.order) {
        PictureEntry entry;
        if (projectFile_.GetPicture(name, entry) && entry.paletteNo != paletteNumber &&
            equalIgnoringCase(findFile(projectFile_.tmfDir, entry.tmfFile), imageFile))
            names.push_back(name);
    }
    return names;
}

bool CTPFDocument::AddPicture(const std::optional<std::string>& name,
                              const std::optional<std::string>& imageFile,
                              const std::optional<std::string>& paletteFile, std::int32_t paletteNumber,
                              const std::optional<std::string>& after, bool silent) {
    const auto isTaken = [this](const std::string& each) { return projectFile_.pictures.contains(each); };
    PictureSettings settings{freePictureName(name.value_or(""), isTaken),
                             fileNameIn(projectFile_.tmfDir, imageFile.value_or("")),
                             fileNameIn(projectFile_.tlfDir, paletteFile.value_or("")),
                             paletteNumber,
                             projectFile_.tmfDir,
                             projectFile_.tlfDir};
    if (!silent && !askForPicture(settings, ""))
        return false;
    PictureEntry entry{settings.imageFile, settings.paletteFile, settings.paletteNumber};
    if (!CTPFFile::holdsPicture(settings.name, entry))
        return false;
    projectFile_.SetPicture(settings.name, entry, after);
    picturesChanged();
    return true;
}

bool CTPFDocument::ChangePicture(const std::string& name) {
    // A copy: the name may belong to what changes below.
    const std::string oldName = name;
    PictureEntry entry;
    if (!projectFile_.GetPicture(oldName, entry))
        return false;
    PictureSettings settings{oldName,         entry.tmfFile,       entry.tlfFile,
                             entry.paletteNo, projectFile_.tmfDir, projectFile_.tlfDir};
    if (!askForPicture(settings, oldName))
        return false;
    entry = {settings.imageFile, settings.paletteFile, settings.paletteNumber};
    if (settings.name != oldName)
        projectFile_.RemovePicture(oldName);
    projectFile_.SetPicture(settings.name, entry, std::nullopt);
    picturesChanged();
    return true;
}

bool CTPFDocument::askForPicture(PictureSettings& settings, const std::string& ownName) {
    return host_.askPicture(settings,
                            [&](const PictureSettings& entered) { return check(entered, ownName); });
}

/// The field that does not do, which the user has been told. `ownName`: the picture that is changed.
PictureField CTPFDocument::check(const PictureSettings& settings, const std::string& ownName) const {
    const PictureEntry entry{fileNameIn(projectFile_.tmfDir, settings.imageFile),
                             fileNameIn(projectFile_.tlfDir, settings.paletteFile), settings.paletteNumber};
    if (!isPictureName(settings.name)) {
        applicationMessage(text(StringId::PictureNameCannotBeHeld));
        return PictureField::Name;
    }
    if (!CTPFFile::holdsPicture("", {entry.tmfFile, "", 0})) {
        applicationMessage(text(StringId::FileNameCannotBeHeld, {displayPath(settings.imageFile)}));
        return PictureField::Image;
    }
    if (!CTPFFile::holdsPicture("", {"", entry.tlfFile, 0})) {
        applicationMessage(text(StringId::FileNameCannotBeHeld, {displayPath(settings.paletteFile)}));
        return PictureField::Palette;
    }
    if (!CTPFFile::holdsPicture(settings.name, entry)) {
        applicationMessage(text(StringId::PictureNamesAreTooLong));
        return PictureField::Name;
    }
    if (settings.name != ownName && projectFile_.pictures.contains(settings.name) &&
        applicationMessage(text(StringId::ReplacePictureQuestion, {settings.name}), MessageButtons::YesNo) !=
            MessageAnswer::Yes)
        return PictureField::Name;
    return PictureField::None;
}

bool CTPFDocument::RemovePicture(const std::string& name) {
    const std::string picture = name;
    if (!projectFile_.RemovePicture(picture))
        return false;
    picturesChanged();
    return true;
}

void CTPFDocument::picturesChanged() {
    setModified(true);
    updateAllViews(nullptr, kHintPictures);
    host_.ProjectChanged();
}

void CTPFDocument::Repair(const ProjectRepair& change) {
    ProjectState before = projectFile_.state();
    projectFile_.repair(change);
    KeepForRevert(std::move(before));
    picturesChanged();
}

void CTPFDocument::KeepForRevert(ProjectState before) {
    if (beforeCheck_ && !isFirstRepair_ && !isReverted_)
        return;
    beforeCheck_ = std::move(before);
    isFirstRepair_ = false;
    isReverted_ = false;
}

void CTPFDocument::RevertCheck() {
    if (!beforeCheck_)
        return;
    projectFile_.exchange(*beforeCheck_);
    isReverted_ = !isReverted_;
    picturesChanged();
}

bool CTPFDocument::SetPicture(const std::string& name, PictureEntry entry) {
    entry.tmfFile = fileNameIn(projectFile_.tmfDir, entry.tmfFile);
    entry.tlfFile = fileNameIn(projectFile_.tlfDir, entry.tlfFile);
    if (!isPictureName(name) || !CTPFFile::holdsPicture(name, entry))
        return false;
    projectFile_.SetPicture(name, entry, std::nullopt);
    picturesChanged();
    return true;
}

bool CTPFDocument::OpenPicture(const std::string& name) {
    PictureEntry entry;
    if (!projectFile_.GetPicture(name, entry))
        return false;
    const auto find = [this](const std::string& directories, const std::string& file) {
        std::string path = findFile(directories, file);
        if (path.empty())
            applicationMessage(whyNotFound(directories, file));
        return path;
    };
    const std::string palette = find(projectFile_.tlfDir, entry.tlfFile);
    const bool paletteIsOpen = !palette.empty() && host_.openPalette(palette);
    const std::string imagePath = find(projectFile_.tmfDir, entry.tmfFile);
    CDyeworksDoc* const image = imagePath.empty() ? nullptr : host_.openImage(imagePath);
    if (image == nullptr)
        return true;
    PaletteSet* const set = image->host().paletteSet();
    // What the picture names may be a file of another kind, opened as such.
    if (paletteIsOpen && set != nullptr && set->lookup(palette) != nullptr) {
        // Opening an image that is attached already has made another palette the current one.
        set->setCurrent(palette);
        image->Attach();
        host_.SetPaletteBarNumber(entry.paletteNo);
    }
    return true;
}

void CTPFDocument::OnNodeDoubleClick(const std::string& node) {
    const std::optional<std::string> picture = pictureOf(node);
    if (picture && projectFile_.pictures.contains(*picture))
        OpenPicture(*picture);
}

bool CTPFDocument::NodeToString(const std::string& node, std::string& text) const {
    if (!node.starts_with(kBelowProject))
        return false;
    const std::optional<std::string> picture = pictureOf(node);
    if (!picture)
        return host_.projectPlugIns().TPF_ToString(plugInHandles_, node, text);
    PictureEntry entry;
    if (!projectFile_.GetPicture(*picture, entry))
        return false;
    text = node + "=" + entry.tmfFile + "," + entry.tlfFile + "," + std::to_string(entry.paletteNo);
    return true;
}

std::uint32_t CTPFDocument::DragOverNode(const std::string& target, const std::optional<std::string>& data,
                                         std::uint32_t keyState) const {
    if (!canBeTarget(target, data))
        return drop_effect::kNone;
    const std::string dragged = keyOf(*data);
    if (!target.starts_with(kPictureNodes))
        return host_.projectPlugIns().TPF_IsDroppable(plugInHandles_, target, dragged, keyState);
    if (!dragged.starts_with(kBelowPictures))
        return drop_effect::kNone;
    if ((keyState & drag_key::kControl) != 0)
        return drop_effect::kCopy;
    return dragged == target ? drop_effect::kNone : drop_effect::kMove;
}

bool CTPFDocument::DropOnNode(const std::string& target, const std::optional<std::string>& data,
                              std::uint32_t effect) {
    if (!canBeTarget(target, data))
        return false;
    std::vector<std::string> lines;
    SplitFields(*data, "\n", lines);
    const ProjectHost& host = host_;
    for (const std::string& line : lines) {
        dropLine(target, line, effect);
        // The plug-in that took the line may have had the project closed.
        if (host.projectDocument() != this)
            break;
    }
    return true;
}

void CTPFDocument::dropLine(const std::string& target, const std::string& line, std::uint32_t effect) {
    StoreLine tokens;
    // The names of nodes may have letters that keys of the file have not.
    const std::size_t count = line.starts_with(kBelowProject) ? TokenizeLine(line, kBelowProject, tokens)
                                                              : TokenizeLine(line, tokens);
    if (count != 3)
        return;
    std::optional<std::string> picture = pictureOf(tokens[0]);
    // Blanks at the end of a name belong to it when there is such a picture.
    if (const auto whole = pictureOf(keyOf(line)); whole && projectFile_.pictures.contains(*whole))
        picture = whole;
    if (!target.starts_with(kPictureNodes))
        host_.projectPlugIns().TPF_OnDrop(plugInHandles_, target, tokens[0], tokens[2], effect);
    else if (picture)
        dropPicture(target, *picture, tokens[2], effect);
}

void CTPFDocument::dropPicture(const std::string& target, std::string_view name, const std::string& value,
                               std::uint32_t effect) {
    const std::size_t first = std::min(value.find(','), value.size());
    const std::size_t second = std::min(value.find(',', first + 1), value.size());
    const auto between = [&](std::size_t from, std::size_t to) {
        return from < to ? value.substr(from, to - from) : std::string();
    };
    const std::string image = value.substr(0, first);
    const std::string palette = between(first + 1, second);
    const std::string number = between(second + 1, value.size());
    const std::string picture(name);
    const auto palettes = static_cast<std::int32_t>(std::strtol(number.c_str(), nullptr, 10));
    // Before anything is taken away. Without a name it gets one.
    const bool mayBeCalled =
        picture.empty() || isPictureName(picture) || projectFile_.pictures.contains(picture);
    if (!mayBeCalled || !CTPFFile::holdsPicture(picture, {image, palette, palettes}))
        return;
    if ((effect & drop_effect::kMove) != 0)
        RemovePicture(picture);
    AddPicture(picture, image, palette, palettes, pictureOf(target), true);
}

} // namespace dyeworks
