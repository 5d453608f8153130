#include "ui/sheets/ReduceColoursDialog.h"

#include "interchange/EntryColour.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/sheets/LongWork.h"
#include "ui/sheets/PicturePreview.h"
#include "ui/sheets/SheetControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedLayout>
#include <QStandardItemModel>

#include <algorithm>

namespace dyeworks {

namespace {

QRgb displayOf(const Colour& colour) {
    return qRgba(colour.red, colour.green, colour.blue, colour.alpha);
}

QImage indexedImage(const Picture& size, const std::vector<std::uint8_t>& indices,
                    const QList<QRgb>& colours) {
    QImage image(indices.data(), size.width, size.height, size.width, QImage::Format_Indexed8);
    image.setColorTable(colours);
    return image;
}

/// Over the picture's own pixels.
QImage imageOfPicture(const Picture& picture) {
    if (!picture.isIndexed())
        return {reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width, picture.height,
                picture.width * 4, QImage::Format_RGBA8888};
    QList<QRgb> colours;
    for (const Colour& colour : picture.colours)
        colours.append(displayOf(colour));
    return indexedImage(picture, picture.indices, colours);
}

QImage imageOfOutcome(const Picture& size, const ReductionOutcome& outcome) {
    QList<QRgb> colours;
    for (const std::uint16_t entry : outcome.reduced.entries)
        colours.append(displayOf(colourOf(outcome.colourType, entry)));
    return indexedImage(size, outcome.reduced.indices, colours);
}

/// A field's name and tool tip.
template <typename Field>
Field* named(Field* field, const char* name, StringId tip) {
    field->setObjectName(QString::fromLatin1(name));
    field->setToolTip(shown(tip));
    return field;
}

QComboBox* choice(const char* name, StringId tip, std::initializer_list<StringId> items) {
    auto* box = named(new QComboBox, name, tip);
    for (const StringId item : items)
        box->addItem(shown(item));
    return box;
}

QSpinBox* number(const char* name, StringId tip, int lowest, int highest) {
    auto* box = named(new QSpinBox, name, tip);
    box->setRange(lowest, highest);
    return box;
}

template <typename Value>
Value valueOf(const QComboBox& box) {
    return static_cast<Value>(box.currentIndex());
}

} // namespace

ReduceColoursDialog::ReduceColoursDialog(const Picture& picture, const ReductionState& state,
                                         const QString& name, QWidget* parent)
    : QDialog(parent)
    , picture_(picture)
    , state_(state)
    , worker_(picture)
    , fields_(new QWidget)
    , before_(new PicturePreview(shown(StringId::ReduceBefore)))
    , after_(new PicturePreview(shown(StringId::ReduceAfter)))
    , note_(new QLabel)
    , progress_(new QProgressBar)
    , buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)) {
    setObjectName(QStringLiteral("IDD_REDUCE_COLOURS"));
    setWindowTitle(name.isEmpty() ? shown(StringId::ReduceCaption)
                                  : shown(StringId::ReduceCaptionOf, {name.toStdString()}));
    makeFields();
    layOut();
    before_->setImage(imageOfPicture(picture_));
    before_->linkWith(*after_);

    patience_.setSingleShot(true);
    connect(&patience_, &QTimer::timeout, this, [this] { progress_->setVisible(worker_.isBusy()); });
    connect(&worker_, &ReductionWorker::progressed, progress_, &QProgressBar::setValue);
    connect(&worker_, &ReductionWorker::finished, this, &ReduceColoursDialog::showOutcome);
    connect(buttons_, &QDialogButtonBox::accepted, this, &ReduceColoursDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &ReduceColoursDialog::reject);
    connect(actualSize_, &QCheckBox::toggled, this, [this](bool actual) {
        before_->setActualSize(actual);
        after_->setActualSize(actual);
    });
    for (QComboBox* box : {bits_, target_, type_, dither_})
        connect(box, &QComboBox::currentIndexChanged, this, &ReduceColoursDialog::takeChoices);
    for (QSpinBox* box : {bank_, colours_, threshold_})
        connect(box, &QSpinBox::valueChanged, this, &ReduceColoursDialog::takeChoices);
    connect(kept_, &QLineEdit::textChanged, this, &ReduceColoursDialog::takeChoices);
    showState();
    start();
}

ReduceColoursDialog::~ReduceColoursDialog() = default;

void ReduceColoursDialog::makeFields() {
    bits_ = choice("IDC_REDUCE_BITS", StringId::ReduceBitsTip, {StringId::Reduce4Bit, StringId::Reduce8Bit});
    target_ = choice("IDC_REDUCE_PALETTE", StringId::ReducePaletteTip,
                     {StringId::ReduceNewPalette, StringId::ReduceCurrentPalette, StringId::ReduceBank});
    bank_ = number("IDC_REDUCE_BANK", StringId::ReduceBankTip, 0, kLastBank);
    colours_ = number("IDC_REDUCE_COLOURS", StringId::ReduceColoursTip, ReductionState::kFewestColours, 256);
    type_ = choice("IDC_REDUCE_TYPE", StringId::ReduceTypeTip, {StringId::ReduceRgba, StringId::ReduceIa});
    kept_ = named(new QLineEdit, "IDC_REDUCE_KEEP", StringId::ReduceKeepTip);
    kept_->setPlaceholderText(shown(StringId::ReduceKeepNone));
    threshold_ =
        number("IDC_REDUCE_THRESHOLD", StringId::ReduceThresholdTip, 0, ReductionState::kHighestThreshold);
    dither_ =
        choice("IDC_REDUCE_DITHER", StringId::ReduceDitherTip,
               {StringId::ReduceDitherNone, StringId::ReduceDitherOrdered, StringId::ReduceDitherDiffusion});
    actualSize_ = named(new QCheckBox(shown(StringId::ReduceActualSize)), "IDC_REDUCE_ACTUAL_SIZE",
                        StringId::ReduceActualSizeTip);
    note_->setObjectName(QStringLiteral("IDC_REDUCE_NOTE"));
    progress_->setObjectName(QStringLiteral("IDC_REDUCE_PROGRESS"));
    progress_->setRange(0, kProgressWhole);
    progress_->setAccessibleName(shown(StringId::ReduceProgress));
    // The note's place is kept when the bar comes and goes.
    QSizePolicy kept = progress_->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(kept);
    progress_->setVisible(false);
}

