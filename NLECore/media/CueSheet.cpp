// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/CueSheet.h"

#include "Com/AnyQt.h"

#include <QRegularExpression>

namespace nle {
namespace {

constexpr std::int64_t kFramesPerSecond = 75;

QString Decode(const QByteArray& bytes)
{
    using AnyQt::TextCodec;
    bool isWhole = false;
    const auto text = TextCodec::Marked(bytes, *TextCodec::Named("UTF-8")).Decode(bytes, &isWhole);
    if (text && isWhole)
        return *text;
    const auto old = TextCodec::Named("windows-1252");
    return old ? old->Decode(bytes).value_or(QString()) : QString::fromLatin1(bytes);
}

// What stands in quotes, or up to a blank without them.
QString FirstWord(const QString& text)
{
    if (!text.startsWith(QLatin1Char('"')))
        return text.section(QLatin1Char(' '), 0, 0);
    const int end = text.indexOf(QLatin1Char('"'), 1);
    return text.mid(1, end < 0 ? -1 : end - 1);
}

// Titles without quotes may hold blanks.
QString Unquoted(const QString& text)
{
    return text.startsWith(QLatin1Char('"')) ? FirstWord(text) : text;
}

// Below 0 for what is no time.
std::int64_t ParseTime(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d{1,5}):(\\d{1,2}):(\\d{1,2})$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return -1;
    const std::int64_t seconds =
        match.captured(1).toLongLong() * 60 + match.captured(2).toLongLong();
    const std::int64_t frames = seconds * kFramesPerSecond + match.captured(3).toLongLong();
    return frames * 1000000 / kFramesPerSecond;
}

// Takes the commands of a sheet one by one.
class Parser
{
public:
    void Take(const QString& line)
    {
        const QString command = line.section(QLatin1Char(' '), 0, 0).toUpper();
        const QString rest = line.section(QLatin1Char(' '), 1).trimmed();
        if (command == QLatin1String("FILE")) {
            m_files.push_back({FirstWord(rest), {}});
            m_isInTrack = false;
        } else if (command == QLatin1String("TRACK")) {
            m_isInTrack = true;
            m_title.clear();
        } else if (m_isInTrack && command == QLatin1String("TITLE")) {
            m_title = Unquoted(rest);
        } else if (m_isInTrack && command == QLatin1String("INDEX")) {
            TakeIndex(rest);
        }
    }

    std::vector<CueFile> Files() && { return std::move(m_files); }

private:
    // INDEX 00 is the pause before a track, those from 02 on lie inside of it.
    void TakeIndex(const QString& text)
    {
        const std::int64_t time = ParseTime(text.section(QLatin1Char(' '), 1).trimmed());
        if (text.section(QLatin1Char(' '), 0, 0).toInt() == 1 && time >= 0 && !m_files.empty())
            m_files.back().tracks.push_back({time, m_title});
    }

    std::vector<CueFile> m_files;
    QString m_title; ///< of the track that is being read
    bool m_isInTrack = false;
};

} // namespace

std::vector<CueFile> ParseCueSheet(const QByteArray& bytes)
{
    static const QRegularExpression lineEnd(QStringLiteral("[\\r\\n]+"));
    Parser parser;
    for (const QString& line : Decode(bytes).split(lineEnd, Qt::SkipEmptyParts))
        parser.Take(QString(line).replace(QLatin1Char('\t'), QLatin1Char(' ')).trimmed());
    return std::move(parser).Files();
}

} // namespace nle
