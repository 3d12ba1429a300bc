// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QVarLengthArray>

#include <cstdint>
#include <type_traits>

namespace nle {

/// 128 bits that stand for a content.
struct ContentKey
{
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    friend bool operator==(const ContentKey& a, const ContentKey& b)
    {
        return a.high == b.high && a.low == b.low;
    }
    friend bool operator!=(const ContentKey& a, const ContentKey& b) { return !(a == b); }
};

/// The key as 32 hexadecimal digits, as names of files have it.
QString ToText(const ContentKey& key);

/// For the standard library's hashed containers.
struct ContentKeyHash
{
    std::size_t operator()(const ContentKey& key) const { return std::size_t(key.low); }
};

/// Collects values and gives the key of them all. Equal values in equal order give equal keys, on
/// every run.
class ContentHash
{
public:
    /// Numbers and enumerations only: records have gaps of unknown content.
    template <typename T>
    ContentHash& Add(T value)
    {
        static_assert(std::is_arithmetic_v<T> || std::is_enum_v<T>, "one value at a time");
        return AddBytes(&value, sizeof(T));
    }
    ContentHash& Add(const ContentKey& key) { return Add(key.high).Add(key.low); }
    ContentHash& Add(const QString& text);

    ContentKey Result() const { return Of(m_bytes.constData(), std::size_t(m_bytes.size())); }
    static ContentKey Of(const void* bytes, std::size_t size);

private:
    static constexpr int kUsualSize = 512;

    ContentHash& AddBytes(const void* bytes, std::size_t size)
    {
        m_bytes.append(static_cast<const std::uint8_t*>(bytes), int(size));
        return *this;
    }

    QVarLengthArray<std::uint8_t, kUsualSize> m_bytes;
};

} // namespace nle
