// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QString>

/// Why the run-time module of the file name \a module ("NLECore.dll", "CVUtilities.dll",
/// "PortableDevices.dll") is not there: the words of the system's loader. Empty when it is loaded,
/// and when nothing has asked for it yet. For any thread.
COMMONLIB_EXPORT QString ModuleLoadError(const QString& module);
