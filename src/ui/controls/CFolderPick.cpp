#include "ui/controls/CFolderPick.h"

#include "platform/Platform.h"

namespace dyeworks {

CFolderPick::CFolderPick()
    : control_("FolderPick") {}

std::unique_ptr<CFolderPick> CFolderPick::create() {
    std::unique_ptr<CFolderPick> made(new CFolderPick);
    return made->control_.exists() ? std::move(made) : nullptr;
}

void CFolderPick::setFolder(const std::string& path) {
    control_.set(2, platform().files().hostPath(path));
}

bool CFolderPick::choose(std::string& result) {
    std::string chosen;
    if (!control_.call(4, {std::int32_t{0}, &chosen}, false))
        return false;
    result = platform().files().fromHostPath(chosen);
    return true;
}

} // namespace dyeworks
