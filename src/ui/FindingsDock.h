#pragma once

#include <QDockWidget>
#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace dyeworks {

enum class StringId : int;

/// Something that a check has found, as it is listed.
struct Finding {
    QString source; ///< What it was found in, such as the image. Those of one source stand together.
    QString check;  ///< What it breaks.
    QString place;
    QString reason;
    std::function<void()> go{}; ///< Brings the place into sight; empty for a row that is at no place.
    // What else can be done; empty where it cannot.
    std::function<void()> open{};
    std::function<void()> relink{};
    std::function<void()> remove{};
    std::function<void()> add{};
    /// Of the image that breaks a rule: left out while the image is open, for then its own findings are
    /// listed.
    std::string ruleOf{};
};

/// The dock "Findings": a list of what checks have found, those of the project and those of open images, or a
/// sentence in its place; and what can be done about a finding. A click goes to it, a double click or Enter
/// opens it; the list keeps the keys, so that the next can be gone to.
class FindingsDock : public QDockWidget {
    Q_OBJECT

public:
    FindingsDock();

    // Of open images.
    /// Lists these. The row that was current stays so, as long as it is there. `images`: full paths of those
    /// that were looked at.
    void showFindings(std::vector<Finding> findings, std::set<std::string> images);
    /// Has none, and shows a sentence when there are none of the project either, and the button that leads to
    /// the rules.
    void showNotice(const QString& notice, std::set<std::string> images);

    // Of the project.
    /// Nothing: it has not been checked.
    void showProjectFindings(std::optional<std::vector<Finding>> findings);
    /// The check is on its way: thousandths that are done.
    void showProgress(int thousandths);
    void endProgress();
    void setProjectOpen(bool open);

Q_SIGNALS:
    /// The button was pressed.
    void rulesWanted();
    void checkWanted();
    void stopWanted();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeList();
    void widenColumns();
    [[nodiscard]] QWidget* makeNotice();
    [[nodiscard]] QWidget* makeButtons();
    [[nodiscard]] QPushButton* button(const char* name, StringId caption, StringId tip);
    void list();
    void selectionChanged();
    void popUpMenu(const QPoint& place);
    void run(const std::function<void()> Finding::*step, QTreeWidgetItem* row);

    QStackedWidget* pages_;
    QTreeWidget* list_;
    QLabel* notice_;
    QPushButton* check_ = nullptr;
    QPushButton* stop_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QLabel* state_ = nullptr;
    std::vector<QPushButton*> actions_; ///< Relink, remove, add.
    bool areWidened_ = false;           ///< The columns.
    std::vector<Finding> ofImages_;
    std::set<std::string> images_;
    std::optional<std::vector<Finding>> ofProject_;
    std::vector<Finding> findings_; ///< By row.
};

} // namespace dyeworks
