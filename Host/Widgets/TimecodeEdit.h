// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLineEdit>

/// A frame as timecode, hours:minutes:seconds:frames, that another one can be typed into. Fewer
/// fields are the last ones, and so are digits alone, two a field: "5:00" and "500" are five
/// seconds. After + or - they are a distance from the frame shown. What is no timecode gives way to
/// the frame of before; Escape does so at once.
class TimecodeEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit TimecodeEdit(QWidget* parent = nullptr);

    /// Frames a second, 25 by default.
    void SetFrameRate(double rate);
    /// Shows later what changes while somebody types.
    void SetFrame(int frame);
    int Frame() const { return m_frame; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Another timecode was typed; it may lie beyond the end of what plays.
    void FrameEntered(int frame);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Show();
    void Enter();
    /// The frame that is typed; below 0 for what is no timecode.
    int Typed() const;

    double m_rate = 25;
    int m_frame = 0;
};
