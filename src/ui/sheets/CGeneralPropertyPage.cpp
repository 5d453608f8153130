#include "ui/sheets/CGeneralPropertyPage.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace dyeworks {

CGeneralPropertyPage::CGeneralPropertyPage()
    : box_(new QCheckBox(shown(StringId::OptionsAskUseProject))) {
    setObjectName(QStringLiteral("IDD_PROPPAGE_GENERAL"));
    setWindowTitle(shown(StringId::OptionsGeneralTab));
    box_->setObjectName(QStringLiteral("IDC_ASK_USE_PROJECT"));
    box_->setToolTip(shown(StringId::OptionsAskUseProjectTip));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(box_);
    layout->addStretch();
    setFocusProxy(box_);
    showValues();
}

void CGeneralPropertyPage::showValues() {
    box_->setChecked(asksUseProject_);
}

bool CGeneralPropertyPage::takeOver() {
    asksUseProject_ = box_->isChecked();
    return true;
}

} // namespace dyeworks
