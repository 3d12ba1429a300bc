// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/ToolEdits.h"

#include <QCoreApplication>

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("Timeline", text);
}

} // namespace

HRESULT ToolEdits::MoveEdge(TimelineTool tool, INLEEditing& editing, INLETimeline* clip, int edge,
                            int frame)
{
    if (tool == TimelineTool::Ripple)
        return editing.RippleTrim(clip, edge, frame, NLEEdit_Clamp);
    if (tool == TimelineTool::Roll)
        return editing.Roll(clip, edge, frame, NLEEdit_Clamp);
    return editing.Trim(clip, edge, frame, NLEEdit_Clamp);
}

QString ToolEdits::EdgeText(TimelineTool tool)
{
    if (tool == TimelineTool::Ripple)
        return Translated(QT_TRANSLATE_NOOP("Timeline", "Ripple trim"));
    if (tool == TimelineTool::Roll)
        return Translated(QT_TRANSLATE_NOOP("Timeline", "Roll"));
    return Translated(QT_TRANSLATE_NOOP("Timeline", "Trim"));
}

HRESULT ToolEdits::Shift(TimelineTool tool, INLEEditing& editing, INLETimeline* clip, int frames)
{
    if (tool == TimelineTool::Slip)
        return editing.Slip(clip, -frames, NLEEdit_Clamp);
    return editing.Slide(clip, frames, NLEEdit_Clamp);
}

QString ToolEdits::ShiftText(TimelineTool tool)
{
    return tool == TimelineTool::Slip ? Translated(QT_TRANSLATE_NOOP("Timeline", "Slip"))
                                      : Translated(QT_TRANSLATE_NOOP("Timeline", "Slide"));
}
