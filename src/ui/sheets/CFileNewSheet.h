#pragma once

#include "framework/widgets/PropertySheet.h"

namespace dyeworks {

class CFileNewPalettePage;
class CFileNewProjectPage;
class CFileNewTexturePage;

/// The sheet "New": what a new project, image or palette is to be like, a page for each, in this order.
/// Callers remove the pages that they do not need; the references stay good.
class CFileNewSheet : public PropertySheet {
    Q_OBJECT

public:
    explicit CFileNewSheet(QWidget* parent = nullptr);

    [[nodiscard]] CFileNewProjectPage& projectPage() const noexcept { return *projectPage_; }
    [[nodiscard]] CFileNewTexturePage& texturePage() const noexcept { return *texturePage_; }
    [[nodiscard]] CFileNewPalettePage& palettePage() const noexcept { return *palettePage_; }

    /// Removes the other two pages.
    void keepOnly(const PropertyPage& page);

private:
    CFileNewProjectPage* projectPage_;
    CFileNewTexturePage* texturePage_;
    CFileNewPalettePage* palettePage_;
};

} // namespace dyeworks
