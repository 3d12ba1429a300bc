// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MltDocument.h"

#include "NLECore/model/DocumentText.h"
#include "NLECore/scene/Fields.h"
#include "NLECore/scene/FrameMath.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace nle {

using namespace document;

namespace {

/// Services that may stand one inside of the other in the text; reading recurses.
constexpr int kDeepestText = 100;
constexpr int kMostRepeats = 100000;

bool IsService(const QString& element)
{
    return element == QLatin1String("producer") || element == QLatin1String("chain") ||
           element == QLatin1String("playlist") || element == QLatin1String("tractor");
}

bool IsEffect(const QString& element)
{
    return element == QLatin1String("filter") || element == QLatin1String("transition") ||
           element == QLatin1String("link");
}

/// Puts the texts that XML cannot carry in the place of those that stand for them. Where another
/// editor has changed a text, that holds.
void TakeExactTexts(DocumentFields& properties)
{
    const DocumentFields read = properties;
    for (auto property = read.begin(); property != read.end(); ++property) {
        if (!property.key().startsWith(kExactPrefix))
            continue;
        const QString name = property.key().mid(kExactPrefix.size());
        if (read.value(name) == PlainText(property.value()))
            properties[name] = property.value();
    }
}

class Parser
{
public:
    Parser(const QByteArray& text, MltDocument& result) : m_xml(text), m_result(result) {}

    void Read();
    QString Error() const
    {
        return QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
    }
    bool HasError() const { return m_xml.hasError(); }

private:
    void ReadProfile();
    /// The index of the service that was read.
    int ReadService();
    void ReadParts(MltService& service);
    void ReadPart(MltService& service);
    void ReadItem(MltService& service);
    void ReadBlank(MltService& service);
    MltEffect ReadEffect();
    void ReadProperty(DocumentFields& properties);
    DocumentFields Attributes() const;
    QString Attribute(const char* name) const
    {
        return m_xml.attributes().value(QLatin1String(name)).toString();
    }

    QXmlStreamReader m_xml;
    MltDocument& m_result;
    QMap<QString, int> m_ids;
    int m_depth = 0;
};

void Parser::Read()
{
    if (!m_xml.readNextStartElement())
        return;
    if (m_xml.name() != QLatin1String("mlt") && m_xml.name() != QLatin1String("westley")) {
        m_xml.raiseError(QStringLiteral("not an MLT document"));
        return;
    }
    m_result.root = Attribute("root");
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("profile"))
            ReadProfile();
        else if (IsService(m_xml.name().toString()))
            m_result.last = ReadService();
        else
            m_xml.skipCurrentElement();
    }
}

void Parser::ReadProfile()
{
    m_result.size = {Attribute("width").toInt(), Attribute("height").toInt()};
    m_result.frameRate = {Attribute("frame_rate_num").toInt(), Attribute("frame_rate_den").toInt()};
    m_xml.skipCurrentElement();
}

DocumentFields Parser::Attributes() const
{
    DocumentFields properties;
    for (const QXmlStreamAttribute& attribute : m_xml.attributes())
        properties.insert(attribute.name().toString(), attribute.value().toString());
    return properties;
}

int Parser::ReadService()
{
    MltService service;
    service.element = m_xml.name().toString();
    service.properties = Attributes();
    service.id = Attribute("id");
    ReadParts(service);
    TakeExactTexts(service.properties);
    service.in = service.properties.value(QStringLiteral("in"));
    service.out = service.properties.value(QStringLiteral("out"));
    const int index = int(m_result.services.size());
    if (!service.id.isEmpty())
        m_ids[service.id] = index;
    m_result.services.push_back(std::move(service));
    return index;
}

void Parser::ReadParts(MltService& service)
{
    if (++m_depth > kDeepestText)
        m_xml.raiseError(QStringLiteral("nested too deep"));
    while (m_xml.readNextStartElement())
        ReadPart(service);
    --m_depth;
}

void Parser::ReadPart(MltService& service)
{
    const QString element = m_xml.name().toString();
    if (element == QLatin1String("property")) {
        ReadProperty(service.properties);
    } else if (element == QLatin1String("blank")) {
        ReadBlank(service);
    } else if (element == QLatin1String("entry") || element == QLatin1String("track")) {
        ReadItem(service);
    } else if (element == QLatin1String("multitrack")) {
        // Some editors put the tracks of a tractor into an element of their own.
        ReadParts(service);
    } else if (IsService(element)) {
        MltItem item;
        item.service = ReadService();
        service.items.push_back(item);
    } else if (element == QLatin1String("filter")) {
        service.filters.push_back(ReadEffect());
    } else if (element == QLatin1String("transition")) {
        service.transitions.push_back(ReadEffect());
    } else if (element == QLatin1String("link")) {
        service.links.push_back(ReadEffect());
    } else {
        m_xml.skipCurrentElement();
    }
}

