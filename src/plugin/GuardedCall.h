#pragma once

#include <optional>
#include <utility>

namespace dyeworks {

/// Calls an entry point of a plug-in. Nothing when an exception left it.
template <typename Result, typename... Parameters, typename... Arguments>
[[nodiscard]] std::optional<Result> guarded(Result (*entryPoint)(Parameters...),
                                            Arguments&&... arguments) noexcept {
    try {
        return entryPoint(std::forward<Arguments>(arguments)...);
    } catch (...) {
        return std::nullopt;
    }
}

} // namespace dyeworks
