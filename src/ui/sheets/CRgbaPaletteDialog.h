#pragma once

#include "ui/sheets/EntryDialog.h"

namespace dyeworks {

class ColourButtonRow;

/// Edits an entry of an RGBA palette, by its channels or with a colour out of the gradient between the two
/// process-wide ends.
class CRgbaPaletteDialog : public EntryDialog {
    Q_OBJECT

public:
    explicit CRgbaPaletteDialog(QWidget* parent = nullptr);

private:
    [[nodiscard]] QWidget* makeGradient();
    void showGradient();

    ColourButtonRow* steps_;
};

} // namespace dyeworks
