// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/DocumentText.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace nle {

namespace {

/// Whether XML gives a character back as it is, and nothing of ours begins with it. Line feed and
/// tab survive; a carriage return would come back as a line feed.
bool IsPlain(ushort code)
{
    const bool isControl = code < 0x20 && code != '\n' && code != '\t';
    return !isControl && code != '%' && code < 0xFFFE && !QChar::isSurrogate(code);
}

/// Whether one character beyond the basic plane stands at \a index.
bool IsPairAt(const QString& text, int index)
{
    return index + 1 < text.size() && text.at(index).isHighSurrogate() &&
           text.at(index + 1).isLowSurrogate();
}

} // namespace

QString EncodeText(const QString& text)
{
    if (std::all_of(text.begin(), text.end(), [](QChar c) { return IsPlain(c.unicode()); }))
        return text;
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const ushort code = text.at(i).unicode();
        if (IsPlain(code))
            result += text.at(i);
        else if (IsPairAt(text, i))
            result += text.mid(i++, 2);
        else if (code < 0x80)
            result += QStringLiteral("%%1").arg(code, 2, 16, QLatin1Char('0'));
        else
            result += QStringLiteral("%u%1").arg(code, 4, 16, QLatin1Char('0'));
    }
    return result;
}

QString DecodeText(const QString& text)
{
    if (!text.contains(QLatin1Char('%')))
        return text;
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const bool isMark = text.at(i) == QLatin1Char('%');
        const bool isLong = isMark && text.mid(i + 1, 1) == QLatin1String("u");
        const int skipped = isLong ? 5 : 2;
        bool ok = false;
        const ushort code =
            isMark ? text.mid(i + (isLong ? 2 : 1), isLong ? 4 : 2).toUShort(&ok, 16) : 0;
        const bool isOurs = ok && !IsPlain(code) && isLong == (code >= 0x80);
        result += isOurs ? QChar(code) : text.at(i);
        i += isOurs ? skipped : 0;
    }
    return result;
}

QString PlainText(const QString& text)
{
    QString result = text;
    result.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    result.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    for (int i = 0; i < result.size(); ++i) {
        if (IsPairAt(result, i))
            ++i;
        else if (result.at(i) != QLatin1Char('%') && !IsPlain(result.at(i).unicode()))
            result[i] = QChar(QChar::ReplacementCharacter);
    }
    return result;
}

QString DocumentPath(const QString& path, const QDir& folder)
{
    QString absolute = QFileInfo(path).absoluteFilePath();
    const QString relative = folder.relativeFilePath(absolute);
    if (relative == QLatin1String("..") || relative.startsWith(QLatin1String("../")))
        return absolute;
    // A name that begins with a colon would be taken for one of Qt's resources.
    return relative.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + relative : relative;
}

bool IsRemote(const QString& name)
{
    // One letter before the colon is a drive.
    static const QRegularExpression schemePattern(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]+://"));
    return schemePattern.match(name).hasMatch() &&
           !name.startsWith(QLatin1String("file://"), Qt::CaseInsensitive);
}

QString MediaUrl(const QString& path, const QDir& folder)
{
    if (IsRemote(path))
        return path;
    const QString name = DocumentPath(path, folder);
    if (QFileInfo(name).isAbsolute())
        return QString::fromLatin1(QUrl::fromLocalFile(name).toEncoded());
    return QString::fromLatin1(QUrl::toPercentEncoding(name, "/"));
}

QString PathOfUrl(const QString& url, const QDir& folder)
{
    if (IsRemote(url))
        return url;
    if (url.startsWith(QLatin1String("file:"), Qt::CaseInsensitive)) {
        QUrl file(url);
        if (file.host() == QLatin1String("localhost"))
            file.setHost(QString());
        return file.toLocalFile();
    }
    const QString decoded = QUrl::fromPercentEncoding(url.toUtf8());
    const bool isPlain = decoded != url && QFileInfo(folder.absoluteFilePath(url)).isFile() &&
                         !QFileInfo(folder.absoluteFilePath(decoded)).isFile();
    return isPlain ? url : decoded;
}

} // namespace nle
