#pragma once

#include "platform/KnownFile.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace dyeworks {

class CDocument;
class FileWatcher;
class PaletteSet;
class TextureLookupTable;

/// Finds out what others make of the files of the open images, palettes and projects, and carries out what
/// the user wants then.
class OutsideWatch {
public:
    /// What there is to be looked after.
    struct Open {
        std::function<std::vector<CDocument*>()> documents;
        std::function<PaletteSet*()> palettes; ///< Null: none.
    };
    /// Something has become of a file, and the user has to say what of that.
    struct Notice {
        std::string path;
        CDocument* document = nullptr; ///< Null: it is a palette.
        KnownFile::State state = KnownFile::State::Changed;
        bool unsaved = false; ///< There are unsaved changes here, too.

        /// Whether there is something in the file that could be taken over.
        [[nodiscard]] bool offersReload() const;
        /// What has happened, in a sentence or two for the user.
        [[nodiscard]] std::string words() const;
        bool operator==(const Notice&) const = default;
    };

    /// `watcher` must outlive it.
    OutsideWatch(FileWatcher& watcher, Open open);
    ~OutsideWatch();
    OutsideWatch(const OutsideWatch&) = delete;
    OutsideWatch& operator=(const OutsideWatch&) = delete;

    /// Watches the files of what is open now, and remembers the contents of one of them at most. To be called
    /// about once a second.
    void follow();
    /// Of all files that would be looked at.
    [[nodiscard]] std::vector<std::string> paths() const;
    /// Looks at the files, at those in `answering` alone where it is given. True: something goes on, and they
    /// are to be looked at again in a moment. With `reloadsUnchanged` what has no unsaved changes takes over
    /// by itself what can be read.
    bool look(bool reloadsUnchanged, const std::set<std::string>* answering = nullptr);

    /// What the user has to decide about as things stand now: what asked may have been closed or saved since.
    [[nodiscard]] std::vector<Notice> notices() const;
    /// Paths of what was reloaded by itself since this was last asked.
    [[nodiscard]] std::vector<std::string> takeReloaded();

    /// Takes over what the file holds. False when it could not be read or the user rather did not.
    bool reload(const Notice& notice);
    /// Leaves what is here as it is. It then counts as changed, unless the file is what it was.
    void keep(const Notice& notice);

private:
    /// A palette or a document.
    struct Subject;

    [[nodiscard]] std::vector<Subject> subjects() const;

    FileWatcher& watcher_;
    Open open_;
    std::vector<std::string> watched_;
    std::vector<std::string> reloaded_;
};

} // namespace dyeworks
