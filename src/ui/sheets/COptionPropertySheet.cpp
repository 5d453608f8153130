#include "ui/sheets/COptionPropertySheet.h"

#include "framework/ReloadOption.h"
#include "platform/StringId.h"
#include "ui/sheets/AskUseProject.h"
#include "ui/sheets/CGeneralPropertyPage.h"
#include "ui/sheets/CRulesPage.h"
#include "ui/sheets/SheetControls.h"

namespace dyeworks {

COptionPropertySheet::COptionPropertySheet(QWidget* parent)
    : PropertySheet(shown(StringId::OptionsSheetCaption), parent) {
    setObjectName(QStringLiteral("IDD_OPTIONS"));
    auto page = std::make_unique<CGeneralPropertyPage>();
    generalPage_ = page.get();
    addPage(std::move(page));
    auto rules = std::make_unique<CRulesPage>(StringId::RulesForOthers);
    rulesPage_ = rules.get();
    addPage(std::move(rules));
}

void OptionsCommand(QWidget* owner, OptionsPage inFront) {
    COptionPropertySheet sheet(owner);
    sheet.rulesPage().setRules(defaultRules());
    if (inFront == OptionsPage::Rules)
        sheet.showPage(sheet.rulesPage());
    sheet.generalPage().setAsksUseProject(asksUseProject());
    sheet.generalPage().setReloadsUnchanged(reloadsUnchanged());
    sheet.exec();
    setAsksUseProject(sheet.generalPage().asksUseProject());
    setReloadsUnchanged(sheet.generalPage().reloadsUnchanged());
    setDefaultRules(sheet.rulesPage().rules());
}

} // namespace dyeworks
