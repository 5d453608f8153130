#include "palette/PaletteBarChanges.h"

#include <utility>

namespace dyeworks {

void PaletteBarChanges::tell() {
    const unsigned changed = std::exchange(changed_, 0U);
    if ((changed & kTabs) != 0)
        view_.tabsChanged();
    if ((changed & kLayout) != 0)
        view_.layoutChanged();
    if ((changed & kValues) != 0)
        view_.valuesChanged();
}

} // namespace dyeworks
