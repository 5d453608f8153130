#include "ui/sheets/CShortcutsPage.h"

#include "framework/CommandTable.h"
#include "framework/KeyText.h"
#include "framework/SearchText.h"
#include "framework/ShortcutFile.h"
#include "platform/AskForFile.h"
#include "platform/FileMessages.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/sheets/KeyField.h"
#include "ui/sheets/SheetControls.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <span>
#include <utility>

namespace dyeworks {

namespace {

enum ShortcutColumn { kName, kKeys, kChanged };
constexpr int kCommandRole = Qt::UserRole;

// In letters and lines of the font.
constexpr int kNameWidth = 42;
constexpr int kKeysWidth = 26;
constexpr int kLeastListHeight = 5;

QLabel* labelFor(StringId caption, QWidget* control) {
    auto* label = new QLabel(shown(caption));
    label->setBuddy(control);
    return label;
}

/// Without the sign of its mnemonic and the colon.
QString nameFrom(StringId caption) {
    return shown(caption).remove(u'&').remove(u':');
}

QString listed(const Shortcuts::Keys& keys) {
    QStringList all;
    for (const std::string& each : keys)
        all.append(nativeKeys(each));
    return all.join(QStringLiteral(", "));
}

bool fits(const QString& text, const SearchText& typed) {
    const TextFit fit = fitOf(searchText(text.toStdString()), typed);
    return fit != TextFit::None && fit != TextFit::Scattered;
}

} // namespace

CShortcutsPage::CShortcutsPage(const std::vector<ShortcutGroup>& groups)
    : find_(new QLineEdit)
    , preset_(new QComboBox)
    , list_(new QTreeWidget)
    , field_(new KeyField)
    , told_(new QLabel) {
    setObjectName(QStringLiteral("IDD_PROPPAGE_SHORTCUTS"));
    setWindowTitle(shown(StringId::ShortcutsTab));

    const auto name = [](QWidget* control, const char* object, StringId caption, StringId tip) {
        control->setObjectName(QString::fromLatin1(object));
        control->setAccessibleName(nameFrom(caption));
        control->setToolTip(shown(tip));
        control->setWhatsThis(shown(tip));
    };
    name(find_, "IDC_SHORTCUT_FIND", StringId::ShortcutsFind, StringId::ShortcutsFindTip);
    addClearButton(*find_);
    connect(find_, &QLineEdit::textChanged, this, &CShortcutsPage::showFitting);
    name(preset_, "IDC_SHORTCUT_PRESET", StringId::ShortcutsPreset, StringId::ShortcutsPresetTip);
    for (const ShortcutPreset& preset : shortcutPresets())
        preset_->addItem(shown(preset.name));
    preset_->addItem(shown(StringId::ShortcutsPresetOther));
    connect(preset_, &QComboBox::activated, this, [this](int index) {
        if (const auto presets = shortcutPresets(); static_cast<std::size_t>(index) < presets.size())
            show(presets[static_cast<std::size_t>(index)].shortcuts());
    });

    list_->setObjectName(QStringLiteral("IDC_SHORTCUT_LIST"));
    list_->setAccessibleName(shown(StringId::ShortcutsList));
    list_->setWhatsThis(shown(StringId::ShortcutsList));
    list_->setHeaderLabels({shown(StringId::ShortcutsColumnCommand), shown(StringId::ShortcutsColumnKeys),
                            shown(StringId::ShortcutsColumnChanged)});
    list_->setUniformRowHeights(true);
    list_->setMinimumHeight(kLeastListHeight * fontMetrics().height());
    list_->setColumnWidth(kName, kNameWidth * fontMetrics().averageCharWidth());
    list_->setColumnWidth(kKeys, kKeysWidth * fontMetrics().averageCharWidth());
    list_->setMinimumWidth((kNameWidth + kKeysWidth + 16) * fontMetrics().averageCharWidth());
    connect(list_, &QTreeWidget::currentItemChanged, this, &CShortcutsPage::tellAboutKeys);
    connect(list_, &QTreeWidget::itemActivated, field_, [this] { field_->setFocus(); });
    name(field_, "IDC_SHORTCUT_KEYS", StringId::ShortcutsNewKeys, StringId::ShortcutsNewKeysTip);
    connect(field_, &KeyField::keysChanged, this, &CShortcutsPage::tellAboutKeys);
    connect(field_, &KeyField::confirmed, this, [this] { give(Way::InPlace); });
    connect(field_, &KeyField::left, this, [this] { list_->setFocus(); });
    told_->setObjectName(QStringLiteral("IDC_SHORTCUT_TOLD"));
    told_->setWordWrap(true);
    told_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    told_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto* above = new QHBoxLayout;
    above->addWidget(labelFor(StringId::ShortcutsFind, find_));
    above->addWidget(find_, 1);
    above->addSpacing(fontMetrics().height());
    above->addWidget(labelFor(StringId::ShortcutsPreset, preset_));
    above->addWidget(preset_);
    auto* keys = new QHBoxLayout;
    keys->addWidget(labelFor(StringId::ShortcutsNewKeys, field_));
    keys->addWidget(field_, 1);
    ofKeys_ = {button("IDC_SHORTCUT_SET", StringId::ShortcutsSet, StringId::ShortcutsSetTip,
                      [this] { give(Way::InPlace); }),
               button("IDC_SHORTCUT_ADD", StringId::ShortcutsAdd, StringId::ShortcutsAddTip,
                      [this] { give(Way::Beside); })};
    ofCommand_ = {button("IDC_SHORTCUT_REMOVE", StringId::ShortcutsRemove, StringId::ShortcutsRemoveTip,
                         [this] {
                             Shortcuts now = edited_;
                             now.set(*chosen(), {});
                             show(now);
                         }),
                  button("IDC_SHORTCUT_RESET", StringId::ShortcutsReset, StringId::ShortcutsResetTip, [this] {
                      Shortcuts now = edited_;
                      now.reset(*chosen());
                      show(now);
                  })};
    for (const auto* buttons : {&ofKeys_, &ofCommand_}) {
        for (QPushButton* each : *buttons)
            keys->addWidget(each);
    }
    auto* below = new QHBoxLayout;
    below->addWidget(button("IDC_SHORTCUT_RESET_ALL", StringId::ShortcutsResetAll,
                            StringId::ShortcutsResetAllTip, [this] { show({}); }));
    below->addStretch();
    below->addWidget(button("IDC_SHORTCUT_IMPORT", StringId::ShortcutsImport, StringId::ShortcutsImportTip,
                            [this] { importFile(); }));
    below->addWidget(button("IDC_SHORTCUT_EXPORT", StringId::ShortcutsExport, StringId::ShortcutsExportTip,
                            [this] { exportFile(); }));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(above);
    layout->addWidget(list_, 1);
    layout->addLayout(keys);
    layout->addWidget(told_);
    layout->addLayout(below);
    // The user may give the list more room.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusProxy(find_);
    fill(groups);
    showValues();
}

QPushButton* CShortcutsPage::button(const char* name, StringId caption, StringId tip,
                                    std::function<void()> step) {
    auto* made = new QPushButton(shown(caption));
    made->setObjectName(QString::fromLatin1(name));
    made->setToolTip(shown(tip));
    made->setWhatsThis(shown(tip));
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, [step = std::move(step)] { step(); });
    return made;
}

