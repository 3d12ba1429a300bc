// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/HardwareDecoding.h"
#include "NLECore/media/MediaFile_p.h"

#include <functional>

extern "C" {
#include <libavutil/hwcontext.h>
}

namespace nle {

/// The calls that reach hardware; machines without any put others in their place.
struct HardwareDriver
{
    /// Opens a device of a kind, as av_hwdevice_ctx_create(); below 0 on failure.
    std::function<int(AVBufferRef** device, AVHWDeviceType type)> open;
    /// Brings a picture into system memory, in its place, if it is not there; below 0 on failure.
    std::function<int(AVFrame* picture)> fetch;
};

/// The calls of FFmpeg.
HardwareDriver SystemHardware();
/// From now on \a driver is used; not while anything is decoded.
void SetHardwareDriver(HardwareDriver driver);

/// Opens FFmpeg's own decoder for \a stream on the first device that takes its codec. Null where
/// there is none; the log then says why.
CodecPtr OpenHardwareCodec(const AVStream* stream, int threads, const QString& path);
/// A picture of such a decoder, brought into system memory with its colours; below 0 on failure.
int FetchPicture(AVFrame* picture);

} // namespace nle
