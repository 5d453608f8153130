#include "ui/sheets/AboutDialog.h"

#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/qt/DesktopEntries.h"
#include "plugin/PlugInCatalogue.h"
#include "ui/sheets/SheetControls.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

/// A heading and the width of its column in pixels.
using VersionColumn = std::pair<QString, int>;

/// Name, class, company.
constexpr const char* kCredits[][3] = {
    {"Orrery Dyeworks", "Program", "The Orrery Dyeworks contributors"},
    {"Documentation", "Guide", "The Orrery Dyeworks contributors"},
    {"Icons and samples", "Drawing", "The Orrery Dyeworks contributors"},
    {"Qt 6", "Windows, printing, settings", "The Qt Company and contributors"},
    {"libpng", "PNG plug-ins", "The PNG Reference Library Authors"},
    {"GNU C Library", "Run time", "Free Software Foundation and contributors"},
    {"GoogleTest", "Tests", "Google and contributors"},
    {"Google Benchmark", "Benchmarks", "Google and contributors"},
};

template <typename Parts>
QString dotted(const Parts& parts) {
    return QStringLiteral("%1.%2.%3.%4").arg(parts[0]).arg(parts[1]).arg(parts[2]).arg(parts[3]);
}

QString versionLine() {
    return shown(StringId::AboutVersion) + QLatin1Char(' ') +
           dotted(platform().versionInfo().program().fileVersion);
}

void setColumns(QTreeWidget& list, const std::vector<VersionColumn>& columns) {
    list.setColumnCount(static_cast<int>(columns.size()));
    for (int i = 0; i < list.columnCount(); ++i) {
        const auto& [heading, width] = columns[static_cast<std::size_t>(i)];
        list.headerItem()->setText(i, heading);
        // Some languages need more for the heading itself.
        list.setColumnWidth(i, std::max(width, list.header()->sectionSizeHint(i)));
    }
}

void addRow(QTreeWidget& list, const QStringList& texts) {
    auto* row = new QTreeWidgetItem(&list, texts);
    for (int i = 0; i < texts.size(); ++i)
        row->setToolTip(i, texts.at(i));
}

} // namespace

AboutDialog::AboutDialog(const PlugInCatalogue& plugIns, QWidget* parent)
    : QDialog(parent)
    , list_(new QTreeWidget) {
    setObjectName(QStringLiteral("IDD_ABOUTBOX"));
    setWindowTitle(shown(StringId::AboutCaption));

    auto* icon = new QLabel;
    const int side = 2 * style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this);
    icon->setPixmap(programIcon().pixmap(QSize(side, side), devicePixelRatioF()));

    auto* version = new QLabel(versionLine());
    version->setObjectName(QStringLiteral("IDC_ABOUT_VERSION"));
    QFont larger = version->font();
    larger.setPointSizeF(1.2 * larger.pointSizeF());
    larger.setBold(true);
    version->setFont(larger);
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* description = new QLabel(shown(StringId::AboutDescription));

    auto* folder = new QLineEdit(QString::fromStdString(displayPath(plugIns.folder())));
    folder->setObjectName(QStringLiteral("IDC_ABOUT_PLUGINS"));
    folder->setReadOnly(true);
    folder->setToolTip(shown(StringId::AboutPlugInsTip));
    folder->setCursorPosition(0);
    auto* folderLabel = new QLabel(shown(StringId::AboutPlugIns));
    folderLabel->setBuddy(folder);

    list_->setObjectName(QStringLiteral("IDC_ABOUT_LIST"));
    list_->setAccessibleName(shown(StringId::AboutPlugInList));
    list_->setWhatsThis(shown(StringId::AboutPlugInList));
    list_->setRootIsDecorated(false);
    list_->setAllColumnsShowFocus(true);
    list_->header()->setStretchLastSection(false);
    if (QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ShiftModifier))
        listCredits();
    else
        listPlugIns(plugIns);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* layout = new QGridLayout(this);
    const int gap = style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, this);
    layout->setHorizontalSpacing(3 * gap);
    layout->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(version, 0, 1, Qt::AlignBottom);
    layout->addWidget(description, 1, 1, Qt::AlignTop);
    layout->addWidget(folderLabel, 2, 0);
    layout->addWidget(folder, 2, 1);
    layout->addWidget(list_, 3, 0, 1, 2);
    layout->addWidget(buttons, 4, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(3, 1);
    const int letter = fontMetrics().height();
    resize(48 * letter, 24 * letter);
}

void AboutDialog::listPlugIns(const PlugInCatalogue& plugIns) {
    setColumns(*list_, {{shown(StringId::AboutName), 128},
                        {shown(StringId::AboutType), 192},
                        {shown(StringId::AboutFile), 72},
                        {shown(StringId::AboutVersionColumn), 56},
                        {shown(StringId::AboutInformation), 340},
                        {shown(StringId::AboutCompany), 180}});
    for (const PlugInInfo& plugIn : plugIns.all()) {
        const std::array version{plugIn.version[3], plugIn.version[2], plugIn.version[1], plugIn.version[0]};
        addRow(*list_,
               {QString::fromStdString(plugIn.productName), QString::fromStdString(typeText(plugIn.type)),
                QString::fromStdString(plugIn.fileName), dotted(version),
                QString::fromStdString(plugIn.comments), QString::fromStdString(plugIn.companyName)});
    }
}

void AboutDialog::listCredits() {
    setColumns(
        *list_,
        {{QStringLiteral("Name"), 96}, {QStringLiteral("Class"), 148}, {QStringLiteral("Comany"), 192}});
    for (const auto& row : kCredits)
        addRow(*list_,
               {QString::fromLatin1(row[0]), QString::fromLatin1(row[1]), QString::fromLatin1(row[2])});
}

} // namespace dyeworks
