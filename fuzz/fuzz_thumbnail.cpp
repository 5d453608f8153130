#include "Require.h"
#include "cli/CommandLinePlatform.h"
#include "cli/thumbnailer/Thumbnail.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

using namespace dyeworks;

namespace {

class BytesReader final : public HostFileReader {
public:
    explicit BytesReader(std::span<const std::byte> bytes)
        : size_(bytes.size())
        , rest_(bytes) {}

    [[nodiscard]] std::uint64_t size() const override { return size_; }
    [[nodiscard]] std::size_t read(std::span<std::byte> room) override {
        const std::size_t count = std::min(room.size(), rest_.size());
        std::copy_n(rest_.begin(), count, room.begin());
        rest_ = rest_.subspan(count);
        return count;
    }
    [[nodiscard]] bool skip(std::uint64_t size) override {
        rest_ = rest_.subspan(static_cast<std::size_t>(std::min<std::uint64_t>(size, rest_.size())));
        return true;
    }

private:
    std::size_t size_;
    std::span<const std::byte> rest_;
};

} // namespace

/// The first byte is the size of the thumbnail; the kind of file is told by its bytes, as far as it can be.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static CommandLinePlatform platform("en");
    if (size == 0)
        return 0;
    const std::int32_t side = data[0] + 1;
    const auto file = std::as_bytes(std::span(data, size)).subspan(1);
    // A project finds the samples, which lie where this one would.
    const std::string path = DYEWORKS_SAMPLES "/none.tpf";
    EditorSettings settings(std::string(reinterpret_cast<const char*>(data), size));
    static_cast<void>(settings.attachedPalette(std::string(reinterpret_cast<const char*>(data), size)));

    BytesReader reader(file);
    const Result<Picture, std::string> picture = thumbnail(reader, path, side, settings);
    if (!picture) {
        require(!picture.error().empty(), "a refusal says why");
        return 0;
    }
    const Picture& made = picture.value();
    require(made.width >= 1 && made.height >= 1 && made.width <= side && made.height <= side,
            "the picture has the size that was asked for");
    require(made.pixels.size() ==
                static_cast<std::size_t>(made.width) * static_cast<std::size_t>(made.height),
            "each pixel is there");
    BytesReader again(file);
    const Result<Picture, std::string> second = thumbnail(again, path, side, settings);
    require(second.ok() && second.value().pixels == made.pixels, "the same file looks the same");
    return 0;
}
