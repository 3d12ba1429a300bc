// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEEncode.h"

#include <QStringList>

/// Whether encoders of other projects are needed for a suffix, and this engine has none of them.
inline bool MissesEncoder(PlayerMaterProvider& provider, const QString& suffix)
{
    if (!QStringList{"mp3", "ogv", "opus", "swf", "webm"}.contains(suffix))
        return false;
    const auto catalog = provider.CreateMediaEncoder().query<INLEEncodeCatalog>();
    const QString needed = suffix == "swf" ? "mp3" : suffix; // for its sound
    NLEContainerInfo container;
    for (int index = 0; catalog->GetContainer(index, &container) == S_OK; ++index) {
        if (needed == container.name)
            return false;
    }
    return true;
}
