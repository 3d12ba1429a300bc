// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Terminal_p.h"

#include <unistd.h>

bool StandardOutputIsTerminal()
{
    return isatty(STDOUT_FILENO) == 1;
}
