// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/RegexOperation.h"

#include <QRegularExpression>

bool RegexOperation::RegexFindString(const QString& text, const QString& pattern, QString& output)
{
    const QRegularExpression expression(pattern);
    if (!expression.isValid())
        return false;
    const QRegularExpressionMatch match = expression.match(text);
    if (!match.hasMatch())
        return false;
    output = match.captured(1);
    return true;
}
