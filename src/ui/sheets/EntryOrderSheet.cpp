#include "ui/sheets/EntryOrderSheet.h"

#include "framework/widgets/IntegerField.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace dyeworks {

namespace {

constexpr int kListWidth = 48; // In Latin letters, whatever the font has besides.

StringId captionOf(EntryOperation operation) {
    switch (operation) {
    case EntryOperation::Move:
        return StringId::OrderMoveCaption;
    case EntryOperation::Swap:
        return StringId::OrderSwapCaption;
    case EntryOperation::Sort:
        return StringId::OrderSortCaption;
    case EntryOperation::MergeTwins:
        return StringId::OrderTwinsCaption;
    default:
        return StringId::OrderCompactCaption;
    }
}

std::string number(qlonglong value) {
    return QLocale().toString(value).toStdString();
}

QString lineOf(const EntryOrderPlan::Image& image) {
    const FollowPlan& follows = image.follows;
    if (follows.leaving > 0)
        return shown(StringId::OrderLeaves,
                     {image.name, number(follows.leaving), std::to_string(image.bank)});
    if (!follows.affected)
        return shown(StringId::OrderUnaffected, {image.name});
    if (follows.beyond > 0)
        return shown(StringId::OrderBeyond, {image.name, number(follows.beyond)});
    return shown(StringId::OrderFollows, {image.name});
}

template <typename Control>
Control* named(Control* control, const char* name, StringId tip) {
    control->setObjectName(QString::fromLatin1(name));
    control->setToolTip(shown(tip));
    control->setAccessibleDescription(shown(tip));
    return control;
}

} // namespace

