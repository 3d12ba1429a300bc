// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/TimelineView.h"

#include "Com/AnyQt.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Timeline/AccessibleTimeline.h"
#include "Host/Editor/Timeline/EditGesture.h"
#include "Host/Editor/Timeline/MediaDrop.h"
#include "Host/Editor/Timeline/RubberBand.h"
#include "Host/Editor/Timeline/TimelineModel.h"
#include "Host/Widgets/ScaledFont.h"

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSnapPixels = 9;
constexpr int kScrollEdge = 28;     ///< pixels from an edge in which a drag scrolls
constexpr int kScrollInterval = 30; ///< milliseconds
constexpr int kFastestScroll = 60;  ///< pixels
constexpr double kFontShare = 0.85; ///< of the window's
constexpr int kWheelNotch = 120;    ///< of QWheelEvent
constexpr int kPixelsPerNotch = 40;

Qt::CursorShape CursorFor(TimelineTool tool, ClipHit::Part part, bool isClip)
{
    if (!isClip)
        return Qt::ArrowCursor;
    if (tool == TimelineTool::Razor)
        return Qt::IBeamCursor;
    if (part != ClipHit::Part::Body && tool != TimelineTool::Slip && tool != TimelineTool::Slide)
        return tool == TimelineTool::Roll ? Qt::SplitHCursor : Qt::SizeHorCursor;
    return tool == TimelineTool::Slip || tool == TimelineTool::Slide ? Qt::OpenHandCursor
                                                                     : Qt::ArrowCursor;
}

} // namespace

TimelineView::TimelineView(Project& project, Selection& selection, TimelineModel& model,
                           LevelLayout& levels, TimelineRuler& ruler, QWidget* parent)
    : QWidget(parent)
    , m_project(project)
    , m_selection(selection)
    , m_model(model)
    , m_levels(levels)
    , m_ruler(ruler)
    , m_painter(model, m_clipPainter)
{
    AccessibleTimeline::Install();
    setAcceptDrops(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    const auto repaint = [this] { update(); };
    connect(&m_clipPainter, &ClipPainter::Ready, this, repaint);
    connect(&model, &TimelineModel::Changed, this, repaint);
    connect(&model, &TimelineModel::MarkersChanged, this, repaint);
    connect(&model, &TimelineModel::LevelsChanged, this, repaint);
    connect(&selection, &Selection::Changed, this, &TimelineView::FollowSelection);
    // A drag of what is gone has nothing to give back.
    connect(&project, &Project::Replaced, this, [this] {
        m_press.reset();
        EndGesture(false);
    });
}

TimelineView::~TimelineView() = default;

TimelineGeometry TimelineView::Geometry() const
{
    return {m_levels, TimelineScale(m_ruler), width(), m_scrolled};
}

void TimelineView::SetTool(TimelineTool tool)
{
    m_tool = tool;
    UpdateCursor(mapFromGlobal(QCursor::pos()), QGuiApplication::keyboardModifiers());
}

QRect TimelineView::PlayHeadArea() const
{
    return {Geometry().Left(m_overlay.playHead) - 1, 0, 3, height()};
}

void TimelineView::SetPlayHead(int frame)
{
    if (frame == m_overlay.playHead)
        return;
    update(PlayHeadArea());
    m_overlay.playHead = frame;
    update(PlayHeadArea());
}

void TimelineView::SetCached(const QVector<QPair<int, int>>& ranges)
{
    m_overlay.cached = ranges;
    update(0, 0, width(), TimelineGeometry::kStripHeight);
}

void TimelineView::SetPoints(std::optional<int> in, std::optional<int> out)
{
    m_overlay.in = in;
    m_overlay.end.reset();
    if (out)
        m_overlay.end = *out + 1;
    update(0, 0, width(), TimelineGeometry::kStripHeight);
}

void TimelineView::SetScrolled(int pixels)
{
    m_scrolled = pixels;
    update();
}

void TimelineView::ScrollTo(double pixels)
{
    const double perFrame = TimelineScale(m_ruler).pixels;
    const int frame = static_cast<int>(std::max(0.0, pixels) / perFrame);
    m_ruler.SetOffsetFrames(frame);
    m_ruler.SetOffsetPosition(static_cast<int>(std::max(0.0, pixels) - frame * perFrame));
    update();
    Q_EMIT Scrolling();
}

void TimelineView::FollowSelection()
{
    QSet<INLETimeline*> clips;
    for (const auto& clip : m_selection.Clips())
        clips.insert(clip.get());
    m_painter.SetSelected(std::move(clips));
    QAccessibleEvent changed(this, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&changed);
    update();
}

void TimelineView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        update();
}

