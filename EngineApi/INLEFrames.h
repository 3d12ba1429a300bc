// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

struct INLEMediaInfo;
struct INLEPicture;
struct INLETimeline;

/// A video frame to render into: 32 bits a pixel as in INLEPicture, rows without gaps. For one
/// thread at a time.
struct INLEVideoFrame : IUnknown
{
    static constexpr _GUID Iid = {
        0xFDEAC645, 0x9726, 0x4100, {0xB2, 0xA8, 0x43, 0x4A, 0x88, 0x8A, 0x7E, 0x53}};

    /// Allocates the pixels, all transparent; E_OUTOFMEMORY when there is no room for them.
    virtual HRESULT Prepare() = 0;
    virtual HRESULT GetSize(NLESize* size) = 0;
    /// The part of the frame that holds the picture; the rest is margin.
    virtual HRESULT GetValidRect(NLERect* rect) = 0;
    virtual HRESULT SetValidRect(const NLERect* rect) = 0;
    /// The pixels, owned by the frame; E_FAIL before Prepare. Those of NLEMemory_OpenCL are mapped
    /// to be read and written, as INLEOpenCLFrame says.
    virtual HRESULT GetData(std::uint8_t** pixels) = 0;
    /// An NLEFrameMemory.
    virtual HRESULT GetMemory(int* memory) = 0;
};

/// What a mapping of pixels is for; flags that add up.
enum NLEMapFlags : std::int32_t
{
    NLEMap_Read = 1,
    NLEMap_Write = 2 ///< alone: every pixel is written, what was there is not fetched
};

/// The device's side of a video frame in memory of an OpenCL device; frames of NLEMemory_OpenCL
/// answer it.
///
/// The pixels are a buffer of 4 * width * height bytes: rows without gaps, each pixel blue, green,
/// red, alpha (CL_BGRA, CL_UNORM_INT8), not premultiplied. They are in one hand at a time. Mapped,
/// they are the host's, at the address that Map or GetData gave; else they are the device's. A new
/// frame is the device's, and so is one that an extractor has filled: its pixels are there when
/// Extract returns, for any queue of the context.
///
/// All frames of a process share one context and one queue, in order, of OpenCL 1.2 or later. The
/// handles are the engine's; they stay valid while the frame is held and its pixels are not
/// prepared again, and longer for a host that retains them (clRetainMemObject and the like).
/// OpenCL's functions are those of the system's library, libOpenCL.so.1 or OpenCL.dll. A frame is
/// for one thread at a time, as others are.
struct INLEOpenCLFrame : IUnknown
{
    static constexpr _GUID Iid = {
        0x0E4B64D2, 0x93A7, 0x4E0C, {0xB1, 0x5D, 0x28, 0xF6, 0x7A, 0xC3, 0x91, 0x0B}};

    /// The cl_mem; ends a mapping first. E_FAIL before Prepare.
    virtual HRESULT GetBuffer(void** buffer) = 0;
    /// The cl_context.
    virtual HRESULT GetContext(void** context) = 0;
    /// The cl_command_queue.
    virtual HRESULT GetQueue(void** queue) = 0;
    /// The cl_device_id.
    virtual HRESULT GetDevice(void** device) = 0;
    /// What the device is called, cut to \a capacity characters with the terminating zero.
    virtual HRESULT GetDeviceName(wchar_t* name, int capacity) = 0;
    /// Gives the pixels to the host, after what the queue has still to do; \a flags are of
    /// NLEMapFlags. No copy is made where the device shares the host's memory. The address holds
    /// until the next call of Map, Unmap, GetBuffer or Prepare, until an extractor fills the frame,
    /// and no longer than the frame; GetData maps for both, and keeps such a mapping. E_FAIL before
    /// Prepare and when the device fails, E_INVALIDARG for other flags.
    virtual HRESULT Map(int flags, std::uint8_t** pixels) = 0;
    /// Gives the pixels back to the device and waits until they are there. S_FALSE when they are
    /// not mapped.
    virtual HRESULT Unmap() = 0;
};

/// A block of sound: interleaved 32-bit floats, -1 to 1, 48,000 samples a second, two channels. For
/// one thread at a time.
struct INLEAudioFrame : IUnknown
{
    static constexpr _GUID Iid = {
        0x6D068BE7, 0x7C73, 0x44BA, {0x88, 0xC9, 0xAF, 0x08, 0x5A, 0x31, 0xDC, 0x78}};

    /// Samples a channel.
    virtual HRESULT GetSampleCount(int* count) = 0;
    virtual HRESULT GetSampleRate(int* rate) = 0;
    virtual HRESULT GetChannels(int* channels) = 0;
    /// The samples, owned by the frame.
    virtual HRESULT GetData(float** samples) = 0;
};

