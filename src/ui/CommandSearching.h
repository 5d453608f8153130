#pragma once

#include "framework/CommandUsage.h"
#include "framework/widgets/MdiFrame.h"
#include "ui/CommandList.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace dyeworks {

class CommandSearchBox;

/// The command that finds commands by their names. One that is chosen runs as from its menu, once the keys
/// are back where they were.
class CommandSearching : public QObject, public CommandTarget {
    Q_OBJECT

public:
    /// All must outlive this. `projectIsOpen` is asked whenever the search begins.
    CommandSearching(MdiFrame& frame, CommandActions& actions, CommandRouter& router,
                     std::function<bool()> projectIsOpen);
    ~CommandSearching() override;

    /// All that can be found now, with why it cannot be used.
    [[nodiscard]] std::vector<ListedCommand> commands() const;

private:
    void OnSearch();
    void run(const ListedCommand& command);
    void giveKeysBack();
    /// Runs what waits for the keys, if anything does.
    void runWaiting();

    MdiFrame& frame_;
    CommandActions& actions_;
    CommandRouter& router_;
    std::function<bool()> projectIsOpen_;
    CommandUsage usage_;
    CommandSearchBox* box_ = nullptr; ///< The frame's, made when it is needed first.
    QPointer<QWidget> before_;        ///< Had the keys.
    std::function<void()> waiting_;
    QTimer patience_;
};

} // namespace dyeworks
