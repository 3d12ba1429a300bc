// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/StringOperation.h"

#include <QDebug>
#include <QFont>
#include <QFontMetrics>
#include <QTextLayout>
#include <QUuid>
#include <QWidget>

namespace {

constexpr int kMostSpaces = 1 << 20;

QString Spaces(int count)
{
    return QString(count, ' ');
}

// A run of spaces counts a font's word spacing once, so the width that each further space adds is
// what tells whether a longer run is a wider one.
bool SpacesHaveWidth(const QFont& font)
{
    const QFontMetricsF metrics(font);
    return metrics.horizontalAdvance(Spaces(2)) > metrics.horizontalAdvance(Spaces(1));
}

// The fewest spaces, but one at least, that are `width` wide; 0 when no number of them is.
int CountSpaces(const QFont& font, int width)
{
    if (!SpacesHaveWidth(font))
        return 0;
    const QFontMetrics metrics(font);
    const auto reaches = [&](int count) {
        return metrics.horizontalAdvance(Spaces(count)) >= width;
    };
    int enough = 1;
    while (!reaches(enough)) {
        enough *= 2;
        if (enough > kMostSpaces)
            return 0;
    }
    int tooFew = enough / 2;
    while (enough - tooFew > 1) {
        const int middle = tooFew + (enough - tooFew) / 2;
        (reaches(middle) ? enough : tooFew) = middle;
    }
    return enough;
}

void LayOut(QTextLayout& layout, const QFont& font, int width)
{
    const qreal leading = QFontMetricsF(font).leading();
    qreal y = 0;
    layout.setCacheEnabled(true);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        y += leading;
        line.setPosition(QPointF(0, y));
        y += line.height();
    }
    layout.endLayout();
}

} // namespace

bool StringOperation::SameText(const QString& left, const QString& right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

int StringOperation::StrToInt(const QString& text, int defaultValue)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber ? value : defaultValue;
}

QString StringOperation::CreateUUID(bool withoutBraces)
{
    return QUuid::createUuid().toString(withoutBraces ? QUuid::WithoutBraces : QUuid::WithBraces);
}

int StringOperation::GetTextTrueLenght(const QFont& font, const QString& text)
{
    return QFontMetrics(font).horizontalAdvance(text);
}

QString StringOperation::GetElidedString(const QFont& font, int width, const QString& text,
                                         Qt::TextElideMode mode)
{
    return QFontMetrics(font).elidedText(text, mode, width);
}

QString StringOperation::GetMenuStringW(const QFont& font, const QString& left,
                                        const QString& right, int width)
{
    if (right.isEmpty())
        return left;
    const int textWidth = GetTextTrueLenght(font, left) + GetTextTrueLenght(font, right);
    if (textWidth >= width)
        return left + right;
    return left + Spaces(CountSpaces(font, width - textWidth)) + right;
}

QString StringOperation::Format2WordWrapString(const QString& text, const QFont& font, int width)
{
    if (text.contains('\n'))
        return text;
    QTextLayout layout(text, font);
    LayOut(layout, font, width);
    qDebug().noquote() << "before:" << text;
    QString result = text;
    for (int i = 1; i < layout.lineCount(); ++i) {
        // i - 1 breaks stand before line i already, so this is where it starts, behind the space
        // that the layout broke at. Counted as if i stood there, each break would come a character
        // earlier and the lines begin with that space, which is not what the layout shows.
        const QTextLine line = layout.lineAt(i);
        if (line.textLength() >= 1)
            result.insert(line.textStart() - 1 + i, '\n');
    }
    qDebug().noquote() << "after:" << result;
    return result;
}

QString StringOperation::FormatWordWrapString(const QString& text, const QWidget* widget)
{
    return widget ? Format2WordWrapString(text, widget->font(), widget->width()) : text;
}
