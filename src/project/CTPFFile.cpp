#include "project/CTPFFile.h"

#include "platform/Platform.h"
#include "platform/StringId.h"
#include "project/PathHelpers.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <limits>
#include <utility>

namespace dyeworks {

namespace {

constexpr const char* kTpfDir = "TPF_DIR";
constexpr const char* kTmfDir = "TMF_DIR";
constexpr const char* kTlfDir = "TLF_DIR";
constexpr const char* kPictureCount = "PICT_NUM";
constexpr std::string_view kPicturePrefix = "PICT.";

std::string pictureKey(std::size_t index) {
    return std::string(kPicturePrefix) + std::to_string(index);
}

/// The index in a picture's key; nothing for another key, or one whose number is written otherwise.
std::optional<std::int32_t> indexOf(const std::string& key) {
    if (!key.starts_with(kPicturePrefix))
        return std::nullopt;
    const std::string_view digits = std::string_view(key).substr(kPicturePrefix.size());
    std::int32_t index = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    if (error != std::errc() || end != digits.data() + digits.size() || index < 0 ||
        std::to_string(index) != digits)
        return std::nullopt;
    return index;
}

/// Decimal, or hexadecimal behind "0x", or octal behind "0"; what follows the number does not count.
std::int32_t numberIn(const std::string& text) {
    constexpr long kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr long kHighest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(std::strtol(text.c_str(), nullptr, 0), kLowest, kHighest));
}

std::vector<std::string> commaFields(const std::string& value) {
    std::vector<std::string> fields;
    std::size_t from = 0;
    for (std::size_t comma = value.find(','); comma != value.npos; comma = value.find(',', from)) {
        fields.push_back(value.substr(from, comma - from));
        from = comma + 1;
    }
    fields.push_back(value.substr(from));
    return fields;
}

std::string pictureValue(const std::string& name, const PictureEntry& entry) {
    return name + "," + entry.tmfFile + "," + entry.tlfFile + "," + std::to_string(entry.paletteNo);
}

/// The folder list with `change` made to each folder.
template <typename Change>
std::string changedFolders(const std::string& directories, Change change) {
    std::vector<std::string> folders;
    // A single folder may be named by nothing at all.
    if (SplitFields(directories, ";", folders) == 0)
        folders.emplace_back();
    std::string list;
    for (std::string& folder : folders) {
        change(folder);
        // Between separators nothing would stand for no folder at all.
        if (folder.empty() && folders.size() > 1)
            folder = ".";
        list += (&folder == &folders.front() ? "" : ";") + folder;
    }
    return list;
}

std::string relativeTo(const std::string& base, const std::string& directories) {
    return changedFolders(directories, [&](std::string& folder) { folder = pathFrom(base, folder); });
}

} // namespace

bool CTPFFile::Create(const std::string& path, const std::string& tpfFolder, const std::string& tmfFolder,
                      const std::string& tlfFolder) {
    pathName = path;
    PathTitle(projectName, pathName);
    const bool directoriesExist = SetDirectories(tpfFolder, tmfFolder, tlfFolder);
    modified = false;
    if (directoriesExist)
        store = std::make_unique<CKeyValueStore>();
    return directoriesExist;
}

void CTPFFile::Clear() {
    pathName.clear();
    projectName.clear();
    store.reset();
    modified = false;
}

bool CTPFFile::SetDirectories(const std::string& tpfFolder, const std::string& tmfFolder,
                              const std::string& tlfFolder) {
    std::string own = tpfFolder;
    if (PathNormalizeDir(own) && own != tpfDir) {
        tpfDir = own;
        modified = true;
    }
    std::string errors;
    takeFolder(kTmfDir, tmfFolder.empty() ? own : tmfFolder, tmfDir, errors);
    takeFolder(kTlfDir, tlfFolder.empty() ? own : tlfFolder, tlfDir, errors);
    if (errors.empty())
        return true;
    applicationMessage(text(StringId::FoldersDoNotExist, {errors}), MessageIcon::None);
    return false;
}

