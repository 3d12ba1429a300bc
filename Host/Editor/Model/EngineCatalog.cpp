// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/EngineCatalog.h"

#include "Host/Editor/Model/Engine.h"
#include "Host/EngineText.h"

namespace {

NLEComPtr<INLETimelineFactory> Nodes()
{
    NLEComPtr<INLETimelineFactory> nodes;
    if (const auto factory = EngineFactory(); factory)
        factory->GetTimelineFactory(nodes.put());
    return nodes;
}

} // namespace

QVector<EngineCatalog::Entry> EngineCatalog::Entries(NLECatalogKind kind)
{
    QVector<Entry> entries;
    const auto nodes = Nodes();
    const auto catalog = nodes.query<INLEEffectCatalog>();
    int count = 0;
    if (!catalog || catalog->GetCount(kind, &count) != S_OK)
        return entries;
    for (int index = 0; index < count; ++index)
        entries.append({EngineText([&](wchar_t* text, int capacity) {
                            return catalog->GetName(kind, index, text, capacity);
                        }),
                        EngineText([&](wchar_t* text, int capacity) {
                            return catalog->GetTitle(kind, index, text, capacity);
                        })});
    return entries;
}

QString EngineCatalog::TitleOf(NLECatalogKind kind, const QString& name)
{
    for (const Entry& entry : Entries(kind)) {
        if (entry.name == name)
            return entry.title;
    }
    return name;
}

QString EngineCatalog::NameOf(const NLEComPtr<INLETimeline>& transition)
{
    const auto named = transition.query<INLETimelineTransition>();
    return EngineText([&](wchar_t* text, int capacity) {
        return named ? named->GetTransitionName(text, capacity) : E_NOINTERFACE;
    });
}

NLEComPtr<INLETimeline> EngineCatalog::Make(NLECatalogKind kind, const QString& name)
{
    NLEComPtr<INLETimeline> made;
    const auto nodes = Nodes();
    const std::wstring wide = name.toStdWString();
    if (!nodes)
        return made;
    if (kind == NLECatalog_Transition)
        nodes->CreateTransition(wide.c_str(), made.put());
    else if (kind == NLECatalog_AudioFilter)
        nodes->CreateAudioFilter(wide.c_str(), made.put());
    else
        nodes->CreateEffect(wide.c_str(), made.put());
    return made;
}

NLEComPtr<INLETimeline> EngineCatalog::MakeTitle(const QString& text)
{
    NLEComPtr<INLETimeline> title;
    const auto nodes = Nodes();
    if (nodes)
        nodes->CreateTitle(text.toStdWString().c_str(), title.put());
    return title;
}
