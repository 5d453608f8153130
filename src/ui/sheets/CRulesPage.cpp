#include "ui/sheets/CRulesPage.h"

#include "framework/widgets/IntegerField.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include <string>

namespace dyeworks {

namespace {

// What the fields of a rule offer while it has never been on.
constexpr Size kOfferedSize{256, 256};
constexpr int kOfferedBytes = 4096;

} // namespace

CRulesPage::CRulesPage(StringId intro)
    : grid_(new QGridLayout)
    , width_(makeField("IDC_RULE_WIDTH",
                       shown(StringId::RuleLargestWidthTip, {std::to_string(TextureRules::kLongestSide)}), 1,
                       TextureRules::kLongestSide))
    , height_(makeField("IDC_RULE_HEIGHT",
                        shown(StringId::RuleLargestHeightTip, {std::to_string(TextureRules::kLongestSide)}),
                        1, TextureRules::kLongestSide))
    , texelBytes_(makeField("IDC_RULE_TEXEL_BYTES",
                            shown(StringId::RuleBytesTip, {std::to_string(TextureRules::kMostBytes)}), 1,
                            TextureRules::kMostBytes))
    , bytesWithColours_(makeField("IDC_RULE_ALL_BYTES",
                                  shown(StringId::RuleBytesTip, {std::to_string(TextureRules::kMostBytes)}),
                                  1, TextureRules::kMostBytes))
    , colours_(makeField("IDC_RULE_COLOURS",
                         shown(StringId::RuleColoursTip, {std::to_string(TextureRules::kMostColours)}), 1,
                         TextureRules::kMostColours))
    , side_(makeField("IDC_RULE_BLOCK_SIDE",
                      shown(StringId::RuleBlockSideTip, {std::to_string(TextureRules::kSmallestBlock),
                                                         std::to_string(TextureRules::kLargestBlock)}),
                      TextureRules::kSmallestBlock, TextureRules::kLargestBlock)) {
    setObjectName(QStringLiteral("IDD_PROPPAGE_RULES"));
    setWindowTitle(shown(StringId::OptionsRulesTab));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(shown(intro)));
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addLayout(grid_);
    layout->addStretch();
    grid_->setColumnStretch(1, 1);
    grid_->setHorizontalSpacing(2 * fontMetrics().averageCharWidth());
    // A rule and its meaning are one.
    grid_->setVerticalSpacing(0);

    auto* size = new QWidget;
    auto* sides = new QHBoxLayout(size);
    sides->setContentsMargins(0, 0, 0, 0);
    sides->addWidget(width_);
    sides->addWidget(new QLabel(QStringLiteral("\u00d7")));
    sides->addWidget(height_);
    largestSize_ = addRule("IDC_RULE_LARGEST_SIZE", StringId::RuleLargestSize, StringId::RuleLargestSizeHint,
                           {{size, StringId::RuleTexelsUnit}});
    powersOfTwo_ =
        addRule("IDC_RULE_POWERS_OF_TWO", StringId::RulePowersOfTwo, StringId::RulePowersOfTwoHint);
    limitsTexels_ = addRule("IDC_RULE_LIMITS_TEXELS", StringId::RuleTexelBytes, StringId::RuleTexelBytesHint,
                            {{texelBytes_, StringId::RuleBytesUnit}});
    limitsColours_ =
        addRule("IDC_RULE_LIMITS_COLOURS", StringId::RuleBytesWithColours, StringId::RuleBytesWithColoursHint,
                {{bytesWithColours_, StringId::RuleBytesUnit}});
    blockColours_ =
        addRule("IDC_RULE_BLOCK_COLOURS", StringId::RuleBlockColours, StringId::RuleBlockColoursHint,
                {{colours_, StringId::RuleColoursUnit}, {side_, StringId::RuleBlockUnit}});
    firstEntryTransparent_ = addRule("IDC_RULE_FIRST_TRANSPARENT", StringId::RuleFirstEntryTransparent,
                                     StringId::RuleFirstEntryTransparentHint);
    indexesInPalette_ =
        addRule("IDC_RULE_INDEXES", StringId::RuleIndexesInPalette, StringId::RuleIndexesInPaletteHint);
    alphaZeroOrFull_ =
        addRule("IDC_RULE_ALPHA", StringId::RuleAlphaZeroOrFull, StringId::RuleAlphaZeroOrFullHint);
    setFocusProxy(largestSize_);
    showValues();
}

