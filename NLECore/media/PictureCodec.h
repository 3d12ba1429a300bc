// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <cstdint>
#include <memory>

struct AVFrame;

namespace nle {

/// How one picture is kept. Each picture stands for itself. The numbers are part of files.
enum class PictureFormat : std::int32_t
{
    Compact = 0, ///< JPEG with halved colour planes, without alpha
    Fine = 1,    ///< JPEG with whole colour planes, without alpha
    Exact = 2    ///< without any loss, with alpha
};

struct PictureCoding
{
    PictureFormat format = PictureFormat::Compact;
    int quantizer = 3; ///< 1 (best) to 31; Exact has none
};

/// Encodes pictures one by one. One object serves one thread at a time.
class PictureEncoder
{
public:
    /// Null when this build of the libraries lacks the codec.
    static std::unique_ptr<PictureEncoder> Open(const QSize& size, const PictureCoding& coding);
    ~PictureEncoder();

    /// \a picture has the size given at the start. Empty on failure.
    QByteArray Encode(const QImage& picture);
    /// Scales a decoded picture to the size given at the start, keeps its colours as they are coded
    /// and encodes it. Empty on failure, and for a picture or a format with alpha or of plain RGB.
    QByteArray Encode(const AVFrame& decoded);

private:
    struct Private;
    explicit PictureEncoder(std::unique_ptr<Private> state);
    const std::unique_ptr<Private> d;
};

/// Decodes what a PictureEncoder made. One object serves one thread at a time.
class PictureDecoder
{
public:
    /// Null when this build of the libraries lacks the codec.
    static std::unique_ptr<PictureDecoder> Open(PictureFormat format);
    ~PictureDecoder();

    /// The picture scaled to \a size, as Format_ARGB32 with straight alpha, or as Format_RGB32 when
    /// the format has none; null for data that cannot be decoded.
    QImage Decode(const QByteArray& data, const QSize& size);

private:
    struct Private;
    explicit PictureDecoder(std::unique_ptr<Private> state);
    const std::unique_ptr<Private> d;
};

} // namespace nle
