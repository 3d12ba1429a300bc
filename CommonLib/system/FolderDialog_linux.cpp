// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/FolderDialog_p.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <QWidget>

QString ChooseFolder(const QString& title, quint64 owner)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return QString();
    // Null for a window of another toolkit or process: the dialog then stands alone.
    QWidget* parent = QWidget::find(static_cast<WId>(owner));
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    // From a folder that does not exist the dialog would offer that folder, and refuse it.
    return QFileDialog::getExistingDirectory(parent, title,
                                             QDir(desktop).exists() ? desktop : QDir::homePath());
}
