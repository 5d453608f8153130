#pragma once

#include "framework/widgets/MessageBar.h"
#include "recovery/OutsideWatch.h"

#include <memory>

class QPushButton;

namespace dyeworks {

class CDyeworksDoc;
class ImageComparison;
class ImageView;

/// Says what has become of the file of a document or palette, and asks what is to be done.
class OutsideBar : public MessageBar {
    Q_OBJECT

public:
    /// `view` shows the image that the file can be compared with; null: there is none.
    OutsideBar(const OutsideWatch::Notice& notice, ImageView* view);
    ~OutsideBar() override;

    [[nodiscard]] const OutsideWatch::Notice& notice() const noexcept { return notice_; }
    /// Without its texels, the image shows in other colours.
    void imageChanged(const CDyeworksDoc& image, bool texels);

Q_SIGNALS:
    void reloadWanted(const dyeworks::OutsideWatch::Notice& notice);
    void keepWanted(const dyeworks::OutsideWatch::Notice& notice);

private:
    void compare(bool on);
    void showWords();

    OutsideWatch::Notice notice_;
    ImageView* view_;
    QPushButton* compare_ = nullptr;
    std::unique_ptr<ImageComparison> comparison_;
};

} // namespace dyeworks
