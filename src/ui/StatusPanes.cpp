#include "ui/StatusPanes.h"

#include "platform/StringId.h"
#include "platform/Text.h"

#include <QEvent>
#include <QLabel>
#include <QStatusBar>

#include <algorithm>

namespace dyeworks {

namespace {

struct Pane {
    const char* name;
    const char* initialText;
    int width; ///< In pixels, for the small letters of the screens that it was made for.
    /// The longest text that it has to hold whatever the letters are like: a pane that grew with its text
    /// would move its neighbours.
    const char* longest;
    StringId help;
};

constexpr std::array kPanes{
    Pane{"ID_SEPARATOR", "", 0, "", StringId::HelpMessagePane},
    Pane{"ID_INDICATOR_POSITION", "(0, 0)", 96, "(65535, 65535) 1600%", StringId::HelpPositionPane},
    Pane{"ID_INDICATOR_SIZE", "(0, 0) 4bit", 120, "(65536, 65536) 8bit", StringId::HelpSizePane},
};

} // namespace

StatusPanes::StatusPanes(QStatusBar& bar)
    : QObject(&bar)
    , bar_(bar) {
    for (std::size_t i = 0; i < kPanes.size(); ++i) {
        auto* pane = new QLabel(QString::fromLatin1(kPanes[i].initialText));
        pane->setObjectName(QString::fromLatin1(kPanes[i].name));
        pane->setTextFormat(Qt::PlainText);
        pane->setWhatsThis(QString::fromStdString(dyeworks::text(kPanes[i].help)));
        if (i == 0)
            bar.addWidget(pane, 1);
        else
            bar.addPermanentWidget(pane);
        panes_[i] = pane;
    }
    fitWidths();
    bar.installEventFilter(this);
}

void StatusPanes::setText(const std::string& text, int pane, unsigned flags) {
    QLabel& label = *panes_.at(static_cast<std::size_t>(pane));
    label.setText(QString::fromStdString(text));
    if (pane != 0)
        return;
    const bool raised = (flags & kRaised) != 0;
    label.setFrameStyle((flags & kNoBorders) != 0
                            ? int{QFrame::NoFrame}
                            : QFrame::Panel | (raised ? QFrame::Raised : QFrame::Sunken));
    label.setLayoutDirection((flags & kRightToLeft) != 0 ? Qt::RightToLeft : Qt::LeftToRight);
}

std::string StatusPanes::message() const {
    return panes_.front()->text().toStdString();
}

bool StatusPanes::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitWidths();
    return QObject::eventFilter(watched, event);
}

void StatusPanes::fitWidths() {
    for (std::size_t i = 1; i < panes_.size(); ++i) {
        QLabel& pane = *panes_[i];
        const QFontMetrics letters = bar_.fontMetrics();
        const int needed =
            letters.horizontalAdvance(QString::fromLatin1(kPanes[i].longest)) + letters.height();
        pane.setMinimumWidth(std::max(kPanes[i].width, needed));
    }
}

} // namespace dyeworks
