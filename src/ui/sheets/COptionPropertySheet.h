#pragma once

#include "framework/widgets/PropertySheet.h"

namespace dyeworks {

class CGeneralPropertyPage;
class CRulesPage;

/// The sheet of the program's options.
class COptionPropertySheet : public PropertySheet {
    Q_OBJECT

public:
    explicit COptionPropertySheet(QWidget* parent = nullptr);

    [[nodiscard]] CGeneralPropertyPage& generalPage() const noexcept { return *generalPage_; }
    [[nodiscard]] CRulesPage& rulesPage() const noexcept { return *rulesPage_; }

private:
    CGeneralPropertyPage* generalPage_;
    CRulesPage* rulesPage_;
};

enum class OptionsPage { General, Rules };

/// Lets the user change the options: shows the settings in the sheet, `inFront` first, and keeps what it
/// holds when it closes. Cancel leaves them as they were.
void OptionsCommand(QWidget* owner, OptionsPage inFront = OptionsPage::General);

} // namespace dyeworks
