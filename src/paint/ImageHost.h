#pragma once

#include "paint/ImageWork.h"
#include "paint/Rect.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

class CDyeworksDoc;
class ImagePlugIns;
class ImageViewer;
class OpenProject;
class PaletteSet;
class TextureCanvas;

/// Panes of the status line: messages, the pointer's position, and the image's size and depth.
inline constexpr int kMessagePane = 0;
inline constexpr int kPositionPane = 1;
inline constexpr int kSizePane = 2;

/// What a new image is to be like.
struct NewImage {
    std::int32_t width = 0; ///< In texels.
    std::int32_t height = 0;
    std::uint16_t bitsPerPixel = 4; ///< Or 8.
};

/// What an image document and its views ask of the application.
class ImageHost {
public:
    virtual ~ImageHost() = default;

    /// The open palettes, or null while there is no set.
    virtual PaletteSet* paletteSet() = 0;

    /// Entry of the current palette that a 4-bit image's value 0 shows: 16 times the bank, or 0.
    [[nodiscard]] virtual std::int32_t paletteBarFirstEntry() const = 0;
    /// The cell that is selected for drawing, counted from the palette's entry 0; negative when there is
    /// none, as without a palette.
    [[nodiscard]] virtual std::int32_t paletteBarCell() const = 0;
    virtual void selectPaletteBarCell(std::int32_t cell) = 0;
    /// Shows the current palette anew.
    virtual void refreshPaletteBar() = 0;

    /// Saves a palette in a file that the user is asked for; images that were attached to it stay so. The key
    /// that it then has; nothing when that was cancelled or failed.
    [[nodiscard]] virtual std::optional<std::string> savePaletteAs(const std::string& key) = 0;

    virtual void setStatusText(const std::string& text, int pane) = 0;

    /// Whether `document` is the one in the active window, whose bank the palette bar shows.
    [[nodiscard]] virtual bool isActiveImage(const CDyeworksDoc& document) const = 0;
    /// The image view in the active window, or null.
    [[nodiscard]] virtual ImageViewer* activeView() const = 0;

    [[nodiscard]] virtual ImagePlugIns& imagePlugIns() = 0;
    /// Null while no project is open.
    [[nodiscard]] virtual OpenProject* openProject() = 0;
    /// Asks the user what a new image is to be like. Nothing: cancelled.
    [[nodiscard]] virtual std::optional<NewImage> askNewImage() = 0;
    /// Asks the user how something is to be done to `image`, showing what is proposed. The result is of the
    /// same kind and can be carried out. Nothing: cancelled.
    [[nodiscard]] virtual std::optional<ImageWork> askImageWork(const ImageWork& proposed,
                                                                const TextureCanvas& image) = 0;
    /// A new image was made: offers to use a project if none is open.
    virtual void AskUseProject() = 0;

    /// Whether a view that closes keeps how it showed its image. Not where nobody saw it.
    [[nodiscard]] virtual bool keepsImageSettings() const { return true; }

    /// What `image` shows has changed: its texels within a rectangle (inclusive), also while an edit is open,
    /// or, without one, its colours or the palette that it is attached to. Nothing is to be drawn before it
    /// returns.
    virtual void imageChanged(const CDyeworksDoc& /*image*/, const std::optional<Rect>& /*texels*/) {}
    /// An image has gone.
    virtual void imageClosed() {}

    /// The document whose view was activated last, still remembered while another kind of window is active;
    /// null before the first and after that document has ended.
    [[nodiscard]] virtual const CDyeworksDoc* lastActivatedImage() const = 0;
    virtual void setLastActivatedImage(const CDyeworksDoc* document) = 0;
};

} // namespace dyeworks
