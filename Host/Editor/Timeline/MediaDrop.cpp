// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/MediaDrop.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/MediaMime.h"

std::optional<MediaDrop> MediaDrop::Read(const QMimeData& data)
{
    MediaDrop drop = {MediaMime::Files(data), MediaMime::Range(data)};
    if (drop.paths.isEmpty())
        return {};
    return drop;
}

HRESULT MediaDrop::Place(INLEEditing& editing, int frame, int level, int flags) const
{
    for (const QString& path : paths) {
        constexpr bool allowMissing = false;
        const auto clip = EngineProvider().CreateMediaTimeline(path, allowMissing);
        if (!clip)
            return E_FAIL;
        if (range)
            clip->SetRange(&*range);
        const HRESULT placed = editing.Place(clip.get(), frame, level, flags);
        if (FAILED(placed))
            return placed;
        NLERange taken{0, -1};
        clip->GetRange(&taken); // at the project's rate now
        frame += static_cast<int>(NLERangeLength(taken));
    }
    return S_OK;
}
