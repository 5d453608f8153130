#pragma once

#include "paint/Rect.h"
#include "ui/ImageVariants.h"

#include <QBasicTimer>
#include <QDockWidget>

#include <memory>
#include <optional>
#include <string>

class QLabel;
class QScrollArea;
class QStackedWidget;
class QTabWidget;

namespace dyeworks {

class ThumbnailSheet;

/// What the bar asks of the main window.
class BanksBarHost {
public:
    virtual ~BanksBarHost() = default;

    /// The image of the active window, or null.
    [[nodiscard]] virtual CDyeworksDoc* activeImage() const = 0;
    [[nodiscard]] virtual const PaletteSet& openPalettes() const = 0;
    /// Lets the active image show another bank of its palette.
    virtual void chooseBank(std::int32_t number) = 0;
    /// Attaches the active image to another open palette.
    virtual void attachActiveTo(const std::string& key) = 0;
};

/// The bar "Banks": the active image through each bank of its palette at once and, on another page, through
/// each open palette. It follows what is drawn and what is previewed; while nobody can see it, it does
/// nothing.
class BanksBar : public QDockWidget {
    Q_OBJECT

public:
    /// The host must outlive the bar.
    explicit BanksBar(BanksBarHost& host);

    /// As `ImageHost::imageChanged` tells it.
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels);
    /// Another image is active, or palettes came, went or have other names.
    void showAnew();
    /// Until the images take their colours anew, the palette shows in those of `palette`, a passing copy.
    void palettePreviewed(const std::string& key, const TextureLookupTable& palette);
    /// Brings what is seen up to date at once rather than soon.
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] QWidget* makePage(QWidget& sheet, QLabel*& notice);
    void refreshSoon();
    void showPage(const CDyeworksDoc* image);
    [[nodiscard]] bool showsBanks() const;

    BanksBarHost& host_;
    QTabWidget* pages_;
    ThumbnailSheet* banks_;
    ThumbnailSheet* palettes_;
    QLabel* noBanks_ = nullptr;
    QLabel* noPalettes_ = nullptr;
    QBasicTimer soon_;
    bool stale_ = true;               ///< All of what is seen.
    std::optional<Rect> staleTexels_; ///< Otherwise this part (inclusive) of the image.
    Size shownSize_;                  ///< Of the image.
    std::uint16_t shownDepth_ = 0;
    std::string passingKey_;
    std::unique_ptr<TextureLookupTable> passing_;
};

} // namespace dyeworks
