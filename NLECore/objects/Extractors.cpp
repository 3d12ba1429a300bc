// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/Extractors.h"

#include "Com/ComGuard.h"
#include "NLECore/media/DecoderPool.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/objects/Frames.h"

#include <cstring>

namespace nle {

namespace {

HRESULT NoFrame(int frame)
{
    return Refuse(E_FAIL, NLEReason_NothingThere, QString::number(frame));
}

/// Copies \a image into a frame of \a size at \a place; what lies around it becomes transparent.
void CopyInto(const QImage& image, const QRect& place, NLESize size, std::uint8_t* pixels)
{
    const size_t rowBytes = size_t(size.width) * 4;
    std::memset(pixels, 0, rowBytes * size_t(size.height));
    for (int y = 0; y < image.height(); ++y) {
        std::uint8_t* row = pixels + rowBytes * size_t(place.y() + y) + size_t(place.x()) * 4;
        std::memcpy(row, image.constScanLine(y), size_t(image.width()) * 4);
    }
}

/// Calls \a write with the pixels of \a frame, all of which it sets.
template <typename Write>
HRESULT WritePixels(INLEVideoFrame& frame, Write&& write)
{
    NLEComPtr<INLEOpenCLFrame> onDevice;
    frame.QueryInterface(INLEOpenCLFrame::Iid, onDevice.putVoid());
    std::uint8_t* pixels = nullptr;
    const HRESULT result = onDevice ? onDevice->Map(NLEMap_Write, &pixels) : frame.GetData(&pixels);
    if (FAILED(result))
        return onDevice ? Refuse(result) : Refuse(E_FAIL, NLEReason_WrongObject);
    write(pixels);
    return onDevice ? onDevice->Unmap() : S_OK;
}

} // namespace

HRESULT FrameExtractor::Open(INLETimeline* timeline, int flags)
{
    return ComGuard([&] {
        Finish();
        const TimelineNode* node = TimelineNode::From(timeline);
        if (!node)
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        const Snapshot root = node->MakeSnapshot();
        m_composer.emplace(root);
        m_composer->SetStop(&m_isInterrupted);
        m_isInterrupted = false;
        const auto* composite = dynamic_cast<const CompositeNode*>(node);
        if (composite && (flags & NLEOpen_Cached) != 0)
            m_cached = composite->OpenCachedFrames(root);
        m_length = node->TotalLength();
        m_root = root;
        return S_OK;
    });
}

template <typename Draw>
HRESULT FrameExtractor::Fill(int frame, INLEVideoFrame* picture, Draw&& draw)
{
    if (!picture)
        return Refuse(E_POINTER);
    NLESize size;
    if (!HasFrame(frame))
        return NoFrame(frame);
    if (FAILED(picture->GetSize(&size)))
        return Refuse(E_FAIL, NLEReason_WrongObject);
    QRect place = PlaceRoot(m_root->size, {size.width, size.height});
    QImage image = m_cached ? m_cached->Picture(frame, place.size()) : QImage();
    if (image.isNull())
        image = draw(QSize(size.width, size.height), &place);
    if (image.isNull())
        return NoFrame(frame);
    image = image.convertToFormat(kPictureFormat);
    const HRESULT result =
        WritePixels(*picture, [&](std::uint8_t* pixels) { CopyInto(image, place, size, pixels); });
    if (FAILED(result))
        return result;
    const NLERect valid = {place.x(), place.y(), place.width(), place.height()};
    return picture->SetValidRect(&valid);
}

HRESULT FrameExtractor::Extract(int frame, INLEVideoFrame* picture)
{
    if (m_isInterrupted.exchange(false))
        return Refuse(E_ABORT);
    const HRESULT result = ComGuard([&] {
        return Fill(frame, picture, [&](const QSize& size, QRect* place) {
            return m_composer->Render(frame, size, place);
        });
    });
    return FAILED(result) && m_isInterrupted.exchange(false) ? Refuse(E_ABORT) : result;
}

HRESULT FrameExtractor::ExtractNear(int frame, INLEVideoFrame* picture, int* precision)
{
    m_isInterrupted = false;
    return ComGuard([&] {
        bool isExact = true;
        const HRESULT result = Fill(frame, picture, [&](const QSize& size, QRect* place) {
            return m_composer->RenderNear(frame, size, place, &isExact);
        });
        if (precision && SUCCEEDED(result))
            *precision = isExact ? NLEScrub_Exact : NLEScrub_Near;
        return result;
    });
}

HRESULT FrameExtractor::Interrupt()
{
    m_isInterrupted = true;
    return S_OK;
}

HRESULT FrameExtractor::ExtractAudio(int frame, INLEAudioFrame* sound)
{
    return ComGuard([&] {
        if (!sound)
            return Refuse(E_POINTER);
        int count = 0;
        int sampleRate = 0;
        int channels = 0;
        float* samples = nullptr;
        if (!HasFrame(frame))
            return NoFrame(frame);
        if (FAILED(sound->GetSampleCount(&count)) || FAILED(sound->GetSampleRate(&sampleRate)) ||
            FAILED(sound->GetChannels(&channels)) || FAILED(sound->GetData(&samples)))
            return Refuse(E_FAIL, NLEReason_WrongObject);
        if (!m_mixer)
            m_mixer = std::make_unique<AudioMixer>(m_root, sampleRate, channels);
        m_mixer->Mix(m_mixer->SampleOfFrame(frame), count, samples);
        return S_OK;
    });
}

HRESULT FrameExtractor::Finish()
{
    m_composer.reset();
    m_cached.reset();
    m_mixer.reset();
    m_root.reset();
    m_length = 0;
    return S_OK;
}

HRESULT ThumbnailExtractor::SetSource(INLEMediaInfo* info, std::uint32_t videoStream)
{
    m_media = MediaInfoObject::From(info);
    m_stream = int(videoStream);
    const MediaStream* stream = m_media ? m_media->Stream(m_stream) : nullptr;
    if (!m_media)
        return Refuse(E_INVALIDARG, NLEReason_WrongObject);
    return stream && stream->type == NLEStream_Video
               ? S_OK
               : RefuseIndex(videoStream, std::int64_t(m_media->streams.size()));
}

bool ThumbnailExtractor::HasFrame(const MediaStream& stream, int frame) const
{
    // A still picture is the same for every frame; a stream of unknown length tells when it ends.
    const bool isEndless = m_media->kind == NLEMedia_Image || stream.frameCount == 0;
    return frame >= 0 && (isEndless || std::uint32_t(frame) < stream.frameCount);
}

HRESULT ThumbnailExtractor::Extract(int frame, NLESize wanted, INLEPicture** picture)
{
    return ComGuard([&] {
        if (!picture)
            return Refuse(E_POINTER);
        *picture = nullptr;
        const MediaStream* stream = m_media ? m_media->Stream(m_stream) : nullptr;
        if (!stream)
            return Refuse(E_FAIL, NLEReason_WrongState);
        if (!HasFrame(*stream, frame))
            return NoFrame(frame);
        // Decoding straight to the wanted size is cheapest; enlarging is the caller's business.
        const NLESize displayed = DisplayedSize(*stream);
        QSize size(displayed.width, displayed.height);
        if (wanted.width > 0 && wanted.height > 0 && wanted.width <= size.width() &&
            wanted.height <= size.height())
            size = QSize(wanted.width, wanted.height);
        DecoderPool::Lease decoder =
            Decoders().Acquire(m_media, m_stream, DecodePurpose::Thumbnail, frame);
        const QImage image = decoder ? decoder->Picture(frame, size) : QImage();
        if (image.isNull())
            return NoFrame(frame);
        *picture = MakeCom<Picture>(image).detach();
        return S_OK;
    });
}

HRESULT ThumbnailExtractor::Finish()
{
    return ComGuard([&] {
        if (m_media)
            Decoders().Drop(m_media->path);
        m_media.reset();
        return S_OK;
    });
}

} // namespace nle
