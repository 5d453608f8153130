#include "ui/BrushBar.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QLabel>
#include <QLayout>
#include <QSignalBlocker>
#include <QSpinBox>

namespace dyeworks {

BrushBar::BrushBar()
    : QToolBar(shown(StringId::BarBrush))
    , size_(new QSpinBox) {
    setObjectName(QStringLiteral("ID_VIEW_BRUSHBAR"));
    setWhatsThis(shown(StringId::HelpBrushBar));
    size_->setObjectName(QStringLiteral("IDC_BRUSH_SIZE"));
    size_->setEnabled(false);
    size_->setRange(1, Brush::kMaxSize);
    size_->setAccessibleName(shown(StringId::BrushSize));
    size_->setToolTip(shown(StringId::BrushSizeTip));
    size_->setWhatsThis(shown(StringId::BrushSizeTip));
    auto* label = new QLabel(shown(StringId::BrushSize));
    label->setContentsMargins(0, 0, fontMetrics().averageCharWidth(), 0);
    label->setBuddy(size_);
    addWidget(label);
    addWidget(size_);
    addSeparator();
    drawingOptionsChanged();
    connect(size_, &QSpinBox::valueChanged, this, [](int size) {
        DrawingOptions options = drawingOptions();
        options.brush.size = size;
        setDrawingOptions(options);
    });
    addDrawingOptionsListener(*this);
}

BrushBar::~BrushBar() {
    removeDrawingOptionsListener(*this);
}

void BrushBar::enableSize(bool enabled) {
    size_->setEnabled(enabled);
}

void BrushBar::drawingOptionsChanged() {
    const QSignalBlocker quiet(size_);
    size_->setValue(drawingOptions().brush.size);
}

} // namespace dyeworks
