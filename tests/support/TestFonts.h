// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTextCodec>
#include <QtEndian>

/// Font files made from one of the system's, under names that no system has.
namespace TestFonts {

inline QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// A serif face, which no fallback looks like.
inline QByteArray Serif()
{
    return Read(QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSerif.ttf"));
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
    QByteArray text = QTextCodec::codecForName("UTF-16BE")->fromUnicode(family);
    text = text.right(2 * family.size()); // the codec may write a byte order mark
    QByteArray names(6 + 3 * 12, '\0');
    Put<quint16>(names, 2, 3);
    Put<quint16>(names, 4, quint16(names.size()));
    int record = 6;
    for (const int name : {1, 4, 6}) { // family, full name, PostScript name
        for (const int value : {3, 1, 0x409, name, int(text.size()), 0}) {
            Put<quint16>(names, record, quint16(value));
            record += 2;
        }
    }
    names += text;
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
