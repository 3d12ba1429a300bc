// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

#include "CommonLib/FileOperation.h"
#include "CommonLib/system/SystemInfo_p.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <optional>

namespace {

constexpr quint64 kUnknownFreeSpace = 2147483647;

bool IsLink(const QFileInfo& info)
{
    return info.isSymLink() || info.isJunction();
}

// Never follows a link out of the tree: a link to a folder goes as a link.
void RemoveTree(const QString& path)
{
    const QFileInfo self(path);
    if (IsLink(self)) {
        if (!QFile::remove(path))
            QDir().rmdir(path); // links to folders on Windows
        return;
    }
    if (!self.isDir()) {
        QFile::remove(path);
        return;
    }
    // Without hidden entries, broken links and special files: a folder that holds any stays. Kept:
    // see docs/compatibility.md.
    const auto filters = QDir::Dirs | QDir::Files | QDir::Drives | QDir::NoDotAndDotDot;
    const QFileInfoList entries = QDir(path).entryInfoList(filters);
    for (const QFileInfo& entry : entries)
        RemoveTree(entry.absoluteFilePath());
    QDir().rmdir(path);
}

QString NearestExisting(const QString& path)
{
    QString existing = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (!QFileInfo::exists(existing)) {
        const QString parent = QFileInfo(existing).absolutePath();
        if (parent == existing)
            break;
        existing = parent;
    }
    return existing;
}

} // namespace

void RemoveDir(void* /*ignored*/, const QString& path)
{
    if (path.isEmpty())
        return;
    // A slash at the end would make the system look behind a link instead of at it. Nothing else is
    // tidied up: ".." behind a link leads where the system says.
    QString target = QDir::fromNativeSeparators(path);
    while (target.size() > 1 && target.endsWith('/') && !QDir(target).isRoot())
        target.chop(1);
    if (FileOperation::IsFileExist(target))
        RemoveTree(target);
    const QString parent = QFileInfo(target).absolutePath();
    if (!FileOperation::IsFileExist(parent))
        QDir().mkpath(parent);
}

quint64 gGetDiskFreeSpace(void* /*ignored*/, const QString& path)
{
    if (path.isEmpty())
        return kUnknownFreeSpace;
    const std::optional<quint64> free = FreeBytes(NearestExisting(path));
    return free ? *free >> 20 : kUnknownFreeSpace;
}

QString gGetStyleSheet(void* /*ignored*/, QString path)
{
    return FileOperation::ReadFile(path, true);
}

void gOpenUrl(void* /*ignored*/, QString url)
{
    if (QDesktopServices::openUrl(QUrl(url, QUrl::TolerantMode)))
        return;
    url.replace(QLatin1String("https://"), QLatin1String("http://"));
    QDesktopServices::openUrl(QUrl(url, QUrl::TolerantMode));
}
