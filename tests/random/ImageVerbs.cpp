#include "Desk.h"
#include "ui/CMainFrame.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>

namespace dyeworks {

namespace {

constexpr std::array kCommands{
    ID_IMAGE_TURN_LEFT, ID_IMAGE_TURN_RIGHT, ID_IMAGE_TURN_HALF, ID_IMAGE_SHIFT_HALF, ID_IMAGE_CROP,
    ID_EDIT_SELECT_ALL, ID_TOOL_SPUIT,       ID_FLIP_X,          ID_FLIP_Y,           ID_CANCEL_SELECTION,
    ID_EDIT_COPY,       ID_EDIT_CUT,         ID_EDIT_PASTE,      ID_EDIT_PASTE,       ID_ZOOM_IN,
    ID_ZOOM_OUT,        ID_ZOOM_X1,          ID_ZOOM_X4,         ID_ZOOM_X6,          ID_VIEW_GRID,
    ID_TOOL_SELECT,     ID_TOOL_PIXEL,       ID_TOOL_PEN,        ID_TOOL_LINE,        ID_TOOL_BOX,
    ID_TOOL_BOX_FILL,   ID_TOOL_CIRCLE,      ID_TOOL_ZOOM_LENS,  ID_TOOL_CIRCLE_FILL, ID_TOOL_PAINT,
    ID_TOOL_REPLACER,   ID_TOOL_SELECT,      ID_MIRROR_ACROSS,   ID_MIRROR_DOWN,      ID_DRAW_WRAP,
    ID_BRUSH_SQUARE,    ID_BRUSH_ROUND,      ID_VIEW_REPEAT};

// Where keys lead; the image ends before.
struct Walk {
    Qt::Key key;
    Point way;
};
constexpr std::array<Walk, 8> kWalks{{{Qt::Key_Left, {-1, 0}},
                                      {Qt::Key_Right, {1, 0}},
                                      {Qt::Key_Up, {0, -1}},
                                      {Qt::Key_Down, {0, 1}},
                                      {Qt::Key_Home, {-99, 0}},
                                      {Qt::Key_End, {99, 0}},
                                      {Qt::Key_PageUp, {0, -99}},
                                      {Qt::Key_PageDown, {0, 99}}}};
constexpr std::array<std::pair<Qt::Key, Key>, 8> kKeys{{{Qt::Key_Escape, Key::Escape},
                                                        {Qt::Key_Return, Key::Enter},
                                                        {Qt::Key_Left, Key::Left},
                                                        {Qt::Key_Up, Key::Up},
                                                        {Qt::Key_Right, Key::Right},
                                                        {Qt::Key_Down, Key::Down},
                                                        {Qt::Key_I, Key::I},
                                                        {Qt::Key_O, Key::O}}};

// What a pointer event is: a texel, a little way outside the image too, where in it, and keys held down.
const std::vector<int> kPointer{48, 48, 16, 16};
constexpr int kMargin = 4;

struct Event {
    ViewModel::Pointer model;
    QPoint client;
    Qt::KeyboardModifiers modifiers;
};

Event eventOf(Desk& desk, const std::vector<int>& n) {
    ViewModel& image = *desk.model.active;
    const int zoom = image.zoom;
    const Point texel{n[0] % (image.document.image().width + 2 * kMargin) - kMargin,
                      n[1] % (image.document.image().height + 2 * kMargin) - kMargin};
    Event event;
    event.model.position = {texel.x * zoom + n[2] % zoom, texel.y * zoom + n[2] / 2 % zoom};
    event.model.control = n[3] == 1 || n[3] == 3;
    event.model.alt = n[3] == 2 || n[3] == 3;
    event.modifiers.setFlag(Qt::ControlModifier, event.model.control);
    event.modifiers.setFlag(Qt::AltModifier, event.model.alt);
    const PlainImage& shown = image.document.image();
    const QPoint corner = image.repeated ? QPoint(shown.width, shown.height) * zoom : QPoint();
    event.client = QPoint(event.model.position.x, event.model.position.y) + corner -
                   static_cast<const ScrollView&>(*desk.view()).scrollPosition();
    return event;
}

void send(Desk& desk, const Event& event, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
    QWidget* const viewport = desk.view()->viewport();
    QMouseEvent mouse(type, event.client, viewport->mapToGlobal(event.client), button, held, event.modifiers);
    QCoreApplication::sendEvent(viewport, &mouse);
}

void press(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    const Event event = eventOf(desk, n);
    if (desk.model.active->heldByKeys())
        desk.model.active->letGo();
    const bool again = desk.model.active->dragging();
    desk.model.active->press(event.model);
    // A press while the button is held is one that a window manager has lost the release of.
    send(desk, event, again ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, Qt::LeftButton,
         Qt::LeftButton);
}

void rightPress(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    const Event event = eventOf(desk, n);
    if (desk.model.active->heldByKeys())
        desk.model.active->letGo();
    desk.model.active->rightPress(event.model.position);
    send(desk, event, QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton);
    send(desk, event, QEvent::MouseButtonRelease, Qt::RightButton,
         desk.model.active->dragging() ? Qt::LeftButton : Qt::NoButton);
}

void move(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    const Event event = eventOf(desk, n);
    const bool byKeys = desk.model.active->heldByKeys();
    const bool drags = desk.model.active->dragging() && !byKeys;
    if (!byKeys)
        desk.model.active->move(event.model);
    send(desk, event, QEvent::MouseMove, Qt::NoButton, drags ? Qt::LeftButton : Qt::NoButton);
}

void release(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    const Event event = eventOf(desk, n);
    if (!desk.model.active->heldByKeys())
        desk.model.active->release(event.model);
    send(desk, event, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
}

void drag(Desk& desk, const std::vector<int>& n) {
    press(desk, n);
    move(desk, {n[4], n[5], n[2], n[3]});
    move(desk, {n[6], n[7], n[2], n[3]});
    release(desk, {n[6], n[7], n[2], n[3]});
}

/// More steps than a history holds.
void drawMuch(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr || desk.model.active->dragging())
        return;
    desk.run(ID_TOOL_PIXEL);
    desk.model.active->run(ID_TOOL_PIXEL);
    for (int i = 0; i < 130; ++i) {
        desk.app().imageHost().selectPaletteBarCell((n[0] + i) % 16);
        desk.readBar();
        press(desk, {n[1] + i, n[2] + i / 5, 0, 0});
        release(desk, {n[1] + i, n[2] + i / 5, 0, 0});
    }
}

void key(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    const auto& [qtKey, key] = kKeys[static_cast<std::size_t>(n[0]) % kKeys.size()];
    ViewModel& image = *desk.model.active;
    // Without a selection the arrows walk the texel cursor.
    if (key >= Key::Left && key <= Key::Down && (!image.exists() || image.heldByKeys()))
        return;
    const bool shift = n[1] == 1 && key >= Key::Left && key <= Key::Down;
    image.key(key, shift);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, qtKey, shift ? Qt::ShiftModifier : Qt::NoModifier);
        QCoreApplication::sendEvent(desk.view(), &event);
    }
}

