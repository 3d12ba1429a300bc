// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEditing.h"
#include "Host/Editor/Timeline/ClipRow.h"
#include "Host/Editor/Timeline/ClipSet.h"
#include "Host/Editor/Timeline/Gesture.h"
#include "Host/Editor/Timeline/Snapping.h"
#include "Host/Editor/Timeline/TimelineTool.h"

#include <QString>

class Project;

/// A drag that edits: each movement is an edit of what was there at the press, all of it one step
/// of undo. Where the engine refuses a movement, the one before stays.
class EditGesture : public Gesture
{
public:
    void Move(const GesturePoint& point) final;
    void End() final;
    void Cancel() final;

protected:
    /// Begins the step \a text. \a project and \a snapping outlive the gesture.
    EditGesture(Project& project, Snapping& snapping, const GesturePoint& start,
                const QString& text);
    /// The edit for a pointer that is \a frames and \a levels away from the start.
    virtual HRESULT Edit(INLEEditing& editing, int frames, int levels) = 0;

    Snapping& m_snapping;

private:
    struct Distance
    {
        int frames = 0;
        int levels = 0;
        bool operator==(const Distance& other) const
        {
            return frames == other.frames && levels == other.levels;
        }
    };

    Project& m_project;
    const GesturePoint m_start;
    Distance m_asked; ///< with the last movement
    Distance m_done;  ///< the last one that the engine has made
};

/// Moves clips in time and across levels, over what stands there.
class MoveGesture : public EditGesture
{
public:
    /// \a grabbed is one of \a clips, whose rows are \a rows.
    MoveGesture(Project& project, Snapping& snapping, const GesturePoint& start,
                const ClipRow& grabbed, const ClipSet& clips, const QVector<const ClipRow*>& rows);

protected:
    HRESULT Edit(INLEEditing& editing, int frames, int levels) override;

private:
    const ClipSet m_clips;
    const NLEComPtr<INLETimeline> m_grabbed;
    const int m_begin;
    const int m_end;
    const int m_level;
    int m_firstBegin;  ///< of all that move
    int m_lowestLevel; ///< of all that move
};

/// Moves an edge: trim, ripple trim, roll.
class EdgeGesture : public EditGesture
{
public:
    /// \a tool is Select, Ripple or Roll; \a edge an NLEClipEdge.
    EdgeGesture(Project& project, Snapping& snapping, const GesturePoint& start, const ClipRow& row,
                int edge, TimelineTool tool);

protected:
    HRESULT Edit(INLEEditing& editing, int frames, int levels) override;

private:
    const TimelineTool m_tool;
    const NLEComPtr<INLETimeline> m_clip;
    const int m_edge;
    const int m_frame;
};

/// Slip and slide.
class ShiftGesture : public EditGesture
{
public:
    /// \a tool is Slip or Slide.
    ShiftGesture(Project& project, Snapping& snapping, const GesturePoint& start,
                 const ClipRow& row, TimelineTool tool);

protected:
    HRESULT Edit(INLEEditing& editing, int frames, int levels) override;

private:
    const TimelineTool m_tool;
    const NLEComPtr<INLETimeline> m_clip;
    const int m_begin;
    const int m_end;
};
