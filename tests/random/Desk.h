#pragma once

#include "DeskModel.h"
#include "Step.h"
#include "paint/widgets/ImageView.h"
#include "platform/fake/FakePlatform.h"
#include "ui/CDyeworksApp.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QDialog;

namespace dyeworks {

/// The program, with its window open on an offscreen display and files to open, and the model of it. Verbs do
/// something to both.
class Desk {
public:
    Desk();
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// False for a verb that is none.
    [[nodiscard]] bool play(const Step& step);
    /// What differs between the program and the model, in words; "" when nothing does. `all` compares the
    /// files, too.
    [[nodiscard]] std::string differences(bool all);

    // For the verbs.
    FakePlatform fake;
    DeskModel model;

    [[nodiscard]] CDyeworksApp& app() { return *app_; }
    // The program is left in order, but for that, and started with the settings that it leaves.
    void start();
    void end();
    [[nodiscard]] CMainFrame& frame() { return app_->mainFrame(); }
    /// Null when no image is open.
    [[nodiscard]] ImageView* view();
    /// All of images, as the model counts them.
    [[nodiscard]] std::vector<CDyeworksView*> views();
    void activate(const CDyeworksView& wanted);
    /// The state of the command is expected to be that of the model, and it is run.
    bool run(CommandId id);
    /// The same where the model has gone ahead.
    bool expectRun(CommandId id, bool expected);
    void answerNext(int answer);
    void withNextDialog(std::function<void(QDialog&)> use);
    /// Where the palette bar stands is the bar's affair.
    void readBar();
    /// Which window comes to the front when one has gone is the window system's affair.
    void readActive();
    /// Null for an image that the model does not have.
    [[nodiscard]] const ViewModel* modelOf(const CDyeworksDoc* document);
    /// Something that the model has no word for.
    void wonder(const std::string& what) { wonders_ += what + '\n'; }

    static constexpr int kImages = 6;
    static constexpr int kPalettes = 5;
    static constexpr int kProjects = 2;
    static constexpr std::size_t kMostImages = 4; ///< That are open at a time.
    [[nodiscard]] static std::string imagePath(int number);
    [[nodiscard]] static std::string palettePath(int number);
    [[nodiscard]] static std::string projectPath(int number);

private:
    void putFiles();

    std::unique_ptr<CDyeworksApp> app_;
    std::string wonders_;
};

/// What can be done.
struct Verb {
    const char* name;
    int weight;              ///< How often it is chosen.
    std::vector<int> limits; ///< Below which its numbers are.
    void (*play)(Desk&, const std::vector<int>& numbers);
};
[[nodiscard]] const std::vector<Verb>& imageVerbs();
[[nodiscard]] const std::vector<Verb>& fileVerbs();
[[nodiscard]] const std::vector<Verb>& paletteVerbs();
[[nodiscard]] const std::vector<Verb>& projectVerbs();
[[nodiscard]] const std::vector<Verb>& outsideVerbs();
[[nodiscard]] std::vector<const Verb*> allVerbs();

} // namespace dyeworks
