#include "ui/sheets/ProjectPropertySheet.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <utility>

namespace dyeworks {

ProjectPropertySheet::ProjectPropertySheet(CFileNewProjectPage::Values values, QWidget* parent)
    : PropertySheet(shown(StringId::ProjectSheetCaption), parent) {
    setObjectName(QStringLiteral("IDD_PROJECT_PROPERTY"));
    auto page = std::make_unique<CFileNewProjectPage>();
    page_ = page.get();
    page->setValues(std::move(values));
    page->setNameFixed(true);
    addPage(std::move(page));
}

} // namespace dyeworks
