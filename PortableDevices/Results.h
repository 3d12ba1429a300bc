// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "DeviceApi/DeviceResults.h"

#include <gio/gio.h>

namespace devices {

/// The result code for a failed GLib call; E_FAIL for null and what has no better code.
HRESULT FromGlibError(const GError* error);

} // namespace devices
