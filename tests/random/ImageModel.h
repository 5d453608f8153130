#pragma once

#include "PlainImage.h"

#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

/// States of a thing, whole, with a number for each that tells whether two are the same one.
template <typename State>
struct WholeStates {
    static constexpr std::size_t kCapacity = 100;

    /// An edit, by what there is on its other side.
    struct Kept {
        State state;
        long number;
        long joint = 0;     ///< Of a step that is one with steps of other things; 0 for no such step.
        bool whole = false; ///< Brought another image, maybe of another size.
    };

    State now{};
    long number = 0;
    long saved = 0; ///< That the file holds.
    std::vector<Kept> undone, redone;

    /// What it was before the edit that has just been made.
    void keep(State before, long joint = 0, bool whole = false) {
        undone.push_back({std::move(before), number, joint, whole});
        if (undone.size() > kCapacity)
            undone.erase(undone.begin());
        redone.clear();
        number = ++last_;
    }
    bool undo() { return go(undone, redone); }
    bool redo() { return go(redone, undone); }
    /// How many steps lie on the way to that joint step and through it; 0 when it is not on that way.
    [[nodiscard]] std::size_t wayThrough(long joint, bool back) const {
        const std::vector<Kept>& steps = back ? undone : redone;
        for (std::size_t n = 1; n <= steps.size(); ++n) {
            if (steps[steps.size() - n].joint == joint)
                return n;
        }
        return 0;
    }
    /// Of the n-th step on that way, from 1 on.
    [[nodiscard]] long jointAt(std::size_t n, bool back) const {
        const std::vector<Kept>& steps = back ? undone : redone;
        return steps[steps.size() - n].joint;
    }
    /// Without a way back.
    void restart(State state) {
        now = std::move(state);
        undone.clear();
        redone.clear();
        number = saved = ++last_;
    }

private:
    bool go(std::vector<Kept>& from, std::vector<Kept>& to) {
        if (from.empty())
            return false;
        to.push_back({std::exchange(now, std::move(from.back().state)),
                      std::exchange(number, from.back().number), from.back().joint, from.back().whole});
        from.pop_back();
        return true;
    }

    long last_ = 0;
};

class ViewModel;

/// An open image, without its views.
struct ImageModel {
    std::vector<ViewModel*> views; ///< In the order in which they came.
    WholeStates<PlainImage> states;
    bool modified = false;
    bool inNoFile = false; ///< Whatever step it goes back to, until it is saved.
    std::string path;      ///< "" before it is saved.
    std::string name;      ///< In its title.
    std::string attached;

    [[nodiscard]] PlainImage& image() { return states.now; }

    /// False when nothing has changed.
    bool record(PlainImage before) {
        if (before == states.now)
            return false;
        states.keep(std::move(before));
        return modified = true;
    }
    template <typename Draw>
    bool edit(Draw draw) {
        PlainImage before = states.now;
        draw(states.now);
        return record(std::move(before));
    }
    /// The mark follows the history, wherever in it the file was written.
    void undo() {
        if (states.undo())
            modified = !states.undone.empty() || inNoFile;
    }
    void redo() {
        if (states.redo())
            modified = true;
    }
    void isInFile() {
        modified = inNoFile = false;
        states.saved = states.number;
    }
    [[nodiscard]] bool differsFromFile() const { return modified || states.number != states.saved; }
};

} // namespace dyeworks
