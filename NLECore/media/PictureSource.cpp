// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PictureSource_p.h"

#include "NLECore/media/ImageSequence_p.h"
#include "NLECore/media/JoinedMedia_p.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureFormats_p.h"
#include "NLECore/media/PictureScaler_p.h"
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
    QImage Picture(int /*frame*/, const QSize& size, const Deinterlacing& /*deinterlacing*/,
                   PictureDepth /*depth*/) override
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

    // Stills do not tell that they are of two fields.
    QImage Picture(int frame, const QSize& size, const Deinterlacing& deinterlacing,
                   PictureDepth /*depth*/) override
    {
        const bool isDrawn = deinterlacing.mode == NLEDeinterlacing_Always;
        QImage picture = isDrawn ? Drawn(frame, size, deinterlacing) : QImage();
        return picture.isNull() ? Read(frame, size) : picture;
    }

private:
    QImage Read(int frame, const QSize& size) const
    {
        if (frame < 0 || frame >= m_sequence.count)
            return {};
        auto info = std::make_shared<MediaInfo>(DescribePictureOf(*m_info, m_sequence, frame));
        StillPicture still = StillOf(info, m_info->videoStream);
        still.isKeptWhole = false;
        return Stills().Picture(still, size);
    }

    /// A picture with its lines as they are in the file.
    struct Whole
    {
        QImage image;
        FramePtr frame; ///< of the image's pixels
        int number;

        NumberedPicture Numbered() const { return {frame.get(), number}; }
    };
    Whole WholeOf(int frame) const
    {
        const MediaStream& stream = *m_info->Stream(m_info->videoStream);
        Whole whole = {Read(frame, QSize(stream.width, stream.height)), nullptr, frame};
        if (whole.image.isNull())
            return whole;
        whole.frame.reset(av_frame_alloc());
        if (AVFrame* const view = whole.frame.get()) {
            view->format = AV_PIX_FMT_RGB32;
            view->width = whole.image.width();
            view->height = whole.image.height();
            view->data[0] = const_cast<std::uint8_t*>(whole.image.constBits());
            view->linesize[0] = whole.image.bytesPerLine();
        }
        return whole;
    }

    QImage Drawn(int frame, const QSize& size, const Deinterlacing& deinterlacing)
    {
        const Whole picture = WholeOf(frame);
        if (!picture.frame)
            return {};
        const Whole previous = WholeOf(frame - 1);
        const Whole next = WholeOf(frame + 1);
        const MediaStream upright;
        const AVFrame* const drawn = m_deinterlacer.Draw(
            previous.Numbered(), picture.Numbered(), next.Numbered(), upright, deinterlacing, 0);
        return drawn != nullptr ? m_scaler.Convert(*drawn, upright, size) : QImage();
    }

    const std::shared_ptr<const MediaInfo> m_info;
    const ImageSequence m_sequence;
    Deinterlacer m_deinterlacer;
    PictureScaler m_scaler;
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
