// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// How a clip is laid over what is below it.
struct INLEBlendSetting : IUnknown
{
    static constexpr _GUID Iid = {
        0x328290B5, 0xD754, 0xC0AD, {0xDB, 0xF4, 0xBD, 0x9F, 0x35, 0x92, 0x21, 0x3B}};

    virtual HRESULT SetEnable(bool enable) = 0; ///< whether what follows counts
    virtual HRESULT GetEnable(bool* enable) = 0;
    virtual HRESULT GetMode(int* mode) = 0; ///< 0 normal; docs/engine.md has the others
    virtual HRESULT SetMode(int mode) = 0;
    virtual HRESULT GetAlpha(int* alpha) = 0; ///< 0 transparent to 255 opaque
    virtual HRESULT SetAlpha(int alpha) = 0;
};

/// Where a clip stands on its parent: centre from (0, 0) top left to (1, 1) bottom right.
struct INLETransform : IUnknown
{
    static constexpr _GUID Iid = {
        0xCADAFCCF, 0xAA3A, 0x46DA, {0x97, 0x06, 0xFB, 0x47, 0x48, 0x5A, 0x60, 0x9D}};

    virtual HRESULT SetEnable(bool enable) = 0; ///< whether what follows counts
    virtual HRESULT GetEnable(bool* enable) = 0;
    virtual HRESULT SetCenter(const NLEPointF* center) = 0; ///< of the clip, on its parent
    virtual HRESULT GetCenter(NLEPointF* center) = 0;
    virtual HRESULT SetScale(const NLESizeF* scale) = 0;
    virtual HRESULT GetScale(NLESizeF* scale) = 0;
    virtual HRESULT SetRotation(double degrees) = 0; ///< clockwise
    virtual HRESULT GetRotation(double* degrees) = 0;
    /// Two places of the interface that nothing calls.
    virtual HRESULT Reserved1() = 0;
    virtual HRESULT Reserved2() = 0;
    virtual HRESULT SetLock(bool lock) = 0; ///< only kept
};
