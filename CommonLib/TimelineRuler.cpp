// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/TimelineRuler.h"

#include "CommonLib/NumberConversion_p.h"
#include "CommonLib/ruler/TimelineViewRuler_p.h"

#include <QPointer>
#include <QStyle>
#include <QVBoxLayout>

#include <climits>
#include <cmath>
#include <utility>

TimelineRuler::TimelineRuler(QWidget* parent) : QWidget(parent), m_view(new TimelineViewRuler(this))
{
    QWidget::setObjectName(QStringLiteral("CommonLib_TimelineRuler"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view);
    setFocusProxy(m_view);
    SetPointerShape(RulerPointerShape());

    using View = TimelineViewRuler;
    using Ruler = TimelineRuler;
    connect(m_view, &View::sigSingleClickStartFramesChanged, this,
            &Ruler::sigSingleClickStartFramesChanged);
    connect(m_view, &View::sigSingleClickEndFrameChanged, this,
            &Ruler::sigSingleClickEndFrameChanged);
    connect(m_view, &View::StartFramesChanged, this, &Ruler::StartFramesChanged);
    connect(m_view, &View::EndFramesChanged, this, &Ruler::EndFramesChanged);
    connect(m_view, &View::FramesChanged, this, &Ruler::FramesChanged);
    connect(m_view, &View::StartZoomChanged, this, &Ruler::StartZoomChanged);
    connect(m_view, &View::EndZoomChanged, this, &Ruler::EndZoomChanged);
    connect(m_view, &View::ZoomChanged, this, &Ruler::ZoomChanged);
    connect(m_view, &View::OffsetFramesChanged, this, &Ruler::OffsetFramesChanged);
    connect(m_view, &View::sigRightClicked, this, &Ruler::sigRightClicked);
    connect(m_view, &View::CurrentFramesShown, this, &Ruler::CurrentFramesShown);
    connect(m_view, &View::ZoomShown, this, &Ruler::ZoomShown);
    connect(m_view, &View::OffsetShown, this, &Ruler::OffsetShown);
    connect(m_view, &View::ColorsChanged, this, &Ruler::SettingsChanged);
}

TimelineRuler::~TimelineRuler() = default;

void TimelineRuler::setObjectName(const QString& name)
{
    QWidget::setObjectName(name);
    style()->unpolish(this);
    style()->polish(this);
}

// Conversions -------------------------------------------------------------------------------------

float TimelineRuler::Frames2PositionF(int frames) const
{
    return static_cast<float>(m_view->Segment().FramesToPosition(frames));
}

float TimelineRuler::Position2FramesF(int x) const
{
    return static_cast<float>(m_view->Segment().PositionToFrames(x));
}

float TimelineRuler::Frames2DurationF(int frames) const
{
    return static_cast<float>(m_view->Segment().FramesToPixels(frames));
}

float TimelineRuler::Duration2FramesF(int pixels) const
{
    return static_cast<float>(m_view->Segment().PixelsToFrames(pixels));
}

// Zoom --------------------------------------------------------------------------------------------

void TimelineRuler::SetZoom(float zoom)
{
    m_view->ChangeConvertor([zoom](RulerConvertor& convertor) { convertor.SetZoom(zoom); });
}

float TimelineRuler::Zoom() const
{
    return m_view->Convertor().Zoom();
}

void TimelineRuler::SetMaxZoom(float zoom)
{
    const float before = MaxZoom();
    m_view->ChangeConvertor([zoom](RulerConvertor& convertor) { convertor.SetMaxZoom(zoom); });
    if (MaxZoom() != before)
        Q_EMIT SettingsChanged();
}

float TimelineRuler::MaxZoom() const
{
    return m_view->Convertor().MaxZoom();
}

float TimelineRuler::FindZoom(int frames, int width) const
{
    return m_view->Convertor().FindZoom(frames, width);
}

int TimelineRuler::ZoomFromWidthAndTotaleFramesF(int width, int frames)
{
    int zoom = 0;
    m_view->ChangeConvertor([&](RulerConvertor& convertor) {
        zoom = convertor.ZoomFromWidthAndTotaleFrames(width, frames);
    });
    return zoom;
}

void TimelineRuler::StartZoomAndScrollRuler()
{
    m_view->StartZoomAndScroll();
}

int TimelineRuler::GetZoomAndScrollRulerOffsetPosition() const
{
    const double pixels = -m_view->Segment().FramesToPosition(0);
    return Truncated<int>(std::round(pixels)).value_or(pixels < 0 ? INT_MIN : INT_MAX);
}

void TimelineRuler::RebuildRulerConvertor(const QList<std::tuple<float, int, int>>& table)
{
    const float maxBefore = MaxZoom();
    const QPointer<TimelineRuler> self(this);
    m_view->ChangeConvertor([&table](RulerConvertor& convertor) { convertor.Rebuild(table); });
    if (self && MaxZoom() != maxBefore)
        Q_EMIT SettingsChanged();
}

// Frames ------------------------------------------------------------------------------------------

void TimelineRuler::SetCurrentFrames(int frames)
{
    m_view->SetCurrentFrame(frames);
}

int TimelineRuler::CurrentFrames() const
{
    return m_view->Segment().currentFrame;
}

void TimelineRuler::SetOffsetFrames(int frames)
{
    m_view->SetOffsetFrames(frames);
}

int TimelineRuler::OffsetPosition() const
{
    return m_view->Segment().offsetPosition;
}

int TimelineRuler::OffsetFrames() const
{
    return m_view->Segment().offsetFrames;
}

void TimelineRuler::SetOffsetPosition(int pixels)
{
    m_view->SetOffsetPosition(pixels);
}

void TimelineRuler::SetTotalFrames(int frames)
{
    ChangeRange(m_view->behaviour.totalFrames, frames);
}

template <typename Value>
void TimelineRuler::ChangeRange(Value& bound, const Value& to)
{
    const QPointer<TimelineRuler> self(this);
    if (std::exchange(bound, to) != to)
        Q_EMIT RangeChanged();
    // Where the range is limited, the play head stays within it.
    if (self)
        m_view->SetCurrentFrame(CurrentFrames());
}

template <typename Value>
void TimelineRuler::ChangeSetting(Value& setting, const Value& to)
{
    if (std::exchange(setting, to) != to)
        Q_EMIT SettingsChanged();
}

int TimelineRuler::TotaleFrames() const
{
    return m_view->behaviour.totalFrames;
}

int TimelineRuler::AvailableTotaleFrames() const
{
    return m_view->AvailableFrames();
}

void TimelineRuler::SetFrameRange(int in, int out)
{
    // Both before anything is told.
    const std::pair<int, int> range(in, out);
    std::pair<int, int> held(RangeIn(), RangeOut());
    m_view->behaviour.rangeIn = in;
    m_view->behaviour.rangeOut = out;
    ChangeRange(held, range);
}

int TimelineRuler::RangeIn() const
{
    return m_view->behaviour.rangeIn;
}

int TimelineRuler::RangeOut() const
{
    return m_view->behaviour.rangeOut;
}

void TimelineRuler::SetRangeIn(int in)
{
    ChangeRange(m_view->behaviour.rangeIn, in);
}

void TimelineRuler::SetRangeOut(int out)
{
    ChangeRange(m_view->behaviour.rangeOut, out);
}

void TimelineRuler::SetIsLimitFrameRange(bool limited)
{
    ChangeRange(m_view->behaviour.limitRange, limited);
}

bool TimelineRuler::IsRangeLimited() const
{
    return m_view->behaviour.limitRange;
}

void TimelineRuler::SetFPS(float fps)
{
    const bool isOther = fps != FPS();
    m_view->ChangeConvertor([fps](RulerConvertor& convertor) {
        convertor.Current().fps = fps;
        convertor.UpdateLabelInterval();
    });
    if (isOther)
        Q_EMIT SettingsChanged();
}

float TimelineRuler::FPS() const
{
    return m_view->Segment().fps;
}

void TimelineRuler::SetFramesRound(bool round)
{
    ChangeSetting(m_view->behaviour.roundFrames, round);
}

bool TimelineRuler::GetFramesRound() const
{
    return m_view->behaviour.roundFrames;
}

// Look --------------------------------------------------------------------------------------------

void TimelineRuler::SetPointerShape(const RulerPointerShape& shape)
{
    m_view->ChangeSegments([&shape](RulerSegment& segment) {
        segment.pointer = shape.polygon;
        segment.pointerHeight = shape.height;
        segment.pointerWidth = shape.width;
        segment.cursorLineWidth = shape.cursorLineWidth;
        segment.drawTimeText = shape.drawTimeText;
    });
}

void TimelineRuler::SetPointerBGColor(const QColor& color)
{
    m_view->SetColor(&RulerSegment::pointerColor, color);
}

QColor TimelineRuler::GetPointerBGColor() const
{
    return m_view->Segment().pointerColor;
}

void TimelineRuler::SetPointerBGDisabledColor(const QColor& color)
{
    m_view->SetColor(&RulerSegment::disabledPointerColor, color);
}

QColor TimelineRuler::GetPointerBGDisabledColor() const
{
    return m_view->Segment().disabledPointerColor;
}

void TimelineRuler::SetFrameTextColor(const QColor& color)
{
    m_view->SetColor(&RulerSegment::frameTextColor, color);
}

QColor TimelineRuler::GetFrameTextColor() const
{
    return m_view->Segment().frameTextColor;
}

void TimelineRuler::SetScaleColor(const QColor& color)
{
    m_view->SetColor(&RulerSegment::scaleColor, color);
}

QColor TimelineRuler::GetScaleColor() const
{
    return m_view->Segment().scaleColor;
}

void TimelineRuler::SetDrawColor(QColor color)
{
    m_view->ChangeSegments([&color](RulerSegment& segment) { segment.drawColor = color; });
}

void TimelineRuler::SetDrawBottonLine(bool draw)
{
    const bool isOther = draw != HasBottomLine();
    m_view->ChangeSegments([draw](RulerSegment& segment) { segment.drawBottomLine = draw; });
    if (isOther)
        Q_EMIT SettingsChanged();
}

bool TimelineRuler::HasBottomLine() const
{
    return m_view->Segment().drawBottomLine;
}

void TimelineRuler::SetCursorEnable(bool enabled)
{
    const bool isOther = enabled != IsCursorEnabled();
    m_view->ChangeSegments([enabled](RulerSegment& segment) { segment.drawCursorLine = enabled; });
    if (isOther)
        Q_EMIT SettingsChanged();
}

bool TimelineRuler::IsCursorEnabled() const
{
    return m_view->Segment().drawCursorLine;
}

int TimelineRuler::Height() const
{
    return TimelineViewRuler::kHeight;
}

// Behaviour ---------------------------------------------------------------------------------------

void TimelineRuler::SetDragable(bool enabled)
{
    ChangeSetting(m_view->behaviour.dragable, enabled);
}

bool TimelineRuler::IsDragable() const
{
    return m_view->behaviour.dragable;
}

void TimelineRuler::SetMoveFrameEnabled(bool enabled)
{
    ChangeSetting(m_view->behaviour.moveFrame, enabled);
}

bool TimelineRuler::MovesFrame() const
{
    return m_view->behaviour.moveFrame;
}

void TimelineRuler::SetMousePressEmitFramesChangedEnabled(bool enabled)
{
    ChangeSetting(m_view->behaviour.pressEmitsFrames, enabled);
}

bool TimelineRuler::PressEmitsFrames() const
{
    return m_view->behaviour.pressEmitsFrames;
}

void TimelineRuler::SetMouseReleaseEmitFramesChangedEnabled(bool enabled)
{
    ChangeSetting(m_view->behaviour.releaseEmitsFrames, enabled);
}

bool TimelineRuler::ReleaseEmitsFrames() const
{
    return m_view->behaviour.releaseEmitsFrames;
}

void TimelineRuler::SetSingalClickStartEndFrameChangeEnabled(bool enabled)
{
    ChangeSetting(m_view->behaviour.singleClickEmits, enabled);
}

bool TimelineRuler::SingleClickEmits() const
{
    return m_view->behaviour.singleClickEmits;
}

QWidget* TimelineRuler::SetEventFilter(QWidget* filter)
{
    if (filter)
        m_view->installEventFilter(filter);
    return m_view;
}

void TimelineRuler::doMouseButtonRelease()
{
    m_view->EndDrag();
}
