// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/EditGesture.h"

#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Timeline/ToolEdits.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

EditGesture::EditGesture(Project& project, Snapping& snapping, const GesturePoint& start,
                         const QString& text)
    : m_snapping(snapping), m_project(project), m_start(start)
{
    m_project.BeginDrag(text);
}

void EditGesture::Move(const GesturePoint& point)
{
    const Distance distance = {static_cast<int>(std::lround(point.frame - m_start.frame)),
                               point.level - m_start.level};
    if (distance == m_asked)
        return;
    m_asked = distance;
    const auto call = [this](const Distance& way) -> Project::EditCall {
        if (way == Distance())
            return [this](INLEEditing& /*editing*/) {
                m_snapping.ClearLine();
                return S_OK; // as it was
            };
        return [this, way](INLEEditing& editing) { return Edit(editing, way.frames, way.levels); };
    };
    if (m_project.Drag(call(distance), call(m_done)))
        m_done = distance;
}

void EditGesture::End()
{
    m_snapping.ClearLine();
    m_project.EndDrag();
}

void EditGesture::Cancel()
{
    m_snapping.ClearLine();
    m_project.CancelDrag();
}

MoveGesture::MoveGesture(Project& project, Snapping& snapping, const GesturePoint& start,
                         const ClipRow& grabbed, const ClipSet& clips,
                         const QVector<const ClipRow*>& rows)
    : EditGesture(project, snapping, start, QCoreApplication::translate("Timeline", "Move"))
    , m_clips(clips)
    , m_grabbed(grabbed.node)
    , m_begin(grabbed.begin)
    , m_end(grabbed.end)
    , m_level(grabbed.level)
    , m_firstBegin(grabbed.begin)
    , m_lowestLevel(grabbed.level)
{
    for (const ClipRow* row : rows) {
        m_firstBegin = std::min(m_firstBegin, row->begin);
        m_lowestLevel = std::min(m_lowestLevel, row->level);
    }
}

HRESULT MoveGesture::Edit(INLEEditing& editing, int frames, int levels)
{
    return ClipSets::Together(editing, m_clips, [&] {
        int by = frames + m_snapping.Correction(editing, {m_begin + frames, m_end + frames},
                                                m_grabbed.get());
        by = std::max(by, -m_firstBegin);
        const HRESULT result =
            editing.Move(m_grabbed.get(), m_begin + by, m_level + std::max(levels, -m_lowestLevel),
                         NLEEdit_Overwrite | NLEEdit_Clamp);
        m_snapping.CheckLine(*m_grabbed);
        return result;
    });
}

EdgeGesture::EdgeGesture(Project& project, Snapping& snapping, const GesturePoint& start,
                         const ClipRow& row, int edge, TimelineTool tool)
    : EditGesture(project, snapping, start, ToolEdits::EdgeText(tool))
    , m_tool(tool)
    , m_clip(row.node)
    , m_edge(edge)
    , m_frame(edge == NLEEdge_Begin ? row.begin : row.end)
{
}

HRESULT EdgeGesture::Edit(INLEEditing& editing, int frames, int /*levels*/)
{
    const int frame = m_frame + frames;
    const int snapped = frame + m_snapping.Correction(editing, {frame}, m_clip.get());
    const HRESULT result = ToolEdits::MoveEdge(m_tool, editing, m_clip.get(), m_edge, snapped);
    m_snapping.CheckLine(*m_clip);
    return result;
}

ShiftGesture::ShiftGesture(Project& project, Snapping& snapping, const GesturePoint& start,
                           const ClipRow& row, TimelineTool tool)
    : EditGesture(project, snapping, start, ToolEdits::ShiftText(tool))
    , m_tool(tool)
    , m_clip(row.node)
    , m_begin(row.begin)
    , m_end(row.end)
{
}

HRESULT ShiftGesture::Edit(INLEEditing& editing, int frames, int /*levels*/)
{
    if (m_tool == TimelineTool::Slide)
        frames += m_snapping.Correction(editing, {m_begin + frames, m_end + frames}, m_clip.get());
    const HRESULT result = ToolEdits::Shift(m_tool, editing, m_clip.get(), frames);
    m_snapping.CheckLine(*m_clip);
    return result;
}
