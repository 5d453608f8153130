#include "ControlTest.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QTimer>

namespace dyeworks {
namespace {

class FolderPickTest : public ControlTest {
protected:
    FolderPickTest() {
        fake_.files.createDirectory("c:\\tex\\sky");
        create("FolderPick");
    }
    /// Answers the next dialog: goes to a folder and accepts, or cancels. Where the dialog began.
    void answer(const std::string& hostFolder, bool accept) {
        QTimer::singleShot(0, qApp, [this, hostFolder, accept] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            began_ = dialog->directory().canonicalPath().toStdString();
            if (!accept)
                return dialog->reject();
            dialog->setDirectory(QString::fromStdString(hostFolder));
            dialog->selectFile(QString::fromStdString(hostFolder));
            // As the dialog's own button does.
            QMetaObject::invokeMethod(dialog, "accept");
        });
    }
    std::string host(const std::string& path) {
        return QDir(QString::fromStdString(fake_.files.hostPath(path))).canonicalPath().toStdString();
    }

    std::string began_;
};

TEST_F(FolderPickTest, StartsAtTheFolderThatExistsAndGivesTheChosenOne) {
    struct Case {
        const char* below; ///< "c:\tex"
        const char* begins;
        bool accept;
    };
    const Case cases[] = {
        {"/sky", "c:\\tex\\sky", true}, {"/none/deeper", "c:\\tex", true}, {"/sky", "c:\\tex\\sky", false}};
    for (const Case& c : cases) {
        set(2, host("c:\\tex") + c.below);
        answer(host("c:\\tex\\sky"), c.accept);
        std::string chosen = "untouched";
        EXPECT_EQ(number(call(4, {longValue(0), &chosen})), c.accept ? 1 : 0) << c.below;
        EXPECT_EQ(began_, host(c.begins));
        EXPECT_EQ(chosen, c.accept ? host("c:\\tex\\sky") : "untouched");
    }
}

} // namespace
} // namespace dyeworks
