// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEBackgroundCache.h"
#include "NLECore/scene/Layer.h"

#include <functional>
#include <memory>

namespace nle {

class CachedFrames;

/// The preview cache of a composite as the composite knows it. The class stands in a later folder
/// of the engine, which says how one is made.
struct CompositeCache : INLEBackgroundCache
{
    /// Reads frames of \a root, a snapshot of the composite; null without a folder.
    virtual std::unique_ptr<CachedFrames> OpenFrames(const Snapshot& root) = 0;
    /// The composite is going away: ends a render, waiting for the frame that is being drawn.
    virtual void Detach() = 0;
};

/// Makes a cache of what \a takeSnapshot gives, which is called until Detach(), on the thread that
/// edits.
using MakeCompositeCache = NLEComPtr<CompositeCache> (*)(std::function<Snapshot()> takeSnapshot);

} // namespace nle
