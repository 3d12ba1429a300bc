// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/OtioReader.h"

#include "Com/WideText.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/OtioFormat.h"
#include "NLECore/model/OtioMarkers.h"
#include "NLECore/model/TransitionNode.h"
#include "NLECore/scene/FrameMath.h"

#include <QColor>
#include <QJsonDocument>

#include <algorithm>

namespace nle {

using namespace document;
using namespace otio;

namespace {

/// Objects that may lie one inside of the other; reading recurses.
constexpr int kDeepest = 200;

QJsonObject Child(const QJsonObject& object, const char* name)
{
    return object.value(QLatin1String(name)).toObject();
}

QJsonArray List(const QJsonObject& object, const char* name)
{
    return object.value(QLatin1String(name)).toArray();
}

QString Text(const QJsonObject& object, const char* name)
{
    return object.value(QLatin1String(name)).toString();
}

/// The name of an object's class; newer versions of it have the same fields, or more.
QString Schema(const QJsonObject& object)
{
    return object.value(kSchema).toString().section(QLatin1Char('.'), 0, 0);
}

bool IsTrack(const QJsonObject& object)
{
    return Schema(object) == QLatin1String("Track") || Schema(object) == QLatin1String("Sequence");
}

bool IsTransition(const QJsonObject& object)
{
    return Schema(object) == QLatin1String("Transition");
}

bool IsEnabled(const QJsonObject& object)
{
    return object.value(QLatin1String("enabled")).toBool(true);
}

double RateOf(const QJsonObject& time)
{
    return time.value(QLatin1String("rate")).toDouble();
}

/// A rate as a fraction: whole, or of film on television, or in millionths.
NLERational Fraction(double rate)
{
    constexpr double close = 1e-3;
    constexpr double millionths = 1e6;
    constexpr int slower = 1001;
    constexpr int faster = 1000;
    const double whole = std::round(rate);
    if (std::abs(rate - whole) < close / faster)
        return {std::int64_t(whole), 1};
    if (std::abs(rate - whole * faster / slower) < close)
        return {std::int64_t(whole) * faster, slower};
    return {std::llround(rate * millionths), std::int64_t(millionths)};
}

/// The rate of the first time in \a value that tells one.
double FirstRate(const QJsonValue& value, int depth)
{
    if (depth > kDeepest)
        return 0;
    if (value.isArray()) {
        for (const QJsonValue element : value.toArray()) {
            const double rate = FirstRate(element, depth + 1);
            if (rate > 0)
                return rate;
        }
        return 0;
    }
    const QJsonObject object = value.toObject();
    if (object.isEmpty())
        return 0;
    const double own = RateOf(Child(Child(object, "source_range"), "duration"));
    if (own > 0)
        return own;
    double rate = 0;
    for (const char* part : {"children", "media_reference", "available_range", "duration"}) {
        const QJsonValue inner = object.value(QLatin1String(part));
        rate = rate > 0 ? rate : FirstRate(inner, depth + 1);
    }
    return rate > 0 ? rate : RateOf(object);
}

/// The reference that a clip plays, of several by its key.
QJsonObject ReferenceOf(const QJsonObject& clip)
{
    const QJsonObject references = Child(clip, "media_references");
    const QString key = Text(clip, "active_media_reference_key");
    const QJsonObject active =
        references.value(key.isEmpty() ? QStringLiteral("DEFAULT_MEDIA") : key).toObject();
    return active.isEmpty() ? Child(clip, "media_reference") : active;
}

DocumentFields PropertiesOf(const QJsonObject& object)
{
    DocumentFields properties;
    const QJsonObject own = Child(object, "metadata").value(kOwn).toObject();
    for (auto text = own.begin(); text != own.end(); ++text)
        properties.insert(kOwnPrefix + DecodeText(text.key()), DecodeText(text->toString()));
    return properties;
}

QString JsonText(const QJsonDocument& json)
{
    return QString::fromUtf8(json.toJson(QJsonDocument::Compact));
}

void SetText(const QString& text, const wchar_t* key, TimelineNode& node)
{
    node.Bag().SetString(key, ToWide(text).c_str());
}

QString NameOf(const QJsonObject& object)
{
    const QString name = Text(object, "name");
    return name.isEmpty() ? object.value(kSchema).toString() : name;
}

/// Whether a track has the time of the stack that it lies in.
bool IsPlainTrack(const QJsonObject& object)
{
    return IsTrack(object) && Child(object, "source_range").isEmpty();
}

/// The markers of an item, those of its plain tracks as well.
QJsonArray MarkersIn(const QJsonObject& item)
{
    QJsonArray markers = List(item, "markers");
    if (IsTrack(item))
        return markers;
    for (const QJsonValue child : List(item, "children")) {
        const QJsonObject track = child.toObject();
        if (!IsPlainTrack(track))
            continue;
        for (const QJsonValue marker : List(track, "markers"))
            markers.append(marker);
    }
    return markers;
}

/// Walks all that \a value holds.
template <typename Take>
void ForEachClip(const QJsonValue& value, int depth, Take& take)
{
    const QJsonObject object = value.toObject();
    if (depth > kDeepest)
        return;
    if (Schema(object) == QLatin1String("Clip"))
        take(object);
    else if (Schema(object) == QLatin1String("Timeline"))
        ForEachClip(Child(object, "tracks"), depth + 1, take);
    for (const QJsonValue child : List(object, "children"))
        ForEachClip(child, depth + 1, take);
}

} // namespace

OtioReader::OtioReader(const QByteArray& text, const QDir& folder)
    : m_text(text), m_folder(folder), m_nodes(folder)
{
}

NLEComPtr<TimelineNode> OtioReader::Read()
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(m_text, &error);
    if (error.error != QJsonParseError::NoError) {
        m_error = QStringLiteral("at %1: %2").arg(error.offset).arg(error.errorString());
        return nullptr;
    }
    const QJsonObject root = RootOf(document.object());
    NLEComPtr<TimelineNode> node;
    if (!root.isEmpty()) {
        ReadRate(root, PropertiesOf(root));
        DescribeMedia(root);
        node = MakeRoot(root);
    }
    if (!node)
        m_error = QStringLiteral("no timeline in the document");
    return node;
}

