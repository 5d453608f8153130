#pragma once

#include <QObject>

#include <cstdint>
#include <set>

namespace dyeworks {

class CommandActions;
struct ShortcutOptions;
using CommandId = std::uint32_t;

/// The keys of `actions` for the options, by the menus of the main window. A change is carried out and kept
/// at once. `actions` must outlive the use.
[[nodiscard]] ShortcutOptions shortcutOptions(CommandActions& actions);

/// Leaves keys to the field that is being written in which would otherwise change the image or a palette:
/// those of the commands in the menus that do so.
class EntryFieldKeys : public QObject {
public:
    /// Watches all fields of the program while it lives. `actions` must outlive it.
    explicit EntryFieldKeys(CommandActions& actions);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CommandActions& actions_;
    std::set<CommandId> commands_;
};

} // namespace dyeworks
