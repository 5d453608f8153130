#pragma once

#include "framework/widgets/PropertySheet.h"
#include "platform/Text.h"
#include "project/TextureRules.h"

#include <initializer_list>
#include <optional>

class QCheckBox;
class QGridLayout;

namespace dyeworks {

class IntegerField;

/// A page of rules: a box for each, what it means, and the fields of those that have values. A field is off
/// while its box is.
class CRulesPage : public PropertyPage {
    Q_OBJECT

public:
    /// `intro` says which images the rules are for.
    explicit CRulesPage(StringId intro);

    /// As they were set or last taken over.
    [[nodiscard]] const TextureRules& rules() const noexcept { return rules_; }
    /// Shown when the sheet opens.
    void setRules(const TextureRules& rules) { rules_ = rules; }

    void showValues() override;
    [[nodiscard]] bool takeOver() override;
    [[nodiscard]] bool isAcceptable() const override { return entered().has_value(); }

private:
    struct Part {
        QWidget* field;
        StringId unit; ///< Written behind it.
    };
    QCheckBox* addRule(const char* name, StringId caption, StringId hint,
                       std::initializer_list<Part> parts = {});
    [[nodiscard]] IntegerField* makeField(const char* name, const QString& tip, int lowest, int highest);
    /// Nothing while a rule that is on lacks a value.
    [[nodiscard]] std::optional<TextureRules> entered() const;

    TextureRules rules_;
    QGridLayout* grid_;
    IntegerField* width_;
    IntegerField* height_;
    IntegerField* texelBytes_;
    IntegerField* bytesWithColours_;
    IntegerField* colours_;
    IntegerField* side_;
    QCheckBox* largestSize_;
    QCheckBox* powersOfTwo_;
    QCheckBox* limitsTexels_;
    QCheckBox* limitsColours_;
    QCheckBox* blockColours_;
    QCheckBox* firstEntryTransparent_;
    QCheckBox* indexesInPalette_;
    QCheckBox* alphaZeroOrFull_;
};

/// Asks for the rules of a project, beginning with what `rules` holds. Nothing: cancelled.
[[nodiscard]] std::optional<TextureRules> askProjectRules(const TextureRules& rules, QWidget* owner);

} // namespace dyeworks
