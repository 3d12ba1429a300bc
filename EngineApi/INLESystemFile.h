// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"

/// Keeps the engine's own settings from one start to the next; the object of
/// INLEFactory::GetSystemConfig answers it. For any thread.
struct INLESystemFile : IUnknown
{
    static constexpr _GUID Iid = {
        0x9B20E6F1, 0x4C7D, 0x4E3A, {0x95, 0x61, 0xD8, 0x0A, 0x7F, 0x43, 0xBE, 0x12}};

    /// Writes all values of the keys of NLEKey::System; the file is the old or the new one.
    virtual HRESULT Save(const wchar_t* path) = 0;
    /// Takes the values of a file, all or none; keys that it lacks stay as they are, those that
    /// there are not are passed over. E_FAIL for a file that cannot be read, E_INVALIDARG for a
    /// value that its key does not accept.
    virtual HRESULT Load(const wchar_t* path) = 0;
};
