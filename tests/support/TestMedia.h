// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

/// What a clip made for a test holds.
struct TestClip
{
    /// Size as displayed.
    QSize size{320, 180};
    int frames = 50;
    int rateNum = 25;
    int rateDen = 1;
    /// Distance of key frames; 0 leaves it to the encoder.
    int gop = 0;
    int bframes = 0;
    bool openGop = false;
    /// Video encoder; empty for a file without picture.
    QString codec = QStringLiteral("libx264");
    /// Audio encoder; empty for a file without sound.
    QString audioCodec;
    double toneHz = 440.0;
    /// Highest sample of the tone, 0 to 1.
    double toneLevel = 0.5;
    /// The tone sounds from here on, in seconds; silence before.
    double toneStart = 0.0;
    int sampleRate = 48000;
    int channels = 2;
    /// Clockwise turn for display, by the display matrix of an MP4 or MOV file.
    int rotation = 0;
    /// Leaves out frames, so that the clip has a variable rate. Frame 0 must stay.
    std::function<bool(int)> isLeftOut;
    /// More arguments for the encoder, before the name of the file.
    QStringList extra;
};

/// Makes \a clip at \a path; the suffix names the container. Each picture shows its frame number.
/// Gives an empty text on success, else what went wrong. Needs the ffmpeg program.
QString MakeTestClip(const QString& path, const TestClip& clip);

/// Runs the ffmpeg program. Gives an empty text on success, else what it wrote.
QString RunFfmpeg(const QStringList& arguments, const QByteArray& input = {});

/// Writes a JPEG file at \a path that an EXIF block of orientation \a exif, 1 to 8, makes the
/// upright picture \a upright. Gives an empty text on success, else what went wrong.
QString MakePhotograph(const QString& path, const QImage& upright, int exif);

/// Clockwise turn in degrees of a picture of that EXIF orientation, and whether it is mirrored left
/// to right before.
int ExifRotation(int exif);
bool ExifMirrors(int exif);
/// What is stored under that orientation so that it shows as \a upright.
QImage ExifCoded(const QImage& upright, int exif);

/// Picture of frame \a number: a code of black and white blocks above, digits below.
QImage PaintFrameNumber(int number, const QSize& size);

/// The frame number that the upright picture shows, also scaled down to about 64 x 36; -1 when it
/// cannot be read without doubt.
int ReadFrameNumber(const QImage& picture);
