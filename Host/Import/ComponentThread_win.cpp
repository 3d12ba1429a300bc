// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Import/ComponentThread_p.h"

#include <objbase.h>

ComponentThread::ComponentThread()
{
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
}

ComponentThread::~ComponentThread()
{
    CoUninitialize();
}
