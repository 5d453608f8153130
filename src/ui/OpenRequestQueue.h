#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

/// Files that another start of the program has handed to this one. They wait for a moment when files can be
/// opened: until the program is up, and while a dialog waits for an answer.
class OpenRequestQueue : public QObject {
    Q_OBJECT

public:
    using Paths = std::vector<std::string>;
    using Open = std::function<void(const Paths&)>;

    /// `open` is called from the event loop, once for each request, in their order.
    explicit OpenRequestQueue(Open open);

    void add(Paths paths);
    /// Whether some have not been opened yet.
    [[nodiscard]] bool anyWaiting() const noexcept { return !waiting_.empty() || opening_ > 0; }
    /// The program is up.
    void start();

private:
    void openWaiting();

    Open open_;
    std::deque<Paths> waiting_;
    int opening_ = 0; ///< That are about to be opened.
    bool started_ = false;
};

} // namespace dyeworks
