// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCursor>
#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QScreen>

#include <cfloat>
#include <memory>

class QMouseEvent;
class QWidget;

/// What IDragValueChangedHelper does; watches all events of the application.
class DragValueChangedHelper : public QObject
{
    Q_OBJECT

public:
    /// A child of \a widget.
    explicit DragValueChangedHelper(QWidget* widget);
    ~DragValueChangedHelper() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void SetDragEnabled(bool enable);

Q_SIGNALS:
    void sigValueChanged(double value);
    void sigStartValueChanged(double value);
    void sigEndValueChanged(double value);

private:
    friend class IDragValueChangedHelper; // reads and sets the fields

    /// What the keys that are held select.
    struct Pace
    {
        double step;
        int distance;
        int warpDistance;
    };

    bool IsInside(const QPoint& position, bool isMouse) const;
    Pace PaceOf(const QMouseEvent& event) const;
    double InRange(double value) const;
    bool Press(const QMouseEvent& event);
    bool Move(const QMouseEvent& event);
    bool Step(const QMouseEvent& event, double step);
    bool Release(QObject* receiver, QMouseEvent& event);
    void PlaceRelease(const QWidget& receiver, QMouseEvent& event) const;
    void ReturnPointer() const;
    void Interrupt();
    void TellEnd();
    void WatchWidget(const QEvent& event);
    void WatchSurroundings(const QObject& watched, const QEvent& event);
    void PushHoverCursor();
    void HidePointer();
    void PushCursor(const QCursor& cursor);
    void PopCursor();
    void PopAllCursors();

    QWidget* m_widget;
    int m_stepDistance = 1;
    int m_fastDistance = 1;
    int m_slowDistance = 1;
    bool m_loop = true;
    double m_min = -DBL_MAX;
    double m_max = DBL_MAX;
    double m_step = 1.0;
    double m_fastStep = 10.0;
    double m_slowStep = 1.0;
    double m_value = 0.0;
    bool m_intercept = true; ///< false between a click and the loss of focus
    bool m_dragEnabled = true;
    QRect m_interactiveRect;
    QCursor m_hoverCursor{Qt::SizeHorCursor};
    QCursor m_dragCursor; ///< kept for the fixed list of fields; the pointer is hidden in a drag

    QElapsedTimer m_elapsed; ///< since the last step
    // Global coordinates.
    QPoint m_lastPos;
    QPoint m_pressPos;
    QPoint m_anchorPos;
    bool m_pressed = false;
    int m_distance = 0;       ///< pixels to the side that the last move measured
    bool m_firstMove = false; ///< no step since the press
    double m_accel = 0.0;     ///< added to each step
    bool m_lastIncrease = true;
    int m_overrideCount = 0; ///< override cursors that this object has pushed
    QPointer<QScreen> m_pressScreen;

    bool m_parks = false;        ///< the pointer can be and is kept at the anchor
    bool m_hidesPointer = false; ///< the cursor on top is the blank one
    bool m_clicked = false;      ///< a window was told of a click, and has to pass its release on
    bool m_endUntold = false;    ///< the end of an interrupted drag is still to be told
    int m_drag = 0;              ///< number of the press

    /// The last press that was kept from its receiver, and by whom.
    static std::unique_ptr<QMouseEvent> s_press;
    static QPointer<DragValueChangedHelper> s_last;
};
