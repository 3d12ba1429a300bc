// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaInfo.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

namespace nle {

/// What a media file is to hold.
struct WriterSettings
{
    QSize size;         ///< of the pictures; both sides even; empty for sound alone
    Rational frameRate; ///< pictures a second
    int quality = 20;   ///< constant rate factor, 1 (best) to 51
    bool hasSound = false;
    int sampleRate = 48000;
    int channels = 2;
    int audioBitRate = 192000; ///< bits a second
};

/// Writes one media file. The container follows from the suffix of the path, the codecs from the
/// container. Everything is written under a temporary name beside the path and renamed by Finish,
/// so the file is either whole or not there.
class MediaWriter
{
public:
    /// Null on failure; \a error then tells why.
    static std::unique_ptr<MediaWriter> Open(const QString& path, const WriterSettings& settings,
                                             QString* error);
    /// Removes what was written when Finish did not succeed.
    ~MediaWriter();

    /// Whether the container takes pictures.
    bool HasPicture() const;
    /// Appends a picture of the size given at the start.
    bool WritePicture(const QImage& picture);
    /// Appends \a count samples a channel, interleaved.
    bool WriteSound(const float* samples, int count);
    /// Writes what is left and gives the file its name.
    bool Finish();
    /// What went wrong last.
    QString Error() const;

private:
    struct Private;
    explicit MediaWriter(std::unique_ptr<Private> d);
    const std::unique_ptr<Private> d;
};

} // namespace nle