void ReduceColoursDialog::layOut() {
    auto* form = new QFormLayout(fields_);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(fontMetrics().height() / 4);
    const std::pair<StringId, QWidget*> rows[] = {
        {StringId::ReduceBits, bits_},           {StringId::ReducePalette, target_},
        {StringId::ReduceBankNumber, bank_},     {StringId::ReduceColours, colours_},
        {StringId::ReduceType, type_},           {StringId::ReduceKeep, kept_},
        {StringId::ReduceThreshold, threshold_}, {StringId::ReduceDither, dither_}};
    for (const auto& [label, field] : rows)
        form->addRow(shown(label), field);

    auto* layout = new QGridLayout(this);
    const auto caption = [&](StringId text, PicturePreview* picture, int column) {
        auto* label = new QLabel(shown(text));
        label->setBuddy(picture);
        layout->addWidget(label, 0, column);
        layout->addWidget(picture, 1, column);
        layout->setColumnStretch(column, 1);
    };
    caption(StringId::ReduceBefore, before_, 0);
    caption(StringId::ReduceAfter, after_, 1);
    layout->addWidget(fields_, 0, 2, 2, 1, Qt::AlignTop);
    layout->addWidget(actualSize_, 2, 0);
    layout->addWidget(note_, 2, 1, 1, 2);
    layout->addWidget(progress_, 3, 0, 1, 2);
    layout->addWidget(buttons_, 3, 2);
    layout->setRowStretch(1, 1);
}

void ReduceColoursDialog::takeChoices() {
    if (filling_)
        return;
    ReductionChoices wanted = state_.choices();
    wanted.bits = bits_->currentIndex() == 0 ? 4 : 8;
    wanted.target = valueOf<ReductionTarget>(*target_);
    wanted.bank = bank_->value();
    wanted.colours = colours_->value();
    // With more room all of it is the likely wish.
    if (wanted.bits > state_.choices().bits && wanted.colours == state_.mostColours())
        wanted.colours = 256;
    wanted.colourType = valueOf<ColourType>(*type_);
    wanted.kept = kept_->text().toStdString();
    wanted.alphaThreshold = threshold_->value();
    wanted.dither = valueOf<Dither>(*dither_);
    state_.choose(wanted);
    showState();
    start();
}

void ReduceColoursDialog::showState() {
    filling_ = true;
    const ReductionChoices& choices = state_.choices();
    bits_->setCurrentIndex(choices.bits == 4 ? 0 : 1);
    auto* const targets = qobject_cast<QStandardItemModel*>(target_->model());
    for (int i = 0; targets != nullptr && i < target_->count(); ++i)
        targets->item(i)->setEnabled(state_.offers(static_cast<ReductionTarget>(i)));
    target_->setCurrentIndex(static_cast<int>(choices.target));
    bank_->setValue(choices.bank);
    bank_->setEnabled(state_.offersBank());
    colours_->setMaximum(state_.mostColours());
    colours_->setValue(choices.colours);
    colours_->setEnabled(state_.makesPalette());
    type_->setCurrentIndex(static_cast<int>(state_.colourType()));
    type_->setEnabled(state_.makesPalette());
    if (kept_->text().toStdString() != choices.kept)
        kept_->setText(QString::fromStdString(choices.kept));
    kept_->setEnabled(state_.offersKept());
    threshold_->setValue(choices.alphaThreshold);
    threshold_->setEnabled(state_.offersThreshold());
    dither_->setCurrentIndex(static_cast<int>(choices.dither));
    filling_ = false;
}

void ReduceColoursDialog::start() {
    const bool valid = state_.keptIsValid();
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(valid);
    if (!valid) {
        showNote();
        return;
    }
    worker_.start(state_);
    patience_.start(kProgressPatience);
}

void ReduceColoursDialog::showOutcome() {
    patience_.stop();
    progress_->setVisible(false);
    progress_->setValue(0);
    // The image on show looks into the outcome before.
    const std::shared_ptr<const ReductionOutcome> before = std::exchange(shown_, worker_.outcome());
    after_->setImage(shown_ == nullptr ? QImage() : imageOfOutcome(picture_, *shown_));
    showNote();
    if (accepting_)
        accept();
}

void ReduceColoursDialog::showNote() {
    if (!state_.keptIsValid())
        note_->setText(shown(StringId::ReduceKeepWrong));
    else if (shown_ == nullptr)
        note_->setText(shown(StringId::NotEnoughMemory));
    else
        note_->setText(
            shown(StringId::ReduceNote, {std::to_string(shown_->usedColours),
                                         QLocale().toString(shown_->meanError, 'f', 2).toStdString()}));
}

void ReduceColoursDialog::accept() {
    accepting_ = worker_.isBusy();
    fields_->setEnabled(!accepting_);
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(!accepting_);
    if (accepting_ || shown_ == nullptr)
        return;
    state_.save(platform().profile());
    QDialog::accept();
}

} // namespace dyeworks
