// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Timeline/ClipSet.h"
#include "Host/Editor/Timeline/TimelineTool.h"

#include <QObject>

class Project;
class Selection;
class TimelineModel;

/// What keys and menus do to the clips of the project, most of it to those that are selected.
class TimelineCommands : public QObject
{
    Q_OBJECT

public:
    /// All outlive the commands.
    TimelineCommands(Project& project, Selection& selection, TimelineModel& model,
                     QObject* parent = nullptr);

    void SetPlayHead(int frame) { m_playHead = frame; }
    void SetTool(TimelineTool tool) { m_tool = tool; }
    bool CanPaste() const { return bool(m_board); }

    /// Cuts the selected clips at the play head; with none there, those of all levels that are not
    /// locked.
    void Split();
    void Delete();
    void RippleDelete();
    void Cut();
    void Copy();
    /// At the play head, on the level that was copied from; what stands there is cut away.
    void Paste();
    /// As Paste(), but what follows makes way.
    void PasteInsert();
    void Group();
    void Ungroup();
    /// Closes the gap at the play head on all levels.
    void CloseGap();
    /// Moves an edge of the current clip to the play head, as the tool does.
    void TrimBegin() { TrimTo(NLEEdge_Begin); }
    void TrimEnd() { TrimTo(NLEEdge_End); }
    /// Moves what is selected by frames, as the tool does: the tools for edges move the edge of the
    /// current clip that is nearer to the play head.
    void Nudge(int frames);
    void NudgeLevel(int levels);
    void SelectAll();
    void SelectAtPlayHead();
    void Deselect();
    void ToggleLock();
    void SetLocked(int level, bool locked);
    /// Of the level of the current clip; \a flag is one of NLELevelFlags.
    void ToggleFlag(int flag);
    void SetFlag(int level, int flag, bool on);
    void SetName(int level, const QString& name);
    /// Begin or end of the next clip after the play head, or before it for a \a step of -1.
    void GoToCut(int step);

Q_SIGNALS:
    void PlayHeadAsked(int frame);
    /// There is something to paste now.
    void Copied();

private:
    ClipSet SelectedClips() const;
    ClipSet ClipsAtPlayHead() const;
    void RemoveSelected(const QString& text, HRESULT (INLEEditing::*remove)(INLETimeline*, int));
    void PasteAs(const QString& text, int flags);
    void TrimTo(int edge);
    void MoveBy(int frames, int levels);

    Project& m_project;
    Selection& m_selection;
    TimelineModel& m_model;
    TimelineTool m_tool = TimelineTool::Select;
    int m_playHead = 0;
    NLEComPtr<INLETimeline> m_board; ///< what was copied
    int m_boardLevel = 0;
};
