// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/NLEWraper/NLETimeline.h"

/// A clip of a media file that knows its sound streams.
class MediaTimeline : public NLETimeline
{
    Q_OBJECT

public:
    MediaTimeline(const NLEComPtr<INLETimeline>& node, ExactType exactType, QObject* parent);

    /// Samples a second of each sound stream, in the file's order.
    QList<int> GetAudioSourceStreamsSampleRate() const override;
};
