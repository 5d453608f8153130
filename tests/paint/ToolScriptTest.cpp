#include "CanvasTesting.h"
#include "ToolModel.h"
#include "ViewTestWindow.h"
#include "paint/ViewGeometry.h"
#include "paint/ViewRenderer.h"

#include <random>
#include <sstream>

namespace dyeworks {

void PrintTo(const ToolCommand& tool, std::ostream* out) {
    *out << tool.name;
}

namespace {

constexpr const char* kScriptPath = "c:\\a [b] * c.tmf";
constexpr CommandId kOfSelected[] = {ID_CANCEL_SELECTION, ID_FLIP_X, ID_FLIP_Y, ID_EDIT_COPY, ID_EDIT_CUT};

constexpr CommandId kEditCommands[] = {ID_EDIT_UNDO,  ID_EDIT_UNDO,        ID_EDIT_REDO,  ID_EDIT_SELECT_ALL,
                                       ID_TOOL_SPUIT, ID_CANCEL_SELECTION, ID_FLIP_X,     ID_FLIP_Y,
                                       ID_EDIT_COPY,  ID_EDIT_CUT,         ID_EDIT_PASTE, ID_EDIT_PASTE};

constexpr Key kKeys[] = {Key::Escape, Key::Enter, Key::Left,    Key::Up,           Key::Right, Key::Down,
                         Key::I,      Key::O,     Key::Numpad9, Key::NumpadDivide, Key::Other};

/// A view and the model of it, side by side.
class ToolScript : public DocFixture, public testing::WithParamInterface<ToolCommand> {
protected:
    ToolScript() {
        const std::uint16_t bits = static_cast<int>(GetParam().tool) % 2 == 0 ? 4 : 8;
        // Of an odd width, so that rows of 4 bits end within a byte.
        document.canvas().Create(15, 12, 1, bits);
        window.view = &view;
        openPalette(256);
        document.setPathName(kScriptPath);
        document.Attach();
        view.InitialUpdate();
        otherWindow.view = &other;
        other.InitialUpdate();
        for (std::int32_t y = 0; y < 12; ++y)
            document.canvas().DrawLine(0, y, 15, 11 - y, static_cast<std::uint32_t>(y));
        document.canvas().ResetChangedRect();
        setCurrentTool(Tool::Select);
        title_ = "a [b] * c.tmf [" + host.palettes.palettes.begin()->second->title + "]";
        model.image = document.canvas().Clone();
        model.value = (1U << bits) - 1;
        model.client = window.client;
        model.firstEntry = host.firstEntry = 32;
        model.cell = host.cell = 41;
        // Wider than the image.
        model.clipboard = std::make_unique<TextureCanvas>();
        EXPECT_TRUE(model.clipboard->Create(20, 3, 1, bits));
        model.clipboard->FillEllipse(0, 0, 19, 2, 12);
        EXPECT_TRUE(model.clipboard->CopyToClipboard({0, 0, 19, 2}));
    }
    ~ToolScript() override {
        window.view = otherWindow.view = nullptr;
        setCurrentTool(Tool::Select);
    }

    void zoomTo(std::int32_t zoom) {
        view.SetZoom(zoom);
        model.zoomed(zoom, window.scroll, window.pointer);
    }
    /// Where zooming leads is the geometry's affair.
    void followZoom(bool zooms, bool out) {
        if (zooms)
            model.zoomed(out ? ViewGeometry::zoomedOut(model.zoom) : ViewGeometry::zoomedIn(model.zoom),
                         window.scroll, window.pointer);
    }
    void run(CommandId id) {
        view.runCommand(id);
        model.command(id);
        log_ << "command " << id;
    }
    void play() {
        PointerEvent event{{below(52) - 6, below(42) - 6},
                           below(12) == 0,
                           below(8) == 0,
                           below(5) == 0,
                           PointerButton::Left};
        log_.str("at ");
        log_ << event.position.x << ' ' << event.position.y << ' ' << event.shift << event.control
             << event.alt << ' ';
        window.pointer = event.position;
        const std::int32_t dice = below(103);
        if (dice < 22) {
            log_ << "press";
            view.PointerPressed(event);
            model.press(event);
        } else if (dice < 58) {
            log_ << "move";
            event.button = PointerButton::None;
            view.PointerMoved(event);
            model.move(event);
        } else if (dice < 74) {
            log_ << "release";
            view.PointerReleased(event);
            followZoom(model.release(event), event.control);
        } else if (dice < 84) {
            KeyEvent key{oneOf(kKeys), below(6) == 0 ? 2 : 1, below(2) == 0, false};
            // Without a selection the arrows walk the texel cursor, of which the model has none.
            if (key.key >= Key::Left && key.key <= Key::Down && !model.exists())
                key.key = Key::Other;
            log_ << "key " << static_cast<int>(key.key) << " x" << key.repeatCount << ' ' << key.shift;
            const bool taken = model.keyDown(key);
            EXPECT_EQ(view.KeyPressed(key), taken) << lastEvent();
            followZoom(taken && model.zooms(key.key), key.key == Key::O || key.key == Key::NumpadDivide);
        } else if (dice < 91) {
            run(below(3) == 0 ? oneOf(kToolCommands).command : oneOf(kEditCommands));
        } else if (dice < 94) {
            model.cell = host.cell = below(64) - 1;
        } else if (dice < 96) {
            log_ << "right press";
            event.button = PointerButton::Right;
            view.PointerPressed(event);
            model.rightPress(event.position);
        } else if (dice < 97) {
            log_ << "capture lost";
            view.PointerCaptureLost();
            model.cancel();
        } else if (dice < 98) {
            view.Tick();
            model.antsPhase = model.antsPhase != (model.selection != Rect{});
        } else if (dice < 99) {
            log_ << "colours";
            document.RefreshPalette();
        } else if (dice < 101) {
            log_ << "image";
            TextureCanvas set;
            EXPECT_TRUE(set.CreateLike(*model.image));
            set.FillEllipse(below(16), below(12), below(16), below(12), 5);
            model.setImage(set);
            EXPECT_TRUE(document.SetImage(*set.ToImage()));
        } else if (dice < 102) {
            log_ << "save";
            model.save();
            EXPECT_TRUE(document.save());
            EXPECT_FALSE(document.hasUnsavedChanges());
            TextureCanvas saved;
            EXPECT_TRUE(saved.LoadTmf(kScriptPath));
            EXPECT_EQ(rowsOf(saved), rowsOf(*model.image));
        } else {
            log_ << "tool chosen in another window";
            model.tool = oneOf(kToolCommands).tool;
            setCurrentTool(model.tool);
        }
    }

