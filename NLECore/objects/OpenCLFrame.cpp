// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/OpenCLFrame.h"

#include "Com/ComGuard.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/PropertyBag.h"

#include <cstring>

namespace nle {

namespace {

constexpr int kBoth = NLEMap_Read | NLEMap_Write;

HRESULT ResultOf(ClStatus status)
{
    switch (status) {
    case ClSuccess:
        return S_OK;
    case ClMemObjectAllocationFailure:
    case ClOutOfResources:
    case ClOutOfHostMemory:
    case ClInvalidBufferSize:
        return Refuse(E_OUTOFMEMORY);
    default:
        return Refuse(E_FAIL, NLEReason_NoDevice, QStringLiteral("OpenCL: %1").arg(status));
    }
}

} // namespace

HRESULT OpenCLFrame::Prepare()
{
    return ComGuard([&] {
        const std::size_t size = std::size_t(Size().width) * std::size_t(Size().height) * 4;
        HRESULT result = ResultOf(m_buffer.Allocate(size));
        if (SUCCEEDED(result))
            result = MapFor(NLEMap_Write);
        if (SUCCEEDED(result)) {
            std::memset(m_buffer.Bytes(), 0, size);
            result = ResultOf(m_buffer.Unmap());
        }
        if (FAILED(result))
            m_buffer.Free();
        return result;
    });
}

HRESULT OpenCLFrame::GetData(std::uint8_t** pixels)
{
    return Map(kBoth, pixels);
}

HRESULT OpenCLFrame::GetMemory(int* memory)
{
    return GiveValue(memory, int(NLEMemory_OpenCL));
}

HRESULT OpenCLFrame::GetBuffer(void** buffer)
{
    return ComGuard([&] {
        if (!buffer)
            return Refuse(E_POINTER);
        *buffer = m_buffer.Handle();
        return *buffer ? ResultOf(m_buffer.Unmap()) : Refuse(E_FAIL, NLEReason_WrongState);
    });
}

HRESULT OpenCLFrame::GetContext(void** context)
{
    return GiveValue<void*>(context, m_buffer.Device().Context());
}

HRESULT OpenCLFrame::GetQueue(void** queue)
{
    return GiveValue<void*>(queue, m_buffer.Device().Queue());
}

HRESULT OpenCLFrame::GetDevice(void** device)
{
    return GiveValue<void*>(device, m_buffer.Device().Id());
}

HRESULT OpenCLFrame::GetDeviceName(wchar_t* name, int capacity)
{
    return ComGuard(
        [&] { return CopyText(m_buffer.Device().Name().toStdWString(), name, capacity); });
}

HRESULT OpenCLFrame::MapFor(int flags)
{
    if (!m_buffer.Handle())
        return Refuse(E_FAIL, NLEReason_WrongState);
    ClFlags mapping = flags == NLEMap_Write ? kClMapWriteInvalidate : kClMapRead;
    if (flags == kBoth)
        mapping |= kClMapWrite;
    return ResultOf(m_buffer.Map(mapping));
}

HRESULT OpenCLFrame::Map(int flags, std::uint8_t** pixels)
{
    return ComGuard([&] {
        if (!pixels)
            return Refuse(E_POINTER);
        *pixels = nullptr;
        if (flags < NLEMap_Read || flags > kBoth)
            return Refuse(E_INVALIDARG);
        const HRESULT result = MapFor(flags);
        *pixels = m_buffer.Bytes();
        return result;
    });
}

HRESULT OpenCLFrame::Unmap()
{
    return ComGuard([&] {
        if (!m_buffer.Bytes())
            return S_FALSE;
        return ResultOf(m_buffer.Unmap());
    });
}

} // namespace nle
