#pragma once

#include <QFrame>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace dyeworks {

/// A slim bar that tells of something, with buttons for what can be done about it. Esc is the last of them.
/// Where it is narrow, the buttons stand below the words.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    /// `name` is what screen readers call the bar.
    explicit MessageBar(const QString& name, QWidget* parent = nullptr);

    void setText(const QString& text);
    /// The next button to the right.
    QPushButton* addButton(const char* name, const QString& caption, const QString& tip);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QBoxLayout* layout_;
    QBoxLayout* row_; ///< Of buttons.
    QLabel* text_;
    QPushButton* last_ = nullptr;
};

} // namespace dyeworks
