#pragma once

#include "paint/ImageWork.h"

#include <optional>

class QWidget;

namespace dyeworks {

class TextureCanvas;

/// Asks in a sheet how something is to be done to `image`. Nothing: cancelled.
[[nodiscard]] std::optional<ImageWork> askImageWork(const ImageWork& proposed, const TextureCanvas& image,
                                                    QWidget* owner);

} // namespace dyeworks
