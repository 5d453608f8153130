#include "platform/DisplayPalette.h"

namespace dyeworks {

bool DisplayPalette::create(const LogPalette& description) {
    if (valid() || description.entryCount == 0 || description.entryCount != description.entries.size())
        return false;
    entries_ = description.entries;
    return true;
}

void DisplayPalette::release() {
    entries_.clear();
}

} // namespace dyeworks
