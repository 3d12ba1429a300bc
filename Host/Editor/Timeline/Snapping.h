// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEditing.h"

#include <initializer_list>
#include <optional>

/// Draws frames to edges of clips, markers and the play head.
class Snapping
{
public:
    bool IsOn() const { return m_isOn; }
    void SetOn(bool on) { m_isOn = on; }
    /// Frames within which it draws.
    void SetReach(int frames) { m_reach = frames; }
    void SetPlayHead(int frame) { m_playHead = frame; }

    /// By how many frames more to move \a edges, which are to come to stand there, so that one of
    /// them snaps; 0 when none does. \a moving, which may be null, and its group do not count.
    int Correction(INLEEditing& editing, std::initializer_list<int> edges, INLETimeline* moving);
    /// Where the last one snapped.
    std::optional<int> Line() const { return m_line; }
    void ClearLine() { m_line.reset(); }
    /// Lets go of the line unless \a clip begins or ends there: an edit may have to stop before it.
    void CheckLine(INLETimeline& clip);

private:
    std::optional<int> Nearest(INLEEditing& editing, int frame, INLETimeline* moving) const;

    bool m_isOn = true;
    int m_reach = 0;
    int m_playHead = 0;
    std::optional<int> m_line;
};
