// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDir>
#include <QString>

#include <string>

namespace nle {

/// \a text with the characters that XML cannot carry, and the mark itself, as "%" and two
/// hexadecimal digits, or "%u" and four.
QString EncodeText(const QString& text);
/// What EncodeText was given; other uses of "%" stay as they are.
QString DecodeText(const QString& text);
/// \a text as XML can carry it: line ends as line feeds, U+FFFD for what it cannot.
QString PlainText(const QString& text);

/// \a text with every character, also a byte order mark in front and halves of characters beyond
/// the basic plane, which Qt's own conversions lose.
std::wstring ToWide(const QString& text);
QString FromWide(const std::wstring& text);

/// \a path relative to \a folder when it lies below it, else absolute.
QString DocumentPath(const QString& path, const QDir& folder);

} // namespace nle
