// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TestMedia.h"

#include <QFile>
#include <QPainter>
#include <QProcess>
#include <QTransform>
#include <QtEndian>

#include <algorithm>

namespace {

// The code: 16 blocks in two rows, the number in 12 bits and a check in 4, the highest bit first.
constexpr int kCodeColumns = 8;
constexpr int kCodeRows = 2;
constexpr int kNumberBits = 12;
constexpr int kTimeoutMs = 120000;

int CheckOf(int number)
{
    return (number * 7 + (number >> 4) * 5 + (number >> 8) * 3 + 9) & 15;
}

QRect BlockRect(int block, const QSize& size)
{
    const int column = block % kCodeColumns;
    const int row = block / kCodeColumns;
    const int top = size.height() * row / 3;
    const int bottom = size.height() * (row + 1) / 3;
    const int left = size.width() * column / kCodeColumns;
    const int right = size.width() * (column + 1) / kCodeColumns;
    return {left, top, right - left, bottom - top};
}

// Seven segments: top, upper right, lower right, bottom, lower left, upper left, middle.
void PaintDigit(QPainter& painter, int digit, const QRect& box)
{
    static constexpr int segments[10] = {0x3f, 0x06, 0x5b, 0x4f, 0x66,
                                         0x6d, 0x7d, 0x07, 0x7f, 0x6f};
    const int t = std::max(1, box.height() / 8);
    const int half = box.height() / 2;
    const QRect parts[7] = {{box.x(), box.y(), box.width(), t},
                            {box.right() - t, box.y(), t, half},
                            {box.right() - t, box.y() + half, t, half},
                            {box.x(), box.bottom() - t, box.width(), t},
                            {box.x(), box.y() + half, t, half},
                            {box.x(), box.y(), t, half},
                            {box.x(), box.y() + half - t / 2, box.width(), t}};
    for (int i = 0; i < 7; ++i) {
        if ((segments[digit] >> i & 1) != 0)
            painter.fillRect(parts[i], Qt::white);
    }
}

// Turns the first track of an MP4 or MOV file by writing the matrix of its track header.
bool WriteRotation(const QString& path, int rotation)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    const int header = file.readAll().indexOf("tkhd");
    // A quarter turn clockwise maps right to down and down to left.
    const int turn = rotation / 90 & 3;
    const qint32 cosine = turn == 0 ? 1 : turn == 2 ? -1 : 0;
    const qint32 sine = turn == 1 ? 1 : turn == 3 ? -1 : 0;
    const qint32 one = 0x10000;
    const qint32 matrix[9] = {cosine * one, sine * one, 0, -sine * one, cosine * one, 0, 0, 0,
                              0x40000000};
    QByteArray bytes(sizeof matrix, Qt::Uninitialized);
    qToBigEndian<qint32>(matrix, 9, bytes.data());
    const int matrixOffset = 4 + 40;
    return header > 0 && file.seek(header + matrixOffset) && file.write(bytes) == bytes.size();
}

QStringList Words(const QString& line)
{
    return line.split(' ', Qt::SkipEmptyParts);
}

QStringList VideoInput(const TestClip& clip, const QSize& coded)
{
    return Words(QString("-f rawvideo -pixel_format bgra -video_size %1x%2 -framerate %3/%4 -i -")
                     .arg(coded.width())
                     .arg(coded.height())
                     .arg(clip.rateNum)
                     .arg(clip.rateDen));
}

QStringList AudioInput(const TestClip& clip)
{
    const double seconds = double(clip.frames) * clip.rateDen / clip.rateNum;
    const QString wave = QString::asprintf("%.6f*sin(2*PI*%.6f*t)*gte(t,%.6f)|", clip.toneLevel,
                                           clip.toneHz, clip.toneStart);
    return {"-f", "lavfi", "-i",
            QString("aevalsrc=exprs='%1':s=%2:d=%3")
                .arg(wave.repeated(clip.channels).chopped(1))
                .arg(clip.sampleRate)
                .arg(seconds, 0, 'f', 6)};
}

QStringList VideoOutput(const TestClip& clip)
{
    QString line = "-map 0:v -c:v " + clip.codec;
    const bool isX264 = clip.codec == "libx264";
    if (isX264)
        line += " -preset veryfast -crf 23 -sc_threshold 0 -threads 2 -x264-params open-gop=" +
                QString::number(clip.openGop);
    if (isX264 || clip.codec == "mpeg4" || clip.codec == "mpeg2video")
        line += QString(" -pix_fmt yuv420p -bf %1").arg(clip.bframes);
    if (clip.gop > 0)
        line += QString(" -g %1").arg(clip.gop);
    if (clip.isLeftOut) {
        QStringList kept;
        for (int first = 0, last = 0; first < clip.frames; first = ++last) {
            while (last < clip.frames && !clip.isLeftOut(last))
                ++last;
            if (last > first)
                kept.append(QString("between(n,%1,%2)").arg(first).arg(last - 1));
        }
        line += " -fps_mode passthrough -vf select='" + kept.join('+') + '\'';
    }
    return Words(line);
}

} // namespace