void CShortcutsPage::fill(const std::vector<ShortcutGroup>& groups) {
    for (const ShortcutGroup& group : groups) {
        auto* const top = new QTreeWidgetItem(list_, {QString::fromStdString(group.title)});
        top->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        for (const int column : {kKeys, kChanged})
            top->setData(column, Qt::AccessibleTextRole, top->text(kName));
        for (const ShortcutGroup::Row& row : group.rows) {
            auto* const item = new QTreeWidgetItem(top, {QString::fromStdString(row.name)});
            item->setData(kName, kCommandRole, row.command);
            item->setToolTip(kName, QString::fromStdString(statusText(*findCommand(row.command))));
            items_[row.command] = item;
        }
    }
    list_->expandAll();
    if (!items_.empty())
        list_->setCurrentItem(list_->topLevelItem(0)->child(0));
}

void CShortcutsPage::showValues() {
    find_->clear();
    field_->setKeys({});
    show(shortcuts_);
}

bool CShortcutsPage::takeOver() {
    shortcuts_ = edited_;
    return true;
}

std::optional<CommandId> CShortcutsPage::chosen() const {
    const QTreeWidgetItem* const item = list_->currentItem();
    if (item == nullptr || item->parent() == nullptr || item->isHidden())
        return std::nullopt;
    return item->data(kName, kCommandRole).toUInt();
}

QString CShortcutsPage::nameOf(CommandId command) const {
    const auto item = items_.find(command);
    return item != items_.end() ? item->second->text(kName)
                                : QString::fromStdString(withoutMnemonic(menuText(*findCommand(command))));
}

void CShortcutsPage::show(const Shortcuts& shortcuts) {
    edited_ = shortcuts;
    for (const auto& [command, item] : items_) {
        const bool changed = !edited_.isAsGiven(command);
        item->setText(kKeys, listed(edited_.of(command)));
        item->setText(kChanged, changed ? shown(StringId::ShortcutsChanged) : QString());
        // An empty cell would be read as nothing.
        item->setData(kKeys, Qt::AccessibleTextRole,
                      item->text(kKeys).isEmpty() ? shown(StringId::ShortcutsNoKeys) : QVariant());
        item->setData(kChanged, Qt::AccessibleTextRole,
                      changed ? QVariant() : shown(StringId::ShortcutsNotChanged));
        QFont font = list_->font();
        font.setBold(changed);
        for (const int column : {kName, kKeys, kChanged})
            item->setFont(column, font);
    }
    showPreset();
    tellAboutKeys();
}

