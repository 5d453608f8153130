#include "common/DialogScope.h"
#include "common/Say.h"
#include "dyeworks/plugin.h"
#include "source/SourceSheet.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include <new>

// What the program shows of this plug-in, and what it calls.

DW_VERSION_INFO(1, 0, 0, 0, DW_VERSION_STRING("040904E4", "ProductName", "C source and raw bytes"),
                DW_VERSION_STRING("040904E4", "InternalName", "Source..."),
                DW_VERSION_STRING("040904E4", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("040904E4", "Comments",
                                  "Writes images and palettes as C source or raw bytes."),
                DW_VERSION_STRING("041104B0", "ProductName", "C ソースとバイト列"),
                DW_VERSION_STRING("041104B0", "InternalName", "ソース..."),
                DW_VERSION_STRING("041104B0", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("041104B0", "Comments",
                                  "画像とパレットを C ソースまたはバイト列として書き出します。"));

namespace {

using namespace dyeworks::plugins;

QString title() {
    return say("Export Source", "ソースのエクスポート");
}

QString askForFile(const SourceChoices& choices) {
    const bool isRaw = choices.kind == SourceKind::Raw;
    const QString ending = isRaw ? QStringLiteral("bin") : QStringLiteral("h");
    QFileDialog dialog(QApplication::activeWindow(), title());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(
        {isRaw ? say("Raw bytes (*.bin)", "バイト列 (*.bin)") : say("C headers (*.h)", "C ヘッダー (*.h)"),
         say("All files (*)", "すべてのファイル (*)")});
    dialog.setDefaultSuffix(ending);
    dialog.selectFile(QString::fromStdString(choices.options.name) + QLatin1Char('.') + ending);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

/// The save dialog has asked about the header alone.
bool mayReplaceSource(const SourceChoices& choices, const QString& path) {
    const QString source = sourcePathFor(path);
    if (choices.kind != SourceKind::HeaderAndSource || !QFileInfo::exists(source))
        return true;
    return QMessageBox::question(
               QApplication::activeWindow(), title(),
               say("\"%1\" is there already. Replace it?", "「%1」は既にあります。置き換えますか?")
                   .arg(QFileInfo(source).fileName())) == QMessageBox::Yes;
}

std::uint32_t exportFile(const PlugInPicture& picture) {
    const DialogScope scope;
    SourceSheet sheet(picture.palette != nullptr, QApplication::activeWindow());
    if (sheet.exec() != QDialog::Accepted)
        return 0;
    const SourceChoices choices = sheet.choices();
    const QString path = askForFile(choices);
    if (path.isEmpty() || !mayReplaceSource(choices, path))
        return 0;
    const SourceFailure failure = writeSource(picture, choices, path);
    if (failure.reason.isEmpty())
        return 1;
    QMessageBox::warning(QApplication::activeWindow(), title(),
                         say("\"%1\" cannot be written. %2", "「%1」を書き込めません。%2")
                             .arg(QFileInfo(failure.path).fileName(), failure.reason));
    return 0;
}

} // namespace

std::uint32_t DWPI_isAvail(std::uint32_t /*hostVersion*/) {
    return 1;
}

std::uint32_t DWPI_getType(void) {
    return DWPI_TMF_EXPORT;
}

std::uint32_t DWPI_export(const PlugInPicture* picture) {
    try {
        return exportFile(*picture);
    } catch (const std::bad_alloc&) {
        return 0;
    }
}
