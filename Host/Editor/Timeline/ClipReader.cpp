// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/ClipReader.h"

#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLETitle.h"
#include "EngineApi/NLECommon.h"
#include "EngineApi/NLEKey.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/EngineCatalog.h"
#include "Host/EngineText.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

ClipKind KindOf(INLEMediaInfo& info)
{
    int kind = NLEMedia_Offline;
    info.GetKind(&kind);
    switch (kind) {
    case NLEMedia_Video:
        return ClipKind::Video;
    case NLEMedia_Audio:
        return ClipKind::Sound;
    case NLEMedia_Image:
        return ClipKind::Picture;
    default:
        return ClipKind::Offline;
    }
}

double Shape(const NLEStreamInfo& stream)
{
    const double aspect = NLECommon::ToDouble(stream.pixelAspect);
    if (stream.width <= 0 || stream.height <= 0)
        return 16.0 / 9;
    return (aspect > 0 ? aspect : 1) * stream.width / stream.height;
}

void ReadPlace(INLETimeline& node, ClipRow& row)
{
    NLERange range{0, -1};
    NLERational rate{25, 1};
    node.GetLevel(&row.level);
    node.GetPosition(&row.begin);
    node.GetRange(&range);
    node.GetRenderFrameRate(&rate);
    node.GetEnabled(&row.isEnabled);
    row.in = range.in;
    row.end = row.begin + static_cast<int>(NLERangeLength(range));
    const double perSecond = NLECommon::ToDouble(rate);
    row.secondsPerFrame = perSecond > 0 ? 1 / perSecond : 0;
}

void ReadPlaying(INLETimeline& node, ClipRow& row)
{
    const auto bag = BagOf(&node);
    if (!bag)
        return;
    int isOn = 0;
    NLERational speed{1, 1};
    if (SUCCEEDED(bag->GetInt(NLEKey::Speed::kEnabled, &isOn)) && isOn == 1 &&
        SUCCEEDED(bag->GetRational(NLEKey::Speed::kScale, &speed)))
        row.secondsPerFrame *= NLECommon::ToDouble(speed);
    isOn = 0;
    if (FAILED(bag->GetInt(NLEKey::Freeze::kFreeze_Enabled, &isOn)) || isOn != 1)
        return;
    row.frozenFrame = row.in;
    bag->GetInt(NLEKey::Freeze::kFreeze_Frame, &row.frozenFrame);
}

void ReadKeys(const NLEComPtr<INLETimeline>& node, ClipRow& row)
{
    int count = 0;
    const auto keys = node.query<INLEKeyFrameList>();
    if (!keys || FAILED(keys->GetCount(&count)))
        return;
    for (int index = 0; index < count; ++index) {
        NLEKeyFrameRecord key{};
        if (SUCCEEDED(keys->GetKeyFrame(index, &key)))
            row.keys << NLECommon::KeyFrame::CaculateKeyFrameIndex(key.time, row.Length());
    }
}

bool ReadColour(const NLEComPtr<INLETimeline>& node, ClipRow& row)
{
    const auto clip = node.query<INLEColorClip>();
    std::uint32_t argb = 0;
    if (!clip || FAILED(clip->GetColor(&argb)))
        return false;
    row.kind = ClipKind::Colour;
    row.colour = QColor::fromRgba(argb);
    row.name = QCoreApplication::translate("Timeline", "Colour");
    return true;
}

bool ReadTitle(const NLEComPtr<INLETimeline>& node, ClipRow& row)
{
    const auto title = node.query<INLETitle>();
    if (!title)
        return false;
    row.kind = ClipKind::Title;
    row.name = EngineText([&](wchar_t* text, int capacity) {
                   return title->GetText(text, capacity);
               }).simplified();
    return true;
}

bool ReadTransition(const NLEComPtr<INLETimeline>& node, ClipRow& row)
{
    const auto transition = node.query<INLETimelineTransition>();
    if (!transition)
        return false;
    row.kind = ClipKind::Transition;
    row.name =
        EngineCatalog::TitleOf(NLECatalog_Transition, EngineText([&](wchar_t* text, int capacity) {
                                   return transition->GetTransitionName(text, capacity);
                               }));
    return true;
}

bool ReadComposite(const NLEComPtr<INLETimeline>& node, ClipRow& row)
{
    if (!node.query<INLETimelineComposite>())
        return false;
    row.kind = ClipKind::Composite;
    row.name = QCoreApplication::translate("Timeline", "Composite");
    return true;
}

void ReadStreams(INLETimelineSource& source, ClipMedia& media)
{
    source.GetVideoStreamIndex(&media.picture);
    source.GetAudioStreamIndex(&media.sound);
    NLEStreamInfo stream{};
    if (media.picture != NLENoStream && SUCCEEDED(media.info->GetStream(media.picture, &stream)))
        media.shape = Shape(stream);
    std::uint32_t frames = 0;
    NLERational rate{25, 1};
    if (SUCCEEDED(media.info->GetFrameCountAndRate(&frames, &rate)) && NLECommon::IsRate(rate)) {
        media.frames = static_cast<int>(frames);
        media.rate = NLECommon::ToDouble(rate);
    }
}

} // namespace

std::shared_ptr<const ClipMedia> ClipReader::Media(INLETimelineSource& source)
{
    ClipMedia media;
    if (FAILED(source.GetMediaInfo(media.info.put())) || !media.info)
        return nullptr;
    media.path = EngineText<kEnginePath>(
        [&](wchar_t* text, int capacity) { return source.GetFilePath(text, capacity); });
    ReadStreams(source, media);
    const QString key =
        QStringLiteral("%1\n%2\n%3").arg(media.path).arg(media.picture).arg(media.sound);
    auto& known = m_media[key];
    // A file that was away may be there by now.
    if (!known || known->frames != media.frames || KindOf(*known->info) != KindOf(*media.info))
        known = std::make_shared<const ClipMedia>(std::move(media));
    return known;
}

void ClipReader::ReadSource(const NLEComPtr<INLETimeline>& node, ClipRow& row)
{
    const auto source = node.query<INLETimelineSource>();
    if (!source)
        return;
    row.media = Media(*source);
    if (!row.media)
        return;
    row.kind = KindOf(*row.media->info);
    row.name = QFileInfo(row.media->path).fileName();
}

ClipRow ClipReader::Read(const NLEComPtr<INLETimeline>& node)
{
    ClipRow row;
    row.node = node;
    ReadPlace(*node, row);
    if (ReadTransition(node, row))
        return row;
    ReadPlaying(*node, row);
    ReadKeys(node, row);
    if (!ReadColour(node, row) && !ReadTitle(node, row) && !ReadComposite(node, row))
        ReadSource(node, row);
    return row;
}
