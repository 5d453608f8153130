#include "cli/BuildState.h"

#include <cstring>
#include <string_view>
#include <type_traits>

namespace dyeworks {

namespace {

constexpr std::string_view kSignature = "dyeworks build 1\n";
class Writer {
public:
    template <typename Plain>
    void put(const Plain& value) {
        static_assert(std::is_trivially_copyable_v<Plain>);
        bytes_.append(reinterpret_cast<const char*>(&value), sizeof value);
    }
    void put(const std::string& text) {
        put(static_cast<std::uint32_t>(text.size()));
        bytes_ += text;
    }
    std::string take() { return std::move(bytes_); }

private:
    std::string bytes_{kSignature};
};

class Reader {
public:
    explicit Reader(std::string_view bytes)
        : rest_(bytes) {}

    template <typename Plain>
    void get(Plain& value) {
        static_assert(std::is_trivially_copyable_v<Plain>);
        if (const std::string_view bytes = take(sizeof value); bytes.size() == sizeof value)
            std::memcpy(&value, bytes.data(), sizeof value);
    }
    void get(std::string& text) {
        std::uint32_t size = 0;
        get(size);
        text = take(size);
    }
    /// How many follow, each of them at least `least` bytes long.
    std::uint32_t count(std::size_t least) {
        std::uint32_t number = 0;
        get(number);
        isGood_ = isGood_ && number <= rest_.size() / least;
        return isGood_ ? number : 0;
    }
    [[nodiscard]] bool isWhole() const { return isGood_ && rest_.empty(); }

private:
    std::string_view take(std::size_t size) {
        isGood_ = isGood_ && size <= rest_.size();
        if (!isGood_)
            return {};
        const std::string_view taken = rest_.substr(0, size);
        rest_.remove_prefix(size);
        return taken;
    }

    std::string_view rest_;
    bool isGood_ = true;
};

/// Everything but the outputs.
template <typename Archive, typename Picture>
void exchange(Archive&& each, Picture& picture) {
    each(picture.name);
    each(picture.image);
    each(picture.palette);
    each(picture.bank);
    each(picture.imageStamp);
    each(picture.paletteStamp);
    each(picture.width);
    each(picture.height);
    each(picture.bits);
}

} // namespace

std::string serialise(const BuildState& state) {
    Writer writer;
    writer.put(state.options);
    writer.put(state.project);
    writer.put(state.index);
    writer.put(static_cast<std::uint32_t>(state.pictures.size()));
    for (const BuiltPicture& picture : state.pictures) {
        exchange([&writer](const auto& value) { writer.put(value); }, picture);
        writer.put(static_cast<std::uint32_t>(picture.outputs.size()));
        for (const BuiltPicture::Output& output : picture.outputs) {
            writer.put(output.name);
            writer.put(output.stamp);
        }
    }
    return writer.take();
}

std::optional<BuildState> parseBuildState(std::span<const std::byte> bytes) {
    std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (!text.starts_with(kSignature))
        return std::nullopt;
    Reader reader(text.substr(kSignature.size()));
    BuildState state;
    reader.get(state.options);
    reader.get(state.project);
    reader.get(state.index);
    state.pictures.resize(reader.count(2 * sizeof(BuildStamp)));
    for (BuiltPicture& picture : state.pictures) {
        exchange([&reader](auto& value) { reader.get(value); }, picture);
        picture.outputs.resize(reader.count(sizeof(BuildStamp)));
        for (BuiltPicture::Output& output : picture.outputs) {
            reader.get(output.name);
            reader.get(output.stamp);
        }
    }
    if (!reader.isWhole())
        return std::nullopt;
    return state;
}

} // namespace dyeworks
