// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Import/ImportDialog.h"

#include "Host/Import/ImportPage.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize kSize(760, 520);

} // namespace

ImportDialog::ImportDialog(QWidget* parent) : QDialog(parent)
{
    auto* page = new ImportPage(this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(page);
    // Only the page's own one, when it can import; a dialog makes any button one.
    for (auto* button : page->findChildren<QPushButton*>())
        button->setAutoDefault(false);
    connect(page, &ImportPage::Imported, this, &ImportDialog::Imported);
    resize(kSize);
}