QJsonObject OtioReader::RootOf(const QJsonObject& document)
{
    const auto plays = [](const QJsonObject& object) {
        const QString schema = Schema(object);
        return schema == QLatin1String("Timeline") || schema == QLatin1String("Stack") ||
               schema == QLatin1String("Clip") || IsTrack(object);
    };
    if (plays(document))
        return document;
    if (Schema(document) != QLatin1String("SerializableCollection"))
        return {};
    QJsonObject root;
    for (const QJsonValue child : List(document, "children")) {
        const QJsonObject object = child.toObject();
        if (root.isEmpty() && plays(object))
            root = object;
        else
            m_nodes.remarks.Add(NLERemark_Structure,
                                QStringLiteral("%1 of the collection").arg(NameOf(object)));
    }
    return root;
}

void OtioReader::ReadRate(const QJsonObject& root, const DocumentFields& properties)
{
    const NLERational saved = ParseRate(properties.value(kRate));
    double rate = RateOf(Child(root, "global_start_time"));
    const QJsonObject tracks = Child(root, "tracks");
    if (!(rate > 0))
        rate = FirstRate(tracks.isEmpty() ? root : tracks, 0);
    constexpr double fastest = 1000;
    if (IsRate(saved))
        m_nodes.profile.frameRate = saved;
    else if (rate > 0 && rate <= fastest && IsRate(Fraction(rate)))
        m_nodes.profile.frameRate = Fraction(rate);
}

void OtioReader::DescribeMedia(const QJsonObject& root)
{
    std::set<QString> names;
    const auto take = [&](const QJsonObject& clip) {
        names.insert(PathOfUrl(Text(ReferenceOf(clip), "target_url"), m_folder));
        for (const QString& name : MediaInSettings(PropertiesOf(clip)))
            names.insert(name);
    };
    ForEachClip(root, 0, take);
    names.erase(QString());
    m_nodes.DescribeMedia(names);
}

double OtioReader::Fps() const
{
    return ToDouble(m_nodes.profile.frameRate);
}

