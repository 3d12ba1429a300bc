// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/DocumentWriter.h"

#include "EngineApi/NLEKey.h"
#include "NLECore/model/DocumentFormat.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/MotionFilters.h"
#include "NLECore/model/SettingsText.h"
#include "NLECore/scene/FrameMath.h"

#include <numeric>

namespace nle {

using namespace document;

namespace {

QString Fraction(const NLERational& rational)
{
    return QStringLiteral("%1/%2").arg(rational.num).arg(rational.den);
}

QString Reduced(std::int64_t value, std::int64_t other)
{
    return QString::number(value / std::gcd(value, other));
}

QString ColorName(std::uint32_t argb)
{
    return QStringLiteral("#%1").arg(argb, 8, 16, QLatin1Char('0'));
}

struct ValueText
{
    QString operator()(int value) const { return QStringLiteral("i:%1").arg(value); }
    QString operator()(double value) const
    {
        return QLatin1String("d:") + QString::number(value, 'g', 17);
    }
    QString operator()(const NLERational& value) const
    {
        return QLatin1String("r:") + Fraction(value);
    }
    QString operator()(const PropertyBag::Text& value) const
    {
        return QLatin1String("s:") + FromWide(*value);
    }
};

} // namespace

DocumentWriter::DocumentWriter(QString& text, const QDir& folder) : m_xml(&text), m_folder(folder)
{
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
}

void DocumentWriter::Write(const TimelineNode& root)
{
    m_xml.writeStartDocument();
    m_xml.writeStartElement(QStringLiteral("mlt"));
    m_xml.writeAttribute(QStringLiteral("LC_NUMERIC"), QStringLiteral("C"));
    m_xml.writeAttribute(QStringLiteral("version"), QStringLiteral("7.0.0"));
    WriteProfile(root);
    WriteNode(root, 0);
    m_xml.writeEndDocument();
}

void DocumentWriter::WriteProfile(const TimelineNode& root)
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

QString DocumentWriter::WriteNode(const TimelineNode& node, int order)
{
    if (const auto* composite = dynamic_cast<const CompositeNode*>(&node))
        return WriteComposite(*composite, order);
    QString id = NewId("producer");
    WriteProducer(id, node, order);
    return id;
}

void DocumentWriter::WriteProducer(const QString& id, const TimelineNode& node, int order)
{
    m_xml.writeStartElement(QStringLiteral("producer"));
    m_xml.writeAttribute(QStringLiteral("id"), id);
    m_xml.writeAttribute(QStringLiteral("in"), QStringLiteral("0"));
    m_xml.writeAttribute(QStringLiteral("out"),
                         QString::number(std::max(1, node.TotalLength()) - 1));
    if (const auto* media = dynamic_cast<const MediaClip*>(&node)) {
        WriteMedia(*media);
        WriteCommon(node, kMedia, order);
    } else if (const auto* color = dynamic_cast<const ColorClip*>(&node)) {
        Property(QStringLiteral("mlt_service"), QStringLiteral("color"));
        Property(QStringLiteral("resource"), ColorName(color->Argb()));
        WriteCommon(node, kColor, order);
    } else if (const auto* text = dynamic_cast<const TextClip*>(&node)) {
        Property(QStringLiteral("mlt_service"), QStringLiteral("qtext"));
        Property(QStringLiteral("text"), text->Text());
        Property(QStringLiteral("family"), text->Family());
        Property(QStringLiteral("fgcolour"), QStringLiteral("#ffffffff"));
        Property(QStringLiteral("bgcolour"), QStringLiteral("#00000000"));
        WriteCommon(node, kText, order);
    }
    WriteMotion(node);
    m_xml.writeEndElement();
}

void DocumentWriter::WriteMedia(const MediaClip& clip)
{
    const bool still = clip.Media().kind == NLEMedia_Image;
    Property(QStringLiteral("mlt_service"),
             still ? QStringLiteral("qimage") : QStringLiteral("avformat"));
    Property(QStringLiteral("resource"), DocumentPath(clip.Media().path, m_folder));
    if (clip.GpuFirst() != 0)
        Property(kDecoder, QString::number(clip.GpuFirst()));
}

void DocumentWriter::WriteCommon(const TimelineNode& node, QLatin1String kind, int order)
{
    Property(kKind, kind);
    Property(kOrder, QString::number(order));
    Property(kRate, Fraction(node.FrameRate()));
    // A file says itself how large it is.
    if (kind != kMedia)
        Property(
            kSize,
            QStringLiteral("%1 %2").arg(node.PictureSize().width).arg(node.PictureSize().height));
    for (const auto& [name, text] : SettingsToText(node, m_folder))
        Property(name, text);
    for (const auto& [key, value] : node.Bag().All())
        Property(kBagPrefix + FromWide(key), std::visit(ValueText(), value));
}

QString DocumentWriter::WriteComposite(const CompositeNode& node, int order)
{
    std::vector<Lane> lanes;
    Lane unplaced;
    std::vector<std::pair<const TimelineNode*, QString>> clips;
    int clipOrder = 0;
    // MLT reads a document in one pass, so what is referred to stands first.
    for (const NLEComPtr<TimelineNode>& clip : node.Clips())
        clips.emplace_back(clip.get(), WriteNode(*clip, clipOrder++));
    std::stable_sort(clips.begin(), clips.end(), [](const auto& a, const auto& b) {
        return a.first->Position() < b.first->Position();
    });
    for (const auto& clip : clips) {
        const Placement placement = VisiblePart(clip.first->Position(), clip.first->Range());
        const std::int64_t length = NLERangeLength(placement.range);
        if (length == 0 || !clip.first->IsEnabled()) {
            unplaced.clips.push_back(clip);
            continue;
        }
        auto lane = std::find_if(lanes.begin(), lanes.end(), [&](const Lane& candidate) {
            return candidate.level == clip.first->Level() && candidate.end <= placement.position;
        });
        if (lane == lanes.end())
            lane = lanes.insert(lanes.end(), Lane{clip.first->Level(), 0, {}});
        lane->clips.push_back(clip);
        lane->end = placement.position + length;
    }
    std::stable_sort(lanes.begin(), lanes.end(),
                     [](const Lane& a, const Lane& b) { return a.level < b.level; });

    std::vector<QString> tracks = {NewId("background")};
    WriteBackground(tracks.front(), node);
    for (const Lane& lane : lanes)
        tracks.push_back(WriteLane(lane));
    const QString hidden = unplaced.clips.empty() ? QString() : WriteUnplaced(unplaced);

    QString id = NewId("tractor");
    m_xml.writeStartElement(QStringLiteral("tractor"));
    m_xml.writeAttribute(QStringLiteral("id"), id);
    m_xml.writeAttribute(QStringLiteral("in"), QStringLiteral("0"));
    m_xml.writeAttribute(QStringLiteral("out"),
                         QString::number(std::max(1, node.TotalLength()) - 1));
    const auto* project = dynamic_cast<const ProjectNode*>(&node);
    WriteCommon(node, project ? kProject : kComposite, order);
    if (project) {
        Property(kAudio, QStringLiteral("%1 %2 %3")
                             .arg(project->Profile().sampleRate)
                             .arg(project->Profile().channels)
                             .arg(project->Profile().sampleFormat));
        for (const auto& [key, value] : project->ContextValues())
            Property(kContextPrefix + FromWide(key), std::visit(ValueText(), value));
    }
    for (const QString& track : tracks)
        WriteTrack(track, false);
    if (!hidden.isEmpty())
        WriteTrack(hidden, true);
    for (int track = 1; track < int(tracks.size()); ++track) {
        WriteTransition("mix", track);
        WriteTransition("composite", track);
    }
    WriteMotion(node);
    m_xml.writeEndElement();
    return id;
}

void DocumentWriter::WriteBackground(const QString& id, const CompositeNode& node)
{
    const bool isProject = dynamic_cast<const ProjectNode*>(&node) != nullptr;
    const int background =
        isProject ? int(node.Background())
                  : node.Bag().IntOr(NLEKey::Render::kRender_BackgroundColor, int(0xFF000000u));
    m_xml.writeStartElement(QStringLiteral("producer"));
    m_xml.writeAttribute(QStringLiteral("id"), id);
    m_xml.writeAttribute(QStringLiteral("in"), QStringLiteral("0"));
    m_xml.writeAttribute(QStringLiteral("out"),
                         QString::number(std::max(1, node.TotalLength()) - 1));
    Property(QStringLiteral("mlt_service"), QStringLiteral("color"));
    Property(QStringLiteral("resource"), ColorName(std::uint32_t(background)));
    Property(kKind, kBackground);
    m_xml.writeEndElement();
}

QString DocumentWriter::WriteLane(const Lane& lane)
{
    QString id = NewId("playlist");
    m_xml.writeStartElement(QStringLiteral("playlist"));
    m_xml.writeAttribute(QStringLiteral("id"), id);
    std::int64_t end = 0;
    for (const auto& [clip, producer] : lane.clips) {
        const Placement placement = VisiblePart(clip->Position(), clip->Range());
        if (placement.position > end) {
            m_xml.writeEmptyElement(QStringLiteral("blank"));
            m_xml.writeAttribute(QStringLiteral("length"),
                                 QString::number(placement.position - end));
        }
        EntryOf(producer, placement.range);
        end = placement.position + NLERangeLength(placement.range);
    }
    m_xml.writeEndElement();
    return id;
}

QString DocumentWriter::WriteUnplaced(const Lane& lane)
{
    QString id = NewId("playlist");
    m_xml.writeStartElement(QStringLiteral("playlist"));
    m_xml.writeAttribute(QStringLiteral("id"), id);
    Property(kKind, kUnplaced);
    for (const auto& [clip, producer] : lane.clips) {
        const NLERange range = clip->Range();
        EntryOf(producer, NLERangeLength(range) > 0 ? range : NLERange{0, 0});
    }
    m_xml.writeEndElement();
    return id;
}

void DocumentWriter::WriteTrack(const QString& producer, bool hidden)
{
    m_xml.writeEmptyElement(QStringLiteral("track"));
    m_xml.writeAttribute(QStringLiteral("producer"), producer);
    if (hidden)
        m_xml.writeAttribute(QStringLiteral("hide"), QStringLiteral("both"));
}

void DocumentWriter::WriteTransition(const char* service, int track)
{
    m_xml.writeStartElement(QStringLiteral("transition"));
    Property(QStringLiteral("mlt_service"), QLatin1String(service));
    Property(QStringLiteral("a_track"), QStringLiteral("0"));
    Property(QStringLiteral("b_track"), QString::number(track));
    Property(QStringLiteral("always_active"), QStringLiteral("1"));
    if (qstrcmp(service, "mix") == 0)
        Property(QStringLiteral("sum"), QStringLiteral("1"));
    else
        Property(QStringLiteral("geometry"), QStringLiteral("0/0:100%x100%:100"));
    m_xml.writeEndElement();
}

void DocumentWriter::WriteMotion(const TimelineNode& node)
{
    for (const DocumentFilter& filter : MotionFilters(node)) {
        m_xml.writeStartElement(QStringLiteral("filter"));
        for (const auto& [name, value] : filter)
            Property(name, value);
        m_xml.writeEndElement();
    }
}

void DocumentWriter::EntryOf(const QString& producer, const NLERange& range)
{
    m_xml.writeEmptyElement(QStringLiteral("entry"));
    m_xml.writeAttribute(QStringLiteral("producer"), producer);
    m_xml.writeAttribute(QStringLiteral("in"), QString::number(range.in));
    m_xml.writeAttribute(QStringLiteral("out"), QString::number(range.out));
}

void DocumentWriter::Property(const QString& name, const QString& value)
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

QString DocumentWriter::NewId(const char* prefix)
{
    return QLatin1String(prefix) + QString::number(m_lastId++);
}

} // namespace nle
