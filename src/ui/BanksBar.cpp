#include "ui/BanksBar.h"

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "platform/StringId.h"
#include "ui/ThumbnailSheet.h"
#include "ui/sheets/SheetControls.h"

#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimerEvent>

#include <utility>

namespace dyeworks {

namespace {

constexpr int kBankColumns = 4;

} // namespace

BanksBar::BanksBar(BanksBarHost& host)
    : QDockWidget(shown(StringId::BarBanks))
    , host_(host)
    , pages_(new QTabWidget)
    , banks_(new ThumbnailSheet(kBankColumns))
    , palettes_(new ThumbnailSheet(0)) {
    setObjectName(QStringLiteral("ID_VIEW_BANKSBAR"));
    setWhatsThis(shown(StringId::HelpBanksBar));
    banks_->setObjectName(QStringLiteral("IDC_BANKS"));
    palettes_->setObjectName(QStringLiteral("IDC_PALETTES"));
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(palettes_);
    pages_->setDocumentMode(true);
    pages_->setAccessibleName(shown(StringId::BarBanks));
    pages_->addTab(makePage(*banks_, noBanks_), shown(StringId::BanksTab));
    pages_->addTab(makePage(*scroll, noPalettes_), shown(StringId::PalettesTab));
    setWidget(pages_);
    connect(pages_, &QTabWidget::currentChanged, this, &BanksBar::showAnew);
    connect(this, &QDockWidget::visibilityChanged, this, &BanksBar::showAnew);
    for (ThumbnailSheet* sheet : {banks_, palettes_})
        connect(sheet, &ThumbnailSheet::resized, this, &BanksBar::showAnew);
    connect(banks_, &ThumbnailSheet::chosen, this, [this](int index) { host_.chooseBank(index); });
    connect(palettes_, &ThumbnailSheet::chosen, this,
            [this](int index) { host_.attachActiveTo(palettes_->variant(index).key); });
}

/// The sheet or, where there is nothing to show in it, a notice that says why.
QWidget* BanksBar::makePage(QWidget& sheet, QLabel*& notice) {
    auto* page = new QStackedWidget;
    notice = new QLabel;
    notice->setAlignment(Qt::AlignCenter);
    notice->setWordWrap(true);
    notice->setMargin(fontMetrics().height() / 2);
    page->addWidget(&sheet);
    page->addWidget(notice);
    return page;
}

bool BanksBar::showsBanks() const {
    return pages_->currentIndex() == 0;
}

void BanksBar::imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) {
    if (!texels)
        passing_.reset();
    if (&image != host_.activeImage())
        return;
    const TextureCanvas& canvas = image.canvas();
    if (!texels || shownSize_ != Size{canvas.width(), canvas.height()} ||
        shownDepth_ != canvas.bitsPerPixel())
        stale_ = true;
    else
        staleTexels_ = unionOf(staleTexels_, texels);
    refreshSoon();
}

void BanksBar::showAnew() {
    stale_ = true;
    refreshSoon();
}

void BanksBar::palettePreviewed(const std::string& key, const TextureLookupTable& palette) {
    passingKey_ = key;
    passing_ = std::make_unique<TextureLookupTable>(palette);
    showAnew();
}

void BanksBar::refreshSoon() {
    if (isVisible() && !soon_.isActive())
        soon_.start(0, this);
}

void BanksBar::showEvent(QShowEvent* event) {
    QDockWidget::showEvent(event);
    showAnew();
}

void BanksBar::timerEvent(QTimerEvent* event) {
    if (event->timerId() != soon_.timerId())
        return QDockWidget::timerEvent(event);
    refresh();
}

void BanksBar::refresh() {
    soon_.stop();
    // One of several docks in the same place is visible, but in sight is the one in front alone.
    if (!isVisible() || pages_->visibleRegion().isEmpty())
        return;
    const CDyeworksDoc* const image = host_.activeImage();
    if (std::exchange(stale_, false)) {
        staleTexels_.reset();
        showPage(image);
    } else if (const auto texels = std::exchange(staleTexels_, std::nullopt); texels && image != nullptr) {
        (showsBanks() ? banks_ : palettes_)->showTexels(image->canvas(), *texels);
    }
}

void BanksBar::showPage(const CDyeworksDoc* image) {
    const ShownPalettes shownPalettes{host_.openPalettes(), passingKey_, passing_.get()};
    auto& page = static_cast<QStackedWidget&>(*pages_->currentWidget());
    const auto reason = showsBanks() ? noBanksReason(image) : noPalettesReason(image);
    if (reason)
        (showsBanks() ? noBanks_ : noPalettes_)->setText(shown(*reason));
    page.setCurrentIndex(reason ? 1 : 0);
    // What an image without variants is like is not kept: nothing of it is shown.
    shownSize_ = {};
    if (reason)
        return;
    const TextureCanvas& canvas = image->canvas();
    shownSize_ = {canvas.width(), canvas.height()};
    shownDepth_ = canvas.bitsPerPixel();
    if (showsBanks())
        banks_->showAll(canvas, bankVariants(*image, shownPalettes));
    else
        palettes_->showAll(canvas, paletteVariants(*image, shownPalettes));
}

} // namespace dyeworks
