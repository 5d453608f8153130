#include "ui/CProjectBar.h"

#include "framework/CommandIds.h"
#include "framework/widgets/CommandActions.h"
#include "platform/StringId.h"
#include "platform/Text.h"
#include "project/CTPFDocument.h"
#include "ui/CurrentProject.h"
#include "ui/sheets/SheetControls.h"

#include <QAction>
#include <QComboBox>
#include <QHelpEvent>
#include <QLayout>
#include <QSignalBlocker>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <vector>

namespace dyeworks {

namespace {

constexpr int kListLetters = 16; // That the list has room for.
constexpr int kButtonLetters = 30;
constexpr qsizetype kTipLetters = 127;

std::vector<std::string> picturesOf(const CTPFDocument* project) {
    return project == nullptr ? std::vector<std::string>() : project->pictureNames();
}

} // namespace

CProjectBar::CProjectBar(CurrentProject& project, const CommandActions& actions)
    : QToolBar(shown(StringId::BarProject))
    , project_(project)
    , pictures_(new QComboBox)
    , picture_(new QToolButton) {
    setObjectName(QStringLiteral("ID_VIEW_PROJECTBAR"));
    setAllowedAreas(Qt::TopToolBarArea | Qt::BottomToolBarArea);
    setWhatsThis(shown(StringId::HelpProjectBar));
    layout()->setSpacing(fontMetrics().averageCharWidth());

    pictures_->setObjectName(QStringLiteral("IDC_PICTURE_LIST"));
    pictures_->setAccessibleName(shown(StringId::ProjectPictures));
    pictures_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    pictures_->setMinimumContentsLength(kListLetters);
    pictures_->installEventFilter(this);
    connect(pictures_, &QComboBox::currentIndexChanged, this, &CProjectBar::updatePictureButton);
    addWidget(pictures_);

    addCommandButton(actions.action(ID_PICTURE_ADD), QStringLiteral("ID_PICTURE_ADD"),
                     shown(StringId::ProjectBarAdd));
    addCommandButton(actions.action(ID_PICTURE_CHANGE), QStringLiteral("ID_PICTURE_CHANGE"),
                     shown(StringId::ProjectBarChange));
    addCommandButton(actions.action(ID_PICTURE_REMOVE), QStringLiteral("ID_PICTURE_REMOVE"),
                     shown(StringId::ProjectBarRemove));

    picture_->setObjectName(QStringLiteral("IDC_PICTURE_BUTTON"));
    picture_->setFocusPolicy(Qt::StrongFocus);
    picture_->setFixedWidth(kButtonLetters * fontMetrics().averageCharWidth());
    picture_->installEventFilter(this);
    connect(picture_, &QToolButton::clicked, this, &CProjectBar::openPicture);
    addButton(*picture_);
    Refresh();
}

void CProjectBar::addCommandButton(QAction* command, const QString& name, const QString& text) {
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(text);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolTip(command->toolTip());
    button->setStatusTip(command->statusTip());
    button->setWhatsThis(command->whatsThis());
    const auto follow = [button, command] { button->setEnabled(command->isEnabled()); };
    follow();
    connect(command, &QAction::changed, button, follow);
    connect(button, &QToolButton::clicked, command, &QAction::trigger);
    addButton(*button);
}

void CProjectBar::addButton(QToolButton& button) {
    addWidget(&button);
    // In a bar, buttons of words alone would look like mere words.
    button.setAutoRaise(false);
}

void CProjectBar::Refresh() {
    const std::vector<std::string> names = picturesOf(project_.document());
    {
        const QSignalBlocker quiet(pictures_);
        pictures_->clear();
        for (const std::string& name : names)
            pictures_->addItem(QString::fromStdString(name));
        if (names.empty())
            pictures_->addItem(shown(StringId::NoPicture));
        pictures_->setCurrentIndex(pictures_->count() - 1);
        pictures_->setEnabled(!names.empty());
    }
    updatePictureButton();
}

void CProjectBar::SelectPicture(const std::string& name) {
    const int index = pictures_->findText(QString::fromStdString(name), Qt::MatchExactly);
    if (index < 0)
        return;
    {
        const QSignalBlocker quiet(pictures_);
        pictures_->setCurrentIndex(index);
    }
    updatePictureButton();
}

void CProjectBar::updatePictureButton() {
    const CTPFDocument* const project = project_.document();
    const std::string chosen = pictures_->currentText().toStdString();
    PictureEntry entry;
    const bool known = project != nullptr && project->GetPicture(chosen, entry);
    project_.setPicture(known ? chosen : "");
    const QString text =
        known ? QStringLiteral("%1 + %2 (%3)")
                    .arg(QString::fromStdString(entry.tmfFile), QString::fromStdString(entry.tlfFile),
                         QString::number(entry.paletteNo))
              : shown(StringId::NoPicture);
    const int room = picture_->width() - 2 * fontMetrics().averageCharWidth();
    // An ampersand of the name is no mnemonic.
    picture_->setText(fontMetrics()
                          .elidedText(text, Qt::ElideMiddle, room)
                          .replace(QLatin1Char('&'), QStringLiteral("&&")));
    picture_->setAccessibleName(text);
    picture_->setAccessibleDescription(shown(StringId::OpenChosenPicture));
    picture_->setEnabled(known);
}

void CProjectBar::openPicture() {
    // By value: opening may choose another picture.
    const std::string chosen = project_.picture();
    if (CTPFDocument* project = project_.document(); project != nullptr && !chosen.empty())
        project->OpenPicture(chosen);
}

bool CProjectBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QToolBar::eventFilter(watched, event);
    const CTPFDocument* project = project_.document();
    const QString tip = project == nullptr ? shown(StringId::ProjectNotOpenYet)
                                           : QString::fromStdString(project->title()).left(kTipLetters);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, static_cast<QWidget*>(watched));
    return true;
}

} // namespace dyeworks
