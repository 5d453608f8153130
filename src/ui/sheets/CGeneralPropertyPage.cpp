#include "ui/sheets/CGeneralPropertyPage.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace dyeworks {

CGeneralPropertyPage::CGeneralPropertyPage()
    : box_(new QCheckBox(shown(StringId::OptionsAskUseProject)))
    , reload_(new QCheckBox(shown(StringId::OptionsReloadUnchanged))) {
    setObjectName(QStringLiteral("IDD_PROPPAGE_GENERAL"));
    setWindowTitle(shown(StringId::OptionsGeneralTab));
    box_->setObjectName(QStringLiteral("IDC_ASK_USE_PROJECT"));
    box_->setToolTip(shown(StringId::OptionsAskUseProjectTip));
    reload_->setObjectName(QStringLiteral("IDC_RELOAD_UNCHANGED"));
    reload_->setToolTip(shown(StringId::OptionsReloadUnchangedTip));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(box_);
    layout->addWidget(reload_);
    layout->addStretch();
    setFocusProxy(box_);
    showValues();
}

void CGeneralPropertyPage::showValues() {
    box_->setChecked(asksUseProject_);
    reload_->setChecked(reloadsUnchanged_);
}

bool CGeneralPropertyPage::takeOver() {
    asksUseProject_ = box_->isChecked();
    reloadsUnchanged_ = reload_->isChecked();
    return true;
}

} // namespace dyeworks
