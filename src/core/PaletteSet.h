#pragma once

#include "core/PaletteSetListener.h"
#include "core/TextureLookupTable.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

/// A palette's key as an operation takes it. An empty key stands for the current palette; a key that does not
/// begin with "*" is made a full path. The key that was meant is written back into the caller's string.
class PaletteKey {
public:
    PaletteKey(std::string& inOut)
        : key_(&inOut) {}
    PaletteKey(const std::string& in)
        : own_(in)
        , key_(&own_) {}
    PaletteKey(const char* in)
        : own_(in == nullptr ? "" : in)
        , key_(&own_) {}
    PaletteKey(const PaletteKey&) = delete;
    PaletteKey& operator=(const PaletteKey&) = delete;

    [[nodiscard]] std::string& value() const noexcept { return *key_; }

private:
    std::string own_;
    std::string* key_;
};

/// The open palettes of the application, in byte order of their keys, and which of them is current. A
/// palette's key equals its `path`. Operations on a key that names no palette answer false and change
/// nothing.
class PaletteSet {
public:
    using Map = std::map<std::string, std::unique_ptr<TextureLookupTable>>;

    explicit PaletteSet(PaletteSetListener* listener = nullptr);
    ~PaletteSet();
    PaletteSet(const PaletteSet&) = delete;
    PaletteSet& operator=(const PaletteSet&) = delete;

    /// `listener` may be null and must outlive its use.
    void setListener(PaletteSetListener* listener) { listener_ = listener; }

    /// Each of these makes the new palette current.
    bool newPalette(std::int32_t count, ColourType colourType, std::int32_t alpha);
    bool addCopy(const TlutData& table);
    /// A file that is open already becomes current and is not read again.
    bool openPalette(const std::string& path);
    /// Takes the palette unless its path is empty (false: the caller keeps it). When its key is taken, it
    /// gets the first free one with "_1", "_2" and so on behind it.
    bool add(std::unique_ptr<TextureLookupTable>&& palette);

    Map::iterator find(const PaletteKey& key);
    TextureLookupTable* lookup(const PaletteKey& key);

    /// Moves a palette whose path has changed to its new key and makes it current. False when the key stays,
    /// and when another palette holds the new one: this palette then takes the next free key, as in `add`,
    /// and only then another title.
    bool rekey(const PaletteKey& key, bool refresh);
    /// The same for every palette. True when any key changed.
    bool rekeyAll();

    bool savePalette(const PaletteKey& key, bool refresh);
    bool savePaletteAs(const PaletteKey& key, bool refresh);
    /// True when the palette has no unsaved changes left that the user wants kept.
    bool queryClose(const PaletteKey& key, bool refresh);
    bool closePalette(const PaletteKey& key, bool refresh);
    /// The same without the question.
    bool removePalette(const PaletteKey& key, bool refresh);
    bool queryCloseAll();

    void setCurrent(const PaletteKey& key);
    bool selectCurrent(const PaletteKey& key);

    std::int32_t listKeys(std::vector<std::string>& keys) const;
    bool keyAt(std::int32_t index, std::string& key) const;
    bool getTitle(const PaletteKey& key, std::string& title);

    void refreshViews();
    /// To be called when somebody else than the palette bar has changed the entries of a palette of the set.
    void entriesChanged(const TextureLookupTable& palette);

    std::string currentKey;
    Map palettes;
    std::int32_t alphaView = 0; ///< 1: display colours show the alpha plane.

private:
    Map::iterator insertUnderFreeKey(std::unique_ptr<TextureLookupTable> palette);
    void tabsChanged();
    void afterSaving(const PaletteKey& key);

    PaletteSetListener* listener_;
};

/// The application's palette set, or null. Every conversion to display colour reads its alpha-view flag.
PaletteSet* applicationPaletteSet();
void setApplicationPaletteSet(PaletteSet* set);

} // namespace dyeworks
