#include "Program.h"
#include "ui/TerminationSignals.h"

#include <csignal>
#include <future>

namespace dyeworks {
namespace {

TEST(Termination, IsServedOnAnotherThreadWhenTheEventLoopDoesNotTurn) {
    for (const bool hangs : {false, true}) {
        std::promise<int> hanging;
        int inLoop = 0;
        const TerminationSignals ending([&](int signal) { inLoop = signal; },
                                        [&](int signal) { hanging.set_value(signal); });
        ASSERT_EQ(std::raise(SIGTERM), 0);
        if (hangs) {
            EXPECT_EQ(hanging.get_future().get(), SIGTERM);
            QCoreApplication::processEvents();
            EXPECT_EQ(inLoop, 0) << "it was served already";
        } else {
            EXPECT_TRUE(QTest::qWaitFor([&] { return inLoop == SIGTERM; }));
        }
    }
}

} // namespace
} // namespace dyeworks
