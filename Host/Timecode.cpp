// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Timecode.h"

#include <QtMath>

QString TimecodeText(qint64 frame, double framesPerSecond)
{
    const qint64 base = qRound64(framesPerSecond);
    if (base <= 0)
        return QString::number(frame);
    const qint64 seconds = frame / base;
    const auto twoDigits = [](qint64 value) {
        return QString::number(value).rightJustified(2, QLatin1Char('0'));
    };
    return QStringLiteral("%1:%2:%3:%4")
        .arg(twoDigits(seconds / 3600), twoDigits(seconds / 60 % 60), twoDigits(seconds % 60),
             twoDigits(frame % base));
}

QString RateText(double framesPerSecond)
{
    QString text = QString::number(framesPerSecond, 'f', 3);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}
