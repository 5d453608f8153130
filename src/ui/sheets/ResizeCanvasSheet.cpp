#include "ui/sheets/ResizeCanvasSheet.h"

#include "framework/widgets/IntegerField.h"
#include "paint/TextureCanvas.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>
#include <array>

namespace dyeworks {

namespace {

constexpr int kAnchorColumns = 3;
constexpr std::array kAnchorNames{
    StringId::AnchorTopLeft,    StringId::AnchorTop,    StringId::AnchorTopRight,
    StringId::AnchorLeft,       StringId::AnchorMiddle, StringId::AnchorRight,
    StringId::AnchorBottomLeft, StringId::AnchorBottom, StringId::AnchorBottomRight};

int highestIndex(const TextureCanvas& image) {
    return (1 << std::min<int>(image.bitsPerPixel(), 24)) - 1;
}

} // namespace

ResizeCanvasSheet::ResizeCanvasSheet(const ResizeCanvas& proposed, const TextureCanvas& image, QWidget* owner)
    : ImageWorkSheet("IDD_RESIZE_CANVAS", StringId::ResizeCaption, image, owner)
    , width_(addField("IDC_RESIZE_WIDTH", StringId::NewImageWidth, shown(StringId::ImageWorkWidthTip), 1,
                      kLongestSide, proposed.size.width))
    , height_(addField("IDC_RESIZE_HEIGHT", StringId::NewImageHeight, shown(StringId::ImageWorkHeightTip), 1,
                       kLongestSide, proposed.size.height))
    , anchors_(new QButtonGroup(this)) {
    addAnchors(proposed.anchor);
    const int highest = highestIndex(image);
    fill_ = addField("IDC_RESIZE_FILL", StringId::ResizeFill,
                     shown(StringId::ResizeFillTip, {std::to_string(highest)}), 0, highest,
                     static_cast<int>(proposed.fill));
    addTakes();
    addButtons();
    for (IntegerField* field : {width_, height_, fill_})
        connect(field, &IntegerField::edited, this, [this] { follow(size()); });
    follow(size());
}

/// Nine buttons as they lie on the canvas; the arrow keys go from one to the other.
void ResizeCanvasSheet::addAnchors(Anchor chosen) {
    auto* square = new QWidget;
    auto* grid = new QGridLayout(square);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(square->fontMetrics().height() / 4);
    for (int n = 0; n < static_cast<int>(kAnchorNames.size()); ++n) {
        auto* button = new QRadioButton;
        const QString name = shown(kAnchorNames.at(static_cast<std::size_t>(n)));
        button->setObjectName(QStringLiteral("IDC_RESIZE_ANCHOR_%1").arg(n));
        button->setToolTip(name);
        button->setAccessibleName(name);
        anchors_->addButton(button, n);
        grid->addWidget(button, n / kAnchorColumns, n % kAnchorColumns);
    }
    anchors_->button(static_cast<int>(chosen))->setChecked(true);
    square->setAccessibleName(shown(StringId::ResizeAnchor));
    form().addRow(shown(StringId::ResizeAnchor), square);
}

std::optional<Size> ResizeCanvasSheet::size() const {
    const std::optional<int> width = width_->value();
    const std::optional<int> height = height_->value();
    return width && height ? std::optional(Size{*width, *height}) : std::nullopt;
}

std::optional<ImageWork> ResizeCanvasSheet::work() const {
    const std::optional<Size> wanted = size();
    const std::optional<int> fill = fill_->value();
    if (!wanted || !fill || !canHaveSize(*wanted, image().bitsPerPixel()))
        return std::nullopt;
    return ResizeCanvas{*wanted, static_cast<Anchor>(anchors_->checkedId()),
                        static_cast<std::uint32_t>(*fill)};
}

} // namespace dyeworks
