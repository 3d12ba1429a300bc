// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEFrames.h"
#include "Host/Widgets/PicturePainter.h"

#include <QWidget>

#include <cstdint>
#include <mutex>

/// Shows pictures as they come from the engine: fitted, filling or pixel for pixel, at any ratio of
/// device pixels.
///
/// Pictures may be given from any thread. One at the most waits to be shown, and a newer one takes
/// its place. Pixels go from the engine's memory to the graphics card or the window and nowhere
/// else; the view keeps the frame that it shows until the next one.
///
/// The view takes neither the keyboard's focus nor the mouse: both go to its parent, and widgets
/// that a host lays over it stand above the picture. Signals report changes from whatever side.
class PictureView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(PicturePlacement::Scale scale READ GetScale WRITE SetScale NOTIFY ScaleChanged)
    Q_PROPERTY(bool checkerboard READ Checkerboard WRITE SetCheckerboard NOTIFY CheckerboardChanged)
    Q_PROPERTY(bool safeAreas READ SafeAreas WRITE SetSafeAreas NOTIFY SafeAreasChanged)
    Q_PROPERTY(QColor backgroundColor READ BackgroundColor WRITE SetBackgroundColor NOTIFY
                   BackgroundColorChanged)
    Q_PROPERTY(Drawing drawing READ GetDrawing WRITE SetDrawing NOTIFY DrawingChanged)

public:
    /// Who scales the picture.
    enum class Drawing
    {
        Automatic, ///< the graphics card where there is one, else Qt's painter
        OpenGL,    ///< OpenGL even where a program does the card's work, as long as there is any
        Painter
    };
    Q_ENUM(Drawing)

    explicit PictureView(QWidget* parent = nullptr);
    /// Nobody may give pictures any more.
    ~PictureView() override;

    /// Shows the valid part of \a frame. False, and nothing changes, for one that PictureOf()
    /// takes for none. For any thread; the frame is not to be drawn into any more.
    bool ShowFrame(NLEComPtr<INLEVideoFrame> frame);
    /// Shows \a picture, or nothing when it is null. For any thread.
    void ShowPicture(QImage picture);
    /// What is shown; null when nothing is. Shares the frame's pixels.
    QImage Picture() const { return m_scene.picture; }
    /// Pictures that a newer one replaced before they were drawn.
    std::int64_t ReplacedPictures() const;

    /// Fit by default.
    PicturePlacement::Scale GetScale() const { return m_scale; }
    void SetScale(PicturePlacement::Scale scale);
    /// Whether a checkerboard shows through where the picture is transparent, else the background.
    /// On by default.
    bool Checkerboard() const { return m_scene.checkerboard; }
    void SetCheckerboard(bool on);
    /// Whether the borders of the action safe and title safe areas are drawn. Off by default.
    bool SafeAreas() const { return m_scene.safeAreas; }
    void SetSafeAreas(bool on);
    /// Around the picture; opaque. Black by default.
    QColor BackgroundColor() const { return m_scene.background; }
    void SetBackgroundColor(const QColor& color);
    Drawing GetDrawing() const { return m_drawing; }
    void SetDrawing(Drawing drawing);
    /// Whether OpenGL draws now.
    bool UsesOpenGL() const { return m_surface != nullptr; }

    /// Where the picture stands now, for handles and the like.
    PicturePlacement Placement() const;
    /// The pixel of the picture, with a fraction, at a position of the view, and the other way
    /// round. Both also outside of the picture; (0, 0) while none is shown.
    QPointF ToPicture(const QPointF& view) const { return Placement().ToPicture(view); }
    QPointF ToView(const QPointF& picture) const { return Placement().ToView(picture); }

    QSize sizeHint() const override;

Q_SIGNALS:
    void ScaleChanged(PicturePlacement::Scale scale);
    void CheckerboardChanged(bool on);
    void SafeAreasChanged(bool on);
    void BackgroundColorChanged(const QColor& color);
    void DrawingChanged(Drawing drawing);
    /// Another picture, or none, is shown.
    void PictureChanged();
    /// Placement() gives another result than before.
    void PlacementChanged();

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void TakeWaiting();
    void Redraw();
    void ReportPlacement();
    void ChooseSurface();
    void SetDefaultName();
    /// What is to be drawn now, and will be.
    PictureScene TakeScene();

    struct Guarded
    {
        QImage picture;
        bool isWaiting = false; ///< the picture is to be shown; it may be null
        std::int64_t replaced = 0;
    };
    mutable std::mutex m_mutex;
    Guarded m_guarded;

    PictureScene m_scene;          ///< its placement is the one that was reported last
    bool m_isAwaitingDraw = false; ///< of the picture

    PicturePlacement::Scale m_scale = PicturePlacement::Scale::Fit;
    Drawing m_drawing = Drawing::Automatic;
    QString m_defaultName;

    PicturePainter m_painter;
    QWidget* m_surface = nullptr; ///< covers the view; null where the painter draws
};
