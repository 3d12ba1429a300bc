// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "DeviceApi/PortableDeviceApi.h"

/// Makes an object of the system's portable-device service. \a out is null after a failure.
HRESULT CreatePortableDeviceComponent(REFCLSID classId, REFIID iid, void** out);

/// Opens a stream that writes a local file, which is created or cut to nothing. Fails, and leaves
/// the file alone, when it is the one that \a source reads.
HRESULT CreateStreamOnFile(const wchar_t* path, IStream& source, IStream** out);

/// The \a result of a call that delivers \a object: E_POINTER for a success without an object.
/// After a failure \a object is null, whatever the call has left in it.
template <typename Interface>
HRESULT Delivered(HRESULT result, NLEComPtr<Interface>& object)
{
    if (FAILED(result))
        object.forget();
    else if (!object)
        return E_POINTER;
    return result;
}

/// As above, with the interface taken from the pointer.
template <typename Interface>
HRESULT CreatePortableDeviceComponent(REFCLSID classId, NLEComPtr<Interface>& out)
{
    const HRESULT result =
        CreatePortableDeviceComponent(classId, InterfaceId<Interface>(), out.putVoid());
    return Delivered(result, out);
}
