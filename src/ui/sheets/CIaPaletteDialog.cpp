#include "ui/sheets/CIaPaletteDialog.h"

#include "platform/StringId.h"

namespace dyeworks {

CIaPaletteDialog::CIaPaletteDialog(QWidget* parent)
    : EntryDialog(ColourType::Ia, "IDD_IA_PALETTE", StringId::IaDialogCaption, parent) {
    const QColor grey(192, 192, 192);
    addChannel({Channel::Red, StringId::EntryIntensity, StringId::ChannelIntensity, "IDC_INTENSITY",
                "IDC_INTENSITY_SCROLL", grey});
    addChannel({Channel::Alpha, StringId::EntryAlpha, StringId::ChannelAlpha, "IDC_ALPHA", "IDC_ALPHA_SCROLL",
                grey});
    SetValue(0);
}

} // namespace dyeworks
