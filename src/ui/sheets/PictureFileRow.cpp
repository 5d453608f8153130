#include "ui/sheets/PictureFileRow.h"

#include "platform/AskForFile.h"
#include "platform/Platform.h"
#include "platform/ProgramPath.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "project/CKeyValueStore.h"
#include "project/PathHelpers.h"
#include "ui/sheets/SheetControls.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr int kListLetters = 24;

QString shownName(const std::string& name) {
    return QString::fromStdString(isRooted(name) ? displayPath(name) : name);
}

} // namespace

PictureFileRow::PictureFileRow(const Kind& kind, std::string directories, const std::string& name, Make make)
    : QGroupBox(shown(kind.title))
    , kind_(kind)
    , directories_(std::move(directories))
    , make_(std::move(make))
    , list_(new QComboBox) {
    list_->setObjectName(QString::fromLatin1(kind.listId));
    list_->setEditable(true);
    list_->setInsertPolicy(QComboBox::NoInsert);
    // A new file's name may begin like another's.
    list_->setCompleter(nullptr);
    list_->setMinimumContentsLength(kListLetters);
    list_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list_->setAccessibleName(shown(kind.title));
    list_->setToolTip(shown(kind.name));
    auto* browseButton = new QPushButton(QStringLiteral("..."));
    browseButton->setObjectName(QString::fromLatin1(kind.browseId));
    browseButton->setToolTip(shown(kind.browseTip));
    browseButton->setAccessibleName(shown(kind.browseTip));
    browseButton->setAutoDefault(false);
    browseButton->setFixedWidth(3 * fontMetrics().height());
    auto* newButton = new QPushButton(shown(StringId::PictureNewFile));
    newButton->setObjectName(QString::fromLatin1(kind.newId));
    newButton->setToolTip(shown(kind.newTip));
    newButton->setAccessibleName(shown(kind.newTip));
    newButton->setAutoDefault(false);

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(list_, 1);
    layout->addWidget(browseButton);
    layout->addWidget(new QLabel(QStringLiteral("<-")));
    layout->addWidget(newButton);

    fillList();
    setName(name);
    connect(list_, &QComboBox::editTextChanged, this, &PictureFileRow::changed);
    connect(browseButton, &QPushButton::clicked, this, &PictureFileRow::browse);
    connect(newButton, &QPushButton::clicked, this, &PictureFileRow::makeNew);
}

std::string PictureFileRow::name() const {
    std::string typed = list_->currentText().toStdString();
    if (isRooted(typed))
        return platform().files().fromHostPath(typed);
    PathSwapSeparators(typed);
    return typed;
}

void PictureFileRow::setName(const std::string& name) {
    list_->setEditText(shownName(name));
}

std::string PictureFileRow::path() const {
    std::string found;
    static_cast<void>(PathSearch(found, directories_, name(), true));
    return found;
}

void PictureFileRow::takeFocus() {
    list_->setFocus();
    list_->lineEdit()->selectAll();
}

/// The text stays.
void PictureFileRow::fillList() {
    const QString kept = list_->currentText();
    {
        const QSignalBlocker quiet(list_);
        list_->clear();
        QStringList names;
        std::vector<std::string> folders;
        SplitFields(directories_, ";", folders);
        for (const std::string& folder : folders) {
            for (const FileEntry& entry : platform().files().enumerate(folder + "\\*" + kind_.extension)) {
                // The name of a file that looks like a drive would be looked for on that.
                if (!entry.directory)
                    names << shownName(isRooted(entry.name) ? folder + "\\" + entry.name : entry.name);
            }
        }
        names.removeDuplicates();
        names.sort(Qt::CaseInsensitive);
        list_->addItems(names);
        list_->setEditText(kept);
    }
}

void PictureFileRow::browse() {
    const std::string pattern = firstFolder(directories_) + "\\*" + kind_.extension;
    if (const auto chosen = askForFileToOpen(
            {.filter = kind_.filter, .defaultExtension = kind_.extension, .initialName = pattern}))
        setName(fileNameIn(directories_, *chosen));
}

void PictureFileRow::makeNew() {
    std::string name = this->name();
    if (name.empty()) {
        applicationMessage(text(StringId::NewFileNameMissing), MessageIcon::Stop);
        takeFocus();
        return;
    }
    if (!endsIgnoringCase(name, kind_.extension))
        name += kind_.extension;
    std::string target;
    const bool placed = PathSearch(target, directories_, name, false);
    if (!placed && !isRooted(name)) {
        applicationMessage(text(StringId::FileIsNotFound, {displayPath(directories_)}), MessageIcon::Stop);
        takeFocus();
        return;
    }
    if (!placed || platform().files().exists(target)) {
        applicationMessage(text(StringId::FileNameExists), MessageIcon::Stop);
        takeFocus();
        return;
    }
    if (!make_(target))
        return;
    setName(fileNameIn(directories_, target));
    fillList();
    Q_EMIT changed();
}

} // namespace dyeworks
