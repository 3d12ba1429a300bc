// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/ruler/RulerConvertor_p.h"

#include <QFont>
#include <QPainter>
#include <QVector>

/// Paints the ticks, the labels and the play head of one segment within its view rectangle.
///
/// Does only what shows in the clip, and no more than a tick per pixel however close they lie.
class RulerPainter
{
public:
    /// \a painter and \a segment stay the caller's and outlive this object.
    RulerPainter(QPainter& painter, RulerSegment& segment);

    /// Paints what lies within \a clip, which the painter clips to as well.
    void Paint(const QRect& clip);

    /// All pixels that the play head of \a segment covers, its line and its text included.
    static QRect PointerRect(const RulerSegment& segment, const QFont& font);

private:
    struct TickRange
    {
        qint64 first;
        qint64 last;
    };

    double BigTickX(qint64 index) const;
    TickRange VisibleTicks(const QRect& clip, double reach) const;
    /// In pixels of the screen.
    QVector<QRect> Ticks(const QRect& clip, const QTransform& toScreen) const;
    void PaintLines(const QRect& clip);
    void PaintLabels(const QRect& clip);
    void PaintPointer(const QRect& clip);
    void PaintCursorLine(double x, const QColor& color);

    QPainter& m_painter;
    RulerSegment& m_segment;
    double m_spacing;
    double m_shift;
    qint64 m_bigFrames;
    qint64 m_firstBig;
    int m_height;
};
