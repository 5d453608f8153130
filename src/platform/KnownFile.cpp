#include "platform/KnownFile.h"

#include "platform/Platform.h"
#include "platform/StringId.h"

#include <functional>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr std::size_t kPiece = 65536;
/// A larger file would keep the user waiting; it counts as changed with its stamp.
constexpr std::uint64_t kLargestRead = std::uint64_t{64} << 20U;

} // namespace

KnownFile::KnownFile(const std::string& path)
    : path_(platform().files().fullPath(path))
    , known_(platform().files().stamp(path_))
    , seen_(known_) {}

KnownFile::KnownFile(const std::string& path, const std::optional<FileStamp>& known)
    : KnownFile(path) {
    known_ = known;
    // Devices may be numbered anew when the machine starts.
    if (known_ && seen_)
        known_->device = seen_->device;
    judged_ = known_ == seen_;
}

bool KnownFile::isAt(const std::string& path) const {
    const Files& files = platform().files();
    return !path_.empty() && (files.fullPath(path) == path_ || files.hostPath(path) == files.hostPath(path_));
}

bool KnownFile::asks() const noexcept {
    return state_ != State::Same && state_ != State::Unsettled && !answered_;
}

/// Nothing when it cannot be read, and when it is not that version, or no longer once it has been read.
std::optional<KnownFile::Contents> KnownFile::contentsOf(const std::optional<FileStamp>& stamp) const {
    const Files& files = platform().files();
    if (!stamp || stamp->size > kLargestRead || files.stamp(path_) != stamp)
        return std::nullopt;
    auto file = files.openForReading(path_);
    if (!file)
        return std::nullopt;
    constexpr Contents kFactor = 0x9E3779B97F4A7C15; // Odd, so that no piece is lost.
    Contents contents = stamp->size;
    try {
        std::vector<char> piece(kPiece);
        while (const std::size_t size = file.value()->read(std::as_writable_bytes(std::span(piece))))
            contents = contents * kFactor + std::hash<std::string_view>{}({piece.data(), size});
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
    return files.stamp(path_) == stamp ? std::optional(contents) : std::nullopt;
}

bool KnownFile::rememberContents() {
    if (contentsTried_ || path_.empty())
        return false;
    contentsTried_ = true;
    knownContents_ = contentsOf(known_);
    return true;
}

KnownFile::State KnownFile::look() {
    if (path_.empty())
        return state_;
    std::optional<FileStamp> now = platform().files().stamp(path_);
    if (now != seen_) {
        seen_ = now;
        judged_ = false;
        return State::Unsettled;
    }
    if (!judged_)
        judge();
    return state_;
}

void KnownFile::judge() {
    judged_ = true;
    const std::optional<Contents> contents =
        seen_ == known_ || !knownContents_ ? std::nullopt : contentsOf(seen_);
    const bool isSame = seen_ == known_ || (contents && contents == knownContents_);
    // Another touch of what the user has decided about is no news.
    if (!isSame && answered_ && contents && contents == seenContents_)
        return;
    seenContents_ = contents;
    const State before = state_;
    const bool wasAway =
        before == State::Removed || (!answered_ && (before == State::Back || before == State::BackChanged));
    if (!seen_)
        state_ = State::Removed;
    else if (isSame)
        state_ = before == State::Removed && !answered_ ? State::Back : State::Same;
    else
        state_ = wasAway ? State::BackChanged : State::Changed;
    if (isSame)
        known_ = seen_;
    answered_ = false;
}

bool KnownFile::mayBeReplaced(const std::string& path) {
    if (!platform().files().answers(path))
        return false;
    if (!isAt(path))
        return true;
    const std::optional<FileStamp> now = platform().files().stamp(path_);
    if (!now || now == known_ || (answered_ && judged_ && now == seen_))
        return true;
    const std::optional<Contents> contents = knownContents_ ? contentsOf(now) : std::nullopt;
    if (contents && (contents == knownContents_ || (answered_ && contents == seenContents_)))
        return true;
    return platform().messages().show({text(StringId::OutsideOverQuestion, {displayPath(path_)}),
                                       text(StringId::ApplicationTitle), MessageButtons::OkCancel,
                                       MessageIcon::Warning, MessageOwner::MainWindow, true}) ==
           MessageAnswer::Ok;
}

} // namespace dyeworks
