#pragma once

#include "core/TlutData.h"
#include "project/RuleCheck.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

class CDyeworksDoc;
class FindingsDock;
class Workspace;

/// Keeps the list of what breaks a rule fresh. While the dock shows, it looks at every idle moment whether
/// anything has changed that the rules speak of, and then checks the images that it concerns, a little at a
/// time, so that nobody who paints waits for it. Images of the open project's pictures keep to its rules, all
/// others to the default ones.
class RuleWatch : public QObject {
    Q_OBJECT

public:
    /// Belongs to the dock. `workspace` must outlive it.
    RuleWatch(Workspace& workspace, FindingsDock& dock);

private:
    /// What the findings of an image depend on besides its rules.
    struct ImageState {
        const CDyeworksDoc* image = nullptr;
        std::uint64_t texels = 0;
        std::string name; ///< Its path, or what it is called while it has none.
        std::optional<TlutData> palette;
        std::int32_t firstEntry = 0;
        bool operator==(const ImageState&) const = default;
    };
    struct Situation {
        std::vector<ImageState> images;
        const void* project = nullptr;
        std::uint64_t projectChanges = 0;
        TextureRules defaults;
        bool operator==(const Situation&) const = default;
    };
    struct Checked {
        ImageState state;
        TextureRules rules;
        std::unique_ptr<RuleCheck> check;
        bool done = false;
    };

    void look();
    void renew();
    void work();
    void publish();
    void goTo(const CDyeworksDoc* image, const RuleFinding& finding);
    void askForRules();
    [[nodiscard]] Situation situation() const;
    [[nodiscard]] CDyeworksDoc* open(const CDyeworksDoc* image) const;

    Workspace& workspace_;
    FindingsDock& dock_;
    QTimer wait_; ///< From a change until the images are checked, so that a burst is one.
    QTimer work_;
    Situation seen_;
    TextureRules projectRules_;
    std::vector<Checked> checked_;
};

} // namespace dyeworks
