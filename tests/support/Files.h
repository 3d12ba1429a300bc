// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// What is in a file; empty where it cannot be read.
inline QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes a file hold \a content and nothing else, and the folder that it is to be in.
[[nodiscard]] inline bool SetContents(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}
