// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QVector>
#include <QWidget>

class TimelineRuler;

/// A track of clips that scrolls and zooms with a ruler above it.
class ClipStrip : public QWidget
{
public:
    struct Clip
    {
        int in;           ///< first frame on the timeline
        int out;          ///< last frame
        const char* name; ///< in the translation context "ClipStrip"
        QColor color;
    };

    /// \a ruler stays the caller's, outlives the strip and lies flush with its left edge.
    ClipStrip(const TimelineRuler& ruler, QVector<Clip> clips, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintClip(QPainter& painter, const Clip& clip) const;

    const TimelineRuler& m_ruler;
    QVector<Clip> m_clips;
};
