#pragma once

#include "framework/CommandIds.h"
#include "paint/widgets/ImageView.h"
#include "platform/qt/QtPlatform.h"
#include "ui/CDyeworksApp.h"

#include <QApplication>
#include <QTemporaryDir>

#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QDialog;

namespace dyeworks {

class CSwatchGrid;
struct PaletteBarId;

/// The program as a user has it, on the real platform, with settings and unsaved work in a folder of its own,
/// and the hands of the user. What does not go as it should ends the process with a message.
class RealProgram : public QObject {
public:
    /// There is one in a process. Without a folder (`home`) it has a new one, which goes with it.
    RealProgram(int& argc, char** argv, const QString& home = {});
    ~RealProgram() override;

    /// A host folder for files.
    [[nodiscard]] QString folder() const { return home_ + QStringLiteral("/files"); }
    /// Brings the program up, with its window.
    void start();

    [[nodiscard]] CDyeworksApp& app() { return *app_; }
    [[nodiscard]] CMainFrame& frame();
    [[nodiscard]] ImageView& view();
    [[nodiscard]] CDyeworksDoc& image() { return view().view().document(); }

    /// Everything that waits to happen has happened, and what was to be painted is.
    void settle();

    // With the pointer and the keys.
    /// Files are dropped on the main window.
    void drop(const QStringList& files);
    void run(CommandId id);
    /// The image to the current palette. One that was before is again when it is opened.
    void attach();
    void key(Qt::Key key, Qt::KeyboardModifiers held = {});
    [[nodiscard]] QPoint at(QPoint texel);
    /// Presses at the first texel, moves along the others, lets go at the last.
    void drag(std::initializer_list<QPoint> texels);
    void press(QPoint texel);
    void move(QPoint texel);
    void release(QPoint texel);
    void clickCell(int cell, Qt::KeyboardModifiers held = {});
    void enter(const PaletteBarId& field, const QString& text);
    void clickButton(const PaletteBarId& button);
    void dragSlider(const PaletteBarId& slider, double from, double to);
    /// The dialog that comes up next after those that are answered already gets this answer.
    void answerNext(std::function<void(QDialog&)> answer);
    /// Presses the key in it.
    void answerNext(Qt::Key key);
    /// Whether all that were to come up did.
    [[nodiscard]] bool allAnswered() const { return answers_.empty(); }

    [[noreturn]] static void fail(const std::string& what);
    static void check(bool holds, const char* what) {
        if (!holds)
            fail(what);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] CSwatchGrid& grid();
    [[nodiscard]] QPoint placeOf(int cell);
    void answer(QDialog& dialog);

    std::unique_ptr<QTemporaryDir> ownHome_;
    QString home_;
    std::unique_ptr<QApplication> application_;
    std::unique_ptr<QtPlatform> desktop_;
    std::unique_ptr<CDyeworksApp> app_;
    std::deque<std::function<void(QDialog&)>> answers_;
};

/// Files in the formats of the program.
void writeImageFile(const QString& file, int width, int height, int bits);
void writePaletteFile(const QString& file, int count, int seed);

} // namespace dyeworks
