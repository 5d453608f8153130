#include "ui/PictureImport.h"

#include "core/PaletteSet.h"
#include "core/TmfFormat.h"
#include "framework/DocumentTemplate.h"
#include "framework/PathText.h"
#include "interchange/PictureFile.h"
#include "interchange/ReductionState.h"
#include "paint/CDyeworksDoc.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "ui/CMainFrame.h"
#include "ui/UnsavedPalette.h"
#include "ui/Workspace.h"
#include "ui/sheets/LongWork.h"
#include "ui/sheets/ReduceColoursDialog.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dyeworks {

/// What an image is to be attached to: a new palette, or an open one.
struct PictureImport::Palette {
    std::optional<TlutData> made;
    std::string key; ///< Of an open one.
    std::int32_t firstEntry = 0;
};

namespace {

bool isOwnName(const std::string& path) {
    constexpr std::array kOwn{".tpf", ".tmf", ".tlf", ".bmp"};
    return std::ranges::any_of(kOwn,
                               [&](const char* own) { return equalIgnoringCase(extensionOf(path), own); });
}

std::string stemOf(const std::string& path) {
    const std::string_view name = fileNameOf(path);
    return std::string(name.substr(0, name.size() - extensionOf(path).size()));
}

QString shownText(StringId id) {
    return QString::fromStdString(text(id));
}

} // namespace

std::optional<OpenedFile> PictureImport::openFile(const std::string& path) {
    if (isOwnName(path) || workspace_.FindOpenDocument(path) != nullptr)
        return std::nullopt;
    const Result<ByteBuffer, FileError> file = platform().files().read(path);
    // An image of ours is one by any name.
    if (!file || parseTmfHeader(file.value().bytes()))
        return std::nullopt;
    std::optional<Result<PngPicture, InterchangeError>> read;
    const auto readFile = [&](const Progress& progress) {
        read = readPictureFile(file.value().bytes(), progress);
    };
    if (asks_)
        runLongWork(&workspace_.mainFrame(), shownText(StringId::ReadingPicture), readFile);
    else
        readFile({});
    if (read->ok())
        return open(read->value(), stemOf(path));
    const InterchangeError& error = read->error();
    if (error.kind == InterchangeError::Kind::UnknownFormat)
        return std::nullopt;
    if (error.kind == InterchangeError::Kind::Cancelled)
        return OpenedFile::cancelled();
    applicationMessage(
        text(StringId::CannotOpenFile, {displayPath(path), describe(error, platform().texts())}));
    return OpenedFile::failed();
}

OpenedFile PictureImport::open(const PngPicture& png, const std::string& name) {
    return png.picture.isIndexed() ? openIndexed(png, name) : openReduced(png.picture, name);
}

OpenedFile PictureImport::openIndexed(const PngPicture& png, const std::string& name) {
    TextureReport report;
    Result<Texture, InterchangeError> texture = textureOf(png, report);
    if (!texture) {
        applicationMessage(
            text(StringId::CannotOpenFile, {name, describe(texture.error(), platform().texts())}));
        return OpenedFile::failed();
    }
    Palette palette;
    palette.made = std::move(texture.value().palette);
    palette.firstEntry = texture.value().firstEntry;
    const OpenedFile opened = show(texture.value().image, palette, name);
    if (opened)
        tell(text(StringId::PictureOpened,
                  {name, std::to_string(report.rounded), std::to_string(report.changed)}));
    return opened;
}

OpenedFile PictureImport::openReduced(const Picture& picture, const std::string& name) {
    ReductionState state;
    ReducedPicture reduced;
    Palette palette;
    if (asks_) {
        if (const TextureLookupTable* current = workspace_.paletteSet()->lookup("")) {
            palette.key = workspace_.paletteSet()->currentKey;
            state = ReductionState(current->table, workspace_.mainFrame().GetPaletteBarFirstEntry());
        }
        state.load(platform().profile());
        // The files of the command line are opened before the main window is shown.
        workspace_.mainFrame().show();
        ReduceColoursDialog dialog(picture, state, QString::fromStdString(name), &workspace_.mainFrame());
        if (dialog.exec() != QDialog::Accepted)
            return OpenedFile::cancelled();
        state = dialog.state();
        reduced = dialog.reduced();
    } else {
        Result<ReducedPicture, InterchangeError> result = reduceColours(picture, state.options());
        if (!result) {
            applicationMessage(
                text(StringId::CannotOpenFile, {name, describe(result.error(), platform().texts())}));
            return OpenedFile::failed();
        }
        reduced = std::move(result).value();
    }
    palette.firstEntry = state.firstEntry();
    if (state.makesPalette())
        palette.made = state.paletteOf(reduced);
    const OpenedFile opened = show(
        imageOf(picture.width, picture.height, state.choices().bits, reduced.indices.data()), palette, name);
    if (opened)
        tell({});
    return opened;
}

OpenedFile PictureImport::show(const TmfImage& image, const Palette& palette, const std::string& name) {
    const OpenedFile opened =
        OpenedFile::of(workspace_.imageTemplate().newDocument(name, [&](CDocument& document) {
            auto& made = static_cast<CDyeworksDoc&>(document);
            if (!made.CreateFrom(image))
                return false;
            made.setAttachedName(palette.made
                                     ? addUnsavedPalette(*workspace_.paletteSet(), *palette.made, name)
                                     : palette.key);
            made.setPaletteValue(palette.firstEntry);
            made.RefreshOwnPalette();
            return true;
        }));
    if (!opened)
        applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
    return opened;
}

void PictureImport::tell(const std::string& text) {
    workspace_.mainFrame().SetStatusText(text, 0);
}

} // namespace dyeworks
