// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"

/// What the rest of a host does with its player, without knowing its class:
/// NLEWraper::GetMeidaPlayerControl() hands it out. GUI thread only. Frames count from 0; calls
/// return at once, and give false where the player refuses or there is none.
class IMediaPlayerControl
{
public:
    /// Opens \a timeline, paused at frame 0, in place of what is open.
    virtual bool Open(NLEComPtr<INLETimeline> timeline) = 0;
    /// Takes over what was edited; after each edit.
    virtual bool Refresh() = 0;
    virtual void Close() = 0;

    /// \a rate times the speed, -8 to 8 and not 0.
    virtual bool Play(double rate) = 0;
    virtual bool Pause() = 0;
    virtual bool Seek(int frame) = 0;
    /// Pauses and moves by \a frames from the one on show.
    virtual bool Step(int frames) = 0;
    /// Pauses and shows \a frame with a short piece of its sound: for a play head being dragged.
    virtual bool Scrub(int frame) = 0;
    /// Plays \a first to \a last over and over.
    virtual bool SetLoop(int first, int last) = 0;
    virtual bool ClearLoop() = 0;

    virtual bool IsOpen() const = 0;
    virtual bool IsPlaying() const = 0;
    /// The frame that is heard and shown; 0 while nothing is open.
    virtual int Position() const = 0;
    /// Frames of what is open.
    virtual int Length() const = 0;

protected:
    ~IMediaPlayerControl() = default;
};