/// How a frame extractor opens a node; flags that add up.
enum NLEOpenFlags : std::int32_t
{
    NLEOpen_Render = 1, ///< every frame is rendered in full quality
    NLEOpen_Cached = 2 ///< for previews: frames that the node's background cache holds come from it
};

/// Renders frames of a node. Open() is for the thread that edits, all else for one thread at a
/// time.
struct INLEFrameExtractor : IUnknown
{
    static constexpr _GUID Iid = {
        0xE3247382, 0xB6CC, 0x4DEE, {0xBE, 0x4F, 0xA9, 0xAB, 0xFB, 0x14, 0x61, 0x15}};

    /// Takes a snapshot of the node; later edits do not show. \a flags are of NLEOpenFlags.
    /// Frames from the cache have the cache's size and are scaled to the video frame.
    virtual HRESULT Open(INLETimeline* timeline, int flags) = 0;
    /// Renders frame \a frame into a prepared video frame and sets its valid rectangle. For a
    /// source the number counts from the file's first frame, else from the node's frame 0. E_FAIL
    /// outside of the node's total range, when the media cannot be decoded, and where the sound of
    /// a source goes on after its last picture.
    virtual HRESULT Extract(int frame, INLEVideoFrame* picture) = 0;
    /// Fills an audio frame with the sound that starts at frame \a frame.
    virtual HRESULT ExtractAudio(int frame, INLEAudioFrame* sound) = 0;
    /// Releases decoders and snapshot; Open may be called again.
    virtual HRESULT Finish() = 0;
};

/// How near a picture comes to the frame that was asked for.
enum NLEScrubPrecision : std::int32_t
{
    NLEScrub_Exact = 0, ///< the picture that Extract gives
    NLEScrub_Near = 1   ///< one of the clips at least shows another of its frames
};

/// Pictures under a play head that is being dragged: at first one that is at hand, then the exact
/// one. Frame extractors that offer it answer it beside their own interface, with whose snapshot,
/// decoders and thread it works; Interrupt may be called from any thread.
///
/// A player keeps the frame that is wanted last. Its thread calls ExtractNear for it and shows the
/// picture; when that is not exact and the same frame is still wanted, it calls Extract and shows
/// that. Its GUI thread notes the frame first and then calls Interrupt whenever the play head
/// moves, so that no picture waits for one that nobody wants any more.
struct INLEFrameScrubber : IUnknown
{
    static constexpr _GUID Iid = {
        0x2E0B5B64, 0x41D7, 0x4C0A, {0x9F, 0x3C, 0x6D, 0x52, 0xA8, 0x17, 0x0E, 0x93}};

    /// As Extract, but with one decoded picture of each clip at the most. A clip shows the exact
    /// frame when it is at hand or the next one, else what is nearest to it: the picture shown
    /// last, one that was kept, or the key frame before. \a precision receives an
    /// NLEScrubPrecision; it may be null. Takes back an Interrupt that found nothing to end.
    virtual HRESULT ExtractNear(int frame, INLEVideoFrame* picture, int* precision) = 0;
    /// Ends the Extract that is running, else the next one: it returns E_ABORT and leaves the
    /// video frame as it was. What it had decoded is kept, so nothing is lost for the next picture.
    virtual HRESULT Interrupt() = 0;
};

/// Reads small pictures of a media file. For one thread at a time.
struct INLEThumbnailExtractor : IUnknown
{
    static constexpr _GUID Iid = {
        0xB1963BD2, 0x8D78, 0x4A4E, {0xAE, 0x0D, 0x6E, 0x1D, 0x52, 0x4F, 0xF4, 0x4C}};

    /// Chooses the file of \a info, and of all of its streams the one of the index \a videoStream.
    /// E_INVALIDARG without a file, and when that is no picture.
    virtual HRESULT SetSource(INLEMediaInfo* info, std::uint32_t videoStream) = 0;
    /// The picture of frame \a frame, counted from the file's first frame. The size is what the
    /// caller will show; the picture may have another one. E_FAIL without a source, past the
    /// frame count of the file and when the media cannot be decoded.
    virtual HRESULT Extract(int frame, NLESize wanted, INLEPicture** picture) = 0;
    /// Closes the file. Without it the open file is kept for the next extractor.
    virtual HRESULT Finish() = 0;
};

/// Reads the envelope of a sound. For one thread at a time.
struct INLEWaveExtractor : IUnknown
{
    static constexpr _GUID Iid = {
        0x9427F03A, 0xB673, 0x43A5, {0x93, 0xD8, 0x1B, 0x5F, 0xE7, 0x97, 0x08, 0x43}};

