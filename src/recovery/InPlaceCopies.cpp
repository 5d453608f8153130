#include "recovery/InPlaceCopies.h"

#include "framework/PathText.h"
#include "platform/Platform.h"
#include "platform/StateFolder.h"
#include "recovery/RecoveryItem.h"

#include <ctime>
#include <new>
#include <span>
#include <utility>
#include <vector>

namespace dyeworks {

InPlaceCopies::InPlaceCopies(StateFolder& folder, Broken broken, std::function<void()> written)
    : folder_(folder)
    , broken_(std::move(broken))
    , written_(std::move(written)) {
    platform().files().setSafetyCopies(this);
}

InPlaceCopies::~InPlaceCopies() {
    platform().files().setSafetyCopies(nullptr);
}

bool InPlaceCopies::keep(const std::string& path, FilePieces pieces) {
    try {
        const std::string full = platform().files().fullPath(path);
        std::string& name = names_[full];
        if (name.empty())
            name = "file-" + std::to_string(latest_++);
        const std::string header = recoveryHeader(
            {RecoveryItem::Kind::File, full, std::string(fileNameOf(full)), std::time(nullptr), {}, 0});
        std::vector<std::span<const std::byte>> all{std::as_bytes(std::span(header))};
        all.insert(all.end(), pieces.begin(), pieces.end());
        return !folder_.write(name, all);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void InPlaceCopies::release(const std::string& path) {
    if (const auto kept = names_.extract(platform().files().fullPath(path)))
        folder_.remove(kept.mapped());
}

void InPlaceCopies::broken(const std::string& path, FileError why) {
    broken_(path, why);
}

void InPlaceCopies::written() {
    written_();
}

} // namespace dyeworks
