#include "ui/AboutDialog.h"

#include "platform/Platform.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QStyle>

namespace dyeworks {

namespace {

QString versionLine() {
    const auto& version = platform().versionInfo().program().fileVersion;
    QString line = QString::fromStdString(text(StringId::AboutVersion));
    line += QStringLiteral(" %1.%2.%3.%4").arg(version[0]).arg(version[1]).arg(version[2]).arg(version[3]);
    return line;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("IDD_ABOUTBOX"));
    setWindowTitle(QString::fromStdString(text(StringId::AboutCaption)));

    auto* icon = new QLabel;
    const int side = 2 * style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this);
    icon->setPixmap(QApplication::windowIcon().pixmap(QSize(side, side), devicePixelRatio()));

    auto* version = new QLabel(versionLine());
    version->setObjectName(QStringLiteral("IDC_ABOUT_VERSION"));
    QFont larger = version->font();
    larger.setPointSizeF(1.2 * larger.pointSizeF());
    larger.setBold(true);
    version->setFont(larger);
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* description = new QLabel(QString::fromStdString(text(StringId::AboutDescription)));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    const int gap = style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, this);
    layout->setHorizontalSpacing(3 * gap);
    layout->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(version, 0, 1, Qt::AlignBottom);
    layout->addWidget(description, 1, 1, Qt::AlignTop);
    layout->addWidget(buttons, 2, 0, 1, 2);
}

} // namespace dyeworks
