#include "ui/OutsideBar.h"

#include "paint/CDyeworksDoc.h"
#include "platform/StringId.h"
#include "project/CTPFDocument.h"
#include "ui/ImageComparison.h"
#include "ui/sheets/SheetControls.h"

#include <QPushButton>

namespace dyeworks {

OutsideBar::OutsideBar(const OutsideWatch::Notice& notice, ImageView* view)
    : MessageBar(shown(StringId::OutsideBar))
    , notice_(notice)
    , view_(view) {
    setObjectName(QStringLiteral("IDD_OUTSIDE_CHANGE"));
    setToolTip(QString::fromStdString(displayPath(notice.path)));
    showWords();
    if (notice.offersReload()) {
        const bool isProject = dynamic_cast<CTPFDocument*>(notice.document) != nullptr;
        const QPushButton* const reload =
            addButton("IDC_OUTSIDE_RELOAD", shown(StringId::OutsideReload),
                      shown(isProject ? StringId::OutsideReloadProjectTip : StringId::OutsideReloadTip));
        connect(reload, &QPushButton::clicked, this, [this] { Q_EMIT reloadWanted(notice_); });
    }
    if (notice.offersReload() && view != nullptr) {
        compare_ = addButton("IDC_OUTSIDE_COMPARE", shown(StringId::OutsideCompare),
                             shown(StringId::OutsideCompareTip));
        compare_->setCheckable(true);
        connect(compare_, &QPushButton::toggled, this, &OutsideBar::compare);
    }
    const bool isBack = notice.state == KnownFile::State::Back;
    const QPushButton* const keep =
        addButton("IDC_OUTSIDE_KEEP", shown(isBack ? StringId::OutsideClose : StringId::OutsideKeep),
                  shown(isBack ? StringId::OutsideCloseTip : StringId::OutsideKeepTip));
    connect(keep, &QPushButton::clicked, this, [this] { Q_EMIT keepWanted(notice_); });
}

OutsideBar::~OutsideBar() = default;

void OutsideBar::showWords() {
    setText(comparison_ == nullptr ? QString::fromStdString(notice_.words()) : comparison_->words());
}

void OutsideBar::compare(bool on) {
    comparison_ = on ? ImageComparison::start(*view_) : nullptr;
    if (comparison_ != nullptr) {
        connect(comparison_.get(), &ImageComparison::turned, this, &OutsideBar::showWords);
        // It must not go while it tells so.
        connect(
            comparison_.get(), &ImageComparison::left, this, [this] { compare_->setChecked(false); },
            Qt::QueuedConnection);
    } else if (on) {
        compare_->setChecked(false);
    }
    showWords();
}

void OutsideBar::imageChanged(const CDyeworksDoc& image, bool texels) {
    if (comparison_ == nullptr || &image != notice_.document)
        return;
    if (texels)
        compare_->setChecked(false);
    else
        comparison_->takeColours();
}

} // namespace dyeworks
