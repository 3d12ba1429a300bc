// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/DocumentReader.h"

#include "NLECore/media/ImageSequence.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/SettingsText.h"
#include "NLECore/model/SourceNodes.h"
#include "NLECore/scene/FrameMath.h"

#include <QColor>

namespace nle {

using namespace document;

namespace {

NLERational ParseFraction(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char('/'));
    if (parts.size() != 2)
        return {0, 1};
    return {parts[0].toLongLong(), parts[1].toLongLong()};
}

const QString kService = QStringLiteral("mlt_service");
const QString kResource = QStringLiteral("resource");

/// Nodes that one document may make.
constexpr int kMostNodes = 200000;

/// Two whole numbers with a blank between them; \a ok tells whether it was so.
std::pair<int, int> ParsePair(const QString& text, bool* ok)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    bool first = false;
    bool second = false;
    const std::pair<int, int> pair = {parts.value(0).toInt(&first), parts.value(1).toInt(&second)};
    *ok = first && second;
    return pair;
}

PropertyBag::Value ParseValue(const QString& text)
{
    const QString value = text.mid(2);
    switch (text.isEmpty() ? 's' : text.at(0).toLatin1()) {
    case 'i':
        return value.toInt();
    case 'd':
        return value.toDouble();
    case 'r':
        return ParseFraction(value);
    default:
        return std::make_shared<const std::wstring>(ToWide(value));
    }
}

/// The values whose names begin with \a prefix, by what follows it.
PropertyBag::Values ReadValues(const QHash<QString, QString>& properties, QLatin1String prefix)
{
    PropertyBag::Values values;
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (property.key().startsWith(prefix))
            values[ToWide(property.key().mid(prefix.size()))] = ParseValue(property.value());
    }
    return values;
}

/// Puts the texts that XML cannot carry in the place of those that stand for them. Where another
/// editor has changed a text, that holds.
void TakeExactTexts(QHash<QString, QString>& properties)
{
    const QHash<QString, QString> read = properties;
    for (auto property = read.begin(); property != read.end(); ++property) {
        if (!property.key().startsWith(kExactPrefix))
            continue;
        const QString name = property.key().mid(kExactPrefix.size());
        if (read.value(name) == PlainText(property.value()))
            properties[name] = property.value();
    }
}

/// A colour as MLT writes it: "#aarrggbb", "#rrggbb", "0xrrggbbaa" or a name.
std::uint32_t ParseColor(const QString& text)
{
    if (text.startsWith(QLatin1String("0x"))) {
        const std::uint32_t rgba = text.mid(2).toUInt(nullptr, 16);
        return (rgba >> 8) | (rgba << 24);
    }
    const QColor color(text);
    return color.isValid() ? color.rgba() : 0xFF000000u;
}

bool HoldsClips(const QString& element)
{
    return element == QLatin1String("tractor") || element == QLatin1String("playlist");
}

bool IsColor(const QHash<QString, QString>& properties)
{
    const QString kind = properties.value(kService);
    return kind == QLatin1String("color") || kind == QLatin1String("colour");
}

bool IsText(const QHash<QString, QString>& properties)
{
    return properties.value(kService) == QLatin1String("qtext");
}

/// The name of a producer's file; empty when it needs none.
QString MediaName(const QHash<QString, QString>& properties)
{
    return IsColor(properties) || IsText(properties) ? QString() : properties.value(kResource);
}

} // namespace

DocumentReader::DocumentReader(const QByteArray& text, const QDir& folder)
    : m_xml(text), m_folder(folder), m_profile(kDefaultProfile)
{
}

NLEComPtr<TimelineNode> DocumentReader::Read()
{
    ReadDocument();
    if (m_xml.hasError()) {
        m_error = QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
        return nullptr;
    }
    const QString root = m_services.contains(m_root) ? m_root : m_lastService;
    DescribeMedia(root);
    NLEComPtr<TimelineNode> node = Make(root);
    if (!node)
        m_error = QStringLiteral("no timeline in the document");
    return node;
}