NLEComPtr<TimelineNode> OtioReader::MakeRoot(const QJsonObject& root)
{
    const DocumentFields properties = PropertiesOf(root);
    if (Schema(root) == QLatin1String("Clip")) {
        NLEComPtr<TimelineNode> node = MakeItem(root);
        const std::int64_t length = std::llround(DurationOf(root) * Fps());
        if (node && !properties.contains(kKind) && length > 0)
            DocumentNodes::Place(*node, properties, {0, RangeOf(root, *node, false, length)}, 0);
        return node;
    }
    const bool isTimeline = Schema(root) == QLatin1String("Timeline");
    const QJsonObject stack = isTimeline ? Child(root, "tracks") : root;
    NLEComPtr<TimelineNode> node = MakeComposite(stack, properties, true);
    if (node) {
        KeepTexts(stack, properties.contains(kKind), *node);
        KeepTexts(root, properties.contains(kKind), *node);
    }
    return node;
}

NLEComPtr<TimelineNode> OtioReader::MakeItem(const QJsonObject& item)
{
    if (!m_nodes.TakeOne())
        return nullptr;
    const DocumentFields properties = PropertiesOf(item);
    const bool isOwn = properties.contains(kKind);
    const bool holds = Schema(item) == QLatin1String("Stack") || IsTrack(item);
    NLEComPtr<TimelineNode> node =
        holds ? MakeComposite(item, properties, false) : MakeClip(item, properties);
    if (!node)
        return nullptr;
    TakeEffects(item, isOwn, *node);
    KeepTexts(item, isOwn, *node);
    return node;
}

NLEComPtr<TimelineNode> OtioReader::MakeClip(const QJsonObject& clip,
                                             const DocumentFields& properties)
{
    if (DocumentNodes::IsTransition(properties))
        return m_nodes.MakeTransition(properties);
    const QJsonObject reference = ReferenceOf(clip);
    const QString schema = Schema(reference);
    if (schema == QLatin1String("GeneratorReference"))
        return MakeGenerated(clip, reference, properties);
    if (Schema(clip) == QLatin1String("Clip"))
        return MakeMedia(clip, reference, properties);
    m_nodes.remarks.Add(
        NLERemark_Service,
        QStringLiteral("%1: unknown kind of item %2").arg(NameOf(clip), Schema(clip)));
    return m_nodes.MakeColor(0, properties);
}

NLEComPtr<TimelineNode> OtioReader::MakeMedia(const QJsonObject& clip, const QJsonObject& reference,
                                              const DocumentFields& properties)
{
    const QString path = PathOfUrl(Text(reference, "target_url"), m_folder);
    const bool isFile = !path.isEmpty();
    if (!isFile)
        m_nodes.remarks.Add(NLERemark_Missing,
                            QStringLiteral("%1 names no file (%2)")
                                .arg(NameOf(clip), reference.value(kSchema).toString()));
    // Without a file the clip is offline under its name, to be linked again.
    const QString name = Text(clip, "name").section(QLatin1Char('/'), -1);
    NLEComPtr<TimelineNode> node = m_nodes.MakeMedia(isFile           ? path
                                                     : name.isEmpty() ? QStringLiteral("missing")
                                                                      : name,
                                                     properties);
    if (properties.contains(kKind))
        return node;
    if (!isFile)
        node->Bag().SetInt(kNoFile, 1);
    const std::optional<double> start =
        Seconds(Child(Child(reference, "available_range"), "start_time"));
    if (start && *start != 0)
        node->Bag().SetDouble(kMediaStart, *start);
    return node;
}

NLEComPtr<TimelineNode> OtioReader::MakeGenerated(const QJsonObject& clip,
                                                  const QJsonObject& reference,
                                                  const DocumentFields& properties)
{
    const QString kind = Text(reference, "generator_kind");
    const QJsonObject parameters = Child(reference, "parameters");
    // The exact text holds as long as nobody has changed the one that other programs see.
    const auto exact = [&](const char* name, QLatin1String own) {
        const QString shown = Text(parameters, name);
        const QString saved = properties.value(own);
        return PlainText(saved) == shown ? saved : shown;
    };
    if (kind == QLatin1String("Text"))
        return m_nodes.MakeText(exact("text", kExactText), exact("family", kExactFamily),
                                properties);
    const QColor color(kind == QLatin1String("SolidColor") ? Text(parameters, "color") : kind);
    if (color.isValid())
        return m_nodes.MakeColor(color.rgba(), properties);
    m_nodes.remarks.Add(NLERemark_Service,
                        QStringLiteral("%1: unknown generator %2").arg(NameOf(clip), kind));
    return m_nodes.MakeColor(0, properties);
}

