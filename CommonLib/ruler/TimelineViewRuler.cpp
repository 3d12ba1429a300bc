// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ruler/TimelineViewRuler_p.h"

#include "CommonLib/HoldWatch_p.h"
#include "CommonLib/PaletteLook_p.h"
#include "CommonLib/ScreenPixels_p.h"
#include "CommonLib/WheelTurn_p.h"
#include "CommonLib/WidgetAccessibility_p.h"
#include "CommonLib/ruler/RulerPainter_p.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr int kBottomMargin = 2;
constexpr float kZoomPerNotch = 10;
constexpr double kWidthsPerNotch = 0.1;
constexpr int kScrollInterval = 40;     // ms
constexpr int kFarthestOvershoot = 200; // pixels beyond which scrolling gets no faster
constexpr double kScrollPerOvershoot = 0.5;
// Conversions of whole frames come back a little below them.
constexpr double kFrameNoise = 1e-6;
// How much of the text's colour labels and ticks have.
constexpr double kLabelShade = 0.8;
constexpr double kTickShade = 0.5;
constexpr int kMostFrames = std::numeric_limits<int>::max();

int RoundedFps(float fps)
{
    return fps >= 1 && fps < 1e6F ? static_cast<int>(std::lround(fps)) : 1;
}

} // namespace

TimelineViewRuler::TimelineViewRuler(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("TimelineView_TimelineViewRuler"));
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::StrongFocus);
    setFixedHeight(kHeight);
    m_convertor.Rebuild(RulerConvertor::DefaultTable());
    m_convertor.SetMaxZoom(RulerConvertor::kDefaultMaxZoom);
    // A parent that is disabled has told so before this class could hear it.
    m_convertor.ForEach([this](RulerSegment& segment) { segment.enabled = isEnabled(); });
    FollowPalette();
}

// State and painting ------------------------------------------------------------------------------

bool TimelineViewRuler::SetCurrentFrame(int frame)
{
    if (behaviour.limitRange)
        frame = Bounded(frame);
    RulerSegment& segment = m_convertor.Current();
    if (frame == segment.currentFrame)
        return false;
    const QRect before = RulerPainter::PointerRect(segment, font());
    segment.currentFrame = frame;
    update(QRegion(before) + RulerPainter::PointerRect(segment, font()));
    NotifyAccessibleValue(this, frame);
    TellShown();
    return true;
}

bool TimelineViewRuler::TellShown()
{
    const RulerSegment& segment = Segment();
    const Shown now{segment.currentFrame, m_convertor.Zoom(), segment.offsetFrames,
                    segment.offsetPosition};
    const Shown before = std::exchange(m_shown, now);
    if (now.frame != before.frame && !Tell(&TimelineViewRuler::CurrentFramesShown, now.frame))
        return false;
    if (now.zoom != before.zoom && !Tell(&TimelineViewRuler::ZoomShown, now.zoom))
        return false;
    const bool isMoved =
        now.offsetFrames != before.offsetFrames || now.offsetPosition != before.offsetPosition;
    return !isMoved || Tell(&TimelineViewRuler::OffsetShown);
}

void TimelineViewRuler::SetOffsetFrames(int frames)
{
    if (frames == Segment().offsetFrames)
        return;
    m_convertor.Current().offsetFrames = frames;
    update();
    TellShown();
}

void TimelineViewRuler::SetOffsetPosition(int pixels)
{
    if (pixels == Segment().offsetPosition)
        return;
    m_convertor.Current().offsetPosition = pixels;
    update();
    TellShown();
}

void TimelineViewRuler::paintEvent(QPaintEvent* event)
{
    RulerSegment& segment = m_convertor.Current();
    segment.viewRect = rect().adjusted(0, 0, 0, -kBottomMargin);
    if (m_convertor.IsEmpty())
        return;
    QPainter painter(this);
    RulerPainter ruler(painter, segment);
    // One by one: where the play head was and where it is may lie far apart.
    for (const QRect& part : event->region()) {
        painter.setClipRect(part);
        ruler.Paint(part);
        if (m_keyboardFocus)
            PaintFrame(painter, rect(), palette().color(QPalette::Highlight));
    }
}

