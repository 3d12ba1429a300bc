// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Import/ImportDialog.h"

#include "Host/Import/ImportPage.h"

#include <QVBoxLayout>

namespace {

constexpr QSize kSize(760, 520);

} // namespace

ImportDialog::ImportDialog(QWidget* parent) : QDialog(parent)
{
    auto* page = new ImportPage(this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(page);
    connect(page, &ImportPage::Imported, this, &ImportDialog::Imported);
    resize(kSize);
}