NLEComPtr<TimelineNode> OtioReader::MakeComposite(const QJsonObject& stack,
                                                  const DocumentFields& properties, bool isRoot)
{
    if (m_depth >= kDeepestNesting) {
        m_nodes.remarks.Add(NLERemark_Structure, QStringLiteral("stacks nested too deep"));
        return nullptr;
    }
    ++m_depth;
    NLEComPtr<CompositeNode> node = m_nodes.MakeComposite(properties, isRoot);
    std::vector<PlacedNode> clips;
    if (IsTrack(stack)) {
        // Its range and what is on it as a whole count where it lies.
        QJsonObject track = stack;
        for (const char* outer : {"source_range", "effects", "markers"})
            track.remove(QLatin1String(outer));
        ReadTracks({track}, clips);
    } else {
        ReadTracks(List(stack, "children"), clips);
    }
    m_nodes.Fill(*node, clips, properties);
    if (!properties.contains(kKind))
        NameLevels(List(stack, "children"), *node);
    --m_depth;
    return node;
}

void OtioReader::NameLevels(const QJsonArray& tracks, TimelineNode& node)
{
    for (int level = 0; level < tracks.size(); ++level) {
        LevelSettings settings;
        settings.name = ToWide(NameOf(tracks[level].toObject()));
        PutSettings(node.Levels(), level, settings);
    }
}

void OtioReader::ReadTracks(const QJsonArray& tracks, std::vector<PlacedNode>& clips)
{
    const auto isSound = [](const QJsonObject& track) {
        return Text(track, "kind") == QLatin1String("Audio");
    };
    const bool hasSounds = std::any_of(tracks.begin(), tracks.end(), [&](const QJsonValue& track) {
        return isSound(track.toObject());
    });
    int level = 0;
    for (const QJsonValue value : tracks) {
        const QJsonObject track = value.toObject();
        const QString kind = PropertiesOf(track).value(kKind);
        // Where the document has tracks for sound, the others have none.
        const Target target = {clips, level++, isSound(track), hasSounds && !isSound(track),
                               IsEnabled(track) || kind == kLevelOff};
        const bool isTwin = kind == kTwin;
        if (IsTrack(track) && !isTwin)
            PlaceTrack(track, target);
        else if (!isTwin)
            PlaceItem(track, 0, DurationOf(track), target);
    }
}

void OtioReader::PlaceTrack(const QJsonObject& track, const Target& target)
{
    // A part of a track is a picture of its own.
    if (!IsPlainTrack(track)) {
        PlaceItem(track, 0, DurationOf(track), target);
        return;
    }
    for (const QJsonValue effect : List(track, "effects"))
        m_nodes.remarks.Add(
            NLERemark_Effect,
            QStringLiteral("effect %1 of track %2").arg(NameOf(effect.toObject()), NameOf(track)));
    ReadTrack(track, target);
}

void OtioReader::ReadTrack(const QJsonObject& track, Target target)
{
    double position = 0;
    QJsonObject transition;
    TimelineNode* last = nullptr;
    const auto leave = [&](const QJsonObject& left) {
        if (!left.isEmpty())
            m_nodes.remarks.Add(NLERemark_Transition,
                                QStringLiteral("transition %1 at frame %2 of %3")
                                    .arg(NameOf(left))
                                    .arg(std::llround(position * Fps()))
                                    .arg(NameOf(track)));
    };
    const auto keep = [&leave](const QJsonObject& kept, const wchar_t* key, TimelineNode* node) {
        leave(kept);
        if (node && !kept.isEmpty())
            SetText(JsonText(QJsonDocument(kept)), key, *node);
    };
    for (const QJsonValue value : List(track, "children")) {
        const QJsonObject item = value.toObject();
        if (IsTransition(item)) {
            leave(transition);
            transition = item;
            continue;
        }
        const double end = std::min(position + DurationOf(item), kLongest);
        if (Schema(item) == QLatin1String("Gap")) {
            keep(transition, kTransitionAfter, last);
            last = nullptr;
        } else {
            const size_t before = target.clips.size();
            PlaceItem(item, position, end, target);
            TimelineNode* placed =
                target.clips.size() > before ? target.clips.back().node.get() : nullptr;
            const bool isJoined =
                !transition.isEmpty() && last && placed && Join(transition, *last, *placed, target);
            if (!isJoined)
                keep(transition, kTransitionBefore, placed);
            last = placed;
        }
        transition = {};
        position = end;
    }
    keep(transition, kTransitionAfter, last);
}

