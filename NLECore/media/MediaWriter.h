// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/INLEReasons.h"
#include "NLECore/media/EncodeFormats.h"
#include "NLECore/media/MediaInfo.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

struct AVFrame;

namespace nle {

/// What a media file is to hold.
struct WriterSettings
{
    QSize size;                     ///< of the pictures; both sides even; empty for sound alone
    NLERational frameRate = {0, 1}; ///< pictures a second
    int quality = 20;               ///< constant rate factor, 1 (best) to 51
    bool hasSound = false;
    int sampleRate = 48000;
    int channels = 2;
    int audioBitRate = 192000; ///< bits a second
    EncodeOptions options;     ///< what else was asked for; quality and audioBitRate stand above
    EncodeOptions settled;     ///< what became of it, from Open on
};

/// Why nothing is written.
struct WriterError
{
    /// None; NoContainer, for none of that suffix or one that is not a single file;
    /// SettingsRefused, where codec or container does not take them or nobody could read the
    /// outcome; NotWritable or DiskFull, where no file can be made; OutOfMemory.
    NLEReason reason = NLEReason_None;
    QString text;
};

/// Gives \a result, for a call that does not write \a path.
HRESULT RefuseWriting(HRESULT result, const QString& path, const WriterError& error);
/// The same for one that cannot begin: E_ACCESSDENIED where no file can be made, E_NOTIMPL without
/// a container, E_OUTOFMEMORY, \a others for what is asked for.
HRESULT RefuseOpening(const QString& path, const WriterError& error, HRESULT others);

/// Writes one media file, or a file of each picture. Where the settings name none, the container
/// follows from the suffix of the path, the codecs from the container. Everything is written under
/// a temporary name beside the path and renamed by Finish: until then a file of that name stays as
/// it was.
class MediaWriter
{
public:
    /// Tries \a settings out with a short file that it writes beside \a path, reads and removes,
    /// and turns the sound in them into what codec and container take. False when nothing can be
    /// written; \a error then tells why. What stands at \a path is not touched.
    static bool Try(const QString& path, WriterSettings& settings, WriterError* error);
    /// Null on failure; \a error then tells why. Sound that codec and container do not take in the
    /// rate or the channels of \a settings is written in the nearest ones that they take.
    static std::unique_ptr<MediaWriter> Open(const QString& path, const WriterSettings& settings,
                                             WriterError* error);
    /// Removes what was written when Finish did not succeed.
    ~MediaWriter();

    /// What is written, with the sound as it was accepted.
    const WriterSettings& Settings() const;

    /// Whether pictures are written, and sound: what the container takes of the settings.
    bool HasPicture() const;
    bool HasSound() const;
    /// Whether each picture becomes a file.
    bool IsSequence() const;
    /// Whether WritePicture takes a decoded picture; else it is to come as an image. Any thread may
    /// ask, also while another one writes.
    bool Takes(const AVFrame& decoded) const;
    /// Appends a picture as it was decoded: as it is where its size and format are what is written,
    /// else converted without a detour.
    bool WritePicture(const AVFrame& decoded);
    /// Appends a picture of the size given at the start.
    bool WritePicture(const QImage& picture);
    /// Appends \a count samples a channel, interleaved.
    bool WriteSound(const float* samples, int count);
    /// Writes what is left and gives the file its name.
    bool Finish();
    /// What went wrong last.
    const WriterError& Error() const;

private:
    struct Private;
    explicit MediaWriter(std::unique_ptr<Private> d);
    const std::unique_ptr<Private> d;
};

} // namespace nle
