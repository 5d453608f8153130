#pragma once

#include "core/TlutData.h"

#include <cstdint>
#include <map>

namespace dyeworks {

class CDocument;
class TextureLookupTable;
class Workspace;

/// The questions about unsaved changes before the program is left: palettes, then the project, then images.
/// Each is asked for once as it then is; what a plug-in changes after its question is asked for again.
class ClosingQuestions {
public:
    /// `workspace` must outlive the questions.
    explicit ClosingQuestions(Workspace& workspace)
        : workspace_(workspace) {}

    /// False as soon as the user cancels or a file cannot be saved.
    [[nodiscard]] bool ask();

private:
    [[nodiscard]] bool askForPalettes();
    [[nodiscard]] bool askForDocuments();
    [[nodiscard]] bool areAllAnswered() const;
    [[nodiscard]] bool isAnswered(const TextureLookupTable& palette) const;
    [[nodiscard]] bool isAnswered(const CDocument& document) const;

    Workspace& workspace_;
    // As they were when they were asked for.
    std::map<const TextureLookupTable*, TlutData> palettes_;
    std::map<const CDocument*, std::uint64_t> documents_;
};

} // namespace dyeworks
