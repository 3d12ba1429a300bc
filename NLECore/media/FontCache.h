// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

class QXmlStreamReader;

namespace nle {

/// Which families font files hold, kept in a file between runs, so that a file that has not changed
/// need not be opened again.
class FontCache
{
public:
    /// Forgets everything and reads the file at \a path. One that is missing, damaged or no regular
    /// file counts as empty.
    void Open(const QString& path);
    /// Writes what has changed since; the file is replaced as a whole or not at all. Needs no path.
    void Save();

    /// The families that the file held when it was last put; nothing when it is new or has changed.
    /// A font file that is broken has none.
    std::optional<QStringList> Find(const QFileInfo& file) const;
    void Put(const QFileInfo& file, const QStringList& families);
    /// Forgets files of \a folder, an absolute path, that are not among \a present.
    void Prune(const QString& folder, const QFileInfoList& present);

private:
    struct Entry
    {
        qint64 size = 0;     ///< bytes
        qint64 modified = 0; ///< milliseconds since 1970
        QStringList families;
    };

    void ReadEntry(QXmlStreamReader& xml);

    QString m_path;
    QHash<QString, Entry> m_entries; ///< by absolute path
    bool m_changed = false;
};

} // namespace nle
