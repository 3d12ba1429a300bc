// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/PictureHandles.h"

#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Properties/PropertyField.h"
#include "Host/Widgets/MediaPlayer.h"
#include "Host/Widgets/PictureView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTransform>
#include <QUndoStack>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kReach = 8;  ///< pixels from a handle that catch it
constexpr double kHandle = 4; ///< half a side of one
constexpr double kKnob = 26;  ///< pixels from the upper edge to the knob that turns
constexpr double kLeastSide = 2;
constexpr double kTurnStep = 15; ///< degrees
constexpr double kFullTurn = 360;
const QColor kLine(0x4d, 0x9f, 0xff);

/// Corners before edges, which lie between them in small pictures.
constexpr std::array<QPoint, 8> kSides = {QPoint(-1, -1), QPoint(1, -1), QPoint(1, 1),
                                          QPoint(-1, 1),  QPoint(0, -1), QPoint(1, 0),
                                          QPoint(0, 1),   QPoint(-1, 0)};

double Distance(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

double Direction(const QPointF& from, const QPointF& to)
{
    return qRadiansToDegrees(std::atan2(to.y() - from.y(), to.x() - from.x()));
}

} // namespace

QPointF PictureHandles::Box::At(double x, double y) const
{
    const QPointF from(x * size.width() / 2, y * size.height() / 2);
    return center + QTransform().rotate(angle).map(from);
}

QPointF PictureHandles::Box::Along(const QPointF& distance) const
{
    return QTransform().rotate(-angle).map(distance);
}

PictureHandles::PictureHandles(Project& project, Selection& selection, MediaPlayer& player,
                               PictureView& view)
    : QWidget(view.parentWidget())
    , m_project(project)
    , m_selection(selection)
    , m_player(player)
    , m_view(view)
{
    setMouseTracking(true);
    view.installEventFilter(this);
    connect(&view, &PictureView::PlacementChanged, this, &PictureHandles::Follow);
    connect(&selection, &Selection::Changed, this, &PictureHandles::Follow);
    connect(&project, &Project::Replaced, this, &PictureHandles::Follow);
    connect(&project, &Project::NodeChanged, this, &PictureHandles::Follow);
    connect(&project, &Project::ClipsChanged, this, &PictureHandles::Follow);
    connect(&player, &MediaPlayer::PositionChanged, this, &PictureHandles::Follow);
    connect(&player, &MediaPlayer::StateChanged, this, &PictureHandles::Follow);
    Follow();
}

PropertyScope PictureHandles::Scope() const
{
    return {m_project, m_selection, m_player, m_selection.Current()};
}

void PictureHandles::Follow()
{
    setGeometry(m_view.geometry());
    const bool isShown =
        m_project.IsUsable() && !m_player.IsPlaying() && ClipPoses(Scope()).IsShown();
    setVisible(isShown);
    if (!isShown)
        EndDrag();
    raise();
    update();
}

bool PictureHandles::eventFilter(QObject* watched, QEvent* event)
{
    const bool isEscape = event->type() == QEvent::ShortcutOverride &&
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (isEscape && m_drag) {
        CancelDrag();
        event->accept();
        return true;
    }
    if (watched == &m_view && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        Follow();
    return QWidget::eventFilter(watched, event);
}

QRectF PictureHandles::Picture() const
{
    return m_view.Placement().ViewRect();
}

PictureHandles::Box PictureHandles::BoxOf(const ClipPoses& poses) const
{
    const QRectF whole = Picture();
    const ClipPose pose = poses.Pose();
    const QSizeF plain = poses.PlainSize();
    return {whole.topLeft() +
                QPointF(pose.center.x() * whole.width(), pose.center.y() * whole.height()),
            {std::abs(plain.width() * pose.scale.width()) * whole.width(),
             std::abs(plain.height() * pose.scale.height()) * whole.height()},
            pose.angle};
}

void PictureHandles::paintEvent(QPaintEvent* /*event*/)
{
    const ClipPoses poses(Scope());
    if (Picture().isEmpty() || !poses.IsShown())
        return;
    const Box box = BoxOf(poses);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kLine, 1.5));
    painter.translate(box.center);
    painter.rotate(box.angle);
    const QRectF frame(-box.size.width() / 2, -box.size.height() / 2, box.size.width(),
                       box.size.height());
    painter.drawRect(frame);
    const QPointF knob(0, KnobOf(box) * frame.bottom());
    painter.drawLine(QPointF(0, frame.top()), knob);
    painter.setBrush(Qt::white);
    painter.drawEllipse(knob, kHandle + 1, kHandle + 1);
    for (const QPoint& side : kSides) {
        const QPointF at(side.x() * frame.right(), side.y() * frame.bottom());
        painter.drawRect(QRectF(at - QPointF(kHandle, kHandle), QSizeF(2 * kHandle, 2 * kHandle)));
    }
}

// ---- What is held

double PictureHandles::KnobOf(const Box& box) const
{
    const double away = 2 * kKnob / std::max(1.0, box.size.height());
    return QRectF(rect()).contains(box.At(0, -1 - away)) ? -1 - away : -1 + away;
}

