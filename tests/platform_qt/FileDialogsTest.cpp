#include "Desktop.h"
#include "platform/qt/FileFilters.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
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
        {"Plain|*.a", {"Plain (*.a)"}},
        {"Bitmap (24 bit)|*.bmp|Other (*.x)|*.y||", {"Bitmap (24 bit) (*.bmp)", "Other (*.x) (*.y)"}},
        {"Cut off|", {}},
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
    request_.defaultExtension = "tlf";
    const Person person({type(QStringLiteral("sky"))});
    EXPECT_EQ(platform_.fileDialogs().save(request_), path("sky.tlf"));
}

TEST_F(FileDialogTest, SaveAsksBeforeItReplacesAFileAndComesBackOnNo) {
    write("sky.tmf", "x");
    const Person person({type(QStringLiteral("sky")), click(QMessageBox::No), type(QStringLiteral("sky.tmf")),
                         click(QMessageBox::No), type(QStringLiteral("sky")), click(QMessageBox::Yes)});
    EXPECT_EQ(platform_.fileDialogs().save(request_), path("sky.tmf"));

    request_.overwritePrompt = false;
    const Person silent({type(QStringLiteral("sky.tmf")), type(QStringLiteral("sky"))});
    EXPECT_EQ(platform_.fileDialogs().save(request_), path("sky.tmf"));
    EXPECT_EQ(platform_.fileDialogs().save(request_), path("sky.tmf"));
}

TEST_F(FileDialogTest, OpenTakesTheNameAsTypedBeforeItAddsTheExtension) {
    write("sky", "x");
    write("sky.tmf", "x");
    write("sea.tmf", "x");
    const Person person({type(QStringLiteral("sky")), type(QStringLiteral("sea"))});
    EXPECT_EQ(platform_.fileDialogs().open(request_), path("sky"));
    EXPECT_EQ(platform_.fileDialogs().open(request_), path("sea.tmf"));
}

TEST_F(FileDialogTest, OpenComesBackWhenTheFileDoesNotExist) {
    write("sea.tmf", "x");
    const Person person(
        {type(QStringLiteral("lake")), click(QMessageBox::Ok), type(QStringLiteral("sea.tmf"))});
    EXPECT_EQ(platform_.fileDialogs().open(request_), path("sea.tmf"));
    request_.fileMustExist = false;
    const Person other({type(QStringLiteral("lake"))});
    EXPECT_EQ(platform_.fileDialogs().open(request_), path("lake.tmf"));
}

TEST_F(FileDialogTest, StartsAtTheInitialNameAndItsFilter) {
    QDir(scratch_.path()).mkdir(QStringLiteral("tex"));
    request_.filterIndex = 2;
    const std::tuple<std::string, const char*, const char*> cases[] = {
        {"", ".", ""},
        {"sky.tmf", ".", "sky.tmf"},
        {path("tex/sky.tmf"), "tex", "sky.tmf"},
        {path("tex") + "\\*.tmf", "tex", ""},
        {path("tex"), "tex", ""},
        {path("gone/sky.tmf"), ".", "sky.tmf"},
    };
    for (const auto& [initialName, folder, name] : cases) {
        request_.initialName = initialName;
        const Person person({[&, folderName = folder, fileName = name](QWidget& widget) {
            const auto& dialog = dynamic_cast<QFileDialog&>(widget);
            EXPECT_EQ(dialog.directory(), QDir(host(folderName)));
            EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
                      QString::fromUtf8(fileName));
            EXPECT_EQ(dialog.selectedNameFilter(), QStringLiteral("All Files (*)"));
            widget.close();
        }});
        EXPECT_EQ(platform_.fileDialogs().save(request_), std::nullopt) << initialName;
    }
}

TEST_F(FileDialogTest, TheChosenFolderBecomesTheCurrentDirectory) {
    QDir(scratch_.path()).mkdir(QStringLiteral("tex"));
    const Person person({type(host("tex/a.tmf")), [](QWidget& dialog) { dialog.close(); }});
    EXPECT_EQ(platform_.fileDialogs().save(request_), path("tex/a.tmf"));
    EXPECT_EQ(platform_.files().currentDirectory(), path("tex"));
    request_.initialName = path("b.tmf");
    EXPECT_EQ(platform_.fileDialogs().save(request_), std::nullopt);
    EXPECT_EQ(platform_.files().currentDirectory(), path("tex"));
}

TEST_F(FileDialogTest, ChoosesNothingWhenNobodyCanAnswer) {
    platform_.setInteractive(false);
    request_.initialName = "sky.tmf";
    EXPECT_EQ(platform_.fileDialogs().save(request_), std::nullopt);
}

} // namespace dyeworks
