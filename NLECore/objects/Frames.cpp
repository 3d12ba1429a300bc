// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/Frames.h"

#include "Com/ComGuard.h"
#include "NLECore/media/Reasons.h"

namespace nle {

Picture::Picture(const QImage& image) : m_image(image.convertToFormat(kPictureFormat)) {}

HRESULT Picture::GetWidth(int* width)
{
    return GiveValue(width, m_image.width());
}

HRESULT Picture::GetHeight(int* height)
{
    return GiveValue(height, m_image.height());
}

HRESULT Picture::GetData(const std::uint8_t** pixels)
{
    return GiveValue(pixels, m_image.constBits());
}

HRESULT SizedFrame::GetSize(NLESize* size)
{
    return GiveValue(size, m_size);
}

HRESULT SizedFrame::GetValidRect(NLERect* rect)
{
    return GiveValue(rect, m_valid);
}

HRESULT SizedFrame::SetValidRect(const NLERect* rect)
{
    if (!rect)
        return Refuse(E_POINTER);
    if (rect->x < 0 || rect->y < 0 || rect->width < 0 || rect->height < 0 ||
        rect->width > m_size.width - rect->x || rect->height > m_size.height - rect->y)
        return Refuse(E_INVALIDARG);
    m_valid = *rect;
    return S_OK;
}

HRESULT VideoFrame::Prepare()
{
    return ComGuard([&] {
        m_image = QImage(Size().width, Size().height, kPictureFormat);
        if (m_image.isNull())
            return Refuse(E_OUTOFMEMORY);
        m_image.fill(Qt::transparent);
        return S_OK;
    });
}

HRESULT VideoFrame::GetData(std::uint8_t** pixels)
{
    if (!pixels)
        return Refuse(E_POINTER);
    *pixels = m_image.isNull() ? nullptr : m_image.bits();
    return *pixels ? S_OK : Refuse(E_FAIL, NLEReason_WrongState);
}

HRESULT VideoFrame::GetMemory(int* memory)
{
    return GiveValue(memory, int(NLEMemory_System));
}

HRESULT AudioFrame::GetSampleCount(int* count)
{
    return GiveValue(count, int(m_samples.size()) / kChannels);
}

HRESULT AudioFrame::GetSampleRate(int* rate)
{
    return GiveValue(rate, int(kSampleRate));
}

HRESULT AudioFrame::GetChannels(int* channels)
{
    return GiveValue(channels, int(kChannels));
}

HRESULT AudioFrame::GetData(float** samples)
{
    return GiveValue(samples, m_samples.data());
}

} // namespace nle
