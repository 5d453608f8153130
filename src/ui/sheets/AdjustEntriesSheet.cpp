#include "ui/sheets/AdjustEntriesSheet.h"

#include "framework/widgets/IntegerField.h"
#include "palette/RangeAdjustment.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <string>

namespace dyeworks {

namespace {

/// Where a window of this size stands beside another on a screen, without covering it; the first place that
/// there is room at.
std::optional<QPoint> placeBeside(const QSize& size, const QRect& other, const QRect& screen) {
    const int across =
        std::clamp(other.left(), screen.left(), std::max(screen.left(), screen.right() - size.width()));
    const int down =
        std::clamp(other.top(), screen.top(), std::max(screen.top(), screen.bottom() - size.height()));
    for (const QPoint place :
         {QPoint(other.right() + 1, down), QPoint(other.left() - size.width(), down),
          QPoint(across, other.bottom() + 1), QPoint(across, other.top() - size.height())}) {
        if (screen.contains(QRect(place, size)))
            return place;
    }
    return std::nullopt;
}

} // namespace

AdjustEntriesSheet::AdjustEntriesSheet(RangeAdjustment& adjustment, QWidget* owner, const QWidget* beside)
    : QDialog(owner)
    , adjustment_(adjustment)
    , beside_(beside)
    , form_(new QFormLayout) {
    setObjectName(QStringLiteral("IDD_ADJUST_ENTRIES"));
    setWindowTitle(shown(StringId::AdjustCaption));
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    const EntryRange range = adjustment.range();
    layout->addWidget(new QLabel(
        shown(StringId::AdjustEntries, {std::to_string(range.first), std::to_string(range.last)})));
    layout->addLayout(form_);
    const bool hasColours = highestValue(adjustment.colourType(), Channel::Green).has_value();
    if (hasColours) {
        hue_ = addAmount("IDC_ADJUST_HUE", StringId::AdjustHue, StringId::AdjustHueTip,
                         EntryAdjustment::kHalfTurn);
        saturation_ = addAmount("IDC_ADJUST_SATURATION", StringId::AdjustSaturation,
                                StringId::AdjustSaturationTip, EntryAdjustment::kWhole);
    }
    brightness_ = addAmount("IDC_ADJUST_BRIGHTNESS", StringId::AdjustBrightness,
                            StringId::AdjustBrightnessTip, EntryAdjustment::kWhole);
    if (hasColours)
        addChannel();
    else
        channel_ = addAmount("IDC_ADJUST_STEPS", StringId::AdjustIntensity, StringId::AdjustStepsTip,
                             limitOf(Channel::Red));
    alpha_ = addAmount("IDC_ADJUST_ALPHA", StringId::AdjustAlpha, StringId::AdjustStepsTip,
                       limitOf(Channel::Alpha));
    addButtons();
}

int AdjustEntriesSheet::limitOf(Channel channel) const {
    return highestValue(adjustment_.colourType(), channel).value_or(0);
}

AdjustEntriesSheet::Amount AdjustEntriesSheet::addAmount(const char* name, StringId label, StringId tip,
                                                         int limit) {
    auto* text = new QLabel(shown(label));
    const Amount amount = addAmount(name, text, tip, limit);
    text->setBuddy(amount.slider);
    return amount;
}

AdjustEntriesSheet::Amount AdjustEntriesSheet::addAmount(const char* name, QWidget* label, StringId tip,
                                                         int limit) {
    const IntegerField::Range range{-limit, limit};
    const Amount amount{new QSlider(Qt::Horizontal), new IntegerField(range, range, 0)};
    amount.slider->setObjectName(QString::fromLatin1(name));
    amount.field->setObjectName(QString::fromLatin1(name) + QStringLiteral("_NUMBER"));
    amount.slider->setRange(-limit, limit);
    amount.slider->setPageStep(std::max(1, limit / 10));
    // One mark at the ends and in the middle, where nothing changes.
    amount.slider->setTickPosition(QSlider::TicksBelow);
    amount.slider->setTickInterval(limit);
    amount.slider->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    // All as wide as that of the highest number, so that the sliders end below each other.
    constexpr IntegerField::Range kWidest{-255, 255};
    amount.field->setMinimumWidth(IntegerField(kWidest, kWidest, 0).sizeHint().width());
    for (QWidget* each : {static_cast<QWidget*>(amount.slider), static_cast<QWidget*>(amount.field)}) {
        each->setToolTip(shown(tip));
        each->setAccessibleDescription(shown(tip));
    }
    connect(amount.slider, &QSlider::valueChanged, this, [this, amount](int value) {
        amount.field->setValue(value);
        follow();
    });
    connect(amount.field, &IntegerField::edited, this, [this, amount] {
        const QSignalBlocker quiet(amount.slider);
        if (const std::optional<int> typed = amount.field->value())
            amount.slider->setValue(*typed);
        follow();
    });
    auto* row = new QHBoxLayout;
    row->addWidget(amount.slider, 1);
    row->addWidget(amount.field);
    form_->addRow(label, row);
    const auto* text = qobject_cast<QLabel*>(label);
    QString called = text != nullptr ? text->text() : shown(StringId::AdjustChannel);
    called = called.section(QStringLiteral("(&"), 0, 0).remove(QLatin1Char('&'));
    amount.slider->setAccessibleName(called);
    amount.field->setAccessibleName(called);
    amounts_.push_back(amount);
    return amount;
}

void AdjustEntriesSheet::addChannel() {
    auto* choice = new QWidget;
    auto* layout = new QHBoxLayout(choice);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(shown(StringId::AdjustChannel));
    channels_ = new QComboBox;
    channels_->setObjectName(QStringLiteral("IDC_ADJUST_CHANNEL"));
    channels_->setToolTip(shown(StringId::AdjustChannelTip));
    channels_->addItems(
        {shown(StringId::ChannelRed), shown(StringId::ChannelGreen), shown(StringId::ChannelBlue)});
    label->setBuddy(channels_);
    layout->addWidget(label);
    layout->addWidget(channels_);
    channel_ = addAmount("IDC_ADJUST_STEPS", choice, StringId::AdjustStepsTip, limitOf(Channel::Red));
    connect(channels_, &QComboBox::currentIndexChanged, this, [this] { follow(); });
}

void AdjustEntriesSheet::addButtons() {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setObjectName(QStringLiteral("IDOK"));
    QPushButton* const cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("IDCANCEL"));
    QPushButton* const again = buttons->addButton(shown(StringId::AdjustReset), QDialogButtonBox::ResetRole);
    again->setObjectName(QStringLiteral("IDC_ADJUST_RESET"));
    again->setToolTip(shown(StringId::AdjustResetTip));
    again->setAutoDefault(false);
    connect(again, &QPushButton::clicked, this, &AdjustEntriesSheet::reset);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
    // A box that gets another button later leaves its first ones out of the order.
    QWidget::setTabOrder(again, ok_);
    QWidget::setTabOrder(ok_, cancel);
}

void AdjustEntriesSheet::follow() {
    if (isResetting_)
        return;
    ok_->setEnabled(
        std::ranges::all_of(amounts_, [](const Amount& each) { return each.field->value().has_value(); }));
    const auto of = [](const Amount& amount) {
        return amount.slider == nullptr ? 0 : amount.slider->value();
    };
    adjustment_.choose(
        {.hue = of(hue_),
         .saturation = of(saturation_),
         .brightness = of(brightness_),
         .channel = channels_ == nullptr ? Channel::Red : static_cast<Channel>(channels_->currentIndex()),
         .channelBy = of(channel_),
         .alphaBy = of(alpha_)});
}

void AdjustEntriesSheet::reset() {
    isResetting_ = true;
    for (const Amount& amount : amounts_) {
        amount.slider->setValue(0);
        amount.field->setValue(0);
    }
    isResetting_ = false;
    follow();
}

void AdjustEntriesSheet::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (beside_ == nullptr || !beside_->isVisible() || beside_->screen() == nullptr)
        return;
    const QSize size = sizeHint().expandedTo(frameGeometry().size());
    if (const auto place =
            placeBeside(size, beside_->frameGeometry(), beside_->screen()->availableGeometry()))
        move(*place);
}

} // namespace dyeworks
