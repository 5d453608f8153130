#pragma once

#include "framework/widgets/PropertySheet.h"
#include "project/ProjectHost.h"

#include <memory>
#include <string>
#include <utility>

class QPushButton;

namespace dyeworks {

class CFolderPick;
class PathEdit;

/// The page for a project: its name, its folder and the folders of its images and palettes. It stands in the
/// new-document sheet and in that of an open project's properties.
///
/// Values are in the program's form ("\home\kei\tex"), as they were given or typed: neither made full paths
/// nor checked. The fields show them as people write them ("/home/kei/tex"), and take either form.
class CFileNewProjectPage : public PropertyPage {
    Q_OBJECT

public:
    using Values = ProjectSettings;
    enum class Directory { Project, Images, Palettes };

    CFileNewProjectPage();
    ~CFileNewProjectPage() override;

    /// As they were set or last taken over.
    [[nodiscard]] const Values& values() const noexcept { return values_; }
    /// They are shown when the sheet opens, or by showValues.
    void setValues(Values values) { values_ = std::move(values); }
    /// With a fixed name, name and project directory are shown but cannot be changed.
    void setNameFixed(bool fixed) { nameFixed_ = fixed; }

    void showValues() override;
    [[nodiscard]] bool takeOver() override;

    /// Lets the user choose a folder for the field, beginning at the one in it, or at the current directory
    /// when it is empty. The chosen folder replaces all that is in the field. Does nothing without a chooser.
    void ChooseFolder(Directory field);

private:
    struct DirectoryRow {
        PathEdit* edit;
        QPushButton* browse;
    };

    /// Makes the edit and the button of a field; the button starts ChooseFolder.
    [[nodiscard]] DirectoryRow directoryRow(Directory field);
    [[nodiscard]] std::string& directory(Directory field);

    std::unique_ptr<CFolderPick> folderPick_; ///< Null when the control is missing.
    Values values_{{}, "c:\\halcyon\\orrerykit\\dyedit\\user_data", {}, {}};
    bool nameFixed_ = false;
    PathEdit* name_;
    DirectoryRow project_;
    DirectoryRow images_;
    DirectoryRow palettes_;
};

} // namespace dyeworks
