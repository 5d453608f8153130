#pragma once

#include "paint/Rect.h"
#include "platform/StateFolder.h"
#include "recovery/InPlaceCopies.h"
#include "recovery/RecoveryItem.h"
#include "recovery/RecoveryKeeper.h"
#include "ui/HangNotice.h"

#include <QObject>
#include <QTimer>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

class CDyeworksDoc;
class Workspace;

/// Keeps unsaved work while the program runs, and offers what a run has left that did not end in order.
class CrashRecovery : public QObject {
    Q_OBJECT

public:
    /// `workspace` must outlive it.
    explicit CrashRecovery(Workspace& workspace);
    ~CrashRecovery() override;

    /// Begins to keep. Before, everything else does nothing.
    void start();
    /// As `RecoveryKeeper::imageChanged`.
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels);
    /// Keeps all that is unsaved, before it returns.
    void keepNow();
    /// As `PlugInFailures` hears of it. A plug-in that does not come back finds everything kept after a
    /// while, and the user is asked what is to become of the program.
    void plugInCallBegins(const std::string& fileName);
    void plugInCallEnds();
    /// As `RecoveryKeeper`.
    void keepWhileHanging();
    /// The program's file, which `HangNotice` starts; empty: nobody is asked.
    void setProgram(std::string file) { hangNotice_.setProgram(std::move(file)); }
    /// The program ends in order.
    void end();

    /// Whether something was left that could be offered.
    [[nodiscard]] bool hasLeft();
    /// Shows what was left and opens what is chosen of it.
    void offer();

private:
    /// One that was left, as long as nothing has become of it.
    struct Left {
        LeftState* state = nullptr;
        std::string name;
        RecoveryItem item;
    };
    struct Renamed {
        std::string before;
        std::string key;
    };

    void look();
    void tellFailure();
    void find();
    void recover(const std::vector<std::size_t>& rows);
    [[nodiscard]] bool open(const RecoveryItem& item, std::span<const std::byte> contents,
                            std::vector<Renamed>& palettes);
    /// `fill` gives a new document its texels.
    [[nodiscard]] bool openImage(const RecoveryItem& item, const std::function<bool(CDyeworksDoc&)>& fill,
                                 const std::vector<Renamed>& palettes);
    [[nodiscard]] bool openPalette(const RecoveryItem& item, const TlutData& table,
                                   std::vector<Renamed>& palettes);
    [[nodiscard]] bool openFile(const RecoveryItem& item, std::span<const std::byte> contents,
                                std::vector<Renamed>& palettes);
    [[nodiscard]] bool openProject(const RecoveryItem& item, std::span<const std::byte> contents);
    void forget(const std::vector<std::size_t>& rows);

    Workspace& workspace_;
    HangNotice hangNotice_;
    std::optional<RecoveryKeeper> keeper_;
    std::optional<InPlaceCopies> copies_;
    QTimer timer_;
    bool failureTold_ = false;
    std::optional<std::vector<std::unique_ptr<LeftState>>> states_; ///< Once they have been looked for.
    std::vector<Left> left_;
};

} // namespace dyeworks
