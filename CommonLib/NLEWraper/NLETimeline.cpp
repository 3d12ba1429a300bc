// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLETimeline.h"

#include "CommonLib/BaseLog.h"
#include "CommonLib/NLEWraper/EngineCall_p.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "CommonLib/WideText_p.h"

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
    constexpr int OpenFlags = 1;
    const auto picture = Provider()->CreateVideoFrame(size.width(), size.height());
    if (!picture || FAILED(picture->Prepare()))
        return QImage();
    const auto extractor = Provider()->CreateFrameExtractor();
    if (!extractor)
        return QImage();
    QImage image;
    if (SUCCEEDED(extractor->Open(node, OpenFlags)) &&
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
    constexpr int Line = 512; // fixed in the log
    GetGlobalLogInstance()->LogWarn("CommonLib/NLEWraper/NLETimeline", "LogFailInfo", Line,
                                    "Extract Thumbnail failed: %s", filePath.toUtf8().constData());
}

} // namespace

NLETimeline::NLETimeline(NLEComPtr<INLETimeline> timeline, ExactType exactType, QObject* parent)
    : QObject(parent), m_exactType(exactType)
{
    SetTimelineBase(std::move(timeline));
    m_filePath = GetFilePath();
}

NLETimeline::~NLETimeline()
{
    Q_EMIT sigBeforeDelete();
}

NLETimeline* NLETimeline::Clone() const
{
    const auto clone = NodeToRead(true);
    return clone ? new NLETimeline(clone, m_exactType, nullptr) : nullptr;
}

void NLETimeline::SetTimelineBase(NLEComPtr<INLETimeline> timeline)
{
    if (timeline != m_timeline)
        m_timeline = std::move(timeline);
    m_properties.reset();
    m_properties = EngineObject<INLEProperties>(m_timeline.get(), &INLETimeline::GetProperties);
}

void NLETimeline::GetTimelineBase(INLETimeline** timeline) const
{
    if (timeline)
        *timeline = m_timeline.get();
}

NLEComPtr<INLETimeline> NLETimeline::GetSrc() const
{
    return m_timeline;
}

NLEComPtr<INLEProperties> NLETimeline::GetPropW() const
{
    return m_properties;
}

ExactType NLETimeline::GetExactType() const
{
    return m_exactType;
}

NLEComPtr<INLETimelineSource> NLETimeline::GetTimelineSource() const
{
    return m_timeline.query<INLETimelineSource>();
}

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
    constexpr int Capacity = 512;
    wchar_t path[Capacity] = {};
    if (const auto source = GetTimelineSource())
        source->GetFilePath(path, Capacity);
    path[Capacity - 1] = L'\0';
    return FromWide(path);
}

QSizeF NLETimeline::GetSourceSize() const
{
    const auto source = GetTimelineSource();
    const auto info = MediaInfo(source);
    std::uint32_t index = NLENoStream;
    if (source)
        source->GetVideoStreamIndex(&index);
    NLEStreamInfo stream{};
    if (info && index != NLENoStream)
        info->GetStream(index, &stream);
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

NLEComPtr<INLEMediaInfo> NLETimeline::GetTimelineMediaInfo() const
{
    return MediaInfo(GetTimelineSource());
}

NLEComPtr<INLETimeline> NLETimeline::NodeToRead(bool cloneFirst) const
{
    if (!cloneFirst)
        return m_timeline;
    constexpr bool Deep = true;
    return EngineObject<INLETimeline>(m_timeline.get(), &INLETimeline::Clone, Deep);
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
