// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

#include <cstdint>

struct INLETimeline;
struct INLEVideoFrame;

/// What a player does.
enum NLEPlayerState : std::int32_t
{
    NLEPlayer_Closed = 0, ///< no node is open
    NLEPlayer_Paused = 1, ///< stands at its position; also after the last frame was played
    NLEPlayer_Playing = 2 ///< plays, or fills up to begin
};

/// Where pictures came from; see INLEPlayerListener::PictureDue.
enum NLEPlayerSource : std::int32_t
{
    NLEPlayerSource_Rendered = 0, ///< composed anew
    NLEPlayerSource_Cached = 1,   ///< read from the node's background cache
    NLEPlayerSource_Near = 2      ///< while scrubbing: one that lies near, the exact one follows
};

/// Channels of sound that a player has at the most; it plays two.
constexpr int kNLEPlayerChannels = 8;

/// How a second of playing went. Counts are pictures but for the last ones.
struct NLEPlayerReport
{
    std::int32_t shown;     ///< given to the listener
    std::int32_t dropped;   ///< too late to be shown, composed or not
    std::int32_t late;      ///< of those shown, more than 10 ms after their time
    std::int32_t rendered;  ///< of those shown, composed anew
    std::int32_t cached;    ///< of those shown, from the background cache
    std::int32_t underruns; ///< times that the device wanted sound that was not there yet
    double drift;           ///< picture against sound in milliseconds, above 0: pictures were late;
                            ///< mean of those shown
    double furthestDrift;   ///< that of the picture that was furthest off
};

/// Levels of the sound that is heard: linear, 1 is full scale. They are those of the programme:
/// the player's volume and mute do not change them.
struct NLEPlayerLevels
{
    std::int32_t frame;             ///< of the node: when these samples are heard
    std::int32_t channels;          ///< entries of the arrays that count
    float peak[kNLEPlayerChannels]; ///< highest magnitude; falls by 20 dB a second
    float hold[kNLEPlayerChannels]; ///< highest peak of the last 1.5 seconds, then falls as well
    float rms[kNLEPlayerChannels];  ///< root of the mean square of 300 ms
    std::int32_t clipped[kNLEPlayerChannels]; ///< samples beyond full scale since ResetClipping
};

/// Hears of a player. All calls come from one thread of the player, one at a time, never from
/// within a call of INLEPlayer. Return soon: while a call lasts no other picture is shown. The
/// player's functions may be called from here, but for Open, Refresh and Close.
struct INLEPlayerListener : IUnknown
{
    static constexpr _GUID Iid = {
        0x2CF32E09, 0x4470, 0x4471, {0x88, 0xBE, 0x73, 0x5E, 0xC1, 0x10, 0x75, 0x1E}};

    /// \a picture is frame \a frame of the node and is due now. It is as large as the node's
    /// picture fits into the size of SetPictureSize, without margins. Keep a reference for as long
    /// as it is shown; its pixels are shared with the player and must not be written. \a source is
    /// an NLEPlayerSource. Null where the node has no picture at that frame.
    virtual HRESULT PictureDue(int frame, int source, INLEVideoFrame* picture) = 0;
    /// \a state is an NLEPlayerState; told after each change, also at the end of the node.
    virtual HRESULT StateChanged(int state) = 0;
    /// Sound goes to another device, or to none, and after devices have come or gone. See
    /// INLEPlayer::GetSoundDevice.
    virtual HRESULT DeviceChanged() = 0;
    /// A second of playing is over; \a report is valid during the call.
    virtual HRESULT SecondPlayed(const NLEPlayerReport* report) = 0;
};

/// Plays a node in real time, pictures and sound.
///
/// The sound card is the clock, a steady clock where there is none or no library for it; pictures
/// follow what is heard. Pictures and sound are rendered ahead on threads of the player and given
/// to the listener when they are due: dropped when they are more than a frame late (but four a
/// second are shown in any case), never early. Frames that the node's background cache holds come
/// from it; clips that have a proxy enabled are read from it.
///
/// The player shows a snapshot of the node. After an edit the host calls Refresh() on the thread
/// that edits: what is seen and heard is always one snapshot as a whole, and the new one shows
/// within 100 ms while playing.
///
/// Open, Refresh and Close are for the thread that edits, and so is the last reference while a node
/// is open; everything else for any thread. Calls do not wait for rendering; only the last
/// reference, Close and SetListener wait for the frame that is being drawn or the call of the
/// listener that is running. Frames are counted as in INLEFrameExtractor::Extract, from 0 to the
/// node's length - 1; those beyond become the nearest.
/// Without a node E_FAIL is the answer where one is needed.
struct INLEPlayer : IUnknown
{
    static constexpr _GUID Iid = {
        0x917A2E3D, 0x4DBD, 0x4BD7, {0xA6, 0xD0, 0xBF, 0x08, 0x20, 0x36, 0xFD, 0x58}};

