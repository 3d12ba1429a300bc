// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PictureScaler_p.h"

#include <QTransform>

#include <cstring>

extern "C" {
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

namespace nle {
namespace {

// The scaler's filters cannot shrink much more in one go.
constexpr int kMaxShrink = 64;

// The scaler may write up to this many bytes beyond a line whose length is no multiple of it.
constexpr int kLineAlignment = 64;

int ColourMatrix(const AVFrame& frame)
{
    switch (ColoursOf(frame)) {
    case AVCOL_SPC_BT709:
        return SWS_CS_ITU709;
    case AVCOL_SPC_SMPTE240M:
        return SWS_CS_SMPTE240M;
    case AVCOL_SPC_FCC:
        return SWS_CS_FCC;
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
        return SWS_CS_BT2020;
    default:
        return SWS_CS_ITU601;
    }
}

} // namespace

AVPixelFormat ModernFormat(AVPixelFormat format, bool* isFullRange)
{
    switch (format) {
    case AV_PIX_FMT_YUVJ420P:
        *isFullRange = true;
        return AV_PIX_FMT_YUV420P;
    case AV_PIX_FMT_YUVJ422P:
        *isFullRange = true;
        return AV_PIX_FMT_YUV422P;
    case AV_PIX_FMT_YUVJ444P:
        *isFullRange = true;
        return AV_PIX_FMT_YUV444P;
    case AV_PIX_FMT_YUVJ440P:
        *isFullRange = true;
        return AV_PIX_FMT_YUV440P;
    case AV_PIX_FMT_YUVJ411P:
        *isFullRange = true;
        return AV_PIX_FMT_YUV411P;
    default:
        return format;
    }
}

AVColorSpace ColoursOf(const AVFrame& frame)
{
    switch (frame.colorspace) {
    case AVCOL_SPC_BT709:
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
    case AVCOL_SPC_SMPTE240M:
    case AVCOL_SPC_FCC:
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
        return frame.colorspace;
    default:
        return frame.height >= 720 ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
    }
}

bool IsPlainYuv(const AVFrame& frame)
{
    const AVPixFmtDescriptor* kind = av_pix_fmt_desc_get(AVPixelFormat(frame.format));
    constexpr std::uint64_t unfit =
        AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_ALPHA | AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_PAL;
    return kind && (kind->flags & unfit) == 0 && kind->nb_components == 3;
}

PictureScaler::~PictureScaler()
{
    sws_freeContext(m_context);
}

QImage PictureScaler::Convert(const AVFrame& frame, const MediaStream& stream, const QSize& size)
{
    const QSize upright = stream.rotation % 180 != 0 ? size.transposed() : size;
    const QSize smallest(frame.width / kMaxShrink, frame.height / kMaxShrink);
    QImage image = Scale(frame, upright.expandedTo(smallest));
    if (image.isNull())
        return image;
    if (image.size() != upright) {
        image = image.scaled(upright, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                    .convertToFormat(QImage::Format_ARGB32);
    }
    if (stream.mirrored)
        image = image.mirrored(true, false);
    if (stream.rotation != 0)
        image = image.transformed(QTransform().rotate(stream.rotation));
    return image;
}

bool PictureScaler::Prepare(const AVFrame& frame, const QSize& size)
{
    bool isFullRange = frame.color_range == AVCOL_RANGE_JPEG;
    const AVPixelFormat format = ModernFormat(AVPixelFormat(frame.format), &isFullRange);
    const bool isShrinking = size.width() <= frame.width && size.height() <= frame.height;
    const int flags = isShrinking ? SWS_BILINEAR : SWS_BICUBIC;
    m_context =
        sws_getCachedContext(m_context, frame.width, frame.height, format, size.width(),
                             size.height(), AV_PIX_FMT_BGRA, flags, nullptr, nullptr, nullptr);
    if (m_context == nullptr)
        return false;
    SetColours(frame, isFullRange);
    return true;
}

void PictureScaler::SetColours(const AVFrame& frame, bool isFullRange)
{
    const int* const wanted = sws_getCoefficients(ColourMatrix(frame));
    int* source = nullptr;
    int* target = nullptr;
    int sourceRange = 0;
    int targetRange = 0;
    int brightness = 0;
    int contrast = 0;
    int saturation = 0;
    if (sws_getColorspaceDetails(m_context, &source, &sourceRange, &target, &targetRange,
                                 &brightness, &contrast, &saturation) < 0)
        return;
    const bool isSame =
        sourceRange == int(isFullRange) && std::memcmp(source, wanted, 4 * sizeof(int)) == 0;
    if (!isSame) {
        sws_setColorspaceDetails(m_context, wanted, isFullRange ? 1 : 0, wanted, targetRange,
                                 brightness, contrast, saturation);
    }
}

QImage PictureScaler::Scale(const AVFrame& frame, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32);
    if (image.isNull() || !Prepare(frame, size))
        return {};
    const int lineBytes = image.bytesPerLine();
    const bool isAligned = lineBytes % kLineAlignment == 0;
    const int stride = (lineBytes + kLineAlignment - 1) / kLineAlignment * kLineAlignment;
    if (!isAligned)
        m_scratch.resize(size_t(stride) * size_t(size.height()) + kLineAlignment);
    std::uint8_t* const pixels = isAligned ? image.bits() : m_scratch.data();
    std::uint8_t* const planes[4] = {pixels, nullptr, nullptr, nullptr};
    const int strides[4] = {stride, 0, 0, 0};
    if (sws_scale(m_context, frame.data, frame.linesize, 0, frame.height, planes, strides) <= 0)
        return {};
    for (int y = 0; !isAligned && y < size.height(); ++y)
        std::memcpy(image.scanLine(y), pixels + size_t(y) * size_t(stride), size_t(lineBytes));
    return image;
}

} // namespace nle
