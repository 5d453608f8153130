#pragma once

#include "framework/Shortcuts.h"
#include "framework/widgets/PropertySheet.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace dyeworks {

class KeyField;

/// Commands that stand in one menu.
struct ShortcutGroup {
    struct Row {
        CommandId command = 0;
        std::string name; ///< As people read it, with the submenu before it.
    };
    std::string title;
    std::vector<Row> rows;
};

/// What the options need to know about keys, and whom they tell.
struct ShortcutOptions {
    std::vector<ShortcutGroup> groups;
    Shortcuts shortcuts;
    std::function<void(const Shortcuts&)> changed;
};

/// A page of all commands by menus with their keys: keys are pressed to be given to the chosen command, and
/// whom they belong to is told before they are taken from it.
class CShortcutsPage : public PropertyPage {
    Q_OBJECT

public:
    explicit CShortcutsPage(const std::vector<ShortcutGroup>& groups);

    /// As they were set or last taken over.
    [[nodiscard]] const Shortcuts& shortcuts() const noexcept { return shortcuts_; }
    /// Shown when the sheet opens.
    void setShortcuts(const Shortcuts& shortcuts) { shortcuts_ = shortcuts; }

    void showValues() override;
    [[nodiscard]] bool takeOver() override;

private:
    enum class Way { InPlace, Beside };

    void fill(const std::vector<ShortcutGroup>& groups);
    QPushButton* button(const char* name, StringId caption, StringId tip, std::function<void()> step);
    [[nodiscard]] std::optional<CommandId> chosen() const;
    [[nodiscard]] QString nameOf(CommandId command) const;
    void show(const Shortcuts& shortcuts);
    void showFitting(const QString& typed);
    void showPreset();
    void tellAboutKeys();
    void give(Way way);
    void importFile();
    void exportFile();

    Shortcuts shortcuts_;
    Shortcuts edited_; ///< What the page shows.
    std::map<CommandId, QTreeWidgetItem*> items_;
    QLineEdit* find_;
    QComboBox* preset_;
    QTreeWidget* list_;
    KeyField* field_;
    QLabel* told_;
    std::vector<QPushButton*> ofCommand_; ///< Remove, reset.
    std::vector<QPushButton*> ofKeys_;    ///< Set, add.
};

} // namespace dyeworks