    /// Who is told; null for nobody. The player holds a reference. No call to the former listener
    /// comes after this has returned, unless it is called from within the listener.
    virtual HRESULT SetListener(INLEPlayerListener* listener) = 0;

    /// Opens a node at frame 0, paused, and shows that frame. A node that is open is closed before.
    /// E_INVALIDARG for a node of another engine and one without frames. Picture size, volume,
    /// device and offset stay from one node to the next, the loop does not.
    virtual HRESULT Open(INLETimeline* timeline) = 0;
    /// Takes a new snapshot of the node: call it after each edit, or once after several. Playing
    /// goes on; where it is paused the frame is shown anew. The position stays, or becomes the last
    /// frame of a node that has become shorter.
    virtual HRESULT Refresh() = 0;
    /// Ends playing and gives up decoders, snapshot and sound device. Always succeeds.
    virtual HRESULT Close() = 0;

    /// Plays from the position on, at \a rate times the speed, -8 to 8 and not 0, else
    /// E_INVALIDARG; while playing it changes the rate. Sound keeps its pitch from 0.5 to 2; at
    /// other rates and backwards it is silent. At the end (backwards: the start) of the node, or of
    /// the loop, it pauses at the last frame that was shown; playing from there begins at the other
    /// end.
    virtual HRESULT Play(double rate) = 0;
    /// Stops at the position.
    virtual HRESULT Pause() = 0;
    /// Goes to a frame and shows it as soon as it is decoded. Playing goes on from there; while
    /// paused nothing sounds.
    virtual HRESULT Seek(int frame) = 0;
    /// Pauses and moves by \a frames, 1 or -1, from the frame on show.
    virtual HRESULT Step(int frames) = 0;
    /// Pauses and shows \a frame with 40 ms of its sound, for a play head that is dragged: of
    /// requests that come faster than pictures can be drawn the newest counts, and where the exact
    /// picture takes long one that lies near is shown first.
    virtual HRESULT Scrub(int frame) = 0;
    /// Plays the frames from \a first to \a last over and over while \a on; a position outside of
    /// them becomes their first one (backwards: the last) when it plays. E_INVALIDARG when \a last
    /// lies before \a first or none of them is in the node. \a on false: the other two do not
    /// count.
    virtual HRESULT SetLoop(int first, int last, bool on) = 0;

    /// An NLEPlayerState.
    virtual HRESULT GetState(int* state) = 0;
    /// The frame that is heard and shown now, or that will be when a seek is done.
    virtual HRESULT GetPosition(int* frame) = 0;
    /// The rate that was last asked for; 1 at first.
    virtual HRESULT GetRate(double* rate) = 0;
    /// Frames of the node.
    virtual HRESULT GetLength(int* frames) = 0;

    /// Size that pictures are fitted into, in pixels of the screen, each side 1 to 16384; preset is
    /// the node's own. 0 for both is the preset. While paused the frame is shown anew.
    virtual HRESULT SetPictureSize(int width, int height) = 0;

    /// Listening volume, linear, 0 to 4; preset 1. Levels and exports do not depend on it.
    virtual HRESULT SetVolume(double volume) = 0;
    virtual HRESULT GetVolume(double* volume) = 0;
    virtual HRESULT SetMute(bool mute) = 0;
    virtual HRESULT GetMute(bool* mute) = 0;

    /// Devices that sound can go to; the list is taken anew by each call.
    virtual HRESULT GetSoundDeviceCount(int* count) = 0;
    /// Cut to \a capacity characters with the terminating zero. E_INVALIDARG for an index that
    /// names no device of the list as it was counted last.
    virtual HRESULT GetSoundDeviceName(int index, wchar_t* name, int capacity) = 0;
    /// Sends sound to the device of that name, null or empty: the system's preset one. Playing goes
    /// on at the same position. While a device is not there sound goes to the preset one, or to
    /// none, and comes back when it is.
    virtual HRESULT SetSoundDevice(const wchar_t* name) = 0;
    /// The device that sound goes to now, as in GetSoundDeviceName; the preset one has no name.
    /// S_FALSE, and an empty text, while there is none and a steady clock counts.
    virtual HRESULT GetSoundDevice(wchar_t* name, int capacity) = 0;
    /// Milliseconds by which the device sounds later than it says (wireless sound), -1000 to 1000,
    /// preset 0: pictures wait for it. E_INVALIDARG for others.
    virtual HRESULT SetSoundOffset(int milliseconds) = 0;
    virtual HRESULT GetSoundOffset(int* milliseconds) = 0;

    /// The last whole second of playing, all 0 before there was one; S_FALSE then.
    virtual HRESULT GetReport(NLEPlayerReport* report) = 0;
    /// The sum of all seconds since Open; drifts are the mean and the furthest of all pictures.
    virtual HRESULT GetTotals(NLEPlayerReport* report) = 0;
    /// Levels of what is heard now; falls to 0 while nothing plays.
    virtual HRESULT GetLevels(NLEPlayerLevels* levels) = 0;
    virtual HRESULT ResetClipping() = 0;
};
