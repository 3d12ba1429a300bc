// SPDX-License-Identifier: LGPL-2.1-or-later
// Defaults of the address sanitizer for tests with a GUI; without it nobody calls these functions.

#include <QtGlobal>

extern "C" {

// The offscreen platform never frees its screen. Its frames show only in full stacks.
Q_DECL_EXPORT const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen\n";
}

Q_DECL_EXPORT const char* __asan_default_options();
const char* __asan_default_options()
{
    return "fast_unwind_on_malloc=0";
}
}
