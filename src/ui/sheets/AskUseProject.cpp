#include "ui/sheets/AskUseProject.h"

#include "platform/Platform.h"

namespace dyeworks {

namespace {

constexpr const char* kSection = "Settings";
constexpr const char* kEntry = "UseNotify_AskUseProject";

} // namespace

bool asksUseProject() {
    return platform().profile().integer(kSection, kEntry, 1) != 0;
}

void setAsksUseProject(bool asks) {
    platform().profile().setInteger(kSection, kEntry, asks ? 1 : 0);
}

void askUseProject(const UseProjectParts& parts) {
    if (parts.projectIsOpen || !asksUseProject())
        return;
    bool notifyNextTime = true;
    const UseProjectAnswer answer = parts.ask(notifyNextTime);
    setAsksUseProject(notifyNextTime);
    if (answer == UseProjectAnswer::NewProject)
        parts.newProject();
    else if (answer == UseProjectAnswer::OpenProject)
        parts.openProject();
}

} // namespace dyeworks
