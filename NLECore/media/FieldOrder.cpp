// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/FieldOrder_p.h"

namespace nle {
namespace {

// Without a picture after so many packets there is none to judge by.
constexpr int kMostPackets = 64;

NLEFieldOrder Translated(AVFieldOrder order)
{
    // The second letter is the field that shows first.
    switch (order) {
    case AV_FIELD_PROGRESSIVE:
        return NLEField_Progressive;
    case AV_FIELD_TT:
    case AV_FIELD_BT:
        return NLEField_TopFirst;
    case AV_FIELD_BB:
    case AV_FIELD_TB:
        return NLEField_BottomFirst;
    default:
        return NLEField_Unknown;
    }
}

bool CanBeInterlaced(AVCodecID codec)
{
    switch (codec) {
    case AV_CODEC_ID_DNXHD:
    case AV_CODEC_ID_DVVIDEO:
    case AV_CODEC_ID_FFV1:
    case AV_CODEC_ID_MJPEG:
    case AV_CODEC_ID_PRORES:
    case AV_CODEC_ID_RAWVIDEO:
    case AV_CODEC_ID_UTVIDEO:
        return true;
    default:
        return MarksEachPicture(codec);
    }
}

FramePtr FirstPicture(MediaFile& file, const AVStream* stream, const QString& path)
{
    const CodecPtr codec = OpenCodec(stream, 1, path, nullptr);
    const PacketPtr packet(av_packet_alloc());
    FramePtr frame(av_frame_alloc());
    if (!codec || !packet || !frame)
        return nullptr;
    for (int packets = 0; packets < kMostPackets;) {
        const bool isOver = av_read_frame(file.Context(), packet.get()) < 0;
        const bool isOurs = !isOver && packet->stream_index == stream->index;
        if (isOurs || isOver) {
            avcodec_send_packet(codec.get(), isOver ? nullptr : packet.get());
            ++packets;
        }
        av_packet_unref(packet.get());
        if (avcodec_receive_frame(codec.get(), frame.get()) == 0)
            return frame;
        if (isOver)
            break;
    }
    return nullptr;
}

} // namespace

// Newer libraries have flags in the place of the fields.
#if LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(58, 7, 100)

NLEFieldOrder FieldOrderOf(const AVFrame& frame)
{
    if ((frame.flags & AV_FRAME_FLAG_INTERLACED) == 0)
        return NLEField_Progressive;
    return (frame.flags & AV_FRAME_FLAG_TOP_FIELD_FIRST) != 0 ? NLEField_TopFirst
                                                              : NLEField_BottomFirst;
}

void MarkFields(AVFrame* frame, bool isTopFirst)
{
    frame->flags |= AV_FRAME_FLAG_INTERLACED;
    if (isTopFirst)
        frame->flags |= AV_FRAME_FLAG_TOP_FIELD_FIRST;
    else
        frame->flags &= ~AV_FRAME_FLAG_TOP_FIELD_FIRST;
}

#else

NLEFieldOrder FieldOrderOf(const AVFrame& frame)
{
    if (frame.interlaced_frame == 0)
        return NLEField_Progressive;
    return frame.top_field_first != 0 ? NLEField_TopFirst : NLEField_BottomFirst;
}

void MarkFields(AVFrame* frame, bool isTopFirst)
{
    frame->interlaced_frame = 1;
    frame->top_field_first = isTopFirst ? 1 : 0;
}

#endif

bool MarksEachPicture(AVCodecID codec)
{
    switch (codec) {
    case AV_CODEC_ID_CAVS:
    case AV_CODEC_ID_H264:
    case AV_CODEC_ID_MPEG2VIDEO:
    case AV_CODEC_ID_MPEG4:
    case AV_CODEC_ID_VC1:
        return true;
    default:
        return false;
    }
}

NLEFieldOrder FindFieldOrder(MediaFile& file, const AVStream* stream, const QString& path)
{
    const AVCodecParameters& codec = *stream->codecpar;
    const NLEFieldOrder declared = Translated(codec.field_order);
    if (declared != NLEField_Unknown)
        return declared;
    if (!CanBeInterlaced(codec.codec_id))
        return NLEField_Progressive;
    const std::int64_t start = stream->start_time != AV_NOPTS_VALUE ? stream->start_time : 0;
    if (!file.SeekToStart(stream->index, start))
        return NLEField_Unknown;
    const FramePtr picture = FirstPicture(file, stream, path);
    file.SeekToStart(stream->index, start);
    return picture ? FieldOrderOf(*picture) : NLEField_Unknown;
}

} // namespace nle
