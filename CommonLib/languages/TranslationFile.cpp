// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/languages/TranslationFile_p.h"

#include "CommonLib/system/RegularFile_p.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<uchar, 16> kMagic = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                          0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};
/// Files may depend on others, but not deeper than this.
constexpr int kDeepest = 8;

enum Section : uchar
{
    Contexts = 0x2f,
    Hashes = 0x42,
    Messages = 0x69,
    Dependencies = 0x96
};

enum Tag : uchar
{
    Translation = 3,
    Skipped = 5,
    SourceText = 6,
    Context = 7,
    Comment = 8
};

/// Bytes that are read in big-endian order; reading past the end gives 0 and is remembered.
class Bytes
{
public:
    Bytes() = default;
    Bytes(const uchar* data, qint64 size) : m_at(data), m_left(size) {}

    qint64 Left() const { return m_left; }
    bool Overrun() const { return m_overrun; }
    const uchar* Data() const { return m_at; }

    void Skip(qint64 count)
    {
        m_overrun = m_overrun || count > m_left;
        count = std::min(count, m_left);
        m_at += count;
        m_left -= count;
    }
    template <typename Number>
    Number Read()
    {
        const uchar* const from = m_at;
        const bool fits = m_left >= qint64(sizeof(Number));
        Skip(sizeof(Number));
        return fits ? qFromBigEndian<Number>(from) : Number(0);
    }
    /// The next \a count bytes on their own, and passes them.
    Bytes Take(qint64 count)
    {
        const Bytes taken(m_at, std::min(count, m_left));
        Skip(count);
        return taken;
    }

private:
    const uchar* m_at = nullptr;
    qint64 m_left = 0;
    bool m_overrun = false;
};

struct Sections
{
    Bytes contexts;
    Bytes hashes;
    Bytes messages;
    Bytes dependencies;
};

/// False when a section is longer than the file.
bool Split(Bytes file, Sections& sections)
{
    while (file.Left() > 5) {
        const auto tag = file.Read<uchar>();
        const auto length = file.Read<quint32>();
        if (tag == 0 || length == 0)
            break;
        const Bytes section = file.Take(length);
        if (file.Overrun())
            return false;
        if (tag == Contexts)
            sections.contexts = section;
        else if (tag == Hashes)
            sections.hashes = section;
        else if (tag == Messages)
            sections.messages = section;
        else if (tag == Dependencies)
            sections.dependencies = section;
    }
    return true;
}

/// Stands for the length of an empty translation.
constexpr quint32 kEmptyText = 0xFFFFFFFF;

/// A message is a row of tagged fields; Qt stops at any other tag.
bool IsSoundMessage(Bytes message)
{
    while (message.Left() > 0) {
        switch (message.Read<uchar>()) {
        case Translation: {
            const auto length = message.Read<quint32>();
            if (length == kEmptyText)
                return true; // Qt stops here
            message.Skip(length);
            break;
        }
        case SourceText:
        case Context:
        case Comment:
            message.Skip(message.Read<quint32>());
            break;
        case Skipped:
            message.Skip(sizeof(quint32));
            break;
        default:
            return true;
        }
        if (message.Overrun())
            return false;
    }
    // Qt looks one byte behind a field; here that would be behind the last one.
    return false;
}

bool AreSoundMessages(Bytes hashes, const Bytes& messages)
{
    constexpr qint64 entry = 2 * sizeof(quint32);
    if (hashes.Left() % entry != 0)
        return false;
    while (hashes.Left() > 0) {
        hashes.Skip(sizeof(quint32));
        const auto offset = hashes.Read<quint32>();
        if (offset >= messages.Left() ||
            !IsSoundMessage(Bytes(messages.Data() + offset, messages.Left() - offset)))
            return false;
    }
    return true;
}

/// A hash table of offsets to lists of names, each ended by an empty one.
bool AreSoundContexts(const Bytes& contexts)
{
    if (contexts.Left() == 0)
        return true;
    Bytes table = contexts;
    const auto size = table.Read<quint16>();
    Bytes offsets = table.Take(size * qint64(sizeof(quint16)));
    if (size == 0 || table.Overrun())
        return false;
    while (offsets.Left() > 0) {
        const auto offset = offsets.Read<quint16>();
        if (offset == 0)
            continue;
        Bytes names = table;
        names.Skip(2 * qint64(offset));
        while (const auto length = names.Read<uchar>())
            names.Skip(length);
        if (names.Overrun())
            return false;
    }
    return true;
}

bool IsSound(const QString& path, int depth);

bool AreSoundDependencies(const Bytes& dependencies, const QString& folder, int depth)
{
    QDataStream stream(QByteArray::fromRawData(reinterpret_cast<const char*>(dependencies.Data()),
                                               int(dependencies.Left())));
    while (!stream.atEnd()) {
        QString name;
        stream >> name;
        if (stream.status() != QDataStream::Ok || !IsSound(folder + '/' + name, depth + 1))
            return false;
    }
    return true;
}

bool IsSound(const QString& path, int depth)
{
    // Asked for a name, Qt prefers the file with its suffix added.
    const QString suffixed = path + ".qm";
    const QString chosen = QFileInfo(suffixed).isFile() ? suffixed : path;
    QFile file(chosen);
    const qint64 size = file.size();
    if (depth > kDeepest || size <= qint64(kMagic.size()) ||
        !OpenRegularFile(file, QIODevice::ReadOnly))
        return false;
    const uchar* const data = file.map(0, size);
    if (!data || !std::equal(kMagic.begin(), kMagic.end(), data))
        return false;
    Sections sections;
    return Split(Bytes(data + kMagic.size(), size - qint64(kMagic.size())), sections) &&
           AreSoundMessages(sections.hashes, sections.messages) &&
           AreSoundContexts(sections.contexts) &&
           AreSoundDependencies(sections.dependencies, QFileInfo(chosen).path(), depth);
}

} // namespace

bool IsSoundTranslationFile(const QString& path)
{
    return IsSound(path, 0);
}