QString RunFfmpeg(const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("ffmpeg", Words("-hide_banner -loglevel error -y") + arguments);
    if (!process.waitForStarted())
        return "the ffmpeg program does not start";
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(kTimeoutMs))
        return "the ffmpeg program does not end";
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {};
    return "ffmpeg failed: " + QString::fromLocal8Bit(process.readAll());
}

QString MakeTestClip(const QString& path, const TestClip& clip)
{
    QStringList arguments;
    QByteArray pictures;
    if (!clip.codec.isEmpty()) {
        const QSize coded = clip.rotation % 180 != 0 ? clip.size.transposed() : clip.size;
        for (int i = 0; i < clip.frames; ++i) {
            const QImage picture = PaintFrameNumber(i, clip.size)
                                       .transformed(QTransform().rotate(-clip.rotation))
                                       .convertToFormat(QImage::Format_ARGB32);
            pictures.append(reinterpret_cast<const char*>(picture.constBits()),
                            int(picture.sizeInBytes()));
        }
        arguments += VideoInput(clip, coded);
    }
    if (!clip.audioCodec.isEmpty())
        arguments += AudioInput(clip);
    if (!clip.codec.isEmpty())
        arguments += VideoOutput(clip);
    if (!clip.audioCodec.isEmpty())
        arguments << "-map" << (clip.codec.isEmpty() ? "0:a" : "1:a") << "-c:a" << clip.audioCodec;
    arguments += clip.extra;
    arguments.append(path);
    QString failure = RunFfmpeg(arguments, pictures);
    if (!failure.isEmpty())
        return failure;
    if (clip.rotation != 0 && !WriteRotation(path, clip.rotation))
        return "no track header to turn in " + path;
    return {};
}

int ExifRotation(int exif)
{
    static constexpr int rotations[] = {0, 0, 180, 180, 270, 90, 90, 270};
    return rotations[exif - 1];
}

bool ExifMirrors(int exif)
{
    static constexpr bool mirrors[] = {false, true, false, true, true, false, true, false};
    return mirrors[exif - 1];
}

QImage ExifCoded(const QImage& upright, int exif)
{
    return upright.transformed(QTransform().rotate(-ExifRotation(exif)))
        .mirrored(ExifMirrors(exif), false);
}

QString MakePhotograph(const QString& path, const QImage& upright, int exif)
{
    if (!ExifCoded(upright, exif).save(path + ".png"))
        return "the picture cannot be saved";
    // The options keep the quality at its best and the colours at full size.
    const QString error =
        RunFfmpeg({"-i", path + ".png", "-update", "1", "-q:v", "1", "-qmin", "1", path});
    // A segment that holds nothing but the orientation, its 30th byte.
    QByteArray segment = QByteArray::fromHex("ffe10022457869660000"
                                             "4d4d002a00000008"
                                             "0001"
                                             "011200030000000100000000"
                                             "00000000");
    segment[29] = char(exif);
    QFile file(path);
    if (!error.isEmpty() || !file.open(QIODevice::ReadWrite))
        return error + ": no photograph";
    const QByteArray photograph = file.readAll().insert(2, segment);
    const bool isWritten = file.seek(0) && file.write(photograph) == photograph.size();
    return isWritten ? QString() : "the photograph cannot be written";
}

QImage PaintFrameNumber(int number, const QSize& size)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(QColor(40, 60, 140));
    QPainter painter(&picture);
    const int code = number << (kCodeColumns * kCodeRows - kNumberBits) | CheckOf(number);
    for (int i = 0; i < kCodeColumns * kCodeRows; ++i) {
        const bool isSet = (code >> (kCodeColumns * kCodeRows - 1 - i) & 1) != 0;
        painter.fillRect(BlockRect(i, size), isSet ? Qt::white : Qt::black);
    }
    const int digitHeight = size.height() / 4;
    const int digitWidth = digitHeight / 2;
    int x = size.width() / 2 - digitWidth * 3;
    for (int power : {1000, 100, 10, 1}) {
        PaintDigit(painter, number / power % 10,
                   {x, size.height() - digitHeight - digitHeight / 6, digitWidth, digitHeight});
        x += digitWidth * 3 / 2;
    }
    return picture;
}

int ReadFrameNumber(const QImage& picture)
{
    if (picture.isNull())
        return -1;
    int code = 0;
    for (int i = 0; i < kCodeColumns * kCodeRows; ++i) {
        const QRect block = BlockRect(i, picture.size());
        // The middle of a block, clear of its blurred borders.
        const QRect middle = block.adjusted(block.width() / 3, block.height() / 3,
                                            -(block.width() / 3), -(block.height() / 3));
        int sum = 0;
        for (int y = middle.top(); y <= middle.bottom(); ++y) {
            for (int x = middle.left(); x <= middle.right(); ++x)
                sum += qGray(picture.pixel(x, y));
        }
        const int grey = sum / std::max(1, middle.width() * middle.height());
        if (grey > 90 && grey < 165)
            return -1;
        code = code << 1 | (grey >= 165 ? 1 : 0);
    }
    const int number = code >> (kCodeColumns * kCodeRows - kNumberBits);
    return CheckOf(number) == (code & 15) ? number : -1;
}
