// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/TimecodeEdit.h"

#include "CommonLib/GlobalUtils.h"

#include <QKeyEvent>

namespace {

constexpr int kMargins = 24; // of the frame and around the text, in pixels

}

TimecodeEdit::TimecodeEdit(QWidget* parent) : QLineEdit(parent)
{
    setAlignment(Qt::AlignCenter);
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::editingFinished, this, &TimecodeEdit::Enter);
    Show();
}

void TimecodeEdit::SetFrameRate(double rate)
{
    m_rate = rate;
    Show();
}

void TimecodeEdit::SetFrame(int frame)
{
    m_frame = frame;
    if (!isModified())
        Show();
}

QSize TimecodeEdit::sizeHint() const
{
    const QString widest = QStringLiteral("00:00:00:000");
    return {fontMetrics().horizontalAdvance(widest) + kMargins, QLineEdit::sizeHint().height()};
}

void TimecodeEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape)
        return QLineEdit::keyPressEvent(event);
    Show();
}

/// Also as not modified any more.
void TimecodeEdit::Show()
{
    setText(gFrame2String(m_frame, float(m_rate)));
}

void TimecodeEdit::Enter()
{
    const int frame = isModified() ? gString2Frame(float(m_rate), text()) : -1;
    if (frame >= 0)
        m_frame = frame;
    Show();
    if (frame >= 0)
        Q_EMIT FrameEntered(frame);
}
