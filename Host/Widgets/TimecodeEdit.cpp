// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/TimecodeEdit.h"

#include "CommonLib/GlobalUtils.h"

#include <QKeyEvent>
#include <QStringList>

#include <algorithm>

namespace {

constexpr int kMargins = 24; // of the frame and around the text, in pixels
constexpr int kFields = 4;
constexpr int kDigits = 2; // of a field

/// With all fields; as it is when it is no part of a timecode.
QString Whole(const QString& text)
{
    QStringList fields = text.split(QLatin1Char(':'));
    if (fields.size() > kFields)
        return text;
    if (fields.size() == 1) {
        fields.clear();
        for (QString digits = text; !digits.isEmpty(); digits.chop(kDigits))
            fields.prepend(digits.right(kDigits));
    }
    while (fields.size() < kFields)
        fields.prepend(QString());
    for (QString& field : fields)
        field = field.rightJustified(kDigits, QLatin1Char('0'));
    return fields.join(QLatin1Char(':'));
}

} // namespace

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

int TimecodeEdit::Typed() const
{
    const QString typed = text().trimmed();
    const int sign = typed.startsWith('+') ? 1 : typed.startsWith('-') ? -1 : 0;
    const int frame = gString2Frame(float(m_rate), Whole(sign == 0 ? typed : typed.mid(1)));
    if (sign == 0 || frame < 0)
        return frame;
    return std::max(m_frame + sign * frame, 0);
}

void TimecodeEdit::Enter()
{
    const int frame = isModified() ? Typed() : -1;
    if (frame >= 0)
        m_frame = frame;
    Show();
    if (frame >= 0)
        Q_EMIT FrameEntered(frame);
}