void TimelineViewRuler::SetColor(QColor RulerSegment::*role, const QColor& color)
{
    if (!HasFixed(role))
        m_fixedColors.push_back(role);
    const QColor before = Segment().*role;
    ChangeSegments([role, &color](RulerSegment& segment) { segment.*role = color; });
    if (color != before)
        Q_EMIT ColorsChanged();
}

bool TimelineViewRuler::HasFixed(QColor RulerSegment::*role) const
{
    return std::find(m_fixedColors.begin(), m_fixedColors.end(), role) != m_fixedColors.end();
}

// Where there is a sheet the presets stay, which it was written for.
bool TimelineViewRuler::FollowPalette()
{
    RulerSegment look;
    if (!PaletteLook::HasSheet(*this)) {
        const auto shade = [this](double part) {
            return PaletteLook::Mixed(palette(), QPalette::Window, QPalette::WindowText, part);
        };
        look.frameTextColor = shade(kLabelShade);
        look.scaleColor = shade(kTickShade);
        if (PaletteLook::IsDark(palette())) {
            look.pointerColor = palette().color(QPalette::Active, QPalette::WindowText);
            look.disabledPointerColor = palette().color(QPalette::Disabled, QPalette::WindowText);
        }
    }
    bool isOther = false;
    for (const auto role : {&RulerSegment::frameTextColor, &RulerSegment::scaleColor,
                            &RulerSegment::pointerColor, &RulerSegment::disabledPointerColor}) {
        if (HasFixed(role) || Segment().*role == look.*role)
            continue;
        ChangeSegments([&](RulerSegment& segment) { segment.*role = look.*role; });
        isOther = true;
    }
    return isOther;
}

bool TimelineViewRuler::event(QEvent* event)
{
    const bool isDone = QWidget::event(event);
    const bool concernsColors =
        event->type() == QEvent::Polish || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange;
    // Told later: a handler may delete the ruler, which the sender of the event still needs.
    if (concernsColors && FollowPalette())
        QMetaObject::invokeMethod(this, &TimelineViewRuler::ColorsChanged, Qt::QueuedConnection);
    return isDone;
}

void TimelineViewRuler::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        ChangeConvertor([](RulerConvertor& convertor) { convertor.UpdateLabelInterval(); });
    if (event->type() != QEvent::EnabledChange)
        return;
    ChangeSegments([this](RulerSegment& segment) { segment.enabled = isEnabled(); });
    if (!isEnabled())
        QueueEndDrag();
}

void TimelineViewRuler::hideEvent(QHideEvent* event)
{
    QueueEndDrag();
    QWidget::hideEvent(event);
}

// Frames ------------------------------------------------------------------------------------------

int TimelineViewRuler::FirstFrame() const
{
    return behaviour.limitRange ? std::max(behaviour.rangeIn, 0) : 0;
}

int TimelineViewRuler::LastFrame() const
{
    const int last = behaviour.totalFrames > 0 ? behaviour.totalFrames - 1 : kMostFrames;
    if (!behaviour.limitRange)
        return last;
    return std::max(std::min(behaviour.rangeOut, last), FirstFrame());
}

int TimelineViewRuler::Bounded(qint64 frame) const
{
    return static_cast<int>(std::max<qint64>(FirstFrame(), std::min<qint64>(LastFrame(), frame)));
}

int TimelineViewRuler::AvailableFrames() const
{
    if (!behaviour.limitRange)
        return behaviour.totalFrames;
    return static_cast<int>(
        std::min<qint64>(kMostFrames, static_cast<qint64>(LastFrame()) - FirstFrame() + 1));
}

int TimelineViewRuler::FrameAt(int x) const
{
    const double exact = Segment().PositionToFrames(x);
    const double frame =
        behaviour.roundFrames ? std::round(exact) : std::floor(exact + kFrameNoise);
    return Bounded(static_cast<qint64>(std::max(-1.0, std::min<double>(kMostFrames, frame))));
}

bool TimelineViewRuler::MoveByUser(int frame)
{
    const QPointer<TimelineViewRuler> self(this);
    if (!SetCurrentFrame(frame))
        return true;
    return self && Tell(&TimelineViewRuler::FramesChanged, Segment().currentFrame);
}

