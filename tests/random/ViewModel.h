#pragma once

#include "ImageModel.h"
#include "framework/CommandIds.h"
#include "paint/CurrentTool.h"
#include "paint/KeyEvent.h"
#include "paint/SelectionTracker.h"

#include <memory>
#include <optional>

namespace dyeworks {

/// What all views share.
struct ToolModel {
    Tool tool = Tool::Select;
    PlainPen pen; ///< Without its value.
    std::optional<PlainImage> clipboard;
    int cell = -1; ///< Of the palette bar; negative without one.
    int firstEntry = 0;
    int cells = 0;
};

/// The tool that a command chooses.
[[nodiscard]] std::optional<Tool> toolOf(CommandId id);

/// An image and what the pointer, keys and commands do in its view, with no thought for what is to be
/// repainted. Pointer positions count in pixels from the image's corner.
class ViewModel {
public:
    struct Pointer {
        Point position;
        bool control = false;
        bool alt = false;
    };

    ViewModel(ToolModel& shared, std::shared_ptr<ImageModel> shown)
        : owned(std::move(shown))
        , shared_(shared) {
        document.views.push_back(this);
    }
    ~ViewModel() { std::erase(document.views, this); }
    ViewModel(const ViewModel&) = delete;
    ViewModel& operator=(const ViewModel&) = delete;

    const std::shared_ptr<ImageModel> owned;
    ImageModel& document = *owned;
    std::optional<Rect> selection;
    std::optional<PlainImage> piece;
    std::uint32_t value = 0;
    int zoom = 1;
    bool grid = true;
    bool spuit = false;
    bool repeated = false;
    bool replaced = false; ///< The image has been: its palette is to be looked for again.

    /// The image with what floats in this view.
    [[nodiscard]] PlainImage seen() const;
    /// For an image that has just been opened or made.
    void begin();
    void press(const Pointer& event);
    void rightPress(Point position);
    void move(const Pointer& event);
    void release(const Pointer& event);
    /// What a drag has done so far, in any view of the image, is taken back. True when that changed the
    /// image.
    bool cancel();
    /// Only keys that are to do something.
    void key(Key key, bool shift);
    /// At the texel cursor a tool goes down, is led on and goes up.
    void hold(Point texel, bool control, bool alt);
    void walk(Point texel);
    void letGo();
    /// An enabled command of the view but Undo and Redo, which may concern others.
    void run(CommandId id);
    /// Nothing for a command that is not the view's.
    [[nodiscard]] std::optional<bool> enabled(CommandId id) const;
    /// Before the image is saved, or closed without a question.
    void settle();
    /// In a view that closes while others stay, what floats goes into the image.
    void close() {
        if (piece)
            commit();
    }
    /// What floats and is selected goes, in all views.
    void drop();
    /// The image becomes what `make` makes of it; what floats is placed before.
    template <typename Make>
    void replaceImage(Make make) {
        settle();
        PlainImage made = make(document.image());
        if (made == document.image())
            return;
        document.states.keep(std::exchange(document.image(), std::move(made)), 0, true);
        document.modified = true;
        imageReplaced();
    }
    /// The image has become another: what was selected in it goes, unless it floats.
    void imageReplaced();

    [[nodiscard]] bool dragging() const { return dragging_; }
    [[nodiscard]] bool heldByKeys() const { return dragging_ && byKeys_; }
    /// The cursor has been elsewhere since.
    [[nodiscard]] bool hasWalked() const { return heldByKeys() && walked_; }
    [[nodiscard]] bool exists() const {
        return keepsSelection(atPress_) && selection && selection->right > selection->left &&
               selection->bottom > selection->top;
    }
    /// Of a view that stands for all of its image.
    [[nodiscard]] bool isFirst() const { return document.views.front() == this; }
    [[nodiscard]] bool hasUnsavedChanges() const;
    [[nodiscard]] bool canUndo() const { return !document.states.undone.empty() || opensEdit(); }

private:
    [[nodiscard]] Point texel(Point position) const;
    /// The way to the copy of the image that has the texel.
    [[nodiscard]] Point copyWith(Point texel) const;
    [[nodiscard]] Point pointedAt(Point texel) const;
    [[nodiscard]] TrackerHit hitAt(Point position) const;
    [[nodiscard]] bool selecting() const { return dragging_ && atPress_ == Tool::Select; }
    /// Whether the drag draws what only its end makes a step.
    [[nodiscard]] bool opensEdit() const {
        return dragging_ && atPress_ != Tool::Select && atPress_ != Tool::Pixel && atPress_ != Tool::ZoomLens;
    }
    bool cancelOwn();
    void setSelection(Point from, Point to);
    void commit();
    void letFloat(PlainImage newPiece);
    void pick(Point position);
    void grab(Point position);
    void dragSelection(Point at, bool control);
    void follow(Point at);
    void drawShape();
    void zoomStep(bool out);
    bool clearSelected(bool wrap);
    [[nodiscard]] PlainPen pen() const;
    void turn(CommandId id);
    void crop();

    ToolModel& shared_;
    Tool atPress_ = Tool::Select;
    bool dragging_ = false;
    bool centred_ = false;
    bool cut_ = false;
    bool hasStep_ = false;
    TrackerHit hit_ = TrackerHit::None;
    Point anchor_, current_, previous_, start_;
    Point copy_; ///< That the drag began in.
    bool byKeys_ = false;
    bool walked_ = false;
    Point heldAt_;
    Pointer heldWith_;
    std::optional<PlainImage> snapshot_;
    std::optional<Rect> selectionBefore_;
};

} // namespace dyeworks
