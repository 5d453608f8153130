#pragma once

#include "source/SourceFiles.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace dyeworks::plugins {

/// Asks how an image becomes source or bytes. It opens as it was left by OK the last time.
class SourceSheet : public QDialog {
public:
    SourceSheet(bool hasPalette, QWidget* parent);

    [[nodiscard]] SourceChoices choices() const;

    void accept() override;

private:
    void restore();
    void refresh();

    QComboBox* kind_;
    QLineEdit* name_;
    QLabel* names_;
    QCheckBox* texels_;
    QComboBox* palette_;
    QComboBox* alignment_;
    QPushButton* ok_;
    bool hasPalette_;
};

} // namespace dyeworks::plugins
