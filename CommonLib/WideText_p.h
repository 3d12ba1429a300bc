// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <string>

/// The only conversions between QString and wide text in the system's own width (UTF-16 on Windows,
/// UTF-32 elsewhere). Not part of the library's interface.

inline std::wstring ToWide(const QString& text)
{
    return text.toStdWString();
}

/// \a text ends in a zero; null gives an empty text.
inline QString FromWide(const wchar_t* text)
{
    return text ? QString::fromWCharArray(text) : QString();
}
