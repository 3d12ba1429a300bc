// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/ThreadPriority_p.h"

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace nle {

void LowerThreadPriority()
{
    constexpr int niceness = 5;
    // On this system a niceness belongs to a thread, named by its own number.
    setpriority(PRIO_PROCESS, id_t(syscall(SYS_gettid)), niceness);
}

} // namespace nle
