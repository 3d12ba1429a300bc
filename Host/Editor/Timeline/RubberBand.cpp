// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/RubberBand.h"

#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Timeline/TimelineModel.h"

#include <algorithm>
#include <utility>

RubberBand::RubberBand(Selection& selection, const TimelineModel& model, const GesturePoint& start,
                       bool isAdding, ToX toX)
    : m_selection(selection)
    , m_model(model)
    , m_start(start)
    , m_end(start)
    , m_toX(std::move(toX))
    , m_before(selection.Clips())
    , m_kept(isAdding ? m_before : ClipSet())
{
}

void RubberBand::Move(const GesturePoint& point)
{
    m_end = point;
    const auto [first, last] = std::minmax(m_start.frame, point.frame);
    const auto [lowest, highest] = std::minmax(m_start.level, point.level);
    ClipSet clips = m_kept;
    for (int level = lowest; level <= highest; ++level) {
        const LevelIndex& index = m_model.Clips(level);
        for (auto entry = index.FirstAfter(first);
             entry != index.All().end() && entry->begin <= last; ++entry) {
            if (entry->end > first && !m_kept.contains(entry->row->node))
                clips << entry->row->node;
        }
    }
    m_selection.Set(clips);
}

void RubberBand::Cancel()
{
    m_selection.Set(m_before);
}

QRect RubberBand::Band() const
{
    return QRect(QPoint(m_toX(m_start.frame), m_start.at.y()),
                 QPoint(m_toX(m_end.frame), m_end.at.y()))
        .normalized();
}
