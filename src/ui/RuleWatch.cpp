#include "ui/RuleWatch.h"

#include "core/PaletteSet.h"
#include "framework/CommandRouter.h"
#include "framework/PathText.h"
#include "paint/CDyeworksDoc.h"
#include "paint/widgets/ImageView.h"
#include "platform/StringId.h"
#include "project/CTPFDocument.h"
#include "project/RuleTexts.h"
#include "ui/CMainFrame.h"
#include "ui/CurrentProject.h"
#include "ui/FindingsDock.h"
#include "ui/OpenImages.h"
#include "ui/ShortcutOptions.h"
#include "ui/Workspace.h"
#include "ui/palettebar/CPaletteBar.h"
#include "ui/sheets/COptionPropertySheet.h"
#include "ui/sheets/CShortcutsPage.h"
#include "ui/sheets/SheetControls.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <set>
#include <utility>

namespace dyeworks {

namespace {

// Milliseconds.
constexpr int kWait = 200;
constexpr int kSlice = 4;

QString qt(const std::string& words) {
    return QString::fromStdString(words);
}

} // namespace

RuleWatch::RuleWatch(Workspace& workspace, FindingsDock& dock)
    : QObject(&dock)
    , workspace_(workspace)
    , dock_(dock) {
    wait_.setSingleShot(true);
    work_.setSingleShot(true);
    connect(&wait_, &QTimer::timeout, this, &RuleWatch::renew);
    connect(&work_, &QTimer::timeout, this, &RuleWatch::work);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &RuleWatch::look);
    connect(&dock, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible)
            wait_.start(0);
    });
    connect(&dock, &FindingsDock::rulesWanted, this, &RuleWatch::askForRules);
}

/// Null when it has been closed.
CDyeworksDoc* RuleWatch::open(const CDyeworksDoc* image) const {
    const std::vector<CDyeworksDoc*> all = openImages(workspace_);
    const auto found = std::ranges::find(all, image);
    return found == all.end() ? nullptr : *found;
}

RuleWatch::Situation RuleWatch::situation() const {
    Situation now;
    for (const CDyeworksDoc* image : openImages(workspace_)) {
        const TextureLookupTable* const palette = image->GetAttachedPalette();
        now.images.push_back(
            {image, image->texelState(), image->pathName().empty() ? image->displayName() : image->pathName(),
             palette == nullptr ? std::nullopt : std::optional(palette->table), image->firstShownEntry()});
    }
    if (const CTPFDocument* const project = workspace_.currentProject().document()) {
        now.project = project;
        now.projectChanges = project->changes();
    }
    now.defaults = defaultRules();
    return now;
}

void RuleWatch::look() {
    // What is asked may be in the middle of a change beneath a dialog.
    if (!dock_.isVisible() || wait_.isActive() || QApplication::activeModalWidget() != nullptr)
        return;
    if (situation() != seen_)
        wait_.start(kWait);
}

void RuleWatch::renew() {
    if (!dock_.isVisible())
        return;
    seen_ = situation();
    const CTPFDocument* const project = workspace_.currentProject().document();
    projectRules_ = project == nullptr ? TextureRules{} : project->rules();
    std::vector<Checked> before = std::exchange(checked_, {});
    for (const ImageState& state : seen_.images) {
        const bool ofProject = project != nullptr && project->holdsImage(state.name);
        const TextureRules& rules = ofProject ? projectRules_ : seen_.defaults;
        const auto known = std::ranges::find_if(
            before, [&](const Checked& each) { return each.state == state && each.rules == rules; });
        if (known != before.end()) {
            checked_.push_back(std::move(*known));
            before.erase(known);
        } else {
            checked_.push_back(
                {state, rules,
                 std::make_unique<RuleCheck>(rules, state.image->canvas(),
                                             state.palette ? &*state.palette : nullptr, state.firstEntry)});
        }
    }
    work_.start(0);
}

void RuleWatch::work() {
    if (!dock_.isVisible())
        return;
    QElapsedTimer clock;
    clock.start();
    for (Checked& each : checked_) {
        if (each.done)
            continue;
        const CDyeworksDoc* const image = open(each.state.image);
        if (image == nullptr || image->texelState() != each.state.texels) {
            wait_.start(kWait);
            return;
        }
        // What is dragged may be taken back.
        if (image->isBeingEdited()) {
            work_.start(kWait);
            return;
        }
        while (!each.done) {
            each.done = !each.check->step();
            if (clock.elapsed() >= kSlice) {
                work_.start(0);
                return;
            }
        }
    }
    publish();
}

void RuleWatch::publish() {
    std::vector<Finding> findings;
    for (const Checked& each : checked_) {
        const QString source = QString::fromUtf8(fileNameOf(each.state.name));
        for (const RuleFindings& ofRule : each.check->report()) {
            for (const RuleFinding& found : ofRule.first)
                findings.push_back({source, qt(ruleName(found.rule)), qt(placeText(found, localNumeral)),
                                    qt(reasonText(found, localNumeral)),
                                    [this, image = each.state.image, found] { goTo(image, found); }});
            const std::int64_t more = ofRule.count - static_cast<std::int64_t>(ofRule.first.size());
            if (more > 0)
                findings.push_back({source,
                                    qt(ruleName(ofRule.first.front().rule)),
                                    {},
                                    shown(StringId::FindingMore, {localNumeral(more)}),
                                    {}});
        }
    }
    std::set<std::string> images;
    for (const Checked& each : checked_)
        images.insert(each.state.name);
    if (!findings.empty())
        dock_.showFindings(std::move(findings), std::move(images));
    else
        dock_.showNotice(shown(seen_.defaults.any() || projectRules_.any() ? StringId::FindingsNone
                                                                           : StringId::FindingsNoRule),
                         std::move(images));
}

void RuleWatch::goTo(const CDyeworksDoc* wanted, const RuleFinding& finding) {
    const CDyeworksDoc* const image = open(wanted);
    if (image == nullptr)
        return;
    CMainFrame& frame = workspace_.mainFrame();
    frame.activateWindowOf(*image);
    ImageView* const view = frame.activeImageView();
    if (view == nullptr || &view->view().document() != image)
        return;
    if (finding.texels)
        view->view().SelectTexels(*finding.texels);
    if (!finding.entry || !image->IsAttached())
        return;
    workspace_.paletteSet()->setCurrent(image->attachedName());
    frame.RefreshPaletteBar();
    if (!frame.paletteBar().isShown())
        frame.paletteBar().setShown(true);
    frame.SelectPaletteBarCell(*finding.entry);
}

void RuleWatch::askForRules() {
    if (workspace_.currentProject().document() != nullptr)
        workspace_.router().run(ID_PROJECT_RULES);
    else
        OptionsCommand(&workspace_.mainFrame(), shortcutOptions(workspace_.mainFrame().commandActions()),
                       OptionsPage::Rules);
}

} // namespace dyeworks
