#pragma once

#include <QDockWidget>
#include <QString>

#include <functional>
#include <vector>

class QLabel;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace dyeworks {

/// Something that a check has found, as it is listed.
struct Finding {
    QString source; ///< What it was found in, such as the image.
    QString check;  ///< What it breaks.
    QString place;
    QString reason;
    std::function<void()> go; ///< Brings the place into sight; empty for a row that is at no place.
};

/// The dock "Rule Findings": a list of what checks have found, or a sentence in its place. A click or Enter
/// goes to a finding; the list keeps the keys, so that the next can be gone to.
class FindingsDock : public QDockWidget {
    Q_OBJECT

public:
    FindingsDock();

    /// Lists these. The row that was current stays so, as long as it is there.
    void showFindings(std::vector<Finding> findings);
    /// Shows a sentence, and the button that leads to the rules.
    void showNotice(const QString& notice);

Q_SIGNALS:
    /// The button was pressed.
    void rulesWanted();

private:
    void makeList();
    void widenColumns();
    [[nodiscard]] QWidget* makeNotice();
    void go(QTreeWidgetItem* row);

    QStackedWidget* pages_;
    QTreeWidget* list_;
    QLabel* notice_;
    std::vector<Finding> findings_; ///< By row.
};

} // namespace dyeworks
