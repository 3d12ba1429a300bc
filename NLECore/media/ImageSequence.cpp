// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ImageSequence_p.h"

#include "NLECore/media/MediaFile_p.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <vector>

namespace nle {
namespace {

// Longer numbers do not fit an int.
constexpr int kMostDigits = 9;

const QLatin1String kContainer("image2,");

/// The number between both parts of the name; -1 when \a name is not of the pattern.
int NumberIn(const QString& name, const QString& before, const QString& after, int digits)
{
    const int length = name.size() - before.size() - after.size();
    if (length < digits || length > kMostDigits || !name.startsWith(before) ||
        !name.endsWith(after))
        return -1;
    const QStringView number = QStringView(name).mid(before.size(), length);
    const bool isPadded = number.at(0) == QLatin1Char('0') && length > digits;
    const bool isNumber = std::all_of(number.begin(), number.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    return isNumber && !isPadded ? number.toInt() : -1;
}

/// Numbers of the regular files of the pattern, in ascending order.
std::vector<int> NumbersOf(const QString& folder, const QString& before, const QString& after,
                           int digits)
{
    std::vector<int> numbers;
    QDirIterator files(folder, QDir::Files | QDir::Hidden);
    while (files.hasNext()) {
        files.next();
        if (const int number = NumberIn(files.fileName(), before, after, digits); number >= 0)
            numbers.push_back(number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

/// Folds numbers into one that differs when any of them does.
class Digest
{
public:
    void Add(std::uint64_t value)
    {
        // FNV-1a, by whole numbers.
        constexpr std::uint64_t prime = 0x100000001b3;
        m_value = (m_value ^ value) * prime;
        m_value ^= m_value >> 32;
    }
    std::uint64_t Value() const { return m_value; }

private:
    std::uint64_t m_value = 0xcbf29ce484222325;
};

} // namespace

QString ImageSequence::PathOf(int index) const
{
    return before + QString::number(firstNumber + index).rightJustified(digits, QLatin1Char('0')) +
           after;
}

std::optional<ImageSequence> FindSequence(const QString& path)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([^%]*)%(?:0([1-9]))?d([^%]*)\\z"));
    const int nameAt = path.lastIndexOf(QLatin1Char('/')) + 1;
    const QRegularExpressionMatch match = pattern.match(path.mid(nameAt));
    if (!match.hasMatch() || QFileInfo::exists(path))
        return std::nullopt;
    const QString folder = nameAt > 0 ? path.left(nameAt) : QStringLiteral(".");
    ImageSequence sequence;
    sequence.before = path.left(nameAt) + match.captured(1);
    sequence.after = match.captured(3);
    sequence.digits = std::max(1, match.captured(2).toInt());
    const std::vector<int> numbers =
        NumbersOf(folder, match.captured(1), sequence.after, sequence.digits);
    if (numbers.empty())
        return std::nullopt;
    sequence.firstNumber = numbers.front();
    while (sequence.count < int(numbers.size()) &&
           numbers[size_t(sequence.count)] == sequence.firstNumber + sequence.count)
        ++sequence.count;
    return sequence;
}

FileStamp StampOfSequence(const QString& path)
{
    const std::optional<ImageSequence> sequence = FindSequence(path);
    if (!sequence)
        return {};
    FileStamp whole;
    whole.size = 0;
    Digest digest;
    digest.Add(std::uint64_t(sequence->firstNumber));
    for (int i = 0; i < sequence->count; ++i) {
        const FileStamp stamp = StampOf(sequence->PathOf(i));
        whole.size += std::max<std::int64_t>(0, stamp.size);
        whole.modifiedNs = std::max(whole.modifiedNs, stamp.modifiedNs);
        whole.changedNs = std::max(whole.changedNs, stamp.changedNs);
        whole.volume = stamp.volume;
        for (const std::int64_t value : {stamp.size, stamp.modifiedNs, stamp.changedNs})
            digest.Add(std::uint64_t(value));
        digest.Add(stamp.file);
    }
    whole.file = digest.Value();
    return whole;
}

std::shared_ptr<const MediaInfo> DescribeSequence(const QString& path,
                                                  const ImageSequence& sequence, QString* error)
{
    const FileStamp stamp = StampOf(path);
    const std::shared_ptr<const MediaInfo> first = ProbeMedia(sequence.PathOf(0), error);
    if (!first)
        return nullptr;
    if (first->kind != NLEMedia_Image) {
        SetError(error, path, QStringLiteral(": its first file is not a still picture"));
        return nullptr;
    }
    auto info = std::make_shared<MediaInfo>(*first);
    info->path = path;
    info->stamp = stamp;
    info->containerName = kContainer + first->containerName;
    info->kind = NLEMedia_Video;
    MediaStream& stream = info->streams[size_t(info->videoStream)];
    stream.constantRate = true;
    stream.frameCount = std::uint32_t(sequence.count);
    info->frameCount = stream.frameCount;
    *info = AtSequenceRate(*info, kSequenceRate);
    return info;
}

MediaInfo AtSequenceRate(MediaInfo info, const NLERational& rate)
{
    MediaStream& stream = info.streams[size_t(info.videoStream)];
    stream.frameRate = rate;
    stream.meanRate = rate;
    stream.durationUs = std::llround(double(stream.frameCount) * 1e6 / NLECommon::ToDouble(rate));
    info.frameRate = rate;
    info.durationUs = stream.durationUs;
    return info;
}

MediaInfo DescribePictureOf(const MediaInfo& whole, const ImageSequence& sequence, int index)
{
    MediaInfo picture = whole;
    picture.path = sequence.PathOf(index);
    picture.stamp = StampOf(picture.path);
    picture.containerName.remove(0, kContainer.size());
    picture.kind = NLEMedia_Image;
    return picture;
}

bool IsSequence(const MediaInfo& info)
{
    return info.kind == NLEMedia_Video && info.containerName.startsWith(kContainer);
}

bool IsThere(const QString& path)
{
    return QFileInfo::exists(path) || FindSequence(path).has_value();
}

} // namespace nle
