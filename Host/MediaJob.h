// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

class Console;
class NLETimeline;
class OutputFolder;
class PlayerMaterProvider;
class QImage;
struct MediaReport;

/// Tells what one media file is and writes a picture of it: a contact sheet, or the wave form when
/// the file holds sound alone.
class MediaJob
{
    Q_DECLARE_TR_FUNCTIONS(MediaJob)

public:
    /// All three must outlive the job.
    MediaJob(PlayerMaterProvider& provider, Console& console, OutputFolder& output);

    /// Does the work for the file at \a path and prints it. False only when the result could not
    /// be written; a file that cannot be used gives a line that says why.
    bool Run(const QString& path);

private:
    bool MakeContactSheet(NLETimeline& timeline, const MediaReport& report);
    bool MakeWaveSheet(NLETimeline& timeline, const MediaReport& report);
    bool Save(const QImage& page);
    void Explain(const QString& reason);

    PlayerMaterProvider& m_provider;
    Console& m_console;
    OutputFolder& m_output;
    QString m_path;
};
