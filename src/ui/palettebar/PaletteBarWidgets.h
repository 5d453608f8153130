#pragma once

#include "framework/CommandIds.h"
#include "ui/palettebar/PaletteBarIds.h"

#include <QWidget>

#include <string>

class QLineEdit;
class QToolButton;

namespace dyeworks {

class CommandActions;
class CSwatchGrid;

void identify(QWidget& widget, const PaletteBarId& id);

/// Setting the same text would move the cursor while it is typed.
void showText(QLineEdit& edit, const std::string& text);

/// A small button for a command, with the command's icon and tool tip.
[[nodiscard]] QToolButton* commandButton(CommandActions& actions, CommandId id, const char* name);

/// Where the palette's cells stand. Unlike the grid, which wants to be as high as its width allows, it takes
/// the room that it is given, and the cells fit themselves in.
class PaletteGridArea : public QWidget {
    Q_OBJECT

public:
    explicit PaletteGridArea(CSwatchGrid& grid);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    CSwatchGrid& grid_;
};

} // namespace dyeworks
