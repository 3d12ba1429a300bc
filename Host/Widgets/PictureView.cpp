// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/PictureView.h"

#include "Host/Widgets/FramePicture.h"
#include "Host/Widgets/GraphicsCard.h"
#include "Host/Widgets/PictureSurface.h"

#include <QEvent>
#include <QPainter>
#include <QPointer>
#include <QThread>

#include <utility>

namespace {

constexpr QSize kUsualSize(640, 360);

} // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent)
{
    // Every pixel is painted, whatever style sheets say.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_scene.background = Qt::black;
    m_scene.checkerboard = true;
    SetDefaultName();
    ChooseSurface();
}

PictureView::~PictureView() = default;

bool PictureView::ShowFrame(NLEComPtr<INLEVideoFrame> frame)
{
    QImage picture = PictureOf(std::move(frame));
    if (picture.isNull())
        return false;
    ShowPicture(std::move(picture));
    return true;
}

void PictureView::ShowPicture(QImage picture)
{
    if (!picture.isNull() && picture.format() != QImage::Format_ARGB32)
        picture = picture.convertToFormat(QImage::Format_ARGB32);
    bool wasWaiting = false;
    {
        const std::lock_guard lock(m_mutex);
        m_guarded.picture.swap(picture);
        wasWaiting = std::exchange(m_guarded.isWaiting, true);
        m_guarded.replaced += wasWaiting ? 1 : 0;
    }
    if (QThread::currentThread() == thread())
        TakeWaiting();
    else if (!wasWaiting)
        QMetaObject::invokeMethod(
            this, [this] { TakeWaiting(); }, Qt::QueuedConnection);
}

void PictureView::TakeWaiting()
{
    QImage picture;
    {
        const std::lock_guard lock(m_mutex);
        if (!std::exchange(m_guarded.isWaiting, false))
            return;
        picture.swap(m_guarded.picture);
        m_guarded.replaced += m_isAwaitingDraw ? 1 : 0;
    }
    m_scene.picture.swap(picture);
    // Nobody waits for what is hidden.
    m_isAwaitingDraw = !m_scene.picture.isNull() && isVisible();
    Redraw();
    const QPointer<PictureView> self(this);
    ReportPlacement();
    if (self)
        Q_EMIT PictureChanged();
}

std::int64_t PictureView::ReplacedPictures() const
{
    const std::lock_guard lock(m_mutex);
    return m_guarded.replaced;
}

void PictureView::SetScale(PicturePlacement::Scale scale)
{
    if (std::exchange(m_scale, scale) == scale)
        return;
    Redraw();
    const QPointer<PictureView> self(this);
    ReportPlacement();
    if (self)
        Q_EMIT ScaleChanged(scale);
}

void PictureView::SetCheckerboard(bool on)
{
    if (std::exchange(m_scene.checkerboard, on) == on)
        return;
    Redraw();
    Q_EMIT CheckerboardChanged(on);
}

void PictureView::SetSafeAreas(bool on)
{
    if (std::exchange(m_scene.safeAreas, on) == on)
        return;
    Redraw();
    Q_EMIT SafeAreasChanged(on);
}

void PictureView::SetBackgroundColor(const QColor& color)
{
    const QColor opaque(color.rgb());
    if (std::exchange(m_scene.background, opaque) == opaque)
        return;
    Redraw();
    Q_EMIT BackgroundColorChanged(opaque);
}

void PictureView::SetDrawing(Drawing drawing)
{
    if (std::exchange(m_drawing, drawing) == drawing)
        return;
    ChooseSurface();
    Q_EMIT DrawingChanged(drawing);
}

void PictureView::ChooseSurface()
{
    const GraphicsCard card =
        m_drawing == Drawing::Painter ? GraphicsCard::None : FindGraphicsCard();
    const bool wanted =
        m_drawing == Drawing::OpenGL ? card != GraphicsCard::None : card == GraphicsCard::Hardware;
    if (wanted == UsesOpenGL())
        return;
    delete std::exchange(m_surface,
                         wanted ? MakeGlSurface([this] { return TakeScene(); }, this) : nullptr);
    if (m_surface) {
        m_surface->setGeometry(rect());
        m_surface->lower(); // below what a host laid over the view
        m_surface->show();
    }
    update();
}

PicturePlacement PictureView::Placement() const
{
    return PicturePlacement(m_scene.picture.size(), size(), devicePixelRatioF(), m_scale);
}

QSize PictureView::sizeHint() const
{
    return kUsualSize;
}

void PictureView::Redraw()
{
    if (m_surface)
        m_surface->update();
    else
        update();
}

void PictureView::ReportPlacement()
{
    const PicturePlacement now = Placement();
    if (now == m_scene.placement)
        return;
    m_scene.placement = now;
    Q_EMIT PlacementChanged();
}

void PictureView::SetDefaultName()
{
    if (accessibleName() != m_defaultName)
        return; // the host has given another
    m_defaultName = tr("Picture");
    setAccessibleName(m_defaultName);
}

PictureScene PictureView::TakeScene()
{
    m_isAwaitingDraw = false;
    PictureScene scene = m_scene;
    scene.placement = Placement();
    return scene;
}

void PictureView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        SetDefaultName();
    QWidget::changeEvent(event);
}

bool PictureView::event(QEvent* event)
{
    const bool isHandled = QWidget::event(event);
    // The window has come to a screen of another ratio.
    if (event->type() == QEvent::ScreenChangeInternal)
        ReportPlacement();
    return isHandled;
}

void PictureView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_surface)
        m_surface->setGeometry(rect());
    ReportPlacement();
}

void PictureView::paintEvent(QPaintEvent* /*event*/)
{
    if (m_surface)
        return;
    QPainter painter(this);
    m_painter.Draw(painter, TakeScene());
}
