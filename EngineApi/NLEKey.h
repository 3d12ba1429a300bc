// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// Keys of the engine's property bags.
namespace NLEKey {

namespace Render {
/// Rational, frames a second; live view of the node's render frame rate.
inline constexpr const wchar_t* kRender_Framerate = L"kRender_Framerate";
/// Integer, read-only: length of the node's total range in frames.
inline constexpr const wchar_t* kRender_TotalFrameCount = L"kRender_TotalFrameCount";
/// Integer 0xAARRGGBB: what shows where no clip does.
inline constexpr const wchar_t* kRender_BackgroundColor = L"kRender_BackgroundColor";
/// Integer, an NLERenderMode.
inline constexpr const wchar_t* kRender_Mode = L"kRender_Mode";
} // namespace Render

namespace Timeline {
/// Text: the name under which a host knows the timeline, also when it is loaded again.
inline constexpr const wchar_t* kGuid = L"Key_TimelineGuid";
} // namespace Timeline

namespace Speed {
/// Rational: playing speed, 1 normal, 2 twice as fast.
inline constexpr const wchar_t* kScale = L"kSpeed_Scale";
/// Integer 1 when the speed applies.
inline constexpr const wchar_t* kEnabled = L"kSpeed_Enabled";
} // namespace Speed

namespace Sequence {
/// Rational, frames a second: how fast the pictures of an image sequence follow each other; 25 when
/// there is none. Of no effect on other clips.
inline constexpr const wchar_t* kFramerate = L"kSequence_Framerate";
} // namespace Sequence

namespace Freeze {
/// Integer 1 when the clip holds one frame.
inline constexpr const wchar_t* kFreeze_Enabled = L"kFreeze_Enabled";
/// Integer: the frame that a frozen clip shows; its in point when there is none.
/// It counts at normal speed.
inline constexpr const wchar_t* kFreeze_Frame = L"kFreeze_Frame";
} // namespace Freeze

/// What INLEEditing keeps of the clips of a composite. For reading only.
namespace Editing {
/// Text, of a clip: the numbers of the groups that it is in, the outermost first, with blanks
/// between them.
inline constexpr const wchar_t* kGroups = L"kEditing_Groups";
/// Text, of a composite: its locked levels, with blanks between them.
inline constexpr const wchar_t* kLockedLevels = L"kEditing_LockedLevels";
} // namespace Editing

/// What of a media file a clip shows and sounds, and how its pictures are meant. Only clips of
/// media have these keys; a value that is not accepted gives E_INVALIDARG and changes nothing. The
/// trim range stays whatever the file's length is then.
namespace Source {
/// Integer: index of the video stream that shows; -1, the preset, is the file's preferred one.
/// E_INVALIDARG when the file has no such video stream.
inline constexpr const wchar_t* kVideoStream = L"kSource_VideoStream";
/// Text: indexes of the audio streams that sound, with commas between them, for example "1,3"; they
/// are summed. Empty, the preset, is the file's preferred one. E_INVALIDARG when one of them is no
/// audio stream of the file or stands there twice.
inline constexpr const wchar_t* kAudioStreams = L"kSource_AudioStreams";
/// Rational, 1/16 to 16: width of a displayed pixel over its height. 1/1 shows the pixels as
/// square, 0/1, the preset, as the file says.
inline constexpr const wchar_t* kPixelAspect = L"kSource_PixelAspect";
/// Integer, an NLEDeinterlacing.
inline constexpr const wchar_t* kDeinterlacing = L"kSource_Deinterlacing";
/// Integer: NLEField_TopFirst or NLEField_BottomFirst in place of what the file says; 0, the
/// preset, as the file says.
inline constexpr const wchar_t* kFieldOrder = L"kSource_FieldOrder";
} // namespace Source

/// Settings of a whole project; its context object holds them.
namespace Context {
/// Double, 0.05 to 1: share of the wanted size that frames are drawn at before they are enlarged.
inline constexpr const wchar_t* kContext_PreviewScale = L"kContext_PreviewScale";
/// Integer: 0 draws scaled and turned pictures without smoothing.
inline constexpr const wchar_t* kContext_SmoothScaling = L"kContext_SmoothScaling";
/// Integer 0xAARRGGBB: background of a project that has no kRender_BackgroundColor.
inline constexpr const wchar_t* kContext_BackgroundColor = L"kContext_BackgroundColor";
/// Integer, 8 or 10: bits of a colour component that frames are drawn and encoded with.
inline constexpr const wchar_t* kContext_BitDepth = L"kContext_BitDepth";
} // namespace Context

/// How a file is encoded; INLEEncodeOptions takes a bag of them. A key that is not set leaves the
/// choice to the engine, which follows from container and codec.
namespace Encode {
/// Text: short name of the container in the catalogue, for example "mov"; else the file's suffix
/// chooses.
inline constexpr const wchar_t* kContainer = L"kEncode_Container";
/// Text: short name of the codec of pictures in the catalogue, "none" for a file without pictures.
inline constexpr const wchar_t* kVideoCodec = L"kEncode_VideoCodec";
/// Text: short name of the codec of sound in the catalogue, "none" for a file without sound.
inline constexpr const wchar_t* kAudioCodec = L"kEncode_AudioCodec";
/// Integer, one of NLERateControl.
inline constexpr const wchar_t* kRateControl = L"kEncode_RateControl";
/// Integer: constant rate factor, 1 (best) to 51, on the scale of H.264 whatever the codec; counts
/// where NLEEncodeSettings::quality is 0.
inline constexpr const wchar_t* kQuality = L"kEncode_Quality";
/// Integer, bits a second: mean rate of the pictures.
inline constexpr const wchar_t* kVideoBitRate = L"kEncode_VideoBitRate";
/// Integer, bits a second: highest rate of the pictures, measured over kBufferSize.
inline constexpr const wchar_t* kMaxBitRate = L"kEncode_MaxBitRate";
/// Integer, bits: size of the decoder's buffer that kMaxBitRate counts for; a second of it by
/// default.
inline constexpr const wchar_t* kBufferSize = L"kEncode_BufferSize";
/// Text: one of the codec's profiles.
inline constexpr const wchar_t* kProfile = L"kEncode_Profile";
/// Text: one of the codec's presets of speed against size.
inline constexpr const wchar_t* kSpeed = L"kEncode_Speed";
/// Integer: frames from one key frame to the next at the most, 1 for key frames alone.
inline constexpr const wchar_t* kGop = L"kEncode_Gop";
/// Integer: pictures predicted from both sides between two others at the most, 0 to 16.
inline constexpr const wchar_t* kBFrames = L"kEncode_BFrames";
/// Text: one of the codec's pixel formats; it decides over kBitDepth and kAlpha.
inline constexpr const wchar_t* kPixelFormat = L"kEncode_PixelFormat";
/// Integer: bits of a component.
inline constexpr const wchar_t* kBitDepth = L"kEncode_BitDepth";
/// Integer 1: the file keeps what is transparent. What shows where no clip does is left out then.
inline constexpr const wchar_t* kAlpha = L"kEncode_Alpha";
/// Integer, an NLEFieldOrder.
inline constexpr const wchar_t* kFieldOrder = L"kEncode_FieldOrder";
/// Text: one of the codec's sample formats.
inline constexpr const wchar_t* kSampleFormat = L"kEncode_SampleFormat";
/// Integer, bits a second of the sound; counts where NLEEncodeSettings::audioBitRate is 0.
inline constexpr const wchar_t* kAudioBitRate = L"kEncode_AudioBitRate";
/// Integer: threads of the codec of pictures; the codec chooses by default.
inline constexpr const wchar_t* kThreads = L"kEncode_Threads";
/// Integer 1: pictures come from the proxies of clips that have them enabled; else from their
/// media.
inline constexpr const wchar_t* kProxies = L"kEncode_Proxies";
/// Integer 1: NLEEncodeSettings::range {0, 0} is frame 0 alone; else it means all.
inline constexpr const wchar_t* kFirstFrame = L"kEncode_FirstFrame";
} // namespace Encode

/// Settings of the engine itself, in the bag of INLESystemConfig. They count for the whole process
/// at once and end with it. Other keys and values give E_INVALIDARG.
namespace System {
/// Integer, an NLEHardwareDecoding; preset NLEHardware_Never.
inline constexpr const wchar_t* kHardwareDecoding = L"kSystem_HardwareDecoding";
/// Integer, 0 to 65536: MiB of memory that decoded pictures, kept for stepping back and scrubbing,
/// may take in all; preset 512. 0 keeps none.
inline constexpr const wchar_t* kDecodedPictures = L"kSystem_DecodedPictures";
/// Integer, 0 to 64: threads that a decoder, the preview cache and the opening of files may have
/// each, of what is opened or started from then on; preset 0, as many as the system has processors.
inline constexpr const wchar_t* kThreads = L"kSystem_Threads";
/// Text: folder of the preview cache of timelines for which INLEBackgroundCache::SetCacheFolder was
/// not called before their cache was first asked for; empty, the preset, for none.
inline constexpr const wchar_t* kCacheFolder = L"kSystem_CacheFolder";
/// Integers from 0 on: MiB that chunks in that folder may fill, preset 10240, and MiB to leave free
/// on its disk, preset 1024.
inline constexpr const wchar_t* kCacheQuota = L"kSystem_CacheQuota";
inline constexpr const wchar_t* kCacheReserve = L"kSystem_CacheReserve";
} // namespace System

} // namespace NLEKey
