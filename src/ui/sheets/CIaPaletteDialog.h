#pragma once

#include "ui/sheets/EntryDialog.h"

namespace dyeworks {

/// Edits an entry of an IA palette.
class CIaPaletteDialog : public EntryDialog {
    Q_OBJECT

public:
    explicit CIaPaletteDialog(QWidget* parent = nullptr);
};

} // namespace dyeworks
