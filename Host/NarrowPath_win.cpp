// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/SystemPath.h"
#include "Com/WideText.h"
#include "Host/NarrowPath.h"

#include <QDir>
#include <QFileInfo>

namespace {

bool IsNarrow(const QString& text)
{
    return QString::fromLocal8Bit(text.toLocal8Bit()) == text;
}

// The name of \a folder in the form of MS-DOS; the folder itself where the volume keeps no such
// names.
QString ShortPath(const QString& folder)
{
    const std::wstring path = QDir::toNativeSeparators(folder).toStdWString();
    std::wstring name(MAX_PATH, L'\0');
    const DWORD length = GetShortPathNameW(path.c_str(), name.data(), MAX_PATH);
    return length > 0 && length < MAX_PATH ? FromWide(name.substr(0, length)) : folder;
}

} // namespace

QByteArray NarrowPath(const QString& path)
{
    const QFileInfo file(path);
    const QString narrow =
        IsNarrow(path) ? path : QDir(ShortPath(file.absolutePath())).filePath(file.fileName());
    return IsNarrow(narrow) ? narrow.toLocal8Bit() : QByteArray();
}
