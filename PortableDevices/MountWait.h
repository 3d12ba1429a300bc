// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/Results.h"

namespace devices {

/// Mounts what \a root lies on, if it is not mounted yet, and waits. Runs the calling thread's own
/// main context meanwhile, which must not be the one of the main thread.
HRESULT MountAndWait(GFile* root, GCancellable* cancellable);

/// Unmounts what \a root lies on and waits, as MountAndWait(). What is not mounted is a success.
HRESULT UnmountAndWait(GFile* root, GCancellable* cancellable);

} // namespace devices
