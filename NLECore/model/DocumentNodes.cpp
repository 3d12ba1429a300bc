// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/DocumentNodes.h"

#include "Com/WideText.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/media/ImageSequence.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/ParameterText.h"
#include "NLECore/model/TitleClip.h"
#include "NLECore/model/TransitionNode.h"
#include "NLECore/scene/FrameMath.h"
#include "NLECore/scene/Title.h"

#include <algorithm>

namespace nle {

using namespace document;

namespace {

/// Nodes that one document may make.
constexpr int kMostNodes = 200000;
/// Parts of a speed that are told apart.
constexpr double kSpeedUnits = 1e8;

struct ValueText
{
    QString operator()(int value) const { return QStringLiteral("i:%1").arg(value); }
    QString operator()(double value) const
    {
        return QLatin1String("d:") + QString::number(value, 'g', 17);
    }
    QString operator()(const NLERational& value) const
    {
        return QLatin1String("r:") + RateText(value);
    }
    QString operator()(const PropertyBag::Text& value) const
    {
        return QLatin1String("s:") + FromWide(*value);
    }
};

PropertyBag::Value ParseValue(const QString& text)
{
    const QString value = text.mid(2);
    switch (text.isEmpty() ? 's' : text.at(0).toLatin1()) {
    case 'i':
        return value.toInt();
    case 'd':
        return value.toDouble();
    case 'r':
        return ParseRate(value);
    default:
        return std::make_shared<const std::wstring>(ToWide(value));
    }
}

/// The values whose names begin with \a prefix, by what follows it.
PropertyBag::Values ReadValues(const DocumentFields& properties, QLatin1String prefix)
{
    PropertyBag::Values values;
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (property.key().startsWith(prefix))
            values[ToWide(property.key().mid(prefix.size()))] = ParseValue(property.value());
    }
    return values;
}

void AddValues(const PropertyBag::Values& values, QLatin1String prefix, DocumentTexts& texts)
{
    for (const auto& [key, value] : values)
        texts.emplace_back(prefix + FromWide(key), std::visit(ValueText(), value));
}

QLatin1String KindOf(const TimelineNode& node)
{
    if (dynamic_cast<const ProjectNode*>(&node))
        return kProject;
    if (node.IsTransition())
        return kTransition;
    if (dynamic_cast<const CompositeNode*>(&node))
        return kComposite;
    if (dynamic_cast<const ColorClip*>(&node))
        return kColor;
    if (dynamic_cast<const TitleClip*>(&node))
        return kTitle;
    return dynamic_cast<const TextClip*>(&node) ? kText : kMedia;
}

/// Two whole numbers with a blank between them; empty when it is not so.
NLESize ParseSize(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    bool first = false;
    bool second = false;
    const NLESize size = {parts.value(0).toInt(&first), parts.value(1).toInt(&second)};
    return first && second ? size : NLESize{-1, -1};
}

} // namespace

QString RateText(const NLERational& rate)
{
    return QStringLiteral("%1/%2").arg(rate.num).arg(rate.den);
}

NLERational ParseRate(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char('/'));
    if (parts.size() != 2)
        return {0, 1};
    return {parts[0].toLongLong(), parts[1].toLongLong()};
}

QString ColorText(std::uint32_t argb)
{
    return QStringLiteral("#%1").arg(argb, 8, 16, QLatin1Char('0'));
}

DocumentTexts OwnTexts(const TimelineNode& node, int order, const QDir& folder)
{
    const QLatin1String kind = KindOf(node);
    DocumentTexts texts = {{kKind, kind}, {kOrder, QString::number(order)}};
    texts.emplace_back(kRate, RateText(node.FrameRate()));
    // A file says itself how large it is.
    if (kind != kMedia && kind != kTransition)
        texts.emplace_back(
            kSize,
            QStringLiteral("%1 %2").arg(node.PictureSize().width).arg(node.PictureSize().height));
    for (auto& text : SettingsToText(node, folder))
        texts.push_back(std::move(text));
    if (const auto* title = dynamic_cast<const TitleClip*>(&node))
        AddParameterTexts(*title->Parameters().Shared(), kTitlePrefix, folder, texts);
    AddValues(node.Bag().All(), kBagPrefix, texts);
    if (node.IsTransition()) {
        const auto values = static_cast<const TransitionNode&>(node).Parameters().Shared();
        texts.emplace_back(kTransitionName, QLatin1String(values->Declared().names.name));
        AddParameterTexts(*values, kParameterPrefix, folder, texts);
    }
    if (const auto* project = dynamic_cast<const ProjectNode*>(&node)) {
        texts.emplace_back(kAudio, QStringLiteral("%1 %2 %3")
                                       .arg(project->Profile().sampleRate)
                                       .arg(project->Profile().channels)
                                       .arg(project->Profile().sampleFormat));
        AddValues(project->ContextValues(), kContextPrefix, texts);
    }
    return texts;
}

