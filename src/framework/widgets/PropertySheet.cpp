#include "framework/widgets/PropertySheet.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QTabWidget>
#include <QVBoxLayout>

namespace dyeworks {

PropertySheet::PropertySheet(const QString& caption, QWidget* parent)
    : QDialog(parent)
    , tabs_(new QTabWidget) {
    setWindowTitle(caption);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setObjectName(QStringLiteral("IDOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("IDCANCEL"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PropertySheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PropertySheet::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs_);
    layout->addWidget(buttons);
}

void PropertySheet::addPage(std::unique_ptr<PropertyPage> page) {
    const QString title = page->windowTitle();
    page->setAccessibleName(title);
    tabs_->setAccessibleName(windowTitle());
    connect(page.get(), &PropertyPage::edited, this, &PropertySheet::followPages);
    tabs_->addTab(page.release(), title);
}

void PropertySheet::removePage(PropertyPage& page) {
    tabs_->removeTab(tabs_->indexOf(&page));
    // The tabs have let go of it, but it is still among their children, where it would be laid out.
    page.hide();
    page.setParent(this);
}

void PropertySheet::showPage(PropertyPage& page) {
    tabs_->setCurrentWidget(&page);
}

int PropertySheet::activePage() const {
    return tabs_->currentIndex();
}

PropertyPage* PropertySheet::page(int index) const {
    return qobject_cast<PropertyPage*>(tabs_->widget(index));
}

void PropertySheet::fitToPages() {
    bool grows = false;
    for (int i = 0; i < tabs_->count(); ++i)
        grows = grows || (page(i)->sizePolicy().horizontalPolicy() & QSizePolicy::ExpandFlag) != 0;
    layout()->setSizeConstraint(grows ? QLayout::SetMinimumSize : QLayout::SetFixedSize);
    if (!grows)
        return;
    // With room for a title bar that is not there yet.
    const QSize room = screen()->availableSize() - QSize(0, 2 * fontMetrics().height());
    resize(sizeHint().boundedTo(room).expandedTo(minimumSizeHint()));
}

void PropertySheet::followPages() {
    bool acceptable = true;
    for (int i = 0; i < tabs_->count(); ++i)
        acceptable = acceptable && page(i)->isAcceptable();
    ok_->setEnabled(acceptable);
}

void PropertySheet::showEvent(QShowEvent* event) {
    // A sheet that comes back from its icon is open already, with what has been typed into it.
    if (event->spontaneous())
        return QDialog::showEvent(event);
    fitToPages();
    for (int i = 0; i < tabs_->count(); ++i)
        page(i)->showValues();
    followPages();
    QDialog::showEvent(event);
    // As if the user had gone there with the Tab key, so that what is typed replaces the text.
    if (QWidget* inFront = tabs_->currentWidget())
        inFront->setFocus(Qt::TabFocusReason);
}

void PropertySheet::accept() {
    for (int i = 0; i < tabs_->count(); ++i) {
        const int inFront = tabs_->currentIndex();
        // In front before it is asked, because the focus goes only to what shows.
        tabs_->setCurrentIndex(i);
        if (!page(i)->takeOver())
            return;
        tabs_->setCurrentIndex(inFront);
    }
    QDialog::accept();
}

} // namespace dyeworks
