#pragma once

#include <QToolBar>

#include <string>

class QAction;
class QComboBox;
class QToolButton;

namespace dyeworks {

class CommandActions;
class CurrentProject;

/// The bar "Project": lists the pictures of the open project and offers to open the chosen one and to change
/// the list. What is chosen here is the project's current picture.
class CProjectBar : public QToolBar {
    Q_OBJECT

public:
    /// Both must outlive the bar.
    CProjectBar(CurrentProject& project, const CommandActions& actions);

    /// Lists the pictures of the open project anew and chooses the last one.
    void Refresh();
    /// Chooses the picture called exactly so; one that is not listed leaves the choice as it is.
    void SelectPicture(const std::string& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addCommandButton(QAction* command, const QString& name, const QString& text);
    void addButton(QToolButton& button);
    void updatePictureButton();
    void openPicture();

    CurrentProject& project_;
    QComboBox* pictures_;
    QToolButton* picture_;
};

} // namespace dyeworks
