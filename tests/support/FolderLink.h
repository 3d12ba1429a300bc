// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

/// Makes \a link a link to a folder: a symbolic one, on Windows a junction, which needs no
/// privileges. False where there is no such thing.
inline bool LinkFolder(const QString& folder, const QString& link)
{
#ifdef Q_OS_WIN
    QProcess::execute("cmd", {"/c", "mklink", "/j", QDir::toNativeSeparators(link),
                              QDir::toNativeSeparators(folder)});
    return QFileInfo(link).isJunction();
#else
    return QFile::link(folder, link);
#endif
}
