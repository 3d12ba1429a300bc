// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"

#include <QCoreApplication>
#include <QList>
#include <QSizeF>
#include <QStringList>
#include <QVector>

class NLETimeline;
struct INLEMediaInfo;

/// What a media file is.
struct MediaReport
{
    Q_DECLARE_TR_FUNCTIONS(MediaReport)

public:
    /// As asked from the timeline object that wraps it.
    explicit MediaReport(NLETimeline& timeline);
    /// As the engine describes it, for any thread; of nothing at all for null. The size is that of
    /// the first picture stream, and no sample rates are known.
    explicit MediaReport(INLEMediaInfo* info);

    /// First stream of a type; NLENoStream when there is none.
    std::uint32_t FirstStream(NLEStreamType type) const;
    /// Width over height as displayed, pixel shape included; 0 without a picture.
    double PictureShape() const;
    /// Length in seconds; 0 when the rate is unknown.
    double Seconds() const;
    /// "Video, 1280 × 720, 25 fps, 250 frames, 00:00:10:00"
    QString Summary() const;
    /// The summary, the sample rates of the sound streams and a line for each stream.
    QStringList Lines() const;

    bool image;
    bool video;
    bool audio;
    QSizeF size; ///< as displayed, in pixels
    float rate;
    unsigned int frames;
    QList<int> sampleRates; ///< of the sound streams, as far as the timeline object knows them
    QVector<NLEStreamInfo> streams;
};
