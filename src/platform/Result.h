#pragma once

#include <cassert>
#include <optional>
#include <utility>
#include <variant>

namespace dyeworks {

/// A value of type T, or the error E that stood in its way. Callers test it before they reach for either.
template <typename T, typename E>
class [[nodiscard]] Result {
public:
    Result(T value)
        : state_(std::in_place_index<0>, std::move(value)) {}
    Result(E error)
        : state_(std::in_place_index<1>, std::move(error)) {}

    [[nodiscard]] bool ok() const noexcept { return state_.index() == 0; }
    explicit operator bool() const noexcept { return ok(); }

    [[nodiscard]] T& value() & noexcept { return *valueOrBug(); }
    [[nodiscard]] const T& value() const& noexcept { return *const_cast<Result*>(this)->valueOrBug(); }
    [[nodiscard]] T&& value() && noexcept { return std::move(*valueOrBug()); }

    [[nodiscard]] const E& error() const noexcept {
        assert(!ok());
        return *std::get_if<1>(&state_);
    }

private:
    T* valueOrBug() noexcept {
        assert(ok());
        return std::get_if<0>(&state_);
    }

    std::variant<T, E> state_;
};

} // namespace dyeworks
