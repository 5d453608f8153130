#pragma once

#include <string>

namespace dyeworks {

/// Hears of calls to plug-ins, and of plug-ins that break off.
class PlugInFailures {
public:
    virtual ~PlugInFailures() = default;

    /// A call to a plug-in begins, and ends, in pairs. Calls may be nested.
    virtual void plugInCallBegins(const std::string& /*fileName*/) {}
    virtual void plugInCallEnds() {}
    /// A plug-in broke off or handed back what cannot be used.
    virtual void tellPlugInFailed(const std::string& fileName) = 0;
};

} // namespace dyeworks
