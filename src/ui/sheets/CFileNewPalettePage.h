#pragma once

#include "core/ColourType.h"
#include "framework/widgets/PropertySheet.h"

#include <cstdint>

class QLabel;
class QRadioButton;

namespace dyeworks {

class IntegerField;

/// The page of the new-document sheet for a palette: how many entries, of which colour type, and the alpha
/// that they all begin with.
class CFileNewPalettePage : public PropertyPage {
    Q_OBJECT

public:
    CFileNewPalettePage();

    void showValues() override;
    [[nodiscard]] bool takeOver() override;

    // As they were last taken over.
    /// 16 or 256; shown when the sheet opens.
    void setEntryCount(std::int32_t count) noexcept { entryCount_ = count; }
    [[nodiscard]] std::int32_t entryCount() const noexcept { return entryCount_; } ///< 16 or 256
    [[nodiscard]] ColourType colourType() const noexcept { return colourType_; }
    /// RGBA: 0 or 1. IA: 0 to 255.
    [[nodiscard]] std::int32_t defaultAlpha() const noexcept { return defaultAlpha_; }

private:
    [[nodiscard]] std::int32_t chosenCount() const;
    [[nodiscard]] ColourType chosenType() const;
    void followType();
    void showSize();

    QRadioButton* bits4_;
    QRadioButton* bits8_;
    QRadioButton* rgba_;
    QRadioButton* ia_;
    IntegerField* alphaField_;
    QLabel* size_;
    std::int32_t entryCount_ = 16;
    ColourType colourType_ = ColourType::Rgba;
    std::int32_t defaultAlpha_ = 1;
};

} // namespace dyeworks