void CShortcutsPage::showPreset() {
    const auto presets = shortcutPresets();
    std::size_t index = 0;
    while (index < presets.size() && presets[index].shortcuts() != edited_)
        ++index;
    preset_->setCurrentIndex(static_cast<int>(index));
}

void CShortcutsPage::showFitting(const QString& typed) {
    const SearchText wanted = searchText(typed.toStdString());
    QTreeWidgetItem* first = nullptr;
    for (int i = 0; i < list_->topLevelItemCount(); ++i) {
        QTreeWidgetItem& group = *list_->topLevelItem(i);
        const bool wholeGroup = typed.isEmpty() || fits(group.text(kName), wanted);
        bool any = false;
        for (int row = 0; row < group.childCount(); ++row) {
            QTreeWidgetItem& item = *group.child(row);
            const CommandRow& command = *findCommand(item.data(kName, kCommandRole).toUInt());
            const bool shows = wholeGroup || fits(item.text(kName), wanted) ||
                               fits(QString::fromUtf8(command.menuText).remove(u'&'), wanted) ||
                               item.text(kKeys).contains(typed, Qt::CaseInsensitive);
            item.setHidden(!shows);
            any = any || shows;
            if (shows && first == nullptr)
                first = &item;
        }
        group.setHidden(!any);
    }
    if (!chosen() && first != nullptr)
        list_->setCurrentItem(first);
    if (list_->currentItem() != nullptr)
        list_->scrollToItem(list_->currentItem());
    tellAboutKeys();
}

/// Whom the pressed keys belong to, and what cannot be done with them.
void CShortcutsPage::tellAboutKeys() {
    const std::optional<CommandId> command = chosen();
    const std::string& keys = field_->keys();
    const std::string pressed = nativeKeys(keys).toStdString();
    const std::optional<StringId> reserved = keys.empty() ? std::nullopt : whyReserved(keys);
    QStringList lines;
    if (reserved) {
        lines.append(shown(*reserved, {pressed}));
    } else if (!keys.empty() && command) {
        const Shortcuts::Keys own = edited_.of(*command);
        const bool isOwn = std::ranges::find(own, keys) != own.end();
        if (isOwn)
            lines.append(shown(StringId::ShortcutsHasThem, {pressed, nameOf(*command).toStdString()}));
        for (const CommandId other : edited_.othersWith(keys, *command))
            lines.append(shown(StringId::ShortcutsTakenFrom, {pressed, nameOf(other).toStdString()}));
        if (lines.isEmpty())
            lines.append(shown(useInImages(keys).value_or(StringId::ShortcutsFree), {pressed}));
    }
    told_->setText(lines.join(u'\n'));
    field_->setAccessibleDescription(told_->text());
    for (QPushButton* each : ofKeys_)
        each->setEnabled(command && !keys.empty() && !reserved);
    for (QPushButton* each : ofCommand_)
        each->setEnabled(command.has_value());
    if (command) {
        ofCommand_.front()->setEnabled(!edited_.of(*command).empty());
        ofCommand_.back()->setEnabled(!edited_.isAsGiven(*command));
    }
}

void CShortcutsPage::give(Way way) {
    if (!ofKeys_.front()->isEnabled())
        return;
    const CommandId command = *chosen();
    Shortcuts::Keys keys = way == Way::Beside ? edited_.of(command) : Shortcuts::Keys();
    keys.push_back(field_->keys());
    Shortcuts now = edited_;
    now.set(command, keys);
    field_->setKeys({});
    show(now);
}

void CShortcutsPage::importFile() {
    const auto path = askForFileToOpen(
        {.title = nameFrom(StringId::ShortcutsImport).remove(QStringLiteral("...")).toStdString(),
         .filter = text(StringId::ShortcutsFilter),
         .fileMustExist = true});
    if (!path)
        return;
    const auto file = platform().files().openForReading(*path);
    if (!file) {
        tellNotOpened(*path, file.error());
        return;
    }
    // One byte more tells a file that is too large.
    std::vector<std::byte> bytes(kLargestShortcutFile + 1);
    bytes.resize(file.value()->read(bytes));
    const Result<ReadShortcuts, ShortcutFileError> read = parseShortcutFile(bytes);
    if (!read) {
        applicationMessage(
            text(StringId::ShortcutFileNotTaken, {displayPath(*path), describe(read.error())}));
        return;
    }
    show(read.value().shortcuts);
    if (read.value().unknown > 0)
        applicationMessage(text(StringId::ShortcutsUnknown, {localNumeral(read.value().unknown)}),
                           MessageIcon::Information);
}

void CShortcutsPage::exportFile() {
    const auto path = askForFileToSave(
        {.title = nameFrom(StringId::ShortcutsExport).remove(QStringLiteral("...")).toStdString(),
         .filter = text(StringId::ShortcutsFilter),
         .defaultExtension = "shortcuts",
         .initialName = "dyeworks"});
    if (!path)
        return;
    const std::string file = shortcutFile(edited_);
    if (const auto error = platform().files().write(*path, std::as_bytes(std::span(file))))
        tellNotSaved(*path, *error);
}

} // namespace dyeworks
