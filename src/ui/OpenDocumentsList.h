#pragma once

namespace dyeworks {

class Workspace;

/// What was open when the program was left, kept in the settings, section "Settings\Documents".
class OpenDocumentsList {
public:
    /// `workspace` must outlive the list.
    explicit OpenDocumentsList(Workspace& workspace)
        : workspace_(workspace) {}

    /// Opens what is on the list. False when anything of it could not be opened; the rest is open then.
    [[nodiscard]] bool resume();
    /// Puts the palettes and documents that are open now on the list.
    void save();

private:
    Workspace& workspace_;
};

} // namespace dyeworks
