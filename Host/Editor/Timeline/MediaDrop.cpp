// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/MediaDrop.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Model/Engine.h"

#include <QMimeData>
#include <QUrl>

std::optional<MediaDrop> MediaDrop::Read(const QMimeData& data)
{
    MediaDrop drop;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            drop.paths << url.toLocalFile();
    }
    if (drop.paths.isEmpty())
        return {};
    const QList<QByteArray> words = data.data(kRangeType).simplified().split(' ');
    if (drop.paths.size() != 1 || words.size() != 2)
        return drop;
    bool isIn = false;
    bool isOut = false;
    const NLERange range = {words[0].toInt(&isIn), words[1].toInt(&isOut)};
    if (isIn && isOut && NLERangeLength(range) > 0)
        drop.range = range;
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
