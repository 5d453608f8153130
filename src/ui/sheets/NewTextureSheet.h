#pragma once

#include "core/ColourType.h"
#include "framework/widgets/PropertySheet.h"
#include "ui/sheets/CFileNewTexturePage.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

class QComboBox;

namespace dyeworks {

/// An open palette that a new texture may wear: its key and what people call it.
using OpenPaletteName = std::pair<std::string, std::string>;

/// The page of a new image, with the palette that it is attached to from the start.
class NewTexturePage : public CFileNewTexturePage {
    Q_OBJECT

public:
    explicit NewTexturePage(const std::vector<OpenPaletteName>& openPalettes);

    [[nodiscard]] bool takeOver() override;

    // As they were last taken over.
    /// The key of an open palette; nothing: a new one is wanted.
    [[nodiscard]] const std::optional<std::string>& openPalette() const noexcept { return openPalette_; }
    /// Of a new palette.
    [[nodiscard]] ColourType colourType() const noexcept { return colourType_; }

private:
    QComboBox* palettes_;
    std::optional<std::string> openPalette_;
    ColourType colourType_ = ColourType::Rgba;
};

/// What a new image and its palette are to be like.
class NewTextureSheet : public PropertySheet {
    Q_OBJECT

public:
    NewTextureSheet(const std::vector<OpenPaletteName>& openPalettes, QWidget* parent);

    [[nodiscard]] const NewTexturePage& page() const noexcept { return *page_; }

private:
    NewTexturePage* page_;
};

} // namespace dyeworks
