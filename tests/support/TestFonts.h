// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/AnyQt.h"
#include "tests/support/Files.h"

#include <QByteArray>
#include <QString>
#include <QVector>
#include <QtEndian>

#include <iterator>
#include <utility>

/// Font files, made from one of the system's or from nothing, under names that no system has.
namespace TestFonts {

/// A serif face, which no fallback looks like.
inline QByteArray Serif()
{
    return Contents(QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSerif.ttf"));
}

template <typename Number>
Number Get(const QByteArray& data, int offset)
{
    return qFromBigEndian<Number>(data.constData() + offset);
}

template <typename Number>
void Put(QByteArray& data, int offset, Number value)
{
    qToBigEndian(value, data.data() + offset);
}

/// \a font, a single face, with another family: the name table at its end takes the old one's
/// place.
inline QByteArray Renamed(QByteArray font, const QString& family)
{
    constexpr int header = 12;
    constexpr int entry = 16;
    const std::pair<int, QString> texts[] = {
        {1, family}, {2, QStringLiteral("Regular")}, {4, family}, {6, family}}; // 6: for PostScript
    const int count = int(std::size(texts));
    QByteArray names(6 + count * 12, '\0');
    Put<quint16>(names, 2, quint16(count));
    Put<quint16>(names, 4, quint16(names.size()));
    QByteArray strings;
    int record = 6;
    for (const auto& [name, string] : texts) {
        const QByteArray text = AnyQt::TextCodec::Named("UTF-16BE")->Encode(string);
        for (const int value : {3, 1, 0x409, name, int(text.size()), int(strings.size())}) {
            Put<quint16>(names, record, quint16(value));
            record += 2;
        }
        strings += text;
    }
    names += strings;
    font.append(-font.size() & 3, '\0');
    for (int i = 0; i < Get<quint16>(font, 4); ++i) {
        const int at = header + i * entry;
        if (font.mid(at, 4) != "name")
            continue;
        Put<quint32>(font, at + 8, quint32(font.size()));
        Put<quint32>(font, at + 12, quint32(names.size()));
    }
    return font + names;
}

/// A font of its own, for what must not depend on the installed ones: each character of ASCII, the
/// space too, is a filled box, half of the font's size wide, 0.7 of it high and 0.2 from the next.
inline QByteArray Boxes(const QString& family)
{
    const auto words = [](const QVector<int>& values) {
        QByteArray data(2 * values.size(), '\0');
        for (int i = 0; i < values.size(); ++i)
            Put<quint16>(data, 2 * i, quint16(values[i]));
        return data;
    };
    const QByteArray box =
        words({1, 100, 0, 600, 700, 3, 0}) + "\1\1\1\1" + words({100, 0, 500, 0, 0, 700, 0, -700});
    const QVector<int> fifteen(15, 0);
    const std::pair<const char*, QByteArray> tables[] = {
        {"OS/2", words({1, 700, 400, 5}) + words(fifteen.mid(0, 12)) + words(fifteen.mid(0, 5)) +
                     words({0, 1}) + words(fifteen.mid(0, 8)) +
                     words({0x40, 0x20, 0x7e, 800, -200, 0, 800, 200, 0, 1, 0, 0})},
        {"cmap", words({0, 1, 3,    1,      0, 12,   4,      222, 0, 4, 4,
                        1, 0, 0x7e, 0xffff, 0, 0x20, 0xffff, 0,   1, 4, 0}) +
                     words(QVector<int>(95, 1))},
        {"glyf", box + box},
        {"head", words({1, 0, 1, 0, 0, 0, 0x5f0f, 0x3cf5, 0, 1000}) + words(fifteen.mid(0, 8)) +
                     words({100, 0, 600, 700, 0, 8, 2, 0, 0})},
        {"hhea", words({1, 0, 800, -200, 0, 700, 100, 100, 600, 1}) + words(fifteen.mid(0, 7)) +
                     words({1})},
        {"hmtx", words({700, 100, 100})},
        {"loca", words({0, 17, 34})},
        {"maxp", words({1, 0, 2, 4, 1, 0, 0, 1}) + words(fifteen.mid(0, 8))},
        {"name", QByteArray()},
        {"post", words({3, 0, 0, 0, -100, 50}) + words(fifteen.mid(0, 10))}};
    const int count = int(std::size(tables));
    QByteArray font = words({1, 0, count, 128, 3, count * 16 - 128});
    QByteArray contents;
    for (const auto& [tag, content] : tables) {
        font +=
            tag + words({0, 0, 0, 12 + 16 * count + int(contents.size()), 0, int(content.size())});
        contents += content + QByteArray(-content.size() & 3, '\0');
    }
    return Renamed(font + contents, family);
}

/// A collection of two faces.
inline QByteArray Collection(const QByteArray& first, const QByteArray& second)
{
    QByteArray result("ttcf\0\1\0\0\0\0\0\2", 12);
    result.append(8, '\0');
    for (int face = 0; face < 2; ++face) {
        QByteArray font = face == 0 ? first : second;
        const quint32 start = quint32(result.size());
        for (int i = 0; i < Get<quint16>(font, 4); ++i)
            Put<quint32>(font, 12 + i * 16 + 8, Get<quint32>(font, 12 + i * 16 + 8) + start);
        Put<quint32>(result, 12 + face * 4, start);
        result += font.append(-font.size() & 3, '\0');
    }
    return result;
}

} // namespace TestFonts
