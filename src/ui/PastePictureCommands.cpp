#include "ui/PastePictureCommands.h"

#include "core/PaletteSet.h"
#include "interchange/ColourReduction.h"
#include "interchange/Texture.h"
#include "paint/CDyeworksDoc.h"
#include "paint/widgets/ImageView.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/CMainFrame.h"
#include "ui/ClipboardPicture.h"
#include "ui/PictureImport.h"
#include "ui/Workspace.h"
#include "ui/sheets/LongWork.h"

#include <memory>
#include <utility>

namespace dyeworks {

/// The image that colours are matched for, and the entries that it can show.
struct PastePictureCommands::Target {
    CDyeworksView& view;
    TextureLookupTable& palette;
    std::int32_t firstEntry;
    std::int32_t count;
};

PastePictureCommands::PastePictureCommands(Workspace& workspace, PictureImport& pictures)
    : workspace_(workspace)
    , pictures_(pictures) {
    on(ID_EDIT_PASTE_NEW, &PastePictureCommands::OnPasteNewImage,
       &PastePictureCommands::OnUpdatePasteNewImage);
    on(ID_EDIT_PASTE_MATCHING, &PastePictureCommands::OnPasteMatching,
       &PastePictureCommands::OnUpdatePasteMatching);
}

std::optional<PastePictureCommands::Target> PastePictureCommands::target() const {
    ImageView* const window = workspace_.hasMainFrame() ? workspace_.mainFrame().activeImageView() : nullptr;
    if (window == nullptr)
        return std::nullopt;
    const CDyeworksDoc& document = window->view().document();
    const std::int32_t bits = document.canvas().bitsPerPixel();
    TextureLookupTable* const attached = document.GetAttachedPalette();
    TextureLookupTable* const palette = attached == nullptr ? workspace_.paletteSet()->lookup("") : attached;
    if ((bits != 4 && bits != 8) || palette == nullptr || palette->table.count <= 0)
        return std::nullopt;
    const std::int32_t most = bits == 4 ? 16 : 256;
    const std::int32_t wanted =
        attached == nullptr ? workspace_.mainFrame().GetPaletteBarFirstEntry() : document.paletteValue();
    const bool fits = bits == 4 && wanted >= 0 && wanted + most <= palette->table.count;
    const std::int32_t first = fits ? wanted : 0;
    return Target{window->view(), *palette, first, std::min(most, palette->table.count - first)};
}

/// Nothing when it cannot be read, which the user has been told, or that was stopped.
std::optional<PngPicture> PastePictureCommands::picture() const {
    Result<PngPicture, InterchangeError> read = clipboardPicture();
    if (read)
        return std::move(read).value();
    const InterchangeError& error = read.error();
    const std::string why = error.kind == InterchangeError::Kind::UnknownFormat
                                ? std::string()
                                : "\n" + describe(error, platform().texts());
    applicationWarning(text(StringId::CannotPaste) + why, text(StringId::ClipboardAdvice));
    return std::nullopt;
}

void PastePictureCommands::OnPasteNewImage() {
    if (const std::optional<PngPicture> read = picture())
        pictures_.open(*read, text(StringId::PastedName));
}

void PastePictureCommands::OnUpdatePasteNewImage(CommandUi& ui) {
    ui.require(platform().clipboard().offers(ClipboardFormat::Bitmap), StringId::WhyNoBitmap);
}

void PastePictureCommands::OnPasteMatching() {
    const std::optional<PngPicture> read = picture();
    const std::optional<Target> into = target();
    if (!read || !into)
        return;
    const Picture& picture = read->picture;
    const TlutData& table = into->palette.table;
    const std::vector<std::uint16_t> entries(table.entries + into->firstEntry,
                                             table.entries + into->firstEntry + into->count);
    ReductionOptions options;
    options.colourType = table.colourType;
    std::optional<Result<ReducedPicture, InterchangeError>> matched;
    runLongWork(
        &workspace_.mainFrame(), QString::fromStdString(text(StringId::MatchingColours)),
        [&](const Progress& progress) { matched = matchColours(picture, entries, options, progress); });
    if (!matched->ok()) {
        if (matched->error().kind != InterchangeError::Kind::Cancelled)
            applicationMessage(describe(matched->error(), platform().texts()));
        return;
    }
    const std::int32_t bits = into->view.document().canvas().bitsPerPixel();
    auto piece = std::make_unique<TextureCanvas>(
        imageOf(picture.width, picture.height, bits, matched->value().indices.data()));
    if (piece->width() == 0) {
        applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
        return;
    }
    piece->ApplyPalette(into->palette, into->firstEntry);
    ImageViewer& viewer = into->view;
    viewer.CancelDrag();
    viewer.SetFloatingPiece(std::move(piece), StringId::StepPasteMatching);
    workspace_.mainFrame().SetStatusText({}, 0);
}

void PastePictureCommands::OnUpdatePasteMatching(CommandUi& ui) {
    ui.require(workspace_.hasMainFrame() && workspace_.mainFrame().activeImageView() != nullptr,
               StringId::WhyNoImage);
    ui.require(platform().clipboard().offers(ClipboardFormat::Bitmap), StringId::WhyNoBitmap);
    // An image has what it takes, so that nothing else can be missing.
    ui.require(target().has_value(), StringId::WhyNoPalette);
}

} // namespace dyeworks
