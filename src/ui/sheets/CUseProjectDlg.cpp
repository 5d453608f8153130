#include "ui/sheets/CUseProjectDlg.h"

#include "platform/StringId.h"
#include "platform/qt/DesktopEntries.h"
#include "ui/sheets/SheetControls.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace dyeworks {

CUseProjectDlg::CUseProjectDlg(bool notifyNextTime, QWidget* parent)
    : QDialog(parent)
    , box_(new QCheckBox(shown(StringId::UseProjectNotify)))
    , notifyNextTime_(notifyNextTime) {
    setObjectName(QStringLiteral("IDD_USE_PROJECT"));
    setWindowTitle(shown(StringId::UseProjectCaption));

    auto* icon = new QLabel;
    icon->setObjectName(QStringLiteral("IDC_USE_PROJECT_ICON"));
    const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(programIcon().pixmap(QSize(side, side), devicePixelRatioF()));
    auto* question = new QLabel(shown(StringId::UseProjectQuestion));
    question->setObjectName(QStringLiteral("IDC_USE_PROJECT_QUESTION"));
    setAccessibleDescription(question->text());
    box_->setObjectName(QStringLiteral("IDC_NOTIFY_NEXT_TIME"));
    box_->setToolTip(shown(StringId::UseProjectNotifyTip));
    box_->setChecked(notifyNextTime);

    auto* buttons = new QDialogButtonBox;
    const auto addButton = [&](StringId caption, const char* name, StringId tip, UseProjectAnswer answer) {
        QPushButton* button = buttons->addButton(shown(caption), QDialogButtonBox::AcceptRole);
        button->setObjectName(QString::fromLatin1(name));
        button->setToolTip(shown(tip));
        connect(button, &QPushButton::clicked, this, [this, answer] { finish(answer); });
        return button;
    };
    QPushButton* newProject = addButton(StringId::UseProjectNew, "IDC_USE_PROJECT_NEW",
                                        StringId::UseProjectNewTip, UseProjectAnswer::NewProject);
    newProject->setDefault(true);
    addButton(StringId::UseProjectOpen, "IDC_USE_PROJECT_OPEN", StringId::UseProjectOpenTip,
              UseProjectAnswer::OpenProject);
    QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("IDCANCEL"));
    cancel->setToolTip(shown(StringId::UseProjectCancelTip));
    connect(buttons, &QDialogButtonBox::rejected, this, &CUseProjectDlg::reject);
    newProject->setFocus();

    auto* layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setHorizontalSpacing(fontMetrics().height());
    layout->setVerticalSpacing(fontMetrics().height() / 2);
    layout->addWidget(icon, 0, 0, Qt::AlignTop);
    layout->addWidget(question, 0, 1);
    layout->addWidget(box_, 1, 1);
    layout->addWidget(buttons, 2, 0, 1, 2);
}

void CUseProjectDlg::finish(UseProjectAnswer answer) {
    notifyNextTime_ = box_->isChecked();
    done(static_cast<int>(answer));
}

void CUseProjectDlg::reject() {
    done(static_cast<int>(UseProjectAnswer::Cancel));
}

UseProjectAnswer CUseProjectDlg::ask(bool& notifyNextTime, QWidget* owner) {
    CUseProjectDlg dialog(notifyNextTime, owner);
    const int answer = dialog.exec();
    notifyNextTime = dialog.notifyNextTime();
    return static_cast<UseProjectAnswer>(answer);
}

} // namespace dyeworks
