// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "CommonLib/CommonLibExport.h"

#include <memory>

class QLibrary;

/// The one entry to the engine core library "NLECore.dll", the first in the module folders
/// (ModuleFolders.h): that in the application's folder before any other.
///
/// Created without a lock: call Instance() on the GUI thread first.
class COMMONLIB_EXPORT CVCreateInstance
{
public:
    /// The one instance; the first call creates it without loading anything.
    static CVCreateInstance* Instance();
    /// Unloads the engine core library and deletes this object; Instance() starts afresh. Every
    /// engine object must be gone by then.
    void Release();

    /// Creates an object of \a classId and queries it for \a iid. The first call loads the engine
    /// core library; a load that failed is tried again by the next call.
    ///
    /// True when \a out holds the new object, whose reference belongs to the caller. On every
    /// failure false, and \a out is null. \a context is ignored.
    bool cvCreateInstance(const _GUID& classId, IUnknown* outer, unsigned long context,
                          const _GUID& iid, void** out);

private:
    CVCreateInstance();
    ~CVCreateInstance();
    CVCreateInstance(const CVCreateInstance&) = delete;
    CVCreateInstance& operator=(const CVCreateInstance&) = delete;

    bool Load();

    std::unique_ptr<QLibrary> m_module; ///< null until loaded
};
