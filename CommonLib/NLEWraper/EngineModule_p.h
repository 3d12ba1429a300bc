// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

/// Where the engine core library lies. The file name is the same on every system.
inline QString EngineModulePath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/NLECore.dll");
}
