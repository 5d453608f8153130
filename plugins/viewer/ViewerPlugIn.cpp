#include "viewer/ViewerWindow.h"

#include <QApplication>

#include <array>
#include <memory>
#include <new>

// What the program shows of this plug-in, and what it calls.

DW_VERSION_INFO(1, 0, 0, 0, DW_VERSION_STRING("040904E4", "ProductName", "Viewer"),
                DW_VERSION_STRING("040904E4", "InternalName", "Viewer"),
                DW_VERSION_STRING("040904E4", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("040904E4", "Comments",
                                  "Shows the image as it is edited, tiled and magnified."),
                DW_VERSION_STRING("041104B0", "ProductName", "ビューア"),
                DW_VERSION_STRING("041104B0", "InternalName", "ビューア"),
                DW_VERSION_STRING("041104B0", "CompanyName", "Orrery Dyeworks"),
                DW_VERSION_STRING("041104B0", "Comments", "編集中の画像を並べて拡大表示します。"));

namespace {

using dyeworks::plugins::ViewerWindow;

/// The two windows. They go with the application object, or with this library when that is unloaded before.
class ViewerWindows {
public:
    ViewerWindows() = default;
    ~ViewerWindows() {
        qRemovePostRoutine(&ViewerWindows::applicationEnds);
        close();
    }
    ViewerWindows(const ViewerWindows&) = delete;
    ViewerWindows& operator=(const ViewerWindows&) = delete;

    [[nodiscard]] bool show(const PlugInPicture& picture, std::size_t which);
    void dismiss(std::size_t which);

private:
    static void applicationEnds();
    void close() {
        for (std::unique_ptr<ViewerWindow>& window : windows_)
            window.reset();
    }

    std::array<std::unique_ptr<ViewerWindow>, 2> windows_;
};

ViewerWindows viewerWindows;

void ViewerWindows::applicationEnds() {
    viewerWindows.close();
}

bool ViewerWindows::show(const PlugInPicture& picture, std::size_t which) {
    if (which >= windows_.size() || qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        return false;
    std::unique_ptr<ViewerWindow>& window = windows_.at(which);
    if (window == nullptr) {
        qRemovePostRoutine(&ViewerWindows::applicationEnds);
        qAddPostRoutine(&ViewerWindows::applicationEnds);
        window = std::make_unique<ViewerWindow>(static_cast<int>(which) + 1);
    }
    return !window->takeClosedByUser() && window->showPicture(picture);
}

void ViewerWindows::dismiss(std::size_t which) {
    if (which < windows_.size() && windows_.at(which) != nullptr)
        windows_.at(which)->dismiss();
}

} // namespace

std::uint32_t DWPI_isAvail(std::uint32_t /*hostVersion*/) {
    return 1;
}

std::uint32_t DWPI_getType(void) {
    return DWPI_TMF_PREVIEW;
}

std::uint32_t DWPI_preview2(const PlugInPicture* picture, std::uint32_t which) {
    try {
        return picture != nullptr && viewerWindows.show(*picture, which) ? 1 : 0;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

std::uint32_t DWPI_previewOff(std::uint32_t which) {
    viewerWindows.dismiss(which);
    return 1;
}
