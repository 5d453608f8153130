#pragma once

#include <QDialog>

class QTreeWidget;

namespace dyeworks {

class PlugInCatalogue;

/// What the program is, which version of it runs, and which plug-ins it has loaded. Opened with Shift, it
/// names who made it instead.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    AboutDialog(const PlugInCatalogue& plugIns, QWidget* parent = nullptr);

private:
    void listPlugIns(const PlugInCatalogue& plugIns);
    void listCredits();

    QTreeWidget* list_;
};

} // namespace dyeworks
