// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// Conversions between QString and wide text in the system's own width (UTF-16 on Windows, UTF-32
/// elsewhere). Every character comes over, also a byte order mark in front and halves of characters
/// beyond the basic plane, which Qt's own conversions lose or take for a sign.

inline std::wstring ToWide(const QString& text)
{
#ifdef Q_OS_WIN
    return text.toStdWString();
#else
    std::wstring wide;
    wide.reserve(static_cast<std::size_t>(text.size()));
    for (auto at = text.cbegin(); at != text.cend(); ++at) {
        const auto next = at + 1;
        const bool isPair = at->isHighSurrogate() && next != text.cend() && next->isLowSurrogate();
        wide += static_cast<wchar_t>(isPair ? QChar::surrogateToUcs4(*at, *next) : at->unicode());
        if (isPair)
            ++at;
    }
    return wide;
#endif
}

/// What is no character of Unicode becomes U+FFFD.
inline QString FromWide(std::wstring_view text)
{
#ifdef Q_OS_WIN
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<int>(text.size()));
#else
    const auto isPair = [](wchar_t character) {
        const auto code = static_cast<std::uint32_t>(character);
        return code > 0xFFFF && code <= QChar::LastValidCodePoint;
    };
    const auto pairs = std::count_if(text.begin(), text.end(), isPair);
    QString result(static_cast<int>(text.size()) + static_cast<int>(pairs), Qt::Uninitialized);
    QChar* out = result.data();
    for (const wchar_t character : text) {
        const auto code = static_cast<std::uint32_t>(character);
        if (isPair(character)) {
            *out++ = QChar(QChar::highSurrogate(code));
            *out++ = QChar(QChar::lowSurrogate(code));
        } else {
            *out++ = code > 0xFFFF ? QChar(QChar::ReplacementCharacter)
                                   : QChar(static_cast<ushort>(code));
        }
    }
    return result;
#endif
}

/// \a text ends in a zero; null gives an empty text.
inline QString FromWide(const wchar_t* text)
{
    return text ? FromWide(std::wstring_view(text)) : QString();
}

/// The text in a buffer that others have filled, perhaps without a terminating zero.
template <std::size_t Size>
QString FromWide(const std::array<wchar_t, Size>& buffer)
{
    const auto end = std::find(buffer.begin(), buffer.end(), L'\0');
    return FromWide(
        std::wstring_view(buffer.data(), static_cast<std::size_t>(end - buffer.begin())));
}
