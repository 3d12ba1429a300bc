// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <d3d9.h>
// After it, as it needs its types.
#include <dxva2api.h>
#endif

extern "C" {
#include <libavutil/hwcontext.h>
#ifdef Q_OS_WIN
#include <libavutil/hwcontext_dxva2.h>
#endif
}

#ifdef Q_OS_WIN

/// Lives as long as the program and has no device to give.
struct IdleDevices final : IDirect3DDeviceManager9
{
    STDMETHODIMP QueryInterface(REFIID /*iid*/, void** /*out*/) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP ResetDevice(IDirect3DDevice9* /*device*/, UINT /*token*/) override
    {
        return E_FAIL;
    }
    STDMETHODIMP OpenDeviceHandle(HANDLE* /*device*/) override { return E_FAIL; }
    STDMETHODIMP CloseDeviceHandle(HANDLE /*device*/) override { return E_FAIL; }
    STDMETHODIMP TestDevice(HANDLE /*device*/) override { return E_FAIL; }
    STDMETHODIMP LockDevice(HANDLE /*handle*/, IDirect3DDevice9** /*device*/,
                            BOOL /*wait*/) override
    {
        return E_FAIL;
    }
    STDMETHODIMP UnlockDevice(HANDLE /*device*/, BOOL /*save*/) override { return E_FAIL; }
    STDMETHODIMP GetVideoService(HANDLE /*device*/, REFIID /*iid*/, void** /*out*/) override
    {
        return E_FAIL;
    }
};

#endif

/// Opens a device for decoding that takes no stream, as av_hwdevice_ctx_create().
inline int OpenIdle(AVBufferRef** device, AVHWDeviceType type)
{
#ifdef Q_OS_WIN
    constexpr AVHWDeviceType idle = AV_HWDEVICE_TYPE_DXVA2;
#else
    constexpr AVHWDeviceType idle = AV_HWDEVICE_TYPE_VAAPI;
#endif
    *device = type == idle ? av_hwdevice_ctx_alloc(type) : nullptr;
    if (*device == nullptr)
        return AVERROR(ENODEV);
#ifdef Q_OS_WIN
    static IdleDevices s_devices;
    auto* const context = reinterpret_cast<AVHWDeviceContext*>((*device)->data);
    static_cast<AVDXVA2DeviceContext*>(context->hwctx)->devmgr = &s_devices;
#endif
    return 0;
}
