// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/EffectNode.h"

#include "Com/ComGuard.h"
#include "NLECore/render/EffectKinds.h"
#include "NLECore/render/SoundKinds.h"

namespace nle {

EffectNode::EffectNode(const Declaration& declaration)
    : ComExtension(declaration)
    , m_isOfSound(SoundOf(*Parameters().Shared()) != nullptr)
    , m_loudness(*this)
{
}

HRESULT EffectNode::QueryInterface(REFIID iid, void** out)
{
    if (!out || !IsLoudness(Parameters().Declared()) ||
        !ComDetail::Offer<INLELoudness>(&m_loudness, iid, out))
        return ComExtension::QueryInterface(iid, out);
    AddRef();
    return S_OK;
}

EffectNode* EffectNode::From(IUnknown* object)
{
    return dynamic_cast<EffectNode*>(TimelineNode::From(object));
}

HRESULT EffectNode::GetEffectName(wchar_t* buffer, int capacity)
{
    return ComGuard([&] {
        return CopyText(QString::fromLatin1(Parameters().Declared().names.name).toStdWString(),
                        buffer, capacity);
    });
}

NLEComPtr<TimelineNode> EffectNode::CopyContent(bool /*deep*/) const
{
    NLEComPtr<EffectNode> copy = MakeCom<EffectNode>(Parameters().Declared());
    copy->Parameters().Restore(*Parameters().Shared());
    return copy;
}

const Declaration* FindDeclaration(const QString& name)
{
    if (const EffectKind* kind = FindEffect(name))
        return &kind->declaration;
    const SoundKind* sound = FindSound(name);
    return sound ? &sound->declaration : nullptr;
}

} // namespace nle
