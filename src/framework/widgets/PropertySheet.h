#pragma once

#include <QDialog>

#include <memory>

class QPushButton;
class QTabWidget;

namespace dyeworks {

/// One page of a sheet. It keeps values of its own besides what its controls hold, so that leaving the sheet
/// by Cancel changes none. Its window title is the text of its tab, its focus proxy the control that has the
/// focus when the sheet opens with it.
class PropertyPage : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Puts the values into the controls. The sheet does so with each page whenever it opens.
    virtual void showValues() {}
    /// Takes the values over from the controls. False when one of them cannot be, which the page has told the
    /// user and put the focus on.
    [[nodiscard]] virtual bool takeOver() { return true; }
    /// Whether what the controls hold makes sense as it stands; OK is off while it does not. Asked for again
    /// after each `edited`.
    [[nodiscard]] virtual bool isAcceptable() const { return true; }

Q_SIGNALS:
    void edited();
};

/// A dialog of pages, a tab for each, also where there is one only: its tab says what the sheet is for. OK
/// takes all pages over; the first that refuses comes to the front and keeps the sheet open. A sheet can be
/// run again, with the values of the time before.
class PropertySheet : public QDialog {
    Q_OBJECT

public:
    explicit PropertySheet(const QString& caption, QWidget* parent = nullptr);

    /// The sheet owns its pages.
    void addPage(std::unique_ptr<PropertyPage> page);
    /// Takes the page out of what is shown and taken over. The sheet still owns it.
    void removePage(PropertyPage& page);
    /// Brings the page to the front, also before the sheet opens.
    void showPage(PropertyPage& page);
    /// Position of the page in front among those that are left, counted from 0; after OK or Cancel that at
    /// the time it was pressed.
    [[nodiscard]] int activePage() const;

    void accept() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] PropertyPage* page(int index) const;
    void fitToPages();
    void followPages();

    QTabWidget* tabs_;
    QPushButton* ok_;
};

} // namespace dyeworks
