#include "core/PaletteSet.h"

#include "platform/Platform.h"

#include <iterator>
#include <utility>

namespace dyeworks {

namespace {

PaletteSet* applicationSet = nullptr;

} // namespace

PaletteSet::PaletteSet(PaletteSetListener* listener)
    : listener_(listener) {}

PaletteSet::~PaletteSet() {
    if (applicationSet == this)
        applicationSet = nullptr;
}

bool PaletteSet::newPalette(std::int32_t count, ColourType colourType, std::int32_t alpha) {
    auto palette = std::make_unique<TextureLookupTable>();
    if (!palette->create(count, colourType))
        return false;
    for (std::int32_t i = 0; i < count; ++i)
        palette->table.setAlpha(i, alpha);
    return add(std::move(palette));
}

bool PaletteSet::addCopy(const TlutData& table) {
    auto palette = std::make_unique<TextureLookupTable>();
    if (!palette->create(table.count, table.colourType))
        return false;
    palette->table.copyEntriesFrom(table);
    return add(std::move(palette));
}

bool PaletteSet::openPalette(const std::string& path) {
    const std::string full = platform().files().fullPath(path);
    if (palettes.contains(full)) {
        currentKey = full;
        refreshViews();
        return true;
    }
    auto palette = std::make_unique<TextureLookupTable>();
    return palette->open(full.c_str()) && add(std::move(palette));
}

bool PaletteSet::add(std::unique_ptr<TextureLookupTable>&& palette) {
    if (!palette || palette->path.empty())
        return false;
    const auto position = insertUnderFreeKey(std::move(palette));
    position->second->titleFromPath();
    currentKey = position->first;
    refreshViews();
    return true;
}

PaletteSet::Map::iterator PaletteSet::find(const std::string& key) {
    std::string meant = key;
    complete(meant);
    return palettes.find(meant);
}

TextureLookupTable* PaletteSet::lookup(const std::string& key) const {
    std::string meant = key;
    return complete(meant) ? palettes.at(meant).get() : nullptr;
}

bool PaletteSet::complete(std::string& key) const {
    key = TextureLookupTable::keyFor(key.empty() ? currentKey : key);
    return palettes.contains(key);
}

bool PaletteSet::rekey(std::string& key, bool refresh) {
    const auto position = find(key);
    if (position == palettes.end())
        return false;
    const std::string wanted = TextureLookupTable::keyFor(position->second->path);
    if (wanted.empty() || wanted == position->first) {
        position->second->path = position->first;
        return false;
    }

    auto palette = std::move(position->second);
    palettes.erase(position);
    const auto& [taken, moved] = *insertUnderFreeKey(std::move(palette));
    // A number tells it from the palette that has the name.
    if (taken != wanted)
        moved->renameFromPath();
    key = taken;
    currentKey = taken;
    if (refresh)
        tabsChanged();
    return taken == wanted;
}

bool PaletteSet::rekeyAll() {
    // Keys move meanwhile, but never onto one that is still to come: its palette has not left it yet.
    std::vector<std::string> keys;
    listKeys(keys);
    bool moved = false;
    for (const std::string& key : keys) {
        std::string after = key;
        rekey(after, false);
        moved = moved || after != key;
    }
    tabsChanged();
    return moved;
}

bool PaletteSet::savePalette(const std::string& key, bool refresh) {
    std::string meant = key;
    if (!complete(meant))
        meant = currentKey;
    TextureLookupTable* const palette = lookup(meant);
    if (palette == nullptr || !palette->save(meant.c_str(), false))
        return false;
    if (refresh)
        afterSaving(meant);
    return true;
}

bool PaletteSet::savePaletteAs(const std::string& key, bool refresh) {
    std::string meant = key;
    if (!complete(meant) || !lookup(meant)->save(nullptr, true))
        return false;
    if (refresh)
        afterSaving(meant);
    return true;
}

bool PaletteSet::queryClose(const std::string& key, bool refresh) {
    std::string meant = key;
    if (!complete(meant) || !lookup(meant)->querySave())
        return false;
    if (refresh)
        afterSaving(meant);
    return true;
}

bool PaletteSet::closePalette(const std::string& key, bool refresh) {
    // Saving under another name changes the path, but not yet the key.
    std::string meant = key;
    complete(meant);
    return queryClose(meant, false) && removePalette(meant, refresh);
}

bool PaletteSet::removePalette(const std::string& key, bool refresh) {
    const auto position = find(key);
    if (position == palettes.end())
        return false;
    palettes.erase(position);
    if (!palettes.contains(currentKey))
        currentKey = palettes.empty() ? std::string() : palettes.begin()->first;
    if (refresh)
        refreshViews();
    return true;
}

bool PaletteSet::queryCloseAll() {
    std::vector<std::string> keys;
    listKeys(keys);
    bool agreed = true;
    for (const std::string& key : keys) {
        agreed = queryClose(key, false);
        if (!agreed)
            break;
    }
    rekeyAll();
    return agreed;
}

void PaletteSet::setCurrent(const std::string& key) {
    if (selectCurrent(key))
        tabsChanged();
}

bool PaletteSet::selectCurrent(const std::string& key) {
    const auto position = find(key);
    if (position == palettes.end())
        return false;
    currentKey = position->first;
    return true;
}

std::int32_t PaletteSet::listKeys(std::vector<std::string>& keys) const {
    keys.clear();
    keys.reserve(palettes.size());
    for (const auto& [key, palette] : palettes)
        keys.push_back(key);
    return static_cast<std::int32_t>(keys.size());
}

bool PaletteSet::keyAt(std::int32_t index, std::string& key) const {
    if (index < 0 || static_cast<std::size_t>(index) >= palettes.size())
        return false;
    key = std::next(palettes.begin(), index)->first;
    return true;
}

bool PaletteSet::getTitle(const std::string& key, std::string& title) {
    const TextureLookupTable* const palette = lookup(key);
    title = palette == nullptr ? std::string() : palette->title;
    return palette != nullptr;
}

void PaletteSet::refreshViews() {
    if (listener_ == nullptr)
        return;
    listener_->tabsChanged();
    listener_->currentPaletteChanged();
}

void PaletteSet::entriesChanged(const TextureLookupTable& palette) {
    if (listener_ == nullptr)
        return;
    const auto current = palettes.find(currentKey);
    if (current != palettes.end() && current->second.get() == &palette)
        listener_->currentPaletteChanged();
    else
        listener_->titlesChanged();
}

void PaletteSet::entriesMoved(const TextureLookupTable& palette) {
    entriesChanged(palette);
    if (listener_ != nullptr)
        listener_->coloursChanged();
}

PaletteSet::Map::iterator PaletteSet::insertUnderFreeKey(std::unique_ptr<TextureLookupTable> palette) {
    const std::string base = TextureLookupTable::keyFor(palette->path);
    std::string key = base;
    for (std::int32_t n = 1; palettes.contains(key); ++n)
        key = base + "_" + std::to_string(n);
    palette->path = key;
    if (!key.starts_with('*') && !palette->file().isAt(key))
        palette->file() = KnownFile(key);
    return palettes.emplace(key, std::move(palette)).first;
}

void PaletteSet::tabsChanged() {
    if (listener_ != nullptr)
        listener_->tabsChanged();
}

/// In place, too, the title loses its mark.
void PaletteSet::afterSaving(std::string key) {
    if (!rekey(key, true) && listener_ != nullptr)
        listener_->titlesChanged();
}

PaletteSet* applicationPaletteSet() {
    return applicationSet;
}

void setApplicationPaletteSet(PaletteSet* set) {
    applicationSet = set;
}

} // namespace dyeworks
