#include "ui/NewTextureCommands.h"

#include "core/PaletteSet.h"
#include "framework/CommandRouter.h"
#include "framework/DocumentTemplate.h"
#include "paint/CDyeworksDoc.h"
#include "paint/ViewGeometry.h"
#include "paint/widgets/ImageView.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/CMainFrame.h"
#include "ui/Workspace.h"
#include "ui/sheets/CFileNewPalettePage.h"
#include "ui/sheets/CFileNewSheet.h"
#include "ui/sheets/NewTextureSheet.h"

#include <QMdiArea>

#include <algorithm>

namespace dyeworks {

namespace {

constexpr std::int32_t kSmall = 16; // Entries, and colours of 4 bits.
constexpr std::int32_t kLarge = 256;

constexpr std::int32_t opaque(ColourType type) {
    return type == ColourType::Ia ? 255 : 1;
}

std::vector<OpenPaletteName> openPalettes(PaletteSet& set) {
    std::vector<OpenPaletteName> names;
    for (const auto& [key, palette] : set.palettes) {
        std::string title;
        if (set.getTitle(key, title))
            names.emplace_back(key, title);
    }
    return names;
}

/// "Texture2" where an image that is open is called "Texture1".
std::string freeTitle(const DocumentTemplate& kind) {
    const auto documents = kind.documents();
    for (int number = 1;; ++number) {
        const std::string title = kind.names().documentName + std::to_string(number);
        if (std::ranges::none_of(documents,
                                 [&](const CDocument* open) { return open->displayName() == title; }))
            return title;
    }
}

/// The largest zoom at which an image of this size is seen as a whole in the room there is for documents.
std::int32_t zoomToFit(const TextureCanvas& image, QSize room) {
    std::int32_t fitting = ViewGeometry::kMinZoom;
    for (const std::int32_t zoom : ViewGeometry::kZoomFactors) {
        if (image.width() * zoom <= room.width() && image.height() * zoom <= room.height())
            fitting = zoom;
    }
    return fitting;
}

} // namespace

NewTextureCommands::NewTextureCommands(Workspace& workspace)
    : workspace_(workspace) {
    on(ID_TEXTURE_NEW, &NewTextureCommands::OnNewTexture);
    on(ID_IMAGE_NEW_PALETTE, &NewTextureCommands::OnNewPaletteForImage,
       &NewTextureCommands::OnUpdateNewPaletteForImage);
}

CDyeworksDoc* NewTextureCommands::activeImage() const {
    ImageView* const view = workspace_.hasMainFrame() ? workspace_.mainFrame().activeImageView() : nullptr;
    return view == nullptr ? nullptr : &view->view().document();
}

void NewTextureCommands::OnNewTexture() {
    PaletteSet& palettes = *workspace_.paletteSet();
    NewTextureSheet sheet(openPalettes(palettes), &workspace_.mainFrame());
    if (sheet.exec() != QDialog::Accepted)
        return;
    const NewTexturePage& page = sheet.page();
    TmfImage image;
    const bool made = image.create(page.imageWidth(), page.imageHeight(), page.bitsPerPixel());
    const DocumentTemplate& kind = workspace_.imageTemplate();
    const CDocument* const document =
        !made ? nullptr : workspace_.imageTemplate().newDocument(freeTitle(kind), [&](CDocument& created) {
            auto& texture = static_cast<CDyeworksDoc&>(created);
            if (!texture.CreateFrom(image))
                return false;
            if (page.openPalette())
                palettes.setCurrent(*page.openPalette());
            else if (!palettes.newPalette(page.bitsPerPixel() == 4 ? kSmall : kLarge, page.colourType(),
                                          opaque(page.colourType())))
                return false;
            texture.Attach();
            return true;
        });
    if (document == nullptr) {
        applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
        return;
    }
    constexpr double kShare = 0.85; // The rest is for the window's frame, and shows that there is more room.
    const TextureCanvas& canvas = static_cast<const CDyeworksDoc*>(document)->canvas();
    const QSize room = workspace_.mainFrame().area().viewport()->size() * kShare;
    workspace_.router().run(ID_ZOOM_BASE + static_cast<CommandId>(zoomToFit(canvas, room)));
}

void NewTextureCommands::OnNewPaletteForImage() {
    CDyeworksDoc* const image = activeImage();
    if (image == nullptr)
        return;
    CFileNewSheet sheet(&workspace_.mainFrame());
    CFileNewPalettePage& page = sheet.palettePage();
    page.setEntryCount(image->canvas().bitsPerPixel() == 4 ? kSmall : kLarge);
    sheet.keepOnly(page);
    if (sheet.exec() != QDialog::Accepted)
        return;
    // Another program's wish may have closed the image under the sheet.
    if (workspace_.paletteSet()->newPalette(page.entryCount(), page.colourType(), page.defaultAlpha()) &&
        activeImage() == image)
        image->Attach();
}

void NewTextureCommands::OnUpdateNewPaletteForImage(CommandUi& ui) {
    const CDyeworksDoc* const image = activeImage();
    ui.require(image != nullptr, StringId::WhyNoImage);
    ui.require(image != nullptr && !image->IsAttached(), StringId::WhyHasPalette);
}

} // namespace dyeworks