IntegerField* CRulesPage::makeField(const char* name, const QString& tip, int lowest, int highest) {
    const IntegerField::Range range{lowest, highest};
    auto* field = new IntegerField(range, range, lowest);
    field->setObjectName(QString::fromLatin1(name));
    field->setToolTip(tip);
    field->setAccessibleName(tip);
    connect(field, &IntegerField::edited, this, &PropertyPage::edited);
    return field;
}

QCheckBox* CRulesPage::addRule(const char* name, StringId caption, StringId hint,
                               std::initializer_list<Part> parts) {
    auto* box = new QCheckBox(shown(caption));
    box->setObjectName(QString::fromLatin1(name));
    box->setToolTip(shown(hint));
    box->setAccessibleDescription(shown(hint));
    connect(box, &QCheckBox::toggled, this, &PropertyPage::edited);
    const int row = grid_->rowCount();
    grid_->addWidget(box, row, 0);
    if (parts.size() > 0) {
        auto* values = new QWidget;
        auto* line = new QHBoxLayout(values);
        line->setContentsMargins(0, 0, 0, 0);
        for (const Part& part : parts) {
            line->addWidget(part.field);
            line->addWidget(new QLabel(shown(part.unit)));
        }
        line->addStretch();
        values->setEnabled(false);
        connect(box, &QCheckBox::toggled, values, &QWidget::setEnabled);
        grid_->addWidget(values, row, 1);
    }
    auto* meaning = new QLabel(shown(hint));
    // Under the text of the box, and apart from the next rule.
    meaning->setIndent(style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, box) +
                       style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, box));
    meaning->setContentsMargins(0, 0, 0, fontMetrics().height() / 3);
    grid_->addWidget(meaning, row + 1, 0, 1, 2);
    return box;
}

void CRulesPage::showValues() {
    const Size largest = rules_.largestSize.value_or(kOfferedSize);
    width_->setValue(largest.width);
    height_->setValue(largest.height);
    texelBytes_->setValue(rules_.texelBytes.value_or(kOfferedBytes));
    bytesWithColours_->setValue(rules_.bytesWithColours.value_or(kOfferedBytes));
    const TextureRules::BlockColours block = rules_.blockColours.value_or(TextureRules::BlockColours{});
    colours_->setValue(block.most);
    side_->setValue(block.side);
    largestSize_->setChecked(rules_.largestSize.has_value());
    powersOfTwo_->setChecked(rules_.powersOfTwo);
    limitsTexels_->setChecked(rules_.texelBytes.has_value());
    limitsColours_->setChecked(rules_.bytesWithColours.has_value());
    blockColours_->setChecked(rules_.blockColours.has_value());
    firstEntryTransparent_->setChecked(rules_.firstEntryTransparent);
    indexesInPalette_->setChecked(rules_.indexesInPalette);
    alphaZeroOrFull_->setChecked(rules_.alphaZeroOrFull);
}

std::optional<TextureRules> CRulesPage::entered() const {
    TextureRules rules;
    bool complete = true;
    const auto valueOf = [&](const IntegerField* field) {
        const std::optional<int> value = field->value();
        complete = complete && value.has_value();
        return value.value_or(0);
    };
    if (largestSize_->isChecked())
        rules.largestSize = Size{valueOf(width_), valueOf(height_)};
    rules.powersOfTwo = powersOfTwo_->isChecked();
    if (limitsTexels_->isChecked())
        rules.texelBytes = valueOf(texelBytes_);
    if (limitsColours_->isChecked())
        rules.bytesWithColours = valueOf(bytesWithColours_);
    if (blockColours_->isChecked())
        rules.blockColours = TextureRules::BlockColours{valueOf(colours_), valueOf(side_)};
    rules.firstEntryTransparent = firstEntryTransparent_->isChecked();
    rules.indexesInPalette = indexesInPalette_->isChecked();
    rules.alphaZeroOrFull = alphaZeroOrFull_->isChecked();
    return complete ? std::optional(rules) : std::nullopt;
}

bool CRulesPage::takeOver() {
    const std::optional<TextureRules> rules = entered();
    if (rules)
        rules_ = *rules;
    return rules.has_value();
}

std::optional<TextureRules> askProjectRules(const TextureRules& rules, QWidget* owner) {
    PropertySheet sheet(shown(StringId::RulesCaption), owner);
    sheet.setObjectName(QStringLiteral("IDD_PROJECT_RULES"));
    auto page = std::make_unique<CRulesPage>(StringId::RulesForPictures);
    CRulesPage& shownPage = *page;
    shownPage.setRules(rules);
    sheet.addPage(std::move(page));
    return sheet.exec() == QDialog::Accepted ? std::optional(shownPage.rules()) : std::nullopt;
}

} // namespace dyeworks
