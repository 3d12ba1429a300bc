// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/KeptFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QRegularExpression>
#include <QStandardPaths>

namespace nle {

namespace {

/// How long a file that is being written may take, in seconds; older ones were left behind.
constexpr int kLongestWrite = 3600;

const QLatin1String kLockSuffix(".lock");

/// Files that were named here, and those that become one: then their own part is not empty. The key
/// is the first part.
QRegularExpression NamePattern(const QStringList& suffixes)
{
    QStringList escaped;
    for (const QString& suffix : suffixes)
        escaped << QRegularExpression::escape(suffix);
    return QRegularExpression(QStringLiteral("^([0-9a-f]{32})(?:%1)(\\.[A-Za-z0-9]{6})?$")
                                  .arg(escaped.join(QLatin1Char('|'))));
}

std::unique_ptr<QLockFile> NewLock(const QString& folder, const QString& key)
{
    auto lock = std::make_unique<QLockFile>(folder + QLatin1Char('/') + key + kLockSuffix);
    // It is nobody's only when its process has ended, however long that works.
    lock->setStaleLockTime(0);
    return lock;
}

} // namespace

KeptFiles::KeptFiles(const char* name, QStringList suffixes, std::int64_t quota)
    : m_name(QLatin1String(name)), m_suffixes(std::move(suffixes)), m_place{QString(), quota}
{
}

void KeptFiles::SetFolder(const QString& folder, std::int64_t quota)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_place = {folder, quota};
}

KeptFiles::Place KeptFiles::Current() const
{
    Place place = {};
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        place = m_place;
    }
    if (place.folder.isEmpty()) {
        const QString caches = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
        place.folder = caches.isEmpty() ? QString() : caches + QLatin1Char('/') + m_name;
    }
    return place.quota > 0 ? place : Place{};
}

QString KeptFiles::PathOf(const ContentKey& key, QLatin1String suffix) const
{
    const QString folder = Current().folder;
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + ToText(key) + suffix;
}

bool KeptFiles::Prepare() const
{
    const QString folder = Current().folder;
    return !folder.isEmpty() && QDir().mkpath(folder);
}

bool KeptFiles::MakeRoomFor(const QString& path) const
{
    const Place place = Current();
    std::int64_t used = QFileInfo(path).size();
    if (used > place.quota) {
        QFile::remove(path);
        return false;
    }
    const QRegularExpression pattern = NamePattern(m_suffixes);
    const QDateTime oldest = QDateTime::currentDateTimeUtc().addSecs(-kLongestWrite);
    // The one used last stands first.
    for (const QFileInfo& file : QDir(place.folder).entryInfoList(QDir::Files, QDir::Time)) {
        const QRegularExpressionMatch name = pattern.match(file.fileName());
        if (!name.hasMatch() || file.filePath() == path)
            continue;
        const bool isWhole = name.captured(2).isEmpty();
        used += file.size();
        if (isWhole ? used > place.quota : file.lastModified() < oldest) {
            QFile::remove(file.filePath());
            used -= file.size();
        }
    }
    return true;
}

std::unique_ptr<QLockFile> KeptFiles::LockOf(const ContentKey& key) const
{
    const QString folder = Current().folder;
    return folder.isEmpty() ? nullptr : NewLock(folder, ToText(key));
}

void KeptFiles::RemoveLeftovers() const
{
    const QString folder = Current().folder;
    if (folder.isEmpty())
        return;
    // The lock of a process that has ended is one as well, and goes when it is taken and given
    // back.
    const QRegularExpression pattern = NamePattern(m_suffixes + QStringList(kLockSuffix));
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files)) {
        const QRegularExpressionMatch name = pattern.match(file.fileName());
        const bool isLock = file.fileName().endsWith(kLockSuffix);
        if (!name.hasMatch() || (name.captured(2).isEmpty() && !isLock))
            continue;
        if (NewLock(folder, name.captured(1))->tryLock(0) && !isLock)
            QFile::remove(file.filePath());
    }
}

void KeptFiles::NoteUse(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadWrite))
        file.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
}

} // namespace nle
