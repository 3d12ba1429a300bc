// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PictureScaler_p.h"

#include "NLECore/media/WorkThreads.h"

#include <QRgba64>
#include <QTransform>

#include <cstring>

extern "C" {
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

namespace nle {
namespace {

// The scaler's filters cannot shrink much more in one go.
constexpr int kMaxShrink = 64;

// The scaler may write up to this many bytes beyond a line whose length is no multiple of it.
constexpr int kLineAlignment = 64;

// Colour in full resolution, without short cuts.
constexpr int kFullColour = SWS_FULL_CHR_H_INT | SWS_FULL_CHR_H_INP | SWS_ACCURATE_RND;

// Three quarters of a level of luma, in the scaler's units. The quick conversion cuts off what is
// below a whole level, several times over. A whole level added beforehand would lift black.
constexpr int kLostLuma = 192;

// Pixels from which several threads are worth their waking.
constexpr std::int64_t kLargePicture = std::int64_t(640) * 480;
constexpr int kMostThreads = 4;

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

/// A row of components, 16 bits each; alpha of ColourConverter::kBits, or null.
struct Components
{
    std::uint16_t* red;
    std::uint16_t* green;
    std::uint16_t* blue;
    const std::uint16_t* alpha;

    std::uint16_t AlphaAt(int x) const
    {
        constexpr std::uint32_t highest = (1 << ColourConverter::kBits) - 1;
        return alpha ? std::uint16_t((alpha[x] * std::uint32_t(UINT16_MAX) + highest / 2) / highest)
                     : std::uint16_t(UINT16_MAX);
    }
};

void Join(const Components& from, QRgba64* to, int count)
{
    for (int x = 0; x < count; ++x)
        to[x] = qRgba64(from.red[x], from.green[x], from.blue[x], from.AlphaAt(x));
}

void Join(const Components& from, QRgb* to, int count)
{
    // Rounded to the nearest of 256.
    const auto byte = [](std::uint32_t code) { return (code * 255 + (1 << 15)) >> 16; };
    for (int x = 0; x < count; ++x) {
        to[x] = byte(from.AlphaAt(x)) << 24 | byte(from.red[x]) << 16 | byte(from.green[x]) << 8 |
                byte(from.blue[x]);
    }
}

/// A frame whose pixels are \a pixels, which stay their owner's; null without memory.
FramePtr FrameOver(std::uint8_t* pixels, int stride, const QSize& size, bool isDeep)
{
    const auto keep = [](void*, std::uint8_t*) {};
    FramePtr frame(av_frame_alloc());
    if (!frame)
        return nullptr;
    frame->format = isDeep ? AV_PIX_FMT_RGBA64 : AV_PIX_FMT_BGRA;
    frame->width = size.width();
    frame->height = size.height();
    frame->data[0] = pixels;
    frame->linesize[0] = stride;
    const size_t bytes = size_t(stride) * size_t(size.height());
    frame->buf[0] = av_buffer_create(pixels, bytes, keep, nullptr, 0);
    return frame->buf[0] ? std::move(frame) : nullptr;
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

bool IsRgb(AVPixelFormat format)
{
    const AVPixFmtDescriptor* kind = av_pix_fmt_desc_get(format);
    return kind && (kind->flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL)) != 0;
}

bool IsPlainYuv(const AVFrame& frame)
{
    const AVPixFmtDescriptor* kind = av_pix_fmt_desc_get(AVPixelFormat(frame.format));
    constexpr std::uint64_t unfit =
        AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_ALPHA | AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_PAL;
    return kind && (kind->flags & unfit) == 0 && kind->nb_components == 3;
}

QImage Upright(QImage picture, const MediaStream& stream)
{
    if (stream.mirrored)
        picture = picture.mirrored(true, false);
    return stream.rotation != 0 ? picture.transformed(QTransform().rotate(stream.rotation))
                                : picture;
}

QImage ConvertForeign(const QImage& picture, const ForeignColours& colours)
{
    QImage image(picture.size(), QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    const ColourConverter converter(colours);
    const auto width = size_t(picture.width());
    std::vector<std::uint16_t> codes(4 * width);
    std::uint16_t* const alpha = codes.data() + 3 * width;
    const Components row = {codes.data(), codes.data() + width, codes.data() + 2 * width, alpha};
    const auto code = [](std::uint32_t component) {
        return std::uint16_t((component * ColourConverter::kHighest + UINT16_MAX / 2) / UINT16_MAX);
    };
    for (int y = 0; y < picture.height(); ++y) {
        const auto* const from = reinterpret_cast<const QRgba64*>(picture.constScanLine(y));
        for (size_t x = 0; x < width; ++x) {
            row.red[x] = code(from[x].red());
            row.green[x] = code(from[x].green());
            row.blue[x] = code(from[x].blue());
            alpha[x] = std::uint16_t(from[x].alpha() >> (16 - ColourConverter::kBits));
        }
        converter.Convert(row.red, row.green, row.blue, picture.width());
        Join(row, reinterpret_cast<QRgb*>(image.scanLine(y)), picture.width());
    }
    return image;
}

bool PictureScaler::Shape::operator==(const Shape& other) const
{
    return sourceSize == other.sourceSize && source == other.source &&
           targetSize == other.targetSize && target == other.target;
}

void PictureScaler::ContextFreer::operator()(SwsContext* context) const
{
    sws_freeContext(context);
}

QImage PictureScaler::Convert(const AVFrame& frame, const MediaStream& stream, const QSize& size,
                              PictureDepth depth)
{
    const QSize upright = stream.rotation % 180 != 0 ? size.transposed() : size;
    const QSize smallest(frame.width / kMaxShrink, frame.height / kMaxShrink);
    const QSize scaled = upright.expandedTo(smallest);
    const std::optional<ForeignColours> foreign = ForeignColoursOf(frame, stream);
    QImage image =
        foreign ? ScaleForeign(frame, scaled, depth, *foreign) : Scale(frame, scaled, depth);
    if (image.isNull())
        return image;
    if (image.size() != upright) {
        image = image.scaled(upright, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                    .convertToFormat(image.format());
    }
    return Upright(image, stream);
}

PictureScaler::ContextPtr PictureScaler::MakeContext(const Shape& shape)
{
    const QSize& from = shape.sourceSize;
    const QSize& to = shape.targetSize;
    const bool isShrinking = to.width() <= from.width() && to.height() <= from.height();
    const bool isQuick = shape.target == AV_PIX_FMT_BGRA;
    const bool isLarge = from.width() * std::int64_t(from.height()) >= kLargePicture;
    const std::pair<const char*, std::int64_t> options[] = {
        {"srcw", from.width()},
        {"srch", from.height()},
        {"src_format", shape.source},
        {"dstw", to.width()},
        {"dsth", to.height()},
        {"dst_format", shape.target},
        {"sws_flags", (isShrinking ? SWS_BILINEAR : SWS_BICUBIC) | (isQuick ? 0 : kFullColour)},
        {"threads", isLarge ? WorkThreads(kMostThreads) : 1},
    };
    ContextPtr context(sws_alloc_context());
    for (const auto& [name, value] : options) {
        if (!context || av_opt_set_int(context.get(), name, value, 0) < 0)
            return nullptr;
    }
    return sws_init_context(context.get(), nullptr, nullptr) < 0 ? nullptr : std::move(context);
}

bool PictureScaler::Prepare(const AVFrame& frame, const QSize& size, AVPixelFormat target)
{
    bool isFullRange = frame.color_range == AVCOL_RANGE_JPEG;
    const AVPixelFormat format = ModernFormat(AVPixelFormat(frame.format), &isFullRange);
    const Shape shape = {{frame.width, frame.height}, format, size, target};
    if (!m_context || !(shape == m_shape)) {
        m_context = MakeContext(shape);
        m_shape = shape;
    }
    if (!m_context)
        return false;
    const bool losesLuma = target == AV_PIX_FMT_BGRA && !IsRgb(format);
    SetColours(frame, isFullRange, losesLuma ? kLostLuma : 0);
    return true;
}

void PictureScaler::SetColours(const AVFrame& frame, bool isFullRange, int brightness)
{
    const int* const wanted = sws_getCoefficients(ColourMatrix(frame));
    int* source = nullptr;
    int* target = nullptr;
    int sourceRange = 0;
    int targetRange = 0;
    int formerBrightness = 0;
    int contrast = 0;
    int saturation = 0;
    if (sws_getColorspaceDetails(m_context.get(), &source, &sourceRange, &target, &targetRange,
                                 &formerBrightness, &contrast, &saturation) < 0)
        return;
    const bool isSame = sourceRange == int(isFullRange) && formerBrightness == brightness &&
                        std::memcmp(source, wanted, 4 * sizeof(int)) == 0;
    if (!isSame) {
        sws_setColorspaceDetails(m_context.get(), wanted, isFullRange ? 1 : 0, wanted, targetRange,
                                 brightness, contrast, saturation);
    }
}

QImage PictureScaler::Scale(const AVFrame& frame, const QSize& size, PictureDepth depth)
{
    const bool isDeep = depth == PictureDepth::Deep;
    QImage image(size, isDeep ? QImage::Format_RGBA64 : QImage::Format_ARGB32);
    if (image.isNull() || !Prepare(frame, size, isDeep ? AV_PIX_FMT_RGBA64 : AV_PIX_FMT_BGRA))
        return {};
    const int lineBytes = image.bytesPerLine();
    const bool isAligned = lineBytes % kLineAlignment == 0;
    const int stride = (lineBytes + kLineAlignment - 1) / kLineAlignment * kLineAlignment;
    if (!isAligned)
        m_scratch.resize(size_t(stride) * size_t(size.height()) + kLineAlignment);
    std::uint8_t* const pixels = isAligned ? image.bits() : m_scratch.data();
    const FramePtr target = FrameOver(pixels, stride, size, isDeep);
    if (!target || sws_scale_frame(m_context.get(), target.get(), &frame) < 0)
        return {};
    for (int y = 0; !isAligned && y < size.height(); ++y)
        std::memcpy(image.scanLine(y), pixels + size_t(y) * size_t(stride), size_t(lineBytes));
    return image;
}

bool PictureScaler::ScaleApart(const AVFrame& frame, const QSize& size)
{
    static_assert(ColourConverter::kBits == 12);
    const AVPixFmtDescriptor* kind = av_pix_fmt_desc_get(AVPixelFormat(frame.format));
    const bool hasAlpha = kind && (kind->flags & AV_PIX_FMT_FLAG_ALPHA) != 0;
    const AVPixelFormat format = hasAlpha ? AV_PIX_FMT_GBRAP12 : AV_PIX_FMT_GBRP12;
    const bool isFit = m_apart && m_apart->format == format && m_apart->width == size.width() &&
                       m_apart->height == size.height();
    if (!isFit) {
        m_apart.reset(av_frame_alloc());
        if (!m_apart)
            return false;
        m_apart->format = format;
        m_apart->width = size.width();
        m_apart->height = size.height();
        if (av_frame_get_buffer(m_apart.get(), kLineAlignment) < 0) {
            m_apart.reset();
            return false;
        }
    }
    return Prepare(frame, size, format) &&
           sws_scale_frame(m_context.get(), m_apart.get(), &frame) >= 0;
}

QImage PictureScaler::ScaleForeign(const AVFrame& frame, const QSize& size, PictureDepth depth,
                                   const ForeignColours& colours)
{
    const bool isDeep = depth == PictureDepth::Deep;
    QImage image(size, isDeep ? QImage::Format_RGBA64 : QImage::Format_ARGB32);
    if (image.isNull() || !ScaleApart(frame, size))
        return {};
    if (!m_converter || !(m_converter->Colours() == colours))
        m_converter = std::make_unique<ColourConverter>(colours);
    const auto row = [this](int plane, int y) {
        std::uint8_t* const data = m_apart->data[plane];
        return data ? reinterpret_cast<std::uint16_t*>(data +
                                                       std::ptrdiff_t(y) * m_apart->linesize[plane])
                    : nullptr;
    };
    for (int y = 0; y < size.height(); ++y) {
        // The library's order of planes is green, blue, red, alpha.
        const Components from = {row(2, y), row(0, y), row(1, y), row(3, y)};
        m_converter->Convert(from.red, from.green, from.blue, size.width());
        if (isDeep)
            Join(from, reinterpret_cast<QRgba64*>(image.scanLine(y)), size.width());
        else
            Join(from, reinterpret_cast<QRgb*>(image.scanLine(y)), size.width());
    }
    return image;
}

} // namespace nle
