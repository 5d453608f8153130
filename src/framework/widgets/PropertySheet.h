#pragma once

#include <QDialog>

#include <memory>
#include <vector>

class QTabWidget;

namespace dyeworks {

/// One page of a sheet. Its window title is the text of its tab, its focus proxy the control that has the
/// focus when the sheet opens with it.
class PropertyPage : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Takes the values over from the controls. False when one of them cannot be, which the page has told the
    /// user and put the focus on.
    [[nodiscard]] virtual bool takeOver() { return true; }
};

/// A dialog of pages with tabs. OK takes all pages over; the first that refuses comes to the front and keeps
/// the sheet open.
class PropertySheet : public QDialog {
    Q_OBJECT

public:
    explicit PropertySheet(const QString& caption, QWidget* parent = nullptr);

    /// The sheet owns its pages.
    void addPage(std::unique_ptr<PropertyPage> page);
    /// Ends the page.
    void removePage(PropertyPage& page);
    /// Position of the page in front, counted from 0; after OK or Cancel that at the time it was pressed.
    [[nodiscard]] int activePage() const;

    void accept() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QTabWidget* tabs_;
};

} // namespace dyeworks
