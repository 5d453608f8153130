#pragma once

#include "ui/sheets/CFileNewProjectPage.h"

namespace dyeworks {

/// The properties of an open project: the project page in a sheet of its own, with the name and the project's
/// folder fixed.
class ProjectPropertySheet : public PropertySheet {
    Q_OBJECT

public:
    explicit ProjectPropertySheet(CFileNewProjectPage::Values values, QWidget* parent = nullptr);

    /// As they were given; after OK with the directories that the user wants.
    [[nodiscard]] const CFileNewProjectPage::Values& values() const { return page_->values(); }

private:
    CFileNewProjectPage* page_;
};

} // namespace dyeworks
