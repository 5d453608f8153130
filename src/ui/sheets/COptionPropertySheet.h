#pragma once

#include "framework/widgets/PropertySheet.h"

namespace dyeworks {

class CGeneralPropertyPage;

/// The sheet of the program's options.
class COptionPropertySheet : public PropertySheet {
    Q_OBJECT

public:
    explicit COptionPropertySheet(QWidget* parent = nullptr);

    [[nodiscard]] CGeneralPropertyPage& generalPage() const noexcept { return *generalPage_; }

private:
    CGeneralPropertyPage* generalPage_;
};

/// Lets the user change the options: shows the settings in the sheet and keeps what it holds when it closes.
/// Cancel leaves them as they were.
void OptionsCommand(QWidget* owner);

} // namespace dyeworks
