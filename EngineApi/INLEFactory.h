// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

struct INLEAudioFrame;
struct INLECodec;
struct INLEEditing;
struct INLEFrameExtractor;
struct INLEMediaEncoder;
struct INLEPlayer;
struct INLEProperties;
struct INLEProxyMaker;
struct INLEReasons;
struct INLESceneSegment;
struct INLEThumbnailExtractor;
struct INLETimeline;
struct INLEVideoFrame;
struct INLEWaveExtractor;

/// Fonts that captions are rendered with. For the GUI thread.
struct INLEFontLibrary : IUnknown
{
    static constexpr _GUID Iid = {
        0x33826B65, 0x7C7B, 0x4127, {0x99, 0x1E, 0xDE, 0xAB, 0x31, 0xC3, 0xFE, 0x91}};

    virtual HRESULT SetCacheFile(const wchar_t* path) = 0; ///< where fonts that were read are noted
    virtual HRESULT SetFontFolder(const wchar_t* folder) = 0; ///< is read first
    virtual HRESULT AddFontFolder(const wchar_t* folder) = 0; ///< is read now
    virtual HRESULT LoadSystemFonts() = 0;                    ///< reads what the system has
    virtual HRESULT GetFontCount(int* count) = 0;             ///< fonts that were found
    virtual HRESULT GetFontName(int index, wchar_t* buffer, int capacity) = 0;
};

/// Makes timeline nodes. Every result is a new reference; a failure leaves null. For the thread
/// that edits.
struct INLETimelineFactory : IUnknown
{
    static constexpr _GUID Iid = {
        0x4F2E9321, 0x7DAD, 0x473B, {0x8E, 0xF2, 0xB7, 0x2C, 0x58, 0xA5, 0x39, 0xFA}};

    virtual HRESULT GetDefaultProfile(tagNLEProjectProfile* profile) = 0; ///< of new projects
    virtual HRESULT CreateProject(const tagNLEProjectProfile* profile, INLETimeline** project) = 0;
    /// A clip of a media file. A missing file gives an offline clip; a file that cannot be read
    /// fails.
    virtual HRESULT CreateMedia(const wchar_t* path, INLETimeline** clip) = 0;
    /// The project that a template folder holds.
    virtual HRESULT CreateFromTemplate(const wchar_t* folder, INLETimeline** project) = 0;
    virtual HRESULT CreateAudioFilter(const wchar_t* name, INLETimeline** filter) = 0;
    /// \a argb is 0xAARRGGBB, \a frameRate frames a second.
    virtual HRESULT CreateColor(std::uint32_t argb, NLESize size, float frameRate,
                                INLETimeline** clip) = 0;
    /// A line or more of \a text in the font family \a family.
    virtual HRESULT CreateTipText(const wchar_t* text, const wchar_t* family,
                                  INLETimeline** clip) = 0;
    /// An empty composite; \a type becomes its timeline type.
    virtual HRESULT CreateVirtual(int type, INLETimeline** timeline) = 0;
    /// An effect or a transition by its name in INLEEffectCatalog, with all parameters at their
    /// presets; E_INVALIDARG for a name that is not there.
    virtual HRESULT CreateEffect(const wchar_t* name, INLETimeline** effect) = 0;
    virtual HRESULT CreateTransition(const wchar_t* name, INLETimeline** transition) = 0;
    /// A title of \a text, all else at its preset; INLETitle and INLEParameters change it.
    virtual HRESULT CreateTitle(const wchar_t* text, INLETimeline** title) = 0;
};

/// Marks that a file carries: chapters, tracks of a cue sheet. In order of time. For any thread.
struct INLEMarkBook : IUnknown
{
    static constexpr _GUID Iid = {
        0x0C031E5D, 0x1431, 0x406B, {0xB8, 0x5A, 0xC5, 0x99, 0xAC, 0x27, 0x0A, 0x8B}};

