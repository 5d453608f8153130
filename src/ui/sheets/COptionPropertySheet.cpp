#include "ui/sheets/COptionPropertySheet.h"

#include "framework/ReloadOption.h"
#include "platform/StringId.h"
#include "ui/sheets/AskUseProject.h"
#include "ui/sheets/CGeneralPropertyPage.h"
#include "ui/sheets/CRulesPage.h"
#include "ui/sheets/CShortcutsPage.h"
#include "ui/sheets/SheetControls.h"

namespace dyeworks {

COptionPropertySheet::COptionPropertySheet(const std::vector<ShortcutGroup>& shortcuts, QWidget* parent)
    : PropertySheet(shown(StringId::OptionsSheetCaption), parent) {
    setObjectName(QStringLiteral("IDD_OPTIONS"));
    auto page = std::make_unique<CGeneralPropertyPage>();
    generalPage_ = page.get();
    addPage(std::move(page));
    auto rules = std::make_unique<CRulesPage>(StringId::RulesForOthers);
    rulesPage_ = rules.get();
    addPage(std::move(rules));
    auto keys = std::make_unique<CShortcutsPage>(shortcuts);
    shortcutsPage_ = keys.get();
    addPage(std::move(keys));
}

void OptionsCommand(QWidget* owner, const ShortcutOptions& shortcuts, OptionsPage inFront) {
    COptionPropertySheet sheet(shortcuts.groups, owner);
    sheet.shortcutsPage().setShortcuts(shortcuts.shortcuts);
    sheet.rulesPage().setRules(defaultRules());
    if (inFront == OptionsPage::Rules)
        sheet.showPage(sheet.rulesPage());
    else if (inFront == OptionsPage::Shortcuts)
        sheet.showPage(sheet.shortcutsPage());
    sheet.generalPage().setAsksUseProject(asksUseProject());
    sheet.generalPage().setReloadsUnchanged(reloadsUnchanged());
    sheet.exec();
    setAsksUseProject(sheet.generalPage().asksUseProject());
    setReloadsUnchanged(sheet.generalPage().reloadsUnchanged());
    setDefaultRules(sheet.rulesPage().rules());
    if (sheet.shortcutsPage().shortcuts() != shortcuts.shortcuts)
        shortcuts.changed(sheet.shortcutsPage().shortcuts());
}

} // namespace dyeworks
