// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PictureSource_p.h"

#include "NLECore/media/ImageSequence_p.h"
#include "NLECore/media/JoinedMedia_p.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureFormats_p.h"
#include "NLECore/media/StillPictures.h"
#include "NLECore/media/StillReader_p.h"

namespace nle {
namespace {

StillPicture StillOf(const std::shared_ptr<const MediaInfo>& info, int stream)
{
    const MediaStream& description = *info->Stream(stream);
    StillPicture still;
    still.path = info->path;
    still.stamp = StampOf(info->path);
    still.stream = stream;
    still.ownSize = QSize(description.width, description.height);
    still.isKeptWhole = !IsDrawn(*info);
    still.read = [info, stream](const QSize& size) { return ReadStill(*info, stream, size); };
    return still;
}

class StillSource final : public PictureSource
{
public:
    StillSource(const std::shared_ptr<const MediaInfo>& info, int stream)
        : m_still(StillOf(info, stream))
    {
    }

    // The picture on show stays at hand, however many others pass through the cache.
    QImage Picture(int /*frame*/, const QSize& size) override
    {
        if (m_shown.size() != size)
            m_shown = Stills().Picture(m_still, size);
        return m_shown;
    }

private:
    const StillPicture m_still;
    QImage m_shown;
};

/// Each picture is a file of its own, which is all but never shown twice.
class SequenceSource final : public PictureSource
{
public:
    SequenceSource(const std::shared_ptr<const MediaInfo>& info, ImageSequence sequence)
        : m_info(info), m_sequence(std::move(sequence))
    {
    }

    QImage Picture(int frame, const QSize& size) override
    {
        if (frame >= m_sequence.count)
            return {};
        auto info = std::make_shared<MediaInfo>(DescribePictureOf(*m_info, m_sequence, frame));
        StillPicture still = StillOf(info, m_info->videoStream);
        still.isKeptWhole = false;
        return Stills().Picture(still, size);
    }

private:
    const std::shared_ptr<const MediaInfo> m_info;
    const ImageSequence m_sequence;
};

} // namespace

bool PictureSource::Reads(const MediaInfo& info)
{
    return info.kind == NLEMedia_Image || !info.parts.empty() || IsSequence(info) ||
           IsAnimation(info);
}

std::unique_ptr<PictureSource> PictureSource::Open(const std::shared_ptr<const MediaInfo>& info,
                                                   int stream, QString* error)
{
    const MediaStream* const description = info->Stream(stream);
    const FileStamp stamp = StampOf(info->path);
    const char* failure = nullptr;
    if (!description || description->type != NLEStream_Video)
        failure = ": no picture in it";
    else if (stamp.size < 0)
        failure = ": no such file";
    if (failure != nullptr) {
        SetError(error, info->path, QLatin1String(failure));
        return nullptr;
    }
    if (!info->parts.empty())
        return OpenJoinedPictures(info, stream, error);
    if (IsAnimation(*info))
        return OpenAnimation(*info, error);
    if (IsSequence(*info)) {
        std::optional<ImageSequence> sequence = FindSequence(info->path);
        return sequence ? std::make_unique<SequenceSource>(info, std::move(*sequence)) : nullptr;
    }
    return std::make_unique<StillSource>(info, stream);
}

} // namespace nle
