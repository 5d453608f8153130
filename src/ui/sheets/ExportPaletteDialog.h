#pragma once

#include "interchange/PaletteFile.h"

#include <QDialog>

#include <cstdint>

class QComboBox;
class QRadioButton;

namespace dyeworks {

/// Asks in which format a palette is written, and of a large one whether all of it or one bank.
class ExportPaletteDialog : public QDialog {
    Q_OBJECT

public:
    /// Of a palette of `entries`; `bank` is the one that is shown, 0 to 15.
    ExportPaletteDialog(std::int32_t entries, std::int32_t bank, QWidget* parent = nullptr);

    [[nodiscard]] PaletteFormat format() const;
    // The entries that are to be written.
    [[nodiscard]] std::int32_t firstEntry() const;
    [[nodiscard]] std::int32_t entryCount() const;

private:
    std::int32_t entries_;
    std::int32_t bank_;
    QComboBox* format_;
    QRadioButton* all_;
    QRadioButton* bankOnly_;
};

} // namespace dyeworks
