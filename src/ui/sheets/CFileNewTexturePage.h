#pragma once

#include "framework/widgets/PropertySheet.h"

#include <cstdint>

class QLabel;
class QRadioButton;

namespace dyeworks {

class IntegerField;

/// The page of the new-document sheet for an image: its size in texels and its depth.
class CFileNewTexturePage : public PropertyPage {
    Q_OBJECT

public:
    CFileNewTexturePage();

    void showValues() override;
    [[nodiscard]] bool takeOver() override;

    // As they were last taken over.
    [[nodiscard]] std::int32_t imageWidth() const noexcept { return imageWidth_; }
    [[nodiscard]] std::int32_t imageHeight() const noexcept { return imageHeight_; }
    [[nodiscard]] std::int32_t bitsPerPixel() const noexcept { return bits_; }

private:
    [[nodiscard]] std::int32_t chosenBits() const;
    void showSize();

    IntegerField* widthField_;
    IntegerField* heightField_;
    QRadioButton* bits4_;
    QRadioButton* bits8_;
    QLabel* size_;
    std::int32_t imageWidth_;
    std::int32_t imageHeight_;
    std::int32_t bits_ = 4;
};

} // namespace dyeworks
