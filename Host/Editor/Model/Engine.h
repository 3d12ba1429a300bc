// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLETimeline.h"

#include <QVector>

class PlayerMaterProvider;

/// The engine's factory; null without an engine. Starts the engine.
NLEComPtr<INLEFactory> EngineFactory();
/// The library's maker of all that the engine has; made by the first call, on its thread.
PlayerMaterProvider& EngineProvider();

/// The property bag of \a node, which may be null; null when it has none.
NLEComPtr<INLEProperties> BagOf(INLETimeline* node);
/// The nodes that \a walk enumerates, from where it stands.
QVector<NLEComPtr<INLETimeline>> NodesOf(INLETimelineEnumerator& walk);

/// A facility of \a node, which may be null; null when it lacks it.
template <typename Interface>
NLEComPtr<Interface> FacilityOf(const NLEComPtr<INLETimeline>& node)
{
    NLEComPtr<Interface> facility;
    if (!node || FAILED(node->GetInterface(Interface::Iid, facility.putVoid(), 0, 0)))
        facility.forget();
    return facility;
}
