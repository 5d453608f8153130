#include "ui/palettebar/PaletteBarWidgets.h"

#include "framework/widgets/CommandActions.h"
#include "ui/controls/CSwatchGrid.h"

#include <QAction>
#include <QLineEdit>
#include <QToolButton>

namespace dyeworks {

namespace {

// Of the area with the cells, in heights of a letter: what 16 rows of cells like to have, and what they can
// do with.
constexpr int kPreferredSide = 18;
constexpr int kSmallestSide = 9;

} // namespace

void identify(QWidget& widget, const PaletteBarId& id) {
    widget.setObjectName(QString::fromLatin1(id.name));
    widget.setProperty("controlId", id.number);
}

void showText(QLineEdit& edit, const std::string& text) {
    if (const QString newText = QString::fromStdString(text); edit.text() != newText)
        edit.setText(newText);
}

QToolButton* commandButton(CommandActions& actions, CommandId id, const char* name) {
    auto* button = new QToolButton;
    identify(*button, {static_cast<int>(id), name});
    button->setDefaultAction(actions.action(id));
    button->setAutoRaise(true);
    button->setAccessibleName(button->toolTip());
    return button;
}

PaletteGridArea::PaletteGridArea(CSwatchGrid& grid)
    : grid_(grid) {
    grid_.setParent(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PaletteGridArea::sizeHint() const {
    const int side = kPreferredSide * fontMetrics().height();
    return {side, side};
}

QSize PaletteGridArea::minimumSizeHint() const {
    const int side = kSmallestSide * fontMetrics().height();
    return QSize(side, side).expandedTo(grid_.minimumSizeHint());
}

void PaletteGridArea::resizeEvent(QResizeEvent*) {
    grid_.setGeometry(rect());
}

} // namespace dyeworks
