// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/KeptFiles.h"

#include "NLECore/media/SavedFile_p.h"
#include "NLECore/media/WholeFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

namespace nle {

namespace {

const QLatin1String kClaimSuffix(".lock");

/// Files that were named here.
QRegularExpression NamePattern(const QStringList& suffixes)
{
    QStringList escaped;
    for (const QString& suffix : suffixes)
        escaped << QRegularExpression::escape(suffix);
    return QRegularExpression(
        QStringLiteral("^[0-9a-f]{32}(?:%1)$").arg(escaped.join(QLatin1Char('|'))));
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
    // The one used last stands first.
    for (const QFileInfo& file : QDir(place.folder).entryInfoList(QDir::Files, QDir::Time)) {
        if (!pattern.match(file.fileName()).hasMatch() || file.filePath() == path)
            continue;
        used += file.size();
        if (used > place.quota) {
            QFile::remove(file.filePath());
            used -= file.size();
        }
    }
    RemoveLeftovers();
    return true;
}

std::unique_ptr<FileClaim> KeptFiles::ClaimOf(const ContentKey& key) const
{
    const QString folder = Current().folder;
    return folder.isEmpty() ? nullptr
                            : std::make_unique<FileClaim>(folder + QLatin1Char('/') + ToText(key) +
                                                          kClaimSuffix);
}

void KeptFiles::RemoveLeftovers() const
{
    const QString folder = Current().folder;
    if (folder.isEmpty())
        return;
    const QRegularExpression halves = NamePattern(m_suffixes);
    const QRegularExpression claims = NamePattern({kClaimSuffix});
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
        if (halves.match(WholeFile::NameOf(file.fileName())).hasMatch() ||
            claims.match(file.fileName()).hasMatch())
            RemoveLeft(file.filePath());
    }
}

void KeptFiles::NoteUse(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadWrite))
        file.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
}

} // namespace nle
