#include "ui/StartPage.h"

#include "framework/PathText.h"
#include "framework/widgets/CommandActions.h"
#include "framework/widgets/CommandIcon.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "ui/ThumbnailButton.h"
#include "ui/sheets/SheetControls.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace dyeworks {

namespace {

constexpr int kColumns = 4;
constexpr int kCardLetters = 5;
constexpr qreal kHeadingSize = 1.25;

QLabel* heading(const QString& text) {
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * kHeadingSize);
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

StartPage::StartPage(CommandActions& actions, const std::vector<StartFile>& recent,
                     const std::vector<StartFile>& samples, QWidget* parent)
    : QScrollArea(parent)
    , pictures_(this) {
    setObjectName(QStringLiteral("startPage"));
    setAccessibleName(shown(StringId::StartPageName));
    setWhatsThis(shown(StringId::HelpStartPage));
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget;
    auto* page = new QVBoxLayout(content);
    const int margin = fontMetrics().height();
    page->setContentsMargins(margin, margin, margin, margin);
    page->setSpacing(margin / 2);
    page->addWidget(heading(shown(StringId::ApplicationTitle)));
    addCommands(*page, actions);
    addFiles(*page, shown(StringId::StartRecent), recent, &StartPage::recentChosen);
    addFiles(*page, shown(StringId::StartSamples), samples, &StartPage::sampleChosen);
    auto* again = new QCheckBox(shown(StringId::StartAtEmpty));
    again->setObjectName(QStringLiteral("startAtEmpty"));
    again->setToolTip(shown(StringId::StartAtEmptyTip));
    again->setChecked(true);
    connect(again, &QCheckBox::clicked, this, &StartPage::leftOut);
    page->addSpacing(margin / 2);
    page->addWidget(again);
    page->addStretch();
    setWidget(content);
}

QSize StartPage::sizeHint() const {
    const int frame = 2 * frameWidth();
    return widget()->sizeHint() + QSize(frame, frame);
}

void StartPage::addCommands(QVBoxLayout& page, CommandActions& actions) {
    auto* row = new QHBoxLayout;
    const auto add = [&](const QString& text, const QIcon& icon, const QString& tip) {
        auto* button = new QPushButton(icon, text);
        button->setToolTip(tip);
        row->addWidget(button);
        return button;
    };
    for (const CommandId id : {ID_TEXTURE_NEW, ID_FILE_OPEN}) {
        const QAction& command = *actions.action(id);
        QPushButton* const button = add(command.text(), command.icon(), command.toolTip());
        button->setObjectName(command.objectName());
        // Whoever opens a document with it ends this page, and the button with it.
        connect(
            button, &QPushButton::clicked, &actions, [&actions, id] { actions.run(id); },
            Qt::QueuedConnection);
        if (id == ID_TEXTURE_NEW)
            setFocusProxy(button);
    }
    QPushButton* const steps = add(shown(StringId::StartFirstSteps), actions.action(ID_HELP_INDEX)->icon(),
                                   shown(StringId::StartFirstStepsTip));
    steps->setObjectName(QStringLiteral("firstSteps"));
    connect(steps, &QPushButton::clicked, this, &StartPage::firstStepsAsked);
    row->addStretch();
    page.addLayout(row);
}

void StartPage::addFiles(QVBoxLayout& page, const QString& title, const std::vector<StartFile>& files,
                         Chosen chosen) {
    if (files.empty())
        return;
    page.addSpacing(page.spacing());
    page.addWidget(heading(title));
    auto* grid = new QGridLayout;
    grid->setSpacing(page.spacing());
    std::vector<ThumbnailButton*> cards;
    for (const StartFile& file : files) {
        ThumbnailButton* const card = makeCard(file);
        const int number = static_cast<int>(cards.size());
        grid->addWidget(card, number / kColumns, number % kColumns);
        connect(
            card, &ThumbnailButton::clicked, this, [this, file, chosen] { (this->*chosen)(file); },
            Qt::QueuedConnection);
        cards.push_back(card);
    }
    const int last = static_cast<int>(cards.size()) - 1;
    for (int i = 0; i <= last; ++i) {
        connect(cards[static_cast<std::size_t>(i)], &ThumbnailButton::walked, this,
                [cards, i, last](int key) {
                    int to = i;
                    switch (key) {
                    case Qt::Key_Left:
                        to = i - 1;
                        break;
                    case Qt::Key_Right:
                        to = i + 1;
                        break;
                    case Qt::Key_Up:
                        to = i - kColumns;
                        break;
                    case Qt::Key_Down:
                        to = i + kColumns;
                        break;
                    default:
                        to = key == Qt::Key_Home ? 0 : last;
                    }
                    if (to >= 0 && to <= last)
                        cards[static_cast<std::size_t>(to)]->setFocus(Qt::TabFocusReason);
                });
    }
    grid->setColumnStretch(kColumns, 1);
    page.addLayout(grid);
}

ThumbnailButton* StartPage::makeCard(const StartFile& file) {
    auto* card = new ThumbnailButton(this);
    card->setText(QString::fromStdString(std::string(fileNameOf(file.path))));
    card->setToolTip(QString::fromStdString(displayPath(file.path)));
    const QSize size = card->sizeFor(kCardLetters);
    card->setFixedSize(size.width() * 3 / 2, size.height());
    const QSize room = card->pictureRoom();
    const auto show = [card](const QImage& picture) {
        card->picture() = picture;
        card->update();
    };
    // The sign of a project stays; of other files it is what shows until there is a picture.
    const bool isProject = equalIgnoringCase(extensionOf(file.path), ".tpf");
    const bool isPalette = equalIgnoringCase(extensionOf(file.path), ".tlf");
    const char* const sign = isProject ? "node-project" : isPalette ? "node-palette" : "node-picture";
    const int side = std::min(room.width(), room.height());
    QImage blank(side, side, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    {
        QPainter painter(&blank);
        signIcon(QString::fromLatin1(sign))
            .paint(&painter, blank.rect().adjusted(side / 4, side / 4, -side / 4, -side / 4));
    }
    show(blank);
    if (!isProject)
        pictures_.ask(file.path, file.palette, room, show);
    return card;
}

} // namespace dyeworks
