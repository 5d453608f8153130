#include "ui/controls/ControlRegistration.h"

#include "platform/Platform.h"
#include "ui/controls/dispatch/Dispatch.h"

namespace dyeworks {

bool registerControl(const char* fileName) {
    const std::unique_ptr<LoadedLibrary> library = platform().library().load(fileName);
    if (library == nullptr)
        return false;
    if (auto* const registerClass = library->findFunction<RegisterControlFunction>(kRegisterControlName))
        registerClass();
    return true;
}

} // namespace dyeworks
