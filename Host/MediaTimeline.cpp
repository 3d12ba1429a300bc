// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/MediaTimeline.h"

MediaTimeline::MediaTimeline(const NLEComPtr<INLETimeline>& node, ExactType exactType,
                             QObject* parent)
    : NLETimeline(node, exactType, parent)
{
}

QList<int> MediaTimeline::GetAudioSourceStreamsSampleRate() const
{
    QList<int> rates;
    const NLEComPtr<INLEMediaInfo> info = GetTimelineMediaInfo();
    std::uint32_t count = 0;
    if (!info || FAILED(info->GetStreamCount(&count)))
        return rates;
    for (std::uint32_t index = 0; index < count; ++index) {
        NLEStreamInfo stream{};
        if (SUCCEEDED(info->GetStream(index, &stream)) && stream.type == NLEStream_Audio)
            rates << stream.sampleRate;
    }
    return rates;
}
