#pragma once

#include <utility>

namespace dyeworks {

/// An open file of the host; closed when it goes.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int descriptor) noexcept
        : descriptor_(descriptor) {}
    Descriptor(Descriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { (void)close(); }

    [[nodiscard]] int get() const noexcept { return descriptor_; }
    [[nodiscard]] bool valid() const noexcept { return descriptor_ >= 0; }

    /// Closes now. The error number of a close that lost data, else 0.
    [[nodiscard]] int close() noexcept;

private:
    int descriptor_ = -1;
};

} // namespace dyeworks
