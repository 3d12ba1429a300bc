// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/OtioWriter.h"

#include "Com/WideText.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/model/DocumentNodes.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/OtioFormat.h"
#include "NLECore/model/OtioMarkers.h"
#include "NLECore/model/TitleClip.h"
#include "NLECore/scene/FrameMath.h"

#include <QJsonDocument>
#include <QUrl>

namespace nle {

using namespace document;
using namespace otio;

namespace {

QJsonObject Object(const char* schema, const QString& name)
{
    return {{kSchema, QLatin1String(schema)},
            {QStringLiteral("name"), name},
            {QStringLiteral("metadata"), QJsonObject()}};
}

/// What plays, or holds what plays.
QJsonObject PlayingObject(const char* schema, const QString& name)
{
    QJsonObject object = Object(schema, name);
    object[QStringLiteral("effects")] = QJsonArray();
    object[QStringLiteral("markers")] = QJsonArray();
    object[QStringLiteral("enabled")] = true;
    object[QStringLiteral("source_range")] = QJsonValue();
    return object;
}

/// Frames a second; a rate that only stands for one of film on television, as that one.
double ExactRate(const NLERational& rate)
{
    constexpr double slower = 1000.0 / 1001;
    constexpr double close = 1e-4;
    const double exact = std::round(ToDouble(rate) / slower) * slower;
    return std::abs(exact - ToDouble(rate)) < close ? exact : ToDouble(rate);
}

QJsonObject Range(double start, double duration, const NLERational& rate)
{
    return TimeRange(start, duration, ExactRate(rate));
}

QJsonArray MarkersOf(const TimelineNode& node)
{
    return OtioMarkers(ExactRate(node.FrameRate()) / node.Speed(), MediaStart(node))
        .Write(node.Markers().settings, KeptJson(node, kMarkers).array());
}

QString NameOf(const TimelineNode& node)
{
    QString kept = KeptText(node, kName);
    if (!kept.isEmpty())
        return kept;
    if (const auto* media = dynamic_cast<const MediaClip*>(&node))
        return media->Media().path.section(QLatin1Char('/'), -1);
    const auto text = TextOf(node);
    return text ? text->text.section(QLatin1Char('\n'), 0, 0) : QString();
}

bool HasPicture(const TimelineNode& node)
{
    const auto* media = dynamic_cast<const MediaClip*>(&node);
    return !media || media->Media().kind != NLEMedia_Audio;
}

bool HasSound(const TimelineNode& node)
{
    const auto* media = dynamic_cast<const MediaClip*>(&node);
    return media ? media->Media().audioStream >= 0
                 : dynamic_cast<const CompositeNode*>(&node) != nullptr;
}

/// The effects by which other programs know how fast the clip plays.
QJsonArray SpeedEffects(const TimelineNode& node)
{
    if (!node.IsFrozen() && node.Speed() == 1)
        return {};
    const char* const name = node.IsFrozen() ? "FreezeFrame" : "LinearTimeWarp";
    QJsonObject effect = Object(node.IsFrozen() ? "FreezeFrame.1" : "LinearTimeWarp.1", QString());
    effect[QStringLiteral("effect_name")] = QLatin1String(name);
    effect[QStringLiteral("time_scalar")] = node.IsFrozen() ? 0 : node.Speed();
    return {effect};
}

QJsonObject GapOf(std::int64_t frames, const NLERational& rate)
{
    QJsonObject gap = PlayingObject("Gap.1", QString());
    gap[QStringLiteral("source_range")] = Range(0, double(frames), rate);
    return gap;
}

/// Clips that meet on one track where a transition leads from one to the other.
LaneJoins JoinsOnTracks(const CompositeNode& node)
{
    // What is frozen shows one frame wherever it is cut.
    const auto canMeet = [](const LaneJoin& join) {
        return !join.from->IsFrozen() && !join.to->IsFrozen() && join.length > 1;
    };
    LaneJoins joins = JoinsOf(node, canMeet);
    for (bool isDone = false; !isDone;) {
        const DocumentLanes lanes = LanesOf(node, joins, JoinedClips::Meet);
        const auto parted = std::remove_if(joins.begin(), joins.end(), [&](const LaneJoin& join) {
            return std::none_of(
                lanes.lanes.begin(), lanes.lanes.end(), [&join](const DocumentLane& lane) {
                    const auto to = lane.clips.find(join.Cut());
                    return to != lane.clips.end() && to->second.node == join.to &&
                           to != lane.clips.begin() && std::prev(to)->second.node == join.from;
                });
        });
        isDone = parted == joins.end();
        joins.erase(parted, joins.end());
    }
    return joins;
}

QJsonObject TransitionOf(const LaneJoin& join)
{
    const double rate = ExactRate(join.from->FrameRate());
    const bool isDissolve =
        TransitionKindOf(join.transition->Declared()) == TransitionKind::Dissolve;
    QJsonObject transition =
        Object("Transition.1", QLatin1String(join.transition->Declared().names.name));
    transition[QStringLiteral("transition_type")] =
        isDissolve ? kDissolve : QStringLiteral("Custom_Transition");
    transition[QStringLiteral("in_offset")] = Time(double(join.Cut() - join.position), rate);
    transition[QStringLiteral("out_offset")] =
        Time(double(join.position + join.length - join.Cut()), rate);
    // The transition itself stands among what does not play.
    transition[QStringLiteral("metadata")] =
        QJsonObject{{kOwn, QJsonObject{{QStringLiteral("kind"), kTwin}}}};
    return transition;
}

/// The track of a level of that name, which may be off.
QJsonObject Named(const QString& name, bool isOff, QJsonObject track)
{
    track[QStringLiteral("name")] = PlainText(name);
    if (!isOff)
        return track;
    track[QStringLiteral("enabled")] = false;
    // That of a twin says already that nothing of it is read.
    if (!track.contains(QStringLiteral("metadata")) ||
        track[QStringLiteral("metadata")].toObject().isEmpty())
        track[QStringLiteral("metadata")] =
            QJsonObject{{kOwn, QJsonObject{{QStringLiteral("kind"), kLevelOff}}}};
    return track;
}

void AppendTransition(const TimelineNode& clip, const wchar_t* key, QJsonArray& children)
{
    const QJsonObject transition = KeptJson(clip, key).object();
    if (!transition.isEmpty())
        children.append(transition);
}

} // namespace

QByteArray OtioWriter::Write(const TimelineNode& root)
{
    const auto* composite = dynamic_cast<const CompositeNode*>(&root);
    const QJsonObject document =
        composite ? Timeline(*composite) : Item(root, root.Range(), 0, false);
    return QJsonDocument(document).toJson();
}

QJsonObject OtioWriter::Timeline(const CompositeNode& node)
{
    QJsonObject timeline = Object("Timeline.1", NameOf(node));
    timeline[QStringLiteral("metadata")] = Metadata(node, 0);
    timeline[QStringLiteral("global_start_time")] = Time(0, ExactRate(node.FrameRate()));
    timeline[QStringLiteral("tracks")] = Stack(node);
    return timeline;
}

QJsonObject OtioWriter::Stack(const CompositeNode& node)
{
    Orders orders;
    for (const NLEComPtr<TimelineNode>& clip : node.Clips())
        orders[clip.get()] = orders.size();
    const LaneJoins joins = JoinsOnTracks(node);
    const DocumentLanes lanes = LanesOf(node, joins, JoinedClips::Meet);
    QJsonArray tracks;
    QJsonArray twins;
    for (const DocumentLane& lane : lanes.lanes) {
        Clips sounds;
        bool hasPicture = false;
        for (const auto& [position, clip] : lane.clips) {
            hasPicture = hasPicture || HasPicture(*clip.node);
            if (HasSound(*clip.node))
                sounds[position] = clip;
        }
        const bool isSound = !hasPicture || lane.streams == NLERender_AudioOnly;
        const QString name = FromWide(SettingsOf(node.Levels(), lane.level).name);
        const LevelParts off = OffParts(node, lane.level);
        tracks.append(Named(name, isSound ? off.sound : off.picture,
                            Track(lane.clips, joins, orders, isSound, false)));
        if (!isSound && lane.streams == NLERender_All && !sounds.empty())
            twins.append(Named(name, off.sound, Track(sounds, joins, orders, true, true)));
    }
    for (const QJsonValue twin : twins)
        tracks.append(twin);
    if (!lanes.unplaced.empty())
        tracks.append(Unplaced(lanes.unplaced, orders));
    QJsonObject stack = PlayingObject("Stack.1", NameOf(node));
    stack[QStringLiteral("children")] = tracks;
    stack[QStringLiteral("markers")] = MarkersOf(node);
    return stack;
}

QJsonObject OtioWriter::Track(const Clips& clips, const LaneJoins& joins, const Orders& orders,
                              bool isSound, bool isTwin)
{
    QJsonArray children;
    std::int64_t end = 0;
    const TimelineNode* before = nullptr;
    for (const auto& [position, placed] : clips) {
        const TimelineNode& clip = *placed.node;
        if (position > end)
            children.append(GapOf(position - end, clip.FrameRate()));
        const auto join = std::find_if(joins.begin(), joins.end(), [&](const LaneJoin& one) {
            return one.from == before && one.to == &clip;
        });
        if (join != joins.end())
            children.append(TransitionOf(*join));
        else if (!isTwin)
            AppendTransition(clip, kTransitionBefore, children);
        children.append(Item(clip, placed.placement.range, orders.value(&clip), isTwin));
        if (!isTwin)
            AppendTransition(clip, kTransitionAfter, children);
        end = placed.placement.End();
        before = &clip;
    }
    QJsonObject track = PlayingObject("Track.1", QString());
    track[QStringLiteral("kind")] = isSound ? QStringLiteral("Audio") : QStringLiteral("Video");
    track[QStringLiteral("children")] = children;
    if (isTwin)
        track[QStringLiteral("metadata")] =
            QJsonObject{{kOwn, QJsonObject{{QStringLiteral("kind"), kTwin}}}};
    return track;
}

QJsonObject OtioWriter::Unplaced(const std::vector<const TimelineNode*>& clips,
                                 const Orders& orders)
{
    QJsonArray children;
    for (const TimelineNode* clip : clips) {
        const NLERange range = clip->Range();
        children.append(Item(*clip, NLERangeLength(range) > 0 ? range : NLERange{0, 0},
                             orders.value(clip), false));
    }
    QJsonObject track = PlayingObject("Track.1", QString());
    track[QStringLiteral("kind")] = QStringLiteral("Video");
    track[QStringLiteral("enabled")] = false;
    track[QStringLiteral("children")] = children;
    track[QStringLiteral("metadata")] =
        QJsonObject{{kOwn, QJsonObject{{QStringLiteral("kind"), kUnplaced}}}};
    return track;
}

QJsonObject OtioWriter::Item(const TimelineNode& node, const NLERange& range, int order,
                             bool isTwin)
{
    const auto* composite = dynamic_cast<const CompositeNode*>(&node);
    QJsonObject item = composite ? Stack(*composite) : PlayingObject("Clip.1", NameOf(node));
    double start = range.in * node.Speed();
    if (node.IsFrozen())
        start = node.MakeSnapshot()->frozenFrame.value_or(0);
    start += MediaStart(node) * ExactRate(node.FrameRate());
    item[QStringLiteral("source_range")] =
        Range(start, double(NLERangeLength(range)), node.FrameRate());
    item[QStringLiteral("effects")] = SpeedEffects(node);
    item[QStringLiteral("enabled")] = node.IsEnabled();
    item[QStringLiteral("markers")] = MarkersOf(node);
    if (!composite)
        item[QStringLiteral("media_reference")] = MediaReference(node);
    if (!isTwin)
        item[QStringLiteral("metadata")] = Metadata(node, order);
    return item;
}

QJsonObject OtioWriter::MediaReference(const TimelineNode& node)
{
    QJsonObject reference = Object("GeneratorReference.1", QString());
    reference[QStringLiteral("available_range")] = QJsonValue();
    if (const auto* color = dynamic_cast<const ColorClip*>(&node)) {
        reference[QStringLiteral("generator_kind")] = QStringLiteral("SolidColor");
        reference[QStringLiteral("parameters")] =
            QJsonObject{{QStringLiteral("color"), ColorText(color->Argb())}};
        return reference;
    }
    if (node.IsTransition()) {
        // Other programs find nothing to show in its place.
        reference[QStringLiteral("generator_kind")] = QStringLiteral("SolidColor");
        reference[QStringLiteral("parameters")] =
            QJsonObject{{QStringLiteral("color"), ColorText(0)}};
        return reference;
    }
    if (const auto text = TextOf(node)) {
        reference[QStringLiteral("generator_kind")] = QStringLiteral("Text");
        reference[QStringLiteral("parameters")] =
            QJsonObject{{QStringLiteral("text"), PlainText(text->text)},
                        {QStringLiteral("family"), PlainText(text->family)}};
        return reference;
    }
    const MediaInfo& media = static_cast<const MediaClip&>(node).Media();
    reference[QStringLiteral("available_image_bounds")] = QJsonValue();
    const bool hasFrames = media.frameCount > 0 && IsRate(media.frameRate);
    if (hasFrames && media.kind != NLEMedia_Image) {
        const double start = MediaStart(node) * ExactRate(media.frameRate);
        reference[QStringLiteral("available_range")] =
            Range(start, double(media.frameCount), media.frameRate);
    }
    const bool hasFile = node.Bag().IntOr(kNoFile, 0) == 0 || media.kind != NLEMedia_Offline;
    reference[kSchema] =
        hasFile ? QStringLiteral("ExternalReference.1") : QStringLiteral("MissingReference.1");
    if (hasFile)
        reference[QStringLiteral("target_url")] = MediaUrl(media.path, m_folder);
    return reference;
}

QJsonObject OtioWriter::Metadata(const TimelineNode& node, int order)
{
    QJsonObject own;
    const auto put = [&own](const QString& name, const QString& text) {
        own[EncodeText(name.mid(kOwnPrefix.size()))] = EncodeText(text);
    };
    for (const auto& [name, text] : OwnTexts(node, order, m_folder))
        put(name, text);
    if (const auto text = TextOf(node)) {
        put(kExactText, text->text);
        put(kExactFamily, text->family);
    }
    QJsonObject metadata = KeptJson(node, kMetadata).object();
    metadata[kOwn] = own;
    return metadata;
}

} // namespace nle
