#pragma once

#include <QDialog>

namespace dyeworks {

/// What the program is and which version of it runs.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent = nullptr);
};

} // namespace dyeworks
