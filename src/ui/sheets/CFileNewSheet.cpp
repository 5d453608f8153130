#include "ui/sheets/CFileNewSheet.h"

#include "platform/StringId.h"
#include "platform/Text.h"
#include "ui/sheets/CFileNewPalettePage.h"
#include "ui/sheets/CFileNewProjectPage.h"
#include "ui/sheets/CFileNewTexturePage.h"

namespace dyeworks {

CFileNewSheet::CFileNewSheet(QWidget* parent)
    : PropertySheet(QString::fromStdString(text(StringId::NewSheetCaption)), parent) {
    setObjectName(QStringLiteral("IDD_FILENEW"));
    const auto add = [this](auto page) {
        auto* added = page.get();
        addPage(std::move(page));
        return added;
    };
    projectPage_ = add(std::make_unique<CFileNewProjectPage>());
    texturePage_ = add(std::make_unique<CFileNewTexturePage>());
    palettePage_ = add(std::make_unique<CFileNewPalettePage>());
}

void CFileNewSheet::keepOnly(const PropertyPage& page) {
    for (PropertyPage* each :
         {static_cast<PropertyPage*>(projectPage_), static_cast<PropertyPage*>(texturePage_),
          static_cast<PropertyPage*>(palettePage_)}) {
        if (each != &page)
            removePage(*each);
    }
}

} // namespace dyeworks
