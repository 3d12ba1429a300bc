// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLETimeline.h"

#include <QColor>
#include <QString>
#include <QVector>

#include <memory>

enum class ClipKind
{
    Video,
    Sound,
    Picture,
    Colour,
    Title,
    Composite,
    Transition,
    Offline
};

/// What thumbnails and wave forms of a media file are read from; clips of a file share it.
struct ClipMedia
{
    NLEComPtr<INLEMediaInfo> info;
    QString path;
    std::uint32_t picture = NLENoStream; ///< stream that shows
    std::uint32_t sound = NLENoStream;   ///< stream that is heard
    double shape = 16.0 / 9;             ///< width of a picture over its height
    int frames = 0;                      ///< that have a picture, at the file's own rate
    double rate = 25;                    ///< of these, a second
};

/// A clip or a transition as a timeline shows it.
struct ClipRow
{
    NLEComPtr<INLETimeline> node;
    int level = 0;
    int begin = 0;
    int end = 0; ///< exclusive
    ClipKind kind = ClipKind::Offline;
    QString name;
    QColor colour; ///< of a colour clip, else invalid
    int in = 0;    ///< frame of the material that the clip begins with, at the project's rate
    double secondsPerFrame = 0.04; ///< of the material that pass with a frame of the project
    int frozenFrame = -1;          ///< of the material, which it shows all the time; -1: it plays
    bool isEnabled = true;
    QVector<int> keys;                      ///< key frames, counted from the clip's begin
    std::shared_ptr<const ClipMedia> media; ///< null unless the clip is of a file

    int Length() const { return end - begin; }
    bool IsTransition() const { return kind == ClipKind::Transition; }
    /// Second of the material that shows \a frames after the clip's begin.
    double Second(double frames) const
    {
        return secondsPerFrame * (frozenFrame >= 0 ? frozenFrame : in + frames);
    }
};