std::uint32_t DocumentBackground(const CompositeNode& composite)
{
    if (dynamic_cast<const ProjectNode*>(&composite))
        return composite.Background();
    const auto opaque = int(0xFF000000u);
    // What is inside of another composite lets see what is below.
    const int preset = composite.Parent() ? int(composite.Background()) : opaque;
    return std::uint32_t(composite.Bag().IntOr(NLEKey::Render::kRender_BackgroundColor, preset));
}

void DocumentNodes::SetRoot(const QString& folder)
{
    if (!folder.isEmpty())
        m_root = m_folder.absoluteFilePath(folder);
}

QString DocumentNodes::PathOf(const QString& name) const
{
    if (name.startsWith(QLatin1String("file://")))
        return QDir::cleanPath(PathOfUrl(name, m_folder));
    if (IsRemote(name))
        return name;
    QString beside = QDir::cleanPath(m_folder.absoluteFilePath(name));
    if (m_root.isEmpty())
        return beside;
    const QString named = QDir::cleanPath(QDir(m_root).absoluteFilePath(name));
    return !IsThere(named) && IsThere(beside) ? beside : named;
}

void DocumentNodes::DescribeMedia(const std::set<QString>& names)
{
    QStringList known;
    QStringList paths;
    for (const QString& name : names) {
        const QString path = PathOf(name);
        m_media[name] = OfflineMedia(path);
        if (IsThere(path)) {
            known << name;
            paths << path;
        }
    }
    const auto infos = DescribeFiles(paths);
    for (int i = 0; i < known.size(); ++i) {
        if (infos[size_t(i)])
            m_media[known[i]] = infos[size_t(i)];
    }
    for (auto media = m_media.begin(); media != m_media.end(); ++media) {
        if (media.value()->kind == NLEMedia_Offline)
            remarks.Add(NLERemark_Missing,
                        QStringLiteral("%1: cannot be opened").arg(media.value()->path));
    }
}

std::shared_ptr<const MediaInfo> DocumentNodes::MediaOf(const QString& name) const
{
    const auto media = m_media.constFind(name);
    return media != m_media.constEnd() ? *media : OfflineMedia(PathOf(name));
}

bool DocumentNodes::TakeOne()
{
    if (m_made < kMostNodes)
        return ++m_made > 0;
    remarks.Add(NLERemark_Structure, QStringLiteral("more clips than a timeline takes"));
    return false;
}

NLESize DocumentNodes::SizeOf(const DocumentFields& properties) const
{
    const NLESize saved = ParseSize(properties.value(kSize));
    return saved.width >= 0 ? saved : profile.frameSize;
}

NLEComPtr<TimelineNode> DocumentNodes::MakeMedia(const QString& name,
                                                 const DocumentFields& properties)
{
    NLEComPtr<MediaClip> clip = MakeCom<MediaClip>(MediaOf(name));
    clip->ChangeRate(profile.frameRate);
    Apply(properties, *clip);
    return clip;
}

NLEComPtr<TimelineNode> DocumentNodes::MakeColor(std::uint32_t argb,
                                                 const DocumentFields& properties)
{
    NLEComPtr<ColorClip> clip = MakeCom<ColorClip>(argb, SizeOf(properties), profile.frameRate);
    Apply(properties, *clip);
    return clip;
}

NLEComPtr<TimelineNode> DocumentNodes::MakeText(const QString& text, const QString& family,
                                                const DocumentFields& properties)
{
    if (properties.value(kKind) == kTitle)
        return MakeTitle(text, family, properties);
    NLEComPtr<TextClip> clip =
        MakeCom<TextClip>(text, family, SizeOf(properties), profile.frameRate);
    Apply(properties, *clip);
    return clip;
}

NLEComPtr<TimelineNode> DocumentNodes::MakeTitle(const QString& text, const QString& family,
                                                 const DocumentFields& properties)
{
    NLEComPtr<TitleClip> clip = MakeCom<TitleClip>(SizeOf(properties), profile.frameRate);
    Apply(properties, *clip);
    ParameterValues values = *clip->Parameters().Shared();
    ReadParameterTexts(properties, kTitlePrefix, nullptr, values);
    values.SetText(TitleTextIndex(), ToWide(text));
    values.SetText(TitleFontIndex(), ToWide(family));
    clip->Parameters().Restore(values);
    return clip;
}

bool DocumentNodes::IsTransition(const DocumentFields& properties)
{
    return properties.value(kKind) == kTransition;
}

NLEComPtr<TimelineNode> DocumentNodes::MakeTransition(const DocumentFields& properties)
{
    const QString name = properties.value(kTransitionName);
    const Declaration* declaration = FindTransition(name);
    if (!declaration)
        remarks.Add(NLERemark_Transition, QStringLiteral("unknown transition %1").arg(name));
    NLEComPtr<TransitionNode> node =
        MakeCom<TransitionNode>(declaration ? *declaration : TransitionDeclarations().front());
    node->ChangeRate(profile.frameRate);
    Apply(properties, *node);
    ParameterValues values = *node->Parameters().Shared();
    ReadParameterTexts(properties, kParameterPrefix, nullptr, values);
    node->Parameters().Restore(values);
    return node;
}

