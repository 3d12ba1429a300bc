// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/Results.h"

namespace devices {

HRESULT FromGlibError(const GError* error)
{
    if (!error || error->domain != G_IO_ERROR)
        return E_FAIL;
    switch (error->code) {
    case G_IO_ERROR_NOT_FOUND:
        return kNotFound;
    case G_IO_ERROR_PERMISSION_DENIED:
    case G_IO_ERROR_READ_ONLY:
        return E_ACCESSDENIED;
    case G_IO_ERROR_NOT_SUPPORTED:
        return kNotSupported;
    case G_IO_ERROR_NO_SPACE:
        return kDiskFull;
    case G_IO_ERROR_NOT_EMPTY:
        return kNotEmpty;
    case G_IO_ERROR_BUSY:
        return kBusy;
    case G_IO_ERROR_NOT_MOUNTED:
    case G_IO_ERROR_CONNECTION_CLOSED:
        return kDeviceGone;
    case G_IO_ERROR_CANCELLED:
        return kCancelled;
    case G_IO_ERROR_TIMED_OUT:
        return kTimedOut;
    default:
        return E_FAIL;
    }
}

} // namespace devices
