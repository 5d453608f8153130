#include "Desktop.h"
#include "platform/qt/FileFilters.h"

#include <QAbstractButton>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>

namespace dyeworks {

namespace {

class FileDialogTest : public Desktop {
protected:
    FileDialogTest() {
        platform_.files().setCurrentDirectory(path("."));
        request_.filter = "Images (*.tmf)|*.tmf|All Files (*.*)|*.*||";
        request_.defaultExtension = ".tmf";
        request_.overwritePrompt = true;
        request_.fileMustExist = true;
    }

    static Person::Step type(const QString& name) {
        return [name](QWidget& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
            QMetaObject::invokeMethod(&dialog, "accept");
        };
    }
    static Person::Step click(QMessageBox::StandardButton button) {
        return [button](QWidget& dialog) { dynamic_cast<QMessageBox&>(dialog).button(button)->click(); };
    }

    FileDialogRequest request_;
};

} // namespace

TEST(FileFilters, BecomeTheNameFiltersOfTheDialog) {
    const std::pair<const char*, QStringList> cases[] = {
        {"", {}},
        {"A (*.a)|*.a|All Files (*.*)|*.*||", {"A (*.a)", "All Files (*)"}},
        {"Both (*.a, *.b)|*.a;*.b|", {"Both (*.a *.b)"}},
        {"Bitmap (24 bit)|*.bmp|Other (*.x)|*.y||", {"Bitmap (24 bit) (*.bmp)", "Other (*.x) (*.y)"}},
    };
    for (const auto& [filter, expected] : cases)
        EXPECT_EQ(nameFilters(filter), expected) << filter;
}

TEST_F(FileDialogTest, SaveAddsTheExtensionOnlyToANameWithoutOne) {
    const std::pair<const char*, const char*> cases[] = {
        {"sky", "sky.tmf"}, {"sky.bmp", "sky.bmp"}, {"sky.", "sky.tmf"}, {"空", "空.tmf"}};
    for (const auto& [typed, expected] : cases) {
        const Person person({type(QString::fromUtf8(typed))});
        EXPECT_EQ(platform_.fileDialogs().save(request_), path(expected));
    }
}

TEST_F(FileDialogTest, SaveAsksBeforeItReplacesAFileAndComesBackOnNo) {
    write("sky.tmf", "x");
    const Person person({type(QStringLiteral("sky")), click(QMessageBox::No), type(QStringLiteral("sky.tmf")),
                         click(QMessageBox::No), type(QStringLiteral("sky")), click(QMessageBox::Yes)});
    EXPECT_EQ(platform_.fileDialogs().save(request_), path("sky.tmf"));
}

TEST_F(FileDialogTest, OpenTakesTheNameAsTypedThenWithTheExtensionElseComesBack) {
    write("sky", "x");
    write("sky.tmf", "x");
    write("sea.tmf", "x");
    const Person person({type(QStringLiteral("sky")), type(QStringLiteral("lake")), click(QMessageBox::Ok),
                         type(QStringLiteral("sea"))});
    EXPECT_EQ(platform_.fileDialogs().open(request_), path("sky"));
    EXPECT_EQ(platform_.fileDialogs().open(request_), path("sea.tmf"));
}

TEST_F(FileDialogTest, TheChosenFolderBecomesTheCurrentDirectory) {
    QDir(scratch_.path()).mkdir(QStringLiteral("tex"));
    const Person person({type(host("tex/a.tmf"))});
    EXPECT_EQ(platform_.fileDialogs().save(request_), path("tex/a.tmf"));
    EXPECT_EQ(platform_.files().currentDirectory(), path("tex"));
}

} // namespace dyeworks
