// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/ProjectClips.h"

#include "EngineApi/INLEStreamProcess.h"

#include <array>

QString FileOf(INLETimeline& node)
{
    NLEComPtr<INLETimelineSource> source;
    if (FAILED(node.QueryInterface(INLETimelineSource::Iid, source.putVoid()))) {
        source.forget();
        return {};
    }
    std::array<wchar_t, 4096> path{};
    if (FAILED(source->GetFilePath(path.data(), int(path.size()))))
        return {};
    return QString::fromWCharArray(path.data());
}

ClipsByFile FindClips(const NLEComPtr<INLETimeline>& composite)
{
    ClipsByFile found;
    NLEComPtr<INLETimelineEnumerator> clips;
    const auto deep = composite.query<INLETimelineCompositeEx>();
    if (!deep || FAILED(deep->GetEnumerator(1, 1, clips.put())) || !clips)
        return found;
    bool isEmpty = true;
    if (FAILED(clips->IsEmpty(&isEmpty)) || isEmpty)
        return found;
    do {
        NLEComPtr<INLETimeline> clip;
        if (FAILED(clips->GetCurrent(clip.put())))
            break;
        const QString file = FileOf(*clip);
        if (!file.isEmpty())
            found[file].append(clip);
    } while (clips->Next() == S_OK);
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
    NLEComPtr<INLEVideoStreamProcess> video;
    if (FAILED(clip->GetInterface(INLEVideoStreamProcess::Iid, video.putVoid(), 0, 0))) {
        video.forget();
        return false;
    }
    return SUCCEEDED(video->SetProxyFile(proxy.toStdWString().c_str())) &&
           SUCCEEDED(video->SetProxyEnabled(!proxy.isEmpty()));
}
