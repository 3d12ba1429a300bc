// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Tokens.h"

#include <QVector>

#include <cctype>
#include <cstdint>
#include <iterator>

namespace {

/// A part of a text: [begin, end).
struct Part
{
    int begin = 0;
    int end = 0;

    int Length() const { return end - begin; }
};
using Parts = QVector<Part>;

bool IsNumber(char c)
{
    return std::isdigit(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '.';
}

/// Numbers, and what stands between quotes.
Parts ValuesOf(const QByteArray& text)
{
    Parts values;
    int quote = -1;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            if (quote >= 0)
                values << Part{quote + 1, i};
            quote = quote >= 0 ? -1 : i;
        } else if (IsNumber(text[i])) {
            const int begin = i;
            while (i + 1 < text.size() && IsNumber(text[i + 1]))
                ++i;
            values << Part{begin, i + 1};
        }
    }
    return values;
}

/// Objects and lists of JSON.
Parts ObjectsOf(const QByteArray& text)
{
    Parts objects;
    QVector<int> begins;
    bool isQuoted = false;
    for (int i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"')
            isQuoted = !isQuoted;
        if (!isQuoted && (c == '{' || c == '['))
            begins << i;
        if (!isQuoted && (c == '}' || c == ']') && !begins.isEmpty())
            objects << Part{begins.takeLast(), i + 1};
    }
    return objects;
}

/// Elements of XML, with what they hold.
Parts ElementsOf(const QByteArray& text)
{
    Parts elements;
    QVector<int> begins;
    for (int begin = text.indexOf('<'); begin >= 0; begin = text.indexOf('<', begin + 1)) {
        const int close = text.indexOf('>', begin);
        if (close < 0)
            break;
        if (text[begin + 1] == '/') {
            if (!begins.isEmpty())
                elements << Part{begins.takeLast(), close + 1};
        } else if (text[close - 1] == '/') {
            elements << Part{begin, close + 1};
        } else if (text[begin + 1] != '?' && text[begin + 1] != '!') {
            begins << begin;
        }
    }
    return elements;
}

QByteArray Of(const QByteArray& text, const Part& part)
{
    return text.mid(part.begin, part.Length());
}

template <typename Random>
const Part& AnyOf(const Parts& parts, Random& random)
{
    return parts[int(random() % std::uint32_t(parts.size()))];
}

} // namespace

QByteArray fuzz::ChangeTokens(const QByteArray& text, std::minstd_rand& random)
{
    const bool isXml = text.trimmed().startsWith('<');
    const Parts values = ValuesOf(text);
    const Parts wholes = isXml ? ElementsOf(text) : ObjectsOf(text);
    QByteArray changed = text;
    const bool isWhole = !wholes.isEmpty() && random() % 4 == 0;
    if (!isWhole && values.isEmpty())
        return changed;
    const Part place = AnyOf(isWhole ? wholes : values, random);
    const QByteArray other = Of(text, AnyOf(isWhole ? wholes : values, random));
    if (!isWhole) {
        static const char* const kNumbers[] = {
            "0",  "1",    "-1",    "2",      "-0.5", "0.04166", "23.976",      "29.97",
            "24", "1001", "30000", "999999", "1e9",  "-1e300",  "-2147483648", ""};
        const QByteArray number = kNumbers[random() % std::size(kNumbers)];
        changed.replace(place.begin, place.Length(), random() % 2 == 0 ? other : number);
    } else {
        const QByteArray comma = isXml ? "" : ",";
        const QByteArray nothing = isXml ? "" : "{}";
        switch (random() % 3) {
        case 0:
            changed.replace(place.begin, place.Length(), nothing);
            break;
        case 1:
            changed.insert(place.end, comma + Of(text, place));
            break;
        default:
            changed.replace(place.begin, place.Length(), other);
        }
    }
    return changed;
}
