#include "Program.h"
#include "ui/controls/ControlRegistration.h"
#include "ui/sheets/CFileNewProjectPage.h"
#include "ui/sheets/CPictureDlg.h"
#include "ui/sheets/PathEdit.h"
#include "ui/sheets/ProjectPropertySheet.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>

#include <optional>

namespace dyeworks {
namespace {

using Directory = CFileNewProjectPage::Directory;

class ProjectPage : public testing::Test {
protected:
    void make() {
        defineControls(fake_);
        ASSERT_TRUE(registerControl("FolderPick.ocx"));
        page_.emplace();
    }
    QLineEdit& edit(const char* name) { return *page_->findChild<QLineEdit*>(name); }
    QPushButton& button(const char* name) { return *page_->findChild<QPushButton*>(name); }
    /// Answers the folder dialog that `press` opens.
    void choose(const char* press, const std::optional<std::string>& folder) {
        withNextDialog([&](QDialog& shown) {
            auto& dialog = dynamic_cast<QFileDialog&>(shown);
            began_ = fake_.files.fromHostPath(dialog.directory().canonicalPath().toStdString());
            if (!folder)
                return dialog.reject();
            dialog.selectFile(onHost(fake_, *folder));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        button(press).click();
    }
    /// Without the drive.
    std::string real(const std::string& path) {
        return fake_.files.fromHostPath(QDir(onHost(fake_, path)).canonicalPath().toStdString());
    }

    FakePlatform fake_;
    std::optional<CFileNewProjectPage> page_;
    std::string began_; ///< Where the dialog did.
};

TEST_F(ProjectPage, TheChosenFolderReplacesAllThatIsInTheField) {
    for (const char* folder : {"c:\\old", "c:\\new"})
        fake_.files.createDirectory(folder);
    make();
    edit("IDC_TPF_NAME").setText("sky");
    edit("IDC_TMF_DIR").setText("c:/old");
    choose("IDC_TMF_DIR_BROWSE", "c:\\new");
    EXPECT_EQ(began_, real("c:\\old"));
    EXPECT_EQ(page_->values().imageDirectories, real("c:\\new"));
    EXPECT_EQ(edit("IDC_TMF_DIR").text().toStdString(), real("c:\\new"));
    EXPECT_EQ(page_->values().name, "sky") << "the other fields stay as typed";
    choose("IDC_TMF_DIR_BROWSE", std::nullopt);
    EXPECT_EQ(page_->values().imageDirectories, real("c:\\new"));

    edit("IDC_TLF_DIR").setText("c:/old;c:/new");
    choose("IDC_TLF_DIR_BROWSE", "c:\\new");
    EXPECT_EQ(page_->values().paletteDirectories, real("c:\\new"));
    choose("IDC_TPF_DIR_BROWSE", "c:\\old");
    EXPECT_EQ(page_->values().projectDirectory, real("c:\\old"));
}

TEST_F(ProjectPage, WithoutTheChooserFoldersCanBeTyped) {
    page_.emplace();
    for (const char* name : {"IDC_TPF_DIR_BROWSE", "IDC_TMF_DIR_BROWSE", "IDC_TLF_DIR_BROWSE"}) {
        EXPECT_FALSE(button(name).isEnabled()) << name;
        EXPECT_TRUE(button(name).toolTip().contains("FolderPick.ocx is not found"));
    }
    edit("IDC_TMF_DIR").setText("typed");
    page_->ChooseFolder(Directory::Images);
    EXPECT_EQ(edit("IDC_TMF_DIR").text(), "typed");
}

TEST_F(ProjectPage, AFixedNameLeavesTheOtherDirectoriesToChange) {
    make();
    for (const bool fixed : {true, false}) {
        page_->setNameFixed(fixed);
        choose("IDC_TMF_DIR_BROWSE", std::nullopt); // Shows the values again.
        for (const char* name : {"IDC_TPF_NAME", "IDC_TPF_DIR", "IDC_TPF_DIR_BROWSE"})
            EXPECT_EQ(page_->findChild<QWidget*>(name)->isEnabled(), !fixed) << name;
        for (const char* name : {"IDC_TMF_DIR", "IDC_TMF_DIR_BROWSE", "IDC_TLF_DIR", "IDC_TLF_DIR_BROWSE"})
            EXPECT_TRUE(page_->findChild<QWidget*>(name)->isEnabled()) << name;
    }
}

TEST(ProjectPropertySheetTest, GivesBackTheProjectsOwnValuesWhenNothingIsTyped) {
    FakePlatform fake;
    fake.files.showHostPaths(true);
    const CFileNewProjectPage::Values values{"Sky *", "c:\\sky\\", "c:\\sky\\Tex;..\\more", "pal"};
    ProjectPropertySheet sheet(values);
    sheet.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&sheet));
    const auto edit = [&](const char* name) { return sheet.findChild<QLineEdit*>(name); };
    EXPECT_EQ(edit("IDC_TMF_DIR")->text().toStdString(), fake.files.displayPath("c:\\sky\\Tex") + ";../more");
    EXPECT_EQ(edit("IDC_TPF_NAME")->text(), "Sky *");
    EXPECT_FALSE(edit("IDC_TPF_NAME")->isEnabled());
    EXPECT_TRUE(edit("IDC_TMF_DIR")->hasFocus()) << "the first field that can be changed";
    edit("IDC_TLF_DIR")->setText("/home/kei/tex/");
    sheet.accept();
    EXPECT_EQ(sheet.values().projectDirectory, values.projectDirectory);
    EXPECT_EQ(sheet.values().imageDirectories, values.imageDirectories);
    EXPECT_EQ(sheet.values().paletteDirectories, "\\home\\kei\\tex");
}

TEST(PictureDialog, MakesAndFindsExactlyTheFilesThatAreNamed) {
    FakePlatform fake;
    putImages(fake, {"c:\\tex\\tex1.tmf", "c:\\tex\\d:x.tmf"});
    CPictureDlg dialog({"A", "", "", 0, "c:\\tex", "c:\\tex"},
                       [](const PictureSettings&) { return PictureField::None; });
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto& images = *dialog.findChild<QComboBox*>("IDC_PICTURE_IMAGE");
    images.setFocus();
    QTest::keyClicks(images.lineEdit(), "te");
    EXPECT_EQ(images.currentText(), "te");
    withNextDialog([](QDialog& sheet) { sheet.accept(); });
    dialog.findChild<QPushButton*>("IDC_PICTURE_NEW_IMAGE")->click();
    EXPECT_THAT(fake.files.written(), ElementsAre("c:\\tex\\te.tmf"));
    EXPECT_EQ(images.currentText(), "te.tmf");

    images.setCurrentText(images.itemText(0));
    fake.messages.answerWith(MessageAnswer::Ok);
    dialog.accept();
    EXPECT_EQ(dialog.settings().imageFile, "c:\\tex\\d:x.tmf");
    EXPECT_EQ(texts(fake), std::vector<std::string>{" is not found.\nDo you ignore error to continue?"});
}

TEST(PathEditTest, TakesEitherFormAndLeavesRelativePathsRelative) {
    const FakePlatform fake;
    PathEdit edit("edit");
    const std::pair<const char*, const char*> cases[] = {
        {"/home/kei/tex", "\\home\\kei\\tex"}, {"//home//kei", "\\home\\kei"},      {"c:\\tex", "c:\\tex"},
        {"../tex/sky", "..\\tex\\sky"},        {"/a;b/c;;c:/d", "\\a;b\\c;;c:\\d"}, {"", ""}};
    for (const auto& [typed, path] : cases) {
        edit.setPath("c:\\before");
        edit.setText(typed);
        EXPECT_EQ(edit.path(), path) << typed;
    }
}

} // namespace
} // namespace dyeworks
