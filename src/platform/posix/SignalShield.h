#pragma once

#include <csignal>

namespace dyeworks {

/// While it lives, a write beyond the user's file size limit or into a pipe that nobody reads any more fails
/// with an error number instead of ending the program, unsaved work and all.
class SignalShield {
public:
    SignalShield() noexcept;
    ~SignalShield();
    SignalShield(const SignalShield&) = delete;
    SignalShield& operator=(const SignalShield&) = delete;

private:
    sigset_t shielded_{};
    sigset_t before_{};
};

} // namespace dyeworks
