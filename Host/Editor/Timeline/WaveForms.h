// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFrames.h"
#include "Host/Editor/Timeline/ClipRow.h"
#include "Host/Editor/Timeline/MediaKey.h"
#include "Host/Editor/Timeline/NewestFirst.h"

#include <QCache>
#include <QObject>
#include <QSet>

#include <array>

/// Envelopes of the sound of media files, measured on a thread of their own and kept as long as
/// there is room. The engine keeps the envelope of each file on disk.
class WaveForms : public QObject
{
    Q_OBJECT

public:
    static constexpr int kSteps = 256;
    /// Lowest and highest samples of equal steps, -1 to 1.
    struct Part
    {
        std::array<float, kSteps> low;
        std::array<float, kSteps> high;
    };

    explicit WaveForms(QObject* parent = nullptr);
    ~WaveForms() override;

    /// The power of two whose seconds are the longest step that is no longer than \a seconds.
    static int StepFor(double seconds);
    /// Steps number kSteps * \a index and the following ones, of 2 to the power of \a step seconds
    /// each. Null when they are not there; unless they cannot be read they are measured then, and
    /// Ready() tells.
    const Part* Find(const ClipMedia& media, int step, int index);

Q_SIGNALS:
    /// A part is there that was asked for.
    void Ready();

private:
    void Ask(const MediaKey& key, const ClipMedia& media);
    void Keep(const MediaKey& key, std::unique_ptr<Part> part);

    NLEComPtr<INLEWaveExtractor> m_extractor; ///< the thread's
    QCache<MediaKey, Part> m_kept;
    QSet<MediaKey> m_asked;
    QSet<MediaKey> m_unreadable;
    std::unique_ptr<NewestFirst<MediaKey>> m_worker; ///< ends before what it works with
};
