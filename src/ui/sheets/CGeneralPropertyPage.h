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

    /// Whether unchanged documents follow their files by themselves. The same.
    [[nodiscard]] bool reloadsUnchanged() const noexcept { return reloadsUnchanged_; }
    void setReloadsUnchanged(bool reloads) { reloadsUnchanged_ = reloads; }

    void showValues() override;
    [[nodiscard]] bool takeOver() override;

private:
    QCheckBox* box_;
    QCheckBox* reload_;
    bool asksUseProject_ = true;
    bool reloadsUnchanged_ = false;
};

} // namespace dyeworks