    /// Opens the file of \a info, and of all of its streams the one of the index \a audioStream.
    /// E_INVALIDARG without a file, E_FAIL when that is no sound, or cannot be decoded.
    virtual HRESULT SetSource(INLEMediaInfo* info, std::uint32_t audioStream) = 0;
    /// Lowest and highest sample (-1 to 1, of all channels mixed down to one) of \a count equal
    /// steps of the span from \a start, \a length seconds long. Both arrays hold \a count values.
    /// An engine may answer from a kept envelope (INLEWaveCache) where a step is long enough.
    virtual HRESULT Extract(double start, double length, int count, float* minima,
                            float* maxima) = 0;
    virtual HRESULT Finish() = 0;
};

/// Finds the scenes of a clip: where a cut or a dissolve leads to another picture. Open() is for
/// the thread that edits, all else for one thread at a time.
struct INLESceneSegment : IUnknown
{
    static constexpr _GUID Iid = {
        0xC06279D2, 0x63EF, 0x4A9C, {0xAD, 0x57, 0x97, 0x8B, 0xEA, 0xA5, 0x38, 0x7C}};

    /// Takes a snapshot of the node and looks from its in point on; the scene that starts there is
    /// not reported. Opening again begins anew.
    virtual HRESULT Open(INLETimeline* timeline) = 0;
    /// First frame of the next scene, counted as the node's trim range is, in rising order; of a
    /// dissolve, the frame in which the new picture outweighs the old one. S_FALSE when there is
    /// none. Decodes on the calling thread, no further than it must; releasing the object ends the
    /// search.
    virtual HRESULT Next(int* frame) = 0;
};

/// Reports progress in percent; a result other than 0 stops the work.
using NLEProgressCallback = int (*)(int percent, void* userData);

/// Watches a search for scenes, which may decode for minutes. Answered by scene segments.
struct INLESceneProgress : IUnknown
{
    static constexpr _GUID Iid = {
        0x4F59AABF, 0x9E3F, 0x4525, {0xB2, 0x34, 0xE2, 0x5E, 0x84, 0x46, 0x03, 0x76}};

    /// \a callback is called from within Next with the part of the clip that was looked through.
    /// Where it stops the work, Next gives S_FALSE with the frame -1, and the Next after it goes
    /// on. Null: nobody is called.
    virtual HRESULT SetProgress(NLEProgressCallback callback, void* userData) = 0;
};

/// Envelopes that are computed once a file and kept on disk. Answered by wave extractors; what it
/// sets counts for all of the process.
struct INLEWaveCache : IUnknown
{
    static constexpr _GUID Iid = {
        0x0760267A, 0x24B0, 0x4F57, {0xA5, 0x14, 0xBE, 0xA9, 0x7C, 0xF5, 0xED, 0xFF}};

    /// Where envelopes are kept, and the most MiB that they may fill; those used least lately go
    /// first. An empty or null \a folder is a folder of the application's caches, 0 MiB keeps
    /// none. E_INVALIDARG for less than 0.
    virtual HRESULT SetCacheFolder(const wchar_t* folder, std::int64_t quota) = 0;
    /// Whether the envelope of the source that was set is kept. E_FAIL without a source.
    virtual HRESULT IsCached(bool* cached) = 0;
    /// Computes the source's envelope on the calling thread and keeps it; ends at once when it is
    /// kept already. S_FALSE when the callback stopped it: nothing is kept then. E_FAIL without a
    /// source and when the sound cannot be read or nothing be written. \a callback may be null.
    virtual HRESULT Compute(NLEProgressCallback callback, void* userData) = 0;
};

/// Writes a timeline to a media file. Open() is for the thread that edits, all else for one thread
/// at a time.
struct INLEMediaEncoder : IUnknown
{
    static constexpr _GUID Iid = {
        0x057B880A, 0x6C75, 0x49BF, {0xB2, 0x3E, 0xF4, 0x10, 0x34, 0x5B, 0x6E, 0xF3}};

    /// Takes a snapshot of the timeline. The container follows from the file's suffix, unless
    /// INLEEncodeOptions (INLEEncode.h) names another one. \a settings may be null. A short trial
    /// beside \a path finds out whether the file can be written, and the nearest sample rate and
    /// channels where those asked for are not taken; a file that is there stays as it is. E_NOTIMPL
    /// for a suffix that names no container of a single file, E_ACCESSDENIED where no file can be
    /// made, E_INVALIDARG for settings that codec or container do not take and when there is
    /// nothing to write. The open engine logs the reason.
    virtual HRESULT Open(INLETimeline* timeline, const wchar_t* path,
                         const NLEEncodeSettings* settings) = 0;
    /// Returns when the file is whole; \a callback is called on the calling thread. The file is
    /// written under a temporary name and renamed when it is whole; until then, and after a
    /// failure, an older one stays. S_FALSE when the callback stopped it. \a callback may be null.
    virtual HRESULT Encode(NLEProgressCallback callback, void* userData) = 0;
};
