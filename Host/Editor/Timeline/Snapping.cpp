// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/Snapping.h"

#include "EngineApi/INLETimeline.h"

#include <cstdlib>

std::optional<int> Snapping::Nearest(INLEEditing& editing, int frame, INLETimeline* moving) const
{
    std::optional<int> nearest;
    if (std::abs(m_playHead - frame) <= m_reach)
        nearest = m_playHead;
    int point = 0;
    if (editing.Snap(frame, m_reach, moving, &point) == S_OK &&
        (!nearest || std::abs(point - frame) < std::abs(*nearest - frame)))
        nearest = point;
    return nearest;
}

void Snapping::CheckLine(INLETimeline& clip)
{
    int begin = 0;
    NLERange range{0, -1};
    clip.GetPosition(&begin);
    clip.GetRange(&range);
    if (m_line != begin && m_line != begin + static_cast<int>(NLERangeLength(range)))
        ClearLine();
}

int Snapping::Correction(INLEEditing& editing, std::initializer_list<int> edges,
                         INLETimeline* moving)
{
    m_line.reset();
    int correction = 0;
    for (const int edge : edges) {
        const auto point = m_isOn ? Nearest(editing, edge, moving) : std::nullopt;
        if (!point || (m_line && std::abs(*point - edge) >= std::abs(correction)))
            continue;
        m_line = point;
        correction = *point - edge;
    }
    return correction;
}
