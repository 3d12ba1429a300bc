// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/SettingsText.h"

#include "Com/WideText.h"
#include "NLECore/model/DocumentFormat.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/EffectNode.h"
#include "NLECore/model/ParameterText.h"
#include "NLECore/scene/FrameMath.h"

#include <QStringList>

#include <cstring>

namespace nle {

using namespace document;

namespace {

/// Names of the document properties that hold the fields of \a Settings, in their order.
template <typename Settings>
const std::vector<QString>& PropertyNames()
{
    static const std::vector<QString> names = [] {
        std::vector<QString> result;
        ForEachField<Settings>([&result](const auto& field) {
            result.push_back(kOwnPrefix + QLatin1String(field.property));
        });
        return result;
    }();
    return names;
}

/// Values of fields as texts. Numbers of one property stand behind one another.
struct ToText
{
    const QDir& folder;

    template <typename Number>
    std::enable_if_t<std::is_arithmetic_v<Number> || std::is_enum_v<Number>, QString>
    operator()(Number value) const
    {
        return QString::number(double(value), 'g', 17);
    }
    QString operator()(const NLERational& value) const
    {
        return Join({double(value.num), double(value.den)});
    }
    QString operator()(const std::vector<int>& numbers) const { return Join(numbers); }
    QString operator()(const NLEPointF& point) const { return Join({point.x, point.y}); }
    QString operator()(const NLESizeF& size) const { return Join({size.width, size.height}); }
    QString operator()(const std::optional<NLERange>& range) const
    {
        return range ? Join({double(range->in), double(range->out)}) : QString();
    }
    template <std::size_t Count>
    QString operator()(const std::array<double, Count>& numbers) const
    {
        return Join(numbers);
    }
    QString operator()(const std::wstring& text) const { return FromWide(text); }
    QString operator()(const std::vector<VolumePoint>& curve) const
    {
        QStringList points;
        for (const VolumePoint& point : curve)
            points << Join({point.time, point.gain});
        return points.join(QLatin1Char(';'));
    }
    QString operator()(const std::shared_ptr<const NLEAlphaChannelRecord>& record) const
    {
        if (!record)
            return {};
        const QByteArray bytes(reinterpret_cast<const char*>(record.get()), sizeof(*record));
        return QString::fromLatin1(bytes.toBase64());
    }
    QString operator()(const std::shared_ptr<const MediaInfo>& media) const
    {
        return media ? DocumentPath(media->path, folder) : QString();
    }

private:
    template <typename Numbers = std::initializer_list<double>>
    static QString Join(const Numbers& numbers)
    {
        QString result;
        for (const double number : numbers) {
            if (!result.isEmpty())
                result += QLatin1Char(' ');
            result += QString::number(number, 'g', 17);
        }
        return result;
    }
};

template <typename Settings>
DocumentTexts FieldTexts(const Settings& settings, const QDir& folder)
{
    DocumentTexts texts;
    const ToText toText{folder};
    auto name = PropertyNames<Settings>().begin();
    ForEachField<Settings>([&](const auto& field) {
        const QString text = toText(settings.*field.member);
        if (!texts.empty() && texts.back().first == *name)
            texts.back().second += QLatin1Char(' ') + text;
        else
            texts.emplace_back(*name, text);
        ++name;
    });
    return texts;
}

/// Presets are left out: a document of ten thousand plain clips stays small.
template <typename Settings>
void AddChanged(const Settings& settings, const QDir& folder, DocumentTexts& texts)
{
    static const Settings preset;
    static const DocumentTexts presets = FieldTexts(preset, QDir());
    if (IsSame(settings, preset))
        return;
    DocumentTexts own = FieldTexts(settings, folder);
    for (std::size_t i = 0; i < own.size(); ++i) {
        if (own[i].second != presets[i].second)
            texts.push_back(std::move(own[i]));
    }
}

/// Takes values of fields from a text, one behind the other.
class FromText
{
public:
    /// Without \a media, which outlives the object, for texts that name no files.
    explicit FromText(const QString& text, const FindMedia* media = nullptr)
        : m_media(media), m_text(text), m_parts(text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
    {
    }

    // Each is false, and gives nothing, when there is no such value.
    bool Take(double& value)
    {
        bool ok = false;
        if (!m_parts.isEmpty())
            value = m_parts.takeFirst().toDouble(&ok);
        return ok;
    }
    template <typename Number>
    std::enable_if_t<std::is_integral_v<Number> || std::is_enum_v<Number>, bool> Take(Number& value)
    {
        double number = 0;
        if (!Take(number))
            return false;
        value = static_cast<Number>(ClampToInt(number));
        return true;
    }
    bool Take(std::uint32_t& value)
    {
        bool ok = false;
        if (!m_parts.isEmpty())
            value = m_parts.takeFirst().toUInt(&ok);
        return ok;
    }
    bool Take(NLERational& value)
    {
        int num = 0;
        int den = 0;
        if (!Take(num) || !Take(den))
            return false;
        value = {num, den};
        return true;
    }
    bool Take(std::vector<int>& numbers)
    {
        numbers.clear();
        for (int number = 0; Take(number);)
            numbers.push_back(number);
        return !numbers.empty();
    }
    bool Take(NLEPointF& point) { return Take(point.x) && Take(point.y); }
    bool Take(NLESizeF& size) { return Take(size.width) && Take(size.height); }
    bool Take(std::optional<NLERange>& range)
    {
        NLERange found;
        if (!Take(found.in) || !Take(found.out))
            return false;
        range = found;
        return true;
    }
    template <std::size_t Count>
    bool Take(std::array<double, Count>& numbers)
    {
        return std::all_of(numbers.begin(), numbers.end(),
                           [this](double& number) { return Take(number); });
    }
    bool Take(std::wstring& text)
    {
        text = ToWide(m_text);
        return !text.empty();
    }
    bool Take(std::vector<VolumePoint>& curve)
    {
        for (const QString& text : m_text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            m_parts = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            VolumePoint point = {};
            if (Take(point.time) && Take(point.gain))
                PutVolumePoint(curve, point);
        }
        return !curve.empty();
    }
    bool Take(std::shared_ptr<const NLEAlphaChannelRecord>& record)
    {
        const QByteArray bytes = QByteArray::fromBase64(m_text.toLatin1());
        if (bytes.size() != int(sizeof(NLEAlphaChannelRecord)))
            return false;
        auto found = std::make_shared<NLEAlphaChannelRecord>();
        std::memcpy(found.get(), bytes.constData(), sizeof(*found));
        record = std::move(found);
        return true;
    }
    bool Take(std::shared_ptr<const MediaInfo>& media)
    {
        if (m_media && !m_text.isEmpty())
            media = (*m_media)(m_text);
        return media != nullptr;
    }

private:
    const FindMedia* m_media;
    QString m_text;
    QStringList m_parts; ///< what is left of the text
};

template <typename Settings, typename Field>
void ReadField(FromText& text, const Field& field, Settings& settings)
{
    auto value = settings.*field.member;
    if (text.Take(value) && IsWithin(value, field.lowest, field.highest))
        settings.*field.member = std::move(value);
}

template <typename Settings>
void ReadSettings(const DocumentFields& properties, const FindMedia& media, Settings& settings)
{
    const std::vector<QString>& names = PropertyNames<Settings>();
    auto name = names.begin();
    std::optional<FromText> text;
    ForEachField<Settings>([&](const auto& field) {
        if (name == names.begin() || *name != *std::prev(name))
            text.emplace(properties.value(*name), &media);
        ReadField(*text, field, settings);
        ++name;
    });
}

/// A record stands in one text.
template <typename Record>
void ReadRecord(const QString& text, Record& record)
{
    FromText values(text);
    ForEachField<Record>([&](const auto& field) { ReadField(values, field, record); });
}

// ---- Lists of records: a text for each, behind a head

QString KeyFrameText(const KeyFrameFacet& keyFrames)
{
    const auto curve = keyFrames.Stored();
    if (curve->frames.empty() && keyFrames.enabled)
        return {};
    const ToText toText{QDir()};
    QStringList texts = {toText(
        std::array<double, 3>{double(keyFrames.enabled), curve->axis.start, curve->axis.length})};
    for (const NLEKeyFrameRecord& frame : curve->frames)
        texts << FieldTexts(frame, QDir()).front().second;
    return texts.join(QLatin1Char(';'));
}

void ReadKeyFrames(const QString& text, KeyFrameFacet& keyFrames)
{
    QStringList parts = text.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    std::array<double, 3> head = {};
    if (parts.isEmpty() || !FromText(parts.takeFirst()).Take(head))
        return;
    KeyFrameCurve curve;
    for (const QString& part : parts) {
        NLEKeyFrameRecord frame = kPlainKeyFrame;
        ReadRecord(part, frame);
        curve.frames.push_back(frame);
    }
    if (IsFinite(head[1]) && IsFinite(head[2]))
        curve.axis = {head[1], head[2]};
    keyFrames.enabled = head[0] != 0;
    keyFrames.Restore(curve);
}

/// The name stands last, with all its blanks.
void AddMarkers(const MarkerList& markers, DocumentTexts& texts)
{
    int number = 0;
    for (const Marker& marker : markers) {
        const auto [prefix, text] = FieldTexts(marker.record, QDir()).front();
        texts.emplace_back(prefix + QString::number(number++),
                           text + QLatin1Char(' ') + FromWide(marker.name));
    }
}

void ReadMarkers(const DocumentFields& properties, MarkerList& markers)
{
    const QString prefix = PropertyNames<NLEMarkerRecord>().front();
    std::map<int, QString> texts;
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (property.key().startsWith(prefix))
            texts[property.key().mid(prefix.size()).toInt()] = property.value();
    }
    constexpr int numbers = kFieldCount<NLEMarkerRecord>;
    for (const auto& [number, text] : texts) {
        if (text.count(QLatin1Char(' ')) < numbers)
            continue;
        Marker marker = {{}, ToWide(text.section(QLatin1Char(' '), numbers))};
        ReadRecord(text, marker.record);
        PutMarker(markers, std::move(marker));
    }
}

void ReadMixer(const DocumentFields& properties, MixerSettings& mixer)
{
    const QString prefix = PropertyNames<tagMixerParam>().front();
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (!property.key().startsWith(prefix))
            continue;
        tagMixerParam strip = kNeutralStrip;
        ReadRecord(property.value(), strip);
        mixer[property.key().mid(prefix.size()).toInt()] = strip;
    }
}

void ReadLevels(const DocumentFields& properties, LevelMap& levels)
{
    constexpr int numbers = kFieldCount<LevelSettings> - 1;
    const QString prefix = PropertyNames<LevelSettings>().front();
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (!property.key().startsWith(prefix))
            continue;
        LevelSettings settings;
        ReadRecord(property.value(), settings);
        settings.name = ToWide(property.value().section(QLatin1Char(' '), numbers));
        PutSettings(levels, property.key().mid(prefix.size()).toInt(), settings);
    }
}

