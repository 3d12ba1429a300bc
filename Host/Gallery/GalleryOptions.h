// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCommandLineOption>
#include <QList>

#include <optional>

class QCommandLineParser;

/// The gallery of widgets from a command line: a page in a window of its own, or a picture of it.
namespace GalleryOptions {

/// For the program's own parser.
QList<QCommandLineOption> All();
/// Does what \a parser asks for, with the picture in \a picture when that is not empty. The
/// program's exit code; none when it asks for no page.
std::optional<int> Run(const QCommandLineParser& parser, const QString& picture);

} // namespace GalleryOptions
