#pragma once

#include "framework/CommandTarget.h"
#include "ui/StartPage.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

class CMainFrame;
class RecentFiles;

/// The place of the start page: in the empty area of documents, while the option is on. The
/// page is made when the program has nothing else to do, and gone as soon as a document opens.
class StartPlace : public QObject, public CommandTarget {
public:
    struct Parts {
        /// Opens the files one after the other; with `attach` images are attached to the palette before them.
        std::function<void(const std::vector<std::string>& paths, bool attach)> open;
        /// Opens a page of the guide, named from the program's folder.
        std::function<void(const std::string& relativePath)> showHelp;
    };

    /// Both must outlive it.
    StartPlace(const RecentFiles& recent, Parts parts);

    /// From now on the page shows. Not `atOnce`: only when a document has been open and none is any more, as
    /// for somebody who has asked for files.
    void start(CMainFrame& frame, bool atOnce);
    /// The window goes.
    void end();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();
    void makePage();
    void place();
    [[nodiscard]] std::vector<StartFile> recentFiles() const;
    void OnToggle();
    void OnUpdateToggle(CommandUi& ui);

    const RecentFiles& recent_;
    Parts parts_;
    QPointer<CMainFrame> frame_;
    QPointer<StartPage> page_;
    bool waits_ = false; ///< For the first document.
};

} // namespace dyeworks
