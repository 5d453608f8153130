#include "notes/NoteDialog.h"

#include "common/Say.h"
#include "notes/NoteTree.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace dyeworks::plugins {

namespace {

constexpr QSize kSize{440, 340};

QLabel* labelFor(QWidget& field, const QString& text) {
    auto* const label = new QLabel(text, field.parentWidget());
    label->setBuddy(&field);
    return label;
}

} // namespace

NoteDialog::NoteDialog(const QString& caption, const QString& title, const QString& text, ProblemOf problemOf,
                       QWidget* parent)
    : QDialog(parent)
    , problemOf_(std::move(problemOf))
    , title_(new QLineEdit(title, this))
    , text_(new QPlainTextEdit(text, this))
    , problem_(new QLabel(this)) {
    setWindowTitle(caption);
    title_->setObjectName(QStringLiteral("NoteTitle"));
    title_->setAccessibleName(say("Title", "タイトル"));
    title_->setMaxLength(static_cast<int>(NoteTree::kLongestTitle));
    title_->selectAll();
    text_->setObjectName(QStringLiteral("NoteText"));
    text_->setAccessibleName(say("Text", "本文"));
    text_->setTabChangesFocus(true);
    problem_->setObjectName(QStringLiteral("NoteProblem"));
    problem_->setAccessibleName(say("What is wrong with the title", "タイトルの問題"));
    // Two languages and long texts: the dialog stays as wide as it is.
    problem_->setWordWrap(true);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setText(say("OK", "OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(say("Cancel", "キャンセル"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* const shortcut = new QShortcut(QKeySequence(static_cast<int>(Qt::ControlModifier) | key), this);
        connect(shortcut, &QShortcut::activated, ok_, [this] { ok_->click(); });
    }
    connect(title_, &QLineEdit::textChanged, this, [this] { showProblem(); });

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(labelFor(*title_, say("&Title:", "タイトル(&T):")));
    layout->addWidget(title_);
    layout->addWidget(problem_);
    layout->addWidget(labelFor(*text_, say("Te&xt:", "本文(&X):")));
    layout->addWidget(text_, 1);
    layout->addWidget(buttons);
    resize(kSize);
    title_->setFocus();
    showProblem();
}

QString NoteDialog::title() const {
    return title_->text();
}

QString NoteDialog::text() const {
    return text_->toPlainText();
}

void NoteDialog::showProblem() {
    const QString problem = problemOf_(title_->text());
    problem_->setText(problem);
    problem_->setVisible(!problem.isEmpty());
    ok_->setEnabled(problem.isEmpty());
}

} // namespace dyeworks::plugins
