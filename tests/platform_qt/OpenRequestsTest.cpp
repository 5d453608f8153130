#include "Desktop.h"

#include <QEventLoop>

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace dyeworks {

namespace {

class OpenRequestsTest : public Desktop {
protected:
    /// Sends as another process would, while this one's event loop runs. Ends when the answer is there.
    bool sendFromOutside(const OpenRequests::Paths& paths) {
        bool taken = false;
        QEventLoop loop;
        std::thread sender([&] {
            taken = OpenRequests(address_).send(paths);
            QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
        });
        loop.exec();
        sender.join();
        return taken;
    }

    bool listen() {
        return requests_.listen([this](const OpenRequests::Paths& paths) { received_.push_back(paths); });
    }

    QString address_ = host("socket");
    OpenRequests requests_{address_};
    std::vector<OpenRequests::Paths> received_;
};

} // namespace

TEST_F(OpenRequestsTest, ReachTheOneInstanceThatListens) {
    EXPECT_FALSE(requests_.send({"\\a"}));
    ASSERT_TRUE(listen());
    const OpenRequests::Paths many(3000, "\\home\\kei\\テクスチャ\\空.tmf");
    EXPECT_TRUE(sendFromOutside({"\\home\\kei\\sky.tmf", "", "\\空"}));
    {
        OpenRequests second(address_);
        EXPECT_FALSE(second.listen([](const OpenRequests::Paths&) { FAIL(); }));
    }
    EXPECT_TRUE(sendFromOutside({}));
    EXPECT_TRUE(sendFromOutside(many));
    QCoreApplication::processEvents();
    EXPECT_EQ(received_, (std::vector<OpenRequests::Paths>{{"\\home\\kei\\sky.tmf", "", "\\空"}, {}, many}));
}

TEST_F(OpenRequestsTest, GoToTheProgramOfTheSameSettings) {
    QtShell shell(platform_.files(), host("a.ini").toStdString());
    ASSERT_TRUE(shell.listenForOpenRequests([](const OpenRequests::Paths&) {}));
    for (const char* settings : {"a.ini", "b.ini"}) {
        OpenRequests other(OpenRequests::userAddress(host(settings)));
        EXPECT_EQ(!other.listen([](const OpenRequests::Paths&) {}), settings[0] == 'a') << settings;
    }
}

TEST_F(OpenRequestsTest, BringTheRightToComeToTheFront) {
    QByteArray token;
    ASSERT_TRUE(
        requests_.listen([&](const OpenRequests::Paths&) { token = qgetenv("XDG_ACTIVATION_TOKEN"); }));
    const QByteArray before = qgetenv("XDG_ACTIVATION_TOKEN");
    qputenv("XDG_ACTIVATION_TOKEN", "token-7");
    EXPECT_TRUE(sendFromOutside({}));
    qputenv("XDG_ACTIVATION_TOKEN", "own");
    QCoreApplication::processEvents();
    qputenv("XDG_ACTIVATION_TOKEN", before);
    EXPECT_EQ(token, "token-7");
}

TEST_F(OpenRequestsTest, ListenWhereAnInstanceLeftItsSocketBehind) {
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    std::strncpy(name.sun_path, address_.toUtf8().constData(), sizeof(name.sun_path) - 1);
    const int left = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(left, reinterpret_cast<const sockaddr*>(&name), sizeof(name)), 0);
    ::close(left);
    ASSERT_TRUE(QFile::exists(address_));
    EXPECT_FALSE(requests_.send({"\\a"}));
    ASSERT_TRUE(listen());
    EXPECT_TRUE(sendFromOutside({"\\a"}));
}

} // namespace dyeworks
