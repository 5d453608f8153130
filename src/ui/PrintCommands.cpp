#include "ui/PrintCommands.h"

#include "paint/CDyeworksDoc.h"
#include "paint/widgets/ImageView.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/posix/HostFile.h"
#include "ui/ImagePrinter.h"

#include <QAction>
#include <QFile>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QTemporaryDir>

#include <span>

namespace dyeworks {

namespace {

constexpr const char* kPrintSection = "Settings";
constexpr const char* kPreviewPagesEntry = "PreviewPages"; // Side by side: 1 or 2.

/// Shows how far a long printing is and lets it be stopped.
class PrintProgress {
public:
    explicit PrintProgress(QWidget& parent)
        : dialog_(&parent) {
        dialog_.setWindowModality(Qt::WindowModal);
        dialog_.setAutoReset(false);
    }
    bool operator()(int page, int pages) {
        dialog_.setMaximum(pages);
        dialog_.setLabelText(QString::fromStdString(
            text(StringId::PrintingProgress, {std::to_string(page), std::to_string(pages)})));
        dialog_.setValue(page - 1);
        return !dialog_.wasCanceled();
    }
    [[nodiscard]] bool stopped() const { return dialog_.wasCanceled(); }

private:
    QProgressDialog dialog_;
};

/// Prints. A file is put in its place as a whole: the printer itself would write over the old one, and takes
/// a full disk for success.
bool printWhole(ImageView& view, QPrinter& printer, const ImagePrinter::Progress& progress) {
    const QString file = printer.outputFileName();
    if (file.isEmpty())
        return ImagePrinter(view).print(printer, progress);
    const QTemporaryDir folder;
    QFile draft(folder.filePath(QStringLiteral("draft.pdf")));
    printer.setOutputFileName(draft.fileName());
    const bool printed = ImagePrinter(view).print(printer, progress);
    printer.setOutputFileName(file);
    if (!printed || !draft.open(QIODevice::ReadOnly))
        return false;
    const QByteArray pages = draft.readAll();
    const auto bytes = std::as_bytes(std::span(pages.data(), static_cast<std::size_t>(pages.size())));
    return pages.endsWith("%%EOF\n") &&
           !writeHostFile(QFile::encodeName(file).toStdString(), FilePieces(&bytes, 1));
}

} // namespace

PrintCommands::PrintCommands(QWidget& window, ActiveView activeView)
    : window_(window)
    , activeView_(std::move(activeView))
    , choose_([this](QPrinter& printer) { return chooseByDialog(printer); }) {
    on(ID_FILE_PRINT, &PrintCommands::OnFilePrint, &PrintCommands::updateNeedsImage);
    on(ID_FILE_PRINT_DIRECT, &PrintCommands::OnFilePrintDirect, &PrintCommands::updateNeedsImage);
    on(ID_FILE_PRINT_PREVIEW, &PrintCommands::OnFilePrintPreview, &PrintCommands::updateNeedsImage);
    on(ID_FILE_PRINT_SETUP, &PrintCommands::OnFilePrintSetup);
}

PrintCommands::~PrintCommands() = default;

QPrinter& PrintCommands::printer() {
    if (printer_ == nullptr)
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *printer_;
}

bool PrintCommands::printUnasked(ImageView& view, const QString& printerName, const QString& file) {
    QPrinter& target = printer();
    if (file.isEmpty()) {
        const QPrinterInfo chosen =
            printerName.isEmpty() ? QPrinterInfo::defaultPrinter() : QPrinterInfo::printerInfo(printerName);
        if (chosen.isNull())
            return false;
        target.setPrinterName(chosen.printerName());
    } else {
        target.setOutputFormat(QPrinter::PdfFormat);
        target.setOutputFileName(file);
    }
    target.setDocName(QString::fromStdString(view.view().document().displayName()));
    return printWhole(view, target, [](int, int) { return true; });
}

bool PrintCommands::chooseByDialog(QPrinter& printer) {
    QPrintDialog dialog(&printer, &window_);
    const int pages = ImagePrinter(*activeView_()).pageCount(printer);
    dialog.setMinMax(1, pages);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, pages > 1);
    return dialog.exec() == QDialog::Accepted;
}

void PrintCommands::printActive() {
    ImageView& view = *activeView_();
    QPrinter& target = printer();
    target.setDocName(QString::fromStdString(view.view().document().displayName()));
    PrintProgress progress(window_);
    const bool printed = printWhole(view, target, std::ref(progress));
    if (!printed && !progress.stopped())
        applicationMessage(text(StringId::PrintingFailed));
}

void PrintCommands::updateNeedsImage(CommandUi& ui) {
    ui.require(activeView_() != nullptr, StringId::WhyNoImage);
}

void PrintCommands::OnFilePrint() {
    QPrinter& target = printer();
    target.setFromTo(0, 0);
    target.setPrintRange(QPrinter::AllPages);
    if (choose_(target))
        printActive();
}

void PrintCommands::OnFilePrintDirect() {
    // Without a printer, where to print to has to be asked.
    if (QPrinterInfo::defaultPrinter().isNull() && printer().outputFileName().isEmpty()) {
        OnFilePrint();
        return;
    }
    printer().setFromTo(0, 0);
    printActive();
}

void PrintCommands::OnFilePrintPreview() {
    QPrintPreviewDialog dialog(&printer(), &window_);
    printer().setFromTo(0, 0);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* pages) {
        PrintProgress progress(dialog);
        // A preview that was stopped shows the pages so far.
        static_cast<void>(ImagePrinter(*activeView_()).print(*pages, std::ref(progress)));
    });
    dialog.resize(window_.size());
    Profile& profile = platform().profile();
    auto* facingPages = dialog.findChild<QAction*>(QStringLiteral("facingModeAction"));
    if (facingPages != nullptr && profile.integer(kPrintSection, kPreviewPagesEntry, 1) > 1)
        facingPages->trigger();
    dialog.exec();
    if (facingPages != nullptr)
        profile.setInteger(kPrintSection, kPreviewPagesEntry, facingPages->isChecked() ? 2 : 1);
}

void PrintCommands::OnFilePrintSetup() {
    QPageSetupDialog(&printer(), &window_).exec();
}

} // namespace dyeworks
