// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ProxyStore.h"

#include "NLECore/media/ImageSequence_p.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace nle {

namespace {

const QLatin1String kSuffix(".mp4");
/// Of a film that keeps what is transparent.
const QLatin1String kAlphaSuffix(".mov");

/// What of a file is read: pieces from the first to the last byte.
struct Sample
{
    int pieces;
    qint64 pieceSize;
};
// Reading all of a film would take longer than a user waits.
constexpr Sample kOfFilm = {16, 64 << 10};
constexpr Sample kOfPicture = {4, 1 << 10};

/// Adds pieces of the file and its size; false when it cannot be read.
bool AddFile(const QString& path, const Sample& sample, ContentHash* hash)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const qint64 size = file.size();
    const qint64 last = std::max<qint64>(0, size - sample.pieceSize);
    QByteArray bytes;
    for (int i = 0; i < sample.pieces; ++i) {
        if (!file.seek(last / (sample.pieces - 1) * i))
            return false;
        bytes += file.read(sample.pieceSize);
    }
    hash->Add(ContentHash::Of(bytes.constData(), std::size_t(bytes.size()))).Add(size);
    return true;
}

} // namespace

ProxyStore::ProxyStore() : m_files("proxies", {kSuffix, kAlphaSuffix}, kUsualQuota) {}

void ProxyStore::SetFolder(const QString& folder, std::int64_t quota)
{
    m_files.SetFolder(folder, quota);
    m_isTidy = false;
}

std::optional<ContentKey> ProxyStore::KeyOf(const QString& path, int height) const
{
    if (!m_files.IsOn())
        return std::nullopt;
    ContentHash hash;
    const std::optional<ImageSequence> sequence = FindSequence(path);
    if (!sequence && !AddFile(path, kOfFilm, &hash))
        return std::nullopt;
    for (int i = 0; sequence && i < sequence->count; ++i) {
        if (!AddFile(sequence->PathOf(i), kOfPicture, &hash))
            return std::nullopt;
    }
    return hash.Add(height).Result();
}

QString ProxyStore::Find(const ContentKey& key) const
{
    Tidy();
    for (const QLatin1String suffix : {kSuffix, kAlphaSuffix}) {
        QString proxy = m_files.PathOf(key, suffix);
        if (QFileInfo(proxy).isFile()) {
            KeptFiles::NoteUse(proxy);
            return proxy;
        }
    }
    return {};
}

std::unique_ptr<FileClaim> ProxyStore::ClaimOf(const ContentKey& key) const
{
    return m_files.Prepare() ? m_files.ClaimOf(key) : nullptr;
}

QString ProxyStore::PathOf(const ContentKey& key, bool hasAlpha) const
{
    return m_files.PathOf(key, hasAlpha ? kAlphaSuffix : kSuffix);
}

void ProxyStore::Tidy() const
{
    if (!m_isTidy.exchange(true))
        m_files.RemoveLeftovers();
}

ProxyStore& Proxies()
{
    // Never destroyed: threads that make proxies may outlive the objects of the module.
    static auto& s_store = *new ProxyStore;
    return s_store;
}

} // namespace nle
