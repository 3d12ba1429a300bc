// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/WaveStore.h"

#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/Reasons.h"

#include <QFile>

namespace nle {
namespace {

const QLatin1String kSuffix(".nlewave");

ContentKey KeyOf(const MediaInfo& media, int stream)
{
    const FileStamp& stamp = media.stamp;
    return ContentHash().Add(media.path).Add(stamp.size).Add(stamp.modifiedNs).Add(stream).Result();
}

} // namespace

WaveStore::WaveStore() : m_files("waves", {kSuffix}, kUsualQuota) {}

std::unique_ptr<WaveFile> WaveStore::Open(const MediaInfo& media, int stream)
{
    const ContentKey key = KeyOf(media, stream);
    const QString path = m_files.PathOf(key, kSuffix);
    if (path.isEmpty() || !(StampOf(media.path) == media.stamp))
        return nullptr;
    std::unique_ptr<WaveFile> file = WaveFile::Open(path, key);
    if (file)
        KeptFiles::NoteUse(path);
    else
        QFile::remove(path);
    return file;
}

void WaveStore::Drop(const MediaInfo& media, int stream)
{
    if (m_files.IsOn())
        QFile::remove(m_files.PathOf(KeyOf(media, stream), kSuffix));
}

bool WaveStore::Put(const MediaInfo& media, int stream, const WavePyramid& pyramid)
{
    const ContentKey key = KeyOf(media, stream);
    const QString path = m_files.PathOf(key, kSuffix);
    if (!m_files.Prepare()) {
        Refuse(E_FAIL, NLEReason_NotWritable, path);
        return false;
    }
    if (!(StampOf(media.path) == media.stamp))
        return false;
    return WriteWaveFile(path, key, pyramid) && m_files.MakeRoomFor(path);
}

WaveStore& Waves()
{
    // Never destroyed: extractors may outlive the objects of the module.
    static auto& s_store = *new WaveStore;
    return s_store;
}

} // namespace nle
