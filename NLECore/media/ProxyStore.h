// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/KeptFiles.h"

#include <atomic>
#include <optional>

namespace nle {

/// Smaller films that stand for media files and image sequences, in one folder. They are found by
/// what the media holds, under whatever name it lies. What a process has left half written when it
/// ended is removed when the store is first used. For any thread.
class ProxyStore
{
public:
    /// Most that the folder fills, in bytes, when nobody says otherwise.
    static constexpr std::int64_t kUsualQuota = std::int64_t(20) << 30;

    ProxyStore();

    /// Empty: "proxies" in the folder of the application's caches. A \a quota of 0 keeps nothing.
    void SetFolder(const QString& folder, std::int64_t quota);
    /// What the proxy of \a height lines for the media at \a path is kept under; reads parts of the
    /// file, of a sequence parts of each. None when they cannot be read, and when nothing is kept.
    std::optional<ContentKey> KeyOf(const QString& path, int height) const;
    /// The proxy that is kept under \a key; empty when there is none.
    QString Find(const ContentKey& key) const;
    /// What is to be taken while that proxy is written, its folder made. Null when the
    /// folder cannot be made.
    std::unique_ptr<FileClaim> ClaimOf(const ContentKey& key) const;
    /// Where that proxy is to be written; \a hasAlpha: what is transparent stays
    /// so. Empty when nothing is kept.
    QString PathOf(const ContentKey& key, bool hasAlpha) const;
    /// To be called when a proxy is whole: removes others until the quota holds. False, and it is
    /// gone, when it alone is larger.
    bool Keep(const QString& proxy) const { return m_files.MakeRoomFor(proxy); }

private:
    void Tidy() const;

    KeptFiles m_files;
    mutable std::atomic<bool> m_isTidy{false};
};

/// The engine's store.
ProxyStore& Proxies();

} // namespace nle
