// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/KeptFiles.h"

#include <optional>

namespace nle {

/// Smaller films that stand for media files, in one folder. They are found by what the media holds,
/// under whatever name it lies. For any thread.
class ProxyStore
{
public:
    /// Most that the folder fills, in bytes, when nobody says otherwise.
    static constexpr std::int64_t kUsualQuota = std::int64_t(20) << 30;

    ProxyStore();

    /// Empty: "proxies" in the folder of the application's caches. A \a quota of 0 keeps nothing.
    void SetFolder(const QString& folder, std::int64_t quota) { m_files.SetFolder(folder, quota); }
    /// What the proxy of \a height lines for the file at \a path is kept under; reads parts of the
    /// file. None when that cannot be read, and when nothing is kept.
    std::optional<ContentKey> KeyOf(const QString& path, int height) const;
    /// The proxy that is kept under \a key; empty when there is none.
    QString Find(const ContentKey& key) const;
    /// Where that proxy is to be written, its folder made; \a hasAlpha: what is transparent stays
    /// so. Empty when the folder cannot be made.
    QString Prepare(const ContentKey& key, bool hasAlpha) const;
    /// To be called when a proxy is whole: removes others until the quota holds. False, and it is
    /// gone, when it alone is larger.
    bool Keep(const QString& proxy) const { return m_files.MakeRoomFor(proxy); }

private:
    KeptFiles m_files;
};

/// The engine's store.
ProxyStore& Proxies();

} // namespace nle