    virtual HRESULT GetMarkCount(int* count) = 0; ///< marks of the book
    /// \a frame is where the mark begins, counted at the file's own rate, 25 frames a second for
    /// sound alone. \a name receives at most \a capacity characters with the terminating zero; with
    /// a capacity of 0 only the frame is given. E_INVALIDARG for an index that names no mark.
    virtual HRESULT GetMark(int index, int* frame, wchar_t* name, int capacity) = 0;
};

/// Saves timelines and opens them again. For the thread that edits.
struct INLEDocumentSerialize : IUnknown
{
    static constexpr _GUID Iid = {
        0x7522CF7E, 0xAF8D, 0x48D0, {0x8B, 0x19, 0xB9, 0xD5, 0x7D, 0x04, 0x93, 0xCB}};

    /// Writes the timeline under a temporary name and renames it: the file is the old or the new
    /// one. The suffix chooses the format, in upper or lower case.
    virtual HRESULT Save(INLETimeline* timeline, const wchar_t* path) = 0;
    /// Media that is missing becomes an offline clip. The suffix chooses the format, as in Save().
    virtual HRESULT Load(const wchar_t* path, INLETimeline** timeline) = 0;
};

/// What a document held that its timeline lacks, or plays otherwise than the program that wrote it.
/// The serializers of the open engine answer it; it tells of the last document that was loaded,
/// whether it opened or not.
struct INLEDocumentReport : IUnknown
{
    static constexpr _GUID Iid = {
        0x079D18BF, 0x0E3A, 0x4A5C, {0x82, 0x26, 0x64, 0x02, 0xC0, 0x5C, 0xB6, 0x76}};

    virtual HRESULT GetRemarkCount(int* count) = 0; ///< remarks on the last document
    /// The remark \a index of 0 to count - 1: \a code is an NLEDocumentRemark, the text is English
    /// and names the part of the document; it is cut to \a capacity characters with the
    /// terminating zero. E_INVALIDARG for an index that names none.
    virtual HRESULT GetRemark(int index, int* code, wchar_t* text, int capacity) = 0;
    /// What remarks of a code are called for people, as INLEReasons::GetTitle. E_INVALIDARG for a
    /// number that is no NLEDocumentRemark.
    virtual HRESULT GetRemarkTitle(int code, wchar_t* title, int capacity) = 0;
};

/// Which clips are decoded by the graphics hardware, where FFmpeg or the system can. What cannot be
/// is decoded in software, also when the hardware fails amid a file; the log says so.
enum NLEHardwareDecoding : std::int32_t
{
    NLEHardware_Never = 0,
    NLEHardware_Asked = 1, ///< those whose INLETimelineSourceDecoder says GPU first
    NLEHardware_All = 2
};

/// Settings of the engine itself; NLEKey::System has the keys. What is open keeps its decoder. For
/// any thread, and so is the bag.
struct INLESystemConfig : IUnknown
{
    static constexpr _GUID Iid = {
        0x37BE6BDC, 0x4362, 0x4748, {0xA6, 0xC2, 0xAC, 0x42, 0x0D, 0xF3, 0x6B, 0x30}};

    /// A bag on the settings, the same as in all such bags; what is put into it holds at once.
    virtual HRESULT GetProperties(INLEProperties** properties) = 0;
};

/// Settings of an editing context, shared by every render of the project. The open engine's
/// projects answer it.
struct INLEBasin : IUnknown
{
    static constexpr _GUID Iid = {
        0xAA0AB461, 0x467C, 0x440D, {0xB5, 0x8C, 0xF6, 0x96, 0x4A, 0x13, 0xE4, 0x9C}};

    /// Writes all settings into a bag.
    virtual HRESULT FillProperties(INLEProperties* properties) = 0;
    /// Takes the settings of a bag, all or none; the bag stays the caller's.
    virtual HRESULT TakeProperties(INLEProperties* properties) = 0;
};

