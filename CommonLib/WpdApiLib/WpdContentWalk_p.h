// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/WpdApiLib/WpdApiLib.h"
#include "DeviceApi/PortableDeviceApi.h"

/// One walk over a device's content; holds what all its steps need.
class WpdContentWalk
{
public:
    WpdContentWalk(const NLEComPtr<IPortableDeviceContent>& content, WpdCallbackProc callback,
                   void* user);

    /// Reports the object to the host and visits its children. Failures and the host's wish to stop
    /// go into the flags of WpdApiLib.
    void Visit(const wchar_t* objectId, int depth);

private:
    bool OpenProperties();
    void AddKeys();
    bool ReadObject(const wchar_t* objectId);
    bool TellHost(const wchar_t* objectId, IPortableDeviceValues& values);
    void VisitChildren(const wchar_t* objectId, int depth, bool descend);

    NLEComPtr<IPortableDeviceContent> m_content;
    WpdCallbackProc m_callback; ///< may be null
    void* m_user;
    NLEComPtr<IPortableDeviceProperties> m_properties;
    NLEComPtr<IPortableDeviceKeyCollection> m_keys;
};
