#pragma once

#include "core/EditHistory.h"
#include "core/JointStep.h"
#include "core/TlutData.h"
#include "platform/DisplayPalette.h"
#include "platform/KnownFile.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace dyeworks {

/// A palette: its table, its name and file, and the history of its edits.
class TextureLookupTable {
    EditHistory edits_{MessageIcon::Question};

public:
    TextureLookupTable();
    /// Copies table, names and modified state; the copy starts a history of its own.
    TextureLookupTable(const TextureLookupTable& other);
    explicit TextureLookupTable(const TlutData& table);
    TextureLookupTable& operator=(const TextureLookupTable&) = delete;

    virtual ~TextureLookupTable();

    /// Names the palette "palette%d" after the process-wide counter and builds default entries. A failure is
    /// shown in a message box and leaves the new names in place.
    virtual bool create(std::int32_t count, ColourType colourType);

    /// Writes the palette to `name`. Without a name (null, empty, or one that begins with "*") it goes to the
    /// palette's own file, or to one that the user is asked for when it has none or `forceDialog` is set.
    /// False when the user cancelled or the file could not be written (which has been reported).
    virtual bool save(const char* name, bool forceDialog);

    /// Reads the palette from `name`, from its own path when there is no name, or from a file that the user
    /// is asked for when there is neither. A modified palette refuses.
    virtual bool open(const char* name);

    /// Takes over what the file holds now, as one step of the history. False, changing nothing, when it could
    /// not be read, which has been reported.
    bool reloadFile();
    /// What the palette knows of its file.
    [[nodiscard]] KnownFile& file() noexcept { return file_; }

    // As the setters of TlutData; a change marks the palette modified.
    virtual bool setRed(std::int32_t index, std::int32_t value);
    virtual bool setGreen(std::int32_t index, std::int32_t value);
    virtual bool setBlue(std::int32_t index, std::int32_t value);
    virtual bool setIntensity(std::int32_t index, std::int32_t value);
    virtual bool setAlpha(std::int32_t index, std::int32_t value);
    virtual bool setEntry(std::int32_t index, std::uint16_t entry);
    virtual bool setEntryAlias(std::int32_t index, std::uint16_t entry);

    /// Brings `modified` and the title's " * " in step with the history: no edit in effect is unmodified.
    virtual void updateTitle();

    /// The display colour of an entry, 8 bits a channel; flags (reserved) is 0. False, setting nothing, for
    /// an index out of range or an unknown colour type. Reads the palette set's alpha-view flag.
    bool toPaletteEntry(std::int32_t index, std::uint8_t& red, std::uint8_t& green, std::uint8_t& blue,
                        std::uint8_t& flags) const;
    bool toRgbQuad(std::int32_t index, std::uint8_t& blue, std::uint8_t& green, std::uint8_t& red,
                   std::uint8_t& reserved) const;

    /// A description of all entries' display colours, or null (reported) when one of them has none. It can
    /// count to 65535: of a larger table it holds as many entries, from the first one on, as the low 16 bits
    /// of the table's count say.
    [[nodiscard]] std::unique_ptr<LogPalette> newLogPalette() const;
    /// Makes `palette` show the entries' display colours.
    bool createPalette(DisplayPalette& palette) const;

    /// The palette is modified, or its history stands elsewhere than at the last save, or the table is not
    /// what its file holds.
    [[nodiscard]] bool hasUnsavedChanges() const;
    /// Asks whether to save when there are unsaved changes. True: the caller may go on, the palette being
    /// saved or not to be saved.
    bool querySave();
    /// What the palette holds is in no file: until it is saved it has unsaved changes, wherever its history
    /// stands.
    void markUnsaved();

    /// Bracket every undoable edit. `beginEdit` keeps the table as it is: false when there is no memory for
    /// that. `commitEdit` records what became of it, under a name for the user: false without a history, and
    /// when there is no memory for the record, in which case the user has been asked whether to start the
    /// history anew.
    bool beginEdit();
    bool commitEdit(std::optional<StringId> name = {});

    /// A step that belongs to other documents, too, is taken back (done again) in all of them.
    bool undo();
    bool redo();
    /// Steps until the history stands at `position`, as `JointStep::moveTo` does it.
    bool goTo(std::int32_t position);
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// Starts a new, empty history.
    void resetHistory();
    /// For steps that this palette shares with others.
    [[nodiscard]] JointDocument& jointSide() noexcept { return *jointSide_; }

    /// Names the palette after its path: the last part without extension and without a leading "*". A path
    /// of which nothing is left keeps the title.
    void titleFromPath();
    /// The same for a palette that is as it was otherwise: the title keeps its " * ".
    void renameFromPath();

    /// The form of `path` under which palettes are kept: a full path, while "*palette" names and an empty one
    /// stay as they are.
    [[nodiscard]] static std::string keyFor(const std::string& path);

    /// Makes the record of an edit. Null or std::bad_alloc: there is no memory for it.
    using RecordFactory = std::unique_ptr<UndoRecord> (*)(const TlutData* before, const TlutData* after);
    void setRecordFactory(RecordFactory factory) { makeRecord_ = factory; }

    TlutData table;
    std::string
        path; ///< Path of the file, in a palette set a full one; "*palette%d" as long as there is none.
    std::string title; ///< Name shown to the user.
    bool modified = false;
    std::unique_ptr<UndoHistory>& history = edits_.steps;
    std::unique_ptr<TlutData> snapshot; ///< The table at `beginEdit`.

private:
    class Side;

    bool changed(bool result);
    [[nodiscard]] bool holdsWhatTheFileHolds() const;
    [[nodiscard]] bool isFileOfAnother(const std::string& file) const;
    void markSaved();
    [[nodiscard]] std::unique_ptr<UndoRecord> newRecord() const;

    KnownFile file_;
    std::optional<TlutData> savedTable_; ///< What was last written or read.
    RecordFactory makeRecord_;
    std::unique_ptr<JointDocument> jointSide_;
};

} // namespace dyeworks
