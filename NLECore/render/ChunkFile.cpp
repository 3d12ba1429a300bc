// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/ChunkFile.h"

#include <QDataStream>

namespace nle {

namespace {

constexpr quint32 kMagic = 0x4E4C4332;
/// Key, owner, format, count and the sum over the table.
constexpr int kHeadSize = 48;
constexpr int kEntrySize = 16;
constexpr int kMostPictures = 100000;

quint32 Checksum(const QByteArray& bytes)
{
    return quint32(ContentHash::Of(bytes.constData(), std::size_t(bytes.size())).low);
}

qint64 ContentsSize(std::size_t count)
{
    return kHeadSize + qint64(count) * kEntrySize;
}

} // namespace

ChunkWriter::ChunkWriter(const QString& path, const ContentKey& key, const ChunkOwner& owner,
                         PictureFormat format, int count)
    : m_file(path), m_key(key), m_owner(owner), m_format(format), m_entries(std::size_t(count))
{
}

bool ChunkWriter::Open()
{
    m_end = ContentsSize(m_entries.size());
    return m_file.open(QIODevice::WriteOnly) && m_file.seek(m_end);
}

bool ChunkWriter::Append(const QByteArray& picture)
{
    if (picture.isEmpty() || m_written >= m_entries.size() ||
        m_file.write(picture) != picture.size())
        return false;
    m_entries[m_written++] = {m_end, qint32(picture.size()), Checksum(picture)};
    m_end += picture.size();
    return true;
}

bool ChunkWriter::Commit()
{
    if (m_written != m_entries.size())
        return false;
    QByteArray table;
    QDataStream entries(&table, QIODevice::WriteOnly);
    for (const ChunkEntry& entry : m_entries)
        entries << entry.offset << entry.size << entry.checksum;
    QByteArray head;
    QDataStream fields(&head, QIODevice::WriteOnly);
    fields << kMagic << quint64(m_key.high) << quint64(m_key.low) << quint64(m_owner.high)
           << quint64(m_owner.low) << qint32(m_format) << qint32(m_entries.size())
           << Checksum(table);
    return m_file.seek(0) && m_file.write(head + table) == ContentsSize(m_entries.size()) &&
           m_file.Commit();
}

std::unique_ptr<ChunkReader> ChunkReader::Open(const QString& path, const ContentKey& key)
{
    std::unique_ptr<ChunkReader> reader(new ChunkReader(path));
    return reader->ReadContents(key) ? std::move(reader) : nullptr;
}

bool ChunkReader::ReadContents(const ContentKey& key)
{
    if (!m_file.open(QIODevice::ReadOnly))
        return false;
    QDataStream fields(m_file.read(kHeadSize));
    quint32 magic = 0;
    quint64 high = 0;
    quint64 low = 0;
    quint64 ownerHigh = 0;
    quint64 ownerLow = 0;
    qint32 format = 0;
    qint32 count = 0;
    quint32 checksum = 0;
    fields >> magic >> high >> low >> ownerHigh >> ownerLow >> format >> count >> checksum;
    const bool isOurs = fields.status() == QDataStream::Ok && magic == kMagic &&
                        ContentKey{high, low} == key && count > 0 && count <= kMostPictures;
    if (!isOurs)
        return false;
    m_owner = {ownerHigh, ownerLow};
    m_format = PictureFormat(format);
    const QByteArray table = m_file.read(qint64(count) * kEntrySize);
    if (table.size() != count * kEntrySize || Checksum(table) != checksum)
        return false;
    QDataStream entries(table);
    m_entries.resize(std::size_t(count));
    for (ChunkEntry& entry : m_entries)
        entries >> entry.offset >> entry.size >> entry.checksum;
    return m_entries.back().offset + m_entries.back().size == m_file.size();
}

QByteArray ChunkReader::Picture(int index)
{
    if (index < 0 || index >= int(m_entries.size()))
        return {};
    const ChunkEntry& entry = m_entries[std::size_t(index)];
    if (!m_file.seek(entry.offset))
        return {};
    QByteArray picture = m_file.read(entry.size);
    return picture.size() == entry.size && Checksum(picture) == entry.checksum ? picture
                                                                               : QByteArray();
}

} // namespace nle
