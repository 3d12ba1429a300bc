// SPDX-License-Identifier: LGPL-2.1-or-later
// What fuzz targets share. A target is a source with one LLVMFuzzerTestOneInput: it gives the input
// to what it is about, and ends the process by Require() where an answer breaks a promise.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

/// Ends the process, with a line about \a what, unless it \a holds.
void Require(bool holds, const char* what);

/// A folder of this process, empty at its start and removed at its end.
QString Folder();
/// Writes \a content to \a name in Folder(); gives its path.
QString Write(const char* name, const QByteArray& content);

/// An input that is taken apart from its beginning.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size)
        : m_bytes(reinterpret_cast<const char*>(data), int(size))
    {
    }

    bool IsEmpty() const { return m_bytes.isEmpty(); }
    /// A number; what the input lacks of it is zero.
    template <typename T>
    T Take()
    {
        T value{};
        const QByteArray bytes = Take(int(sizeof value));
        if (!bytes.isEmpty())
            std::memcpy(&value, bytes.constData(), std::size_t(bytes.size()));
        return value;
    }
    /// At most \a size bytes.
    QByteArray Take(int size)
    {
        QByteArray taken = m_bytes.left(size);
        m_bytes.remove(0, taken.size());
        return taken;
    }
    /// What is left.
    const QByteArray& Rest() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

} // namespace fuzz
