// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Player/ProjectMarkers.h"

#include "EngineApi/INLEMarkers.h"
#include "Host/Editor/Model/Engine.h"

QVector<int> MarkerFrames(const NLEComPtr<INLETimeline>& node)
{
    QVector<int> frames;
    const auto markers = FacilityOf<INLEMarkers>(node);
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
    const auto markers = FacilityOf<INLEMarkers>(node);
    int index = 0;
    return markers && SUCCEEDED(markers->AddMarker(&marker, nullptr, &index));
}

bool RemoveMarker(const NLEComPtr<INLETimeline>& node, int frame)
{
    const int index = MarkerFrames(node).indexOf(frame);
    return index >= 0 && SUCCEEDED(FacilityOf<INLEMarkers>(node)->DeleteMarker(index));
}
