#pragma once

namespace dyeworks {

/// What a run answers to whoever started it.
enum class ExitCode {
    Done = 0,
    Findings = 1, ///< Everything was looked at, and something is wrong with it.
    Usage = 2,    ///< The arguments make no sense together.
    Files = 3     ///< Something could not be read, made or written.
};

/// The graver of two.
[[nodiscard]] constexpr ExitCode graver(ExitCode one, ExitCode other) noexcept {
    return one > other ? one : other;
}

} // namespace dyeworks