void TimelineView::paintEvent(QPaintEvent* event)
{
    m_clipPainter.SetFont(ScaledFont(font(), kFontShare));
    m_overlay.band = m_gesture ? m_gesture->Band() : QRect();
    if (m_gesture)
        m_overlay.snapLine = m_snapping.Line();
    QPainter painter(this);
    m_painter.Paint(painter, event->rect(), Geometry(), m_overlay);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

// Mouse -------------------------------------------------------------------------------------------

void TimelineView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton && !m_gesture) {
        ToRuler(*event);
        return;
    }
    if (m_gesture || (event->button() != Qt::LeftButton && event->button() != Qt::RightButton))
        return;
    const ClipHit hit = ClipHit::Find(m_model, Geometry(), event->pos());
    const NLEComPtr<INLETimeline> clip = hit.row ? hit.row->node : nullptr;
    m_press = Press{Geometry().PointAt(event->pos()), clip, hit.part, event->modifiers()};
    if (event->button() == Qt::RightButton) {
        SelectAtPress();
        m_press.reset();
    } else if (m_tool == TimelineTool::Razor && hit.row) {
        Cut(m_press->point);
        m_press.reset();
    } else if (!(event->modifiers() & Qt::ControlModifier)) {
        SelectAtPress();
    }
}

/// Selects what was pressed, unless it is selected already.
void TimelineView::SelectAtPress()
{
    if (m_press->clip && !m_selection.Contains(m_press->clip.get()))
        m_selection.Set(ClipSets::GroupOf(m_project.Editing(), m_press->clip.get()));
}

bool TimelineView::Cut(const GesturePoint& point)
{
    const NLEComPtr<INLETimeline> clip = m_press->clip;
    PrepareSnapping();
    return m_project.Edit(tr("Split"), [&](INLEEditing& editing) {
        const int frame = static_cast<int>(std::lround(point.frame));
        const int snapped = frame + m_snapping.Correction(editing, {frame}, clip.get());
        m_snapping.ClearLine();
        return editing.Split(clip.get(), snapped, 0);
    });
}

/// A press and a release in one place.
void TimelineView::Click()
{
    const bool isToggling = m_press->modifiers & Qt::ControlModifier;
    if (!m_press->clip) {
        if (!isToggling)
            m_selection.Clear();
        return;
    }
    const ClipSet group = ClipSets::GroupOf(m_project.Editing(), m_press->clip.get());
    if (!isToggling) {
        m_selection.Set(group);
        return;
    }
    ClipSet clips = m_selection.Clips();
    const bool wasSelected = clips.contains(m_press->clip);
    for (const auto& member : group) {
        clips.removeAll(member);
        if (!wasSelected)
            clips << member;
    }
    m_selection.Set(clips);
}

void TimelineView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::MiddleButton && !m_gesture) {
        ToRuler(*event);
        return;
    }
    if (!m_press) {
        UpdateCursor(event->pos(), event->modifiers());
        return;
    }
    if (!m_gesture &&
        (event->pos() - m_press->point.at).manhattanLength() >= QApplication::startDragDistance())
        BeginGesture();
    if (m_gesture)
        MoveGestureTo(event->pos());
}

void TimelineView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton)
        ToRuler(*event);
    if (event->button() != Qt::LeftButton || !m_press)
        return;
    if (m_gesture)
        EndGesture(true);
    else
        Click();
    m_press.reset();
}

