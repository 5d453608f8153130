#pragma once

#include <thread>

namespace dyeworks {

/// Reads the host's font configuration on a thread of its own, while the application object is being made.
/// The first text that is shown would otherwise wait for it, which is a tenth of a start. Who asks for a font
/// meanwhile waits as without it.
class FontsAhead {
public:
    /// Begins. Without a further thread from the host the first text reads it as ever.
    FontsAhead() noexcept;
    /// Waits for the end: the library may not be used by a thread when the process ends.
    ~FontsAhead() { wait(); }
    FontsAhead(const FontsAhead&) = delete;
    FontsAhead& operator=(const FontsAhead&) = delete;

    /// To be called before the first text: two threads that read it at once would both do all of it.
    void wait();

private:
    std::thread thread_;
};

} // namespace dyeworks
