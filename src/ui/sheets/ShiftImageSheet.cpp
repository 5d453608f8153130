#include "ui/sheets/ShiftImageSheet.h"

#include "framework/widgets/IntegerField.h"
#include "paint/TextureCanvas.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

namespace dyeworks {

ShiftImageSheet::ShiftImageSheet(const ShiftImage& proposed, const TextureCanvas& image, QWidget* owner)
    : ImageWorkSheet("IDD_SHIFT_IMAGE", StringId::ShiftCaption, image, owner)
    , right_(addField("IDC_SHIFT_RIGHT", StringId::ShiftRight, shown(StringId::ShiftRightTip), -kLongestSide,
                      kLongestSide, proposed.by.x))
    , down_(addField("IDC_SHIFT_DOWN", StringId::ShiftDown, shown(StringId::ShiftDownTip), -kLongestSide,
                     kLongestSide, proposed.by.y)) {
    addTakes();
    addButtons();
    const Size size{image.width(), image.height()};
    for (IntegerField* field : {right_, down_})
        connect(field, &IntegerField::edited, this, [this, size] { follow(size); });
    follow(size);
}

std::optional<ImageWork> ShiftImageSheet::work() const {
    const std::optional<int> right = right_->value();
    const std::optional<int> down = down_->value();
    if (!right || !down)
        return std::nullopt;
    return ShiftImage{{*right, *down}};
}

} // namespace dyeworks