TimelineTool TimelineView::ToolFor(ClipHit::Part part, Qt::KeyboardModifiers modifiers) const
{
    if (m_tool != TimelineTool::Select)
        return m_tool;
    if (part == ClipHit::Part::Body) {
        if (!(modifiers & Qt::AltModifier))
            return m_tool;
        return modifiers & Qt::ShiftModifier ? TimelineTool::Slide : TimelineTool::Slip;
    }
    if (modifiers & Qt::ControlModifier)
        return TimelineTool::Ripple;
    return modifiers & Qt::ShiftModifier ? TimelineTool::Roll : m_tool;
}

std::unique_ptr<Gesture> TimelineView::MakeClipGesture(const ClipRow& row)
{
    const TimelineTool tool = ToolFor(m_press->part, m_press->modifiers);
    const GesturePoint& start = m_press->point;
    if (tool == TimelineTool::Slip || tool == TimelineTool::Slide)
        return std::make_unique<ShiftGesture>(m_project, m_snapping, start, row, tool);
    if (m_press->part != ClipHit::Part::Body) {
        const int edge = m_press->part == ClipHit::Part::Begin ? NLEEdge_Begin : NLEEdge_End;
        return std::make_unique<EdgeGesture>(m_project, m_snapping, start, row, edge, tool);
    }
    ClipSet clips;
    QVector<const ClipRow*> rows;
    for (const auto& clip : m_selection.Clips()) {
        const ClipRow* selected = m_model.Find(clip.get());
        if (!selected || selected->IsTransition())
            continue; // these follow
        clips << clip;
        rows << selected;
    }
    return std::make_unique<MoveGesture>(m_project, m_snapping, start, row, clips, rows);
}

std::unique_ptr<Gesture> TimelineView::MakeGesture()
{
    const bool isAdding = m_press->modifiers & Qt::ControlModifier;
    if (!m_press->clip)
        return std::make_unique<RubberBand>(
            m_selection, m_model, m_press->point, isAdding,
            [this](double frame) { return Geometry().Left(frame); });
    if (isAdding)
        SelectAtPress();
    const ClipRow* row = m_model.Find(m_press->clip.get());
    if (!row || row->IsTransition())
        return nullptr;
    return MakeClipGesture(*row);
}

void TimelineView::BeginGesture()
{
    PrepareSnapping();
    m_gesture = MakeGesture();
    if (!m_gesture) {
        m_press.reset();
        return;
    }
    m_edgeScroll.start(kScrollInterval, this);
    Q_EMIT DraggingChanged(true);
}

void TimelineView::MoveGestureTo(const QPoint& at)
{
    m_pointer = at;
    m_gesture->Move(Geometry().PointAt(at));
    update();
}

void TimelineView::EndGesture(bool isKept)
{
    if (!m_gesture)
        return;
    m_edgeScroll.stop();
    // Slots of what ends may ask whether there is a drag.
    const std::unique_ptr<Gesture> gesture = std::move(m_gesture);
    if (isKept)
        gesture->End();
    else
        gesture->Cancel();
    m_overlay.snapLine.reset();
    m_press.reset();
    update();
    Q_EMIT DraggingChanged(false);
}

void TimelineView::PrepareSnapping()
{
    m_snapping.SetPlayHead(m_overlay.playHead);
    m_snapping.SetReach(static_cast<int>(std::ceil(kSnapPixels / TimelineScale(m_ruler).pixels)));
}

void TimelineView::UpdateCursor(const QPoint& at, Qt::KeyboardModifiers modifiers)
{
    const ClipHit hit = ClipHit::Find(m_model, Geometry(), at);
    setCursor(CursorFor(ToolFor(hit.part, modifiers), hit.part, hit.row != nullptr));
}

// Scrolling ---------------------------------------------------------------------------------------

int TimelineView::ScrollStep(int x) const
{
    const int beyond = x < kScrollEdge ? x - kScrollEdge : std::max(0, x - width() + kScrollEdge);
    return std::clamp(beyond, -kFastestScroll, kFastestScroll);
}

