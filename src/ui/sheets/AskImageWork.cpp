#include "ui/sheets/AskImageWork.h"

#include "ui/sheets/ReduceDepthSheet.h"
#include "ui/sheets/ResizeCanvasSheet.h"
#include "ui/sheets/ScaleImageSheet.h"
#include "ui/sheets/ShiftImageSheet.h"

namespace dyeworks {

namespace {

template <typename Sheet, typename Work>
std::optional<ImageWork> askWith(const Work& proposed, const TextureCanvas& image, QWidget* owner) {
    Sheet sheet(proposed, image, owner);
    return sheet.exec() == QDialog::Accepted ? sheet.work() : std::nullopt;
}

} // namespace

std::optional<ImageWork> askImageWork(const ImageWork& proposed, const TextureCanvas& image, QWidget* owner) {
    if (const auto* resize = std::get_if<ResizeCanvas>(&proposed))
        return askWith<ResizeCanvasSheet>(*resize, image, owner);
    if (const auto* scale = std::get_if<ScaleImage>(&proposed))
        return askWith<ScaleImageSheet>(*scale, image, owner);
    if (const auto* shift = std::get_if<ShiftImage>(&proposed))
        return askWith<ShiftImageSheet>(*shift, image, owner);
    return askWith<ReduceDepthSheet>(std::get<ReduceDepth>(proposed), image, owner);
}

} // namespace dyeworks
