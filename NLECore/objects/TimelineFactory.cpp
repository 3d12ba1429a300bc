// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/TimelineFactory.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/ImageSequence.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/EffectNode.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/SourceNodes.h"
#include "NLECore/model/TitleClip.h"
#include "NLECore/model/TransitionNode.h"
#include "NLECore/objects/DocumentSerialize.h"
#include "NLECore/render/EffectKinds.h"
#include "NLECore/render/SoundKinds.h"
#include "NLECore/scene/FrameMath.h"

#include <QDir>

namespace nle {

namespace {

/// The document of a template, in the template's folder; media paths in it are relative to it.
const QString kTemplateDocument = QStringLiteral("Template.mlt");

/// Frames a second beyond which nothing is counted.
constexpr float kHighestRate = 1e6F;

/// What there is of a kind; none of a kind that there is not.
std::vector<NameRow> NamesOf(int kind)
{
    std::vector<NameRow> names;
    if (kind == NLECatalog_Effect) {
        for (const EffectKind& effect : EffectKinds())
            names.push_back(effect.declaration.names);
    } else if (kind == NLECatalog_Transition) {
        for (const Declaration& transition : TransitionDeclarations())
            names.push_back(transition.names);
    }
    if (kind == NLECatalog_AudioFilter) {
        for (const SoundKind& sound : SoundKinds())
            names.push_back(sound.declaration.names);
    }
    return names;
}

const Declaration& DeclarationOf(const Declaration& declaration)
{
    return declaration;
}
template <typename Kind>
const Declaration& DeclarationOf(const Kind& kind)
{
    return kind.declaration;
}

/// A new node of what \a find has under \a name.
template <typename NodeClass, typename Find>
HRESULT CreateNamed(const wchar_t* name, INLETimeline** node, Find find)
{
    return ComGuard([&] {
        if (!name || !node)
            return Refuse(E_POINTER);
        *node = nullptr;
        const QString wanted = FromWide(name);
        const auto* kind = find(wanted);
        return kind ? GiveNew<NodeClass>(node, DeclarationOf(*kind))
                    : Refuse(E_INVALIDARG, NLEReason_UnknownName, wanted);
    });
}

bool IsCatalog(int kind)
{
    return kind >= NLECatalog_Effect && kind <= NLECatalog_AudioFilter;
}

/// The name at \a index of the catalogue \a kind, as \a give gives it.
template <typename Give>
HRESULT WithName(int kind, int index, Give give)
{
    return ComGuard([&] {
        const std::vector<NameRow> names = NamesOf(kind);
        return index >= 0 && index < int(names.size())
                   ? give(names[size_t(index)])
                   : RefuseIndex(index, std::int64_t(names.size()));
    });
}

} // namespace

HRESULT TimelineFactory::GetDefaultProfile(tagNLEProjectProfile* profile)
{
    return GiveValue(profile, kDefaultProfile);
}

HRESULT TimelineFactory::CreateProject(const tagNLEProjectProfile* profile, INLETimeline** project)
{
    return ComGuard([&] {
        if (!profile || !project)
            return Refuse(E_POINTER);
        *project = nullptr;
        if (!ProjectNode::IsValid(*profile))
            return Refuse(E_INVALIDARG);
        return GiveNew<ProjectNode>(project, *profile);
    });
}

HRESULT TimelineFactory::CreateMedia(const wchar_t* path, INLETimeline** clip)
{
    return ComGuard([&] {
        if (!path || !clip)
            return Refuse(E_POINTER);
        *clip = nullptr;
        const QString file = QDir::fromNativeSeparators(FromWide(path));
        if (file.isEmpty())
            return Refuse(E_INVALIDARG);
        const auto media = IsThere(file) ? DescribeFile(file) : OfflineMedia(file);
        return media ? GiveNew<MediaClip>(clip, media) : Refuse(E_FAIL);
    });
}

HRESULT TimelineFactory::CreateFromTemplate(const wchar_t* folder, INLETimeline** project)
{
    return ComGuard([&] {
        if (!folder || !project)
            return Refuse(E_POINTER);
        const QDir directory(FromWide(folder));
        DocumentSerialize document;
        return document.Load(directory.filePath(kTemplateDocument).toStdWString().c_str(), project);
    });
}

HRESULT TimelineFactory::CreateAudioFilter(const wchar_t* name, INLETimeline** filter)
{
    return CreateNamed<EffectNode>(name, filter, FindSound);
}

HRESULT TimelineFactory::CreateColor(std::uint32_t argb, NLESize size, float frameRate,
                                     INLETimeline** clip)
{
    return ComGuard([&] {
        if (!clip)
            return Refuse(E_POINTER);
        *clip = nullptr;
        const NLERational rate = NLECommon::RateToRational(frameRate);
        if (size.width < 1 || size.height < 1 || !IsRate(rate) || frameRate > kHighestRate)
            return Refuse(E_INVALIDARG);
        return GiveNew<ColorClip>(clip, argb, size, rate);
    });
}

HRESULT TimelineFactory::CreateTipText(const wchar_t* text, const wchar_t* family,
                                       INLETimeline** clip)
{
    return ComGuard([&] {
        if (!text || !family || !clip)
            return Refuse(E_POINTER);
        *clip = nullptr;
        return GiveNew<TextClip>(clip, FromWide(text), FromWide(family), kDefaultProfile.frameSize,
                                 kDefaultProfile.frameRate);
    });
}

HRESULT TimelineFactory::CreateVirtual(int type, INLETimeline** timeline)
{
    return ComGuard([&] {
        if (!timeline)
            return Refuse(E_POINTER);
        *timeline = nullptr;
        NLEComPtr<CompositeNode> node = MakeCom<CompositeNode>(kDefaultProfile.frameRate);
        const HRESULT named =
            node->Bag().SetString(kTimelineTypeKey, std::to_wstring(type).c_str());
        if (FAILED(named))
            return named;
        *timeline = node.detach();
        return S_OK;
    });
}

HRESULT TimelineFactory::CreateEffect(const wchar_t* name, INLETimeline** effect)
{
    return CreateNamed<EffectNode>(name, effect, FindEffect);
}

HRESULT TimelineFactory::CreateTransition(const wchar_t* name, INLETimeline** transition)
{
    return CreateNamed<TransitionNode>(name, transition, FindTransition);
}

HRESULT TimelineFactory::CreateTitle(const wchar_t* text, INLETimeline** title)
{
    return ComGuard([&] {
        if (!text || !title)
            return Refuse(E_POINTER);
        *title = nullptr;
        NLEComPtr<TitleClip> clip =
            MakeCom<TitleClip>(kDefaultProfile.frameSize, kDefaultProfile.frameRate);
        const HRESULT set = clip->SetText(text);
        if (SUCCEEDED(set))
            *title = clip.detach();
        return set;
    });
}

HRESULT TimelineFactory::GetCount(int kind, int* count)
{
    return ComGuard([&] {
        return IsCatalog(kind) ? GiveValue(count, int(NamesOf(kind).size()))
                               : RefuseIndex(kind, NLECatalog_AudioFilter + 1);
    });
}

HRESULT TimelineFactory::GetName(int kind, int index, wchar_t* name, int capacity)
{
    return WithName(kind, index, [=](const NameRow& names) {
        return CopyText(ToWide(QString::fromLatin1(names.name)), name, capacity);
    });
}

HRESULT TimelineFactory::GetTitle(int kind, int index, wchar_t* title, int capacity)
{
    return WithName(kind, index,
                    [=](const NameRow& names) { return GiveTitle(names.title, title, capacity); });
}

} // namespace nle