void Parser::ReadBlank(MltService& service)
{
    MltItem item;
    // Its times need the rate, which stands before all services.
    item.blank = std::max<std::int64_t>(0, MltFrames(Attribute("length"), m_result.frameRate, 0));
    service.items.push_back(item);
    m_xml.skipCurrentElement();
}

void Parser::ReadItem(MltService& service)
{
    MltItem item;
    item.service = m_ids.value(Attribute("producer"), -1);
    item.in = Attribute("in");
    item.out = Attribute("out");
    item.hide = Attribute("hide");
    if (m_xml.attributes().hasAttribute(QLatin1String("repeat")))
        item.repeat = std::clamp(Attribute("repeat").toInt(), 1, kMostRepeats);
    while (m_xml.readNextStartElement()) {
        const QString element = m_xml.name().toString();
        if (IsService(element))
            item.service = ReadService();
        else if (IsEffect(element))
            item.filters.push_back(ReadEffect());
        else
            m_xml.skipCurrentElement();
    }
    if (item.service >= 0)
        service.items.push_back(std::move(item));
    else
        ++m_result.lostReferences;
}

MltEffect Parser::ReadEffect()
{
    MltEffect effect;
    effect.properties = Attributes();
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("property"))
            ReadProperty(effect.properties);
        else
            m_xml.skipCurrentElement();
    }
    return effect;
}

void Parser::ReadProperty(DocumentFields& properties)
{
    const QString name = Attribute("name");
    const bool hasValue = m_xml.attributes().hasAttribute(QLatin1String("value"));
    const QString value = Attribute("value");
    const QString inside = m_xml.readElementText(QXmlStreamReader::SkipChildElements);
    const QString text = hasValue ? value : inside;
    const bool isOwn = name.startsWith(kOwnPrefix);
    properties.insert(isOwn ? DecodeText(name) : name, isOwn ? DecodeText(text) : text);
}

} // namespace

QString MltEffect::Service() const
{
    return properties.value(QStringLiteral("mlt_service"));
}

bool MltEffect::IsOff() const
{
    return MltNumber(properties.value(QStringLiteral("disable")), 0) != 0;
}

bool MltService::HoldsClips() const
{
    return element == QLatin1String("tractor") || element == QLatin1String("playlist");
}

bool ReadMlt(const QByteArray& text, MltDocument* result, QString* error)
{
    Parser parser(text, *result);
    parser.Read();
    if (parser.HasError())
        *error = parser.Error();
    return !parser.HasError();
}

double MltNumber(const QString& text, double preset)
{
    // As much of the text as is a number.
    static const QRegularExpression numberPattern(
        QStringLiteral("^\\s*([+-]?(\\d+([.,]\\d*)?|[.,]\\d+)([eE][+-]?\\d+)?)"));
    const QRegularExpressionMatch match = numberPattern.match(text);
    if (!match.hasMatch())
        return preset;
    const double number = match.captured(1).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    return IsFinite(number) ? number : preset;
}

int MltInt(const QString& text, int preset)
{
    return ClampToInt(MltNumber(text, preset));
}

std::int64_t MltFrames(const QString& text, const NLERational& rate, std::int64_t preset)
{
    if (!text.contains(QLatin1Char(':')) && !text.contains(QLatin1Char(';')))
        return ClampToInt(std::floor(MltNumber(text, double(preset))));
    static const QRegularExpression separator(QStringLiteral("[:;]"));
    QStringList parts = text.trimmed().split(separator);
    const double fps = IsRate(rate) ? ToDouble(rate) : 25;
    const auto take = [&parts] { return parts.isEmpty() ? 0.0 : MltNumber(parts.takeLast(), 0); };
    const bool isClock =
        parts.last().contains(QLatin1Char('.')) || parts.last().contains(QLatin1Char(','));
    double frames = isClock ? std::round(fps * take()) : take();
    if (!isClock)
        frames += std::ceil(fps * take());
    // The margin keeps a product that is whole from falling below it.
    constexpr double margin = 1e-9;
    constexpr double minute = 60;
    constexpr double hour = 3600;
    frames += std::floor(fps * minute * take() + margin);
    frames += std::floor(fps * hour * take() + margin);
    return ClampToInt(frames);
}

} // namespace nle
