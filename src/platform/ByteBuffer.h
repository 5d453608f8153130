#pragma once

#include <cstddef>
#include <memory>
#include <span>

namespace dyeworks {

/// Owned bytes of a fixed size whose contents start undefined: a file that is about to be read over them
/// would only pay for zeroes.
class ByteBuffer {
public:
    ByteBuffer() = default;
    explicit ByteBuffer(std::size_t size)
        : bytes_(std::make_unique_for_overwrite<std::byte[]>(size))
        , size_(size) {}

    [[nodiscard]] std::byte* data() noexcept { return bytes_.get(); }
    [[nodiscard]] const std::byte* data() const noexcept { return bytes_.get(); }
    [[nodiscard]] std::size_t size() const noexcept { return size_; }

    [[nodiscard]] std::span<std::byte> bytes() noexcept { return {bytes_.get(), size_}; }
    [[nodiscard]] std::span<const std::byte> bytes() const noexcept { return {bytes_.get(), size_}; }

private:
    std::unique_ptr<std::byte[]> bytes_;
    std::size_t size_ = 0;
};

} // namespace dyeworks
