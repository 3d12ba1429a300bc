// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLETimeline.h"

#include "Com/WideText.h"
#include "CommonLib/BaseLog.h"
#include "CommonLib/NLEWraper/EngineCall_p.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"

namespace {

PlayerMaterProvider* Provider()
{
    return NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
}

NLEComPtr<INLEMediaInfo> MediaInfo(const NLEComPtr<INLETimelineSource>& source)
{
    return EngineObject<INLEMediaInfo>(source.get(), &INLETimelineSource::GetMediaInfo);
}

/// Index of the first stream of a \a type; NLENoStream when there is none.
std::uint32_t FindStream(const NLEComPtr<INLEMediaInfo>& info, NLEStreamType type)
{
    std::uint32_t count = 0;
    if (info)
        info->GetStreamCount(&count);
    for (std::uint32_t index = 0; index < count; ++index) {
        NLEStreamInfo stream{};
        if (SUCCEEDED(info->GetStream(index, &stream)) && stream.type == type)
            return index;
    }
    return NLENoStream;
}

/// Reads stream \a index; false when it names none.
bool ReadStream(INLEMediaInfo* info, std::uint32_t index, NLEStreamInfo* stream)
{
    return info && index != NLENoStream && SUCCEEDED(info->GetStream(index, stream));
}

struct FrameCount
{
    std::uint32_t count = 0;
    NLERational rate = {25, 1};
};

FrameCount ReadFrameCount(INLEMediaInfo* info)
{
    FrameCount result;
    if (info)
        info->GetFrameCountAndRate(&result.count, &result.rate);
    return result;
}

/// The picture scaled to \a size; the image owns its pixels.
QImage ScaledCopy(INLEPicture* picture, const QSize& size)
{
    int width = 0;
    int height = 0;
    const std::uint8_t* pixels = nullptr;
    if (!picture || FAILED(picture->GetWidth(&width)) || FAILED(picture->GetHeight(&height)) ||
        FAILED(picture->GetData(&pixels)) || !pixels)
        return QImage();
    const QImage wrapped(pixels, width, height, QImage::Format_ARGB32);
    if (wrapped.isNull())
        return QImage();
    // QImage::scaled gives an image of the same size back as it is, with the engine's pixels.
    if (wrapped.size() == size)
        return wrapped.copy();
    // Smooth scaling may leave premultiplied pixels.
    return wrapped.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32);
}

/// The valid part of a rendered \a frame of \a size; the image owns its pixels. Null on failure.
QImage ValidCopy(INLEVideoFrame* frame, const QSize& size)
{
    NLERect rect{};
    std::uint8_t* pixels = nullptr;
    if (FAILED(frame->GetValidRect(&rect)) || FAILED(frame->GetData(&pixels)) || !pixels)
        return QImage();
    const QImage wrapped(static_cast<const uchar*>(pixels), size.width(), size.height(),
                         QImage::Format_ARGB32);
    const QRect valid = QRect(rect.x, rect.y, rect.width, rect.height) & wrapped.rect();
    // QImage::copy takes an empty rectangle for the whole image.
    return valid.isEmpty() ? QImage() : wrapped.copy(valid);
}

/// Renders frame \a frame of \a node. Null on failure.
QImage RenderFrame(INLETimeline* node, int frame, const QSize& size, bool finish)
{
    constexpr int openFlags = 1;
    const auto picture = Provider()->CreateVideoFrame(size.width(), size.height());
    if (!picture || FAILED(picture->Prepare()))
        return QImage();
    const auto extractor = Provider()->CreateFrameExtractor();
    if (!extractor)
        return QImage();
    QImage image;
    if (SUCCEEDED(extractor->Open(node, openFlags)) &&
        SUCCEEDED(extractor->Extract(frame, picture.get())))
        image = ValidCopy(picture.get(), size);
    if (finish)
        extractor->Finish();
    return image;
}

/// Reads the picture of frame \a frame of \a node's media. Null on failure.
QImage ExtractPicture(const NLEComPtr<INLETimeline>& node, int frame, const QSize& size,
                      bool finish)
{
    // The reverse of this order is the order of release.
    const auto extractor = Provider()->CreateThumbnailExtractor();
    if (!extractor)
        return QImage();
    const auto source = node.query<INLETimelineSource>();
    const auto info = MediaInfo(source);
    const std::uint32_t stream = FindStream(info, NLEStream_Video);
    if (stream != NLENoStream)
        extractor->SetSource(info.get(), stream);
    const auto picture =
        EngineObject<INLEPicture>(extractor.get(), &INLEThumbnailExtractor::Extract, frame,
                                  NLESize{size.width(), size.height()});
    QImage image = ScaledCopy(picture.get(), size);
    if (finish)
        extractor->Finish();
    return image;
}

void LogFailInfo(const QString& filePath)
{
    constexpr int line = 512; // fixed in the log
    GetGlobalLogInstance()->LogWarn("CommonLib/NLEWraper/NLETimeline", "LogFailInfo", line,
                                    "Extract Thumbnail failed: %s", filePath.toUtf8().constData());
}

} // namespace