void TimelineView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_edgeScroll.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    const int step = m_gesture ? ScrollStep(m_pointer.x()) : 0;
    if (step == 0)
        return;
    ScrollTo(m_ruler.GetZoomAndScrollRulerOffsetPosition() + step);
    MoveGestureTo(m_pointer);
}

/// The ruler zooms and scrolls about the pointer as it does for events of its own.
void TimelineView::ToRuler(const QMouseEvent& event)
{
    QApplication::sendEvent(m_ruler.focusProxy(), AnyQt::CopyOf(event).get());
}

void TimelineView::wheelEvent(QWheelEvent* event)
{
    const int notches = event->angleDelta().y();
    const bool isForRuler = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier) ||
                            std::abs(event->angleDelta().x()) > std::abs(notches);
    event->accept();
    if (isForRuler && !m_gesture) {
        QWheelEvent copy(event->position(), event->globalPosition(), event->pixelDelta(),
                         event->angleDelta(), event->buttons(),
                         event->modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier),
                         event->phase(), event->inverted());
        QApplication::sendEvent(m_ruler.focusProxy(), &copy);
    } else if (!isForRuler) {
        Q_EMIT LevelsWheeled(-notches * kPixelsPerNotch / kWheelNotch);
    }
}

// Keys --------------------------------------------------------------------------------------------

bool TimelineView::event(QEvent* event)
{
    // Escape is the drag's, whatever it is a shortcut of.
    if (event->type() == QEvent::ShortcutOverride && m_gesture) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void TimelineView::keyPressEvent(QKeyEvent* event)
{
    if (!m_gesture)
        QWidget::keyPressEvent(event);
    else if (event->key() == Qt::Key_Escape)
        EndGesture(false);
}

void TimelineView::hideEvent(QHideEvent* event)
{
    EndGesture(false);
    QWidget::hideEvent(event);
}

void TimelineView::contextMenuEvent(QContextMenuEvent* event)
{
    if (!m_gesture)
        Q_EMIT MenuAsked(event->globalPos());
}

// Media from outside ------------------------------------------------------------------------------

void TimelineView::AimDrop(const QDropEvent& event)
{
    const GesturePoint point = Geometry().PointAt(event.pos());
    PrepareSnapping();
    const int frame = std::max(0, static_cast<int>(std::lround(point.frame)));
    const int snapped = frame + m_snapping.Correction(m_project.Editing(), {frame}, nullptr);
    m_overlay.snapLine = m_snapping.Line();
    m_overlay.drop = QPair<int, int>(snapped, point.level);
    update();
}

void TimelineView::dragEnterEvent(QDragEnterEvent* event)
{
    if (!m_gesture && MediaDrop::Read(*event->mimeData()))
        event->acceptProposedAction();
}

void TimelineView::dragMoveEvent(QDragMoveEvent* event)
{
    AimDrop(*event);
    if (m_model.IsLocked(m_overlay.drop->second)) {
        dragLeaveEvent(nullptr); // nothing shows where nothing can come
        return event->ignore();
    }
    event->acceptProposedAction();
}

void TimelineView::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    m_overlay.drop.reset();
    m_overlay.snapLine.reset();
    update();
}

void TimelineView::dropEvent(QDropEvent* event)
{
    const auto drop = MediaDrop::Read(*event->mimeData());
    AimDrop(*event);
    const auto [frame, level] = *m_overlay.drop;
    dragLeaveEvent(nullptr);
    if (!drop)
        return;
    const bool isInserting = event->keyboardModifiers() & Qt::ControlModifier;
    const auto place = [&drop, at = frame, on = level, isInserting](INLEEditing& editing) {
        return drop->Place(editing, at, on, isInserting ? NLEEdit_Insert : NLEEdit_Overwrite);
    };
    if (m_project.Edit(isInserting ? tr("Insert media") : tr("Add media"), place))
        event->acceptProposedAction();
}
