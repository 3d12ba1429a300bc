// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/ProxyMaker.h"

#include "Com/ComGuard.h"
#include "Com/ThreadPriority.h"
#include "Com/WideText.h"
#include "NLECore/media/FileClaim.h"
#include "NLECore/media/ProxyStore.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/model/SourceNodes.h"
#include "NLECore/scene/SourceChoice.h"

#include <algorithm>
#include <thread>

namespace nle {

namespace {

constexpr int kLeastHeight = 64;
constexpr int kMostHeight = 2160;
/// Constant rate factor: small, and good enough to judge a cut.
constexpr int kQuality = 26;
/// Frames from one key frame to the next, so that steps and jumps are quick.
constexpr int kGroup = 12;

int Even(double length)
{
    return std::max(2, int(length / 2 + 0.5) * 2);
}

WriterSettings SettingsFor(const Layer& clip, int height, bool hasAlpha)
{
    WriterSettings settings;
    settings.size = {Even(double(clip.size.width) * height / clip.size.height), Even(height)};
    settings.frameRate = clip.frameRate;
    settings.quality = kQuality;
    settings.options.audioCodec = kNoCodec;
    settings.options.threads = 1;
    if (hasAlpha) {
        settings.options.videoCodec = "prores";
        settings.options.alpha = 1;
    } else {
        settings.options.videoCodec = "h264";
        settings.options.speed = "superfast";
        settings.options.gop = kGroup;
        settings.options.bFrames = 0;
    }
    return settings;
}

} // namespace

ProxyMaker::~ProxyMaker()
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    for (const std::shared_ptr<Job>& job : m_state->jobs) {
        job->isSilent = true;
        job->isCancelled = true;
    }
}

int ProxyMaker::State::Height()
{
    const std::lock_guard<std::mutex> lock(mutex);
    return height;
}

void ProxyMaker::State::Forget(const std::shared_ptr<Job>& job)
{
    const std::lock_guard<std::mutex> lock(mutex);
    jobs.erase(std::remove(jobs.begin(), jobs.end(), job), jobs.end());
}

HRESULT ProxyMaker::SetFolder(const wchar_t* folder, std::int64_t quota)
{
    return ComGuard([&] {
        constexpr std::int64_t mebibyte = 1 << 20;
        if (quota < 0 || quota > INT64_MAX / mebibyte)
            return Refuse(E_INVALIDARG);
        Proxies().SetFolder(FromWide(folder), quota * mebibyte);
        return S_OK;
    });
}

HRESULT ProxyMaker::SetHeight(int height)
{
    if (height < kLeastHeight || height > kMostHeight)
        return RefuseRange("height", kLeastHeight, kMostHeight);
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    m_state->height = height;
    return S_OK;
}

HRESULT ProxyMaker::Find(const wchar_t* file, wchar_t* proxy, int capacity)
{
    return ComGuard([&] {
        if (!file || !proxy || capacity < 1)
            return Refuse(E_INVALIDARG);
        const auto key = Proxies().KeyOf(FromWide(file), m_state->Height());
        const QString found = key ? Proxies().Find(*key) : QString();
        const HRESULT result = CopyText(found.toStdWString(), proxy, capacity);
        return SUCCEEDED(result) && found.isEmpty() ? S_FALSE : result;
    });
}

HRESULT ProxyMaker::Make(const wchar_t* file, NLEProxyCallback callback, void* userData)
{
    return ComGuard([&] {
        if (!file)
            return Refuse(E_INVALIDARG);
        const auto job = std::make_shared<Job>();
        job->path = FromWide(file);
        job->name = file;
        job->callback = callback;
        job->userData = userData;
        {
            const std::lock_guard<std::mutex> lock(m_state->mutex);
            job->height = m_state->height;
            m_state->jobs.push_back(job);
        }
        const bool isPosted = m_thread.Post([state = m_state, job] {
            LowerThreadPriority();
            const HRESULT result = ComGuard([&] { return Work(*job); });
            state->Forget(job);
            job->Tell(result, result == S_OK ? 100 : 0);
        });
        if (!isPosted)
            m_state->Forget(job);
        return isPosted ? S_OK : Refuse(E_OUTOFMEMORY);
    });
}

