#pragma once

#include "framework/CommandTarget.h"
#include "framework/DocumentView.h"
#include "platform/KnownFile.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

class DocumentTemplate;

/// A document: something that is opened, shown in views, changed and saved. Needs no window.
class CDocument : public CommandTarget {
public:
    explicit CDocument(DocumentTemplate* documentTemplate = nullptr);
    ~CDocument() override;
    CDocument(const CDocument&) = delete;
    CDocument& operator=(const CDocument&) = delete;

    [[nodiscard]] const std::string& title() const noexcept { return title_; }
    void setTitle(const std::string& title);
    /// Full path of the file; empty for a document that has none yet.
    [[nodiscard]] const std::string& pathName() const noexcept { return pathName_; }
    /// Keeps the full form of `path` and titles the document by the file's name without its folder.
    virtual void setPathName(const std::string& path);
    /// What questions call the document: its file as people write it, its title while it has none.
    [[nodiscard]] virtual std::string displayName() const;
    [[nodiscard]] bool isModified() const noexcept { return modified_; }
    virtual void setModified(bool modified);
    /// Another number after each change.
    [[nodiscard]] std::uint64_t changes() const noexcept { return changes_; }
    /// That no other document of this run of the program has or had.
    [[nodiscard]] std::uint64_t number() const noexcept { return number_; }

    /// What it knows of its file.
    [[nodiscard]] KnownFile& file() noexcept { return file_; }
    /// Takes over what the file holds now. False, changing nothing, when it could not be read, which has been
    /// reported, or the user rather keeps what is here.
    virtual bool reloadFile() { return false; }
    /// What the document holds is in no file: until it is saved it counts as changed.
    virtual void markUnsaved() { setModified(true); }

    [[nodiscard]] DocumentTemplate* documentTemplate() const noexcept { return template_; }

    /// Views are not owned. Title listeners hear of each that comes or goes.
    void addView(DocumentView& view);
    void removeView(DocumentView& view);
    [[nodiscard]] const std::vector<DocumentView*>& views() const noexcept { return views_; }
    /// Tells all views but the sender.
    void updateAllViews(DocumentView* sender, int hint);
    /// Listeners are not owned.
    void addTitleListener(DocumentTitleListener& listener);
    void removeTitleListener(DocumentTitleListener& listener);

    /// Empties the document for a fresh start. False abandons it. Here: no path, not modified.
    virtual bool onNewDocument();
    /// Reads the file. False when it could not be read, which has been reported. Here: not modified, and
    /// about to read the file.
    virtual bool onOpenDocument(const std::string& path);
    /// Writes the document to `path` and clears the modified flag. An empty path asks for a name, which
    /// becomes the document's path once it is written. False when it could not be written (which has been
    /// reported) or the user cancelled; the document then stays as it was.
    virtual bool onSaveDocument(const std::string& path) = 0;
    /// The last thing that happens to the document before it goes.
    virtual void onCloseDocument() {}

    /// Whether closing would lose something.
    [[nodiscard]] virtual bool hasUnsavedChanges() const { return modified_ || file_.isMissing(); }
    /// Asks "save?" when there are unsaved changes and saves on Yes. True: the caller may go on, which is so
    /// after a save that succeeded and after No.
    virtual bool saveModified();
    /// The same before the document is closed, with what else there is to ask then.
    virtual bool mayClose() { return saveModified(); }

    /// Save: to the document's file, or to one that is asked for. Save As: always asks. A document that was
    /// saved is titled by its file again. False when nothing was written.
    bool save();
    bool saveAs();

protected:
    /// What the document holds is what is now in the file, or what is about to be read from it.
    void setFile(KnownFile file) { file_ = std::move(file); }

private:
    void OnFileSave();
    void OnFileSaveAs();
    bool saveTo(const std::string& path);
    void tellRenamed();
    void tellTitleListeners();

    DocumentTemplate* template_;
    std::string title_;
    std::string pathName_;
    KnownFile file_;
    bool modified_ = false;
    std::uint64_t changes_ = 0;
    std::uint64_t number_;
    std::vector<DocumentView*> views_;
    std::vector<DocumentTitleListener*> titleListeners_;
};

} // namespace dyeworks
