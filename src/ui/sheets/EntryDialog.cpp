#include "ui/sheets/EntryDialog.h"

#include "platform/StringId.h"
#include "ui/sheets/ColourControls.h"
#include "ui/sheets/SheetControls.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace dyeworks {

namespace {

constexpr int kReadOutLength = 2;

QLineEdit* numberEdit(const char* id) {
    // A sign can be typed, because it may come in with a number from the clipboard.
    static const QRegularExpression kNumber(QStringLiteral("-?[0-9]*"));
    auto* edit = new QLineEdit;
    edit->setObjectName(QString::fromLatin1(id));
    edit->setValidator(new QRegularExpressionValidator(kNumber, edit));
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("00000")) +
                        edit->sizeHint().height());
    return edit;
}

QLineEdit* readOutEdit(const char* id) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QString::fromLatin1(id));
    edit->setReadOnly(true);
    edit->setMaxLength(kReadOutLength);
    edit->setFocusPolicy(Qt::ClickFocus);
    edit->setAlignment(Qt::AlignHCenter);
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("0000")) +
                        edit->sizeHint().height() / 2);
    return edit;
}

ScrollCode scrollCode(int action) {
    switch (action) {
    case QAbstractSlider::SliderSingleStepSub:
        return ScrollCode::LineLeft;
    case QAbstractSlider::SliderSingleStepAdd:
        return ScrollCode::LineRight;
    case QAbstractSlider::SliderPageStepSub:
        return ScrollCode::PageLeft;
    case QAbstractSlider::SliderPageStepAdd:
        return ScrollCode::PageRight;
    case QAbstractSlider::SliderToMinimum:
        return ScrollCode::LeftEnd;
    case QAbstractSlider::SliderToMaximum:
        return ScrollCode::RightEnd;
    case QAbstractSlider::SliderMove:
        return ScrollCode::ThumbTrack;
    default:
        return ScrollCode::Other;
    }
}

void showText(QLineEdit& edit, const QString& text) {
    // Setting the same text would move the cursor while it is typed.
    if (edit.text() != text)
        edit.setText(text);
}

} // namespace

EntryDialog::EntryDialog(ColourType type, const char* id, StringId caption, QWidget* parent)
    : QDialog(parent)
    , state_(type)
    , layout_(new QVBoxLayout(this))
    , grid_(new QGridLayout)
    , swatch_(new ColourPatch) {
    setObjectName(QString::fromLatin1(id));
    setWindowTitle(shown(caption));
    swatch_->setObjectName(QStringLiteral("IDC_SWATCH"));
    swatch_->setAccessibleName(shown(StringId::EntrySwatch));
    swatch_->setToolTip(shown(StringId::EntrySwatch));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("IDOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("IDCANCEL"));
    connect(buttons, &QDialogButtonBox::accepted, this, &EntryDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &EntryDialog::reject);

    auto* top = new QHBoxLayout;
    top->addLayout(grid_, 1);
    top->addSpacing(fontMetrics().height() / 2);
    top->addWidget(swatch_);
    layout_->setSizeConstraint(QLayout::SetFixedSize);
    layout_->addLayout(top);
    layout_->addSpacing(fontMetrics().height() / 2);
    layout_->addWidget(buttons);
}

EntryDialog::~EntryDialog() {
    // The edit that has the focus loses it, and tells so, when nothing of this class is left.
    for (const Row& row : rows_)
        row.edit->disconnect(this);
}

void EntryDialog::addChannel(const ChannelNames& names) {
    const std::string highest = std::to_string(state_.highest(names.channel));
    const QString name = shown(names.name);
    const QString tip = shown(StringId::EntryChannelTip, {text(names.name), highest});
    const Row row{names.channel, numberEdit(names.editId), new ColourScrollBar(names.trough),
                  names.readOutId == nullptr ? nullptr : readOutEdit(names.readOutId)};
    row.edit->setToolTip(tip);
    row.edit->setAccessibleName(name);
    row.bar->setObjectName(QString::fromLatin1(names.barId));
    row.bar->setRange(0, state_.highest(names.channel));
    row.bar->setPageStep(1);
    row.bar->setToolTip(tip);
    row.bar->setAccessibleName(name);
    auto* label = new QLabel(shown(names.label));
    label->setBuddy(row.edit);

    const int line = grid_->rowCount();
    grid_->addWidget(label, line, 0);
    grid_->addWidget(row.edit, line, 1);
    grid_->addWidget(row.bar, line, 2);
    if (row.readOut != nullptr) {
        const QString readOutTip = shown(StringId::EntryReadOutTip, {text(names.name)});
        row.readOut->setToolTip(readOutTip);
        row.readOut->setAccessibleName(readOutTip);
        grid_->addWidget(row.readOut, line, 3);
    }

    connect(row.edit, &QLineEdit::textEdited, this, [this, row](const QString& typed) {
        if (state_.typed(row.channel, typed.toStdString()))
            showValues();
    });
    connect(row.edit, &QLineEdit::editingFinished, this, &EntryDialog::showValues);
    connect(row.bar, &ColourScrollBar::actionTriggered, this,
            [this, row](int action) { scroll(row, action); });
    rows_.push_back(row);
}

void EntryDialog::addBelow(QWidget* widget) {
    layout_->insertWidget(1, widget);
}

void EntryDialog::SetValue(std::uint16_t entry) {
    state_.setEntry(entry);
    showValues();
}

void EntryDialog::scroll(const Row& row, int action) {
    // The position is the one that the bar would take by itself: where it was dragged to.
    state_.scrolled(row.channel, scrollCode(action), row.bar->sliderPosition());
    showValues();
}

void EntryDialog::showValues() {
    for (const Row& row : rows_) {
        const int value = state_.value(row.channel);
        showText(*row.edit, QString::number(value));
        row.bar->setValue(value);
        if (row.readOut != nullptr)
            showText(*row.readOut, QString::fromStdString(channelText(value)));
    }
    swatch_->setColour(colourOf(state_.swatch()));
}

void EntryDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // As if the user had gone there with the Tab key, so that what is typed replaces the text.
    rows_.front().edit->setFocus(Qt::TabFocusReason);
}

} // namespace dyeworks