/// Starts the engine's GPU rendering again.
struct INLEOpenCLGpuFactory : IUnknown
{
    static constexpr _GUID Iid = {
        0x57040CFD, 0x9FEA, 0x4D1B, {0xA9, 0x77, 0xDB, 0x3D, 0x19, 0x47, 0xA3, 0xE7}};

    /// Opens the graphics device anew, as after its driver was reset.
    virtual HRESULT ReInit() = 0;
};

/// Root factory: makes every engine object that is not a timeline node. For any thread, apart from
/// CreateEditing(); which threads its objects are for is said there.
struct INLEFactory : IUnknown
{
    static constexpr _GUID Iid = {
        0xCEF9AFA7, 0x2A98, 0xDE80, {0x18, 0x0C, 0x36, 0xE4, 0x0D, 0xD5, 0xE7, 0x45}};
    /// Class identifier under which the engine's module makes it.
    static constexpr _GUID ClassId = {
        0xF5FBAF87, 0xF7E5, 0xFF43, {0x1B, 0xD4, 0x79, 0x79, 0x06, 0xCF, 0x22, 0x4E}};

    /// \a flags is 0. May be called again without effect.
    virtual HRESULT Init(int flags) = 0;
    virtual HRESULT GetTimelineFactory(INLETimelineFactory** factory) = 0;
    virtual HRESULT GetFontLibrary(INLEFontLibrary** library) = 0;
    virtual HRESULT GetSystemConfig(INLESystemConfig** config) = 0;
    /// \a memory is an NLEFrameMemory; the arguments after it size the frame pool of engines that
    /// have one. \a pixelFormat 0 is 32 bits a pixel. E_FAIL for NLEMemory_OpenCL where there is no
    /// OpenCL or no device of its.
    virtual HRESULT CreateVideoFrame(int width, int height, int pixelFormat, int memory,
                                     int poolFlags, int poolMinimum, int poolMaximum,
                                     int poolReserve, INLEVideoFrame** frame) = 0;
    /// \a sampleCount samples a channel.
    virtual HRESULT CreateAudioFrame(int sampleCount, INLEAudioFrame** frame) = 0;
    virtual HRESULT CreateCodecFromFile(const wchar_t* path, INLECodec** codec) = 0;
    /// The marks of a media file, or of the media file that a cue sheet is for. A file without
    /// marks has an empty book; one that cannot be read has none.
    virtual HRESULT CreateMarkBook(const wchar_t* path, INLEMarkBook** book) = 0;
    virtual HRESULT CreateDocumentSerialize(INLEDocumentSerialize** serialize) = 0;
    virtual HRESULT CreateFrameExtractor(INLEFrameExtractor** extractor) = 0;
    virtual HRESULT CreateThumbnailExtractor(INLEThumbnailExtractor** extractor) = 0;
    virtual HRESULT CreateWaveExtractor(INLEWaveExtractor** extractor) = 0;
    virtual HRESULT CreateSceneSegment(INLESceneSegment** segment) = 0;
    virtual HRESULT CreateMediaEncoder(INLEMediaEncoder** encoder) = 0;
    virtual HRESULT CreateProperties(INLEProperties** properties) = 0;
    /// Closes what the engine keeps open. Objects that are still held stay valid.
    virtual HRESULT Shutdown(int flags) = 0;
    virtual HRESULT CreateProxyMaker(INLEProxyMaker** maker) = 0;
    virtual HRESULT CreatePlayer(INLEPlayer** player) = 0;
    /// Why calls fail.
    virtual HRESULT GetReasons(INLEReasons** reasons) = 0;
    /// Edits the clips of a composite, with one history for each: while it is held by somebody, the
    /// same object comes again. E_INVALIDARG for a node that holds no clips. For the thread that
    /// edits.
    virtual HRESULT CreateEditing(INLETimeline* composite, INLEEditing** editing) = 0;
};
