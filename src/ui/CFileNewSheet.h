#pragma once

#include "framework/widgets/PropertySheet.h"

namespace dyeworks {

class CFileNewTexturePage;

/// The sheet "New": what a new document is to be like. Callers remove the pages that they do not need.
class CFileNewSheet : public PropertySheet {
    Q_OBJECT

public:
    explicit CFileNewSheet(QWidget* parent = nullptr);

    [[nodiscard]] CFileNewTexturePage& texturePage() const noexcept { return *texturePage_; }

private:
    CFileNewTexturePage* texturePage_;
};

} // namespace dyeworks
