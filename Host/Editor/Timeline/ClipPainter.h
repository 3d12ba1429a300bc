// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Timeline/ClipRow.h"
#include "Host/Editor/Timeline/Thumbnails.h"
#include "Host/Editor/Timeline/TimelineScale.h"
#include "Host/Editor/Timeline/WaveForms.h"

#include <QCache>
#include <QFont>
#include <QRect>
#include <QStaticText>

class QPainter;

/// Paints single clips: body, name, thumbnails, wave form, key frames. What takes time to make is
/// kept, or made by a thread.
class ClipPainter : public QObject
{
    Q_OBJECT

public:
    /// How a clip shows beside what it is.
    struct State
    {
        bool isSelected = false;
        bool isLocked = false;
        int free = 0; ///< x from which nothing covers the clip
    };

    explicit ClipPainter(QObject* parent = nullptr);

    /// Of what is painted from now on.
    void SetFont(const QFont& font);
    /// \a box is the clip's, cut somewhere beyond the view; \a area is to be painted.
    void Paint(QPainter& painter, const ClipRow& row, const TimelineScale& scale, const QRect& box,
               const QRect& area, State state);
    void PaintTransition(QPainter& painter, const ClipRow& row, const QRect& box, State state);
    /// Clips that are too narrow to be told apart.
    static void PaintBlock(QPainter& painter, const ClipRow& row, const QRect& box, State state);

Q_SIGNALS:
    /// More can be painted than before.
    void Ready();

private:
    void PaintName(QPainter& painter, const ClipRow& row, const QRect& room, const QColor& colour);
    void PaintPictures(QPainter& painter, const ClipRow& row, const TimelineScale& scale,
                       const QRect& box, const QRect& shown);
    const QImage* Picture(const ClipRow& row, double second, double secondsPerTile,
                          const QSize& size);
    void PaintWave(QPainter& painter, const ClipRow& row, const TimelineScale& scale,
                   const QRect& box, const QRect& shown);
    void PaintContent(QPainter& painter, const ClipRow& row, const TimelineScale& scale,
                      const QRect& box, const QRect& shown);

    QFont m_font;
    int m_nameHeight = 15;
    QCache<QPair<QString, int>, QStaticText> m_names; ///< by text and pixels
    Thumbnails m_thumbnails;
    WaveForms m_waves;
};
