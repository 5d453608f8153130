#include "core/PaletteSet.h"
#include "framework/DocumentTemplate.h"
#include "framework/PathText.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CanvasFile.h"
#include "platform/AskForFile.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

namespace dyeworks {

namespace {

constexpr const char* kBmpExtension = ".bmp";

} // namespace

/// The document is not attached to the palette; that is up to the user.
void CDyeworksDoc::makePaletteOfColours() {
    PaletteSet* const set = host_.paletteSet();
    const auto count = static_cast<std::int32_t>(canvas_.GetColorCount());
    // Above 8 bits the pixels are colours themselves.
    if (set == nullptr || count == 0 || !set->newPalette(count, ColourType::Rgba, -1))
        return;
    if (TextureLookupTable* const palette = set->lookup("")) {
        const auto colours = canvas_.colourTable();
        std::int32_t entry = 0;
        for (auto colour = colours.begin(); colour != colours.end(); colour += 4, ++entry) {
            palette->setRed(entry, colour[2] >> 3);
            palette->setGreen(entry, colour[1] >> 3);
            palette->setBlue(entry, colour[0] >> 3);
            palette->setAlpha(entry, colour[3] >> 3);
        }
        palette->markUnsaved();
    }
    host_.refreshPaletteBar();
}

void CDyeworksDoc::ExportBmp() {
    takeBackDrags();
    const std::string name = nameToSaveUnder();
    const std::string stem = name.substr(0, name.size() - extensionOf(name).size());
    const auto chosen = askForFileToSave({.title = text(StringId::ExportBmpCaption),
                                          .filter = text(StringId::BitmapFiles) + " (*.bmp)|*.bmp||",
                                          .defaultExtension = kBmpExtension,
                                          .initialName = stem + kBmpExtension});
    if (!chosen)
        return;
    std::string target = *chosen;
    if (!isBmpName(target)) {
        target += kBmpExtension;
        // The dialog has asked about the name without the extension.
        if (platform().files().exists(target) &&
            applicationMessage(text(StringId::ReplaceFileQuestion, {displayPath(target)}),
                               MessageButtons::YesNo) != MessageAnswer::Yes)
            return;
    }
    if (!settlePieces())
        return;
    if (documentTemplate() != nullptr && documentTemplate()->findDocument(target) == this)
        save();
    else
        static_cast<void>(writeCanvas(target));
}

} // namespace dyeworks
