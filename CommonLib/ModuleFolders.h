// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QStringList>

/// Folders in which the library looks for what it loads at run time: modules ("NLECore.dll",
/// "CVUtilities.dll", "PortableDevices.dll"), translations ("Lang/") and caption fonts ("Fonts/").
///
/// First the folder of the running executable, then those of SetModuleFolders(), then those that
/// the environment variable COMMONLIB_PATH lists, absolute ones only, in the system's way of
/// writing a list of paths, and at last where the installed package keeps them, relative to the
/// library's own file. Needs an application object. GUI thread only.
COMMONLIB_EXPORT QStringList ModuleFolders();

/// Sets the host's own folders, in the order in which they are looked through. What is loaded
/// already stays; call it before the first use of the engine, of languages and of fonts. GUI thread
/// only.
COMMONLIB_EXPORT void SetModuleFolders(const QStringList& folders);
