#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace dyeworks::plugins {

/// Asks for a note's title and text. OK stays out of reach as long as `problemOf` has something to say about
/// the title, which the dialog shows. Ctrl+Enter is OK in the text too.
class NoteDialog : public QDialog {
public:
    using ProblemOf = std::function<QString(const QString& title)>;

    NoteDialog(const QString& caption, const QString& title, const QString& text, ProblemOf problemOf,
               QWidget* parent);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString text() const;

private:
    void showProblem();

    ProblemOf problemOf_;
    QLineEdit* title_;
    QPlainTextEdit* text_;
    QLabel* problem_;
    QPushButton* ok_;
};

} // namespace dyeworks::plugins
