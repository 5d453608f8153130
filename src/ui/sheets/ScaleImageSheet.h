#pragma once

#include "ui/sheets/ImageWorkSheet.h"
#include "ui/sheets/ScaledSides.h"

class QCheckBox;
class QComboBox;

namespace dyeworks {

/// The sheet "Scale Image": a whole multiple or part, or any size, in the image's ratio or not.
class ScaleImageSheet : public ImageWorkSheet {
    Q_OBJECT

public:
    ScaleImageSheet(const ScaleImage& proposed, const TextureCanvas& image, QWidget* owner);

    [[nodiscard]] std::optional<ImageWork> work() const override;

private:
    [[nodiscard]] std::optional<Size> size() const;
    void takeMultiple();
    void typed(IntegerField& field);
    void show(IntegerField& field, int value);

    ScaledSides sides_;
    IntegerField* width_;
    IntegerField* height_;
    QComboBox* multiple_;
    QCheckBox* lock_;
    bool following_ = false; ///< A field is given its value here, not by the user.
};

} // namespace dyeworks