void CTPFFile::takeFolder(const char* entry, const std::string& folder, std::string& directory,
                          std::string& errors) {
    std::string normal = folder;
    if (!PathNormalizeDir(normal)) {
        errors += errors.empty() ? std::string() : text(StringId::FoldersJoint);
        errors += std::string(entry) + " = \"" + displayPath(folder) + "\"";
        return;
    }
    if (normal != directory) {
        directory = normal;
        modified = true;
    }
}

std::string CTPFFile::expanded(const std::string& value) const {
    std::string result = value;
    // What cannot be expanded stays as it is.
    static_cast<void>(store->Expand(value, result));
    return result;
}

bool CTPFFile::Read(const std::string& path, std::optional<FileError>* why) {
    if (modified)
        return false;
    if (store == nullptr)
        store = std::make_unique<CKeyValueStore>();
    pathName = path;
    if (pathName.empty() || !store->LoadFile(pathName, why))
        return false;
    takeStore();
    return true;
}

void CTPFFile::Restore(const std::string& path, std::span<const std::byte> bytes) {
    store = std::make_unique<CKeyValueStore>();
    pathName = path;
    store->LoadBytes(bytes);
    takeStore();
    modified = true;
}

/// What the store of a file that was just read says.
void CTPFFile::takeStore() {
    PathTitle(projectName, pathName);
    std::string name;
    PathSplitFolder(pathName, tpfDir, name);
    store->SetValue(kTpfDir, tpfDir);
    readFolder(kTmfDir, tmfDir);
    readFolder(kTlfDir, tlfDir);
    readPictures();
}

void CTPFFile::readFolder(const char* entry, std::string& directory) const {
    if (std::string value; store->GetValue(entry, value))
        directory = expanded(value);
    if (directory.empty())
        directory = tpfDir;
    directory = changedFolders(directory, [this](std::string& folder) {
        PathNormalizeDir(folder);
        PathAbsolute(folder, tpfDir);
    });
}

/// Costs the entries that there are, whatever number of them the file tells.
void CTPFFile::readPictures() {
    order.clear();
    pictures.clear();
    std::string count;
    const std::int32_t told = store->GetValue(kPictureCount, count) ? numberIn(expanded(count)) : 0;
    std::vector<std::int32_t> indices;
    for (const auto& [key, value] : store->values()) {
        if (const auto index = indexOf(key); index && *index < told)
            indices.push_back(*index);
    }
    std::ranges::sort(indices);
    std::vector<std::string> keys;
    keys.reserve(indices.size());
    for (const std::int32_t index : indices)
        keys.push_back(pictureKey(static_cast<std::size_t>(index)));
    store->TakeValues(keys, [this](const std::string& value) { readPicture(expanded(value)); });
}

void CTPFFile::readPicture(const std::string& value) {
    std::vector<std::string> fields = commaFields(value);
    if (fields.size() < 2)
        return;
    fields.resize(std::max<std::size_t>(fields.size(), 4));
    // A later entry of the same name changes the picture where it is.
    if (pictures.insert_or_assign(fields[0], PictureEntry{fields[1], fields[2], numberIn(fields[3])}).second)
        order.push_back(fields[0]);
}

std::optional<CTPFFile::Values> CTPFFile::valuesIn(const std::string& folder) const {
    Values values{
        {kTpfDir, folder}, {kTmfDir, relativeTo(folder, tmfDir)}, {kTlfDir, relativeTo(folder, tlfDir)}};
    std::int32_t count = 0;
    for (const std::string& picture : order) {
        if (const auto found = pictures.find(picture); found != pictures.end())
            values.emplace_back(pictureKey(static_cast<std::size_t>(count++)),
                                pictureValue(picture, found->second));
    }
    values.emplace_back(kPictureCount, std::to_string(count));
    // The project's own folder is found out anew by every reading.
    const auto isHeld = [](const auto& value) {
        return value.first == kTpfDir || CKeyValueStore::holds(value.first, value.second);
    };
    return std::ranges::all_of(values, isHeld) ? std::optional(values) : std::nullopt;
}

