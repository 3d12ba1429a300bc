// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/WpdApiLib/PortableDeviceService_p.h"

#include <shlwapi.h>

HRESULT CreatePortableDeviceComponent(REFCLSID classId, REFIID iid, void** out)
{
    return CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, iid, out);
}

// The system's streams do not tell which file they read.
HRESULT CreateStreamOnFile(const wchar_t* path, IStream& /*source*/, IStream** out)
{
    return SHCreateStreamOnFileW(path, STGM_CREATE | STGM_WRITE, out);
}
