#include "platform/fake/FakePlatform.h"
#include "ui/AskUseProject.h"
#include "ui/COptionPropertySheet.h"
#include "ui/CUseProjectDlg.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <optional>
#include <string>

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
    /// Uses the dialog that comes up next.
    static void answer(std::function<void(QDialog&)> use) {
        QTimer::singleShot(0, qApp, [use = std::move(use)] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            use(*dialog);
        });
    }
    static QAbstractButton& button(QDialog& dialog, const char* name) {
        return *dialog.findChild<QAbstractButton*>(QString::fromLatin1(name));
    }

    FakePlatform fake_;
};

TEST_F(UseProject, IsAskedOnlyWithoutAProjectAndWhenTheUserWantsIt) {
    const struct {
        const char* setting;
        bool open;
        bool asked;
    } cases[] = {{nullptr, false, true}, {"1", false, true}, {"7", false, true},
                 {"0", false, false},    {"1", true, false}, {"?", false, true}};
    for (const auto& [value, open, asked] : cases) {
        setting(value);
        bool wasAsked = false;
        UseProjectParts parts;
        parts.projectIsOpen = open;
        parts.ask = [&](bool& notifyNextTime) {
            EXPECT_TRUE(notifyNextTime);
            wasAsked = true;
            return UseProjectAnswer::Cancel;
        };
        askUseProject(parts);
        EXPECT_EQ(wasAsked, asked) << (value == nullptr ? "none" : value) << open;
    }
}

TEST_F(UseProject, KeepsTheBoxBeforeItDoesWhatWasAnswered) {
    const struct {
        UseProjectAnswer answer;
        const char* done;
    } cases[] = {{UseProjectAnswer::NewProject, "new with 0"},
                 {UseProjectAnswer::OpenProject, "open with 0"},
                 {UseProjectAnswer::Cancel, ""}};
    for (const auto& [chosen, expected] : cases) {
        setting("1");
        std::string done;
        UseProjectParts parts;
        parts.ask = [chosen = chosen](bool& notifyNextTime) {
            notifyNextTime = chosen == UseProjectAnswer::Cancel;
            return chosen;
        };
        parts.newProject = [&] { done += "new with " + setting(); };
        parts.openProject = [&] { done += "open with " + setting(); };
        askUseProject(parts);
        EXPECT_EQ(done, expected);
        EXPECT_EQ(setting(), chosen == UseProjectAnswer::Cancel ? "1" : "0");
    }
}

TEST_F(UseProject, OnlyNewAndOpenTakeTheBoxOver) {
    const struct {
        const char* button; // Null: the window is closed.
        UseProjectAnswer answer;
        bool notify;
    } cases[] = {{"IDC_USE_PROJECT_NEW", UseProjectAnswer::NewProject, false},
                 {"IDC_USE_PROJECT_OPEN", UseProjectAnswer::OpenProject, false},
                 {"IDCANCEL", UseProjectAnswer::Cancel, true},
                 {nullptr, UseProjectAnswer::Cancel, true}};
    for (const auto& [pressed, expected, notify] : cases) {
        answer([&, pressed = pressed](QDialog& dialog) {
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
    const struct {
        const char* before;
        bool shown;
        const char* press;
        const char* after;
    } cases[] = {{nullptr, true, "IDOK", "0"},
                 {"1", true, "IDOK", "0"},
                 {"0", false, "IDOK", "1"},
                 {"0", false, "IDCANCEL", "0"},
                 {"1", true, "IDCANCEL", "1"}};
    for (const auto& [before, shown, press, after] : cases) {
        setting(before);
        answer([&, shown = shown, press = press](QDialog& sheet) {
            EXPECT_EQ(button(sheet, "IDC_ASK_USE_PROJECT").isChecked(), shown);
            EXPECT_EQ(sheet.focusWidget(), &button(sheet, "IDC_ASK_USE_PROJECT"));
            button(sheet, "IDC_ASK_USE_PROJECT").click();
            button(sheet, press).click();
        });
        OptionsCommand(nullptr);
        EXPECT_EQ(setting(), after) << press;
    }
}

} // namespace
} // namespace dyeworks
