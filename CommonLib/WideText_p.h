// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cwchar>
#include <string>
#include <type_traits>

/// The only conversions between QString and wide text in the system's own width (UTF-16 on Windows,
/// UTF-32 elsewhere).

inline std::wstring ToWide(const QString& text)
{
    return text.toStdWString();
}

/// \a text ends in a zero; null gives an empty text.
inline QString FromWide(const wchar_t* text)
{
    if (!text)
        return QString();
    // Qt takes a text codec for UTF-32, which costs several times the copy that nearly all text
    // needs.
    constexpr std::uint32_t firstSurrogate = 0xD800;
    const int length = static_cast<int>(std::wcslen(text));
    QString result(length, Qt::Uninitialized);
    QChar* const out = result.data();
    for (int i = 0; i < length; ++i) {
        const auto code = static_cast<std::make_unsigned_t<wchar_t>>(text[i]);
        if (code >= firstSurrogate)
            return QString::fromWCharArray(text, length);
        out[i] = QChar(static_cast<ushort>(code));
    }
    return result;
}

/// The text in a buffer that others have filled, perhaps without a terminating zero.
template <std::size_t Size>
QString FromWide(const std::array<wchar_t, Size>& buffer)
{
    const auto end = std::find(buffer.begin(), buffer.end(), L'\0');
    return FromWide(std::wstring(buffer.begin(), end).c_str());
}
