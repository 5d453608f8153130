#pragma once

#include "core/PaletteSetListener.h"
#include "core/TextureLookupTable.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

/// The open palettes of the application, in byte order of their keys, and which of them is current. A
/// palette's key equals its `path`. An empty key stands for the current palette; one that does not begin with
/// "*" is made a full path. Operations on a key that names no palette answer false and change nothing.
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

    [[nodiscard]] Map::iterator find(const std::string& key);
    /// Null when there is no such palette. It belongs to the set.
    [[nodiscard]] TextureLookupTable* lookup(const std::string& key) const;
    /// Puts the key that is looked up for `key` in its place. False when no palette has it.
    bool complete(std::string& key) const;

    /// Moves a palette whose path has changed to its new key, which comes back in `key`, and makes it
    /// current. False when the key stays, and when another palette holds the new one: this palette then takes
    /// the next free key, as in `add`, and only then another title.
    bool rekey(std::string& key, bool refresh);
    /// The same for every palette. True when any key changed.
    bool rekeyAll();

    bool savePalette(const std::string& key, bool refresh);
    bool savePaletteAs(const std::string& key, bool refresh);
    /// True when the palette has no unsaved changes left that the user wants kept.
    bool queryClose(const std::string& key, bool refresh);
    bool closePalette(const std::string& key, bool refresh);
    /// The same without the question.
    bool removePalette(const std::string& key, bool refresh);
    bool queryCloseAll();

    void setCurrent(const std::string& key);
    bool selectCurrent(const std::string& key);

    std::int32_t listKeys(std::vector<std::string>& keys) const;
    bool keyAt(std::int32_t index, std::string& key) const;
    bool getTitle(const std::string& key, std::string& title);

    void refreshViews();
    /// To be called when somebody else than the palette bar has changed the entries of a palette of the set.
    void entriesChanged(const TextureLookupTable& palette);
    /// The same when no image has been told either.
    void entriesMoved(const TextureLookupTable& palette);

    std::string currentKey;
    Map palettes;
    std::int32_t alphaView = 0; ///< 1: display colours show the alpha plane.

private:
    Map::iterator insertUnderFreeKey(std::unique_ptr<TextureLookupTable> palette);
    void tabsChanged();
    void afterSaving(std::string key);

    PaletteSetListener* listener_;
};

/// The application's palette set, or null. Every conversion to display colour reads its alpha-view flag.
PaletteSet* applicationPaletteSet();
void setApplicationPaletteSet(PaletteSet* set);

} // namespace dyeworks
