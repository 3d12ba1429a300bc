// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/CodecObject.h"

#include "Com/ComGuard.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/PropertyBag.h"

namespace nle {

namespace {

std::wstring Widen(const std::string& ascii)
{
    return std::wstring(ascii.begin(), ascii.end());
}

} // namespace

HRESULT CodecObject::GetMediaInfo(INLEMediaInfo** info)
{
    return GiveNew<MediaInfoObject>(info, m_media);
}

HRESULT CodecObject::GetContainerName(wchar_t* buffer, int capacity)
{
    return ComGuard([&] {
        return CopyText(m_media->containerName.section(QLatin1Char(','), 0, 0).toStdWString(),
                        buffer, capacity);
    });
}

HRESULT CodecObject::GetCodecName(std::uint32_t stream, wchar_t* buffer, int capacity)
{
    return ComGuard([&] {
        if (stream >= m_media->streams.size())
            return RefuseIndex(stream, std::int64_t(m_media->streams.size()));
        return CopyText(Widen(m_media->streams[stream].codecName), buffer, capacity);
    });
}

HRESULT CodecObject::GetProfileName(std::uint32_t stream, wchar_t* buffer, int capacity)
{
    return ComGuard([&] {
        if (stream >= m_media->streams.size())
            return RefuseIndex(stream, std::int64_t(m_media->streams.size()));
        return CopyText(Widen(m_media->streams[stream].profileName), buffer, capacity);
    });
}

} // namespace nle
