// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/ClipPose.h"

#include <QWidget>

#include <optional>

class PictureView;

/// Handles on the player's picture that move, scale and turn the selected clip; each drag is one
/// step. With Shift proportions are kept, movements follow an axis, and turns go by 15 degrees.
/// Escape takes a drag back. The fields of the properties do the same by keys.
class PictureHandles : public QWidget
{
    Q_OBJECT

public:
    /// Lies over \a view. All of them outlive the handles.
    PictureHandles(Project& project, Selection& selection, MediaPlayer& player, PictureView& view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// What is held: (0, 0) the whole picture, else a corner or an edge, each -1 to 1.
    struct Grip
    {
        QPoint side;
        bool turns = false;
    };
    /// The clip's picture in pixels of this widget.
    struct Box
    {
        QPointF center;
        QSizeF size; ///< positive
        double angle;

        QPointF At(double x, double y) const;         ///< of -1 to 1 across the picture
        QPointF Along(const QPointF& distance) const; ///< in the directions of its sides
    };
    struct Drag
    {
        PropertyScope scope;
        Grip grip;
        QPointF from;
        Box box;
        ClipPose pose;
        int merge;
        bool isStep = false; ///< whether something was changed
    };

    PropertyScope Scope() const;
    void Follow();
    QRectF Picture() const;
    Box BoxOf(const ClipPoses& poses) const;
    /// How far up the picture the knob that turns is: above it, or within where that is not seen.
    double KnobOf(const Box& box) const;
    std::optional<Grip> GripAt(const QPointF& at) const;
    void ShowCursor(const QPointF& at);
    Box Moved(const QPointF& to, bool isStraight) const;
    Box Scaled(const QPointF& to, bool isEven) const;
    Box Turned(const QPointF& to, bool isStepped) const;
    void DragTo(const QPointF& to, bool isShift);
    void EndDrag();
    void CancelDrag();

    Project& m_project;
    Selection& m_selection;
    MediaPlayer& m_player;
    PictureView& m_view;
    std::optional<Drag> m_drag;
};
