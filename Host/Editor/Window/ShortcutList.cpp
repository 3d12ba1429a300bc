// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/ShortcutList.h"

#include <QAction>
#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize kSize(560, 560);

QTreeWidgetItem* ItemOf(const QAction& action)
{
    return new QTreeWidgetItem(
        {action.text().remove('&'),
         QKeySequence::listToString(action.shortcuts(), QKeySequence::NativeText)});
}

} // namespace

ShortcutList::ShortcutList(QWidget* window) : QDialog(window)
{
    setWindowTitle(tr("Keyboard shortcuts"));
    resize(kSize);
    auto* list = new QTreeWidget(this);
    list->setAccessibleName(windowTitle());
    list->setHeaderLabels({tr("Command"), tr("Keys")});
    list->setRootIsDecorated(false);
    for (const QAction* action : window->findChildren<QAction*>()) {
        if (!action->shortcuts().isEmpty() && !action->text().isEmpty())
            list->addTopLevelItem(ItemOf(*action));
    }
    list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list);
}
