// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

/// Marks what hosts link against and, in private headers, what the tests need; everything else
/// stays inside the library.
#if defined(COMMONLIB_LIBRARY)
#define COMMONLIB_EXPORT Q_DECL_EXPORT
#else
#define COMMONLIB_EXPORT Q_DECL_IMPORT
#endif
