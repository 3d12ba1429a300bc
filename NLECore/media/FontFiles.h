// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/FontCache.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace nle {

/// The font files of folders, and their way into Qt, which draws the texts.
///
/// A new file is registered with Qt at once, because only Qt can tell under which family a text
/// will find it; one that the cache knows when a text first asks for its family. For one thread.
/// Without a GUI application there are no fonts.
class FontFiles
{
public:
    /// Where to keep what is known of the files; what was known before is forgotten.
    void SetCacheFile(const QString& path);
    /// The families in the font files (ttf, otf, ttc) of a folder, not of those within it, in the
    /// order of the file names. Broken files have none.
    QStringList Scan(const QString& folder);
    /// Registers the files of \a family that Qt does not have yet. Gives the name to draw with:
    /// \a family and, when files of ours hold it, a second name that no font has and that changes
    /// with the files. Qt remembers for good what it once found for a name.
    QString Provide(const QString& family);

private:
    QStringList Register(const QString& path);

    FontCache m_cache;
    /// By family in lower case: paths of files, and numbers that change with their content.
    QHash<QString, QHash<QString, quint64>> m_files;
    QSet<QString> m_registered; ///< paths
};

/// The engine's font files.
FontFiles& Fonts();

} // namespace nle
