// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/ContentHash.h"
#include "NLECore/media/WaveForm.h"

#include <QFile>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace nle {

/// The envelope of a whole sound at several scales: peaks of 256 samples, of four times as many,
/// and so on until one bin holds all.
///
/// Samples are those of one mixed channel at kSampleRate, counted from MediaInfo::originUs.
class WavePyramid
{
public:
    static constexpr int kSampleRate = 48000;
    static constexpr std::int64_t kBinSamples = 256; ///< of the finest level
    static constexpr std::int64_t kLevelFactor = 4;
    /// Longest sound: a bit more than a day.
    static constexpr std::int64_t kMostSamples = std::int64_t(100000) * kSampleRate;

    /// Told how much is done, 0 to 1; false stops the work.
    using Progress = std::function<bool(double done)>;

    /// Peaks of one bin in steps of 1/32767.
    struct Bin
    {
        std::int16_t min;
        std::int16_t max;
    };
    using Level = std::vector<Bin>;

    /// Reads the sound from its beginning to its end. Nothing when it was stopped, cannot be read
    /// or is longer than kMostSamples.
    static std::optional<WavePyramid> Read(AudioDecoder& decoder, const Progress& progress);

    std::int64_t SampleCount() const { return m_sampleCount; }
    const std::vector<Level>& Levels() const { return m_levels; }

    /// Number of bins on each level for a sound of so many samples.
    static std::vector<std::int64_t> LevelSizes(std::int64_t sampleCount);
    /// Samples in a bin of a level.
    static std::int64_t SamplesOf(std::size_t level);

private:
    void Add(const float* samples, int count);
    void Close();

    std::int64_t m_sampleCount = 0;
    std::vector<Level> m_levels = {{}};
    WavePeak m_open; ///< of the bin that is not full
};

/// Writes the pyramid to a file that gets its name all at once; false when it cannot be written.
bool WriteWaveFile(const QString& path, const ContentKey& key, const WavePyramid& pyramid);

/// Reads parts of a pyramid from its file.
class WaveFile
{
public:
    /// A step must be so many bins long, so that no peak is drawn further off than a quarter of a
    /// step.
    static constexpr std::int64_t kFewestBins = 2;
    /// Shortest step that the file can answer, in samples.
    static constexpr std::int64_t kShortestStep = kFewestBins * WavePyramid::kBinSamples;

    /// Null when there is no such file, or not the whole of it, or of another content.
    static std::unique_ptr<WaveFile> Open(const QString& path, const ContentKey& key);

    std::int64_t SampleCount() const { return m_sampleCount; }
    /// As ReadWaveForm() for one channel: each bin counts for the stretch that its middle lies in.
    /// For stretches of kShortestStep and more, from sample 0 on. Empty when the file is damaged.
    std::vector<WavePeak> Peaks(std::int64_t firstSample, std::int64_t sampleCount, int buckets);

private:
    explicit WaveFile(const QString& path) : m_file(path) {}
    bool ReadHead(const ContentKey& key);
    /// The first bin of a level whose middle is not before a sample; its end behind the sound.
    std::int64_t BinAt(std::size_t level, std::int64_t sample) const;
    /// False when they are damaged.
    bool ReadBins(std::size_t level, std::int64_t first, std::int64_t count,
                  WavePyramid::Level* bins);

    QFile m_file;
    std::int64_t m_sampleCount = 0;
    std::vector<std::int64_t> m_sizes; ///< bins of each level
    std::vector<std::uint32_t> m_sums; ///< of each block of bins
    std::int64_t m_dataOffset = 0;
};

} // namespace nle