void TimelineViewRuler::StepTo(qint64 frame)
{
    const int target = Bounded(frame);
    if (!behaviour.moveFrame || m_drag.Active() != Drag::None || target == Segment().currentFrame)
        return;
    if (Tell(&TimelineViewRuler::StartFramesChanged) && MoveByUser(target) && ShowPlayHead())
        Q_EMIT EndFramesChanged();
}

bool TimelineViewRuler::ShowPlayHead()
{
    const RulerSegment& segment = Segment();
    const double x = segment.FramesToPosition(segment.currentFrame);
    const bool isInSight = x >= 0 && x < width();
    return isInSight || SetLeftEdge(segment.currentFrame - segment.PixelsToFrames(width() / 2.0));
}

// Zooming and scrolling ---------------------------------------------------------------------------

bool TimelineViewRuler::SetLeftEdge(double frame)
{
    RulerSegment& segment = m_convertor.Current();
    const double last = behaviour.totalFrames > 0 ? behaviour.totalFrames - 1 : kMostFrames;
    frame = std::max(0.0, std::min(last, frame));
    const double whole = std::floor(frame + kFrameNoise);
    const auto offset = static_cast<int>(whole);
    const auto pixels = static_cast<int>(std::lround(segment.FramesToPixels(frame - whole)));
    if (offset == segment.offsetFrames && pixels == segment.offsetPosition)
        return true;
    segment.offsetFrames = offset;
    segment.offsetPosition = pixels;
    update();
    return TellShown() && Tell(&TimelineViewRuler::OffsetFramesChanged, offset);
}

bool TimelineViewRuler::ZoomAbout(float zoom, double frame, double x)
{
    const float bounded = m_convertor.BoundedZoom(zoom);
    if (bounded != m_convertor.Zoom()) {
        m_convertor.SetZoom(bounded);
        update();
        if (!TellShown() || !Tell(&TimelineViewRuler::ZoomChanged, bounded))
            return false;
    }
    return SetLeftEdge(frame - Segment().PixelsToFrames(x));
}

void TimelineViewRuler::ZoomOnceAbout(float zoom, double frame, double x)
{
    if (m_drag.Active() != Drag::None || m_convertor.BoundedZoom(zoom) == m_convertor.Zoom())
        return;
    if (Tell(&TimelineViewRuler::StartZoomChanged) && ZoomAbout(zoom, frame, x))
        Q_EMIT EndZoomChanged();
}

void TimelineViewRuler::FitAll()
{
    if (behaviour.totalFrames <= 0)
        return;
    const float zoom = m_convertor.ZoomToShow(behaviour.totalFrames, width());
    if (m_convertor.BoundedZoom(zoom) == m_convertor.Zoom())
        SetLeftEdge(0);
    else
        ZoomOnceAbout(zoom, 0, 0);
}

void TimelineViewRuler::wheelEvent(QWheelEvent* event)
{
    // Alt and Shift turn a vertical wheel into a horizontal one on some systems.
    const double notches = WheelTurn(*event).notches;
    event->accept();
    if (notches == 0 || m_drag.Active() != Drag::None)
        return;
    const RulerSegment& segment = Segment();
    if (event->modifiers() & Qt::ControlModifier) {
        const double x = event->position().x();
        const float from = m_convertor.BoundedZoom(m_convertor.Zoom());
        ZoomOnceAbout(from - static_cast<float>(notches) * kZoomPerNotch,
                      segment.PositionToFrames(x), x);
    } else {
        const double pixels = notches * width() * kWidthsPerNotch + m_wheelRest;
        const double wanted = segment.LeftEdge() - segment.PixelsToFrames(pixels);
        if (!SetLeftEdge(wanted))
            return;
        // What whole frames and pixels cannot express; more than that is left at an end only.
        const double rest = Segment().FramesToPixels(Segment().LeftEdge() - wanted);
        m_wheelRest = std::abs(rest) < 1 ? rest : 0;
    }
}

// Mouse -------------------------------------------------------------------------------------------

