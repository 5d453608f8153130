#pragma once

#include <QApplication>
#include <QDialog>
#include <QLibrary>
#include <QTimer>
#include <gtest/gtest.h>

namespace dyeworks::plugins {

/// Answers the dialog that opens next, from inside its loop.
template <class Answer>
void answerNext(Answer answer) {
    QTimer::singleShot(0, qApp, [answer] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        answer(*dialog);
    });
}

template <class Function>
Function* entryPoint(const QString& library, const char* name) {
    return reinterpret_cast<Function*>(QLibrary::resolve(library, name));
}

} // namespace dyeworks::plugins
