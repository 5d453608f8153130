#include "PlugInProgram.h"

#include "framework/widgets/ChildFrame.h"
#include "platform/posix/PosixVersionInfo.h"
#include "ui/sheets/AboutDialog.h"

#include <QApplication>
#include <QDropEvent>
#include <QStatusBar>
#include <QTimer>

#include <fstream>
#include <sstream>

namespace dyeworks {

namespace {

std::string bytesOfFile(const std::string& hostPath) {
    std::ostringstream bytes;
    bytes << std::ifstream(hostPath, std::ios::binary).rdbuf();
    return bytes.str();
}

} // namespace

/// Sees the events of all objects.
class PlugInProgram::Watch final : public QObject {
public:
    explicit Watch(PlugInProgram& own)
        : own_(own) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Show && dynamic_cast<AboutDialog*>(object) != nullptr) {
            ++own_.abouts_;
            QTimer::singleShot(0, object, [this, object] {
                if (own_.onAbout_)
                    own_.onAbout_();
                static_cast<AboutDialog*>(object)->reject();
            });
        }
        if (event->type() == QEvent::Paint && qobject_cast<ImageView*>(object->parent()) != nullptr)
            ++own_.repaints_;
        return false;
    }

private:
    PlugInProgram& own_;
};

PlugInProgram::PlugInProgram()
    : watch_(std::make_unique<Watch>(*this)) {
    commandLine_.task = CommandLine::Task::Receive; // nothing is resumed
    qputenv("DYEWORKS_TEST_LOG", QByteArray::fromStdString(fake_.files.hostPath("c:\\log.txt")));
    fake_.files.putFile(kImage, imageFile(texels(24, 8, [](int, int) { return 1U; }), 8));
    fake_.files.putFile(kPalette, paletteFile(256, [](int i) { return static_cast<unsigned>(i * 193 + 7); }));
    fake_.files.putFile(kProject, "PICT_NUM = 1\nPICT.0 = Sky,sky.tmf,sky.tlf,2\n");
}

PlugInProgram::~PlugInProgram() {
    if (app_ != nullptr)
        leave();
}

void PlugInProgram::install(const std::string& library, const std::string& file) {
    const std::string path = "c:\\program\\PlugIns\\" + file;
    fake_.files.putFile(path, bytesOfFile(DYEWORKS_TEST_PLUG_INS + library + ".so"));
    fake_.library.defineFile(path, fake_.files.hostPath(path));
    if (const auto record = PosixVersionInfo(fake_.files, {}).read(path))
        fake_.versionInfo.records[path] = *record;
}

void PlugInProgram::start() {
    ASSERT_TRUE(launch());
    QObject::connect(frame().statusBar(), &QStatusBar::messageChanged, watch_.get(),
                     [this](const QString& text) {
                         if (!text.isEmpty())
                             status_.push_back(text.toStdString());
                     });
}

void PlugInProgram::openImage() {
    ASSERT_TRUE(app_->OpenFiles({kPalette, kImage}, true));
    QCoreApplication::processEvents();
}

void PlugInProgram::openProject() {
    ASSERT_TRUE(app_->OpenDocumentFile(kProject));
    QCoreApplication::processEvents();
}

void PlugInProgram::leave() {
    fake_.messages = {};
    fake_.messages.answerWith({MessageAnswer::No, MessageAnswer::No, MessageAnswer::No});
    EXPECT_TRUE(frame().close());
    EXPECT_EQ(app_->ExitInstance(), 0);
    app_.reset();
    fake_.messages = {};
    EXPECT_EQ(fake_.waitCursor.depth, 0);
}

QSize PlugInProgram::piece() {
    const Rect place = view().view().selection().texels().value_or(Rect{});
    return view().view().selection().hasFloatingPiece()
               ? QSize(place.right - place.left + 1, place.bottom - place.top + 1)
               : QSize();
}

Lines PlugInProgram::menu(CommandId first) {
    Lines entries;
    for (CommandId id = first; id < first + 16; ++id) {
        const CommandUi state = app_->router().state(id);
        if (state.visible && state.text)
            entries.push_back(*state.text);
    }
    return entries;
}

ProjectTreeWidget& PlugInProgram::tree() {
    ChildFrame& window = *frame().frameOf(project());
    frame().activateChild(window);
    return dynamic_cast<ProjectTreeWidget&>(*window.widget());
}

QModelIndex PlugInProgram::node(const std::string& path) {
    const auto& model = dynamic_cast<const ProjectTreeModel&>(*tree().model());
    return model.indexOf(tree().view().tree().FindNode(path));
}

Qt::DropAction PlugInProgram::drag(const std::string& from, const std::string& to,
                                   Qt::KeyboardModifiers keys) {
    constexpr Qt::DropActions kAll = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    tree().setCurrentIndex(node(from));
    QMimeData data;
    data.setText(QString::fromStdString(tree().view().dragData().value_or("")));
    const QPoint target = tree().visualRect(node(to)).center();
    QDragEnterEvent enter(target, kAll, &data, Qt::LeftButton, keys);
    QApplication::sendEvent(tree().viewport(), &enter);
    QDragMoveEvent move(target, kAll, &data, Qt::LeftButton, keys);
    QApplication::sendEvent(tree().viewport(), &move);
    const Qt::DropAction action = move.isAccepted() ? move.dropAction() : Qt::IgnoreAction;
    QDropEvent drop(target, kAll, &data, Qt::LeftButton, keys);
    drop.setDropAction(action);
    QApplication::sendEvent(tree().viewport(), &drop);
    return action;
}

Lines PlugInProgram::log() {
    std::istringstream text(fake_.files.textOf("c:\\log.txt").value_or(""));
    fake_.files.remove("c:\\log.txt");
    Lines lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

} // namespace dyeworks
