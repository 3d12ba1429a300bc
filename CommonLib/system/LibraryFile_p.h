// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// Path of the file that holds this library's code, which is the program's where the library is
/// linked into it; empty when the system does not tell.
QString LibraryFile();
