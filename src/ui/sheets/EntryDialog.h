#pragma once

#include "palette/EntryDialogState.h"
#include "platform/Text.h"

#include <QColor>
#include <QDialog>

#include <cstdint>
#include <vector>

class QGridLayout;
class QLineEdit;
class QVBoxLayout;

namespace dyeworks {

class ColourPatch;
class ColourScrollBar;

/// What the two palette entry dialogs have in common: a row per channel, with an edit and a scroll bar that
/// follow each other, and a swatch. It edits a value of its own; the caller reads it after OK.
class EntryDialog : public QDialog {
    Q_OBJECT

public:
    ~EntryDialog() override;

    /// Fills the dialog with the 16 bits of an entry.
    void SetValue(std::uint16_t entry);
    [[nodiscard]] std::uint16_t GetValue() const { return state_.entry(); }

protected:
    struct ChannelNames {
        Channel channel;
        StringId label; ///< With a mnemonic.
        StringId name;
        const char* editId;
        const char* barId;
        QColor trough;
        const char* readOutId = nullptr; ///< Null: the channel has no hexadecimal read-out.
    };

    EntryDialog(ColourType type, const char* id, StringId caption, QWidget* parent);

    void addChannel(const ChannelNames& names);
    /// Puts a row of the derived dialog's own below the channels.
    void addBelow(QWidget* widget);
    /// Shows the value everywhere.
    void showValues();
    [[nodiscard]] EntryDialogState& state() noexcept { return state_; }

    void showEvent(QShowEvent* event) override;

private:
    struct Row {
        Channel channel;
        QLineEdit* edit;
        ColourScrollBar* bar;
        QLineEdit* readOut; ///< Null when there is none.
    };

    void scroll(const Row& row, int action);

    EntryDialogState state_;
    std::vector<Row> rows_;
    QVBoxLayout* layout_;
    QGridLayout* grid_;
    ColourPatch* swatch_;
};

} // namespace dyeworks