bool OtioReader::Join(const QJsonObject& transition, TimelineNode& before, TimelineNode& after,
                      const Target& target)
{
    const auto frames = [&](const char* name) {
        return std::llround(Seconds(Child(transition, name)).value_or(0) * Fps());
    };
    const std::int64_t head = frames("in_offset");
    const std::int64_t tail = frames("out_offset");
    const bool isOwn = PropertiesOf(transition).value(kKind) == kTwin;
    NLERange first = before.Range();
    NLERange second = after.Range();
    const bool isWhole = head >= 0 && tail >= 0 && head + tail > 0 &&
                         head <= NLERangeLength(first) && tail <= NLERangeLength(second) &&
                         second.in - head >= 0 &&
                         (isOwn || (first.out + tail < before.TotalLength() && target.isEnabled &&
                                    Text(transition, "transition_type") == kDissolve));
    if (!isWhole)
        return false;
    first.out = ClampToInt(double(first.out + tail));
    second.in = ClampToInt(double(second.in - head));
    before.SetRange(&first);
    after.SetRange(&second);
    after.SetPosition(ClampToInt(double(after.Position() - head)));
    if (isOwn)
        return true;
    NLEComPtr<TransitionNode> node =
        MakeCom<TransitionNode>(*FindTransition(QStringLiteral("dissolve")));
    node->ChangeRate(m_nodes.profile.frameRate);
    const NLERange range = {0, ClampToInt(double(head + tail - 1))};
    node->SetRange(&range);
    node->SetPosition(after.Position());
    node->SetLevel(after.Level());
    target.clips.push_back({node, INT32_MAX, target.level});
    return true;
}

void OtioReader::PlaceItem(const QJsonObject& item, double position, double end,
                           const Target& target)
{
    NLEComPtr<TimelineNode> node = MakeItem(item);
    if (!node)
        return;
    const DocumentFields properties = PropertiesOf(item);
    const bool isOwn = properties.contains(kKind);
    const std::int64_t first = std::llround(position * Fps());
    const std::int64_t length = std::llround(end * Fps()) - first;
    const Placement found = {first, RangeOf(item, *node, isOwn, length)};
    if (!isOwn || target.isEnabled)
        DocumentNodes::Place(*node, properties, found, target.level);
    if (isOwn)
        node->SetEnabled(IsEnabled(item));
    else if (!target.isEnabled || !IsEnabled(item))
        node->SetEnabled(false);
    if (!isOwn)
        DocumentNodes::Hide(target.isPictureOff, target.isSoundOff, *node);
    const int order = properties.value(kOrder, QString::number(INT32_MAX)).toInt();
    target.clips.push_back({node, order, target.level});
}

double OtioReader::DurationOf(const QJsonObject& item) const
{
    const QJsonObject reference = ReferenceOf(item);
    const QJsonObject own = Child(item, "source_range");
    const QJsonObject range = own.isEmpty() ? Child(reference, "available_range") : own;
    if (!range.isEmpty())
        return std::max(0.0, Seconds(Child(range, "duration")).value_or(0));
    // Neither says a length: that of what the item holds, or of its file.
    double duration = 0;
    for (const QJsonValue value : List(item, "children")) {
        const QJsonObject child = value.toObject();
        const double length = IsTransition(child) ? 0 : DurationOf(child);
        duration = IsTrack(item) ? duration + length : std::max(duration, length);
    }
    const QString path = PathOfUrl(Text(reference, "target_url"), m_folder);
    const auto media = path.isEmpty() ? nullptr : m_nodes.MediaOf(path);
    if (media && media->frameCount > 0 && IsRate(media->frameRate))
        duration = media->frameCount / ToDouble(media->frameRate);
    return duration;
}

