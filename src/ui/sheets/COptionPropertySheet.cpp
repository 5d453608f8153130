#include "ui/sheets/COptionPropertySheet.h"

#include "ui/sheets/AskUseProject.h"
#include "ui/sheets/CGeneralPropertyPage.h"
#include "ui/sheets/SheetControls.h"

namespace dyeworks {

COptionPropertySheet::COptionPropertySheet(QWidget* parent)
    : PropertySheet(shown(StringId::OptionsSheetCaption), parent) {
    setObjectName(QStringLiteral("IDD_OPTIONS"));
    auto page = std::make_unique<CGeneralPropertyPage>();
    generalPage_ = page.get();
    addPage(std::move(page));
}

void OptionsCommand(QWidget* owner) {
    COptionPropertySheet sheet(owner);
    sheet.generalPage().setAsksUseProject(asksUseProject());
    sheet.exec();
    setAsksUseProject(sheet.generalPage().asksUseProject());
}

} // namespace dyeworks
