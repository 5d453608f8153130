#pragma once

#include "dyeworks/plugin.h"
#include "plugin/PlugInFailures.h"
#include "plugin/PlugInInfo.h"

#include <cstdint>
#include <utility>

namespace dyeworks {

struct TlutData;
struct TmfImage;

/// A call to a plug-in: no exception leaves it, and the records that it passes come back as they were. When
/// the plug-in broke off or changed what it may not, or the caller could not use what it brought, that is
/// told once, at the end of the call's life: whatever the caller makes after it, as a wait cursor, is gone by
/// then.
class PlugInCall {
public:
    /// Both must outlive the call.
    PlugInCall(PlugInFailures& failures, const PlugInInfo& plugIn) noexcept
        : failures_(failures)
        , plugIn_(plugIn) {}
    ~PlugInCall();
    PlugInCall(const PlugInCall&) = delete;
    PlugInCall& operator=(const PlugInCall&) = delete;

    /// The entry point of that name ("_DWPI_import@8"); null when the plug-in has none.
    template <typename EntryPoint>
    [[nodiscard]] EntryPoint* find(const char* name) const {
        return plugIn_.module->template findFunction<EntryPoint>(name);
    }

    /// The picture to hand to the entry point, with the image and the palette, of which either may be null.
    /// Valid while the call lives.
    [[nodiscard]] const PlugInPicture* pass(TmfImage* image, TlutData* palette, std::int32_t paletteNumber);

    /// What the entry point answers; 0 when an exception left it.
    template <typename Answer, typename... Parameters, typename... Arguments>
    Answer answer(Answer (*entryPoint)(Parameters...), Arguments&&... arguments) noexcept {
        Answer result{};
        failures_.plugInCallBegins(plugIn_.fileName);
        try {
            result = entryPoint(std::forward<Arguments>(arguments)...);
        } catch (...) {
            fail();
        }
        failures_.plugInCallEnds();
        restore();
        return result;
    }

    /// What the plug-in brought cannot be used.
    void fail() noexcept { failed_ = true; }

private:
    void restore() noexcept;

    PlugInFailures& failures_;
    const PlugInInfo& plugIn_;
    bool failed_ = false;
    PlugInPicture picture_{};
    // What the plug-in may do to the fields of the records is undone, so that the blocks are freed as they
    // were made.
    ::TmfImage image_{};
    ::TlutData palette_{};
};

} // namespace dyeworks
