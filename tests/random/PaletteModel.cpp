#include "DeskModel.h"

#include <utility>

namespace dyeworks {

namespace {

constexpr const char* kMark = " * ";

std::string withoutMark(const std::string& title) {
    return title.substr(0, title.find(kMark));
}

std::string paletteTitle(const std::string& path) {
    const std::string name = path.substr(path.rfind('\\') + 1);
    return name.substr(0, name.rfind('.'));
}

} // namespace

/// An entry that is set marks the palette, but not its title; the title follows the history alone.
void PaletteModel::edit(PlainTable table) {
    setEntries(std::move(table));
    followHistory();
}

void PaletteModel::setEntries(PlainTable table) {
    stale = true;
    states.keep(std::exchange(states.now, std::move(table)));
    modified = true;
}

void PaletteModel::move(PlainTable table, long joint) {
    states.keep(std::exchange(states.now, std::move(table)), joint);
    followHistory();
}

bool PaletteModel::undo() {
    if (!states.undo())
        return false;
    followHistory();
    return true;
}

bool PaletteModel::redo() {
    if (!states.redo())
        return false;
    followHistory();
    return true;
}

void PaletteModel::followHistory() {
    const bool clean = states.undone.empty();
    if (clean && modified)
        title = withoutMark(title);
    if (!clean && !modified)
        title = withoutMark(title) + kMark;
    modified = !clean;
}

void PaletteModel::named(const std::string& file) {
    path = file;
    title = paletteTitle(file);
    modified = false;
    states.saved = states.number;
    inFile = states.now;
}

void PaletteModel::reload(PlainTable table) {
    if (table != states.now)
        states.keep(std::exchange(states.now, std::move(table)));
    title = withoutMark(title);
    modified = stale = false;
    states.saved = states.number;
    inFile = states.now;
}

} // namespace dyeworks
