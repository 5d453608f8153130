#pragma once

#include "ui/controls/dispatch/MemberTable.h"

#include <QString>

#include <string>

namespace dyeworks {

/// The desktop's dialog for choosing a folder. Paths are in the host's form.
///
///     2, string property, set           the folder to start from
///     4, BOOL (long 0, string* result)  lets the user choose
class FolderPickControl final : public Control {
public:
    FolderPickControl();

    [[nodiscard]] DispatchResult invoke(DispatchId member, DispatchKind kind,
                                        DispatchArguments arguments) override;
    void setSink(ControlSink* /*sink*/) override {} // It has no events.
    [[nodiscard]] QWidget* widget() override { return nullptr; }

private:
    [[nodiscard]] bool choose(std::string& result) const;

    MemberTable members_;
    QString folder_;
};

} // namespace dyeworks