void DocumentReader::ReadDocument()
{
    if (!m_xml.readNextStartElement())
        return;
    if (m_xml.name() != QLatin1String("mlt")) {
        m_xml.raiseError(QStringLiteral("not an MLT document"));
        return;
    }
    m_root = m_xml.attributes().value(QLatin1String("producer")).toString();
    while (m_xml.readNextStartElement()) {
        const QString element = m_xml.name().toString();
        if (element == QLatin1String("profile"))
            ReadProfile();
        else if (element == QLatin1String("producer") || element == QLatin1String("chain") ||
                 element == QLatin1String("playlist") || element == QLatin1String("tractor"))
            ReadService(element);
        else
            m_xml.skipCurrentElement();
    }
}

void DocumentReader::ReadProfile()
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    const auto number = [&attributes](const char* name) {
        return attributes.value(QLatin1String(name)).toInt();
    };
    tagNLEProjectProfile profile = m_profile;
    profile.frameSize = {number("width"), number("height")};
    profile.frameRate = {number("frame_rate_num"), number("frame_rate_den")};
    if (ProjectNode::IsValid(profile))
        m_profile = profile;
    m_xml.skipCurrentElement();
}

void DocumentReader::ReadService(const QString& element)
{
    Service service;
    const QXmlStreamAttributes attributes = m_xml.attributes();
    const QString id = attributes.value(QLatin1String("id")).toString();
    service.element = element;
    service.in = attributes.value(QLatin1String("in")).toString();
    service.out = attributes.value(QLatin1String("out")).toString();
    // Some editors put the tracks of a tractor into a multitrack element of their own.
    int depth = 0;
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::EndElement && depth-- == 0)
            break;
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes own = m_xml.attributes();
        const auto text = [&own](const char* name) {
            return own.value(QLatin1String(name)).toString();
        };
        if (m_xml.name() == QLatin1String("multitrack")) {
            ++depth;
        } else if (m_xml.name() == QLatin1String("property")) {
            ReadProperty(service.properties);
        } else if (m_xml.name() == QLatin1String("blank")) {
            service.items.push_back(
                {{}, std::max<std::int64_t>(0, Frames(text("length"), 0)), {}, {}});
            m_xml.skipCurrentElement();
        } else if (m_xml.name() == QLatin1String("entry") ||
                   m_xml.name() == QLatin1String("track")) {
            service.items.push_back({text("producer"), 0, text("in"), text("out")});
            m_xml.skipCurrentElement();
        } else {
            m_xml.skipCurrentElement();
        }
    }
    TakeExactTexts(service.properties);
    m_services[id] = std::move(service);
    m_lastService = id;
}

void DocumentReader::ReadProperty(Properties& properties)
{
    const QString name = m_xml.attributes().value(QLatin1String("name")).toString();
    const QString text = m_xml.readElementText();
    const bool isOwn = name.startsWith(kOwnPrefix);
    properties.insert(isOwn ? DecodeText(name) : name, isOwn ? DecodeText(text) : text);
}

QStringList DocumentReader::MediaNames(const QString& root) const
{
    QSet<QString> names;
    QSet<QString> seen = {root};
    QStringList open = {root};
    while (!open.isEmpty()) {
        const auto service = m_services.constFind(open.takeLast());
        if (service == m_services.constEnd())
            continue;
        if (!HoldsClips(service->element))
            names << MediaName(service->properties);
        for (const QString& name : MediaInSettings(service->properties))
            names << name;
        for (const Item& item : service->items) {
            if (!seen.contains(item.producer))
                open << item.producer;
            seen << item.producer;
        }
    }
    names.remove(QString());
    return names.values();
}

void DocumentReader::DescribeMedia(const QString& root)
{
    QStringList names;
    QStringList paths;
    for (const QString& name : MediaNames(root)) {
        const QString path = QDir::cleanPath(m_folder.absoluteFilePath(name));
        m_media[name] = OfflineMedia(path);
        if (IsThere(path)) {
            names << name;
            paths << path;
        }
    }
    const auto infos = DescribeFiles(paths);
    for (int i = 0; i < names.size(); ++i) {
        if (infos[size_t(i)])
            m_media[names[i]] = infos[size_t(i)];
    }
}

