#include "ui/ProjectChecking.h"

#include "platform/AskForFile.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "project/CTPFDocument.h"
#include "project/CTPFTreeView.h"
#include "project/FindingTexts.h"
#include "project/FolderPictures.h"
#include "project/Relink.h"
#include "ui/CMainFrame.h"
#include "ui/CurrentProject.h"
#include "ui/FindingsDock.h"
#include "ui/Workspace.h"
#include "ui/controls/CFolderPick.h"
#include "ui/sheets/CheckListSheet.h"
#include "ui/sheets/SheetControls.h"

#include <QAbstractEventDispatcher>

#include <chrono>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::chrono::milliseconds kLook{20};
constexpr std::chrono::seconds kQuiet{1};
constexpr const char* kFolderPick = "FolderPick.ocx";
constexpr const char* kImageFilter = "TMF Files (*.tmf)|*.tmf|All Files (*.*)|*.*||";
constexpr const char* kPaletteFilter = "TLF Files (*.tlf)|*.tlf|All Files (*.*)|*.*||";

QString displayed(const std::string& path) {
    return QString::fromStdString(displayPath(path));
}

std::string counted(std::size_t count) {
    return localNumeral(static_cast<std::int64_t>(count));
}

/// Nothing when the user cancels, and, said so, when the control is missing.
std::optional<std::string> chooseFolder(std::string folder) {
    const std::unique_ptr<CFolderPick> pick = CFolderPick::create();
    if (pick == nullptr) {
        const std::string control = kFolderPick;
        applicationMessage(text(StringId::ControlMissing, {control}));
        return std::nullopt;
    }
    pick->setFolder(folder);
    if (!pick->choose(folder))
        return std::nullopt;
    return folder;
}

/// Of rows that have a flag `accepted`. False when the user cancels.
template <typename Row>
bool askWhich(const CheckListSheet::Words& words, std::vector<Row>& rows,
              const std::function<QStringList(const Row&)>& cells, QWidget* parent) {
    std::vector<QStringList> shownRows;
    for (const Row& row : rows)
        shownRows.push_back(cells(row));
    CheckListSheet sheet(words, shownRows, parent);
    if (sheet.exec() != QDialog::Accepted)
        return false;
    const std::vector<bool> chosen = sheet.chosen();
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].accepted = chosen[i];
    return true;
}

} // namespace

ProjectChecking::ProjectChecking(Workspace& workspace)
    : workspace_(workspace) {
    wait_.setInterval(kLook);
    QObject::connect(&wait_, &QTimer::timeout, &wait_, [this] { wait(); });
    again_.setSingleShot(true);
    again_.setInterval(kQuiet);
    QObject::connect(&again_, &QTimer::timeout, &again_, [this] {
        if (found_ && project() != nullptr && checked_ == project()->number())
            begin();
    });
    on(ID_PROJECT_CHECK, &ProjectChecking::OnCheck, &ProjectChecking::OnUpdateNeedsProject);
    on(ID_PROJECT_ADD_FOLDER, &ProjectChecking::OnAddFolder, &ProjectChecking::OnUpdateNeedsProject);
    on(ID_PROJECT_REVERT_CHECK, &ProjectChecking::OnRevert, &ProjectChecking::OnUpdateRevert);
}

ProjectChecking::~ProjectChecking() = default;

void ProjectChecking::start(FindingsDock& dock) {
    dock_ = &dock;
    QObject::connect(&dock, &FindingsDock::checkWanted, &wait_, [this] { OnCheck(); });
    QObject::connect(&dock, &FindingsDock::stopWanted, &wait_, [this] { end(); });
    QObject::connect(&dock, &QObject::destroyed, &wait_, [this] {
        dock_ = nullptr;
        end();
    });
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &wait_,
                     [this] { look(); });
}

CTPFDocument* ProjectChecking::project() const {
    return workspace_.currentProject().document();
}

/// What was found in a project that has been closed goes; one that has been changed is checked again.
void ProjectChecking::look() {
    if (dock_ == nullptr)
        return;
    dock_->setProjectOpen(project() != nullptr);
    if (checked_ == 0)
        return;
    if (project() != nullptr && checked_ == project()->number()) {
        if (std::exchange(changes_, project()->changes()) != project()->changes())
            again_.start();
        return;
    }
    end();
    checked_ = 0;
    found_.reset();
    dock_->showProjectFindings(std::nullopt);
}

