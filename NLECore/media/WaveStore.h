// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/KeptFiles.h"
#include "NLECore/media/MediaInfo.h"
#include "NLECore/media/WavePyramid.h"

#include <memory>

namespace nle {

/// Envelopes in one folder, one file each, named after the content that they were read from. What
/// is damaged is as good as missing. For any thread; processes may share a folder.
class WaveStore
{
public:
    /// Most that the folder fills, in bytes, when nobody says otherwise: some seventy hours.
    static constexpr std::int64_t kUsualQuota = std::int64_t(256) << 20;

    WaveStore();

    /// Empty: "waves" in the folder of the application's caches. A \a quota of 0 keeps nothing.
    void SetFolder(const QString& folder, std::int64_t quota) { m_files.SetFolder(folder, quota); }

    /// The envelope of a stream; null when it is not kept, and when the file is another one since
    /// it was described. A damaged one is removed.
    std::unique_ptr<WaveFile> Open(const MediaInfo& media, int stream);
    /// Removes the envelope of a stream.
    void Drop(const MediaInfo& media, int stream);
    /// Whether anything is kept.
    bool IsOn() const { return m_files.IsOn(); }
    /// Keeps an envelope and removes those used least lately until the quota holds. False when it
    /// cannot be written, is larger than the quota, or the file has changed since it was described.
    bool Put(const MediaInfo& media, int stream, const WavePyramid& pyramid);

private:
    KeptFiles m_files;
};

/// The engine's store, shared by all extractors.
WaveStore& Waves();

} // namespace nle
