#pragma once

#include "ui/sheets/AskUseProject.h"

#include <QDialog>

class QCheckBox;

namespace dyeworks {

/// The question "Do you use project?". exec() gives a UseProjectAnswer as a number; closing the window is
/// Cancel.
class CUseProjectDlg : public QDialog {
    Q_OBJECT

public:
    explicit CUseProjectDlg(bool notifyNextTime, QWidget* parent = nullptr);

    /// Whether to ask next time, too. Cancel leaves it as it came in.
    [[nodiscard]] bool notifyNextTime() const noexcept { return notifyNextTime_; }

    void reject() override;

    /// Runs the dialog; what `UseProjectParts::ask` is for.
    [[nodiscard]] static UseProjectAnswer ask(bool& notifyNextTime, QWidget* owner);

private:
    void finish(UseProjectAnswer answer);

    QCheckBox* box_;
    bool notifyNextTime_;
};

} // namespace dyeworks
