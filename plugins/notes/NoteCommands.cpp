#include "notes/NoteCommands.h"

#include "common/Say.h"
#include "common/WriteFile.h"
#include "notes/NoteDialog.h"
#include "notes/NotesMarkdown.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

namespace dyeworks::plugins {

namespace {

QString caption() {
    return say("Notes", "ノート");
}

/// Titles may have anything in them, and are not to be read as HTML.
int ask(QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, caption(), text, buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec();
}

bool addNote(NotesProject& project, Note& parent) {
    NoteDialog dialog(
        say("New Note", "新しいノート"), NoteTree::titleFor(QString(), parent), {},
        [&](const QString& title) { return NoteTree::problemOf(title, parent, nullptr); },
        QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted || !project.isOpen())
        return false;
    project.add(parent, dialog.title(), dialog.text());
    return true;
}

bool editNote(NotesProject& project, Note& note) {
    NoteDialog dialog(
        say("Edit Note", "ノートの編集"), note.title, note.text,
        [&](const QString& title) { return NoteTree::problemOf(title, *note.parent, &note); },
        QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted || !project.isOpen())
        return false;
    project.edit(note, dialog.title(), dialog.text());
    return true;
}

bool removeNote(NotesProject& project, Note& note) {
    const std::size_t below = countBelow(note);
    const QString question = say("Remove \"%1\" with the notes below it (%2)?",
                                 "「%1」を、その下のノート (%2 個) とともに削除しますか?");
    if (below != 0 && ask(QMessageBox::Question, question.arg(note.title, QString::number(below)),
                          QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
        return false;
    if (!project.isOpen())
        return false;
    project.remove(note);
    return true;
}

bool showProperties(const Note& note) {
    QString text =
        say("Notes: %1\n\nA note that is dropped on another goes behind it, with Shift below it. With "
            "Ctrl a copy does. Pictures can be dropped, too.",
            "ノート: %1\n\nノートを別のノートにドロップするとその後ろに、Shift キーを押しているとその下に"
            "移動します。Ctrl キーを押しているとコピーします。ピクチャーもドロップできます。")
            .arg(countBelow(note));
    if (note.parent != nullptr) {
        const qsizetype lines = note.text.isEmpty() ? 0 : note.text.count(QLatin1Char('\n')) + 1;
        text = say("%1\n\nLines: %2\nCharacters: %3\nNotes below it: %4",
                   "%1\n\n行数: %2\n文字数: %3\n下にあるノート: %4")
                   .arg(note.title, QString::number(lines), QString::number(note.text.toUcs4().size()),
                        QString::number(countBelow(note)));
    }
    ask(QMessageBox::Information, text, QMessageBox::Ok);
    return true;
}

QString askForFile(const QString& proposed) {
    QFileDialog dialog(QApplication::activeWindow(),
                       say("Export Notes as Markdown", "ノートを Markdown にエクスポート"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters({say("Markdown files (*.md)", "Markdown ファイル (*.md)"),
                           say("All files (*)", "すべてのファイル (*)")});
    dialog.setDefaultSuffix(QStringLiteral("md"));
    const QFileInfo file(proposed);
    if (file.isAbsolute())
        dialog.setDirectory(file.absolutePath());
    dialog.selectFile(file.fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

bool hasNoteCommand(NotesProject& project, const QString& node, std::uint32_t command) {
    const Note* const note = project.notes().find(node);
    if (note == nullptr)
        return false;
    switch (command) {
    case DW_NODE_ADD:
        return NoteTree::hasRoom(*note, nullptr);
    case DW_NODE_EDIT:
    case DW_NODE_REMOVE:
        return note->parent != nullptr;
    case DW_NODE_PROPERTY:
        return true;
    default:
        return false;
    }
}

bool runNoteCommand(const std::shared_ptr<NotesProject>& project, const QString& node,
                    std::uint32_t command) {
    if (!hasNoteCommand(*project, node, command))
        return false;
    Note& note = *project->notes().find(node);
    switch (command) {
    case DW_NODE_ADD:
        return addNote(*project, note);
    case DW_NODE_EDIT:
        return editNote(*project, note);
    case DW_NODE_REMOVE:
        return removeNote(*project, note);
    default:
        return showProperties(note);
    }
}

bool exportNotes(const std::shared_ptr<NotesProject>& project, const QString& projectPath) {
    if (project->notes().root().children.empty()) {
        ask(QMessageBox::Information, say("The project has no notes.", "プロジェクトにノートがありません。"),
            QMessageBox::Ok);
        return false;
    }
    const QString path = askForFile(markdownFileFor(projectPath));
    if (path.isEmpty())
        return false;
    const QString reason = writeFile(path, markdownOf(project->notes(), projectNameOf(projectPath)));
    if (reason.isEmpty())
        return true;
    ask(QMessageBox::Warning,
        say("\"%1\" cannot be written. %2", "「%1」を書き込めません。%2")
            .arg(QFileInfo(path).fileName(), reason),
        QMessageBox::Ok);
    return false;
}

} // namespace dyeworks::plugins
