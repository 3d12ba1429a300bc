// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/ProjectClips.h"

#include "EngineApi/INLEStreamProcess.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/EngineText.h"

QString FileOf(INLETimeline& node)
{
    NLEComPtr<INLETimelineSource> source;
    if (FAILED(node.QueryInterface(INLETimelineSource::Iid, source.putVoid()))) {
        source.forget();
        return {};
    }
    return EngineText<kEnginePath>(
        [&](wchar_t* path, int capacity) { return source->GetFilePath(path, capacity); });
}

ClipsByFile FindClips(const NLEComPtr<INLETimeline>& composite)
{
    ClipsByFile found;
    NLEComPtr<INLETimelineEnumerator> clips;
    const auto deep = composite.query<INLETimelineCompositeEx>();
    if (!deep || FAILED(deep->GetEnumerator(1, 1, clips.put())) || !clips)
        return found;
    for (const NLEComPtr<INLETimeline>& clip : NodesOf(*clips)) {
        const QString file = FileOf(*clip);
        if (!file.isEmpty())
            found[file].append(clip);
    }
    return found;
}

bool RelinkClip(const NLEComPtr<INLETimeline>& clip, const QString& file, bool allowMissing)
{
    const auto relink = clip.query<INLEMediaRelink>();
    const int flags = allowMissing ? NLERelink_AllowMissing : 0;
    return relink && SUCCEEDED(relink->Relink(file.toStdWString().c_str(), flags));
}

bool SetProxy(const NLEComPtr<INLETimeline>& clip, const QString& proxy)
{
    const auto video = FacilityOf<INLEVideoStreamProcess>(clip);
    return video && SUCCEEDED(video->SetProxyFile(proxy.toStdWString().c_str())) &&
           SUCCEEDED(video->SetProxyEnabled(!proxy.isEmpty()));
}
