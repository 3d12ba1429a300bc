// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Timeline/Snapping.h"
#include "Host/Editor/Timeline/TimelinePainter.h"
#include "Host/Editor/Timeline/TimelineTool.h"

#include <QBasicTimer>
#include <QWidget>

class Project;
class Selection;

/// The clips of a timeline below its ruler: shows them, and hands what mouse and wheel do to
/// gestures, selection and ruler. Time runs from left to right in all languages.
class TimelineView : public QWidget
{
    Q_OBJECT

public:
    /// All but the parent outlive the view; \a ruler lies flush with its left edge.
    TimelineView(Project& project, Selection& selection, TimelineModel& model, LevelLayout& levels,
                 TimelineRuler& ruler, QWidget* parent = nullptr);
    ~TimelineView() override;

    TimelineTool Tool() const { return m_tool; }
    void SetTool(TimelineTool tool);
    bool IsSnapping() const { return m_snapping.IsOn(); }
    void SetSnapping(bool on) { m_snapping.SetOn(on); }
    void SetPlayHead(int frame);
    /// Begins and ends of what the preview cache has.
    void SetCached(const QVector<QPair<int, int>>& ranges);
    /// First and last frame of the range; nothing where a point is not set.
    void SetPoints(std::optional<int> in, std::optional<int> out);
    /// Pixels of the levels above the view.
    int Scrolled() const { return m_scrolled; }
    void SetScrolled(int pixels);
    /// Pixels from frame 0 to the left edge.
    void ScrollTo(double pixels);
    TimelineGeometry Geometry() const;
    const TimelineModel& Model() const { return m_model; }
    Selection& Selected() const { return m_selection; }
    bool IsDragging() const { return m_gesture != nullptr; }

    QSize sizeHint() const override { return {800, 260}; }

Q_SIGNALS:
    /// The ruler shows another part of time, at the view's wish.
    void Scrolling();
    /// The wheel asks for other levels, by so many pixels.
    void LevelsWheeled(int pixels);
    /// A drag began or has ended.
    void DraggingChanged(bool isDragging);
    /// The right button was pressed over what is selected now.
    void MenuAsked(const QPoint& global);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct Press
    {
        GesturePoint point;
        NLEComPtr<INLETimeline> clip; ///< null for none
        ClipHit::Part part;
        Qt::KeyboardModifiers modifiers;
    };

    void FollowSelection();
    void SelectAtPress();
    void Click();
    bool Cut(const GesturePoint& point);
    void BeginGesture();
    std::unique_ptr<Gesture> MakeGesture();
    std::unique_ptr<Gesture> MakeClipGesture(const ClipRow& row);
    TimelineTool ToolFor(ClipHit::Part part, Qt::KeyboardModifiers modifiers) const;
    void MoveGestureTo(const QPoint& at);
    void EndGesture(bool isKept);
    void UpdateCursor(const QPoint& at, Qt::KeyboardModifiers modifiers);
    int ScrollStep(int x) const;
    void PrepareSnapping();
    void ToRuler(const QMouseEvent& event);
    void AimDrop(const QDropEvent& event);
    QRect PlayHeadArea() const;

    Project& m_project;
    Selection& m_selection;
    TimelineModel& m_model;
    LevelLayout& m_levels;
    TimelineRuler& m_ruler;
    ClipPainter m_clipPainter;
    TimelinePainter m_painter;
    TimelinePainter::Overlay m_overlay;
    Snapping m_snapping;
    TimelineTool m_tool = TimelineTool::Select;
    int m_scrolled = 0;

    std::optional<Press> m_press; ///< of the left button
    std::unique_ptr<Gesture> m_gesture;
    QPoint m_pointer; ///< where it was last in a drag
    QBasicTimer m_edgeScroll;
};
