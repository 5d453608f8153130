#pragma once

#include "core/TlutData.h"
#include "palette/EntryOrderPlan.h"
#include "platform/Text.h"

#include <QDialog>

#include <optional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace dyeworks {

class IntegerField;

/// The sheet of the operations that give entries other places: which entries, how, and what becomes of the
/// images and of the pictures that are not open.
class EntryOrderSheet : public QDialog {
    Q_OBJECT

public:
    /// `table` is the palette that goes by the title.
    EntryOrderSheet(const EntryOrder& proposed, const TlutData& table, const std::string& title,
                    const AttachedImages& images, QWidget* owner);

    /// What the form says; nothing while it is not filled in.
    [[nodiscard]] std::optional<EntryOrder> order() const;
    /// The pictures that are not open are to be opened before.
    [[nodiscard]] bool opensPictures() const;

private:
    IntegerField* addEntry(QFormLayout& form, const char* name, StringId label, StringId tip,
                           std::int32_t value);
    QCheckBox* addCheck(QFormLayout& form, const char* name, StringId caption, StringId tip, bool checked);
    void follow();
    void showImages(const EntryOrderPlan& plan);

    EntryOrder proposed_;
    TlutData table_;
    std::vector<AttachedImage> images_;
    std::vector<std::string> closed_;
    IntegerField* first_ = nullptr;
    IntegerField* last_ = nullptr;
    IntegerField* target_ = nullptr;
    QComboBox* key_ = nullptr;
    QCheckBox* reversed_ = nullptr;
    QLineEdit* kept_ = nullptr;
    QCheckBox* insideBanks_ = nullptr;
    QListWidget* list_ = nullptr;
    QCheckBox* open_ = nullptr;
    QLabel* outcome_ = nullptr;
    QPushButton* ok_ = nullptr;
};

} // namespace dyeworks
