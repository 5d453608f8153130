#pragma once

#include <QDialog>

#include <cstdint>
#include <optional>

class QRadioButton;
class QSpinBox;

namespace dyeworks {

/// Asks where the colours of a palette file go: into a new palette or into the current one.
class ImportPaletteDialog : public QDialog {
    Q_OBJECT

public:
    /// `colours` are in the file and `entries` in the current palette, from whose entry `chosen` on they go
    /// unless another is chosen.
    ImportPaletteDialog(std::int32_t colours, std::int32_t entries, std::int32_t chosen,
                        QWidget* parent = nullptr);

    /// Entry of the current palette from which on the colours go; nothing for a new palette.
    [[nodiscard]] std::optional<std::int32_t> firstEntry() const;

private:
    QRadioButton* asNew_;
    QRadioButton* intoCurrent_;
    QSpinBox* first_;
};

} // namespace dyeworks
