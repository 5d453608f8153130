#pragma once

#include "framework/CommandTarget.h"

#include <functional>
#include <memory>

class QPrinter;
class QString;
class QWidget;

namespace dyeworks {

class ImageView;

/// The printing commands for the active image, and the printer that is set up for all of them.
class PrintCommands : public CommandTarget {
public:
    /// Lets the user choose printer, pages and copies; false when it was cancelled.
    using Chooser = std::function<bool(QPrinter&)>;

    /// The image that the commands are for; null when there is none.
    using ActiveView = std::function<ImageView*()>;

    /// Dialogs stand before `window`, which must outlive this object.
    PrintCommands(QWidget& window, ActiveView activeView);
    ~PrintCommands() override;

    /// Replaces the dialog that asks before printing.
    void setChooser(Chooser chooser) { choose_ = std::move(chooser); }
    /// Made when it is first asked for: finding the printers takes a while.
    [[nodiscard]] QPrinter& printer();

    /// Prints what the view shows without any window: into `file` (PDF, as the host writes it), or where that
    /// is empty on the printer called so, the default one for no name. False when it could not be printed.
    [[nodiscard]] bool printUnasked(ImageView& view, const QString& printerName, const QString& file);

private:
    bool chooseByDialog(QPrinter& printer);
    void printActive();
    void updateNeedsImage(CommandUi& ui);
    void OnFilePrint();
    void OnFilePrintDirect();
    void OnFilePrintPreview();
    void OnFilePrintSetup();

    QWidget& window_;
    ActiveView activeView_;
    Chooser choose_;
    std::unique_ptr<QPrinter> printer_;
};

} // namespace dyeworks
