// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "NLECore/media/MediaWriter.h"
#include "NLECore/scene/Layer.h"

#include <functional>

namespace nle {

/// What a film shows.
struct FilmPlan
{
    Snapshot root;
    NLERange range = {0, -1};        ///< frames of the root
    NLERational frameRate = {25, 1}; ///< of the film
};

/// Renders a film into \a writer, which stays to be finished. Pictures and sound are made on a
/// thread of their own, a few frames ahead of the calling one, which encodes. \a goesOn is called
/// there before each frame, with the share that is done in percent; false stops. S_FALSE when it
/// did so, E_FAIL when \a writer or the system fails, E_OUTOFMEMORY.
HRESULT WriteFilm(const FilmPlan& plan, MediaWriter& writer,
                  const std::function<bool(int percent)>& goesOn);

} // namespace nle
