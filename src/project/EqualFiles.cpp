#include "project/EqualFiles.h"

#include "platform/Platform.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <span>
#include <tuple>
#include <utility>

namespace dyeworks {

namespace {

/// Bytes that are read in a step; a multiple of a word.
constexpr std::size_t kPiece = std::size_t{1} << 20;

/// Takes the bytes into the mark, eight at a time. The two halves are mixed with different odd factors (of
/// the golden ratio and of xxHash64) and turned, so that no byte is without an effect on later ones.
void mix(std::span<const std::byte> bytes, std::array<std::uint64_t, 2>& mark) {
    for (std::size_t at = 0; at < bytes.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + at, std::min(sizeof word, bytes.size() - at));
        mark[0] = std::rotl((mark[0] ^ word) * 0x9E3779B97F4A7C15U, 29);
        mark[1] = std::rotl((mark[1] + word) * 0xC2B2AE3D27D4EB4FU, 31) ^ mark[0];
    }
}

} // namespace

EqualFiles::EqualFiles(std::vector<std::string> paths)
    : paths_(std::move(paths)) {}

bool EqualFiles::step() {
    if (sized_ < paths_.size()) {
        const auto file = platform().files().openForReading(paths_[sized_]);
        if (file && file.value()->size() > 0)
            files_.push_back({file.value()->size(), {}, sized_});
        if (++sized_ == paths_.size())
            keepTwins();
        return true;
    }
    if (next_ >= files_.size())
        return false;
    readOn();
    return true;
}

int EqualFiles::thousandths() const {
    constexpr std::size_t kSizes = 200; // Of a thousand, for sizes alone.
    if (paths_.empty())
        return 1000;
    const std::size_t sizes = kSizes * sized_ / paths_.size();
    const bool sized = sized_ == paths_.size();
    const std::size_t read = !sized           ? 0
                             : files_.empty() ? 1000 - kSizes
                                              : (1000 - kSizes) * next_ / files_.size();
    return static_cast<int>(sizes + read);
}

/// Leaves those that have one of their size.
void EqualFiles::keepTwins() {
    std::ranges::stable_sort(files_, {}, &File::size);
    std::vector<File> twins;
    for (std::size_t i = 0; i < files_.size(); ++i) {
        if ((i > 0 && files_[i - 1].size == files_[i].size) ||
            (i + 1 < files_.size() && files_[i + 1].size == files_[i].size))
            twins.push_back(files_[i]);
    }
    files_ = std::move(twins);
}

void EqualFiles::readOn() {
    File& file = files_[next_];
    if (reader_ == nullptr) {
        if (auto opened = platform().files().openForReading(paths_[file.index]))
            reader_ = std::move(opened.value());
    }
    room_.resize(kPiece);
    const std::size_t count = reader_ == nullptr ? 0 : reader_->read(room_);
    mix(std::span(room_).first(count), file.mark);
    read_ += count;
    if (count == kPiece)
        return;
    // It may have gone, or changed, since its size was taken.
    if (read_ != file.size)
        file.size = 0;
    reader_.reset();
    read_ = 0;
    ++next_;
}

std::vector<EqualFiles::Pair> EqualFiles::pairs() const {
    std::vector<File> files = files_;
    std::erase_if(files, [](const File& file) { return file.size == 0; });
    const auto contents = [](const File& file) { return std::tuple(file.size, file.mark); };
    std::ranges::stable_sort(files, {},
                             [&](const File& file) { return std::tuple(contents(file), file.index); });
    std::vector<Pair> pairs;
    std::size_t first = 0;
    for (std::size_t i = 1; i < files.size(); ++i) {
        if (contents(files[first]) == contents(files[i]))
            pairs.push_back({files[i].index, files[first].index});
        else
            first = i;
    }
    std::ranges::sort(pairs, {}, &Pair::file);
    return pairs;
}

} // namespace dyeworks
