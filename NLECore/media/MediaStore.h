// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaInfo.h"

#include <QMap>
#include <QStringList>

#include <future>
#include <list>
#include <mutex>
#include <vector>

namespace nle {

/// Descriptions of media files. A file is opened once for as long as it stays as it is; one that
/// was changed or replaced is opened anew, and so is one that could not be read. For any thread.
class MediaStore
{
public:
    struct Result
    {
        std::shared_ptr<const MediaInfo> info; ///< null on failure
        QString error;                         ///< one English sentence when there is no info
    };

    /// Remembers at most \a capacity descriptions, those asked for last.
    explicit MediaStore(int capacity = 4096);
    MediaStore(const MediaStore&) = delete;
    MediaStore& operator=(const MediaStore&) = delete;

    /// The description of the file at \a path, as ProbeMedia() gives it.
    Result Describe(const QString& path);
    /// The descriptions of all files, in their order. Opens several at a time.
    std::vector<Result> DescribeAll(const QStringList& paths);
    /// Forgets all descriptions.
    void Clear();

private:
    using Answer = std::shared_future<Result>;

    /// A description, or one that is still being made.
    struct Entry
    {
        QString path;
        FileStamp stamp;
        Answer answer;
        std::uint64_t number;
    };
    using Entries = std::list<Entry>;

    /// The answer that is there for the file, if any. Needs the lock.
    Answer Find(const QString& path, const FileStamp& stamp);
    /// Puts an answer in front and gives its number. Needs the lock.
    std::uint64_t Insert(const QString& path, const FileStamp& stamp, const Answer& answer);
    /// Needs the lock.
    void Remove(const QString& path);
    void Forget(const QString& path, std::uint64_t number);

    const int m_capacity;
    struct Guarded
    {
        Entries entries; ///< the one asked for last stands first
        QMap<QString, Entries::iterator> places;
        std::uint64_t lastNumber = 0;
    };
    std::mutex m_mutex; ///< guards m_guarded
    Guarded m_guarded;
};

} // namespace nle