NLEComPtr<TimelineNode> DocumentReader::Make(const QString& id)
{
    const auto found = m_services.constFind(id);
    if (found == m_services.constEnd() || m_open.contains(id))
        return nullptr;
    // A short text can name more clips than there is memory, each service the next one twice.
    if (m_open.size() >= kDeepestNesting || ++m_made > kMostNodes)
        return nullptr;
    // A service that contains itself would never end.
    m_open.insert(id);
    NLEComPtr<TimelineNode> node =
        HoldsClips(found->element) ? MakeComposite(*found) : MakeProducer(*found);
    m_open.remove(id);
    return node;
}

NLEComPtr<TimelineNode> DocumentReader::MakeProducer(const Service& service)
{
    const Properties& properties = service.properties;
    bool hasSize = false;
    const auto size = ParsePair(properties.value(kSize), &hasSize);
    const NLESize pictureSize = hasSize ? NLESize{size.first, size.second} : m_profile.frameSize;
    const QString media = MediaName(properties);
    NLEComPtr<TimelineNode> node;
    if (IsColor(properties))
        node = MakeCom<ColorClip>(ParseColor(properties.value(kResource)), pictureSize,
                                  m_profile.frameRate);
    else if (IsText(properties))
        node = MakeCom<TextClip>(properties.value(QLatin1String("text")),
                                 properties.value(QLatin1String("family")), pictureSize,
                                 m_profile.frameRate);
    else if (!media.isEmpty())
        node = MakeMedia(properties);
    if (node)
        ApplyCommon(properties, *node);
    return node;
}

NLEComPtr<TimelineNode> DocumentReader::MakeMedia(const Properties& properties)
{
    NLEComPtr<MediaClip> clip = MakeCom<MediaClip>(m_media.value(MediaName(properties)));
    clip->ChangeRate(m_profile.frameRate);
    clip->SetGPUFirst(properties.value(kDecoder).toInt());
    return clip;
}

NLEComPtr<TimelineNode> DocumentReader::MakeComposite(const Service& service)
{
    const bool isRoot = m_open.size() == 1;
    const bool isProject = service.properties.value(kKind, kProject) == kProject;
    const NLERational saved = ParseFraction(service.properties.value(kRate));
    const NLERational rate = IsRate(saved) ? saved : m_profile.frameRate;
    bool hasSize = false;
    const auto size = ParsePair(service.properties.value(kSize), &hasSize);
    NLEComPtr<CompositeNode> node;
    if (isProject && (isRoot || service.properties.contains(kKind))) {
        tagNLEProjectProfile profile = m_profile;
        profile.frameRate = rate;
        if (hasSize)
            profile.frameSize = {size.first, size.second};
        const QStringList audio = service.properties.value(kAudio).split(QLatin1Char(' '));
        if (audio.size() == 3) {
            profile.sampleRate = audio[0].toInt();
            profile.channels = audio[1].toInt();
            profile.sampleFormat = audio[2].toInt();
        }
        node = MakeCom<ProjectNode>(ProjectNode::IsValid(profile) ? profile : m_profile);
        if (isRoot)
            m_profile.frameRate = rate;
    } else {
        node = MakeCom<CompositeNode>(rate);
        if (hasSize)
            node->SetOwnSize({size.first, size.second});
    }
    std::vector<Placed> clips;
    if (service.element == QLatin1String("playlist")) {
        ReadTrack(service, 0, clips);
    } else {
        int index = 0;
        for (const Item& track : service.items) {
            const auto found = m_services.constFind(track.producer);
            if (found != m_services.constEnd() && found->element == QLatin1String("playlist"))
                ReadTrack(*found, index, clips);
            else if (found != m_services.constEnd() && !IsBackground(track.producer))
                PlaceEntry(track, 0, index, false, clips);
            ++index;
        }
    }
    std::stable_sort(clips.begin(), clips.end(),
                     [](const Placed& a, const Placed& b) { return a.order < b.order; });
    for (const Placed& clip : clips)
        node->Adopt(clip.node);
    ApplyCommon(service.properties, *node);
    return node;
}

