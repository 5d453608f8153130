#pragma once

#include "ui/sheets/ImageWorkSheet.h"

class QButtonGroup;

namespace dyeworks {

/// The sheet "Resize Canvas": the new size, which side or corner the image keeps to, and what the rest is
/// filled with.
class ResizeCanvasSheet : public ImageWorkSheet {
    Q_OBJECT

public:
    ResizeCanvasSheet(const ResizeCanvas& proposed, const TextureCanvas& image, QWidget* owner);

    [[nodiscard]] std::optional<ImageWork> work() const override;

private:
    [[nodiscard]] std::optional<Size> size() const;
    void addAnchors(Anchor chosen);

    IntegerField* width_;
    IntegerField* height_;
    QButtonGroup* anchors_;
    IntegerField* fill_;
};

} // namespace dyeworks