/// Where it stands; nothing when it is not shown.
std::optional<Point> texelCursor(Desk& desk) {
    Point at;
    if (std::sscanf(desk.view()->view().toldTexel().c_str(), "%d, %d", &at.x, &at.y) != 2)
        return std::nullopt;
    return at;
}

/// Walks the texel cursor, holds a tool down there or lets it go. Where it is shown first is the window's
/// affair. To an image without colours keys do nothing.
void cursorKey(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    ViewModel& image = *desk.model.active;
    const bool blank = n[0] >= static_cast<int>(kWalks.size());
    const Walk& walk = kWalks[static_cast<std::size_t>(n[0]) % kWalks.size()];
    const Qt::Key key = blank ? Qt::Key_Space : walk.key;
    const bool works = desk.model.paletteOf(image) != nullptr && (!image.dragging() || image.heldByKeys());
    const bool control = n[1] == 1;
    const bool centred = blank && n[1] == 2;
    const int step = control ? 8 : 1;
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ControlModifier, control);
    modifiers.setFlag(Qt::ShiftModifier, centred);
    modifiers.setFlag(Qt::AltModifier, !blank && image.exists());
    std::optional<Point> at = texelCursor(desk);
    const bool wasShown = at.has_value();
    // Held down until the next time, or let go of.
    const bool presses = !blank || n[2] < 3;
    const bool releases = !blank || n[2] != 1;
    const auto send = [&](QEvent::Type type) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(desk.view(), &event);
    };
    if (presses) {
        send(QEvent::KeyPress);
        if (!works || !wasShown)
            at = texelCursor(desk);
        else if (!blank)
            at = {std::clamp(at->x + step * walk.way.x, 0, image.document.image().width - 1),
                  std::clamp(at->y + step * walk.way.y, 0, image.document.image().height - 1)};
        if (works && !blank && image.heldByKeys())
            image.walk(*at);
        else if (works && blank && image.heldByKeys())
            image.letGo();
        else if (works && blank && wasShown)
            image.hold(*at, control, centred);
    }
    if (releases) {
        if (blank && image.hasWalked())
            image.letGo();
        send(QEvent::KeyRelease);
    }
    if (const auto now = texelCursor(desk); now.has_value() != at.has_value() || (now && *now != *at))
        desk.wonder("the texel cursor stands elsewhere");
}

