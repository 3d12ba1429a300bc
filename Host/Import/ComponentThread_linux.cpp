// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Import/ComponentThread_p.h"

// Component objects ask nothing of a thread here.
ComponentThread::ComponentThread() {}
ComponentThread::~ComponentThread() {}
