// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/ThreadPriority_p.h"

#include <windows.h>

namespace nle {

void LowerThreadPriority()
{
    SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL);
}

} // namespace nle