void undo(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    const bool back = n[0] > 0;
    const bool enabled = desk.model.enabled(back ? ID_EDIT_UNDO : ID_EDIT_REDO).value_or(false);
    const std::size_t asked = desk.model.messages;
    ViewModel& image = *desk.model.active;
    DeskModel& model = desk.model;
    if (enabled)
        model.undoImage(image, back, n[1]);
    if (model.messages > asked)
        desk.answerNext(n[1]);
    desk.expectRun(back ? ID_EDIT_UNDO : ID_EDIT_REDO, enabled);
}

void command(Desk& desk, const std::vector<int>& n) {
    const CommandId id = kCommands[static_cast<std::size_t>(n[0]) % kCommands.size()];
    const bool enabled = desk.model.enabled(id).value_or(false);
    desk.run(id);
    if (enabled)
        desk.model.active->run(id);
    desk.model.refreshReplaced();
}

void brush(Desk& desk, const std::vector<int>& n) {
    const CommandId id = n[0] == 0 ? ID_BRUSH_LARGER : ID_BRUSH_SMALLER;
    for (int i = 0; i <= n[1]; ++i) {
        if (desk.run(id))
            desk.model.active->run(id);
    }
}

/// Resize Canvas, Scale or Shift.
void resize(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    ViewModel& image = *desk.model.active;
    struct Sheet {
        CommandId id;
        const char *first, *second, *button;
    };
    static constexpr Sheet kSheets[] = {
        {ID_IMAGE_RESIZE, "IDC_RESIZE_WIDTH", "IDC_RESIZE_HEIGHT", "IDC_RESIZE_ANCHOR_"},
        {ID_IMAGE_SCALE, "IDC_SCALE_WIDTH", "IDC_SCALE_HEIGHT", "IDC_SCALE_LOCK"},
        {ID_IMAGE_SHIFT, "IDC_SHIFT_RIGHT", "IDC_SHIFT_DOWN", nullptr}};
    const Sheet& used = kSheets[n[0] % 3];
    const int fill = n[4] & static_cast<int>(image.document.image().mask());
    const Point numbers = n[0] % 3 == 2 ? Point{n[1] - 20, n[2] - 20} : Point{n[1] + 1, n[2] + 1};
    desk.withNextDialog([&](QDialog& sheet) {
        const auto type = [&](const char* name, int number) {
            auto* const field = sheet.findChild<QWidget*>(QLatin1String(name));
            field->findChild<QLineEdit*>()->setText(QString::number(number));
        };
        if (n[0] % 3 == 0)
            type("IDC_RESIZE_FILL", fill);
        if (used.button != nullptr)
            sheet
                .findChild<QAbstractButton*>(used.button +
                                             (n[0] % 3 == 0 ? QString::number(n[3]) : QString()))
                ->click();
        type(used.first, numbers.x);
        type(used.second, numbers.y);
        sheet.findChild<QAbstractButton*>(QStringLiteral("IDOK"))->click();
    });
    desk.run(used.id);
    image.replaceImage([&](const PlainImage& old) {
        return n[0] % 3 == 0   ? old.resized(numbers, n[3], static_cast<std::uint32_t>(fill))
               : n[0] % 3 == 1 ? old.scaled(numbers)
                               : old.shifted(numbers);
    });
    desk.model.refreshReplaced();
}