HRESULT ProxyMaker::Cancel(const wchar_t* file)
{
    bool isFound = false;
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    for (const std::shared_ptr<Job>& job : m_state->jobs) {
        if (file && job->name != file)
            continue;
        job->isCancelled = true;
        isFound = true;
    }
    return isFound ? S_OK : S_FALSE;
}

void ProxyMaker::Job::Tell(HRESULT state, int percent) const
{
    if (callback && !isSilent)
        callback(name.c_str(), state, percent, userData);
}

HRESULT ProxyMaker::Work(const Job& job)
{
    if (job.isCancelled)
        return Refuse(E_ABORT);
    const auto key = Proxies().KeyOf(job.path, job.height);
    if (key && !Proxies().Find(*key).isEmpty())
        return S_OK;
    const std::shared_ptr<const MediaInfo> media = DescribeFile(job.path);
    if (!media)
        return Refuse(E_INVALIDARG);
    if (media->kind != NLEMedia_Video)
        return Refuse(E_INVALIDARG, NLEReason_NothingThere, job.path);
    const NLEComPtr<MediaClip> clip = MakeCom<MediaClip>(media);
    FilmPlan film = {clip->MakeSnapshot(), clip->Range(), clip->FrameRate()};
    // Sound may go on after the last picture.
    const ShownStream shown = ShownStreamOf(*film.root);
    if (shown.end)
        film.range.out = std::min(film.range.out,
                                  ClampToInt(double(*shown.end) + std::max(0.0, shown.delay)) - 1);
    if (film.root->size.height <= job.height)
        return RefuseRange("height", kLeastHeight, film.root->size.height - 1);
    const std::unique_ptr<FileClaim> claim = key ? Proxies().ClaimOf(*key) : nullptr;
    if (!claim)
        return Refuse(E_ACCESSDENIED, NLEReason_NotWritable,
                      QStringLiteral("no folder for proxies"));
    const HRESULT result = Take(*claim, job);
    // Whoever had the claim may have made it.
    if (result != S_OK || !Proxies().Find(*key).isEmpty())
        return result;
    const MediaStream* stream = media->Stream(media->videoStream);
    const bool hasAlpha = stream && stream->hasAlpha;
    return Write(film, SettingsFor(*film.root, job.height, hasAlpha),
                 Proxies().PathOf(*key, hasAlpha), job);
}

HRESULT ProxyMaker::Take(FileClaim& claim, const Job& job)
{
    constexpr std::chrono::milliseconds patience{100};
    while (!claim.Take()) {
        if (!claim.IsOthers())
            return Refuse(E_ACCESSDENIED, NLEReason_NotWritable,
                          QStringLiteral("no file in the folder for proxies"));
        if (job.isCancelled)
            return Refuse(E_ABORT);
        std::this_thread::sleep_for(patience);
    }
    return S_OK;
}

HRESULT ProxyMaker::Write(const FilmPlan& film, const WriterSettings& settings, const QString& path,
                          const Job& job)
{
    WriterError error;
    const std::unique_ptr<MediaWriter> writer = MediaWriter::Open(path, settings, &error);
    if (!writer)
        return RefuseOpening(path, error, E_FAIL);
    const HRESULT result = WriteFilm(film, *writer, [&job](int percent) {
        job.Tell(S_FALSE, percent);
        return !job.isCancelled;
    });
    if (result == S_FALSE)
        return Refuse(E_ABORT);
    if (result == E_OUTOFMEMORY)
        return result;
    if (FAILED(result) || !writer->Finish())
        return RefuseWriting(E_FAIL, path, writer->Error());
    return Proxies().Keep(path) ? S_OK : Refuse(E_ACCESSDENIED, NLEReason_NotWritable, path);
}

} // namespace nle
