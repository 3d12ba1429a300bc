// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaInfo.h"
#include "NLECore/media/PictureSource_p.h"

#include <QByteArray>

#include <optional>

namespace nle {

/// What a library for one format of still pictures offers.
struct StillFormat
{
    /// Name of the container in a description.
    const char* container;
    /// Whether the picture is drawn anew at each size.
    bool isDrawn;
    /// Describes the picture in the file at \a path: codec, size, alpha. None on failure.
    std::optional<MediaStream> (*describe)(const QString& path, QString* error);
    /// As ReadStill.
    QImage (*read)(const QString& path, const QSize& size, QString* error);
};

/// HEIF: HEIC and AVIF, with turns, mirrors and colour profiles. ISO/IEC 23008-12.
extern const StillFormat kHeifFormat;
/// SVG 1.1, without what lies outside of the file.
extern const StillFormat kSvgFormat;

/// The format of \a info where another library than libavformat reads it, else null.
const StillFormat* FormatOf(const MediaInfo& info);
/// Whether \a info describes a picture that is drawn anew at each size.
bool IsDrawn(const MediaInfo& info);
/// Whether \a info describes an animation that another library than libavcodec decodes.
bool IsAnimation(const MediaInfo& info);
/// Describes the animated WebP at \a path; null on failure.
std::shared_ptr<const MediaInfo> DescribeAnimation(const QString& path, QString* error);
/// Opens the animation of \a info; null on failure.
std::unique_ptr<PictureSource> OpenAnimation(const MediaInfo& info, QString* error);

/// Describes the file at \a path if it is of one of these formats, or an image sequence: null on
/// failure, which may be that this build lacks the library. None when it is for libavformat.
std::optional<std::shared_ptr<const MediaInfo>> ProbePictures(const QString& path, QString* error);

/// Makes \a info the description of one still picture, in \a info's video stream.
void MakeStill(MediaInfo* info);

/// The whole file at \a path, at most \a limit bytes. Empty on failure.
QByteArray ReadWhole(const QString& path, std::int64_t limit, QString* error);

} // namespace nle
