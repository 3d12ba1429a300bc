// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDir>
#include <QSet>
#include <QStringList>

/// Names results so that none covers another one of the run or one of the files read.
class OutputFolder
{
public:
    /// \a mediaPaths are the files that will be read.
    OutputFolder(const QString& folder, const QStringList& mediaPaths);

    /// Makes the folder; false when that fails.
    bool Create() const;
    /// A PNG path for the result of a media file; each call gives another one.
    QString PictureFor(const QString& mediaPath);
    /// Path of a file of that name in the folder.
    QString File(const QString& name) const { return m_folder.filePath(name); }

private:
    QDir m_folder;
    QSet<QString> m_taken;
};