void TimelineViewRuler::mousePressEvent(QMouseEvent* event)
{
    m_mouse = event->pos();
    if (m_drag.Active() != Drag::None)
        return;
    const bool zooms = event->button() == Qt::MiddleButton ||
                       (event->button() == Qt::LeftButton && event->modifiers() & Qt::AltModifier);
    if (event->button() == Qt::RightButton) {
        TellRightClick(event->globalPos());
    } else if (zooms) {
        if (StartZoomAndScroll(true) && m_drag.NeedsGrab())
            m_drag.Grab(m_mouse, Segment().PositionToFrames(m_mouse.x()));
    } else if (event->button() == Qt::LeftButton) {
        m_sincePress.start();
        WatchHold();
        PressPlayHead(m_mouse);
    }
}

// A window that has passed on a press sends the same widget the request for a context menu, even
// when a handler has deleted it in between. Therefore told afterwards, if there is a loop to do so.
void TimelineViewRuler::TellRightClick(const QPoint& at)
{
    if (thread()->loopLevel() == 0) {
        Q_EMIT sigRightClicked(at);
        return;
    }
    QMetaObject::invokeMethod(
        this, [this, at] { Q_EMIT sigRightClicked(at); }, Qt::QueuedConnection);
}

void TimelineViewRuler::PressPlayHead(const QPoint& at)
{
    if (!behaviour.moveFrame)
        return;
    m_drag.BeginPlayHead(at);
    m_inSingleClick = behaviour.singleClickEmits;
    if (m_inSingleClick && !Tell(&TimelineViewRuler::sigSingleClickStartFramesChanged))
        return;
    if (!Tell(&TimelineViewRuler::StartFramesChanged))
        return;
    const QPointer<TimelineViewRuler> self(this);
    SetCurrentFrame(FrameAt(at.x()));
    if (self && behaviour.pressEmitsFrames)
        Q_EMIT FramesChanged(Segment().currentFrame);
}

void TimelineViewRuler::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (m_drag.Active() != Drag::None)
        return;
    // The system's own interval may be longer.
    const bool isDouble = event->button() == Qt::LeftButton && m_sincePress.isValid() &&
                          m_sincePress.elapsed() <= kDoubleClickInterval;
    if (!isDouble) {
        mousePressEvent(event);
        return;
    }
    m_sincePress.invalidate();
    FitAll();
}

void TimelineViewRuler::mouseMoveEvent(QMouseEvent* event)
{
    m_mouse = event->pos();
    if (m_drag.NeedsGrab())
        m_drag.Grab(m_mouse, Segment().PositionToFrames(m_mouse.x()));
    if (m_drag.Active() == Drag::None || !behaviour.dragable || !m_drag.Move(m_mouse))
        return;
    if (m_drag.Active() == Drag::PlayHead)
        DragPlayHead(m_mouse);
    else
        DragZoomAndScroll(m_mouse);
}

void TimelineViewRuler::DragPlayHead(const QPoint& at)
{
    if (m_drag.IsBeyondClick(at) && !EndSingleClick())
        return;
    const bool isInside = at.x() >= 0 && at.x() < width();
    if (isInside) {
        m_scrollTimer.stop();
        MoveByUser(FrameAt(at.x()));
    } else if (!m_scrollTimer.isActive()) {
        m_scrollTimer.start(kScrollInterval, this);
        ScrollAtEdge();
    }
}

void TimelineViewRuler::ScrollAtEdge()
{
    const RulerSegment& segment = Segment();
    const int edge = m_mouse.x() < 0 ? 0 : width() - 1;
    const int overshoot = m_mouse.x() - edge;
    const int limit = overshoot < 0 ? FirstFrame() : LastFrame();
    const double beyond = segment.FramesToPosition(limit) - edge;
    // No further than to where the limit comes into sight.
    if (beyond * overshoot > 0) {
        const double wanted =
            kScrollPerOvershoot * std::min(std::abs(overshoot), kFarthestOvershoot);
        const double pixels = std::min(std::ceil(wanted), std::ceil(std::abs(beyond)));
        const double frames = segment.PixelsToFrames(std::copysign(pixels, overshoot));
        if (!SetLeftEdge(segment.LeftEdge() + frames))
            return;
    }
    MoveByUser(FrameAt(edge));
}

void TimelineViewRuler::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_scrollTimer.timerId())
        QWidget::timerEvent(event);
    else if (behaviour.dragable && m_drag.Active() == Drag::PlayHead)
        ScrollAtEdge();
    else
        m_scrollTimer.stop();
}

