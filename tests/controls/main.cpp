#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Windows of a test run stay out of the way of whoever runs it.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
