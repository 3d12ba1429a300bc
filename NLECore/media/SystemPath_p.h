// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

#include <string>

namespace nle {

/// \a path as Windows takes it, without a limit of its length.
inline std::wstring SystemPath(const QString& path)
{
    const QString name =
        QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    const QString unlimited = name.startsWith(QLatin1String("\\\\"))
                                  ? QLatin1String("\\\\?\\UNC\\") + name.mid(2)
                                  : QLatin1String("\\\\?\\") + name;
    return unlimited.toStdWString();
}

} // namespace nle
