// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/ContentHash.h"
#include "NLECore/media/FileClaim.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <mutex>

namespace nle {

/// A folder of files that can be made again, each named after a key, up to a number of bytes; those
/// used least lately go first. For any thread; processes may share a folder.
class KeptFiles
{
public:
    /// \a name is that of the folder in the application's caches, as long as no other one is set.
    /// Nothing but files with one of \a suffixes (dots included) is ever removed.
    KeptFiles(const char* name, QStringList suffixes, std::int64_t quota);

    /// An empty \a folder is the one in the application's caches. A \a quota of 0 keeps nothing.
    void SetFolder(const QString& folder, std::int64_t quota);
    /// Whether anything is kept.
    bool IsOn() const { return !Current().folder.isEmpty(); }
    /// Where the file of a key is or would be; empty when nothing is kept.
    QString PathOf(const ContentKey& key, QLatin1String suffix) const;
    /// Makes the folder. False when that cannot be, and when nothing is kept.
    bool Prepare() const;
    /// Removes others until the quota holds. False, and it is gone, when \a path alone is larger.
    bool MakeRoomFor(const QString& path) const;
    /// What is to be taken while the file of a key is written for longer than a moment: then nobody
    /// else writes it. Null when nothing is kept.
    std::unique_ptr<FileClaim> ClaimOf(const ContentKey& key) const;
    /// Removes what processes that have ended left half written.
    void RemoveLeftovers() const;
    /// Notes the use of a file in its time of change.
    static void NoteUse(const QString& path);

private:
    struct Place
    {
        QString folder;
        std::int64_t quota;
    };
    Place Current() const;

    const QString m_name;
    const QStringList m_suffixes;
    mutable std::mutex m_mutex; ///< guards m_place
    Place m_place;
};

} // namespace nle