bool TimelineViewRuler::StartZoomAndScroll(bool isPressed)
{
    if (!EndDrag())
        return false;
    if (!behaviour.dragable)
        return true;
    m_drag.BeginZoomAndScroll(m_convertor.BoundedZoom(m_convertor.Zoom()));
    if (isPressed)
        WatchHold();
    // Without a button down the mouse is followed all the same.
    setMouseTracking(true);
    return Tell(&TimelineViewRuler::StartZoomChanged);
}

void TimelineViewRuler::DragZoomAndScroll(const QPoint& at)
{
    ZoomAbout(m_drag.ZoomAt(at), m_drag.GrabbedFrame(), at.x());
}

bool TimelineViewRuler::EndSingleClick()
{
    return !std::exchange(m_inSingleClick, false) ||
           Tell(&TimelineViewRuler::sigSingleClickEndFrameChanged);
}

bool TimelineViewRuler::EndDrag()
{
    const Drag ended = m_drag.Active();
    HoldWatch::End(*this);
    m_drag.End();
    m_scrollTimer.stop();
    m_endQueued = false;
    if (ended == Drag::ZoomAndScroll) {
        setMouseTracking(false);
        return Tell(&TimelineViewRuler::EndZoomChanged);
    }
    if (ended != Drag::PlayHead)
        return true;
    if (behaviour.releaseEmitsFrames &&
        !Tell(&TimelineViewRuler::FramesChanged, Segment().currentFrame))
        return false;
    return Tell(&TimelineViewRuler::EndFramesChanged) && EndSingleClick();
}

void TimelineViewRuler::WatchHold()
{
    HoldWatch::Begin(*this, [this] { QueueEndDrag(); });
}

// The release of the mouse would never come. Told later: a handler may delete the ruler, which the
// sender of the event still needs.
void TimelineViewRuler::QueueEndDrag()
{
    if (m_drag.Active() == Drag::None || std::exchange(m_endQueued, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_endQueued)
                EndDrag();
        },
        Qt::QueuedConnection);
}

void TimelineViewRuler::mouseReleaseEvent(QMouseEvent* event)
{
    const bool ends = m_drag.Active() == Drag::PlayHead ? event->button() == Qt::LeftButton
                                                        : event->button() != Qt::RightButton;
    if (ends)
        EndDrag();
}

// Focus and keys ----------------------------------------------------------------------------------

void TimelineViewRuler::focusInEvent(QFocusEvent* event)
{
    m_keyboardFocus = ShowsKeyboardFocus(*event, m_keyboardFocus);
    QWidget::focusInEvent(event);
}

void TimelineViewRuler::focusOutEvent(QFocusEvent* event)
{
    m_keyboardFocus = ShowsKeyboardFocus(*event, m_keyboardFocus);
    QWidget::focusOutEvent(event);
}

void TimelineViewRuler::keyPressEvent(QKeyEvent* event)
{
    const RulerSegment& segment = Segment();
    const qint64 frame = segment.currentFrame;
    const int step = event->modifiers() & Qt::ShiftModifier ? RoundedFps(segment.fps) : 1;
    const qint64 page =
        static_cast<qint64>(segment.framesPerSmallTick) * segment.smallTicksPerBigTick;
    const auto zoomBy = [&](float change) {
        const float from = m_convertor.BoundedZoom(m_convertor.Zoom());
        ZoomOnceAbout(from + change, static_cast<double>(frame),
                      segment.FramesToPosition(static_cast<double>(frame)));
    };
    switch (event->key()) {
    case Qt::Key_Left:
        StepTo(frame - step);
        break;
    case Qt::Key_Right:
        StepTo(frame + step);
        break;
    case Qt::Key_PageUp:
        StepTo(frame - page);
        break;
    case Qt::Key_PageDown:
        StepTo(frame + page);
        break;
    case Qt::Key_Home:
        StepTo(FirstFrame());
        break;
    case Qt::Key_End:
        // Without a known end there is nowhere to go.
        if (LastFrame() != kMostFrames)
            StepTo(LastFrame());
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomBy(-kZoomPerNotch);
        break;
    case Qt::Key_Minus:
        zoomBy(kZoomPerNotch);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
