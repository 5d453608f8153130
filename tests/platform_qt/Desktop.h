#pragma once

#include "platform/qt/QtPlatform.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <ostream>
#include <utility>

/// How a failed comparison shows a text.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace dyeworks {

/// The platform under test over a scratch folder, installed for the test.
class Desktop : public testing::Test {
protected:
    Desktop() { installPlatform(&platform_); }
    ~Desktop() override {
        installPlatform(nullptr);
        // The scratch folder goes, and nothing can be started from a folder that is gone.
        QDir::setCurrent(QDir::rootPath());
    }

    [[nodiscard]] QString host(const char* name) const { return scratch_.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] std::string path(const char* name) {
        return platform_.files().fromHostPath(host(name).toStdString());
    }

    void write(const char* name, const QByteArray& bytes) const {
        QFile file(host(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    [[nodiscard]] QByteArray read(const QString& hostPath) const {
        QFile file(hostPath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir scratch_;
    QtPlatform platform_{scratch_.filePath(QStringLiteral("settings.ini")).toStdString()};
};

/// What a person does with the dialogs that open one after the other, each step with the topmost one. A step
/// waits until there is a dialog that no earlier step had, or one that has come back.
class Person : public QObject {
public:
    using Step = std::function<void(QWidget&)>;

    explicit Person(std::deque<Step> steps)
        : steps_(std::move(steps)) {
        next();
    }
    ~Person() override { EXPECT_TRUE(steps_.empty()) << steps_.size() << " dialogs did not open"; }

private:
    void next() {
        if (!steps_.empty())
            QTimer::singleShot(0, this, [this] { act(); });
    }

    void act() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog == busyWith_)
            return next();
        const Step step = std::move(steps_.front());
        steps_.pop_front();
        // A step that opens a dialog of its own returns only when later steps have closed that one.
        next();
        QWidget* const before = std::exchange(busyWith_, dialog);
        step(*dialog);
        busyWith_ = before;
    }

    std::deque<Step> steps_;
    QWidget* busyWith_ = nullptr;
};

} // namespace dyeworks
