#pragma once

#include "framework/widgets/PropertySheet.h"

#include <vector>

namespace dyeworks {

class CGeneralPropertyPage;
class CRulesPage;
class CShortcutsPage;
struct ShortcutGroup;
struct ShortcutOptions;

/// The sheet of the program's options.
class COptionPropertySheet : public PropertySheet {
    Q_OBJECT

public:
    explicit COptionPropertySheet(const std::vector<ShortcutGroup>& shortcuts, QWidget* parent = nullptr);

    [[nodiscard]] CGeneralPropertyPage& generalPage() const noexcept { return *generalPage_; }
    [[nodiscard]] CRulesPage& rulesPage() const noexcept { return *rulesPage_; }
    [[nodiscard]] CShortcutsPage& shortcutsPage() const noexcept { return *shortcutsPage_; }

private:
    CGeneralPropertyPage* generalPage_;
    CRulesPage* rulesPage_;
    CShortcutsPage* shortcutsPage_;
};

enum class OptionsPage { General, Rules, Shortcuts };

/// Lets the user change the options: shows the settings in the sheet, `inFront` first, and keeps what it
/// holds when it closes. Cancel leaves them as they were.
void OptionsCommand(QWidget* owner, const ShortcutOptions& shortcuts,
                    OptionsPage inFront = OptionsPage::General);

} // namespace dyeworks
