// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/ScriptedDevices.h"

// The module beside the test is the service.
void Scripted::InstallDeviceService() {}