double OtioReader::MediaStartOf(const QJsonObject& item, const TimelineNode& node)
{
    const QJsonObject available = Child(ReferenceOf(item), "available_range");
    return available.isEmpty() ? MediaStart(node)
                               : Seconds(Child(available, "start_time")).value_or(0);
}

double OtioReader::StartOf(const QJsonObject& item, const TimelineNode& node)
{
    const QJsonObject range = Child(item, "source_range");
    if (range.isEmpty())
        return 0;
    return Seconds(Child(range, "start_time")).value_or(0) - MediaStartOf(item, node);
}

NLERange OtioReader::RangeOf(const QJsonObject& item, const TimelineNode& node, bool isOwn,
                             std::int64_t length) const
{
    const double speed = node.PlaysMaterial() ? node.Speed() : 1;
    double in = std::round(StartOf(item, node) * Fps() / speed);
    // The start of a frozen clip is the frame that shows.
    if (node.IsFrozen())
        in = isOwn ? VisiblePart(node).range.in : 0;
    const int first = ClampToInt(in);
    return {first, ClampToInt(double(first) + double(length) - 1)};
}

void OtioReader::TakeEffects(const QJsonObject& item, bool isOwn, TimelineNode& node)
{
    std::optional<int> frozen;
    double speed = 1;
    for (const QJsonValue value : List(item, "effects")) {
        const QJsonObject effect = value.toObject();
        const QString schema = Schema(effect);
        const double scalar = effect.value(QLatin1String("time_scalar")).toDouble(1);
        const bool isWarp = schema == QLatin1String("LinearTimeWarp");
        const bool isFreeze = schema == QLatin1String("FreezeFrame") || (isWarp && scalar == 0);
        if (isFreeze && node.PlaysMaterial())
            frozen = ClampToInt(std::round(StartOf(item, node) * Fps()));
        else if (isWarp && node.PlaysMaterial())
            speed *= scalar;
        else
            m_nodes.remarks.Add(
                NLERemark_Effect,
                QStringLiteral("effect %1 of %2").arg(NameOf(effect), NameOf(item)));
    }
    const bool isSame = frozen
                            ? node.IsFrozen() && node.MakeSnapshot()->frozenFrame == frozen
                            : !node.IsFrozen() && DocumentNodes::IsSameSpeed(node.Speed(), speed);
    if (node.PlaysMaterial() && !isSame && (frozen || speed != 1 || isOwn))
        m_nodes.SetPlaying(frozen, speed, NameOf(item), node);
}

void OtioReader::KeepTexts(const QJsonObject& item, bool isOwn, TimelineNode& node)
{
    const QString name = Text(item, "name");
    QJsonObject metadata = Child(item, "metadata");
    metadata.remove(kOwn);
    if (!name.isEmpty() && !isOwn)
        SetText(name, kName, node);
    if (!metadata.isEmpty())
        SetText(JsonText(QJsonDocument(metadata)), kMetadata, node);
    if (Schema(item) != QLatin1String("Timeline"))
        TakeMarkers(item, isOwn, node);
}

void OtioReader::TakeMarkers(const QJsonObject& item, bool isOwn, TimelineNode& node)
{
    const QJsonArray markers = MarkersIn(item);
    const OtioMarkers format(Fps() / node.Speed(), MediaStartOf(item, node));
    MarkerList& own = node.Markers().settings;
    const QJsonArray kept = KeptJson(node, kMarkers).array();
    // The exact ones hold as long as nobody has changed what other programs see.
    if (isOwn && format.IsSame(markers, format.Write(own, kept)))
        return;
    own = format.Read(markers);
    if (!markers.isEmpty())
        SetText(JsonText(QJsonDocument(markers)), kMarkers, node);
    if (own.size() < size_t(markers.size()))
        m_nodes.remarks.Add(NLERemark_Marker, QStringLiteral("%1 markers of %2 without a time")
                                                  .arg(markers.size() - int(own.size()))
                                                  .arg(NameOf(item)));
}

} // namespace nle
