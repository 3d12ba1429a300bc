// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/FileMarks.h"

#include "NLECore/media/MediaFile_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

extern "C" {
#include <libavutil/dict.h>
#include <libavutil/mathematics.h>
}

namespace nle {
namespace {

/// A sheet of a hundred tracks has ten thousand bytes.
constexpr qint64 kLargestSheet = qint64(1) << 20;

std::vector<FileMark> InOrder(std::vector<FileMark> marks)
{
    std::stable_sort(marks.begin(), marks.end(),
                     [](const FileMark& a, const FileMark& b) { return a.timeUs < b.timeUs; });
    return marks;
}

QString Tag(const AVDictionary* tags, const char* name)
{
    const AVDictionaryEntry* const entry = av_dict_get(tags, name, nullptr, 0);
    return entry ? QString::fromUtf8(entry->value) : QString();
}

std::vector<FileMark> Chapters(const AVFormatContext* context, std::int64_t originUs)
{
    std::vector<FileMark> marks;
    for (unsigned i = 0; i < context->nb_chapters; ++i) {
        const AVChapter* const chapter = context->chapters[i];
        const std::int64_t time =
            av_rescale_q(chapter->start, chapter->time_base, {1, 1000000}) - originUs;
        marks.push_back({std::max<std::int64_t>(0, time), Tag(chapter->metadata, "title")});
    }
    return InOrder(std::move(marks));
}

bool IsSameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// Sheets may name their files with the folders of another system.
QString NameOf(const CueFile& file)
{
    return QFileInfo(QString(file.name).replace(QLatin1Char('\\'), QLatin1Char('/'))).fileName();
}

// The part of a sheet that is about the media file: the one that names it, or the only one.
std::vector<FileMark> MarksFor(const std::vector<CueFile>& sheet, const QString& mediaName)
{
    const auto named = std::find_if(sheet.begin(), sheet.end(), [&](const CueFile& file) {
        return IsSameName(NameOf(file), mediaName);
    });
    if (named != sheet.end())
        return MarksOf(*named);
    return sheet.size() == 1 ? MarksOf(sheet.front()) : std::vector<FileMark>();
}

std::vector<FileMark> MarksBeside(const QFileInfo& media)
{
    for (const QString& base : {media.completeBaseName(), media.fileName()}) {
        for (const char* suffix : {".cue", ".CUE"}) {
            const QString path = media.dir().filePath(base + QLatin1String(suffix));
            std::vector<FileMark> marks = MarksFor(ReadCueSheet(path), media.fileName());
            if (!marks.empty())
                return marks;
        }
    }
    return {};
}

} // namespace

bool IsCueSheet(const QString& path)
{
    return IsSameName(QFileInfo(path).suffix(), QStringLiteral("cue"));
}

std::vector<CueFile> ReadCueSheet(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > kLargestSheet)
        return {};
    return ParseCueSheet(file.readAll());
}

QString MediaOfCueSheet(const QString& sheet, const CueFile& file)
{
    const QFileInfo info(sheet);
    const QFileInfo named(info.dir(), NameOf(file));
    if (named.isFile())
        return named.filePath();
    const QFileInfoList others = info.dir().entryInfoList(QDir::Files, QDir::Name);
    const auto other = std::find_if(others.begin(), others.end(), [&](const QFileInfo& candidate) {
        return !IsCueSheet(candidate.filePath()) &&
               (IsSameName(candidate.fileName(), NameOf(file)) ||
                IsSameName(candidate.completeBaseName(), named.completeBaseName()));
    });
    return other != others.end() ? other->filePath() : QString();
}

std::vector<FileMark> MarksOf(const CueFile& file)
{
    std::vector<FileMark> marks;
    for (const CueTrack& track : file.tracks)
        marks.push_back({track.timeUs, track.title});
    return InOrder(std::move(marks));
}

std::vector<FileMark> ReadMarks(const MediaInfo& media)
{
    const auto file = MediaFile::Open(media.path, MediaFile::Streams::AsDeclared, nullptr);
    if (!file)
        return {};
    const QFileInfo info(media.path);
    std::vector<FileMark> marks = Chapters(file->Context(), media.originUs);
    if (marks.empty()) {
        const QString sheet = Tag(file->Context()->metadata, "cuesheet");
        marks = MarksFor(ParseCueSheet(sheet.toUtf8()), info.fileName());
    }
    return marks.empty() ? MarksBeside(info) : marks;
}

} // namespace nle
