#include "ui/COptionPropertySheet.h"

#include "ui/AskUseProject.h"
#include "ui/CGeneralPropertyPage.h"
#include "ui/SheetControls.h"

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
