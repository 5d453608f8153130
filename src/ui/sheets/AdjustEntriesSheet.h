#pragma once

#include "palette/EntryAdjustment.h"
#include "platform/Text.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QFormLayout;
class QPushButton;
class QSlider;

namespace dyeworks {

class IntegerField;
class RangeAdjustment;

/// The sheet "Adjust Entries": how a range of a palette is to be made different. Every choice is shown at
/// once, by the palette bar and the images.
class AdjustEntriesSheet : public QDialog {
    Q_OBJECT

public:
    /// `adjustment` must outlive the sheet. `beside` is the window that is not to be covered.
    AdjustEntriesSheet(RangeAdjustment& adjustment, QWidget* owner, const QWidget* beside);

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// A slider and, for the same number, a field.
    struct Amount {
        QSlider* slider = nullptr;
        IntegerField* field = nullptr;
    };
    Amount addAmount(const char* name, QWidget* label, StringId tip, int limit);
    Amount addAmount(const char* name, StringId label, StringId tip, int limit);
    void addChannel();
    void addButtons();
    [[nodiscard]] int limitOf(Channel channel) const;
    /// Shows what the sheet says now.
    void follow();
    void reset();

    RangeAdjustment& adjustment_;
    const QWidget* beside_;
    QFormLayout* form_;
    // Without a slider where the palette has nothing of the kind.
    Amount hue_;
    Amount saturation_;
    Amount brightness_;
    Amount channel_;
    Amount alpha_;
    QComboBox* channels_ = nullptr; ///< Null where there is one channel only.
    QPushButton* ok_ = nullptr;
    std::vector<Amount> amounts_;
    bool isResetting_ = false;
};

} // namespace dyeworks
