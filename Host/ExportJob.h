// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"

#include <QCoreApplication>
#include <QStringList>

class Console;
class PlayerMaterProvider;
struct INLEMediaEncoder;
struct INLETimeline;

/// Writes a film of media files, one after the other, and lists the ways to encode it.
class ExportJob
{
    Q_DECLARE_TR_FUNCTIONS(ExportJob)

public:
    /// Both must outlive the job.
    ExportJob(PlayerMaterProvider& provider, Console& console);

    /// Writes \a media to \a path as \a preset says; for an empty one the suffix of the path
    /// chooses. Prints how it goes; false when nothing was written.
    bool Run(const QStringList& media, const QString& path, const QString& preset);
    /// Prints the names of the presets, with what they are called in the language of the texts;
    /// false when the engine has none.
    bool ListPresets();

private:
    /// Null when one of the files cannot be read.
    NLEComPtr<INLETimeline> MakeTimeline(const QStringList& media);
    bool TakePreset(const NLEComPtr<INLEMediaEncoder>& encoder, const QString& preset);

    PlayerMaterProvider& m_provider;
    Console& m_console;
};
