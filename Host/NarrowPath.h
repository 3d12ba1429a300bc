// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The path of a file that is to be written, in the system's narrow character set, as the log takes
/// it. Windows has another name, of plain letters, for folders that its character set cannot name;
/// empty where there is none either.
QByteArray NarrowPath(const QString& path);
