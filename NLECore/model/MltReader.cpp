// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MltReader.h"

#include "EngineApi/NLEKey.h"
#include "NLECore/model/DocumentFilter.h"
#include "NLECore/model/MltEffects.h"
#include "NLECore/model/MltTransitions.h"
#include "NLECore/model/TransitionNode.h"
#include "NLECore/scene/FrameMath.h"

#include <QFileInfo>

#include <algorithm>

namespace nle {

using namespace document;

namespace {

/// Frames of a service whose document and file do not say how many it has.
constexpr std::int64_t kPresetLength = 15000;

QString Value(const DocumentFields& properties, const char* name)
{
    return properties.value(QLatin1String(name));
}

/// Whether the transition lays a track over those below it, or adds its sound, as it is.
bool IsPlain(const MltEffect& transition)
{
    const QString service = transition.Service();
    const auto isUnset = [&transition](const char* name) {
        return Value(transition.properties, name).isEmpty();
    };
    if (service == QLatin1String("mix"))
        return isUnset("start") || MltNumber(Value(transition.properties, "sum"), 0) != 0;
    if (service == QLatin1String("frei0r.cairoblend")) {
        const QString mode = Value(transition.properties, "1");
        return mode.isEmpty() || mode == QLatin1String("normal");
    }
    if (service == QLatin1String("qtblend"))
        return isUnset("rect") && isUnset("rotation");
    const QString geometry = Value(transition.properties, "geometry");
    if (service == QLatin1String("composite"))
        return isUnset("luma") &&
               (geometry.isEmpty() || geometry.startsWith(QLatin1String("0/0:")) ||
                geometry.startsWith(QLatin1String("0=0/0:")));
    return service == QLatin1String("affine") && isUnset("rect") && geometry.isEmpty();
}

/// What plays when one track lies in another.
QString Hidden(const QString& outer, const QString& inner)
{
    if (outer.isEmpty() || outer == inner)
        return inner;
    return inner.isEmpty() ? outer : QStringLiteral("both");
}

/// Settings as they are before any filter.
void ForgetSound(AudioSettings& sound)
{
    const AudioSettings preset;
    sound.volumeEnabled = preset.volumeEnabled;
    sound.volume = preset.volume;
    sound.mute = preset.mute;
    sound.balance = preset.balance;
    sound.fadeIn = preset.fadeIn;
    sound.fadeOut = preset.fadeOut;
    sound.mono = preset.mono;
    sound.volumePoints.clear();
}

void ForgetPicture(TimelineNode& node)
{
    node.Transform().settings = TransformSettings();
    node.KeyFrames().Restore({});
    node.Blend().settings.alpha = kOpaqueAlpha;
}

bool IsAsWritten(const MltEffect& filter)
{
    return FilterIsAsWritten(filter.properties, filter.properties.value(kWritten));
}

/// Whether filters of one sort are all that were written, and no others.
bool AreAsWritten(const std::vector<MltEffect>& filters, bool (*isOne)(const MltEffect&), int count)
{
    int found = 0;
    for (const MltEffect& filter : filters) {
        if (!isOne(filter))
            continue;
        if (!IsAsWritten(filter) && !filter.IsOff())
            return false;
        found += IsAsWritten(filter) ? 1 : 0;
    }
    return found == count;
}

/// Filters that were written with a clip say less than its own settings, which hold as long as all
/// of them are still there and no others. Leaves those that count; where it leaves some of a sort,
/// \a node has no settings of that sort any more.
void DropWritten(const QString& counts, std::vector<MltEffect>& filters, TimelineNode& node)
{
    const int sounds = counts.section(QLatin1Char(' '), 0, 0).toInt();
    const int pictures = counts.section(QLatin1Char(' '), 1, 1).toInt();
    const bool isSoundOurs = AreAsWritten(filters, MltEffects::IsSound, sounds);
    const bool isPictureOurs = AreAsWritten(filters, MltEffects::IsPicture, pictures);
    const auto isOurs = [&](const MltEffect& filter) {
        if (MltEffects::IsSound(filter))
            return isSoundOurs;
        return MltEffects::IsPicture(filter) ? isPictureOurs : IsAsWritten(filter);
    };
    filters.erase(std::remove_if(filters.begin(), filters.end(), isOurs), filters.end());
    if (!isSoundOurs)
        ForgetSound(node.Audio().settings);
    if (!isPictureOurs)
        ForgetPicture(node);
}

bool IsText(const MltEffect& effect, const char* name, const char* text)
{
    return Value(effect.properties, name) == QLatin1String(text);
}

/// Whether the transition fades from one picture to the other as a whole.
bool IsDissolve(const MltEffect& transition)
{
    return IsText(transition, "mlt_service", "luma") &&
           Value(transition.properties, "resource").isEmpty() &&
           MltNumber(Value(transition.properties, "invert"), 0) == 0;
}

/// Whether the transition fades from one sound to the other.
bool IsCrossfade(const MltEffect& transition)
{
    return IsText(transition, "mlt_service", "mix") &&
           MltNumber(Value(transition.properties, "start"), 0) == -1;
}

/// Lets \a node, which covers the other clip, come or go over \a range of its parent.
void FadePicture(TimelineNode& node, const NLERange& range, bool comes)
{
    const double shift = double(node.Range().in) - node.Position();
    KeyFrameCurve curve = *node.KeyFrames().Stored();
    if (curve.frames.empty())
        curve.axis = KeyFrameAxis::Of(node.Range());
    const auto put = [&](double frame, double opacity) {
        NLEKeyFrameRecord record = curve.AtFrame(frame + shift);
        record.time = curve.axis.TimeOf(frame + shift);
        record.opacity = opacity;
        return record;
    };
    const NLEKeyFrameRecord first = put(range.in, comes ? 0 : 1);
    const NLEKeyFrameRecord last = put(double(range.out) + 1, comes ? 1 : 0);
    curve.frames.push_back(first);
    curve.frames.push_back(last);
    node.KeyFrames().Restore(curve);
}

/// Lets the clips that begin and end in \a range of their parent fade.
void FadeSound(TimelineNode& node, const NLERange& range)
{
    AudioSettings& sound = node.Audio().settings;
    const int frames = ClampToInt(double(NLERangeLength(range)));
    if (node.Position() == range.in) {
        sound.fadeIn = true;
        sound.fadeInFrames = frames;
    } else if (node.Position() + NLERangeLength(node.Range()) == std::int64_t(range.out) + 1) {
        sound.fadeOut = true;
        sound.fadeOutFrames = frames;
    }
}

std::int64_t End(const TimelineNode& node)
{
    return node.Position() + NLERangeLength(node.Range());
}

bool Contains(const TimelineNode& node, const NLERange& range)
{
    return node.Position() <= range.in && End(node) > range.out;
}

bool IsLuma(const MltEffect& transition)
{
    return IsText(transition, "mlt_service", "luma");
}

/// The transition that shows a `luma`, whichever of its clips comes; null for another pattern.
NLEComPtr<TimelineNode> TransitionOfMlt(const MltEffect& luma)
{
    if (IsDissolve(luma))
        return MakeCom<TransitionNode>(*FindTransition(QStringLiteral("dissolve")));
    const auto isSet = [&luma](const char* name) {
        return MltNumber(Value(luma.properties, name), 0) != 0;
    };
    const QString name =
        Value(luma.properties, "resource").section(QLatin1Char('/'), -1).remove(QLatin1Char('%'));
    std::optional<ParameterValues> wipe = WipeOfMlt(name, isSet("invert") != isSet("reverse"));
    if (!wipe)
        return nullptr;
    wipe->SetNumber(wipe->Declared().IndexOf(QLatin1String(TransitionParameter::kSoftness)),
                    std::clamp(MltNumber(Value(luma.properties, "softness"), 0), 0.0, 1.0));
    NLEComPtr<TransitionNode> node = MakeCom<TransitionNode>(wipe->Declared());
    node->Parameters().Restore(*wipe);
    return node;
}

void SetCrossFade(CrossFade fade, TimelineNode& transition)
{
    auto& parameters = static_cast<TransitionNode&>(transition).Parameters();
    ParameterValues values = *parameters.Shared();
    values.SetNumber(values.Declared().IndexOf(QLatin1String(TransitionParameter::kSound)),
                     double(fade));
    parameters.Restore(values);
}

} // namespace

MltReader::MltReader(const QByteArray& text, const QDir& folder) : m_text(text), m_nodes(folder) {}

NLEComPtr<TimelineNode> MltReader::Read()
{
    if (!ReadMlt(m_text, &m_document, &m_error))
        return nullptr;
    m_nodes.SetRoot(m_document.root);
    tagNLEProjectProfile profile = m_nodes.profile;
    profile.frameSize = m_document.size;
    profile.frameRate = m_document.frameRate;
    if (ProjectNode::IsValid(profile))
        m_nodes.profile = profile;
    if (m_document.lostReferences > 0)
        m_nodes.remarks.Add(
            NLERemark_Structure,
            QStringLiteral("entries without a producer: %1").arg(m_document.lostReferences));
    const int root = Unwrapped(m_document.last);
    NLEComPtr<TimelineNode> node;
    if (root >= 0) {
        DescribeMedia(Reachable(root));
        MeasureServices();
        node = Make(root, true);
    }
    if (!node)
        m_error = QStringLiteral("no timeline in the document");
    return node;
}

int MltReader::Unwrapped(int root) const
{
    const auto isTractor = [this](int index) {
        return index >= 0 && m_document.services[size_t(index)].element == QLatin1String("tractor");
    };
    while (isTractor(root)) {
        const MltService& service = m_document.services[size_t(root)];
        const bool isOne = !service.IsOwn() && service.items.size() == 1 &&
                           service.filters.empty() && Frames(service.items.front().in, 0) == 0;
        if (!isOne || !isTractor(service.items.front().service))
            break;
        root = service.items.front().service;
    }
    return root;
}

std::vector<int> MltReader::Reachable(int root) const
{
    std::vector<bool> isSeen(m_document.services.size(), false);
    std::vector<int> result = {root};
    isSeen[size_t(root)] = true;
    for (size_t i = 0; i < result.size(); ++i) {
        for (const MltItem& item : m_document.services[size_t(result[i])].items) {
            if (item.service >= 0 && !isSeen[size_t(item.service)]) {
                isSeen[size_t(item.service)] = true;
                result.push_back(item.service);
            }
        }
    }
    return result;
}

void MltReader::DescribeMedia(const std::vector<int>& services)
{
    std::set<QString> names;
    for (const int index : services) {
        const MltService& service = m_document.services[size_t(index)];
        const MltSource source = SourceOf(service);
        if (!service.HoldsClips() && source.kind == MltSource::Kind::Media)
            names.insert(source.resource);
        for (const QString& name : MediaInSettings(service.properties))
            names.insert(name);
    }
    names.erase(QString());
    m_nodes.DescribeMedia(names);
}

void MltReader::MeasureServices()
{
    // Each stands behind those that it refers to.
    m_lengths.reserve(m_document.services.size());
    for (const MltService& service : m_document.services)
        m_lengths.push_back(LengthOf(service));
}

std::int64_t MltReader::LengthOf(const MltService& service) const
{
    const auto add = [](std::int64_t a, std::int64_t b) {
        return std::min<std::int64_t>(a + b, INT32_MAX);
    };
    std::int64_t length = 0;
    for (const MltItem& item : service.items) {
        const std::int64_t shown =
            item.service < 0 ? item.blank : NLERangeLength(RangeOf(item)) * item.repeat;
        length = service.element == QLatin1String("playlist") ? add(length, shown)
                                                              : std::max(length, shown);
    }
    if (service.HoldsClips())
        return length;
    const std::int64_t named = Frames(Value(service.properties, "length"), 0);
    if (named > 0)
        return named;
    const MltSource source = SourceOf(service);
    if (source.kind != MltSource::Kind::Media)
        return kPresetLength;
    const auto media = m_nodes.MediaOf(source.resource);
    if (media->frameCount < 1 || media->kind == NLEMedia_Image || source.frozen)
        return kPresetLength;
    const FrameTime end = {double(media->frameCount) / std::max(0.01, std::abs(source.speed)),
                           media->frameRate};
    return std::max(1, end.NearestAt(m_nodes.profile.frameRate));
}

NLERange MltReader::RangeOf(const MltItem& item) const
{
    const MltService& service = m_document.services[size_t(item.service)];
    const std::int64_t length = m_lengths[size_t(item.service)];
    if (length < 1 && !service.IsOwn())
        return {0, -1};
    std::int64_t in = Frames(item.in, Frames(service.in, 0));
    std::int64_t out = Frames(item.out, Frames(service.out, length - 1));
    // A document of this engine may show more than there is.
    if (!service.IsOwn()) {
        in = std::clamp<std::int64_t>(in, 0, std::max<std::int64_t>(0, length - 1));
        out = std::clamp<std::int64_t>(out, 0, std::max<std::int64_t>(0, length - 1));
        if (out < in)
            std::swap(in, out);
    }
    return {ClampToInt(double(in)), ClampToInt(double(out))};
}

NLEComPtr<TimelineNode> MltReader::Make(int index, bool isRoot)
{
    const MltService& service = m_document.services[size_t(index)];
    // A short text can name more clips than there is memory, each service the next one twice.
    if (!m_nodes.TakeOne())
        return nullptr;
    if (!service.HoldsClips()) {
        NLEComPtr<TimelineNode> node = MakeProducer(service);
        if (isRoot && !service.IsOwn()) {
            MltItem whole;
            whole.service = index;
            DocumentNodes::Place(*node, service.properties, {0, RangeOf(whole)}, 0);
        }
        if (isRoot)
            TakeFilters(service, nullptr, *node);
        return node;
    }
    if (m_depth >= kDeepestNesting) {
        m_nodes.remarks.Add(NLERemark_Structure, QStringLiteral("timelines nested too deep"));
        return nullptr;
    }
    ++m_depth;
    NLEComPtr<TimelineNode> node = MakeComposite(service, isRoot);
    --m_depth;
    return node;
}

NLEComPtr<TimelineNode> MltReader::MakeProducer(const MltService& service)
{
    if (DocumentNodes::IsTransition(service.properties))
        return m_nodes.MakeTransition(service.properties);
    const MltSource source = SourceOf(service);
    switch (source.kind) {
    case MltSource::Kind::Media:
        return MakeMedia(source, service);
    case MltSource::Kind::Color:
        return m_nodes.MakeColor(ParseMltColor(source.resource), service.properties);
    case MltSource::Kind::Text:
        return m_nodes.MakeText(source.resource, source.family, service.properties);
    case MltSource::Kind::Unknown:
        break;
    }
    m_nodes.remarks.Add(
        NLERemark_Service,
        QStringLiteral("%1: unknown kind of clip %2").arg(NameOf(service), source.service));
    return m_nodes.MakeColor(0, service.properties);
}

NLEComPtr<TimelineNode> MltReader::MakeMedia(const MltSource& source, const MltService& service)
{
    NLEComPtr<TimelineNode> node = m_nodes.MakeMedia(source.resource, service.properties);
    auto& clip = static_cast<MediaClip&>(*node);
    TakeStreams(service, clip);
    if (service.IsOwn()) {
        // The clip's own values hold unless the document plays otherwise than it was written.
        const MltSource written = SourceOf(clip, QDir());
        const bool isSame = written.frozen == source.frozen &&
                            DocumentNodes::IsSameSpeed(written.speed, source.speed);
        if (isSame || clip.Media().kind == NLEMedia_Offline)
            return node;
    }
    m_nodes.SetPlaying(source.frozen, source.speed, NameOf(service), *node);
    if (source.keepsPitch)
        KeepPitch(NameOf(service), *node);
    for (const MltEffect& link : service.links) {
        if (link.Service() == QLatin1String("timeremap"))
            m_nodes.remarks.Add(NLERemark_Speed,
                                QStringLiteral("speed ramp of %1").arg(NameOf(service)));
        else if (!link.Service().isEmpty() && !link.IsOff())
            m_nodes.remarks.Add(
                NLERemark_Effect,
                QStringLiteral("effect %1 of %2").arg(link.Service(), NameOf(service)));
    }
    return node;
}

// Those that were chosen here hold unless another program has chosen others.
void MltReader::TakeStreams(const MltService& service, MediaClip& clip)
{
    const MltStreams found = StreamsOf(service.properties, clip.Media());
    if (service.IsOwn() && found == StreamsOf(IndexesOf(clip), clip.Media()))
        return;
    clip.Source().videoStream = found.video;
    clip.Source().audioStreams = found.audio;
    DocumentNodes::Hide(found.isHidden, found.isSilent, clip);
}

void MltReader::KeepPitch(const QString& name, TimelineNode& node)
{
    // The tone goes up with the speed here, so it is brought down again.
    constexpr double octave = 12;
    const double semitones = -octave * std::log2(node.Speed());
    const double nearest =
        std::clamp(std::round(semitones), -double(kMostSemitones), double(kMostSemitones));
    node.Audio().settings.pitch = int(nearest);
    constexpr double audible = 0.05;
    if (std::abs(nearest - semitones) > audible)
        m_nodes.remarks.Add(NLERemark_Speed, QStringLiteral("pitch of %1").arg(name));
}

NLEComPtr<TimelineNode> MltReader::MakeComposite(const MltService& service, bool isRoot)
{
    NLEComPtr<CompositeNode> node = m_nodes.MakeComposite(service.properties, isRoot);
    std::vector<PlacedNode> clips;
    const bool isPlaylist = service.element == QLatin1String("playlist");
    if (isPlaylist) {
        ReadPlaylist(service, {clips, 0, 0, {}});
    } else {
        for (size_t i = 0; i < service.items.size(); ++i) {
            const MltItem& item = service.items[i];
            if (item.service >= 0)
                ReadTrack(item, i == 0 && service.items.size() > 1, *node,
                          {clips, int(i), int(i), item.hide});
        }
    }
    TakeTransitions(service, 0, clips);
    m_nodes.Fill(*node, clips, service.properties);
    if (service.IsOwn() && !isPlaylist)
        TakeHidden(service, clips, *node);
    if (isRoot)
        TakeFilters(service, nullptr, *node);
    return node;
}

// A level is hidden and muted as it was saved unless another program has changed a track of it.
void MltReader::TakeHidden(const MltService& service, const std::vector<PlacedNode>& clips,
                           CompositeNode& node) const
{
    for (const PlacedNode& clip : clips) {
        const MltItem& track = service.items[size_t(clip.track)];
        const DocumentFields& lane = m_document.services[size_t(track.service)].properties;
        const bool isOurs = clip.order != INT32_MAX && !lane.contains(kKind);
        if (!isOurs || track.hide == lane.value(kWrittenHide))
            continue;
        const int level = clip.node->Level();
        const bool isBoth = track.hide == QLatin1String("both");
        LevelSettings settings = SettingsOf(node.Levels(), level);
        settings.hidden = isBoth || track.hide == QLatin1String("video");
        PutSettings(node.Levels(), level, settings);
        node.Mixer().settings.try_emplace(level, kNeutralStrip).first->second.mute =
            isBoth || track.hide == QLatin1String("audio") ? 1 : 0;
    }
}

void MltReader::ReadTrack(const MltItem& item, bool isLowest, CompositeNode& node, Track track)
{
    const MltService& service = m_document.services[size_t(item.service)];
    const bool isBackground = service.IsOwn() ? Value(service.properties, "nle:kind") == kBackground
                                              : isLowest && IsBlack(service);
    if (isBackground)
        return;
    const size_t before = track.clips.size();
    const bool isWhole = Frames(item.in, 0) <= 0;
    if (service.element == QLatin1String("playlist") && isWhole) {
        if (Value(service.properties, "nle:kind") == kUnplaced)
            track.hide.clear();
        ReadPlaylist(service, track);
    } else if (isWhole && IsTrack(service)) {
        const QString outer = track.hide;
        const int index = track.index;
        for (const MltItem& inner : service.items) {
            track.hide = Hidden(outer, inner.hide);
            track.index = int(&inner - service.items.data());
            const MltService& playlist = m_document.services[size_t(inner.service)];
            ReadPlaylist(playlist, track);
        }
        TakeTransitions(service, before, track.clips);
        for (size_t i = before; i < track.clips.size(); ++i)
            track.clips[i].track = index;
    } else {
        PlaceEntry(item, 0, false, track);
        return;
    }
    const bool hasLevel = track.clips.size() > before;
    TakeStrip(service.filters, NameOf(service),
              hasLevel ? track.clips.back().node->Level() : track.level, node);
}

void MltReader::ReadPlaylist(const MltService& playlist, const Track& track)
{
    const bool isUnplaced = Value(playlist.properties, "nle:kind") == kUnplaced;
    std::int64_t position = 0;
    for (const MltItem& item : playlist.items) {
        if (item.service < 0) {
            position += item.blank;
            continue;
        }
        const std::int64_t length = NLERangeLength(RangeOf(item));
        for (int i = 0; i < item.repeat && position < INT32_MAX; ++i) {
            PlaceEntry(item, position, isUnplaced, track);
            position += length;
        }
    }
}

void MltReader::PlaceEntry(const MltItem& item, std::int64_t position, bool isUnplaced,
                           const Track& track)
{
    const MltService& service = m_document.services[size_t(item.service)];
    Placement found = {position, RangeOf(item)};
    if (!service.IsOwn() && NLERangeLength(found.range) == 0)
        return;
    NLEComPtr<TimelineNode> node = Make(item.service, false);
    if (!node)
        return;
    const MltSource source = SourceOf(service);
    if (!service.HoldsClips() && source.speed < 0) {
        // The same material, whose frames are counted from the end.
        const std::int64_t last = m_lengths[size_t(item.service)] - 1;
        found.range = {ClampToInt(double(last - found.range.out)),
                       ClampToInt(double(last - found.range.in))};
    }
    const bool isKept = service.IsOwn() && isUnplaced;
    const bool isBoth = track.hide == QLatin1String("both");
    if (!isKept)
        DocumentNodes::Place(*node, service.properties, found, track.level);
    else if (!service.properties.contains(kRange))
        node->SetRange(&found.range);
    if (!service.IsOwn())
        DocumentNodes::Hide(track.hide == QLatin1String("video") || isBoth,
                            track.hide == QLatin1String("audio") || isBoth, *node);
    TakeFilters(service, &item, *node);
    const int order = service.properties.value(kOrder, QString::number(INT32_MAX)).toInt();
    track.clips.push_back({node, order, track.index});
}

void MltReader::TakeFilters(const MltService& service, const MltItem* item, TimelineNode& node)
{
    std::vector<MltEffect> filters = service.filters;
    if (item)
        filters.insert(filters.end(), item->filters.begin(), item->filters.end());
    if (service.IsOwn())
        DropWritten(service.properties.value(kFilters, QStringLiteral("0 0")), filters, node);
    MltEffects effects(node, m_nodes.profile.frameSize, NameOf(service), m_nodes.remarks);
    if (!item) {
        // The outermost timeline has no place on another one.
        const auto isPicture = [&](const MltEffect& filter) {
            return MltEffects::IsPicture(filter) && !filter.IsOff();
        };
        const auto pictures = std::stable_partition(filters.begin(), filters.end(),
                                                    [&](const auto& f) { return !isPicture(f); });
        std::for_each(pictures, filters.end(), [&](const auto& f) { effects.LeaveOut(f); });
        filters.erase(pictures, filters.end());
    }
    if (!filters.empty())
        effects.Take(filters);
}

void MltReader::TakeStrip(const std::vector<MltEffect>& filters, const QString& name, int level,
                          CompositeNode& node)
{
    for (const MltEffect& filter : filters) {
        if (filter.IsOff() || IsAsWritten(filter) ||
            filter.Service() == QLatin1String("audiolevel"))
            continue;
        const std::optional<double> balance =
            filter.Service() == QLatin1String("panner") ? MltBalance(filter) : std::nullopt;
        const QString levels = Value(filter.properties, "level");
        const bool isGain = filter.Service() == QLatin1String("volume") &&
                            !levels.contains(QLatin1Char('=')) &&
                            Value(filter.properties, "end").isEmpty();
        if (!isGain && !balance) {
            m_nodes.remarks.Add(
                NLERemark_Effect,
                QStringLiteral("effect %1 of track %2").arg(filter.Service(), name));
            continue;
        }
        tagMixerParam& strip =
            node.Mixer().settings.try_emplace(level, kNeutralStrip).first->second;
        if (isGain) {
            const double gain = levels.isEmpty() ? MltGain(Value(filter.properties, "gain"), 1)
                                                 : MltGain(levels + QLatin1String("dB"), 1);
            strip.volume = std::min(strip.volume * gain, kMostVolume);
        } else {
            strip.balance = *balance;
        }
    }
}

void MltReader::TakeTransitions(const MltService& service, size_t first,
                                std::vector<PlacedNode>& clips)
{
    if (service.IsOwn())
        return;
    const size_t end = clips.size();
    std::vector<Found> made;
    const auto isMade = [&made](const Found& found) {
        return std::any_of(made.begin(), made.end(),
                           [&found](const Found& one) { return one == found; });
    };
    for (const MltEffect& luma : service.transitions) {
        const Found found = FoundOf(luma);
        const NLEComPtr<TimelineNode> node =
            MakeTransition(luma, found, clips.data() + first, clips.data() + end);
        if (!node)
            continue;
        const bool isHeard = std::any_of(
            service.transitions.begin(), service.transitions.end(), [&](const MltEffect& other) {
                return IsCrossfade(other) && !other.IsOff() && FoundOf(other) == found;
            });
        SetCrossFade(isHeard ? CrossFade::Linear : CrossFade::None, *node);
        clips.push_back({node, INT32_MAX, found.upper});
        made.push_back(found);
    }
    for (const MltEffect& transition : service.transitions) {
        const bool isShown =
            (IsLuma(transition) || IsCrossfade(transition)) && isMade(FoundOf(transition));
        if (transition.IsOff() || isShown)
            continue;
        if (!TakeTransition(transition, clips.data() + first, clips.data() + end))
            m_nodes.remarks.Add(NLERemark_Transition,
                                QStringLiteral("transition %1 at frame %2 of %3")
                                    .arg(transition.Service())
                                    .arg(Frames(Value(transition.properties, "in"), 0))
                                    .arg(NameOf(service)));
    }
}

MltReader::Found MltReader::FoundOf(const MltEffect& transition) const
{
    const DocumentFields& properties = transition.properties;
    return {{ClampToInt(double(Frames(Value(properties, "in"), 0))),
             ClampToInt(double(Frames(Value(properties, "out"), 0)))},
            MltInt(Value(properties, "a_track"), -1),
            MltInt(Value(properties, "b_track"), -1)};
}

NLEComPtr<TimelineNode> MltReader::MakeTransition(const MltEffect& luma, const Found& found,
                                                  const PlacedNode* first, const PlacedNode* last)
{
    if (!IsLuma(luma) || luma.IsOff())
        return nullptr;
    const auto clipOn = [&](int track) {
        const PlacedNode* clip = std::find_if(first, last, [&](const PlacedNode& one) {
            return one.track == track && Contains(*one.node, found.range);
        });
        return clip == last ? nullptr : clip->node.get();
    };
    const TimelineNode* a = clipOn(found.lower);
    const TimelineNode* b = clipOn(found.upper);
    if (!a || !b || a->Level() != b->Level())
        return nullptr;
    if (a->Position() > b->Position())
        std::swap(a, b);
    if (End(*a) != std::int64_t(found.range.out) + 1 || b->Position() != found.range.in)
        return nullptr;
    NLEComPtr<TimelineNode> node = TransitionOfMlt(luma);
    if (!node)
        return nullptr;
    node->ChangeRate(m_nodes.profile.frameRate);
    const NLERange range = {0, found.range.out - found.range.in};
    node->SetRange(&range);
    node->SetPosition(found.range.in);
    node->SetLevel(a->Level());
    return node;
}

bool MltReader::TakeTransition(const MltEffect& transition, const PlacedNode* first,
                               const PlacedNode* last)
{
    const auto [range, lower, upper] = FoundOf(transition);
    const bool isDissolve = IsDissolve(transition);
    if (isDissolve || IsCrossfade(transition)) {
        bool isTaken = false;
        for (const PlacedNode* clip = first; clip != last; ++clip) {
            const bool isMeant = clip->track == upper || (!isDissolve && clip->track == lower);
            if (!isMeant || !Contains(*clip->node, range))
                continue;
            isTaken = true;
            if (isDissolve)
                FadePicture(*clip->node, range,
                            MltNumber(Value(transition.properties, "reverse"), 0) == 0);
            else
                FadeSound(*clip->node, range);
        }
        return isTaken;
    }
    const int compositing = IsText(transition, "mlt_service", "qtblend")
                                ? MltInt(Value(transition.properties, "compositing"), 0)
                                : 0;
    const std::optional<BlendMode> mode = MltBlendMode(compositing);
    for (const PlacedNode* clip = first; clip != last; ++clip) {
        if (mode && compositing != 0 && clip->track == upper)
            clip->node->Blend().settings.mode = *mode;
    }
    return mode && IsPlain(transition);
}

bool MltReader::IsTrack(const MltService& service) const
{
    return service.element == QLatin1String("tractor") && !service.IsOwn() &&
           std::all_of(service.items.begin(), service.items.end(), [this](const MltItem& item) {
               return item.service >= 0 && Frames(item.in, 0) <= 0 &&
                      m_document.services[size_t(item.service)].element ==
                          QLatin1String("playlist");
           });
}

bool MltReader::IsBlack(const MltService& service) const
{
    if (service.element == QLatin1String("playlist"))
        return !service.items.empty() &&
               std::all_of(service.items.begin(), service.items.end(), [this](const MltItem& item) {
                   return item.service < 0 || IsBlack(m_document.services[size_t(item.service)]);
               });
    const MltSource source = SourceOf(service);
    const std::uint32_t argb = ParseMltColor(source.resource);
    constexpr std::uint32_t colors = 0x00FFFFFFu;
    return !service.HoldsClips() && source.kind == MltSource::Kind::Color &&
           ((argb & colors) == 0 || argb <= colors);
}

QString MltReader::NameOf(const MltService& service) const
{
    const QString file = Value(service.properties, "resource").section(QLatin1Char('/'), -1);
    if (file.isEmpty() || service.HoldsClips())
        return service.id;
    return service.id.isEmpty() ? file : QStringLiteral("%1 (%2)").arg(service.id, file);
}

std::int64_t MltReader::Frames(const QString& text, std::int64_t preset) const
{
    return MltFrames(text, m_nodes.profile.frameRate, preset);
}

} // namespace nle
