// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/IDragValueChangedHelper.h"

#include "CommonLib/DragValueChangedHelper_p.h"

#include <QWidget>

#include <utility>

IDragValueChangedHelper::IDragValueChangedHelper(QWidget* widget)
    : QObject(widget), m_helper(new DragValueChangedHelper(widget))
{
    connect(m_helper, &DragValueChangedHelper::sigValueChanged, this,
            &IDragValueChangedHelper::sigValueChanged);
    connect(m_helper, &DragValueChangedHelper::sigStartValueChanged, this,
            &IDragValueChangedHelper::sigStartValueChanged);
    connect(m_helper, &DragValueChangedHelper::sigEndValueChanged, this,
            &IDragValueChangedHelper::sigEndValueChanged);
}

IDragValueChangedHelper::~IDragValueChangedHelper()
{
    if (!m_helper)
        return;
    // The end of a drag is not for those that are being destroyed with this: this itself, and each
    // owner that has already forgotten the child that it deletes.
    disconnect(this, &IDragValueChangedHelper::sigEndValueChanged, this, nullptr);
    QObject* child = this;
    for (QObject* owner = parent(); owner; child = std::exchange(owner, owner->parent())) {
        if (!owner->children().contains(child))
            disconnect(this, &IDragValueChangedHelper::sigEndValueChanged, owner, nullptr);
    }
    m_helper->SetDragEnabled(false);
    delete m_helper;
}

void IDragValueChangedHelper::SetDragEnabled(bool enable)
{
    m_helper->SetDragEnabled(enable);
}

bool IDragValueChangedHelper::GetDragEnabled() const
{
    return m_helper->m_intercept;
}

void IDragValueChangedHelper::SetFastDistance(int pixels)
{
    m_helper->m_fastDistance = pixels;
}

int IDragValueChangedHelper::GetFastDistance() const
{
    return m_helper->m_fastDistance;
}

void IDragValueChangedHelper::SetSlowDistance(int pixels)
{
    m_helper->m_slowDistance = pixels;
}

int IDragValueChangedHelper::GetSlowDistance() const
{
    return m_helper->m_slowDistance;
}

void IDragValueChangedHelper::SetStepDistance(int pixels)
{
    m_helper->m_stepDistance = pixels;
}

int IDragValueChangedHelper::GetStepDistance() const
{
    return m_helper->m_stepDistance;
}

void IDragValueChangedHelper::SetFastStep(double step)
{
    m_helper->m_fastStep = step;
}

double IDragValueChangedHelper::GetFastStep() const
{
    return m_helper->m_fastStep;
}

void IDragValueChangedHelper::SetSlowStep(double step)
{
    m_helper->m_slowStep = step;
}

double IDragValueChangedHelper::GetSlowStep() const
{
    return m_helper->m_slowStep;
}

void IDragValueChangedHelper::SetStep(double step)
{
    m_helper->m_step = step;
}

double IDragValueChangedHelper::GetStep() const
{
    return m_helper->m_step;
}

void IDragValueChangedHelper::SetValue(double value)
{
    m_helper->m_value = value;
}

double IDragValueChangedHelper::GetValue() const
{
    return m_helper->m_value;
}

void IDragValueChangedHelper::SetRange(double min, double max)
{
    m_helper->m_min = min;
    m_helper->m_max = max;
}

void IDragValueChangedHelper::GetRange(double& min, double& max) const
{
    min = m_helper->m_min;
    max = m_helper->m_max;
}

void IDragValueChangedHelper::SetMinValue(double min)
{
    m_helper->m_min = min;
}

void IDragValueChangedHelper::SetLoop(bool loop)
{
    m_helper->m_loop = loop;
}

bool IDragValueChangedHelper::GetLoop() const
{
    return m_helper->m_loop;
}

void IDragValueChangedHelper::SetHoverCursor(QCursor cursor)
{
    m_helper->m_hoverCursor = std::move(cursor);
}

QCursor IDragValueChangedHelper::GetHoverCursor() const
{
    return m_helper->m_hoverCursor;
}

void IDragValueChangedHelper::SetInteractiveRectangle(QRect rectangle)
{
    m_helper->m_interactiveRect = rectangle;
}

QRect IDragValueChangedHelper::GetInteractiveRectangle() const
{
    return m_helper->m_interactiveRect;
}
