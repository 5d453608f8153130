#pragma once

#include "core/TlutData.h"
#include "paint/ImageViewer.h"
#include "paint/Rect.h"
#include "recovery/RecoveryItem.h"
#include "recovery/RecoveryWriter.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

class CDocument;
class CDyeworksDoc;
class PaletteSet;
class ShadowCopy;
class StateFolder;

/// Keeps what is unsaved of the open documents in the state folder: two seconds after the last change, and
/// while changes go on every fifteen. The user's own files are left alone.
class RecoveryKeeper {
public:
    using Clock = std::chrono::steady_clock;

    /// What there is to be looked through.
    struct Open {
        std::function<std::vector<CDocument*>()> documents;
        std::function<const PaletteSet*()> palettes;
    };

    /// `folder` must outlive the keeper.
    RecoveryKeeper(StateFolder& folder, Open open);
    ~RecoveryKeeper();
    RecoveryKeeper(const RecoveryKeeper&) = delete;
    RecoveryKeeper& operator=(const RecoveryKeeper&) = delete;

    /// Looks through everything and does a few milliseconds of work at most; to be called a few times a
    /// second. True: there is more to do at once.
    bool look(Clock::time_point now);
    /// The image's texels have changed there (inclusive), or, without a rectangle, something else of it.
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels);
    /// Keeps everything that is unsaved, and returns once it is kept or could not be.
    void keepNow();

    // While something runs that may never come back, as a plug-in.
    static constexpr std::chrono::seconds kHangs{10};
    /// It is about to run: what is unsaved is kept after `kHangs`, and `then` called on another thread,
    /// unless it has come back by then or the program goes on in another way. May be nested; the outermost
    /// counts.
    void mayHang(std::function<void()> then);
    void cameBack();
    /// Called on another thread while it has not come back: keeps what is unsaved and returns then.
    void keepWhileHanging();

    /// The program ends in order: nothing is kept any more.
    void discard();

    /// Why the last of them could not be written; nothing when it was.
    [[nodiscard]] std::optional<FileError> failure() const {
        return memoryIsShort_ ? FileError::TooLarge : writer_.failure();
    }

private:
    /// What tells whether a document is what was kept.
    struct Stamp {
        RecoveryItem item; ///< Without its time.
        std::uint64_t changes = 0;
        std::int32_t position = 0; ///< Of an image's history: undoing is no change.
        std::vector<FloatingPiece> pieces;
        bool operator==(const Stamp&) const = default;
    };
    struct Kept {
        std::string name; ///< Of the file.
        std::optional<Stamp> seen;
        std::optional<Stamp> written;
        std::optional<RecoveryItem> inFolder; ///< As it stands there, maybe an older one.
        Clock::time_point changed;            ///< When `seen` was last another.
        Clock::time_point first;              ///< When it first was since it was written.
        std::uint64_t look = 0;
        std::shared_ptr<ShadowCopy> shadow; ///< Of an image.
        std::optional<TlutData> table;      ///< Of a palette, as it was last seen.
        std::uint64_t tableChanges = 0;
    };
    struct Held {
        std::string key;
        Stamp stamp;
    };
    struct Subject {
        std::string key; ///< As long as it is open, no other document has it.
        Stamp stamp;
        bool unsaved = false;
        CDocument* document = nullptr;
        const TlutData* table = nullptr;
    };

    [[nodiscard]] std::vector<Subject> subjects() const;
    [[nodiscard]] Kept& keptOf(Subject& subject);
    void forget(Kept& kept);
    void forgetOlderThanFile(Kept& kept, const Stamp& stamp, Clock::time_point now);
    void dropClosed();
    [[nodiscard]] bool isDue(Kept& kept, const Stamp& stamp, Clock::time_point now) const;
    static void tryLater(Kept& kept, Clock::time_point now);
    void takeFailed(Clock::time_point now);
    void holdUnsaved();
    void settleHeld();
    bool lookAt(Subject& subject, Clock::time_point now);
    /// What is to be written. Nothing in `File::keeper`: there is nothing to keep. Nothing at all: there is
    /// more to copy. Throws std::bad_alloc.
    [[nodiscard]] std::optional<RecoveryWriter::File> fileOf(Kept& kept, const Subject& subject,
                                                             std::size_t most);
    [[nodiscard]] std::shared_ptr<ShadowCopy> shadowOf(Kept& kept, const CDyeworksDoc& image,
                                                       std::size_t most);

    Open open_;
    StateFolder& folder_;
    std::map<std::string, Kept> kept_;
    std::map<const CDyeworksDoc*, std::shared_ptr<ShadowCopy>> shadows_;
    std::uint64_t looks_ = 0;
    std::uint64_t names_ = 0;
    std::uint64_t writes_ = 0;
    bool hurried_ = false; ///< Nothing waits for the user to stop.
    bool memoryIsShort_ = false;
    std::function<void()> whenItHangs_;
    int hanging_ = 0;        ///< Calls that have not come back.
    std::vector<Held> held_; ///< Written if none of them comes back.
    RecoveryWriter writer_;
};

} // namespace dyeworks
