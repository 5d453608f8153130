#include "ui/palettebar/CPaletteBarChannel.h"

#include "framework/widgets/IntegerField.h"
#include "palette/ChannelRow.h"
#include "platform/StringId.h"
#include "platform/Text.h"
#include "ui/controls/CRampSlider.h"
#include "ui/palettebar/PaletteBarWidgets.h"
#include "ui/sheets/SheetControls.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

#include <optional>

namespace dyeworks {

namespace {

constexpr IntegerField::Range kWidestRange{0, 255};

/// The code that a scroll message has for what happened to a slider; nothing for what it has no code for.
std::optional<int> scrollCodeOf(int action) {
    switch (action) {
    case QAbstractSlider::SliderSingleStepSub:
        return 0;
    case QAbstractSlider::SliderSingleStepAdd:
        return 1;
    case QAbstractSlider::SliderPageStepSub:
        return 2;
    case QAbstractSlider::SliderPageStepAdd:
        return 3;
    case QAbstractSlider::SliderMove:
        return 5;
    case QAbstractSlider::SliderToMinimum:
        return 6;
    case QAbstractSlider::SliderToMaximum:
        return 7;
    default:
        return std::nullopt;
    }
}

StringId labelOf(Channel channel) {
    switch (channel) {
    case Channel::Red:
        return StringId::EntryRed;
    case Channel::Green:
        return StringId::EntryGreen;
    case Channel::Blue:
        return StringId::EntryBlue;
    case Channel::Alpha:
        break;
    }
    return StringId::EntryAlpha;
}

StringId nameOf(Channel channel) {
    switch (channel) {
    case Channel::Red:
        return StringId::ChannelRed;
    case Channel::Green:
        return StringId::ChannelGreen;
    case Channel::Blue:
        return StringId::ChannelBlue;
    case Channel::Alpha:
        break;
    }
    return StringId::ChannelAlpha;
}

} // namespace

CPaletteBarChannel::CPaletteBarChannel(EntryEditor& editor, Channel channel, const Ids& ids,
                                       QGridLayout& layout)
    : editor_(editor)
    , channel_(channel)
    , label_(new QLabel(shown(labelOf(channel))))
    // Made with the widest range, so that rows of all palettes line up.
    , field_(new IntegerField(kWidestRange, kWidestRange, 0))
    , slider_(new CRampSlider)
    , readOut_(new QLineEdit)
    , track_(new QSlider(Qt::Horizontal, layout.parentWidget())) {
    identify(*label_, ids.label);
    identify(*field_, ids.spin);
    identify(*field_->findChild<QLineEdit*>(), ids.edit);
    identify(*slider_, ids.slider);
    identify(*readOut_, ids.readOut);
    identify(*track_, ids.track);
    label_->setBuddy(field_);
    field_->setFixedWidth(field_->sizeHint().width());
    // The first channel's colours go by the kind of the palette; the others keep theirs.
    if (channel == Channel::Green || channel == Channel::Blue) {
        slider_->setHighColour(channel == Channel::Green ? 0x00FF00 : 0xFF0000);
        slider_->setMarkerColour(0xFFFFFF);
    }
    readOut_->setReadOnly(true);
    readOut_->setFocusPolicy(Qt::ClickFocus);
    readOut_->setAlignment(Qt::AlignHCenter);
    readOut_->setFixedWidth(readOut_->fontMetrics().horizontalAdvance(QStringLiteral("0000")) +
                            readOut_->sizeHint().height() / 2);
    track_->hide();

    const int line = layout.rowCount();
    layout.addWidget(label_, line, 0);
    layout.addWidget(field_, line, 1);
    layout.addWidget(slider_, line, 2);
    layout.addWidget(readOut_, line, 3);
    layout.setColumnStretch(2, 1);
    QWidget::setTabOrder(field_, slider_);

    connect(field_, &IntegerField::edited, this, &CPaletteBarChannel::typed);
    // While another window is in front, a message about the text perhaps, the text stays.
    connect(field_, &IntegerField::editingFinished, this, [this] {
        if (field_->window()->focusWidget() != field_)
            showValue();
    });
    connect(slider_, &CRampSlider::valueChanged, this,
            [this](int value) { editor_.SliderMoved(channel_, value); });
    connect(track_, &QSlider::actionTriggered, this, &CPaletteBarChannel::scrolled);
}

void CPaletteBarChannel::typed() {
    if (editor_.ChannelTyped(channel_, field_->text().toStdString()))
        return;
    field_->setFocus();
    field_->selectAll();
}

void CPaletteBarChannel::scrolled(int action) {
    if (const auto code = scrollCodeOf(action))
        editor_.TrackbarScrolled(channel_, *code, track_->sliderPosition());
}

void CPaletteBarChannel::showLayout(std::optional<ColourType> type) {
    const ChannelRow row = channelRow(type, channel_);
    for (QWidget* each : {static_cast<QWidget*>(label_), static_cast<QWidget*>(field_),
                          static_cast<QWidget*>(slider_), static_cast<QWidget*>(readOut_)})
        each->setVisible(row.visible && (each != slider_ || slider_->exists()));
    if (!row.visible)
        return;
    showNames(row.intensity, std::to_string(row.highest));
    const IntegerField::Range range{0, row.highest};
    field_->setRanges(range, range);
    slider_->setRange(0, row.highest);
    if (channel_ == Channel::Red) {
        const SliderColours colours = sliderColours(type);
        slider_->setLowColour(colours.lowColour);
        slider_->setHighColour(colours.highColour);
        slider_->setMarkerColour(colours.markerColour);
    }
    const QSignalBlocker quiet(track_);
    track_->setRange(0, row.highest);
}

void CPaletteBarChannel::showNames(bool intensity, const std::string& highest) {
    label_->setText(shown(intensity ? StringId::EntryIntensity : labelOf(channel_)));
    const StringId name = intensity ? StringId::ChannelIntensity : nameOf(channel_);
    const QString tip = shown(StringId::EntryChannelTip, {text(name), highest});
    for (QWidget* each : {static_cast<QWidget*>(field_), static_cast<QWidget*>(slider_)}) {
        each->setToolTip(tip);
        each->setAccessibleName(shown(name));
    }
    if (QWidget* const window = slider_->controlWindow())
        window->setAccessibleName(shown(name));
    const QString readOutTip = shown(StringId::EntryReadOutTip, {text(name)});
    readOut_->setToolTip(readOutTip);
    readOut_->setAccessibleName(readOutTip);
}

void CPaletteBarChannel::showValue() {
    const std::int32_t value = editor_.entry().channels()[channel_];
    if (field_->value() != value) {
        const QSignalBlocker quiet(field_);
        field_->setValue(value);
    }
    slider_->setValue(value);
    showText(*readOut_, channelText(value));
    const QSignalBlocker quiet(track_);
    track_->setValue(value);
}

} // namespace dyeworks
