#include "ui/controls/dispatch/Dispatch.h"

#include <QApplication>
#include <QVariant>
#include <gtest/gtest.h>

#include <memory>

namespace {

/// Each test starts with no companion control registered, as a program does.
class ForgetsControls final : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*test*/) override {
        QCoreApplication* const application = QCoreApplication::instance();
        for (const QByteArray& name : application->dynamicPropertyNames()) {
            if (name.startsWith(dyeworks::kControlPropertyPrefix))
                application->setProperty(name.constData(), QVariant());
        }
    }
};

} // namespace

int main(int argc, char** argv) {
    // Windows of a test run stay out of the way of whoever runs it.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(std::make_unique<ForgetsControls>().release());
    return RUN_ALL_TESTS();
}
