#pragma once

#include "core/TmfImage.h"
#include "interchange/ReductionState.h"
#include "ui/sheets/ReductionWorker.h"

#include <QDialog>
#include <QTimer>

#include <memory>
#include <optional>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QSpinBox;
class QWidget;

namespace dyeworks {

class PicturePreview;

/// The sheet "Reduce Colours": how a picture becomes an image of 4 or 8 bits, with the picture and what
/// becomes of it side by side. What is shown follows each choice; OK waits for it.
class ReduceColoursDialog : public QDialog {
    Q_OBJECT

public:
    /// The picture must outlive the dialog. `name` is that of its file, for the title, or empty.
    ReduceColoursDialog(const Picture& picture, const ReductionState& state, const QString& name,
                        QWidget* parent = nullptr);
    ~ReduceColoursDialog() override;

    // After OK:
    [[nodiscard]] const ReductionState& state() const noexcept { return state_; }
    [[nodiscard]] const ReducedPicture& reduced() const noexcept { return shown_->reduced; }

    void accept() override;

private:
    void makeFields();
    void layOut();
    void takeChoices();
    void showState();
    void start();
    void showOutcome();
    void showNote();

    const Picture& picture_;
    ReductionState state_;
    ReductionWorker worker_;
    std::shared_ptr<const ReductionOutcome> shown_;
    QTimer patience_;
    bool filling_ = false;   ///< Fields are being given values by the program.
    bool accepting_ = false; ///< OK was pressed before the result was there.
    QWidget* fields_;
    QComboBox* bits_;
    QComboBox* target_;
    QSpinBox* bank_;
    QSpinBox* colours_;
    QComboBox* type_;
    QLineEdit* kept_;
    QSpinBox* threshold_;
    QComboBox* dither_;
    QCheckBox* actualSize_;
    PicturePreview* before_;
    PicturePreview* after_;
    QLabel* note_;
    QProgressBar* progress_;
    QDialogButtonBox* buttons_;
};

} // namespace dyeworks
