#include "framework/CommandTable.h"
#include "framework/widgets/ControlHelp.h"
#include "ui/CMainFrame.h"
#include "ui/MainFrameHost.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QWhatsThis>

#include <algorithm>

namespace dyeworks {

namespace {

constexpr const char* kHelpPage = "..\\doc\\index.html";

/// "Zoom In (Ctrl++)" in bold, and what it does below.
QString commandHelp(const QAction& action) {
    return QStringLiteral("<p><b>%1</b></p><p>%2</p>")
        .arg(action.toolTip().toHtmlEscaped(), action.statusTip().toHtmlEscaped());
}

/// The innermost widget around `inner` that has something to say about itself; null when none has.
QWidget* describedAround(QWidget* inner) {
    while (inner != nullptr && helpOf(*inner).isEmpty())
        inner = inner->parentWidget();
    return inner;
}

} // namespace

void CMainFrame::describeCommands() {
    for (const CommandRow& row : commandTable()) {
        for (CommandId id = row.id; id <= std::max(row.id, row.last); ++id) {
            if (QAction* action = actions_.action(id))
                action->setWhatsThis(commandHelp(*action));
        }
    }
}

void CMainFrame::OnHelpIndex() {
    host_.ShowHelp(kHelpPage);
}

void CMainFrame::OnHelp() {
    QWidget* focus = QApplication::focusWidget();
    // A document has the focus nearly always, and who asks for help from there wants the pages.
    QWidget* described = focus == nullptr || area().isAncestorOf(focus) ? nullptr : describedAround(focus);
    if (described == nullptr)
        OnHelpIndex();
    else
        QWhatsThis::showText(focus->mapToGlobal(focus->rect().center()), helpOf(*described), focus);
}

void CMainFrame::OnContextHelp() {
    QWhatsThis::enterWhatsThisMode();
}

} // namespace dyeworks
