#include "ui/CFileNewSheet.h"

#include "platform/Platform.h"
#include "ui/CFileNewTexturePage.h"

namespace dyeworks {

CFileNewSheet::CFileNewSheet(QWidget* parent)
    : PropertySheet(QString::fromStdString(text(StringId::NewSheetCaption)), parent) {
    setObjectName(QStringLiteral("IDD_FILENEW"));
    auto page = std::make_unique<CFileNewTexturePage>();
    texturePage_ = page.get();
    addPage(std::move(page));
}

} // namespace dyeworks
