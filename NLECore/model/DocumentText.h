// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDir>
#include <QString>

namespace nle {

/// \a text with the characters that XML cannot carry, and the mark itself, as "%" and two
/// hexadecimal digits, or "%u" and four.
QString EncodeText(const QString& text);
/// What EncodeText was given; other uses of "%" stay as they are.
QString DecodeText(const QString& text);
/// \a text as XML can carry it: line ends as line feeds, U+FFFD for what it cannot.
QString PlainText(const QString& text);

/// \a path relative to \a folder when it lies below it, else absolute.
QString DocumentPath(const QString& path, const QDir& folder);
/// The same as a reference by RFC 3986: relative, or with "file:" in front, and percent-encoded. A
/// path that is a URL already stays as it is.
QString MediaUrl(const QString& path, const QDir& folder);
/// The path of such a reference, relative to \a folder or absolute. Percent signs that stand for
/// themselves, which programs forget to encode, are found where a file of that name is there.
QString PathOfUrl(const QString& url, const QDir& folder);
/// Whether a name is a URL of something else than a file.
bool IsRemote(const QString& name);

} // namespace nle