/// Followed by the number of an effect; its parameters have a colon and their names behind that.
const QString kEffectPrefix = kOwnPrefix + QLatin1String("effect:");
/// Stands behind the name of an effect that is switched off.
const QLatin1String kOff(" off");

void AddEffects(const EffectsFacet& effects, const QDir& folder, DocumentTexts& texts)
{
    int number = 0;
    for (const NLEComPtr<EffectNode>& effect : effects.All()) {
        const QString prefix = kEffectPrefix + QString::number(number++);
        const ParameterValues& values = *effect->Parameters().Shared();
        texts.emplace_back(prefix, QLatin1String(values.Declared().names.name) +
                                       (effect->IsEnabled() ? QLatin1String() : kOff));
        AddParameterTexts(values, prefix + QLatin1Char(':'), folder, texts);
    }
}

void ReadEffects(const DocumentFields& properties, const FindMedia& media, EffectsFacet& effects)
{
    QString prefix = kEffectPrefix + QLatin1Char('0');
    for (int number = 0; properties.contains(prefix);
         prefix = kEffectPrefix + QString::number(++number)) {
        const QStringList words = properties.value(prefix).split(QLatin1Char(' '));
        const Declaration* declaration = FindDeclaration(words.front());
        if (!declaration)
            continue;
        NLEComPtr<EffectNode> effect = MakeCom<EffectNode>(*declaration);
        effect->SetEnabled(words.size() < 2);
        ParameterValues values(*declaration);
        ReadParameterTexts(properties, prefix + QLatin1Char(':'), media, values);
        effect->Parameters().Restore(values);
        effects.Adopt(effect);
    }
}

} // namespace

