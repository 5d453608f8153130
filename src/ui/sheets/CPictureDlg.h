#pragma once

#include "project/ProjectHost.h"

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;

namespace dyeworks {

class IntegerField;
class PictureFileRow;

/// The dialog "Picture": what a picture of the project is called, its image, its palette and the bank of the
/// palette, with the pair shown as it will look. New files can be made for it.
class CPictureDlg : public QDialog {
    Q_OBJECT

public:
    using Check = std::function<PictureField(const PictureSettings&)>;

    /// `check` is asked before the dialog closes with OK, after its own checks.
    CPictureDlg(const PictureSettings& settings, Check check, QWidget* parent = nullptr);

    /// After OK what was entered.
    [[nodiscard]] const PictureSettings& settings() const noexcept { return settings_; }

    void accept() override;

private:
    [[nodiscard]] bool filesAreThere(const PictureSettings& entered);
    void focusField(PictureField field);
    void showPreview();

    PictureSettings settings_;
    Check check_;
    QLineEdit* name_;
    PictureFileRow* image_;
    PictureFileRow* palette_;
    IntegerField* number_;
    QLabel* preview_;
};

} // namespace dyeworks
