#pragma once

#include "paint/CanvasDepth.h"
#include "ui/sheets/ImageWorkSheet.h"

class QComboBox;
class QLabel;

namespace dyeworks {

/// The sheet "To 4 Bits", for an image with texels outside every single bank: which bank to keep, how many
/// texels then take its nearest colour, or leave it.
class ReduceDepthSheet : public ImageWorkSheet {
    Q_OBJECT

public:
    ReduceDepthSheet(const ReduceDepth& proposed, const TextureCanvas& image, QWidget* owner);

    [[nodiscard]] std::optional<ImageWork> work() const override;

private:
    void showOutside();

    std::int32_t banks_;
    IndexCounts counts_;
    QLabel* outside_;
    QComboBox* bank_;
};

} // namespace dyeworks
