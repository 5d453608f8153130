#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

/// Requests to open files, from one instance of the program to another one of the same user. They travel
/// through a local socket beside a lock file; whoever holds the lock receives. The right to come to the front
/// that the desktop gave the sender (its activation token) travels along.
class OpenRequests {
public:
    using Paths = std::vector<std::string>;
    using Receiver = std::function<void(const Paths&)>;

    /// `address` is the host path of the socket, in a folder that only the user can enter.
    explicit OpenRequests(QString address);

    /// Hands the paths to the receiving instance. False when there is none or it does not answer within a
    /// few seconds.
    [[nodiscard]] bool send(const Paths& paths) const;

    /// Becomes the receiving instance. `receiver` is called from the event loop, once per request. False
    /// when another instance is the receiving one, or the folder cannot be used.
    bool listen(Receiver receiver);

    /// Where the instances of this user meet that keep their settings in this file; empty when the user has
    /// no folder for it.
    [[nodiscard]] static QString userAddress(const QString& settingsFile);

private:
    void accept();
    void read(QLocalSocket& connection);

    QString address_;
    QLockFile lock_;
    Receiver receiver_;
    QLocalServer server_;
};

} // namespace dyeworks
