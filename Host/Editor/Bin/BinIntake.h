// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Bin/MediaDescriber.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

class MediaBin;
class Project;

/// Takes files and folders into a bin: those that the engine can read, which it finds out in the
/// background, as one step.
class BinIntake : public QObject
{
    Q_OBJECT

public:
    /// Both outlive the intake. What is on its way is forgotten when another project is open.
    BinIntake(Project& project, MediaBin& bin, QObject* parent = nullptr);

    /// \a paths are files, and folders for all that is in and below them.
    void Take(const QStringList& paths);
    /// Files that are still being read.
    int Waiting() const { return m_waiting.size(); }

Q_SIGNALS:
    /// Another number of files is waiting.
    void Progressed();
    /// All have been read; those of \a refused are no media, or there is no such file. \a reason is
    /// that of the first one, in short; it may be empty.
    void Ended(int added, const QStringList& refused, const QString& reason);

private:
    void TakeDescription(const MediaDescription& description);
    void Finish();

    MediaBin& m_bin;
    MediaDescriber m_describer;
    QStringList m_order; ///< of all files, as they came
    QSet<QString> m_waiting;
    QHash<QString, QString> m_refused; ///< those that are no media, and why, in short
};
