// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PictureFeeder_p.h"

#include "NLECore/media/PictureScaler_p.h"

#include <algorithm>

extern "C" {
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

namespace nle {

namespace {

constexpr int kNeutral = 1 << 16; // contrast and saturation as they are

/// Pixels of an image as the scaler names them; None for those that it does not read as they are.
/// Colours with their cover multiplied in are those on black, so their alpha is left unread.
AVPixelFormat FormatOf(QImage::Format format)
{
    switch (format) {
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32_Premultiplied:
        return AV_PIX_FMT_BGR0;
    case QImage::Format_ARGB32:
        return AV_PIX_FMT_BGRA;
    case QImage::Format_RGBX64:
    case QImage::Format_RGBA64:
    case QImage::Format_RGBA64_Premultiplied:
        return AV_PIX_FMT_RGBA64;
    default:
        return AV_PIX_FMT_NONE;
    }
}

/// \a picture in a format that the scaler reads, on black unless \a keepsAlpha.
QImage Readable(const QImage& picture, bool keepsAlpha)
{
    const bool isDeep = picture.pixelFormat().redSize() > 8;
    if (keepsAlpha)
        return picture.convertToFormat(isDeep ? QImage::Format_RGBA64 : QImage::Format_ARGB32);
    if (!picture.hasAlphaChannel())
        return picture.convertToFormat(isDeep ? QImage::Format_RGBX64 : QImage::Format_RGB32);
    return picture.convertToFormat(isDeep ? QImage::Format_RGBA64_Premultiplied
                                          : QImage::Format_ARGB32_Premultiplied);
}

bool HasAlpha(AVPixelFormat format)
{
    const AVPixFmtDescriptor* kind = av_pix_fmt_desc_get(format);
    return kind && (kind->flags & AV_PIX_FMT_FLAG_ALPHA) != 0;
}

int MatrixOf(AVColorSpace colours)
{
    // The scaler knows the matrices by the numbers of ITU-T H.273.
    return colours == AVCOL_SPC_UNSPECIFIED || colours == AVCOL_SPC_RGB ? int(SWS_CS_DEFAULT)
                                                                        : int(colours);
}

/// The two matrices of BT.601 are the same under both names.
bool IsSameMatrix(AVColorSpace a, AVColorSpace b)
{
    const auto plain = [](AVColorSpace colours) {
        return colours == AVCOL_SPC_BT470BG ? AVCOL_SPC_SMPTE170M : colours;
    };
    return plain(a) == plain(b);
}

bool IsHighDynamicRange(AVColorTransferCharacteristic transfer)
{
    return transfer == AVCOL_TRC_SMPTE2084 || transfer == AVCOL_TRC_ARIB_STD_B67;
}

} // namespace

void PictureFeeder::ScalerFreer::operator()(SwsContext* scaler) const
{
    sws_freeContext(scaler);
}

PictureFeeder::PictureFeeder(const Target& target) : m_target(target) {}

PictureFeeder::~PictureFeeder() = default;

bool PictureFeeder::Takes(const AVFrame& decoded) const
{
    const bool isSameLight =
        (decoded.color_trc == m_target.transfer ||
         (!IsHighDynamicRange(decoded.color_trc) && !IsHighDynamicRange(m_target.transfer))) &&
        (decoded.color_primaries == AVCOL_PRI_BT2020) == (m_target.primaries == AVCOL_PRI_BT2020);
    if (HasFields())
        return isSameLight && Fits(decoded);
    const AVPixFmtDescriptor* target = av_pix_fmt_desc_get(m_target.format);
    return isSameLight && IsPlainYuv(decoded) && target &&
           (target->flags & AV_PIX_FMT_FLAG_RGB) == 0 &&
           IsSameMatrix(ColoursOf(decoded), m_target.colours);
}

bool PictureFeeder::Fits(const AVFrame& decoded) const
{
    bool isFullRange = decoded.color_range == AVCOL_RANGE_JPEG;
    bool takesFullRange = m_target.isFullRange;
    const AVPixelFormat format = ModernFormat(AVPixelFormat(decoded.format), &isFullRange);
    const bool isSameKind = format == ModernFormat(m_target.format, &takesFullRange) &&
                            isFullRange == takesFullRange &&
                            IsSameMatrix(ColoursOf(decoded), m_target.colours);
    const bool isTopFirst = m_target.fields == NLEField_TopFirst;
    const bool isSameOrder = !HasFields() || (decoded.interlaced_frame != 0 &&
                                              (decoded.top_field_first != 0) == isTopFirst);
    return isSameKind && isSameOrder && decoded.width == m_target.size.width() &&
           decoded.height == m_target.size.height();
}

void PictureFeeder::Mark(AVFrame* frame) const
{
    frame->format = m_target.format;
    frame->colorspace = m_target.colours;
    frame->color_trc = m_target.transfer;
    frame->color_primaries = m_target.primaries;
    frame->color_range = m_target.isFullRange ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
    frame->interlaced_frame = HasFields() ? 1 : 0;
    frame->top_field_first = m_target.fields == NLEField_TopFirst ? 1 : 0;
    frame->sample_aspect_ratio = {0, 1};
    frame->repeat_pict = 0;
    // A type would be taken for an order to the encoder.
    frame->pict_type = AV_PICTURE_TYPE_NONE;
    frame->key_frame = 0;
}

AVFrame* PictureFeeder::FreeFrame()
{
    for (const FramePtr& frame : m_frames) {
        if (av_frame_is_writable(frame.get()) != 0)
            return frame.get();
    }
    FramePtr frame(av_frame_alloc());
    if (!frame)
        return nullptr;
    frame->format = m_target.format;
    frame->width = m_target.size.width();
    frame->height = m_target.size.height();
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        return nullptr;
    m_frames.push_back(std::move(frame));
    return m_frames.back().get();
}

AVFrame* PictureFeeder::Feed(const AVFrame& decoded)
{
    return Fits(decoded) ? Share(decoded) : Convert(decoded);
}

AVFrame* PictureFeeder::Share(const AVFrame& decoded)
{
    AVFrame* frame = m_shared.get();
    if (!frame)
        return nullptr;
    av_frame_unref(frame);
    if (av_frame_ref(frame, &decoded) < 0)
        return nullptr;
    // What a file says beside its pictures (captions, light levels) says it of all of the file.
    while (frame->nb_side_data > 0)
        av_frame_remove_side_data(frame, frame->side_data[0]->type);
    Mark(frame);
    return frame;
}

AVFrame* PictureFeeder::Convert(const AVFrame& decoded)
{
    if (!m_source || !m_converted)
        return nullptr;
    // A still or frozen picture comes as the same buffer again and again.
    if (m_source->data[0] == decoded.data[0] && m_source->data[0] && m_converted->data[0])
        return m_converted.get();
    av_frame_unref(m_source.get());
    av_frame_unref(m_converted.get());
    AVFrame* frame = FreeFrame();
    if (!frame || !PrepareDecodedScaler(decoded))
        return nullptr;
    if (sws_scale(m_decodedScaler.get(), decoded.data, decoded.linesize, 0, decoded.height,
                  frame->data, frame->linesize) <= 0)
        return nullptr;
    Mark(frame);
    if (av_frame_ref(m_source.get(), &decoded) < 0 || av_frame_ref(m_converted.get(), frame) < 0)
        return nullptr;
    return m_converted.get();
}

bool PictureFeeder::PrepareDecodedScaler(const AVFrame& decoded)
{
    bool isFullRange = decoded.color_range == AVCOL_RANGE_JPEG;
    bool takesFullRange = m_target.isFullRange;
    const AVPixelFormat source = ModernFormat(AVPixelFormat(decoded.format), &isFullRange);
    const AVPixelFormat target = ModernFormat(m_target.format, &takesFullRange);
    const Conversion wanted = {QSize(decoded.width, decoded.height), source, isFullRange};
    if (m_decodedScaler && wanted == m_conversion)
        return true;
    const QSize& size = m_target.size;
    const bool isShrinking = size.width() <= decoded.width && size.height() <= decoded.height;
    m_decodedScaler.reset(sws_alloc_context());
    SwsContext* scaler = m_decodedScaler.get();
    if (!scaler)
        return false;
    m_conversion = wanted;
    // Ranges come first: whether pictures are only copied is found out at the start.
    av_opt_set_int(scaler, "srcw", decoded.width, 0);
    av_opt_set_int(scaler, "srch", decoded.height, 0);
    av_opt_set_int(scaler, "src_format", source, 0);
    av_opt_set_int(scaler, "src_range", isFullRange ? 1 : 0, 0);
    av_opt_set_int(scaler, "dstw", size.width(), 0);
    av_opt_set_int(scaler, "dsth", size.height(), 0);
    av_opt_set_int(scaler, "dst_format", target, 0);
    av_opt_set_int(scaler, "dst_range", takesFullRange ? 1 : 0, 0);
    av_opt_set_int(scaler, "sws_flags", isShrinking ? SWS_BILINEAR : SWS_BICUBIC, 0);
    if (sws_init_context(scaler, nullptr, nullptr) < 0)
        m_decodedScaler.reset();
    return m_decodedScaler != nullptr;
}

bool PictureFeeder::PrepareImageScaler(AVPixelFormat source, int height)
{
    bool takesFullRange = m_target.isFullRange;
    const AVPixelFormat target = ModernFormat(m_target.format, &takesFullRange);
    const int width = m_target.size.width();
    m_imageScaler.reset(sws_getCachedContext(m_imageScaler.release(), width, height, source, width,
                                             height, target, SWS_BILINEAR, nullptr, nullptr,
                                             nullptr));
    if (!m_imageScaler)
        return false;
    const int* matrix = sws_getCoefficients(MatrixOf(m_target.colours));
    sws_setColorspaceDetails(m_imageScaler.get(), matrix, 1, matrix, takesFullRange ? 1 : 0, 0,
                             kNeutral, kNeutral);
    return true;
}

AVFrame* PictureFeeder::Feed(const QImage& picture)
{
    const QImage source = Readable(picture, HasAlpha(m_target.format));
    AVFrame* frame = FreeFrame();
    // Halved colour planes belong to a field each, so fields are converted apart.
    const int fields = HasFields() ? 2 : 1;
    const int lines = source.height() / fields;
    if (!frame || source.size() != m_target.size ||
        !PrepareImageScaler(FormatOf(source.format()), lines))
        return nullptr;
    for (int field = 0; field < fields; ++field) {
        const std::uint8_t* const rows[] = {source.constScanLine(field)};
        const int rowStrides[] = {int(source.bytesPerLine()) * fields};
        std::uint8_t* planes[AV_NUM_DATA_POINTERS] = {};
        int strides[AV_NUM_DATA_POINTERS] = {};
        for (int plane = 0; plane < AV_NUM_DATA_POINTERS && frame->data[plane]; ++plane) {
            planes[plane] = frame->data[plane] + std::ptrdiff_t(field) * frame->linesize[plane];
            strides[plane] = frame->linesize[plane] * fields;
        }
        if (sws_scale(m_imageScaler.get(), rows, rowStrides, 0, lines, planes, strides) <= 0)
            return nullptr;
    }
    Mark(frame);
    return frame;
}

} // namespace nle
