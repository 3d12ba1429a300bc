// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

/// The peer of thumbnail benchmarks: FFmpeg's libraries used in the plain way, for files in the
/// colours of high definition whose pictures stand on the grid of their frame rate.
class PlainDecoder
{
public:
    /// Opens the first video stream of \a path with \a threads decoding threads; null on failure.
    static std::unique_ptr<PlainDecoder> Open(const QString& path, int threads);
    ~PlainDecoder();

    /// Decodes the next picture and scales it; null at the end.
    QImage Next(const QSize& size);
    /// Seeks to the key frame before \a frame, decodes up to it and scales it.
    QImage At(int frame, const QSize& size);
    /// Back to the first picture.
    void Rewind();

private:
    struct Private;
    explicit PlainDecoder(std::unique_ptr<Private> state);
    std::unique_ptr<Private> d;
};
