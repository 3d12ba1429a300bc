// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ruler/RulerDragAdjustManager_p.h"

#include <QApplication>

namespace {

// A whole scale takes a few hundred pixels.
constexpr float kZoomPerPixel = 2;

} // namespace

void RulerDragAdjustManager::BeginPlayHead(const QPoint& at)
{
    m_drag = Drag::PlayHead;
    m_moved = false;
    m_start = at;
}

void RulerDragAdjustManager::BeginZoomAndScroll(float zoom)
{
    m_drag = Drag::ZoomAndScroll;
    m_moved = false;
    m_grabbed = false;
    m_zoom = zoom;
}

void RulerDragAdjustManager::Grab(const QPoint& at, double frame)
{
    m_grabbed = true;
    m_start = at;
    m_frame = frame;
}

bool RulerDragAdjustManager::Move(const QPoint& to)
{
    m_moved = m_moved || to != m_start;
    return m_moved;
}

bool RulerDragAdjustManager::IsBeyondClick(const QPoint& at) const
{
    return (at - m_start).manhattanLength() >= QApplication::startDragDistance();
}

float RulerDragAdjustManager::ZoomAt(const QPoint& at) const
{
    return m_zoom - kZoomPerPixel * static_cast<float>(at.y() - m_start.y());
}
