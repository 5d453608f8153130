#pragma once

#include <string>

namespace dyeworks {

/// Hears of plug-ins that break off.
class PlugInFailures {
public:
    virtual ~PlugInFailures() = default;

    /// A plug-in broke off or handed back what cannot be used.
    virtual void tellPlugInFailed(const std::string& fileName) = 0;
};

} // namespace dyeworks
