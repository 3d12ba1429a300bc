// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

struct INLEMediaInfo;
struct INLEProperties;

/// One node of the timeline tree: a project, a composite that holds clips, a source clip, an effect
/// or a transition. Which of these it is shows only in the further interfaces that it answers.
///
/// Positions are frames of the parent; ranges are frames of the node at its render frame rate.
///
/// Nodes that hang together, their facilities and their bags are for one thread, the one that
/// edits; where a facility lets others in, it says so.
struct INLETimeline : IUnknown
{
    static constexpr _GUID Iid = {
        0x5A98EB9F, 0x8755, 0x4C20, {0xA5, 0xF6, 0x8D, 0x7C, 0xDF, 0x3D, 0x7A, 0x88}};

    /// Looks a facility of the node up (cache, stream processing, blending, mixer): E_NOINTERFACE
    /// when the node lacks it. The two last arguments are reserved and 0.
    virtual HRESULT GetInterface(REFIID iid, void** out, int reserved1, int reserved2) = 0;
    /// Number that no other node of the process has.
    virtual HRESULT GetId(std::uint32_t* id) = 0;
    /// The composite that holds the node, a new reference; null with S_OK at the top.
    virtual HRESULT GetParent(INLETimeline** parent) = 0;
    /// The node's own bag, a new reference.
    virtual HRESULT GetProperties(INLEProperties** properties) = 0;
    /// Trim range: in and out point, both inclusive. Not clamped to the total range.
    virtual HRESULT SetRange(const NLERange* range) = 0;
    virtual HRESULT GetRange(NLERange* range) = 0;
    /// All frames that the node has.
    virtual HRESULT GetTotalRange(NLERange* range) = 0;
    /// Frames a second that ranges are counted in. A source keeps the instants of its in and out
    /// point when the rate changes. A rate that is not above 0, and another one than that of the
    /// composite that holds the node, give E_INVALIDARG.
    virtual HRESULT SetRenderFrameRate(NLERational rate) = 0;
    virtual HRESULT GetRenderFrameRate(NLERational* rate) = 0;
    /// Stacking layer: higher levels cover lower ones.
    virtual HRESULT SetLevel(int level) = 0;
    virtual HRESULT GetLevel(int* level) = 0;
    /// First frame on the parent.
    virtual HRESULT SetPosition(int position) = 0;
    virtual HRESULT GetPosition(int* position) = 0;
    virtual HRESULT SetMarginMode(tagNLEMarginMode mode) = 0;
    virtual HRESULT GetMarginMode(tagNLEMarginMode* mode) = 0;
    /// A node that is not enabled is neither seen nor heard.
    virtual HRESULT SetEnabled(bool enabled) = 0;
    virtual HRESULT GetEnabled(bool* enabled) = 0;
    /// An independent copy without a parent; \a deep copies what the node holds as well.
    virtual HRESULT Clone(bool deep, INLETimeline** clone) = 0;
};

/// Walks a composite's clips. It holds what it walks, so edits meanwhile do not disturb it.
struct INLETimelineEnumerator : IUnknown
{
    static constexpr _GUID Iid = {
        0x8E444002, 0xD2E2, 0x4F13, {0x9A, 0xAD, 0xBD, 0x06, 0xBB, 0x8E, 0x2A, 0xC0}};

    virtual HRESULT IsEmpty(bool* empty) = 0; ///< whether it lists none
    /// Moves on; S_FALSE when it has run past the end.
    virtual HRESULT Next() = 0;
    /// The current clip, a new reference; E_FAIL past the end.
    virtual HRESULT GetCurrent(INLETimeline** clip) = 0;
};

/// A node that holds clips.
struct INLETimelineComposite : IUnknown
{
    static constexpr _GUID Iid = {
        0xE0A906B2, 0xF729, 0x4DC3, {0x92, 0x88, 0x1A, 0x0A, 0xF4, 0xC6, 0x1D, 0xD6}};

    virtual HRESULT GetClipCount(int* count) = 0; ///< children, transitions too
    /// Enumerates the clips in the order in which they were added. \a flags is 1.
    virtual HRESULT GetEnumerator(int flags, INLETimelineEnumerator** enumerator) = 0;
    /// Adds a clip, which must have no parent: E_INVALIDARG for null, for this node itself, for a
    /// node that holds this one, for a clip that is held already and for composites nested deeper
    /// than the engine allows. The clip takes the composite's frame rate and keeps the instants of
    /// its in and out point.
    virtual HRESULT AddClip(INLETimeline* clip) = 0;
    /// Removes a clip; E_INVALIDARG when it is not held here.
    virtual HRESULT RemoveClip(INLETimeline* clip) = 0;
};

/// A composite whose enumeration also reaches into the composites that it holds.
struct INLETimelineCompositeEx : IUnknown
{
    static constexpr _GUID Iid = {
        0x0CF5BCAE, 0x1C41, 0x496B, {0xA1, 0x84, 0x8C, 0x0B, 0x5E, 0x68, 0xB6, 0x8B}};

    /// \a recursive 1: the clips of held composites follow their composite; \a flags is 1.
    virtual HRESULT GetEnumerator(int recursive, int flags,
                                  INLETimelineEnumerator** enumerator) = 0;
};

