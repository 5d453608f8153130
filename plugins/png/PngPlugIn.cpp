#include "common/DialogScope.h"
#include "common/Say.h"
#include "common/WritePng.h"
#include "png/PngImport.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include <new>

// What the program shows of this plug-in, and what it calls.

DW_VERSION_INFO(1, 0, 0, 0, DW_VERSION_STRING("040904E4", "ProductName", "PNG images"),
                DW_VERSION_STRING("040904E4", "InternalName", "PNG..."),
                DW_VERSION_STRING("040904E4", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("040904E4", "Comments", "Reads and writes PNG files."),
                DW_VERSION_STRING("041104B0", "ProductName", "PNG 画像"),
                DW_VERSION_STRING("041104B0", "InternalName", "PNG..."),
                DW_VERSION_STRING("041104B0", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("041104B0", "Comments", "PNG ファイルを読み書きします。"));

namespace {

using namespace dyeworks::plugins;

QString askForFile(QFileDialog::AcceptMode mode, const QString& title) {
    const DialogScope scope;
    QFileDialog dialog(QApplication::activeWindow(), title);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setNameFilters(
        {say("PNG files (*.png)", "PNG ファイル (*.png)"), say("All files (*)", "すべてのファイル (*)")});
    dialog.setDefaultSuffix(QStringLiteral("png"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void tell(const QString& text, const QString& path, const QString& reason) {
    const DialogScope scope;
    QMessageBox::warning(QApplication::activeWindow(), say("PNG", "PNG"),
                         text.arg(QFileInfo(path).fileName(), reason));
}

std::uint32_t importFile(const PlugInPicture& in, PlugInPicture& out) {
    const QString path = askForFile(QFileDialog::AcceptOpen, say("Import PNG", "PNG のインポート"));
    if (path.isEmpty())
        return 0;
    PngImport brought = importPng(path, in);
    if (!brought.refusal.isEmpty()) {
        tell(say("\"%1\" cannot be imported. %2", "「%1」をインポートできません。%2"), path, brought.refusal);
        return 0;
    }
    out.image = brought.image.release();
    out.palette = brought.palette.release();
    return 1;
}

std::uint32_t exportFile(const PlugInPicture& picture) {
    const QString path = askForFile(QFileDialog::AcceptSave, say("Export PNG", "PNG のエクスポート"));
    if (path.isEmpty())
        return 0;
    const QString reason = writePngFile(path, *picture.image, picture.palette, picture.paletteNumber);
    if (!reason.isEmpty())
        tell(say("\"%1\" cannot be written. %2", "「%1」を書き込めません。%2"), path, reason);
    return reason.isEmpty() ? 1 : 0;
}

} // namespace

std::uint32_t DWPI_isAvail(std::uint32_t /*hostVersion*/) {
    return 1;
}

std::uint32_t DWPI_getType(void) {
    return DWPI_TMF_IMPORT | DWPI_TMF_EXPORT;
}

std::uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    try {
        return importFile(*in, *out);
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

std::uint32_t DWPI_export(const PlugInPicture* picture) {
    try {
        return exportFile(*picture);
    } catch (const std::bad_alloc&) {
        return 0;
    }
}