/// To 8 bits, or to 4. Where texels lie outside the bank there is a question, of which a yes can be foretold
/// only where the palette gives all colours.
void depth(Desk& desk, const std::vector<int>& n) {
    if (desk.model.active == nullptr)
        return;
    ViewModel& image = *desk.model.active;
    const PaletteModel* const palette = desk.model.paletteOf(image);
    const bool whole = palette != nullptr && palette->table().entries.size() == 256;
    image.cancel();
    const PlainImage seen = image.seen();
    if (seen.bits == 4) {
        const int value = desk.view()->view().document().paletteValue();
        desk.run(ID_IMAGE_TO_8_BITS);
        const int first = whole && value >= 0 && value < 256 ? value / 16 * 16 : 0;
        image.replaceImage(
            [&](const PlainImage& old) { return old.inDepth(8, [&](int texel) { return texel + first; }); });
        return desk.model.refreshReplaced();
    }
    const auto inBank = [&](std::size_t bank) {
        return std::ranges::count_if(seen.texels, [&](unsigned texel) { return texel / 16 == bank; });
    };
    const std::size_t banks = palette == nullptr ? 16 : palette->table().entries.size() / 16;
    std::size_t bank = 0;
    for (std::size_t other = 1; other < banks; ++other)
        bank = inBank(other) > inBank(bank) ? other : bank;
    const bool asks = inBank(bank) < std::ssize(seen.texels);
    const bool agrees = whole && n[0] > 0;
    if (asks && agrees && n[0] > 1)
        bank = static_cast<std::size_t>(n[1]);
    if (asks) {
        desk.withNextDialog([&](QDialog& sheet) {
            if (agrees)
                sheet.findChild<QComboBox*>(QStringLiteral("IDC_REDUCE_BANK"))
                    ->setCurrentIndex(static_cast<int>(bank));
            sheet.findChild<QAbstractButton*>(agrees ? QStringLiteral("IDOK") : QStringLiteral("IDCANCEL"))
                ->click();
        });
    }
    desk.run(ID_IMAGE_TO_4_BITS);
    if (asks && !agrees)
        return;
    image.replaceImage([&](const PlainImage& old) {
        return old.inDepth(4, [&](std::size_t texel) {
            return asks ? palette->table().nearestInBank(texel, bank) : texel % 16;
        });
    });
    desk.model.refreshReplaced();
}

void cell(Desk& desk, const std::vector<int>& n) {
    desk.app().imageHost().selectPaletteBarCell(n[0]);
}

void repaint(Desk& desk, const std::vector<int>& /*n*/) {
    static_cast<void>(desk.frame().grab());
}

} // namespace

const std::vector<Verb>& imageVerbs() {
    static const std::vector<Verb> verbs{{"press", 120, kPointer, press},
                                         {"move", 240, kPointer, move},
                                         {"release", 120, kPointer, release},
                                         {"right-press", 10, kPointer, rightPress},
                                         {"drag", 150, {48, 48, 16, 16, 48, 48, 48, 48}, drag},
                                         {"key", 80, {8, 3}, key},
                                         {"cursor-key", 80, {14, 4, 4}, cursorKey},
                                         {"command", 135, {static_cast<int>(kCommands.size())}, command},
                                         {"undo", 20, {3, 2}, undo},
                                         {"cell", 30, {256}, cell},
                                         {"brush", 20, {3, 5}, brush},
                                         {"resize", 12, {3, 40, 40, 9, 256}, resize},
                                         {"depth", 12, {3, 16}, depth},
                                         {"draw-much", 2, {16, 48, 48}, drawMuch},
                                         {"repaint", 2, {}, repaint}};
    return verbs;
}

} // namespace dyeworks