NLEComPtr<CompositeNode> DocumentNodes::MakeComposite(const DocumentFields& properties, bool isRoot)
{
    const bool isProject = properties.value(kKind, kProject) == kProject;
    const NLERational saved = ParseRate(properties.value(kRate));
    const NLERational rate = IsRate(saved) ? saved : profile.frameRate;
    const NLESize size = ParseSize(properties.value(kSize));
    if (!isProject || (!isRoot && !properties.contains(kKind))) {
        NLEComPtr<CompositeNode> node = MakeCom<CompositeNode>(rate);
        node->SetOwnSize(size.width >= 0 ? size : profile.frameSize);
        return node;
    }
    tagNLEProjectProfile own = profile;
    own.frameRate = rate;
    if (size.width >= 0)
        own.frameSize = size;
    const QStringList audio = properties.value(kAudio).split(QLatin1Char(' '));
    if (audio.size() == 3) {
        own.sampleRate = audio[0].toInt();
        own.channels = audio[1].toInt();
        own.sampleFormat = audio[2].toInt();
    }
    if (isRoot)
        profile.frameRate = rate;
    return MakeCom<ProjectNode>(ProjectNode::IsValid(own) ? own : profile);
}

void DocumentNodes::Fill(CompositeNode& composite, std::vector<PlacedNode>& clips,
                         const DocumentFields& properties)
{
    std::stable_sort(clips.begin(), clips.end(),
                     [](const PlacedNode& a, const PlacedNode& b) { return a.order < b.order; });
    for (const PlacedNode& clip : clips)
        composite.Adopt(clip.node);
    Apply(properties, composite);
}

void DocumentNodes::Place(TimelineNode& node, const DocumentFields& properties,
                          const Placement& found, int level)
{
    const bool isOwn = properties.contains(kKind);
    if (isOwn && found == VisiblePart(node))
        return;
    node.SetRange(&found.range);
    node.SetPosition(ClampToInt(double(found.position)));
    if (!isOwn)
        node.SetLevel(level);
}

bool DocumentNodes::IsSameSpeed(double a, double b)
{
    return std::abs(a - b) * kSpeedUnits < 1;
}

void DocumentNodes::SetPlaying(const std::optional<int>& frozen, double speed, const QString& name,
                               TimelineNode& node)
{
    node.Bag().SetInt(NLEKey::Freeze::kFreeze_Enabled, frozen ? 1 : 0);
    node.Bag().SetInt(NLEKey::Speed::kEnabled, 0);
    if (frozen)
        node.Bag().SetInt(NLEKey::Freeze::kFreeze_Frame, *frozen);
    if (frozen || speed == 1)
        return;
    constexpr double fastest = 1e6;
    const double forwards = std::min(std::abs(speed), fastest);
    node.Bag().SetRational(NLEKey::Speed::kScale,
                           {std::llround(forwards * kSpeedUnits), std::int64_t(kSpeedUnits)});
    node.Bag().SetInt(NLEKey::Speed::kEnabled, 1);
    if (speed < 0)
        remarks.Add(NLERemark_Reversed, QStringLiteral("%1 plays backwards").arg(name));
    if (!IsSameSpeed(node.Speed(), forwards))
        remarks.Add(NLERemark_Speed, QStringLiteral("speed %1 of %2").arg(speed).arg(name));
}

void DocumentNodes::Hide(bool picture, bool sound, TimelineNode& node)
{
    const int mode = node.Bag().IntOr(NLEKey::Render::kRender_Mode, NLERender_All);
    picture = picture || mode == NLERender_AudioOnly;
    sound = sound || mode == NLERender_VideoOnly;
    if (picture && sound)
        node.SetEnabled(false);
    else if (picture || sound)
        node.Bag().SetInt(NLEKey::Render::kRender_Mode,
                          picture ? NLERender_AudioOnly : NLERender_VideoOnly);
}

void DocumentNodes::Apply(const DocumentFields& properties, TimelineNode& node)
{
    if (!properties.contains(kKind))
        return;
    // Times are read at the rate at which they were written; a composite was made with its own.
    const NLERational rate = ParseRate(properties.value(kRate));
    if (IsRate(rate) && !dynamic_cast<CompositeNode*>(&node))
        node.ChangeRate(rate);
    SettingsFromText(
        properties, [this](const QString& name) { return MediaOf(name); }, node);
    node.Bag().SetAll(ReadValues(properties, kBagPrefix));
    if (auto* project = dynamic_cast<ProjectNode*>(&node))
        project->TakeContext(ReadValues(properties, kContextPrefix));
    // In a timeline all have one rate, also where somebody has changed only some in the document.
    node.ChangeRate(profile.frameRate);
}

} // namespace nle
