// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/WaveExtractor.h"

#include "Com/WideText.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/media/WaveStore.h"
#include "NLECore/model/MediaObjects.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

constexpr int kSampleRate = WavePyramid::kSampleRate;
/// Longest span of an envelope in seconds; keeps sample numbers far from overflow.
constexpr double kLongestWave = 1e7;
/// Largest quota in MiB; more means the same.
constexpr std::int64_t kMostQuota = std::int64_t(1) << 40;

} // namespace

HRESULT WaveExtractor::SetSource(INLEMediaInfo* info, std::uint32_t audioStream)
{
    return ComGuard([&] {
        Finish();
        m_media = MediaInfoObject::From(info);
        m_stream = int(audioStream);
        if (!m_media)
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        const MediaStream* stream = m_media->Stream(m_stream);
        const bool isSound = stream && stream->type == NLEStream_Audio;
        if (isSound && (OpenKept() || OpenDecoder()))
            return S_OK;
        const auto count = std::int64_t(m_media->streams.size());
        const QString path = m_media->path;
        m_media.reset();
        return stream ? Refuse(E_FAIL, NLEReason_FileUnsupported, path)
                      : Refuse(E_FAIL, NLEReason_UnknownIndex, QString::number(count));
    });
}

HRESULT WaveExtractor::Extract(double start, double length, int count, float* minima, float* maxima)
{
    return ComGuard([&] {
        if (!minima || !maxima)
            return Refuse(E_POINTER);
        if (!m_media)
            return Refuse(E_FAIL, NLEReason_WrongState);
        if (count < 1 || !(std::abs(start) <= kLongestWave) ||
            !(length > 0 && length <= kLongestWave))
            return Refuse(E_INVALIDARG);
        const std::int64_t first = std::llround(start * kSampleRate);
        const std::int64_t samples = std::llround(length * kSampleRate);
        std::vector<WavePeak> peaks = KeptPeaks(first, samples, count);
        // One channel: the decoder mixes down, and an envelope shows the sum of what is heard.
        if (peaks.empty() && OpenDecoder())
            peaks = ReadWaveForm(*m_decoder, first, samples, kSampleRate, 1, count);
        if (peaks.size() != size_t(count))
            return Refuse(E_FAIL, NLEReason_NothingThere);
        for (size_t i = 0; i < peaks.size(); ++i) {
            minima[i] = peaks[i].min;
            maxima[i] = peaks[i].max;
        }
        return S_OK;
    });
}

HRESULT WaveExtractor::Finish()
{
    m_decoder.reset();
    m_kept.reset();
    m_media.reset();
    m_canKeep = true;
    return S_OK;
}

HRESULT WaveExtractor::SetCacheFolder(const wchar_t* folder, std::int64_t quota)
{
    return ComGuard([&] {
        if (quota < 0)
            return Refuse(E_INVALIDARG);
        Waves().SetFolder(FromWide(folder), std::min(quota, kMostQuota) << 20);
        m_kept.reset();
        m_canKeep = true;
        return S_OK;
    });
}

HRESULT WaveExtractor::IsCached(bool* cached)
{
    return ComGuard([&] {
        return m_media ? GiveValue(cached, OpenKept()) : Refuse(E_FAIL, NLEReason_WrongState);
    });
}

HRESULT WaveExtractor::Compute(NLEProgressCallback callback, void* userData)
{
    const NLEComPtr<WaveExtractor> self(this); // the callback may give up the last reference
    return ComGuard([&] {
        if (!m_media)
            return Refuse(E_FAIL, NLEReason_WrongState);
        bool isStopped = false;
        const auto report = [&](double done) {
            isStopped = isStopped || (callback && callback(int(done * 100), userData) != 0);
            return !isStopped;
        };
        const HRESULT result = OpenKept() ? S_OK : Keep(report);
        if (result == S_OK)
            report(1);
        return isStopped && result != S_OK ? S_FALSE : result;
    });
}

bool WaveExtractor::OpenDecoder()
{
    if (!m_decoder)
        m_decoder = AudioDecoder::Open(m_media, m_stream, nullptr);
    return m_decoder != nullptr;
}

bool WaveExtractor::OpenKept()
{
    m_kept = Waves().Open(*m_media, m_stream);
    return m_kept != nullptr;
}

HRESULT WaveExtractor::Keep(const WavePyramid::Progress& progress)
{
    if (!Waves().IsOn())
        return Refuse(E_FAIL, NLEReason_WrongState, QStringLiteral("no cache"));
    if (!OpenDecoder())
        return Refuse(E_FAIL, NLEReason_FileUnsupported, m_media->path);
    // Who is told of the progress may set another source.
    const std::shared_ptr<const MediaInfo> media = m_media;
    const int stream = m_stream;
    const std::unique_ptr<AudioDecoder> decoder = std::move(m_decoder);
    const std::optional<WavePyramid> pyramid = WavePyramid::Read(*decoder, progress);
    if (!pyramid)
        return Refuse(E_FAIL, NLEReason_FileUnsupported, media->path);
    const bool isKept = Waves().Put(*media, stream, *pyramid) && (m_media != media || OpenKept());
    return isKept ? S_OK : Refuse(E_FAIL);
}

std::vector<WavePeak> WaveExtractor::KeptPeaks(std::int64_t firstSample, std::int64_t sampleCount,
                                               int count)
{
    if (firstSample < 0 || sampleCount / count < WaveFile::kShortestStep)
        return {};
    // Reading half of the sound takes about as long as reading it all.
    const std::int64_t whole = m_media->durationUs * kSampleRate / 1000000;
    if (!m_kept && m_canKeep && sampleCount >= whole / 2)
        m_canKeep = Keep(nullptr) == S_OK;
    std::vector<WavePeak> peaks;
    if (m_kept)
        peaks = m_kept->Peaks(firstSample, sampleCount, count);
    if (m_kept && peaks.empty()) { // damaged since it was opened
        m_kept.reset();
        Waves().Drop(*m_media, m_stream);
    }
    return peaks;
}

} // namespace nle
