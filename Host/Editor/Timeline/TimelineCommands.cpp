// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/TimelineCommands.h"

#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Timeline/TimelineModel.h"
#include "Host/Editor/Timeline/ToolEdits.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>

namespace {

/// What switching one of NLELevelFlags on or off is called, as the actions are.
QString TitleOfFlag(int flag)
{
    const char* title = "Level solo or not";
    if (flag != NLELevel_Solo)
        title = flag == NLELevel_Hidden ? "Hide or show level" : "Mute or unmute level";
    return QCoreApplication::translate("Timeline", title);
}

} // namespace

TimelineCommands::TimelineCommands(Project& project, Selection& selection, TimelineModel& model,
                                   QObject* parent)
    : QObject(parent), m_project(project), m_selection(selection), m_model(model)
{
    // Copies count at the rate of the project that they come from.
    connect(&project, &Project::Replaced, this, [this] {
        m_board.reset();
        Q_EMIT Copied();
    });
}

ClipSet TimelineCommands::SelectedClips() const
{
    ClipSet clips;
    for (const auto& clip : m_selection.Clips()) {
        const ClipRow* row = m_model.Find(clip.get());
        if (row && !row->IsTransition())
            clips << clip;
    }
    return clips;
}

ClipSet TimelineCommands::ClipsAtPlayHead() const
{
    ClipSet clips;
    for (int level = 0; level < m_model.LevelCount(); ++level) {
        const ClipRow* row = m_model.Clips(level).At(m_playHead);
        if (row && !m_model.IsLocked(level))
            clips << row->node;
    }
    return clips;
}

void TimelineCommands::Split()
{
    const ClipSet selected = SelectedClips();
    const ClipSet clips = selected.isEmpty() ? ClipsAtPlayHead() : selected;
    m_project.Edit(tr("Split"), [&](INLEEditing& editing) {
        HRESULT result = S_FALSE;
        for (const auto& clip : clips) {
            const HRESULT split = editing.Split(clip.get(), m_playHead, 0);
            if (FAILED(split))
                return split;
            result = split == S_OK ? S_OK : result;
        }
        return result;
    });
}

void TimelineCommands::RemoveSelected(const QString& text,
                                      HRESULT (INLEEditing::*remove)(INLETimeline*, int))
{
    const ClipSet clips = m_selection.Clips();
    m_project.Edit(text, [&](INLEEditing& editing) {
        HRESULT result = S_FALSE;
        for (const auto& clip : clips) {
            if (!ClipSets::IsHeld(*clip))
                continue; // went with another one
            result = (editing.*remove)(clip.get(), 0);
            if (FAILED(result))
                return result;
        }
        return result;
    });
}

void TimelineCommands::Delete()
{
    RemoveSelected(tr("Delete"), &INLEEditing::Delete);
}

void TimelineCommands::RippleDelete()
{
    RemoveSelected(tr("Ripple delete"), &INLEEditing::RippleDelete);
}

void TimelineCommands::Cut()
{
    Copy();
    RemoveSelected(tr("Cut"), &INLEEditing::Delete);
}

void TimelineCommands::Copy()
{
    const ClipSet clips = SelectedClips();
    NLEComPtr<INLETimeline> board;
    if (clips.isEmpty() || FAILED(m_project.Editing().Copy(ClipSets::Pointers(clips).constData(),
                                                           clips.size(), board.put())))
        return;
    m_board = board;
    m_boardLevel = m_model.Find(clips.front().get())->level;
    for (const auto& clip : clips)
        m_boardLevel = std::min(m_boardLevel, m_model.Find(clip.get())->level);
    Q_EMIT Copied();
}

void TimelineCommands::PasteAs(const QString& text, int flags)
{
    if (m_board)
        m_project.Edit(text, [&](INLEEditing& editing) {
            return editing.Paste(m_board.get(), m_playHead, m_boardLevel, flags);
        });
}

void TimelineCommands::Paste()
{
    PasteAs(tr("Paste"), NLEEdit_Overwrite);
}

void TimelineCommands::PasteInsert()
{
    PasteAs(tr("Paste insert"), NLEEdit_Insert);
}

void TimelineCommands::Group()
{
    const ClipSet clips = SelectedClips();
    if (clips.size() > 1)
        m_project.Edit(tr("Group"), [&](INLEEditing& editing) {
            return editing.Group(ClipSets::Pointers(clips).constData(), clips.size());
        });
}

void TimelineCommands::Ungroup()
{
    const ClipSet clips = SelectedClips();
    m_project.Edit(tr("Ungroup"), [&](INLEEditing& editing) {
        // Clips that were in one group are parted by the first of them.
        ClipSet parted;
        for (const auto& clip : clips) {
            if (parted.contains(clip))
                continue;
            parted += ClipSets::GroupOf(editing, clip.get());
            const HRESULT result = editing.Ungroup(clip.get());
            if (FAILED(result))
                return result;
        }
        return S_OK;
    });
}

