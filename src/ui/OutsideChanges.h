#pragma once

#include "paint/Rect.h"
#include "recovery/AnsweringFiles.h"
#include "recovery/OutsideWatch.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <optional>
#include <vector>

class QWidget;

namespace dyeworks {

class CDyeworksDoc;
class OutsideBar;
class Workspace;

/// Shows what others make of the files of what is open, each in its window, and lets the user decide.
class OutsideChanges : public QObject {
    Q_OBJECT

public:
    /// `workspace` must outlive it.
    explicit OutsideChanges(Workspace& workspace);
    ~OutsideChanges() override;

    /// Begins to look. Before, everything else does nothing.
    void start();
    /// As `ImageHost::imageChanged`.
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels);
    void end();

private:
    void follow();
    void lookSoon();
    void ask();
    void look();
    void show();
    void showForPalettes();
    /// Nothing when `shown` is the bar of that notice already; else the bar to be shown, or null.
    [[nodiscard]] std::optional<OutsideBar*> barFor(const OutsideWatch::Notice* notice, QWidget* shown,
                                                    QWidget* view);

    Workspace& workspace_;
    std::optional<OutsideWatch> watch_;
    QTimer follow_;
    QTimer soon_;
    AnsweringFiles answering_;
    QTimer answer_;
    int asked_ = 0; ///< How often, of this time.
    std::vector<QPointer<OutsideBar>> bars_;
};

} // namespace dyeworks
