#include "platform/qt/OpenRequests.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QLocalSocket>
#include <QStandardPaths>

#include <utility>

namespace dyeworks {

namespace {

// The frame: this number, then a byte array that holds every path with a zero byte behind it, then one with
// the sender's activation token. The answer is one byte.
constexpr quint32 kFrameMark = 0x44594532;
constexpr char kReceived = 'R';
constexpr qint64 kLargestFrame = 4 << 20;

// Where the desktop leaves the token of whoever it starts, and where Qt looks for one to raise a window with.
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";

constexpr int kConnectMilliseconds = 1000;
constexpr int kAnswerMilliseconds = 3000;

QByteArray frameOf(const OpenRequests::Paths& paths) {
    QByteArray body;
    for (const std::string& path : paths)
        body += QByteArray::fromStdString(path) + '\0';
    QByteArray frame;
    QDataStream stream(&frame, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << kFrameMark << body << qgetenv(kTokenVariable);
    return frame;
}

OpenRequests::Paths pathsOf(const QByteArray& body) {
    OpenRequests::Paths paths;
    for (qsizetype start = 0, end = 0; (end = body.indexOf('\0', start)) >= 0; start = end + 1)
        paths.push_back(body.mid(start, end - start).toStdString());
    return paths;
}

} // namespace

OpenRequests::OpenRequests(QString address)
    : address_(std::move(address))
    , lock_(address_ + QStringLiteral(".lock")) {
    // The lock of a process that no longer runs is stale; age alone says nothing.
    lock_.setStaleLockTime(0);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { accept(); });
}

QString OpenRequests::userAddress(const QString& settingsFile) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        return {};
    // A short name: that of a socket may not have many characters.
    constexpr qsizetype kNameBytes = 8;
    const QByteArray name = QCryptographicHash::hash(settingsFile.toUtf8(), QCryptographicHash::Sha1);
    return folder + QStringLiteral("/orrery-dyeworks-") + QString::fromLatin1(name.first(kNameBytes).toHex());
}

bool OpenRequests::send(const Paths& paths) const {
    if (address_.isEmpty())
        return false;
    QLocalSocket socket;
    socket.connectToServer(address_);
    if (!socket.waitForConnected(kConnectMilliseconds))
        return false;
    socket.write(frameOf(paths));
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(kAnswerMilliseconds))
            return false;
    }
    char answer = 0;
    return socket.waitForReadyRead(kAnswerMilliseconds) && socket.getChar(&answer) && answer == kReceived;
}

bool OpenRequests::listen(Receiver receiver) {
    if (address_.isEmpty() || !lock_.tryLock(0))
        return false;
    // With the lock in hand, a socket that is there was left behind.
    QLocalServer::removeServer(address_);
    receiver_ = std::move(receiver);
    if (server_.listen(address_))
        return true;
    lock_.unlock();
    return false;
}

void OpenRequests::accept() {
    while (QLocalSocket* connection = server_.nextPendingConnection()) {
        QObject::connect(connection, &QLocalSocket::disconnected, connection, &QObject::deleteLater);
        QObject::connect(connection, &QLocalSocket::readyRead, &server_,
                         [this, connection] { read(*connection); });
        read(*connection);
    }
}

void OpenRequests::read(QLocalSocket& connection) {
    if (connection.bytesAvailable() == 0)
        return;
    QDataStream stream(&connection);
    stream.setVersion(QDataStream::Qt_6_4);
    stream.startTransaction();
    quint32 mark = 0;
    QByteArray body;
    QByteArray token;
    stream >> mark;
    if (stream.status() == QDataStream::Ok && mark != kFrameMark) {
        stream.abortTransaction();
        connection.abort();
        return;
    }
    stream >> body >> token;
    if (!stream.commitTransaction()) {
        if (connection.bytesAvailable() > kLargestFrame)
            connection.abort();
        return;
    }
    connection.putChar(kReceived);
    connection.flush();
    // From the event loop, because the receiver may show a dialog and stay in it while the connection ends.
    QMetaObject::invokeMethod(
        &server_,
        [this, paths = pathsOf(body), token] {
            if (!token.isEmpty())
                qputenv(kTokenVariable, token);
            receiver_(paths);
        },
        Qt::QueuedConnection);
}

} // namespace dyeworks
