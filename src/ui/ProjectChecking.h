#pragma once

#include "framework/CommandTarget.h"
#include "project/ProjectCheckRun.h"

#include <QTimer>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

class CTPFDocument;
class FindingsDock;
class Workspace;
struct Finding;
struct RelinkedFile;

/// Checks the open project beside everything else, so that nobody waits for it; lists what it finds, and
/// carries out what can be done about that. What was changed so is one step to take back.
class ProjectChecking : public CommandTarget {
public:
    /// `workspace` must outlive it.
    explicit ProjectChecking(Workspace& workspace);
    ~ProjectChecking() override;

    /// The dock is there.
    void start(FindingsDock& dock);

private:
    void look();
    void begin();
    void end();
    void wait();
    void publish();
    [[nodiscard]] CTPFDocument* project() const;
    [[nodiscard]] Finding listed(const ProjectFinding& finding);

    void goTo(const std::string& picture);
    void open(const ProjectFinding& finding);
    void relinkFrom(const ProjectFinding& finding);
    void relinkFolderOf(const ProjectFinding& finding);
    void offer(std::vector<RelinkedFile> files);
    void removePicture(const std::string& name);
    void addFile(const std::string& path);

    void OnCheck();
    void OnAddFolder();
    void OnRevert();
    void OnUpdateNeedsProject(CommandUi& ui);
    void OnUpdateRevert(CommandUi& ui);

    Workspace& workspace_;
    FindingsDock* dock_ = nullptr;
    /// The number of the project whose findings are listed, or being looked for; 0: of none.
    std::uint64_t checked_ = 0;
    std::uint64_t changes_ = 0; ///< Of it, when it was last looked at.
    QTimer wait_;
    QTimer again_; ///< Runs once the project has been left alone for a while after a change.
    std::unique_ptr<ProjectCheckRun> check_;
    std::optional<std::vector<ProjectFinding>> found_;
};

} // namespace dyeworks
