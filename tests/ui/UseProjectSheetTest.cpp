#include "Program.h"
#include "ui/sheets/AskUseProject.h"
#include "ui/sheets/COptionPropertySheet.h"
#include "ui/sheets/CShortcutsPage.h"
#include "ui/sheets/CUseProjectDlg.h"

#include <QAbstractButton>

#include <tuple>

namespace dyeworks {
namespace {

class UseProject : public testing::Test {
protected:
    void setting(const char* value) {
        fake_.profile.sections.clear();
        if (value != nullptr)
            fake_.profile.setText("Settings", "UseNotify_AskUseProject", value);
    }
    std::string setting() { return fake_.profile.textOr("Settings", "UseNotify_AskUseProject", "none"); }
    static QAbstractButton& button(QDialog& dialog, const char* name) {
        return *dialog.findChild<QAbstractButton*>(name);
    }

    FakePlatform fake_;
};

TEST_F(UseProject, IsAskedOnlyWithoutAProjectAndKeepsTheBoxBeforeItDoesWhatWasAnswered) {
    const struct {
        const char* setting;
        bool projectIsOpen;
        UseProjectAnswer answer;
        const char* done;
        const char* after;
    } cases[] = {{nullptr, false, UseProjectAnswer::NewProject, "asked, new with 0", "0"},
                 {"1", false, UseProjectAnswer::OpenProject, "asked, open with 0", "0"},
                 {"1", false, UseProjectAnswer::Cancel, "asked", "1"},
                 {"?", false, UseProjectAnswer::NewProject, "asked, new with 0", "0"},
                 {"0", false, UseProjectAnswer::NewProject, "", "0"},
                 {"1", true, UseProjectAnswer::NewProject, "", "1"}};
    for (const auto& c : cases) {
        setting(c.setting);
        std::string done;
        UseProjectParts parts;
        parts.projectIsOpen = c.projectIsOpen;
        parts.ask = [&](bool& notifyNextTime) {
            EXPECT_TRUE(notifyNextTime);
            notifyNextTime = c.answer == UseProjectAnswer::Cancel;
            done += "asked";
            return c.answer;
        };
        parts.newProject = [&] { done += ", new with " + setting(); };
        parts.openProject = [&] { done += ", open with " + setting(); };
        askUseProject(parts);
        EXPECT_EQ(done, c.done);
        EXPECT_EQ(setting(), c.after) << c.done;
    }
}

TEST_F(UseProject, OnlyNewAndOpenTakeTheBoxOver) {
    // Without a button the window is closed.
    const std::tuple<const char*, UseProjectAnswer, bool> cases[] = {
        {"IDC_USE_PROJECT_NEW", UseProjectAnswer::NewProject, false},
        {"IDC_USE_PROJECT_OPEN", UseProjectAnswer::OpenProject, false},
        {"IDCANCEL", UseProjectAnswer::Cancel, true},
        {nullptr, UseProjectAnswer::Cancel, true}};
    for (const auto& [pressed, expected, notify] : cases) {
        withNextDialog([&, pressed = pressed](QDialog& dialog) {
            button(dialog, "IDC_NOTIFY_NEXT_TIME").click();
            if (pressed == nullptr)
                dialog.close();
            else
                button(dialog, pressed).click();
        });
        bool notifyNextTime = true;
        EXPECT_EQ(CUseProjectDlg::ask(notifyNextTime, nullptr), expected);
        EXPECT_EQ(notifyNextTime, notify);
    }
}

TEST_F(UseProject, TheOptionsShowTheSettingAndKeepWhatOkTakesOver) {
    const std::tuple<const char*, bool, const char*, const char*> cases[] = {
        {nullptr, true, "IDOK", "0"}, {"0", false, "IDOK", "1"}, {"1", true, "IDCANCEL", "1"}};
    for (const auto& [before, shown, press, after] : cases) {
        setting(before);
        withNextDialog([&, shown = shown, press = press](QDialog& sheet) {
            auto& box = button(sheet, "IDC_ASK_USE_PROJECT");
            EXPECT_EQ(box.isChecked(), shown);
            EXPECT_EQ(sheet.focusWidget(), &box);
            box.click();
            button(sheet, press).click();
        });
        OptionsCommand(nullptr, {});
        EXPECT_EQ(setting(), after) << press;
    }
}

} // namespace
} // namespace dyeworks
