#include "common/DialogScope.h"
#include "common/Say.h"
#include "pictures/PicturesExport.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>

#include <algorithm>
#include <new>

// What the program shows of this plug-in, and what it calls.

DW_VERSION_INFO(1, 0, 0, 0, DW_VERSION_STRING("040904E4", "ProductName", "Pictures as PNG"),
                DW_VERSION_STRING("040904E4", "InternalName", "Pictures as PNG..."),
                DW_VERSION_STRING("040904E4", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("040904E4", "Comments",
                                  "Writes a project's pictures as PNG files with an index."),
                DW_VERSION_STRING("041104B0", "ProductName", "ピクチャーを PNG に"),
                DW_VERSION_STRING("041104B0", "InternalName", "ピクチャーを PNG に..."),
                DW_VERSION_STRING("041104B0", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("041104B0", "Comments",
                                  "プロジェクトのピクチャーを PNG ファイルと一覧に書き出します。"));

namespace {

using namespace dyeworks::plugins;

/// Failures beyond these are behind "Show Details".
constexpr qsizetype kFailuresInMessage = 10;

QString title() {
    return say("Export Pictures as PNG", "ピクチャーを PNG にエクスポート");
}

/// True when nothing in the folder would be lost, or may be.
bool mayReplace(const QString& folder, const std::vector<ProjectPicture>& pictures) {
    const QDir place(folder);
    const auto there =
        std::ranges::count_if(pictures, [&](const ProjectPicture& p) { return place.exists(p.file); }) +
        (place.exists(QString::fromLatin1(kIndexFile)) ? 1 : 0);
    if (there == 0)
        return true;
    const QString question = say("Files in this folder that will be replaced: %1. Go on?",
                                 "このフォルダーの %1 個のファイルが置き換えられます。続けますか?")
                                 .arg(there);
    return QMessageBox::question(QApplication::activeWindow(), title(), question) == QMessageBox::Yes;
}

void tellFailures(const QStringList& failures) {
    QMessageBox box(QMessageBox::Warning, title(),
                    say("These could not be written:", "次のものを書き込めませんでした:") +
                        QStringLiteral("\n\n") + failures.mid(0, kFailuresInMessage).join(QLatin1Char('\n')),
                    QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    if (failures.size() > kFailuresInMessage) {
        box.setText(box.text() + QStringLiteral("\n..."));
        box.setDetailedText(failures.join(QLatin1Char('\n')));
    }
    box.exec();
}

std::uint32_t exportProject() {
    const DialogScope scope;
    const std::vector<ProjectPicture> pictures = projectPictures();
    const QString folder = QFileDialog::getExistingDirectory(QApplication::activeWindow(), title());
    if (folder.isEmpty() || !mayReplace(folder, pictures))
        return 0;
    QProgressDialog progress(title(), say("Stop", "中止"), 0, static_cast<int>(pictures.size()),
                             QApplication::activeWindow());
    progress.setWindowModality(Qt::ApplicationModal);
    const PicturesExport result = exportPictures(folder, pictures, [&](std::size_t done) {
        progress.setValue(static_cast<int>(done));
        return !progress.wasCanceled();
    });
    progress.reset();
    if (!result.failures.isEmpty())
        tellFailures(result.failures);
    return result.failures.isEmpty() ? 1 : 0;
}

} // namespace

std::uint32_t DWPI_isAvail(std::uint32_t /*hostVersion*/) {
    return 1;
}

std::uint32_t DWPI_getType(void) {
    return DWPI_TPF_EXPORT;
}

std::uint32_t DWPI_TPF_export(DwHandle /*handle*/, const char* /*projectPath*/) {
    try {
        return exportProject();
    } catch (const std::bad_alloc&) {
        return 0;
    }
}