void ProjectChecking::begin() {
    again_.stop();
    checked_ = project()->number();
    changes_ = project()->changes();
    check_ = std::make_unique<ProjectCheckRun>(project()->projectFile(), project()->rules());
    dock_->showProgress(0);
    wait_.start();
}

void ProjectChecking::end() {
    wait_.stop();
    check_.reset();
    if (dock_ != nullptr)
        dock_->endProgress();
}

void ProjectChecking::wait() {
    look();
    if (check_ == nullptr || dock_ == nullptr)
        return;
    if (!check_->isDone()) {
        dock_->showProgress(check_->thousandths());
        return;
    }
    const std::unique_ptr<ProjectCheckRun> check = std::move(check_);
    end();
    found_ = check->takeFindings();
    publish();
}

void ProjectChecking::publish() {
    std::vector<Finding> rows;
    for (const ProjectFinding& finding : *found_)
        rows.push_back(listed(finding));
    dock_->showProjectFindings(std::move(rows));
}

Finding ProjectChecking::listed(const ProjectFinding& finding) {
    const FindingWords words = wordsOf(finding, project()->projectFile(), localNumeral);
    Finding row{QString::fromStdString(words.source), QString::fromStdString(words.check),
                QString::fromStdString(words.place), QString::fromStdString(words.reason)};
    const ProjectProblem problem = finding.problem;
    if (problem == ProjectProblem::BrokenRule)
        row.ruleOf = finding.file;
    if (!finding.picture.empty()) {
        row.go = [this, name = finding.picture] { goTo(name); };
        row.remove = [this, name = finding.picture] { removePicture(name); };
    }
    if (!finding.picture.empty() || problem == ProjectProblem::UnusedFile ||
        problem == ProjectProblem::EqualFile || problem == ProjectProblem::FileTwins)
        row.open = [this, finding] { open(finding); };
    if (problem == ProjectProblem::MissingFile || problem == ProjectProblem::MovedFile)
        row.relink = [this, finding] { relinkFrom(finding); };
    if (problem == ProjectProblem::FolderMissing)
        row.relink = [this, finding] { relinkFolderOf(finding); };
    if (problem == ProjectProblem::UnusedFile)
        row.add = [this, file = finding.file] { addFile(file); };
    return row;
}

void ProjectChecking::goTo(const std::string& picture) {
    if (project() == nullptr)
        return;
    bool selected = false;
    for (DocumentView* view : project()->views()) {
        if (auto* const tree = dynamic_cast<CTPFTreeView*>(view))
            selected = tree->selectPicture(picture) || selected;
    }
    if (!selected)
        workspace_.mainFrame().SelectPicture(picture);
}

void ProjectChecking::open(const ProjectFinding& finding) {
    if (finding.picture.empty())
        workspace_.OpenDocumentFile(finding.file);
    else if (project() != nullptr)
        project()->OpenPicture(finding.picture);
}

void ProjectChecking::relinkFrom(const ProjectFinding& finding) {
    const auto chosen = askForFileToOpen({.title = text(StringId::RelinkCaption),
                                          .filter = finding.ofPalette ? kPaletteFilter : kImageFilter,
                                          .initialName = finding.other.empty() ? finding.file : finding.other,
                                          .fileMustExist = true});
    if (!chosen || project() == nullptr)
        return;
    std::vector<RelinkedFile> files;
    {
        const WaitCursorScope wait;
        files = filesOfMove(project()->projectFile(), finding.picture, finding.ofPalette, *chosen);
    }
    offer(std::move(files));
}

/// Where none of the project's missing files is in the new folder, it takes the place of the old one all the
/// same.
void ProjectChecking::relinkFolderOf(const ProjectFinding& finding) {
    const auto chosen = chooseFolder(finding.file);
    if (!chosen || project() == nullptr)
        return;
    std::vector<RelinkedFile> files;
    {
        const WaitCursorScope wait;
        files = filesOfFolder(project()->projectFile(), finding.file, *chosen);
    }
    if (!files.empty())
        return offer(std::move(files));
    project()->Repair(relinkFolder(project()->projectFile(), finding.file, *chosen));
    begin();
}