DocumentTexts SettingsToText(const TimelineNode& node, const QDir& folder)
{
    DocumentTexts texts;
    AddChanged(node.Placement(), folder, texts);
    AddChanged(node.Blend().settings, folder, texts);
    AddChanged(node.Transform().settings, folder, texts);
    AddChanged(node.Audio().settings, folder, texts);
    AddChanged(node.Video().settings, folder, texts);
    AddChanged(node.Source(), folder, texts);
    const QString keyFrames = KeyFrameText(node.KeyFrames());
    if (!keyFrames.isEmpty())
        texts.emplace_back(PropertyNames<NLEKeyFrameRecord>().front(), keyFrames);
    AddEffects(node.Effects(), folder, texts);
    AddMarkers(node.Markers().settings, texts);
    for (const auto& [level, strip] : node.Mixer().settings) {
        const auto [prefix, text] = FieldTexts(strip, folder).front();
        texts.emplace_back(prefix + QString::number(level), text);
    }
    for (const auto& [level, settings] : node.Levels()) {
        const auto [prefix, text] = FieldTexts(settings, folder).front();
        texts.emplace_back(prefix + QString::number(level), text);
    }
    return texts;
}

QStringList MediaInSettings(const DocumentFields& properties)
{
    QStringList names;
    auto name = PropertyNames<VideoSettings>().begin();
    ForEachField<VideoSettings>([&](const auto& field) {
        using Value = typename std::decay_t<decltype(field)>::Value;
        if (std::is_same_v<Value, std::shared_ptr<const MediaInfo>>)
            names << properties.value(*name);
        ++name;
    });
    return names;
}

void SettingsFromText(const DocumentFields& properties, const FindMedia& media, TimelineNode& node)
{
    ReadSettings(properties, media, node.Placement());
    ReadSettings(properties, media, node.Blend().settings);
    ReadSettings(properties, media, node.Transform().settings);
    ReadSettings(properties, media, node.Audio().settings);
    ReadSettings(properties, media, node.Video().settings);
    ReadSettings(properties, media, node.Source());
    ReadKeyFrames(properties.value(PropertyNames<NLEKeyFrameRecord>().front()), node.KeyFrames());
    ReadEffects(properties, media, node.Effects());
    ReadMixer(properties, node.Mixer().settings);
    ReadLevels(properties, node.Levels());
    ReadMarkers(properties, node.Markers().settings);
}

} // namespace nle
