#pragma once

#include "palette/EntryFormat.h"

#include <QAbstractButton>
#include <QColor>
#include <QFrame>
#include <QScrollBar>

#include <vector>

namespace dyeworks {

QColor colourOf(ColourRef colour);

/// A framed patch of one colour.
class ColourPatch : public QFrame {
    Q_OBJECT

public:
    explicit ColourPatch(QWidget* parent = nullptr);

    void setColour(const QColor& colour);
    [[nodiscard]] const QColor& colour() const noexcept { return colour_; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_ = Qt::black;
};

/// A horizontal scroll bar whose trough has a colour of its own. It can be reached with the Tab key.
class ColourScrollBar : public QScrollBar {
    Q_OBJECT

public:
    explicit ColourScrollBar(const QColor& trough, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] const QColor& trough() const noexcept { return trough_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor trough_;
};

/// A button that is nothing but its colour.
class ColourButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit ColourButton(QWidget* parent = nullptr);

    void setColour(const QColor& colour);
    [[nodiscard]] const QColor& colour() const noexcept { return colour_; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_ = Qt::black;
};

/// A row of colour buttons. The Tab key reaches it once; the arrow keys, Home and End go along it.
class ColourButtonRow : public QWidget {
    Q_OBJECT

public:
    explicit ColourButtonRow(int count, QWidget* parent = nullptr);

    [[nodiscard]] ColourButton& button(int index) { return *buttons_[static_cast<std::size_t>(index)]; }
    [[nodiscard]] int count() const { return static_cast<int>(buttons_.size()); }

Q_SIGNALS:
    void pressed(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void offerToTab(int index);

    std::vector<ColourButton*> buttons_;
};

} // namespace dyeworks
