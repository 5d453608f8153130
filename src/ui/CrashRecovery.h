#pragma once

#include "paint/Rect.h"
#include "platform/StateFolder.h"
#include "recovery/InPlaceCopies.h"
#include "recovery/RecoveryItem.h"
#include "recovery/RecoveryKeeper.h"

#include <QObject>
#include <QTimer>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
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
    std::optional<RecoveryKeeper> keeper_;
    std::optional<InPlaceCopies> copies_;
    QTimer timer_;
    bool failureTold_ = false;
    std::optional<std::vector<std::unique_ptr<LeftState>>> states_; ///< Once they have been looked for.
    std::vector<Left> left_;
};

} // namespace dyeworks