void ProjectChecking::offer(std::vector<RelinkedFile> files) {
    const std::function<QStringList(const RelinkedFile&)> cells = [](const RelinkedFile& file) {
        return QStringList{QString::fromStdString(file.picture), displayed(file.from), displayed(file.to)};
    };
    const CheckListSheet::Words words{"IDD_RELINK",
                                      shown(StringId::RelinkCaption),
                                      shown(StringId::RelinkQuestion, {counted(files.size())}),
                                      {},
                                      {shown(StringId::AddFolderColumnPicture),
                                       shown(StringId::RelinkColumnOld), shown(StringId::RelinkColumnNew)},
                                      shown(StringId::RelinkOk)};
    if (files.size() > 1 && !askWhich(words, files, cells, &workspace_.mainFrame()))
        return;
    if (files.empty() || project() == nullptr)
        return;
    const RelinkRepair repair = relink(project()->projectFile(), files);
    project()->Repair(repair.repair);
    for (const std::string& file : repair.refused)
        applicationMessage(text(StringId::RelinkCannotHold, {displayPath(file)}));
    begin();
}

void ProjectChecking::removePicture(const std::string& name) {
    if (project() == nullptr || !project()->projectFile().pictures.contains(name))
        return;
    project()->Repair({{{name, std::nullopt}}, {}, {}});
    begin();
}

/// Without a partner of its name the user chooses one.
void ProjectChecking::addFile(const std::string& path) {
    if (project() == nullptr)
        return;
    const CTPFFile& file = project()->projectFile();
    if (const auto pair = pairOf(file, path)) {
        project()->Repair(additionOf(file, {*pair}));
    } else {
        ProjectState before = file.state();
        const bool palette = endsIgnoringCase(path, ".tlf");
        const auto last = file.order.empty() ? std::nullopt : std::optional(file.order.back());
        if (!project()->AddPicture(std::nullopt, palette ? std::nullopt : std::optional(path),
                                   palette ? std::optional(path) : std::nullopt, 0, last, false))
            return;
        project()->KeepForRevert(std::move(before));
    }
    begin();
}

void ProjectChecking::OnCheck() {
    if (project() == nullptr || dock_ == nullptr)
        return;
    dock_->show();
    dock_->raise();
    project()->BeginCheck();
    begin();
}

void ProjectChecking::OnAddFolder() {
    const auto folder = chooseFolder(project()->imageDirectory());
    if (!folder || project() == nullptr)
        return;
    FolderPictures found;
    {
        const WaitCursorScope wait;
        found = picturesOfFolder(project()->projectFile(), *folder);
    }
    const QString left = shown(StringId::AddFolderLeft,
                               {counted(found.known), counted(found.withoutPalette), counted(found.notHeld)});
    if (found.pairs.empty()) {
        const std::string none = text(StringId::AddFolderNone, {displayPath(*folder)});
        applicationMessage(none + '\n' + left.toStdString(), MessageIcon::Information);
        return;
    }
    const std::function<QStringList(const TexturePair&)> cells = [](const TexturePair& pair) {
        return QStringList{QString::fromStdString(pair.picture), displayed(pair.image),
                           displayed(pair.palette)};
    };
    const CheckListSheet::Words words{
        "IDD_ADD_FOLDER",
        shown(StringId::AddFolderCaption),
        shown(StringId::AddFolderQuestion, {counted(found.pairs.size()), displayPath(*folder)}),
        found.known + found.withoutPalette + found.notHeld > 0 ? left : QString(),
        {shown(StringId::AddFolderColumnPicture), shown(StringId::AddFolderColumnImage),
         shown(StringId::AddFolderColumnPalette)},
        shown(StringId::AddFolderOk)};
    if (!askWhich(words, found.pairs, cells, &workspace_.mainFrame()) || project() == nullptr)
        return;
    project()->Repair(additionOf(project()->projectFile(), found.pairs));
    if (found_)
        begin();
}

void ProjectChecking::OnRevert() {
    project()->RevertCheck();
    if (found_)
        begin();
}

void ProjectChecking::OnUpdateNeedsProject(CommandUi& ui) {
    ui.require(project() != nullptr, StringId::WhyNoProject);
}

void ProjectChecking::OnUpdateRevert(CommandUi& ui) {
    ui.require(project() != nullptr, StringId::WhyNoProject);
    ui.require(project() != nullptr && project()->mayRevertCheck(), StringId::WhyNothingRepaired);
    if (ui.enabled && project()->isReverted())
        ui.text = text(StringId::ProjectRepeatChanges);
}

} // namespace dyeworks
