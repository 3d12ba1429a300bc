// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MediaObjects.h"

#include "Com/ComGuard.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/ImageSequence.h"
#include "NLECore/media/MediaStore.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/PropertyBag.h"

#include <QFileInfo>

#include <algorithm>

namespace nle {

namespace {

NLEStreamInfo ToEngine(const MediaStream& stream)
{
    NLEStreamInfo info = {};
    info.type = std::int32_t(stream.type);
    info.width = stream.width;
    info.height = stream.height;
    info.rotation = stream.rotation;
    info.frameRate = stream.frameRate;
    info.meanFrameRate = stream.meanRate;
    info.pixelAspect = stream.sampleAspect;
    info.fieldOrder = stream.fieldOrder;
    info.sampleRate = stream.sampleRate;
    info.channels = stream.channels;
    info.sampleFormat = stream.sampleFormat;
    info.fourCC = stream.fourcc;
    info.bitRate = stream.bitRate;
    info.duration = stream.durationUs;
    if (stream.type == NLEStream_Video) {
        info.transfer = stream.colours.transfer;
        info.primaries = stream.colours.primaries;
        info.matrix = stream.colours.matrix;
        info.colorRange = stream.colours.range;
        info.bitDepth = stream.bitDepth;
    }
    stream.codecName.copy(info.codecName, sizeof(info.codecName) - 1);
    return info;
}

MediaStore& Files()
{
    static MediaStore s_store;
    return s_store;
}

/// Why a file gives no media.
NLEReason ReasonFor(const QString& path)
{
    const QFileInfo file(path);
    if (!IsThere(path))
        return NLEReason_FileMissing;
    const bool isFilm = file.isFile() && file.isReadable() && file.size() > 0;
    return isFilm || !file.exists() ? NLEReason_FileUnsupported : NLEReason_FileUnreadable;
}

std::shared_ptr<const MediaInfo> Logged(const QString& path, const MediaStore::Result& result)
{
    if (!result.info) {
        qCWarning(lcEngine, "%s", qUtf8Printable(result.error));
        NoteReason(ReasonFor(path), result.error);
    }
    return result.info;
}

} // namespace

std::shared_ptr<const MediaInfo> DescribeFile(const QString& path)
{
    return Logged(path, Files().Describe(path));
}

std::vector<std::shared_ptr<const MediaInfo>> DescribeFiles(const QStringList& paths)
{
    const std::vector<MediaStore::Result> results = Files().DescribeAll(paths);
    std::vector<std::shared_ptr<const MediaInfo>> infos;
    for (int i = 0; i < paths.size(); ++i)
        infos.push_back(Logged(paths[i], results[size_t(i)]));
    return infos;
}

void ForgetFiles()
{
    Files().Clear();
}

std::shared_ptr<const MediaInfo> OfflineMedia(const QString& path)
{
    auto media = std::make_shared<MediaInfo>();
    media->path = path;
    return media;
}

std::shared_ptr<const MediaInfo> MediaInfoObject::From(IUnknown* object)
{
    void* found = nullptr;
    if (!object || FAILED(object->QueryInterface(kObjectId, &found)))
        return nullptr;
    NLEComPtr<MediaInfoObject> info;
    info.attach(static_cast<MediaInfoObject*>(found));
    return info->m_media;
}

HRESULT MediaInfoObject::QueryInterface(REFIID iid, void** out)
{
    if (out && iid == kObjectId) {
        *out = this;
        AddRef();
        return S_OK;
    }
    return ComObject::QueryInterface(iid, out);
}

HRESULT MediaInfoObject::GetKind(int* kind)
{
    return GiveValue(kind, int(m_media->kind));
}

HRESULT MediaInfoObject::GetStreamCount(std::uint32_t* count)
{
    return GiveValue(count, std::uint32_t(m_media->streams.size()));
}

HRESULT MediaInfoObject::GetStream(std::uint32_t index, NLEStreamInfo* stream)
{
    if (!stream)
        return Refuse(E_POINTER);
    if (index >= m_media->streams.size())
        return RefuseIndex(index, std::int64_t(m_media->streams.size()));
    *stream = ToEngine(m_media->streams[index]);
    return S_OK;
}

HRESULT MediaInfoObject::GetFrameCountAndRate(std::uint32_t* count, NLERational* rate)
{
    if (!count || !rate)
        return Refuse(E_POINTER);
    *count = m_media->frameCount;
    *rate = m_media->frameRate;
    return S_OK;
}

HRESULT MediaInfoObject::GetFilePath(wchar_t* buffer, int capacity)
{
    return ComGuard([&] { return CopyText(m_media->path.toStdWString(), buffer, capacity); });
}

} // namespace nle
