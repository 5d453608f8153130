#include "framework/CommandRouter.h"

#include <gmock/gmock.h>

using namespace dyeworks;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Log = std::vector<std::string>;

class Target : public CommandTarget {
public:
    Target(Log& log, std::string name)
        : log_(log)
        , name_(std::move(name)) {}
    void take(CommandId id) { on(id, &Target::OnRun, &Target::OnUpdate); }
    void takeRange(CommandId first, CommandId last) { onRange(first, last, &Target::OnRange); }

    bool enabled = true;

private:
    void OnRun() { log_.push_back(name_); }
    void OnUpdate(CommandUi& ui) {
        ui.require(enabled, StringId{});
        ui.checked = true;
    }
    void OnRange(CommandId id) { log_.push_back(name_ + std::to_string(id)); }

    Log& log_;
    std::string name_;
};

struct CommandRouting : testing::Test {
    Log log;
    Target view{log, "view"};
    Target document{log, "document"};
    CommandRouter router{[this] { return std::vector<CommandTarget*>{&view, nullptr, &document}; }};
};

TEST_F(CommandRouting, FirstTargetThatTakesTheCommandGetsItAndTheListenerHearsOfIt) {
    router.setAfterCommand([this] { log.emplace_back("after"); });
    view.take(ID_ZOOM_IN);
    document.take(ID_ZOOM_IN);
    document.take(ID_FILE_SAVE);
    EXPECT_TRUE(router.run(ID_ZOOM_IN));
    EXPECT_TRUE(router.run(ID_FILE_SAVE));
    EXPECT_FALSE(router.run(ID_ZOOM_OUT));
    EXPECT_THAT(log, ElementsAre("view", "after", "document", "after"));
}

TEST_F(CommandRouting, CommandDisabledByItsTakerRunsNowhere) {
    view.take(ID_ZOOM_IN);
    view.enabled = false;
    document.take(ID_ZOOM_IN);
    EXPECT_FALSE(router.run(ID_ZOOM_IN));
    EXPECT_FALSE(router.state(ID_ZOOM_IN).enabled);
    EXPECT_EQ(router.state(ID_ZOOM_IN).checked, true);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_FALSE(router.state(ID_APP_ABOUT).enabled) << "nobody takes it";
}

TEST_F(CommandRouting, RangeIsInclusiveAndTellsWhichCommand) {
    view.takeRange(ID_ZOOM_X1, ID_ZOOM_X16);
    EXPECT_FALSE(router.run(ID_ZOOM_X1 - 1));
    EXPECT_TRUE(router.run(ID_ZOOM_X1));
    EXPECT_TRUE(router.run(ID_ZOOM_X16));
    EXPECT_FALSE(router.run(ID_ZOOM_X16 + 1));
    EXPECT_THAT(log, ElementsAre("view32901", "view32916"));
}

} // namespace
