#pragma once

#include "framework/widgets/PropertySheet.h"

class QCheckBox;

namespace dyeworks {

/// The page "General" of the options.
class CGeneralPropertyPage : public PropertyPage {
    Q_OBJECT

public:
    CGeneralPropertyPage();

    /// Whether making an image asks about using the project. As it was set or last taken over.
    [[nodiscard]] bool asksUseProject() const noexcept { return asksUseProject_; }
    /// Shown when the sheet opens.
    void setAsksUseProject(bool asks) { asksUseProject_ = asks; }

    void showValues() override;
    [[nodiscard]] bool takeOver() override;

private:
    QCheckBox* box_;
    bool asksUseProject_ = true;
};

} // namespace dyeworks
