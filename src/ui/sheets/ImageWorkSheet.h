#pragma once

#include "paint/ImageWork.h"
#include "platform/Text.h"

#include <QDialog>

#include <optional>

class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QPushButton;

namespace dyeworks {

class IntegerField;
class TextureCanvas;

/// What the sheets about a whole image share: a form, and OK and Cancel below it. OK is off while what the
/// form says cannot be done.
class ImageWorkSheet : public QDialog {
    Q_OBJECT

public:
    /// What the form says; nothing when that cannot be done.
    [[nodiscard]] virtual std::optional<ImageWork> work() const = 0;

protected:
    ImageWorkSheet(const char* name, StringId caption, const TextureCanvas& image, QWidget* owner);

    [[nodiscard]] QFormLayout& form() noexcept { return *form_; }
    [[nodiscard]] const TextureCanvas& image() const noexcept { return image_; }
    [[nodiscard]] QPushButton& ok() const;
    [[nodiscard]] QPushButton& cancel() const;
    /// A field for whole numbers.
    IntegerField* addField(const char* name, StringId label, const QString& tip, int lowest, int highest,
                           int value);
    /// The row that tells what the result takes.
    void addTakes();
    /// Once the form has all its rows: the buttons come last, for the Tab key, too.
    void addButtons();
    /// After every change of the form. `size` is that of the result, if it has one.
    void follow(std::optional<Size> size);
    void follow();

private:
    const TextureCanvas& image_;
    QFormLayout* form_;
    QDialogButtonBox* buttons_;
    QLabel* takes_ = nullptr;
};

} // namespace dyeworks