bool CTPFFile::Write(const std::string& path, std::optional<FileError>* why) {
    if (store == nullptr)
        return false;
    std::string folder;
    std::string name;
    PathSplitFolder(path, folder, name);
    const std::optional<Values> assignments = valuesIn(folder);
    if (!assignments)
        return false;
    // What cannot be written stays the project of the file that it has.
    auto written = std::make_unique<CKeyValueStore>(*store);
    for (const auto& [key, value] : *assignments)
        written->SetValue(key, value);
    if (!written->SaveFile(path, why))
        return false;
    store = std::move(written);
    pathName = path;
    tpfDir = folder;
    modified = false;
    PathTitle(projectName, pathName);
    return true;
}

std::optional<std::string> CTPFFile::fileText() const {
    // `tpfDir` need not be the file's folder: plug-ins may have set another one.
    std::string folder;
    std::string name;
    PathSplitFolder(pathName, folder, name);
    const std::optional<Values> assignments = valuesIn(folder);
    if (store == nullptr || !assignments)
        return std::nullopt;
    CKeyValueStore written = *store;
    for (const auto& [key, value] : *assignments)
        written.SetValue(key, value);
    return written.FileText();
}

bool CTPFFile::SetPicture(const std::string& name, PictureEntry& entry,
                          const std::optional<std::string>& after) {
    entry.tmfFile = fileNameIn(tmfDir, entry.tmfFile);
    entry.tlfFile = fileNameIn(tlfDir, entry.tlfFile);
    modified = true;
    if (!pictures.insert_or_assign(name, entry).second)
        std::erase(order, name);
    const auto before = after ? std::ranges::find(order, *after) : order.end();
    order.insert(before == order.end() ? order.begin() : before + 1, name);
    return true;
}

bool CTPFFile::RemovePicture(const std::string& name) {
    if (std::erase(order, name) == 0)
        return false;
    modified = true;
    return pictures.erase(name) > 0;
}

bool CTPFFile::GetPicture(const std::string& name, PictureEntry& entry) const {
    const auto found = pictures.find(name);
    if (found == pictures.end())
        return false;
    entry = found->second;
    return true;
}

std::size_t CTPFFile::GetPictureNames(std::vector<std::string>& names) const {
    names = order;
    return names.size();
}

void CTPFFile::repair(const ProjectRepair& change) {
    tmfDir = change.imageDirectories.value_or(tmfDir);
    tlfDir = change.paletteDirectories.value_or(tlfDir);
    for (const auto& [name, entry] : change.pictures) {
        if (!entry) {
            RemovePicture(name);
        } else if (const auto found = pictures.find(name); found != pictures.end()) {
            found->second = *entry;
        } else {
            pictures.emplace(name, *entry);
            order.push_back(name);
        }
    }
    modified = true;
}

ProjectState CTPFFile::state() const {
    ProjectState now{pictures, order, tmfDir, tlfDir, {}};
    if (store != nullptr) {
        for (const auto& [key, value] : store->values()) {
            if (indexOf(key))
                now.keys.insert(key);
        }
    }
    return now;
}

void CTPFFile::exchange(ProjectState& state) {
    ProjectState now = this->state();
    // Writing leaves the lines of pictures that are no more.
    std::vector<std::string> gone;
    for (const std::string& key : now.keys) {
        if (!state.keys.contains(key))
            gone.push_back(key);
    }
    if (store != nullptr)
        store->TakeValues(gone, [](const std::string&) {});
    pictures = std::move(state.pictures);
    order = std::move(state.order);
    tmfDir = std::move(state.tmfDir);
    tlfDir = std::move(state.tlfDir);
    state = std::move(now);
    modified = true;
}

bool CTPFFile::holdsFolders(const std::string& tpfFolder, const std::string& directories) {
    return CKeyValueStore::holds(kTmfDir, relativeTo(tpfFolder, directories));
}

bool CTPFFile::holdsPicture(const std::string& name, const PictureEntry& entry) {
    // Reading would put a value in the place of a reference.
    const auto isField = [](const std::string& text) {
        return text.find(',') == text.npos && text.find("$(") == text.npos;
    };
    constexpr std::size_t kHighestIndex = std::numeric_limits<std::int32_t>::max();
    return isField(name) && isField(entry.tmfFile) && isField(entry.tlfFile) &&
           CKeyValueStore::holds(pictureKey(kHighestIndex), pictureValue(name, entry));
}

} // namespace dyeworks
