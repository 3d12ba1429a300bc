// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Terminal_p.h"

#include <cstdio>
#include <io.h>

bool StandardOutputIsTerminal()
{
    return _isatty(_fileno(stdout)) != 0;
}