/// A node that plays a media file.
struct INLETimelineSource : IUnknown
{
    static constexpr _GUID Iid = {
        0x03EACFA9, 0x5839, 0x4D93, {0x9D, 0xF7, 0x10, 0x5A, 0x0F, 0x11, 0x1C, 0xCB}};

    /// Writes at most \a capacity characters with the terminating zero.
    virtual HRESULT GetFilePath(wchar_t* buffer, int capacity) = 0;
    /// Points the node at another file without touching its range; fails as a relink does.
    virtual HRESULT SetFilePath(const wchar_t* path) = 0;
    virtual HRESULT GetMediaInfo(INLEMediaInfo** info) = 0;
    /// Index of the stream that is shown or heard, of several that are heard the first one;
    /// NLENoStream when there is none. The keys of NLEKey::Source choose them.
    virtual HRESULT GetVideoStreamIndex(std::uint32_t* index) = 0;
    virtual HRESULT GetAudioStreamIndex(std::uint32_t* index) = 0;
};

/// Decoder preferences of a source.
struct INLETimelineSourceDecoder : IUnknown
{
    static constexpr _GUID Iid = {
        0x197CAB21, 0x5D40, 0x4A95, {0x97, 0x6A, 0xF1, 0x61, 0x37, 0x1C, 0xC3, 0x77}};

    /// 0, the preset: software. Any other number: the GPU first, where NLEHardwareDecoding allows
    /// it. Frames that an extractor renders are decoded so, thumbnails never. Pictures are alike.
    virtual HRESULT GetGPUFirst(int* preference) = 0;
    virtual HRESULT SetGPUFirst(int preference) = 0;
};

/// How a source is pointed at another file; flags that add up.
enum NLERelinkFlags : std::int32_t
{
    NLERelink_AllowMissing =
        1 ///< a file that is not there is taken too: the source is offline then
};

/// Points a source at a moved file.
struct INLEMediaRelink : IUnknown
{
    static constexpr _GUID Iid = {
        0xFBAE0F33, 0x7F86, 0x462B, {0x82, 0xD9, 0x44, 0xBD, 0xE1, 0x84, 0x9F, 0xD6}};

    /// Takes the file when the engine can read it; else fails and the source keeps its media. \a
    /// flags are of NLERelinkFlags.
    virtual HRESULT Relink(const wchar_t* path, int flags) = 0;
    /// Reads the media's description again and drops what was cached of it.
    virtual HRESULT Reload() = 0;
};

/// Where the node's children are rendered, and whether the node is the current one.
struct INLERenderRegion : IUnknown
{
    static constexpr _GUID Iid = {
        0xCA2227DF, 0x21B8, 0x46BA, {0xBA, 0x5F, 0x8D, 0xE2, 0x81, 0x3F, 0xB4, 0xF1}};

    /// Render region of definition in pixels.
    virtual HRESULT GetRenderRegion(NLERectF* region) = 0;
    virtual HRESULT GetCurrent(bool* current) = 0;
    virtual HRESULT SetCurrent(bool current) = 0;
};

/// Answered by effects only.
struct INLETimelineEffect : IUnknown
{
    static constexpr _GUID Iid = {
        0x44792FF4, 0x8EC8, 0x4AA7, {0x95, 0x34, 0xF3, 0x41, 0xFA, 0x9A, 0x08, 0xE7}};

    /// Writes the name it is declared by, cut to \a capacity characters with the terminating zero.
    virtual HRESULT GetEffectName(wchar_t* buffer, int capacity) = 0;
};

/// Answered by transitions only.
struct INLETimelineTransition : IUnknown
{
    static constexpr _GUID Iid = {
        0x3CD18B0D, 0x1212, 0x46BD, {0x8A, 0x2C, 0xEA, 0x2C, 0x5F, 0x22, 0xBD, 0x25}};

    /// Writes the name it is declared by, cut to \a capacity characters with the terminating zero.
    virtual HRESULT GetTransitionName(wchar_t* buffer, int capacity) = 0;
};

/// Answered by nodes whose picture is animated as a whole.
struct INLEAnimation : IUnknown
{
    static constexpr _GUID Iid = {
        0x13D0DDFC, 0xD365, 0x4B59, {0xB6, 0xEF, 0x74, 0xC8, 0xD9, 0x52, 0x01, 0x3B}};

    /// Writes the name it is declared by, cut to \a capacity characters with the terminating zero.
    virtual HRESULT GetAnimationName(wchar_t* buffer, int capacity) = 0;
};

/// Picture and sound format of a project.
struct INLEProjectSetting : IUnknown
{
    static constexpr _GUID Iid = {
        0x4A6F0B60, 0xCBF0, 0x40B8, {0xBE, 0x47, 0x0B, 0x89, 0x47, 0x2F, 0x3F, 0x33}};

    virtual HRESULT GetProfile(tagNLEProjectProfile* profile) = 0; ///< of the project
    /// E_INVALIDARG for a size or a rate that is not above 0.
    virtual HRESULT SetProfile(const tagNLEProjectProfile* profile) = 0;
};