std::optional<PictureHandles::Grip> PictureHandles::GripAt(const QPointF& at) const
{
    const Box box = BoxOf(ClipPoses(Scope()));
    if (Distance(at, box.At(0, KnobOf(box))) <= kReach)
        return Grip{{}, true};
    for (const QPoint& side : kSides) {
        if (Distance(at, box.At(side.x(), side.y())) <= kReach)
            return Grip{side};
    }
    const QPointF within = box.Along(at - box.center);
    const bool isInside = std::abs(within.x()) <= box.size.width() / 2 &&
                          std::abs(within.y()) <= box.size.height() / 2;
    return isInside ? std::optional(Grip()) : std::nullopt;
}

void PictureHandles::ShowCursor(const QPointF& at)
{
    const std::optional<Grip> grip = GripAt(at);
    if (!grip)
        unsetCursor();
    else if (grip->turns)
        setCursor(Qt::PointingHandCursor);
    else
        setCursor(grip->side.isNull() ? Qt::SizeAllCursor : Qt::CrossCursor);
}

void PictureHandles::mousePressEvent(QMouseEvent* event)
{
    const std::optional<Grip> grip =
        event->button() == Qt::LeftButton ? GripAt(event->localPos()) : std::nullopt;
    if (!grip)
        return event->ignore();
    const ClipPoses poses(Scope());
    m_drag.emplace(
        Drag{Scope(), *grip, event->localPos(), BoxOf(poses), poses.Pose(), m_project.NewMerge()});
    qApp->installEventFilter(this); // whoever has the focus, for Escape
}

void PictureHandles::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drag)
        DragTo(event->localPos(), (event->modifiers() & Qt::ShiftModifier) != 0);
    else
        ShowCursor(event->localPos());
}

void PictureHandles::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        EndDrag();
}

void PictureHandles::EndDrag()
{
    m_drag.reset();
    qApp->removeEventFilter(this);
}

// ---- Drags

PictureHandles::Box PictureHandles::Moved(const QPointF& to, bool isStraight) const
{
    Box box = m_drag->box;
    QPointF way = to - m_drag->from;
    if (isStraight)
        (std::abs(way.x()) < std::abs(way.y()) ? way.rx() : way.ry()) = 0;
    box.center += way;
    return box;
}

/// What is opposite of the handle stays.
PictureHandles::Box PictureHandles::Scaled(const QPointF& to, bool isEven) const
{
    Box box = m_drag->box;
    const QPoint side = m_drag->grip.side;
    const QSizeF before = box.size;
    const QPointF fixed = box.At(-side.x(), -side.y());
    const QPointF way = box.Along(to - m_drag->from);
    QSizeF size(before.width() + side.x() * way.x(), before.height() + side.y() * way.y());
    if (isEven) {
        const double wide = size.width() / std::max(1.0, before.width());
        const double high = size.height() / std::max(1.0, before.height());
        const bool isWide =
            side.y() == 0 || (side.x() != 0 && std::abs(wide - 1) > std::abs(high - 1));
        size = before * (isWide ? wide : high);
    }
    box.size = size.expandedTo(QSizeF(kLeastSide, kLeastSide));
    box.center += fixed - box.At(-side.x(), -side.y());
    return box;
}

PictureHandles::Box PictureHandles::Turned(const QPointF& to, bool isStepped) const
{
    Box box = m_drag->box;
    const double turn = Direction(box.center, to) - Direction(box.center, m_drag->from);
    box.angle = std::remainder(box.angle + turn, kFullTurn);
    if (isStepped)
        box.angle = std::round(box.angle / kTurnStep) * kTurnStep;
    return box;
}

void PictureHandles::DragTo(const QPointF& to, bool isShift)
{
    const ClipPoses poses(m_drag->scope);
    const QRectF whole = Picture();
    const Grip grip = m_drag->grip;
    Box box = Moved(to, isShift);
    if (grip.turns)
        box = Turned(to, isShift);
    else if (!grip.side.isNull())
        box = Scaled(to, isShift);
    const Box& before = m_drag->box;
    ClipPose pose = m_drag->pose;
    pose.center += QPointF((box.center.x() - before.center.x()) / whole.width(),
                           (box.center.y() - before.center.y()) / whole.height());
    if (!grip.side.isNull()) {
        pose.scale = {pose.scale.width() * box.size.width() / std::max(1.0, before.size.width()),
                      pose.scale.height() * box.size.height() /
                          std::max(1.0, before.size.height())};
    }
    if (grip.turns)
        pose.angle = box.angle;
    const PropertyChange change = poses.Change(pose);
    const NLEComPtr<INLETimeline> node = m_drag->scope.node;
    if (m_project.Change(tr("Place picture"), node, change.redo, change.undo, m_drag->merge) &&
        m_drag)
        m_drag->isStep = true;
}

void PictureHandles::CancelDrag()
{
    const bool isStep = m_drag->isStep;
    EndDrag();
    if (isStep)
        m_project.Steps().undo();
}
