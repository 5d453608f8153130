#include "framework/widgets/PropertySheet.h"

#include <QDialogButtonBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace dyeworks {

PropertySheet::PropertySheet(const QString& caption, QWidget* parent)
    : QDialog(parent)
    , tabs_(new QTabWidget) {
    setWindowTitle(caption);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &PropertySheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PropertySheet::reject);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(tabs_);
    layout->addWidget(buttons);
}

void PropertySheet::addPage(std::unique_ptr<PropertyPage> page) {
    const QString title = page->windowTitle();
    tabs_->addTab(page.release(), title);
}

void PropertySheet::removePage(PropertyPage& page) {
    delete &page;
}

int PropertySheet::activePage() const {
    return tabs_->currentIndex();
}

void PropertySheet::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // As if the user had gone there with the Tab key, so that what is typed replaces the text.
    if (QWidget* page = tabs_->currentWidget())
        page->setFocus(Qt::TabFocusReason);
}

void PropertySheet::accept() {
    for (int i = 0; i < tabs_->count(); ++i) {
        auto* page = qobject_cast<PropertyPage*>(tabs_->widget(i));
        const int inFront = tabs_->currentIndex();
        // In front before it is asked, because the focus goes only to what shows.
        tabs_->setCurrentIndex(i);
        if (!page->takeOver())
            return;
        tabs_->setCurrentIndex(inFront);
    }
    QDialog::accept();
}

} // namespace dyeworks
