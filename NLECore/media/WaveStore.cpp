// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/WaveStore.h"

#include "NLECore/media/MediaFile_p.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

namespace nle {
namespace {

const QLatin1String kSuffix(".nlewave");

/// How long a file that is being written may take, in seconds; older ones were left behind.
constexpr int kLongestWrite = 3600;

ContentKey KeyOf(const MediaInfo& media, int stream)
{
    const FileStamp& stamp = media.stamp;
    return ContentHash().Add(media.path).Add(stamp.size).Add(stamp.modifiedNs).Add(stream).Result();
}

QString PathOf(const QString& folder, const ContentKey& key)
{
    return folder + QLatin1Char('/') + ToText(key) + kSuffix;
}

// Notes the use of a file in its time of change.
void Touch(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadWrite))
        file.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
}

// Only files that were named here; the folder may hold others.
void MakeRoom(const QString& folder, std::int64_t quota, const QString& kept)
{
    static const QRegularExpression pattern(
        QStringLiteral("^[0-9a-f]{32}\\.nlewave(\\.[A-Za-z0-9]{6})?$"));
    std::int64_t used = 0;
    const QDateTime oldest = QDateTime::currentDateTimeUtc().addSecs(-kLongestWrite);
    // The one used last stands first.
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files, QDir::Time)) {
        const QRegularExpressionMatch name = pattern.match(file.fileName());
        if (!name.hasMatch() || file.filePath() == kept)
            continue;
        const bool isWhole = name.captured(1).isEmpty();
        used += file.size();
        if (isWhole ? used > quota : file.lastModified() < oldest) {
            QFile::remove(file.filePath());
            used -= file.size();
        }
    }
}

} // namespace

void WaveStore::SetFolder(const QString& folder, std::int64_t quota)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_place = {folder, quota};
}

WaveStore::Place WaveStore::Current() const
{
    Place place;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        place = m_place;
    }
    if (place.folder.isEmpty()) {
        const QString caches = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
        place.folder = caches.isEmpty() ? QString() : caches + QLatin1String("/waves");
    }
    return place.quota > 0 ? place : Place{};
}

std::unique_ptr<WaveFile> WaveStore::Open(const MediaInfo& media, int stream)
{
    const QString folder = Current().folder;
    if (folder.isEmpty() || !(StampOf(media.path) == media.stamp))
        return nullptr;
    const ContentKey key = KeyOf(media, stream);
    const QString path = PathOf(folder, key);
    std::unique_ptr<WaveFile> file = WaveFile::Open(path, key);
    if (file)
        Touch(path);
    else
        QFile::remove(path);
    return file;
}

void WaveStore::Drop(const MediaInfo& media, int stream)
{
    const QString folder = Current().folder;
    if (!folder.isEmpty())
        QFile::remove(PathOf(folder, KeyOf(media, stream)));
}

bool WaveStore::Put(const MediaInfo& media, int stream, const WavePyramid& pyramid)
{
    const Place place = Current();
    if (place.folder.isEmpty() || !QDir().mkpath(place.folder) ||
        !(StampOf(media.path) == media.stamp))
        return false;
    const ContentKey key = KeyOf(media, stream);
    const QString path = PathOf(place.folder, key);
    if (!WriteWaveFile(path, key, pyramid))
        return false;
    const std::int64_t size = QFileInfo(path).size();
    MakeRoom(place.folder, place.quota - size, path);
    if (size <= place.quota)
        return true;
    QFile::remove(path);
    return false;
}

WaveStore& Waves()
{
    // Never destroyed: extractors may outlive the objects of the module.
    static auto& s_store = *new WaveStore;
    return s_store;
}

} // namespace nle
