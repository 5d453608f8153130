#pragma once

#include "framework/CommandTarget.h"

#include <functional>
#include <memory>

class QPrinter;

namespace dyeworks {

class CMainFrame;

/// The printing commands for the active image, and the printer that is set up for all of them.
class PrintCommands : public CommandTarget {
public:
    /// Lets the user choose printer, pages and copies; false when it was cancelled.
    using Chooser = std::function<bool(QPrinter&)>;

    /// The frame must outlive this object.
    explicit PrintCommands(CMainFrame& frame);
    ~PrintCommands() override;

    /// Replaces the dialog that asks before printing.
    void setChooser(Chooser chooser) { choose_ = std::move(chooser); }
    /// Made when it is first asked for: finding the printers takes a while.
    [[nodiscard]] QPrinter& printer();

private:
    bool chooseByDialog(QPrinter& printer);
    void printActive();
    void updateNeedsImage(CommandUi& ui);
    void OnFilePrint();
    void OnFilePrintDirect();
    void OnFilePrintPreview();
    void OnFilePrintSetup();

    CMainFrame& frame_;
    Chooser choose_;
    std::unique_ptr<QPrinter> printer_;
};

} // namespace dyeworks
