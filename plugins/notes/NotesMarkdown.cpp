#include "notes/NotesMarkdown.h"

#include <QRegularExpression>

#include <algorithm>

namespace dyeworks::plugins {

namespace {

constexpr int kMostHeadingLevels = 6;
constexpr QLatin1Char kPathSeparator('\\');

/// One line, so that it reads as it was typed.
QString escaped(const QString& line) {
    static const QRegularExpression signs(QStringLiteral(R"(([\\`*_{}\[\]<>|~&$]))"));
    static const QRegularExpression start(QStringLiteral(R"(^(\d*)([-+=.)#]))"));
    // Headings may end with some, which are no part of them.
    static const QRegularExpression end(QStringLiteral(R"( (#+)$)"));
    QString result = line;
    result.replace(signs, QStringLiteral(R"(\\1)"));
    result.replace(start, QStringLiteral(R"(\1\\2)"));
    return result.replace(end, QStringLiteral(R"( \\1)"));
}

/// Blanks in front of a line would be dropped, or make a listing of it; those behind it are not seen.
QString indented(const QString& line) {
    QString text = line;
    while (text.back().isSpace())
        text.chop(1);
    text.replace(QLatin1Char('\t'), QStringLiteral("    "));
    const auto first = std::ranges::find_if(text, [](QChar c) { return c != QLatin1Char(' '); });
    const auto blanks = first - text.begin();
    return QStringLiteral("&nbsp;").repeated(blanks) + escaped(text.mid(blanks));
}

QString paragraphs(const QString& text) {
    QString result;
    bool continues = false;
    for (const QString& typed : text.split(QLatin1Char('\n'))) {
        const bool isEmpty = typed.trimmed().isEmpty();
        if (continues)
            result += isEmpty ? QStringLiteral("\n\n") : QStringLiteral("\\\n");
        if (!isEmpty)
            result += indented(typed);
        continues = !isEmpty;
    }
    if (continues)
        result += QStringLiteral("\n\n");
    return result;
}

void addNotes(QString& document, const Note& above, int level) {
    for (const std::unique_ptr<Note>& note : above.children) {
        const int signs = std::min(level, kMostHeadingLevels);
        document += QStringLiteral("#").repeated(signs) + QLatin1Char(' ') + escaped(note->title) +
                    QStringLiteral("\n\n") + paragraphs(note->text);
        addNotes(document, *note, level + 1);
    }
}

} // namespace

QByteArray markdownOf(const NoteTree& notes, const QString& projectName) {
    QString document = QStringLiteral("# ") + escaped(projectName) + QStringLiteral("\n\n");
    addNotes(document, notes.root(), 2);
    document.chop(1);
    return document.toUtf8();
}

QString projectNameOf(const QString& projectPath) {
    const QString file = projectPath.mid(projectPath.lastIndexOf(kPathSeparator) + 1);
    const qsizetype dot = file.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? file.left(dot) : file;
}

QString markdownFileFor(const QString& projectPath) {
    const QString file = projectNameOf(projectPath) + QStringLiteral(".md");
    const bool isHere =
        projectPath.startsWith(kPathSeparator) && !projectPath.startsWith(QStringLiteral("\\\\"));
    if (!isHere)
        return file;
    QString folder = projectPath.left(projectPath.lastIndexOf(kPathSeparator) + 1);
    return folder.replace(kPathSeparator, QLatin1Char('/')) + file;
}

} // namespace dyeworks::plugins
