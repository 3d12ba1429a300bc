// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/ColourConverter_p.h"
#include "NLECore/media/FrameDecoder.h"

#include <QImage>
#include <QSize>

#include <memory>
#include <vector>

struct SwsContext;

namespace nle {

/// Formats whose name alone says full range, under the name that they share with the others.
AVPixelFormat ModernFormat(AVPixelFormat format, bool* isFullRange);
/// The colours of a picture; files that do not name theirs follow the usual ones for their size.
AVColorSpace ColoursOf(const AVFrame& frame);
/// Whether pixels are of red, green and blue, by a palette or not.
bool IsRgb(AVPixelFormat format);
/// Whether a picture is of brightness and two colour differences, without alpha.
bool IsPlainYuv(const AVFrame& frame);

/// \a picture mirrored and turned as \a stream says.
QImage Upright(QImage picture, const MediaStream& stream);
/// \a picture, of Format_RGBA64 in \a colours, as Format_ARGB32 in those of a project.
QImage ConvertForeign(const QImage& picture, const ForeignColours& colours);

/// Turns decoded pictures into upright images. Keeps its tables for the next picture of the same
/// kind. One object serves one thread at a time; large pictures it scales in bands side by side.
class PictureScaler
{
public:
    /// \a frame mirrored and turned as \a stream says and scaled to \a size, in the colours of a
    /// project; null when there is no conversion or no memory for it.
    QImage Convert(const AVFrame& frame, const MediaStream& stream, const QSize& size,
                   PictureDepth depth = PictureDepth::Usual);

private:
    /// What the context was made for.
    struct Shape
    {
        QSize sourceSize;
        AVPixelFormat source = AV_PIX_FMT_NONE;
        QSize targetSize;
        AVPixelFormat target = AV_PIX_FMT_NONE;
        bool operator==(const Shape& other) const;
    };
    struct ContextFreer
    {
        void operator()(SwsContext* context) const;
    };
    using ContextPtr = std::unique_ptr<SwsContext, ContextFreer>;

    static ContextPtr MakeContext(const Shape& shape);
    bool Prepare(const AVFrame& frame, const QSize& size, AVPixelFormat target);
    void SetColours(const AVFrame& frame, bool isFullRange, int brightness);
    QImage Scale(const AVFrame& frame, const QSize& size, PictureDepth depth);
    QImage ScaleForeign(const AVFrame& frame, const QSize& size, PictureDepth depth,
                        const ForeignColours& colours);
    /// Components apart, as the converter takes them.
    bool ScaleApart(const AVFrame& frame, const QSize& size);

    ContextPtr m_context;
    Shape m_shape;
    std::vector<std::uint8_t> m_scratch;
    FramePtr m_apart;
    std::unique_ptr<const ColourConverter> m_converter;
};

} // namespace nle
