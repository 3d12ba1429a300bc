// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/OpenCLDevice.h"
#include "NLECore/objects/Frames.h"

namespace nle {

/// A video frame in memory of an OpenCL device: a buffer and not an image of OpenCL, as each device
/// has buffers, of any size, and as the host finds the pixels without gaps between rows.
class OpenCLFrame final : public ComExtension<SizedFrame, INLEOpenCLFrame>
{
public:
    OpenCLFrame(NLESize size, std::shared_ptr<const OpenCLDevice> device)
        : ComExtension(size), m_buffer(std::move(device))
    {
    }

    HRESULT Prepare() override;
    HRESULT GetData(std::uint8_t** pixels) override;
    HRESULT GetMemory(int* memory) override;

    HRESULT GetBuffer(void** buffer) override;
    HRESULT GetContext(void** context) override;
    HRESULT GetQueue(void** queue) override;
    HRESULT GetDevice(void** device) override;
    HRESULT GetDeviceName(wchar_t* name, int capacity) override;
    HRESULT Map(int flags, std::uint8_t** pixels) override;
    HRESULT Unmap() override;

private:
    /// E_FAIL before Prepare.
    HRESULT MapFor(int flags);

    OpenCLBuffer m_buffer;
};

} // namespace nle