EntryOrderSheet::EntryOrderSheet(const EntryOrder& proposed, const TlutData& table, const std::string& title,
                                 const AttachedImages& images, QWidget* owner)
    : QDialog(owner)
    , proposed_(proposed)
    , table_(table)
    , images_(images.openImages())
    , closed_(images.closedPictures()) {
    setObjectName(QStringLiteral("IDD_ENTRY_ORDER"));
    setWindowTitle(shown(captionOf(proposed.operation)));
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(shown(StringId::OrderPalette), new QLabel(QString::fromStdString(title)));
    first_ = addEntry(*form, "IDC_ORDER_FIRST", StringId::OrderFirst, StringId::OrderFirstTip,
                      proposed.range.first);
    last_ =
        addEntry(*form, "IDC_ORDER_LAST", StringId::OrderLast, StringId::OrderLastTip, proposed.range.last);
    if (proposed.operation == EntryOperation::Move || proposed.operation == EntryOperation::Swap)
        target_ = addEntry(*form, "IDC_ORDER_TARGET", StringId::OrderTarget, StringId::OrderTargetTip,
                           proposed.target);
    if (proposed.operation == EntryOperation::Sort) {
        key_ = named(new QComboBox, "IDC_ORDER_KEY", StringId::OrderKeyTip);
        for (const StringId key :
             {StringId::OrderLightness, StringId::OrderHue, StringId::OrderUse, StringId::OrderValue})
            key_->addItem(shown(key));
        key_->setCurrentIndex(static_cast<int>(proposed.key));
        form->addRow(shown(StringId::OrderKey), key_);
        connect(key_, &QComboBox::currentIndexChanged, this, &EntryOrderSheet::follow);
        reversed_ = addCheck(*form, "IDC_ORDER_REVERSED", StringId::OrderReversed, StringId::OrderReversedTip,
                             proposed.reversed);
    }
    if (target_ == nullptr) {
        kept_ = named(new QLineEdit, "IDC_ORDER_KEPT", StringId::OrderKeptTip);
        kept_->setText(proposed.kept.test(0) ? QStringLiteral("0") : QString());
        form->addRow(shown(StringId::OrderKept), kept_);
        connect(kept_, &QLineEdit::textChanged, this, &EntryOrderSheet::follow);
        if (table.count > 16)
            insideBanks_ = addCheck(*form, "IDC_ORDER_BANKS", StringId::OrderBanks, StringId::OrderBanksTip,
                                    proposed.insideBanks);
    }

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    auto* heading = new QLabel(shown(StringId::OrderImages));
    list_ = named(new QListWidget, "IDC_ORDER_IMAGES", StringId::OrderImagesTip);
    heading->setBuddy(list_);
    list_->setAccessibleName(shown(StringId::OrderImagesTip));
    list_->setSelectionMode(QAbstractItemView::NoSelection);
    // Names of files may be long.
    list_->setWordWrap(true);
    list_->setResizeMode(QListView::Adjust);
    list_->setMinimumWidth(kListWidth * list_->fontMetrics().horizontalAdvance(QLatin1Char('x')));
    layout->addWidget(heading);
    layout->addWidget(list_);
    if (!closed_.empty()) {
        open_ = named(new QCheckBox(shown(StringId::OrderOpen)), "IDC_ORDER_OPEN", StringId::OrderOpenTip);
        open_->setChecked(true);
        layout->addWidget(open_);
    }
    outcome_ = new QLabel;
    outcome_->setObjectName(QStringLiteral("IDC_ORDER_OUTCOME"));
    outcome_->setWordWrap(true);
    layout->addWidget(outcome_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setObjectName(QStringLiteral("IDOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("IDCANCEL"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    first_->selectAll();
    follow();
}

IntegerField* EntryOrderSheet::addEntry(QFormLayout& form, const char* name, StringId label, StringId tip,
                                        std::int32_t value) {
    const IntegerField::Range range{0, table_.count - 1};
    auto* field = named(new IntegerField(range, range, value), name, tip);
    form.addRow(shown(label), field);
    connect(field, &IntegerField::edited, this, &EntryOrderSheet::follow);
    return field;
}

QCheckBox* EntryOrderSheet::addCheck(QFormLayout& form, const char* name, StringId caption, StringId tip,
                                     bool checked) {
    auto* box = named(new QCheckBox(shown(caption)), name, tip);
    box->setChecked(checked);
    form.addRow(QString(), box);
    connect(box, &QCheckBox::toggled, this, &EntryOrderSheet::follow);
    return box;
}

std::optional<EntryOrder> EntryOrderSheet::order() const {
    EntryOrder order = proposed_;
    const std::optional<int> first = first_->value();
    const std::optional<int> last = last_->value();
    const std::optional<int> target = target_ == nullptr ? 0 : target_->value();
    const auto kept = kept_ == nullptr ? EntrySet() : parseEntries(kept_->text().toStdString(), table_.count);
    if (!first || !last || !target || !kept)
        return std::nullopt;
    order.range = {*first, *last};
    order.target = *target;
    order.kept = *kept;
    if (key_ != nullptr) {
        order.key = static_cast<EntrySortKey>(key_->currentIndex());
        order.reversed = reversed_->isChecked();
    }
    order.insideBanks = insideBanks_ != nullptr && insideBanks_->isChecked();
    return order;
}

bool EntryOrderSheet::opensPictures() const {
    return open_ != nullptr && open_->isChecked();
}

void EntryOrderSheet::follow() {
    const std::optional<EntryOrder> wanted = order();
    const EntryOrderPlan plan = wanted ? planOf(*wanted, table_, images_) : EntryOrderPlan{};
    showImages(plan);
    ok_->setEnabled(plan.canBeDone());
    if (!plan.map)
        outcome_->setText(shown(StringId::OrderCannot));
    else if (plan.leavesBank())
        outcome_->setText(shown(insideBanks_ != nullptr ? StringId::OrderUseBanks : StringId::OrderRefused));
    else if (plan.map->moved() == 0)
        outcome_->setText(shown(StringId::OrderNothing));
    else
        outcome_->setText(shown(proposed_.operation == EntryOperation::MergeTwins ? StringId::OrderMerged
                                                                                  : StringId::OrderMoved,
                                {std::to_string(plan.map->moved())}));
}

void EntryOrderSheet::showImages(const EntryOrderPlan& plan) {
    list_->clear();
    for (const EntryOrderPlan::Image& image : plan.images)
        list_->addItem(lineOf(image));
    for (const std::string& picture : closed_)
        list_->addItem(shown(StringId::OrderClosed, {picture}));
    if (list_->count() == 0)
        list_->addItem(shown(StringId::OrderNoImages));
    const int rows = qBound(3, list_->count(), 8);
    list_->setMinimumHeight(rows * list_->sizeHintForRow(0) + 2 * list_->frameWidth());
}

} // namespace dyeworks
