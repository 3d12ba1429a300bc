// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFile>

/// Opens the file, as QFile::open() does, unless something else than a regular file stands at its
/// path: a pipe would block and a device may have no end.
bool OpenRegularFile(QFile& file, QIODevice::OpenMode mode);
