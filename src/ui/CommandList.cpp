#include "ui/CommandList.h"

#include "framework/CommandRouter.h"
#include "framework/CommandTable.h"
#include "framework/CommandUsage.h"
#include "framework/KanjiReading.h"
#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/CommandActions.h"
#include "framework/widgets/MdiFrame.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <QAction>
#include <QMdiArea>

#include <algorithm>
#include <set>

namespace dyeworks {

namespace {

/// A text of the tables, in the user's language and in English.
struct Wording {
    std::string shown;
    std::string english;
};

Wording wording(const char* context, const char* english) {
    return {withoutMnemonic(platform().texts().translate(context, english)), withoutMnemonic(english)};
}

/// What is shown, how it is read, what it is in English; each once.
std::vector<std::string> waysToSay(const Wording& words) {
    std::vector<std::string> ways{words.shown};
    if (words.shown == words.english)
        return ways;
    if (std::optional<std::string> reading = kanaReading(words.shown); reading && *reading != words.shown)
        ways.push_back(std::move(*reading));
    ways.push_back(words.english);
    return ways;
}

/// "sky.tmf" of "1 sky.tmf": entries of lists are numbered where they have keys of their own.
std::string withoutNumber(std::string entry) {
    const std::size_t digits = entry.find_first_not_of("0123456789");
    if (digits != std::string::npos && digits > 0 && entry[digits] == ' ')
        entry.erase(0, digits + 1);
    return entry;
}

class Lister {
public:
    Lister(const CommandRouter& router, const CommandActions& actions, const CommandUsage& usage,
           const std::function<std::string(const CommandUi&)>& why)
        : router_(router)
        , actions_(actions)
        , usage_(usage)
        , why_(why) {}

    void addMenu(std::span<const MenuItem> items, const Wording& place) {
        for (const MenuItem& item : items) {
            const CommandRow* const row = findCommand(item.id);
            if (item.title != nullptr) {
                const Wording title = wording(kMenuContext, item.title);
                addMenu(item.items,
                        {placeInside(place.shown, title.shown), placeInside(place.english, title.english)});
            } else if (item.id == kWindowList.id) {
                windows_ = place;
            } else if (row != nullptr && told_.insert(row->id).second) {
                for (CommandId id = row->id; id <= std::max(row->id, row->last); ++id)
                    addCommand(*row, id, place);
            }
        }
    }

    void addWindow(ChildFrame& window) {
        ListedCommand& listed = list_.emplace_back();
        listed.window = &window;
        const std::string title = window.windowTitle().toStdString();
        finish(listed, {title, title}, windows_);
    }

    [[nodiscard]] std::vector<ListedCommand> take() { return std::move(list_); }

private:
    void addCommand(const CommandRow& row, CommandId id, const Wording& place) {
        const CommandUi state = router_.state(id);
        if (!state.visible)
            return;
        ListedCommand& listed = list_.emplace_back();
        listed.id = id;
        listed.keys = actions_.action(id)->shortcut().toString(QKeySequence::NativeText).toStdString();
        listed.reason = why_(state);
        listed.search.enabled = state.enabled;
        listed.search.use = usage_.rank(id);
        Wording name = wording(kCommandContext, row.menuText);
        if (state.text)
            name.shown = withoutMnemonic(*state.text);
        if (state.text && row.last != 0)
            name = {withoutNumber(name.shown), withoutNumber(name.shown)};
        listed.search.tips = {toolTipText(row)};
        // The line break parts what the status line shows from the tip.
        const std::string prompt = row.prompt;
        listed.search.tips.push_back(prompt.substr(prompt.find('\n') + 1));
        finish(listed, name, place);
    }

    static void finish(ListedCommand& listed, const Wording& name, const Wording& place) {
        listed.name = name.shown;
        listed.place = place.shown;
        listed.search.names = waysToSay(name);
        listed.search.places =
            waysToSay({place.shown + " " + name.shown, place.english + " " + name.english});
    }

    const CommandRouter& router_;
    const CommandActions& actions_;
    const CommandUsage& usage_;
    const std::function<std::string(const CommandUi&)>& why_;
    std::vector<ListedCommand> list_;
    std::set<CommandId> told_;
    Wording windows_; ///< The menu that lists them.
};

} // namespace

std::vector<ListedCommand> listCommands(std::span<const std::span<const MenuItem>> bars,
                                        const CommandRouter& router, const CommandActions& actions,
                                        const MdiFrame& frame, const CommandUsage& usage,
                                        const std::function<std::string(const CommandUi&)>& why) {
    Lister lister(router, actions, usage, why);
    for (const std::span<const MenuItem> bar : bars)
        lister.addMenu(bar, {});
    for (QMdiSubWindow* window : frame.area().subWindowList(QMdiArea::CreationOrder)) {
        auto* const child = qobject_cast<ChildFrame*>(window);
        if (child != nullptr && child->document() != nullptr)
            lister.addWindow(*child);
    }
    return lister.take();
}

std::string placeInside(const std::string& outer, const std::string& inner) {
    return outer.empty() ? inner : text(StringId::CommandPlace, {outer, inner});
}

std::string spoken(const ListedCommand& command) {
    std::string all = command.name;
    for (const std::string& part : {command.place, command.keys}) {
        if (!part.empty())
            all += ", " + part;
    }
    return command.reason.empty() ? all : all + ", " + text(StringId::CommandDisabled, {command.reason});
}

} // namespace dyeworks