bool NLETimeline::HaveStream(NLEStreamType type) const
{
    return FindStream(GetTimelineMediaInfo(), type) != NLENoStream;
}

bool NLETimeline::HaveVideo() const
{
    return HaveStream(NLEStream_Video);
}

bool NLETimeline::HaveAudio() const
{
    return HaveStream(NLEStream_Audio);
}

bool NLETimeline::IsImage() const
{
    int kind = NLEMedia_Offline;
    if (const auto info = GetTimelineMediaInfo())
        info->GetKind(&kind);
    return kind == NLEMedia_Image;
}

QString NLETimeline::GetFilePath() const
{
    constexpr int capacity = 512;
    return EngineText<capacity>(L'\0', GetTimelineSource().get(), &INLETimelineSource::GetFilePath);
}

void NLETimeline::SetFilePath(const QString& path)
{
    EngineSet(GetTimelineSource().get(), &INLETimelineSource::SetFilePath, ToWide(path).c_str());
}

bool NLETimeline::Relink(const QString& path)
{
    constexpr int flags = 0;
    const auto media = m_timeline.query<INLEMediaRelink>();
    if (!media || FAILED(media->Relink(ToWide(path).c_str(), flags)))
        return false;
    media->Reload();
    return true;
}

QSizeF NLETimeline::GetSourceSize() const
{
    const auto source = GetTimelineSource();
    const auto info = MediaInfo(source);
    NLEStreamInfo stream{};
    ReadStream(info.get(),
               EngineValue(NLENoStream, source.get(), &INLETimelineSource::GetVideoStreamIndex),
               &stream);
    return QSizeF(stream.width, stream.height);
}

float NLETimeline::GetSourceFramerate() const
{
    return RationalToFloat(ReadFrameCount(GetTimelineMediaInfo().get()).rate);
}

void NLETimeline::GetMediaFrameCount(unsigned int& count, float& rate) const
{
    const auto info = GetTimelineMediaInfo();
    if (!info)
        return;
    const FrameCount frames = ReadFrameCount(info.get());
    count = frames.count;
    rate = RationalToFloat(frames.rate);
}

void NLETimeline::GetSourceAVProfile(tagNLEProjectProfile* profile) const
{
    const auto source = GetTimelineSource();
    const auto info = MediaInfo(source);
    if (!profile || !info)
        return;
    std::uint32_t frameCount = 0;
    NLERational rate{0, 1};
    info->GetFrameCountAndRate(&frameCount, &rate);
    profile->frameRate = rate;

    NLEStreamInfo stream{};
    if (ReadStream(info.get(),
                   EngineValue(NLENoStream, source.get(), &INLETimelineSource::GetVideoStreamIndex),
                   &stream))
        profile->frameSize = {stream.width, stream.height};
    if (ReadStream(info.get(),
                   EngineValue(NLENoStream, source.get(), &INLETimelineSource::GetAudioStreamIndex),
                   &stream)) {
        profile->sampleRate = stream.sampleRate;
        profile->channels = stream.channels;
        profile->sampleFormat = stream.sampleFormat;
    }
}

QList<int> NLETimeline::GetAudioSourceStreamsSampleRate() const
{
    return {};
}

int NLETimeline::GetGPUFirst() const
{
    return EngineValue(0, GetSourceDecoder().get(), &INLETimelineSourceDecoder::GetGPUFirst);
}

void NLETimeline::SetGPUFirst(int preference)
{
    EngineSet(GetSourceDecoder().get(), &INLETimelineSourceDecoder::SetGPUFirst, preference);
}

NLEComPtr<INLEMediaInfo> NLETimeline::GetTimelineMediaInfo() const
{
    return MediaInfo(GetTimelineSource());
}

NLEComPtr<INLETimeline> NLETimeline::NodeToRead(bool cloneFirst) const
{
    if (!cloneFirst)
        return m_timeline;
    constexpr bool deep = true;
    return EngineObject<INLETimeline>(m_timeline.get(), &INLETimeline::Clone, deep);
}

QImage NLETimeline::GetThumbnailFromMediaInfo(int frame, int width, int height, bool cloneFirst,
                                              bool finish) const
{
    const auto node = NodeToRead(cloneFirst);
    QImage image = node ? ExtractPicture(node, frame, QSize(width, height), finish) : QImage();
    if (image.isNull())
        LogFailInfo(GetFilePath());
    return image;
}

QImage NLETimeline::GetThumbnailFromStream(int frame, int width, int height, bool cloneFirst,
                                           bool finish) const
{
    const auto node = NodeToRead(cloneFirst);
    if (!node)
        return QImage();
    const QSize size(width, height);
    QImage image = RenderFrame(node.get(), frame, size, finish);
    if (image.isNull()) {
        image = QImage(size, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
    }
    return image;
}
