#pragma once

#include "core/JointStep.h"

#include <QBasicTimer>
#include <QDockWidget>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class QLabel;
class QListView;
class QStackedWidget;
class QTabBar;

namespace dyeworks {

class UndoListModel;

/// Whose steps the list shows: those of the active image or those of the current palette.
enum class StepOwner { Image, Palette };

/// What the list asks of the main window.
class UndoListHost {
public:
    virtual ~UndoListHost() = default;

    /// The document, or null when there is none.
    [[nodiscard]] virtual JointDocument* stepsOf(StepOwner owner) = 0;
    /// As the list calls it: a name without folders.
    [[nodiscard]] virtual std::string nameOf(StepOwner owner) = 0;
    /// Lets the document step until its history stands there; tells the user why where it does not.
    virtual void goTo(StepOwner owner, std::int32_t position) = 0;
    /// Where the user works with the keys in `widget`; nothing when it belongs to neither.
    [[nodiscard]] virtual std::optional<StepOwner> ownerAt(const QWidget* widget) = 0;
};

/// The dock "Undo List": the steps of the active image or of the current palette, one of which is where the
/// document stands; a click on another, or Enter, goes there.
///
/// It shows one list, that of what the user works in: the keys for Undo act on the image in its window and on
/// the palette in its bar, and the list shows what they would take back. The switch above it shows the other.
/// While nobody can see it, it does nothing.
class UndoListDock : public QDockWidget {
    Q_OBJECT

public:
    /// The host must outlive the dock.
    explicit UndoListDock(UndoListHost& host);

    /// Something may have been edited, or another document may be in front.
    void refreshSoon();
    /// Brings what is seen up to date at once.
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    /// Where a history stood when it was last looked at.
    struct Seen {
        std::weak_ptr<JointDocument*> document;
        std::int32_t position = 0;
    };

    [[nodiscard]] StepOwner owner() const;
    void makeList();
    void followFocus(const QWidget* now);
    void followEdits();
    [[nodiscard]] bool wasEdited(StepOwner owner);
    void nameTabs();
    void goTo(int row);
    void markCurrent();

    UndoListHost& host_;
    QTabBar* tabs_;
    QStackedWidget* pages_;
    QListView* list_;
    QLabel* notice_;
    UndoListModel* model_;
    QBasicTimer soon_;
    std::array<Seen, 2> seen_;
    StepOwner listed_ = StepOwner::Image;
    std::weak_ptr<JointDocument*> listedDocument_;
};

} // namespace dyeworks
