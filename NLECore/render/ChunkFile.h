// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/ContentHash.h"
#include "NLECore/media/PictureCodec.h"
#include "NLECore/media/SavedFile_p.h"
#include "NLECore/media/WholeFile.h"

#include <QFile>

#include <memory>
#include <vector>

namespace nle {

/// Where a picture lies in the file of a chunk.
struct ChunkEntry
{
    qint64 offset = 0;
    qint32 size = 0;
    quint32 checksum = 0;
};

/// What the files of chunks tell of the timeline that they were rendered for: its name, hashed.
using ChunkOwner = ContentKey;

/// Writes the file of one chunk: a table of contents and encoded pictures. The file gets its name,
/// all at once and after it was synced, by Commit; without that nothing of it stays.
class ChunkWriter
{
public:
    ChunkWriter(const QString& path, const ContentKey& key, const ChunkOwner& owner,
                PictureFormat format, int count);

    /// False when the file cannot be made.
    bool Open();
    /// Appends the next picture; false when it cannot be written.
    bool Append(const QByteArray& picture);
    /// Needs all pictures that were announced. False when what was written is not whole.
    bool Commit();
    qint64 Size() const { return m_end; }
    /// Why the last of these failed.
    QFileDevice::FileError Error() const { return ErrorOf(m_file); }

private:
    WholeFile m_file;
    const ContentKey m_key;
    const ChunkOwner m_owner;
    const PictureFormat m_format;
    std::vector<ChunkEntry> m_entries;
    std::size_t m_written = 0;
    qint64 m_end = 0;
};

/// Reads the file of one chunk.
class ChunkReader
{
public:
    /// Null when there is no such file, or not the whole of it, or of another content.
    static std::unique_ptr<ChunkReader> Open(const QString& path, const ContentKey& key);

    const ChunkOwner& Owner() const { return m_owner; }
    PictureFormat Format() const { return m_format; }
    /// Encoded picture number \a index, from 0; empty when it is damaged.
    QByteArray Picture(int index);

private:
    explicit ChunkReader(const QString& path) : m_file(path) {}
    bool ReadContents(const ContentKey& key);

    QFile m_file;
    ChunkOwner m_owner;
    PictureFormat m_format = PictureFormat::Compact;
    std::vector<ChunkEntry> m_entries;
};

} // namespace nle
