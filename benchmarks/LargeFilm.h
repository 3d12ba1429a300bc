// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>

/// A project of many clips as an editor meets it, with its media.
struct LargeFilm
{
    static constexpr int kLevels = 5;
    static constexpr int kFrames = 50; ///< of each clip

    QString document;
    QStringList media; ///< files with picture and sound that the clips play

    /// Makes \a clips clips of \a files files in \a folder: one level of titles, the others of
    /// media, some with an effect. Complains and gives no document when that fails.
    static LargeFilm Make(const QString& folder, int clips, int files);
};