void DocumentReader::ReadTrack(const Service& track, int index, std::vector<Placed>& clips)
{
    const bool unplaced = track.properties.value(kKind) == kUnplaced;
    std::int64_t position = 0;
    for (const Item& item : track.items) {
        if (item.producer.isEmpty()) {
            position += item.blank;
            continue;
        }
        if (IsBackground(item.producer))
            continue;
        PlaceEntry(item, position, index, unplaced, clips);
        position += NLERangeLength(RangeOf(item));
    }
}

NLERange DocumentReader::RangeOf(const Item& item) const
{
    const auto producer = m_services.constFind(item.producer);
    const bool isKnown = producer != m_services.constEnd();
    const std::int64_t in = Frames(item.in, isKnown ? Frames(producer->in, 0) : 0);
    const std::int64_t out = Frames(item.out, isKnown ? Frames(producer->out, in) : in);
    return {ClampToInt(double(in)), ClampToInt(double(out))};
}

void DocumentReader::PlaceEntry(const Item& item, std::int64_t position, int level, bool unplaced,
                                std::vector<Placed>& clips)
{
    NLEComPtr<TimelineNode> node = Make(item.producer);
    if (!node)
        return;
    const Service& producer = m_services[item.producer];
    const int order = producer.properties.value(kOrder, QString::number(INT32_MAX)).toInt();
    const Placement found = {position, RangeOf(item)};
    // Where the entry still says what was saved with the clip, the clip's own values hold: they
    // know more than an entry can say. Else another editor has moved or trimmed it.
    const bool own = producer.properties.contains(kKind);
    if (own && unplaced && !producer.properties.contains(kRange))
        node->SetRange(&found.range);
    if (!own || (!unplaced && !(found == VisiblePart(node->Position(), node->Range())))) {
        node->SetRange(&found.range);
        node->SetPosition(ClampToInt(double(position)));
        if (!own)
            node->SetLevel(level);
    }
    clips.push_back({node, order});
}

void DocumentReader::ApplyCommon(const Properties& properties, TimelineNode& node)
{
    if (!properties.contains(kKind))
        return;
    const NLERational rate = ParseFraction(properties.value(kRate));
    // A composite was made with its rate, and its clips were saved at that rate.
    if (IsRate(rate) && !dynamic_cast<CompositeNode*>(&node))
        node.ChangeRate(rate);
    SettingsFromText(
        properties, [this](const QString& name) { return m_media.value(name); }, node);
    node.Bag().SetAll(ReadValues(properties, kBagPrefix));
    if (auto* project = dynamic_cast<ProjectNode*>(&node))
        project->TakeContext(ReadValues(properties, kContextPrefix));
}

bool DocumentReader::IsBackground(const QString& id) const
{
    const auto service = m_services.constFind(id);
    if (service != m_services.constEnd() && service->properties.contains(kKind))
        return service->properties.value(kKind) == kBackground;
    // The names under which other editors keep their empty lowest track.
    return id == QLatin1String("black") || id == QLatin1String("black_track") ||
           id == QLatin1String("background");
}

std::int64_t DocumentReader::Frames(const QString& text, std::int64_t preset) const
{
    if (text.isEmpty())
        return preset;
    if (!text.contains(QLatin1Char(':'))) {
        bool ok = false;
        const std::int64_t frames = text.toLongLong(&ok);
        return ok ? std::clamp<std::int64_t>(frames, INT32_MIN, INT32_MAX) : preset;
    }
    // A clock value, hours:minutes:seconds.fraction.
    double seconds = 0;
    for (const QString& part : text.split(QLatin1Char(':')))
        seconds =
            seconds * 60 + QString(part).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    return ClampToInt(std::round(seconds * ToDouble(m_profile.frameRate)));
}

} // namespace nle
