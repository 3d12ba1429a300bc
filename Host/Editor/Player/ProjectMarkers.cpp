// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Player/ProjectMarkers.h"

#include "EngineApi/INLEMarkers.h"

namespace {

NLEComPtr<INLEMarkers> MarkersOf(const NLEComPtr<INLETimeline>& node)
{
    NLEComPtr<INLEMarkers> markers;
    if (!node || FAILED(node->GetInterface(INLEMarkers::Iid, markers.putVoid(), 0, 0)))
        markers.forget();
    return markers;
}

} // namespace

QVector<int> MarkerFrames(const NLEComPtr<INLETimeline>& node)
{
    QVector<int> frames;
    const NLEComPtr<INLEMarkers> markers = MarkersOf(node);
    int count = 0;
    if (markers)
        markers->GetCount(&count);
    for (int index = 0; index < count; ++index) {
        NLEMarkerRecord marker{};
        markers->GetMarker(index, &marker, nullptr, 0);
        frames << marker.frame;
    }
    return frames;
}

bool AddMarker(const NLEComPtr<INLETimeline>& node, const NLEMarkerRecord& marker)
{
    const NLEComPtr<INLEMarkers> markers = MarkersOf(node);
    int index = 0;
    return markers && SUCCEEDED(markers->AddMarker(&marker, nullptr, &index));
}

bool RemoveMarker(const NLEComPtr<INLETimeline>& node, int frame)
{
    const int index = MarkerFrames(node).indexOf(frame);
    return index >= 0 && SUCCEEDED(MarkersOf(node)->DeleteMarker(index));
}
