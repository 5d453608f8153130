#include "../png_plugins/PlugInDialogs.h"
#include "FakeHost.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include <array>

namespace dyeworks::plugins {
namespace {

QPushButton& ok(QDialog& dialog) {
    return *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
}

auto enter(const char* title, const char* text) {
    return [=](QDialog& dialog) {
        dialog.findChild<QLineEdit*>()->setText(QString::fromUtf8(title));
        dialog.findChild<QPlainTextEdit*>()->setPlainText(QString::fromUtf8(text));
        ok(dialog).click();
    };
}

auto press(QMessageBox::StandardButton button) {
    return [=](QDialog& dialog) { static_cast<QMessageBox&>(dialog).button(button)->click(); };
}

const QString kNotes = QStringLiteral(DYEWORKS_NOTES_LIBRARY);

class NotesPlugIn : public NotesTest {
protected:
    /// There is a note "a".
    NotesPlugIn() {
        onUpdateNodes_(handle_);
        answerNext(enter("a", "text"));
        EXPECT_EQ(run("\\Project\\Notes", DW_NODE_ADD), 1U);
    }
    ~NotesPlugIn() override { onDelete_(handle_); }

    std::uint32_t run(const char* node, std::uint32_t command) {
        return onCommand_(handle_, node, command, 0);
    }
    static void expectStored(const std::string& expected) {
        NotesProject again;
        readAgain(again);
        EXPECT_EQ(outline(again.notes().root()), expected);
    }

    decltype(DWPI_TPF_onUpdateNodes)* onUpdateNodes_ =
        entryPoint<decltype(DWPI_TPF_onUpdateNodes)>(kNotes, "DWPI_TPF_onUpdateNodes");
    decltype(DWPI_TPF_onDelete)* onDelete_ =
        entryPoint<decltype(DWPI_TPF_onDelete)>(kNotes, "DWPI_TPF_onDelete");
    decltype(DWPI_TPF_onCommand)* onCommand_ =
        entryPoint<decltype(DWPI_TPF_onCommand)>(kNotes, "DWPI_TPF_onCommand");
    decltype(DWPI_TPF_toString)* toString_ =
        entryPoint<decltype(DWPI_TPF_toString)>(kNotes, "DWPI_TPF_toString");
    decltype(DWPI_TPF_export)* export_ = entryPoint<decltype(DWPI_TPF_export)>(kNotes, "DWPI_TPF_export");
    DwHandle handle_ = entryPoint<decltype(DWPI_TPF_onNew)>(kNotes, "DWPI_TPF_onNew")();
};

TEST_F(NotesPlugIn, CommandsAndDragsAreThoseOfTheNode) {
    const struct {
        const char* node;
        std::array<std::uint32_t, 5> enabled;
    } cases[] = {{"\\Project\\Notes", {1, 0, 0, 1, 0}},
                 {"\\Project\\Notes\\a", {1, 1, 1, 1, 0}},
                 {"\\Project\\Notes\\b", {0, 0, 0, 0, 0}},
                 {"\\Project\\Other", {0, 0, 0, 0, 0}}};
    for (const auto& [node, enabled] : cases) {
        for (std::uint32_t command = 0; command < enabled.size(); ++command)
            EXPECT_EQ(onCommand_(handle_, node, command, 1), enabled.at(command)) << node << ' ' << command;
        EXPECT_EQ(onCommand_(nullptr, node, DW_NODE_ADD, 1), 0U);
    }
    const std::string line = "\\Project\\Notes\\a=text";
    std::array<char, 64> buffer{};
    for (const std::uint32_t room : {0U, 1U}) {
        const auto size = static_cast<std::uint32_t>(line.size()) + room;
        EXPECT_EQ(toString_(handle_, cases[1].node, buffer.data(), size), room) << "with the zero it fits";
        EXPECT_EQ(buffer.data(), room == 1 ? line : "");
    }
    EXPECT_EQ(toString_(handle_, cases[0].node, buffer.data(), 64), 0U);
}

TEST_F(NotesPlugIn, DialogRefusesTitlesThatDoNotDo) {
    answerNext([](QDialog& dialog) {
        auto& title = *dialog.findChild<QLineEdit*>();
        const auto& problem = *dialog.findChild<QLabel*>(QStringLiteral("NoteProblem"));
        EXPECT_TRUE(ok(dialog).isEnabled()) << "the proposed title will do";
        for (const char* refused : {"A", " ", "x\\y"}) {
            title.setText(QString::fromUtf8(refused));
            EXPECT_FALSE(ok(dialog).isEnabled()) << refused;
            EXPECT_TRUE(problem.isVisible());
        }
        title.setText(QStringLiteral("b"));
        EXPECT_FALSE(problem.isVisible());
        dialog.reject();
    });
    EXPECT_EQ(run("\\Project\\Notes", DW_NODE_ADD), 0U);
    answerNext(enter("A", "own title in capitals"));
    EXPECT_EQ(run("\\Project\\Notes\\a", DW_NODE_EDIT), 1U);
    expectStored("A");
}

TEST_F(NotesPlugIn, RemoveAsksWhenOthersGoWithIt) {
    answerNext(enter("b", ""));
    run("\\Project\\Notes\\a", DW_NODE_ADD);
    answerNext(press(QMessageBox::No));
    EXPECT_EQ(run("\\Project\\Notes\\a", DW_NODE_REMOVE), 0U);
    expectStored("a(b)");
    answerNext(press(QMessageBox::Yes));
    EXPECT_EQ(run("\\Project\\Notes\\a", DW_NODE_REMOVE), 1U);
    expectStored("");
}

TEST_F(NotesPlugIn, ProjectThatClosesUnderADialogStaysAsItWas) {
    host->changes = 0;
    answerNext([this](QDialog& dialog) {
        onDelete_(std::exchange(handle_, nullptr));
        enter("late", "")(dialog);
    });
    EXPECT_EQ(run("\\Project\\Notes", DW_NODE_ADD), 0U);
    EXPECT_EQ(host->changes, 0);
}

TEST_F(NotesPlugIn, ExportsBesideTheProject) {
    const QTemporaryDir folder;
    QString project = folder.filePath(QStringLiteral("game.tpf"));
    const QByteArray path = project.replace(QLatin1Char('/'), QLatin1Char('\\')).toUtf8();
    for (const bool accepted : {false, true}) {
        answerNext([=](QDialog& dialog) { dialog.done(accepted ? QDialog::Accepted : QDialog::Rejected); });
        EXPECT_EQ(export_(handle_, path), accepted ? 1U : 0U);
        QFile file(folder.filePath(QStringLiteral("game.md")));
        ASSERT_EQ(file.open(QIODevice::ReadOnly), accepted);
        EXPECT_TRUE(!accepted || file.readAll() == "# game\n\n## a\n\ntext\n");
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace dyeworks::plugins
