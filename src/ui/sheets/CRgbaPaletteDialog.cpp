#include "ui/sheets/CRgbaPaletteDialog.h"

#include "palette/Gradient.h"
#include "platform/StringId.h"
#include "platform/Text.h"
#include "ui/sheets/ColourControls.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace dyeworks {

namespace {

QPushButton* endButton(const char* id, const QString& caption, StringId tip) {
    auto* button = new QPushButton(caption);
    button->setObjectName(QString::fromLatin1(id));
    button->setToolTip(QString::fromStdString(text(tip)));
    button->setAccessibleName(QString::fromStdString(text(tip)));
    // Enter means OK wherever the focus is.
    button->setAutoDefault(false);
    button->setFixedWidth(4 * button->fontMetrics().horizontalAdvance(QLatin1Char('<')));
    return button;
}

} // namespace

CRgbaPaletteDialog::CRgbaPaletteDialog(QWidget* parent)
    : EntryDialog(ColourType::Rgba, "IDD_RGBA_PALETTE", StringId::RgbaDialogCaption, parent)
    , steps_(new ColourButtonRow(kGradientSteps)) {
    addChannel({Channel::Red, StringId::EntryRed, StringId::ChannelRed, "IDC_RED", "IDC_RED_SCROLL",
                QColor(255, 0, 0), "IDC_RED_HEX"});
    addChannel({Channel::Green, StringId::EntryGreen, StringId::ChannelGreen, "IDC_GREEN", "IDC_GREEN_SCROLL",
                QColor(0, 255, 0), "IDC_GREEN_HEX"});
    addChannel({Channel::Blue, StringId::EntryBlue, StringId::ChannelBlue, "IDC_BLUE", "IDC_BLUE_SCROLL",
                QColor(0, 0, 255), "IDC_BLUE_HEX"});
    addChannel({Channel::Alpha, StringId::EntryAlpha, StringId::ChannelAlpha, "IDC_ALPHA", "IDC_ALPHA_SCROLL",
                QColor(192, 192, 192)});
    addBelow(makeGradient());
    showGradient();
    SetValue(0);
}

QWidget* CRgbaPaletteDialog::makeGradient() {
    auto* gradient = new QWidget;
    auto* left = endButton("IDC_GRADIENT_LEFT", QStringLiteral("<<"), StringId::GradientLeftTip);
    auto* right = endButton("IDC_GRADIENT_RIGHT", QStringLiteral(">>"), StringId::GradientRightTip);
    connect(left, &QPushButton::clicked, this, [this] {
        state().storeLeftEnd();
        showGradient();
    });
    connect(right, &QPushButton::clicked, this, [this] {
        state().storeRightEnd();
        showGradient();
    });
    for (int i = 0; i < steps_->count(); ++i) {
        const QString tip = QString::fromStdString(text(StringId::GradientStepTip, {std::to_string(i)}));
        steps_->button(i).setObjectName(QStringLiteral("IDC_GRADIENT_%1").arg(i));
        steps_->button(i).setToolTip(tip);
        steps_->button(i).setAccessibleName(tip);
    }
    connect(steps_, &ColourButtonRow::pressed, this, [this](int step) {
        state().takeStep(step);
        showValues();
    });

    auto* layout = new QHBoxLayout(gradient);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(left);
    layout->addWidget(steps_, 1);
    layout->addWidget(right);
    return gradient;
}

void CRgbaPaletteDialog::showGradient() {
    for (int i = 0; i < steps_->count(); ++i)
        steps_->button(i).setColour(colourOf(EntryDialogState::stepColour(i)));
}

} // namespace dyeworks