void TimelineCommands::CloseGap()
{
    m_project.Edit(tr("Close gap"), [&](INLEEditing& editing) {
        return editing.CloseGap(m_playHead, NLEEdit_AllLevels);
    });
}

void TimelineCommands::TrimTo(int edge)
{
    const NLEComPtr<INLETimeline> clip = m_selection.Current();
    if (!clip)
        return;
    m_project.Edit(ToolEdits::EdgeText(m_tool), [&](INLEEditing& editing) {
        return ToolEdits::MoveEdge(m_tool, editing, clip.get(), edge, m_playHead);
    });
}

void TimelineCommands::MoveBy(int frames, int levels)
{
    const ClipSet clips = SelectedClips();
    if (clips.isEmpty())
        return;
    const ClipRow& row = *m_model.Find(clips.back().get());
    const int position = row.begin + frames;
    const int level = row.level + levels;
    m_project.Edit(tr("Move"), [&](INLEEditing& editing) {
        return ClipSets::Together(editing, clips, [&] {
            return editing.Move(clips.back().get(), position, level,
                                NLEEdit_Overwrite | NLEEdit_Clamp);
        });
    });
}

void TimelineCommands::Nudge(int frames)
{
    const NLEComPtr<INLETimeline> clip = m_selection.Current();
    const ClipRow* row = m_model.Find(clip.get());
    if (!row)
        return;
    if (m_tool == TimelineTool::Slip || m_tool == TimelineTool::Slide) {
        m_project.Edit(ToolEdits::ShiftText(m_tool), [&](INLEEditing& editing) {
            return ToolEdits::Shift(m_tool, editing, clip.get(), frames);
        });
    } else if (m_tool == TimelineTool::Ripple || m_tool == TimelineTool::Roll) {
        const bool isBegin = std::abs(m_playHead - row->begin) < std::abs(m_playHead - row->end);
        const int frame = (isBegin ? row->begin : row->end) + frames;
        m_project.Edit(ToolEdits::EdgeText(m_tool), [&](INLEEditing& editing) {
            return ToolEdits::MoveEdge(m_tool, editing, clip.get(),
                                       isBegin ? NLEEdge_Begin : NLEEdge_End, frame);
        });
    } else {
        MoveBy(frames, 0);
    }
}

void TimelineCommands::NudgeLevel(int levels)
{
    MoveBy(0, levels);
}

void TimelineCommands::SelectAll()
{
    ClipSet clips;
    for (int level = 0; level < m_model.LevelCount(); ++level) {
        for (const LevelIndex::Entry& entry : m_model.Clips(level).All())
            clips << entry.row->node;
    }
    m_selection.Set(clips);
}

void TimelineCommands::SelectAtPlayHead()
{
    const ClipSet clips = ClipsAtPlayHead();
    // From the topmost one down with each call.
    for (int index = clips.size() - 1; index >= 0; --index) {
        if (clips[index] != m_selection.Current())
            continue;
        const int next = index > 0 ? index - 1 : clips.size() - 1;
        m_selection.Set(ClipSets::GroupOf(m_project.Editing(), clips[next].get()));
        return;
    }
    if (!clips.isEmpty())
        m_selection.Set(ClipSets::GroupOf(m_project.Editing(), clips.back().get()));
}

void TimelineCommands::Deselect()
{
    m_selection.Clear();
}

void TimelineCommands::ToggleLock()
{
    if (const ClipRow* row = m_model.Find(m_selection.Current().get()))
        SetLocked(row->level, !m_model.IsLocked(row->level));
}

void TimelineCommands::SetLocked(int level, bool locked)
{
    m_project.Edit(locked ? tr("Lock level") : tr("Unlock level"),
                   [=](INLEEditing& editing) { return editing.SetLevelLocked(level, locked); });
}

void TimelineCommands::ToggleFlag(int flag)
{
    if (const ClipRow* row = m_model.Find(m_selection.Current().get()))
        SetFlag(row->level, flag, (m_model.StateOf(row->level).flags & flag) == 0);
}

void TimelineCommands::SetFlag(int level, int flag, bool on)
{
    const int flags = m_model.StateOf(level).flags;
    m_project.Edit(TitleOfFlag(flag), [&](INLEEditing& /*editing*/) {
        return m_project.Levels()->SetFlags(level, on ? flags | flag : flags & ~flag);
    });
}

void TimelineCommands::SetName(int level, const QString& name)
{
    m_project.Edit(tr("Rename level"), [&](INLEEditing& /*editing*/) {
        return m_project.Levels()->SetName(level, name.toStdWString().c_str());
    });
}

void TimelineCommands::GoToCut(int step)
{
    if (const int cut = m_model.NextCut(m_playHead, step); cut != m_playHead)
        Q_EMIT PlayHeadAsked(cut);
}
