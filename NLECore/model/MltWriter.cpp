// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MltWriter.h"

#include "NLECore/model/DocumentNodes.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/EffectFilters.h"
#include "NLECore/model/MltEffects.h"
#include "NLECore/model/MltSource.h"
#include "NLECore/model/MotionFilters.h"
#include "NLECore/model/SoundFilters.h"
#include "NLECore/model/TitleClip.h"
#include "NLECore/scene/Title.h"

#include <QLocale>

#include <numeric>

namespace nle {

using namespace document;

namespace {

QString Reduced(std::int64_t value, std::int64_t other)
{
    return QString::number(value / std::gcd(value, other));
}

/// Frames that a service must have so that all of the node's range can play.
std::int64_t ServiceLength(const TimelineNode& node)
{
    return std::max<std::int64_t>({1, node.TotalLength(), std::int64_t(node.Range().out) + 1});
}

/// In the order of TitleAlignment.
constexpr const char* kAlignments[] = {"left", "center", "right"};

/// The filters of the tracks of a level.
std::vector<DocumentFilter> StripFilters(int level, const MixerSettings& mixer)
{
    const auto strip = mixer.find(level);
    const bool isSolo = strip != mixer.end() && strip->second.solo != 0;
    return nle::StripFilters(strip == mixer.end() ? kNeutralStrip : strip->second,
                             AnySolo(mixer) && !isSolo);
}

bool HoldsTexts(const DocumentLane& lane)
{
    return std::all_of(lane.clips.begin(), lane.clips.end(),
                       [](const auto& clip) { return TextOf(*clip.second.node).has_value(); });
}

/// What of a track is off, because of its clips or of its level; null: nothing.
const char* HiddenPart(const DocumentLane& lane, const CompositeNode& node)
{
    const LevelParts off = OffParts(node, lane.level);
    const bool isSilent = off.sound || lane.streams == NLERender_VideoOnly;
    if (off.picture || lane.streams == NLERender_AudioOnly)
        return isSilent ? "both" : "video";
    return isSilent ? "audio" : nullptr;
}

} // namespace

MltWriter::MltWriter(QString& text, const QDir& folder) : m_xml(&text), m_folder(folder)
{
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
}

void MltWriter::Write(const TimelineNode& root)
{
    m_xml.writeStartDocument();
    m_xml.writeStartElement(QStringLiteral("mlt"));
    m_xml.writeAttribute(QStringLiteral("LC_NUMERIC"), QStringLiteral("C"));
    m_xml.writeAttribute(QStringLiteral("version"), QStringLiteral("7.0.0"));
    WriteProfile(root);
    WriteNode(root, 0);
    m_xml.writeEndDocument();
}

void MltWriter::WriteProfile(const TimelineNode& root)
{
    const auto* project = dynamic_cast<const ProjectNode*>(&root);
    const tagNLEProjectProfile profile = project ? project->Profile() : kDefaultProfile;
    const NLESize size = profile.frameSize;
    const NLERational rate = root.FrameRate();
    const auto number = [this](const char* name, const QString& value) {
        m_xml.writeAttribute(QLatin1String(name), value);
    };
    m_xml.writeEmptyElement(QStringLiteral("profile"));
    number("width", QString::number(size.width));
    number("height", QString::number(size.height));
    number("progressive", QStringLiteral("1"));
    number("sample_aspect_num", QStringLiteral("1"));
    number("sample_aspect_den", QStringLiteral("1"));
    number("display_aspect_num", Reduced(size.width, size.height));
    number("display_aspect_den", Reduced(size.height, size.width));
    number("frame_rate_num", Reduced(rate.num, rate.den));
    number("frame_rate_den", Reduced(rate.den, rate.num));
    number("colorspace", QStringLiteral("709"));
}

QString MltWriter::WriteNode(const TimelineNode& node, int order)
{
    const auto* composite = dynamic_cast<const CompositeNode*>(&node);
    return composite ? WriteComposite(*composite, order) : WriteProducer(node, order);
}

QString MltWriter::StartService(const char* element, std::int64_t length)
{
    QString id = NewId(element);
    m_xml.writeStartElement(QLatin1String(element));
    m_xml.writeAttribute(QStringLiteral("id"), id);
    m_xml.writeAttribute(QStringLiteral("in"), QStringLiteral("0"));
    m_xml.writeAttribute(QStringLiteral("out"), QString::number(length - 1));
    return id;
}

QString MltWriter::WriteProducer(const TimelineNode& node, int order)
{
    const std::int64_t length = ServiceLength(node);
    QString id = StartService("producer", length);
    // Else other programs take pictures and colours for ten minutes long.
    Property(QStringLiteral("length"), QString::number(length));
    if (const auto* media = dynamic_cast<const MediaClip*>(&node)) {
        WriteMedia(*media);
    } else if (const auto* color = dynamic_cast<const ColorClip*>(&node)) {
        Property(QStringLiteral("mlt_service"), QStringLiteral("color"));
        Property(QStringLiteral("resource"), ColorText(color->Argb()));
    } else if (const auto* text = dynamic_cast<const TextClip*>(&node)) {
        WriteText(*text);
    } else if (const auto* title = dynamic_cast<const TitleClip*>(&node)) {
        WriteTitle(*title);
    } else if (node.IsTransition()) {
        // Other programs find nothing to show in its place.
        Property(QStringLiteral("mlt_service"), QStringLiteral("color"));
        Property(QStringLiteral("resource"), ColorText(0));
    }
    WriteCommon(node, order);
    m_xml.writeEndElement();
    return id;
}

void MltWriter::WriteText(const TextClip& clip)
{
    Property(QStringLiteral("mlt_service"), QStringLiteral("qtext"));
    Property(QStringLiteral("text"), clip.Text());
    Property(QStringLiteral("family"), clip.Family());
    Property(QStringLiteral("size"), QString::number(DocumentTextSize(clip)));
    Property(QStringLiteral("align"), QStringLiteral("center"));
    Property(QStringLiteral("fgcolour"), QStringLiteral("#ffffffff"));
    Property(QStringLiteral("bgcolour"), QStringLiteral("#00000000"));
}

void MltWriter::WriteTitle(const TitleClip& clip)
{
    constexpr double boldWeight = 700;
    constexpr double usualWeight = 400;
    const Snapshot layer = clip.MakeSnapshot();
    const TitleLook look = MomentOf(*layer, layer->range.in).look;
    const int size = DocumentTextSize(clip);
    const auto number = [this](const char* name, double value) {
        Property(QLatin1String(name), QString::number(std::lround(value)));
    };
    Property(QStringLiteral("mlt_service"), QStringLiteral("qtext"));
    Property(QStringLiteral("text"), clip.Text());
    Property(QStringLiteral("family"), clip.Font());
    number("size", size);
    number("weight", look.bold ? boldWeight : usualWeight);
    Property(QStringLiteral("style"),
             look.italic ? QStringLiteral("italic") : QStringLiteral("normal"));
    Property(QStringLiteral("align"), QLatin1String(kAlignments[size_t(look.alignment)]));
    Property(QStringLiteral("fgcolour"), ColorText(look.color));
    // There it lies over the letters, half of it within them.
    number("outline", look.outline * size);
    Property(QStringLiteral("olcolour"), ColorText(look.outlineColor));
    number("pad", look.boxColor >> 24 != 0 ? look.boxPadding * size : 0);
    Property(QStringLiteral("bgcolour"), ColorText(look.boxColor));
}

void MltWriter::WriteMedia(const MediaClip& clip)
{
    const MltSource source = SourceOf(clip, m_folder);
    Property(QStringLiteral("mlt_service"), source.service);
    if (source.speed == 1) {
        Property(QStringLiteral("resource"), source.resource);
    } else {
        const QString speed = QString::number(source.speed, 'g', QLocale::FloatingPointShortest);
        Property(QStringLiteral("resource"), speed + QLatin1Char(':') + source.resource);
        Property(QStringLiteral("warp_speed"), speed);
        Property(QStringLiteral("warp_resource"), source.resource);
        Property(QStringLiteral("warp_pitch"), QStringLiteral("0"));
    }
    if (source.frozen)
        Property(QStringLiteral("frame"), QString::number(*source.frozen));
    // Other programs show and sound one stream of each type.
    const DocumentFields indexes = IndexesOf(clip);
    for (const QString& name : {QStringLiteral("video_index"), QStringLiteral("audio_index")}) {
        if (indexes.contains(name))
            Property(name, indexes.value(name));
    }
}

void MltWriter::WriteCommon(const TimelineNode& node, int order)
{
    const std::vector<DocumentFilter> sounds = SoundFilters(node);
    const std::vector<DocumentFilter> pictures = MotionFilters(node);
    for (const auto& [name, text] : OwnTexts(node, order, m_folder))
        Property(name, text);
    if (!sounds.empty() || !pictures.empty())
        Property(kFilters, QStringLiteral("%1 %2").arg(sounds.size()).arg(pictures.size()));
    WriteFilters(sounds);
    // What is done to a picture before it comes to its place.
    WriteFilters(EffectFilters(node));
    WriteFilters(pictures);
}

void MltWriter::WriteFilters(const std::vector<DocumentFilter>& filters)
{
    for (const DocumentFilter& filter : filters) {
        m_xml.writeStartElement(QStringLiteral("filter"));
        WriteEffect(filter);
        m_xml.writeEndElement();
    }
}

void MltWriter::WriteEffect(const DocumentFilter& effect)
{
    if (effect.range) {
        m_xml.writeAttribute(QStringLiteral("in"), QString::number(effect.range->in));
        m_xml.writeAttribute(QStringLiteral("out"), QString::number(effect.range->out));
    }
    for (const auto& [name, value] : effect.properties)
        Property(name, value);
    Property(kWritten, FilterSum(effect));
}

QString MltWriter::WriteComposite(const CompositeNode& node, int order)
{
    // MLT reads a document in one pass, so what is referred to stands first.
    Ids ids;
    int clipOrder = 0;
    for (const NLEComPtr<TimelineNode>& clip : node.Clips())
        ids[clip.get()] = WriteNode(*clip, clipOrder++);
    const LaneJoins joins =
        JoinsOf(node, [](const LaneJoin& join) { return HasLuma(*join.transition); });
    const DocumentLanes lanes = LanesOf(node, joins, JoinedClips::Overlap);
    QStringList tracks = {WriteBackground(node)};
    std::vector<const char*> hidden = {nullptr};
    MltTransitions transitions = TransitionsInMlt(node, lanes);
    for (int lane = 0; lane < int(lanes.lanes.size()); ++lane) {
        std::vector<DocumentFilter> filters =
            StripFilters(lanes.lanes[size_t(lane)].level, node.Mixer().settings);
        for (DocumentFilter& filter : transitions.onLanes[lane])
            filters.push_back(std::move(filter));
        hidden.push_back(HiddenPart(lanes.lanes[size_t(lane)], node));
        tracks << WriteLane(lanes.lanes[size_t(lane)], ids, hidden.back(), filters);
    }
    const QString unplaced =
        lanes.unplaced.empty() ? QString() : WriteUnplaced(lanes.unplaced, ids);

    QString id = StartService("tractor", std::max(1, node.TotalLength()));
    for (int track = 0; track < tracks.size(); ++track)
        WriteTrack(tracks[track], hidden[size_t(track)]);
    if (!unplaced.isEmpty())
        WriteTrack(unplaced, "both");
    // What is between two tracks becomes a part of the first before that goes into the whole.
    for (const MltBetween& between : transitions.between)
        WriteBetween(between);
    for (int track = 1; track < tracks.size(); ++track) {
        WriteMix(track);
        WriteBlend(track, lanes.lanes[size_t(track) - 1], node.Parent() != nullptr);
    }
    WriteCommon(node, order);
    m_xml.writeEndElement();
    return id;
}

QString MltWriter::WriteBackground(const CompositeNode& node)
{
    QString id = StartService("producer", std::max(1, node.TotalLength()));
    Property(QStringLiteral("length"), QString::number(std::max(1, node.TotalLength())));
    Property(QStringLiteral("mlt_service"), QStringLiteral("color"));
    Property(QStringLiteral("resource"), ColorText(DocumentBackground(node)));
    Property(kKind, kBackground);
    m_xml.writeEndElement();
    return id;
}

QString MltWriter::WriteLane(const DocumentLane& lane, const Ids& ids, const char* hide,
                             const std::vector<DocumentFilter>& filters)
{
    QString id = NewId("playlist");
    m_xml.writeStartElement(QStringLiteral("playlist"));
    m_xml.writeAttribute(QStringLiteral("id"), id);
    if (hide)
        Property(kWrittenHide, QLatin1String(hide));
    std::int64_t end = 0;
    for (const auto& [position, clip] : lane.clips) {
        const Placement& placement = clip.placement;
        if (position > end) {
            m_xml.writeEmptyElement(QStringLiteral("blank"));
            m_xml.writeAttribute(QStringLiteral("length"), QString::number(position - end));
        }
        EntryOf(ids.value(clip.node), placement.range);
        end = placement.End();
    }
    WriteFilters(filters);
    m_xml.writeEndElement();
    return id;
}

QString MltWriter::WriteUnplaced(const std::vector<const TimelineNode*>& clips, const Ids& ids)
{
    QString id = NewId("playlist");
    m_xml.writeStartElement(QStringLiteral("playlist"));
    m_xml.writeAttribute(QStringLiteral("id"), id);
    Property(kKind, kUnplaced);
    for (const TimelineNode* clip : clips) {
        const NLERange range = clip->Range();
        EntryOf(ids.value(clip), NLERangeLength(range) > 0 ? range : NLERange{0, 0});
    }
    m_xml.writeEndElement();
    return id;
}

void MltWriter::WriteTrack(const QString& producer, const char* hide)
{
    m_xml.writeEmptyElement(QStringLiteral("track"));
    m_xml.writeAttribute(QStringLiteral("producer"), producer);
    if (hide)
        m_xml.writeAttribute(QStringLiteral("hide"), QLatin1String(hide));
}

void MltWriter::StartTransition(const char* service, int track)
{
    m_xml.writeStartElement(QStringLiteral("transition"));
    Property(QStringLiteral("mlt_service"), QLatin1String(service));
    Property(QStringLiteral("a_track"), QStringLiteral("0"));
    Property(QStringLiteral("b_track"), QString::number(track));
    Property(QStringLiteral("always_active"), QStringLiteral("1"));
}

void MltWriter::WriteBetween(const MltBetween& between)
{
    m_xml.writeStartElement(QStringLiteral("transition"));
    WriteEffect(between.effect);
    // The background is the first track.
    Property(QStringLiteral("a_track"), QString::number(between.from + 1));
    Property(QStringLiteral("b_track"), QString::number(between.to + 1));
    m_xml.writeEndElement();
}

void MltWriter::WriteMix(int track)
{
    StartTransition("mix", track);
    Property(QStringLiteral("sum"), QStringLiteral("1"));
    m_xml.writeEndElement();
}

void MltWriter::WriteBlend(int track, const DocumentLane& lane, bool isInner)
{
    // The two plain ones are in every build of the framework, the other one knows the modes. That
    // for pictures as they are misplaces them in a timeline that is scaled as a whole.
    const BlendMode mode = lane.blend;
    if (mode != BlendMode::Normal) {
        StartTransition("qtblend", track);
        Property(QStringLiteral("compositing"), QString::number(MltCompositing(mode)));
    } else {
        StartTransition(isInner ? "affine" : "composite", track);
        if (isInner) {
            Property(QStringLiteral("repeat_off"), QStringLiteral("1"));
            Property(QStringLiteral("mirror_off"), QStringLiteral("1"));
        } else {
            Property(QStringLiteral("geometry"), QStringLiteral("0/0:100%x100%:100"));
            // Else a text, whose filter gives a whole picture, is placed once more by its letters.
            if (HoldsTexts(lane))
                Property(QStringLiteral("distort"), QStringLiteral("1"));
        }
        Property(QStringLiteral("halign"), QStringLiteral("centre"));
        Property(QStringLiteral("valign"), QStringLiteral("middle"));
        Property(QStringLiteral("fill"), QStringLiteral("1"));
    }
    m_xml.writeEndElement();
}

void MltWriter::EntryOf(const QString& producer, const NLERange& range)
{
    m_xml.writeEmptyElement(QStringLiteral("entry"));
    m_xml.writeAttribute(QStringLiteral("producer"), producer);
    m_xml.writeAttribute(QStringLiteral("in"), QString::number(range.in));
    m_xml.writeAttribute(QStringLiteral("out"), QString::number(range.out));
}

void MltWriter::Property(const QString& name, const QString& value)
{
    const bool isOwn = name.startsWith(kOwnPrefix);
    const QString text = isOwn ? EncodeText(value) : PlainText(value);
    m_xml.writeStartElement(QStringLiteral("property"));
    m_xml.writeAttribute(QStringLiteral("name"), isOwn ? EncodeText(name) : name);
    m_xml.writeCharacters(text);
    m_xml.writeEndElement();
    if (!isOwn && text != value)
        Property(kExactPrefix + name, value);
}

QString MltWriter::NewId(const char* prefix)
{
    return QLatin1String(prefix) + QString::number(m_lastId++);
}

} // namespace nle
