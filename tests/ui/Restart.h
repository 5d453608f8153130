#pragma once

#include "Program.h"

#include <memory>

namespace dyeworks {

/// The program, started again and again with the settings that it left behind.
class Restart : public testing::Test {
protected:
    Restart() {
        defineControls(fake_);
        start();
    }

    void start() {
        CommandLine commandLine;
        commandLine.noSplash = true;
        app_.reset();
        app_ = std::make_unique<CDyeworksApp>();
        ASSERT_TRUE(app_->InitInstance(commandLine));
    }
    void leaveAndStart() {
        ASSERT_TRUE(frame().close());
        ASSERT_EQ(app_->ExitInstance(), 0);
        start();
    }
    [[nodiscard]] CMainFrame& frame() { return app_->mainFrame(); }
    bool run(CommandId id) { return app_->router().run(id); }

    FakePlatform fake_;
    std::unique_ptr<CDyeworksApp> app_;
};

} // namespace dyeworks
