#include "ui/sheets/CFileNewProjectPage.h"

#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/controls/CFolderPick.h"
#include "ui/sheets/PathEdit.h"
#include "ui/sheets/SheetControls.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace dyeworks {

namespace {

struct RowTexts {
    const char* editName;
    const char* browseName;
    StringId tip;
    StringId browseTip;
};

constexpr RowTexts textsOf(CFileNewProjectPage::Directory field) {
    switch (field) {
    case CFileNewProjectPage::Directory::Project:
        return {"IDC_TPF_DIR", "IDC_TPF_DIR_BROWSE", StringId::NewProjectDirectoryTip,
                StringId::BrowseProjectTip};
    case CFileNewProjectPage::Directory::Images:
        return {"IDC_TMF_DIR", "IDC_TMF_DIR_BROWSE", StringId::NewProjectImagesTip,
                StringId::BrowseImagesTip};
    case CFileNewProjectPage::Directory::Palettes:
        break;
    }
    return {"IDC_TLF_DIR", "IDC_TLF_DIR_BROWSE", StringId::NewProjectPalettesTip,
            StringId::BrowsePalettesTip};
}

} // namespace

CFileNewProjectPage::CFileNewProjectPage()
    : folderPick_(CFolderPick::create())
    , name_(new PathEdit("IDC_TPF_NAME"))
    , project_(directoryRow(Directory::Project))
    , images_(directoryRow(Directory::Images))
    , palettes_(directoryRow(Directory::Palettes)) {
    setObjectName(QStringLiteral("IDD_FILENEW_PROJECT"));
    setWindowTitle(shown(StringId::NewProjectTab));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    name_->setToolTip(shown(StringId::NewProjectNameTip));

    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->addRow(shown(StringId::NewProjectName), name_);
    const auto addDirectory = [layout](StringId caption, const DirectoryRow& row) {
        auto* both = new QHBoxLayout;
        both->addWidget(row.edit);
        both->addWidget(row.browse);
        auto* label = new QLabel(shown(caption));
        label->setBuddy(row.edit);
        layout->addRow(label, both);
    };
    addDirectory(StringId::NewProjectDirectory, project_);
    addDirectory(StringId::NewProjectImages, images_);
    addDirectory(StringId::NewProjectPalettes, palettes_);
    showValues();
}

CFileNewProjectPage::~CFileNewProjectPage() = default;

CFileNewProjectPage::DirectoryRow CFileNewProjectPage::directoryRow(Directory field) {
    const RowTexts texts = textsOf(field);
    const DirectoryRow row{new PathEdit(texts.editName), new QPushButton(QStringLiteral("..."))};
    row.edit->setToolTip(shown(texts.tip));
    row.browse->setObjectName(QString::fromLatin1(texts.browseName));
    row.browse->setAccessibleName(shown(texts.browseTip));
    row.browse->setToolTip(shown(folderPick_ == nullptr ? StringId::BrowseMissingTip : texts.browseTip));
    row.browse->setAutoDefault(false);
    row.browse->setFixedWidth(3 * row.browse->fontMetrics().height());
    connect(row.browse, &QPushButton::clicked, this, [this, field] { ChooseFolder(field); });
    return row;
}

std::string& CFileNewProjectPage::directory(Directory field) {
    switch (field) {
    case Directory::Project:
        return values_.projectDirectory;
    case Directory::Images:
        return values_.imageDirectories;
    case Directory::Palettes:
        break;
    }
    return values_.paletteDirectories;
}

void CFileNewProjectPage::showValues() {
    name_->setPath(values_.name);
    project_.edit->setPath(values_.projectDirectory);
    images_.edit->setPath(values_.imageDirectories);
    palettes_.edit->setPath(values_.paletteDirectories);

    const bool canChoose = folderPick_ != nullptr;
    name_->setEnabled(!nameFixed_);
    project_.edit->setEnabled(!nameFixed_);
    project_.browse->setEnabled(!nameFixed_ && canChoose);
    images_.browse->setEnabled(canChoose);
    palettes_.browse->setEnabled(canChoose);
    setFocusProxy(nameFixed_ ? images_.edit : name_);
}

bool CFileNewProjectPage::takeOver() {
    values_ = {name_->path(), project_.edit->path(), images_.edit->path(), palettes_.edit->path()};
    return true;
}

void CFileNewProjectPage::ChooseFolder(Directory field) {
    (void)takeOver();
    std::string& folder = directory(field);
    if (folderPick_ != nullptr) {
        folderPick_->setFolder(folder.empty() ? platform().files().currentDirectory() : folder);
        (void)folderPick_->choose(folder);
    }
    showValues();
}

} // namespace dyeworks
