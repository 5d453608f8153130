#pragma once

#include "dyeworks/plugin.h"

#include <QWidget>

class QAction;
class QComboBox;
class QToolBar;

namespace dyeworks::plugins {

class ViewerView;

/// One preview: a window with a small tool bar over the picture.
class ViewerWindow : public QWidget {
public:
    /// `number` is shown in the title: 1 or 2.
    explicit ViewerWindow(int number);

    /// Shows the picture, and the window when it is hidden, which does not take the keyboard from the
    /// program. False for a picture that cannot be shown; the window is then hidden.
    [[nodiscard]] bool showPicture(const PlugInPicture& picture);

    /// Hides the window until the next picture; whether the user had closed it no longer matters.
    void dismiss();

    /// Whether the user has closed the window since the last call of this or of `dismiss`.
    [[nodiscard]] bool takeClosedByUser();

    [[nodiscard]] ViewerView& view() { return *view_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeTilesBox(QToolBar& bar);
    void makeZoomBox(QToolBar& bar);
    /// A button of the tool bar; `shown` is its face.
    QAction* makeButton(QToolBar& bar, const QString& name, const QString& shown, const QString& tip);
    /// Over the main window, the first time in its lower right corner, where the two windows are side by
    /// side.
    void goOverProgram();

    int number_;
    ViewerView* view_;
    QComboBox* zoomBox_ = nullptr;
    bool closedByUser_ = false;
};

} // namespace dyeworks::plugins
