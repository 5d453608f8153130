#pragma once

#include "ui/sheets/ImageWorkSheet.h"

namespace dyeworks {

/// The sheet "Shift Image": by how many texels.
class ShiftImageSheet : public ImageWorkSheet {
    Q_OBJECT

public:
    ShiftImageSheet(const ShiftImage& proposed, const TextureCanvas& image, QWidget* owner);

    [[nodiscard]] std::optional<ImageWork> work() const override;

private:
    IntegerField* right_;
    IntegerField* down_;
};

} // namespace dyeworks
