// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/HardwareDecoding_p.h"

#include <atomic>
#include <map>
#include <mutex>

namespace nle {
namespace {

struct BufferDeleter
{
    void operator()(AVBufferRef* p) const { av_buffer_unref(&p); }
};
using BufferPtr = std::unique_ptr<AVBufferRef, BufferDeleter>;

std::atomic<NLEHardwareDecoding> s_clips{NLEHardware_Never};

/// Devices that are open, and null for those that could not be opened.
struct Devices
{
    std::mutex mutex;
    std::map<AVHWDeviceType, BufferPtr> byType;
};

Devices& OpenDevices()
{
    static Devices s_devices;
    return s_devices;
}

HardwareDriver& Driver()
{
    static HardwareDriver s_driver = SystemHardware();
    return s_driver;
}

BufferPtr NewReference(const BufferPtr& device)
{
    return BufferPtr(device ? av_buffer_ref(device.get()) : nullptr);
}

/// All decoders of a kind share one device, as opening takes a while. Null when there is none.
BufferPtr DeviceOf(AVHWDeviceType type)
{
    Devices& devices = OpenDevices();
    {
        const std::lock_guard<std::mutex> lock(devices.mutex);
        const auto known = devices.byType.find(type);
        if (known != devices.byType.end())
            return NewReference(known->second);
    }
    AVBufferRef* opened = nullptr;
    const int result = Driver().open(&opened, type);
    BufferPtr device(result >= 0 ? opened : nullptr);
    if (!device) {
        qCWarning(lcEngine, "no hardware decoding by %s: %s", av_hwdevice_get_type_name(type),
                  qUtf8Printable(AvErrorText(result)));
    }
    const std::lock_guard<std::mutex> lock(devices.mutex);
    return NewReference(devices.byType.emplace(type, std::move(device)).first->second);
}

AVPixelFormat ChooseFormat(AVCodecContext* codec, const AVPixelFormat* offered)
{
    const auto* const config = static_cast<const AVCodecHWConfig*>(codec->opaque);
    for (const AVPixelFormat* format = offered; *format != AV_PIX_FMT_NONE; ++format) {
        if (*format == config->pix_fmt)
            return *format;
    }
    // The hardware does not take this stream; it is not offered again.
    return avcodec_default_get_format(codec, offered);
}

CodecPtr OpenOn(const AVStream* stream, const AVCodec* decoder, const AVCodecHWConfig* config,
                int threads)
{
    BufferPtr device = DeviceOf(config->device_type);
    if (!device)
        return nullptr;
    CodecPtr codec = MakeCodec(stream, decoder, threads);
    if (!codec)
        return nullptr;
    codec->hw_device_ctx = device.release();
    codec->opaque = const_cast<AVCodecHWConfig*>(config);
    codec->get_format = ChooseFormat;
    return avcodec_open2(codec.get(), decoder, nullptr) >= 0 ? std::move(codec) : nullptr;
}

CodecPtr OpenOnAny(const AVStream* stream, const AVCodec* decoder, int threads)
{
    CodecPtr codec;
    for (int i = 0; !codec; ++i) {
        const AVCodecHWConfig* const config = avcodec_get_hw_config(decoder, i);
        if (config == nullptr)
            break;
        if ((config->methods & AV_CODEC_HW_CONFIG_METHOD_HW_DEVICE_CTX) != 0)
            codec = OpenOn(stream, decoder, config, threads);
    }
    return codec;
}

} // namespace

HardwareDriver SystemHardware()
{
    return {[](AVBufferRef** device, AVHWDeviceType type) {
                return av_hwdevice_ctx_create(device, type, nullptr, nullptr, 0);
            },
            [](AVFrame* picture) {
                if (picture->hw_frames_ctx == nullptr)
                    return 0;
                const FramePtr home(av_frame_alloc());
                int result =
                    home ? av_hwframe_transfer_data(home.get(), picture, 0) : AVERROR(ENOMEM);
                if (result >= 0)
                    result = av_frame_copy_props(home.get(), picture);
                if (result < 0)
                    return result;
                av_frame_unref(picture);
                av_frame_move_ref(picture, home.get());
                return 0;
            }};
}

void SetHardwareDriver(HardwareDriver driver)
{
    Driver() = std::move(driver);
    ForgetDevices();
}

CodecPtr OpenHardwareCodec(const AVStream* stream, int threads, const QString& path)
{
    CodecPtr codec;
    void* state = nullptr;
    while (const AVCodec* const decoder = codec ? nullptr : av_codec_iterate(&state)) {
        // Decoders of makers of hardware have an order of pictures and errors of their own.
        const bool isOwn =
            (decoder->capabilities & (AV_CODEC_CAP_HARDWARE | AV_CODEC_CAP_HYBRID)) == 0;
        if (isOwn && av_codec_is_decoder(decoder) != 0 && decoder->id == stream->codecpar->codec_id)
            codec = OpenOnAny(stream, decoder, threads);
    }
    if (!codec) {
        qCWarning(lcEngine, "%s: no hardware for %s, decoded in software", qUtf8Printable(path),
                  avcodec_get_name(stream->codecpar->codec_id));
    }
    return codec;
}

int FetchPicture(AVFrame* picture)
{
    return Driver().fetch(picture);
}

void SetHardwareDecoding(NLEHardwareDecoding clips)
{
    s_clips = clips;
    ForgetDevices();
}

NLEHardwareDecoding HardwareDecoding()
{
    return s_clips;
}

bool IsHardwareWanted(bool isAsked)
{
    const NLEHardwareDecoding clips = s_clips;
    return clips == NLEHardware_All || (clips == NLEHardware_Asked && isAsked);
}

void ForgetDevices()
{
    std::map<AVHWDeviceType, BufferPtr> closing;
    const std::lock_guard<std::mutex> lock(OpenDevices().mutex);
    closing.swap(OpenDevices().byType);
}

} // namespace nle
