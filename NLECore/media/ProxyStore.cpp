// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ProxyStore.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace nle {

namespace {

const QLatin1String kSuffix(".mp4");
/// Of a film that keeps what is transparent.
const QLatin1String kAlphaSuffix(".mov");

} // namespace

ProxyStore::ProxyStore() : m_files("proxies", {kSuffix, kAlphaSuffix}, kUsualQuota) {}

// The size of the file, and pieces of it from the first to the last byte: reading all of a film
// would take longer than a user waits.
std::optional<ContentKey> ProxyStore::KeyOf(const QString& path, int height) const
{
    constexpr int pieces = 16;
    constexpr qint64 pieceSize = 64 << 10;
    QFile file(path);
    if (!m_files.IsOn() || !QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const qint64 size = file.size();
    const qint64 last = std::max<qint64>(0, size - pieceSize);
    QByteArray bytes;
    for (int i = 0; i < pieces; ++i) {
        if (!file.seek(last / (pieces - 1) * i))
            return std::nullopt;
        bytes += file.read(pieceSize);
    }
    const ContentKey content = ContentHash::Of(bytes.constData(), std::size_t(bytes.size()));
    return ContentHash().Add(content).Add(size).Add(height).Result();
}

QString ProxyStore::Find(const ContentKey& key) const
{
    for (const QLatin1String suffix : {kSuffix, kAlphaSuffix}) {
        QString proxy = m_files.PathOf(key, suffix);
        if (QFileInfo(proxy).isFile()) {
            KeptFiles::NoteUse(proxy);
            return proxy;
        }
    }
    return {};
}

QString ProxyStore::Prepare(const ContentKey& key, bool hasAlpha) const
{
    return m_files.Prepare() ? m_files.PathOf(key, hasAlpha ? kAlphaSuffix : kSuffix) : QString();
}

ProxyStore& Proxies()
{
    // Never destroyed: threads that make proxies may outlive the objects of the module.
    static auto& s_store = *new ProxyStore;
    return s_store;
}

} // namespace nle