    std::string seen() {
        const Rect s = view.selection().texels().value_or(Rect{});
        return described(
            document.canvas(), document.title(), host.panes[1],
            {document.edits().canUndo(), document.edits().canRedo(), document.edits().steps->count(), s.left,
             s.top, s.right, s.bottom, view.selection().hasFloatingPiece(), view.drawingValue(), host.cell,
             view.zoom(), window.scroll.x, window.scroll.y, static_cast<int>(view.contextMenu()),
             window.captured, stateOf(view, ID_EDIT_SELECT_ALL).enabled,
             std::ranges::count_if(kOfSelected, [this](CommandId id) { return stateOf(view, id).enabled; }),
             static_cast<int>(currentTool()), window.interval});
    }
    std::string expected() const {
        const Rect& s = model.selection;
        const std::size_t steps = model.undone.size() + model.redone.size();
        return described(*model.image, title_ + (model.modified ? " * " : ""), model.position,
                         {!model.undone.empty(), !model.redone.empty(), static_cast<std::int64_t>(steps),
                          s.left, s.top, s.right, s.bottom, model.piece != nullptr, model.value, model.cell,
                          model.zoom, model.scroll.x, model.scroll.y, static_cast<int>(model.menu()),
                          model.dragging, model.keeps(model.atPress), model.exists() ? 5 : 0,
                          static_cast<int>(model.tool), s == Rect{} ? 0 : 200});
    }
    std::vector<std::uint32_t> expectedPicture() const {
        ViewLook look;
        look.zoom = model.zoom;
        look.outsideColour = PaintingWindow::kOutside;
        // A frame is shown while it is drawn out, also around what is too small to be a selection.
        if (model.exists() || model.piece != nullptr || (model.selecting() && model.selection != Rect{}))
            look.selection = {model.selection, model.piece.get(), 10, model.antsPhase};
        return window.drawn([&](Surface& surface, const Rect& area) {
            ViewRenderer(*model.image, look).draw(surface, area);
        });
    }
    std::string lastEvent() const { return log_.str(); }

    PaintingWindow window;
    CDyeworksView view{document, window};
    PaintingWindow otherWindow;
    CDyeworksView other{document, otherWindow};
    ToolModel model;

private:
    std::int32_t below(std::int32_t limit) {
        return static_cast<std::int32_t>(random_() % static_cast<unsigned>(limit));
    }
    template <typename T, std::size_t kCount>
    const T& oneOf(const T (&choices)[kCount]) {
        return choices[below(static_cast<std::int32_t>(kCount))];
    }

    static std::string described(const TextureCanvas& image, const std::string& title,
                                 const std::string& position, std::initializer_list<std::int64_t> numbers) {
        std::ostringstream out;
        for (const std::string& row : rowsOf(image))
            out << row << '\n';
        out << title << '\n' << position;
        const char* const names[] = {
            "\nundo ",    " redo ",   " steps ",       "\nselected ", " ",     " ", " ",
            " floats ",   "\nvalue ", " cell ",        " zoom ",      " at ",  " ", "\nmenu ",
            " captured ", " select ", " of selected ", " tool ",      " ants "};
        const char* const* name = names;
        for (const std::int64_t number : numbers)
            out << *name++ << number;
        return out.str();
    }

    std::mt19937 random_{static_cast<unsigned>(GetParam().tool) + 1};
    std::string title_;
    std::ostringstream log_;
};

TEST_P(ToolScript, DoesWhatTheModelDoesAndShowsIt) {
    for (int turn = 0; turn < 1200; ++turn) {
        if (turn % 300 == 0)
            zoomTo(1 + turn / 300 * 3);
        // Other tools come in between, but soon it is this one's turn again.
        if (turn % 12 == 0)
            run(GetParam().command);
        play();
        ASSERT_EQ(seen(), expected()) << "event " << turn << ' ' << lastEvent();
        window.repaintNow();
        otherWindow.repaintNow();
        if (view.dragging() && !model.selecting())
            continue;
        ASSERT_EQ(otherWindow.shown, otherWindow.painted(0)) << "event " << turn << ' ' << lastEvent();
        ASSERT_EQ(window.painted(0), expectedPicture()) << "event " << turn << ' ' << lastEvent();
        ASSERT_EQ(window.shown, window.painted(0)) << "event " << turn << ' ' << lastEvent();
    }
}

INSTANTIATE_TEST_SUITE_P(Tools, ToolScript, testing::ValuesIn(kToolCommands),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace dyeworks
