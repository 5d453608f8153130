#pragma once

#include "ui/FilePictures.h"

#include <QScrollArea>

#include <string>
#include <vector>

class QGridLayout;
class QVBoxLayout;

namespace dyeworks {

class CommandActions;
class ThumbnailButton;

/// A file that the start page offers.
struct StartFile {
    std::string path;
    /// Of an image: the palette that it is shown in, or "".
    std::string palette;
};

/// What to begin with while no document is open: commands, files that were open before, samples.
class StartPage : public QScrollArea {
    Q_OBJECT

public:
    /// `actions` must outlive it.
    StartPage(CommandActions& actions, const std::vector<StartFile>& recent,
              const std::vector<StartFile>& samples, QWidget* parent);

    /// Of the whole page, without scrolling.
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void recentChosen(const StartFile& file);
    void sampleChosen(const StartFile& file);
    void firstStepsAsked();
    /// The page is no longer to show by itself.
    void leftOut();

private:
    void addCommands(QVBoxLayout& page, CommandActions& actions);
    using Chosen = void (StartPage::*)(const StartFile&); ///< A signal.
    void addFiles(QVBoxLayout& page, const QString& title, const std::vector<StartFile>& files,
                  Chosen chosen);
    [[nodiscard]] ThumbnailButton* makeCard(const StartFile& file);

    FilePictures pictures_;
};

} // namespace dyeworks
