// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// Property bag: values by wide-text key. A getter that fails leaves its out-value untouched; a
/// value is read back as the type that it was written as, integers and doubles as each other too.
/// For one thread at a time.
struct INLEProperties : IUnknown
{
    static constexpr _GUID Iid = {
        0x7E4DB0A4, 0xA9C4, 0x4015, {0x91, 0x6F, 0x2B, 0x33, 0x7B, 0x8B, 0x90, 0x59}};

    virtual HRESULT GetInt(const wchar_t* key, int* value) = 0; ///< a whole number
    virtual HRESULT SetInt(const wchar_t* key, int value) = 0;
    virtual HRESULT GetDouble(const wchar_t* key, double* value) = 0; ///< a number
    virtual HRESULT SetDouble(const wchar_t* key, double value) = 0;
    virtual HRESULT GetRational(const wchar_t* key, NLERational* value) = 0; ///< a fraction
    virtual HRESULT SetRational(const wchar_t* key, NLERational value) = 0;
    /// Writes at most \a capacity characters with the terminating zero; longer text is cut.
    virtual HRESULT GetString(const wchar_t* key, wchar_t* buffer, int capacity) = 0;
    virtual HRESULT SetString(const wchar_t* key, const wchar_t* value) = 0;
};

/// Answered by every engine object that has a property bag.
struct INLEPropertyHost : IUnknown
{
    static constexpr _GUID Iid = {
        0xD497118B, 0x7856, 0x4F21, {0x80, 0x23, 0x8C, 0xB4, 0xC0, 0x0D, 0xE1, 0x44}};

    /// The object's own bag, a new reference: what is set there is the object's setting.
    virtual HRESULT GetProperties(INLEProperties** properties) = 0;
};
