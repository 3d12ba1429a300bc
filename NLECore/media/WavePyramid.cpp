// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/WavePyramid.h"

#include "NLECore/media/AudioDecoder.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/media/SavedFile_p.h"
#include "NLECore/media/WholeFile.h"

#include <QDataStream>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace nle {
namespace {

constexpr int kBlockSamples = 32768;
constexpr float kFullScale = 32767.0F;

constexpr quint32 kMagic = 0x4E4C5731;
/// Magic, key, samples and the sum over the table of sums.
constexpr int kHeadSize = 32;
/// Bins under one sum: a page of the disk.
constexpr std::int64_t kBlockBins = 1024;
constexpr std::int64_t kBinBytes = 4;

std::int64_t CeilDivide(std::int64_t value, std::int64_t divisor)
{
    return (value + divisor - 1) / divisor;
}

std::int16_t Quantised(float value)
{
    return std::int16_t(std::lround(std::clamp(value, -1.0F, 1.0F) * kFullScale));
}

std::uint32_t Checksum(const void* bytes, std::size_t size)
{
    return std::uint32_t(ContentHash::Of(bytes, size).low);
}

std::int64_t BlockCount(const std::vector<std::int64_t>& sizes)
{
    std::int64_t blocks = 0;
    for (const std::int64_t size : sizes)
        blocks += CeilDivide(size, kBlockBins);
    return blocks;
}

using BinPlace = WavePyramid::Level::const_iterator;

// Of one bin at least.
WavePeak PeakOf(BinPlace first, BinPlace end)
{
    WavePyramid::Bin range = *first;
    for (BinPlace bin = first; bin != end; ++bin)
        range = {std::min(range.min, bin->min), std::max(range.max, bin->max)};
    return {float(range.min) / kFullScale, float(range.max) / kFullScale};
}

// Each level fills whole blocks; what is left of its last one is 0.
QByteArray LevelBytes(const WavePyramid::Level& level)
{
    const std::int64_t blocks = CeilDivide(std::int64_t(level.size()), kBlockBins);
    QByteArray bytes(int(blocks * kBlockBins * kBinBytes), '\0');
    auto* place = reinterpret_cast<uchar*>(bytes.data());
    for (const WavePyramid::Bin& bin : level) {
        qToLittleEndian<qint16>(bin.min, place);
        qToLittleEndian<qint16>(bin.max, place + sizeof(qint16));
        place += kBinBytes;
    }
    return bytes;
}

} // namespace

std::vector<std::int64_t> WavePyramid::LevelSizes(std::int64_t sampleCount)
{
    std::vector<std::int64_t> sizes = {CeilDivide(sampleCount, kBinSamples)};
    while (sizes.back() > 1)
        sizes.push_back(CeilDivide(sizes.back(), kLevelFactor));
    return sizes;
}

std::int64_t WavePyramid::SamplesOf(std::size_t level)
{
    std::int64_t samples = kBinSamples;
    for (std::size_t i = 0; i < level; ++i)
        samples *= kLevelFactor;
    return samples;
}

std::optional<WavePyramid> WavePyramid::Read(AudioDecoder& decoder, const Progress& progress)
{
    const std::int64_t expected =
        std::max<std::int64_t>(1, decoder.Info()->durationUs) * kSampleRate / 1000000;
    WavePyramid pyramid;
    std::vector<float> block(kBlockSamples);
    bool hasSound = false;
    for (std::int64_t position = 0; position < kMostSamples; position += kBlockSamples) {
        if (progress && !progress(std::min(1.0, double(position) / double(expected))))
            return std::nullopt;
        const int count = decoder.Read(position, kBlockSamples, kSampleRate, 1, block.data());
        if (count < 0)
            return std::nullopt;
        // The sound may begin later than the picture.
        const bool isOver = count < kBlockSamples && (count > 0 || hasSound || position > expected);
        hasSound = hasSound || count > 0;
        pyramid.Add(block.data(), isOver ? count : kBlockSamples);
        if (isOver) {
            pyramid.Close();
            return hasSound ? std::optional(std::move(pyramid)) : std::nullopt;
        }
    }
    return std::nullopt;
}

void WavePyramid::Add(const float* samples, int count)
{
    for (int i = 0; i < count; ++i) {
        const bool isFirst = m_sampleCount % kBinSamples == 0;
        m_open.min = isFirst ? samples[i] : std::min(m_open.min, samples[i]);
        m_open.max = isFirst ? samples[i] : std::max(m_open.max, samples[i]);
        if (++m_sampleCount % kBinSamples == 0)
            m_levels.front().push_back({Quantised(m_open.min), Quantised(m_open.max)});
    }
}

void WavePyramid::Close()
{
    if (m_sampleCount % kBinSamples != 0)
        m_levels.front().push_back({Quantised(m_open.min), Quantised(m_open.max)});
    while (m_levels.back().size() > 1) {
        const Level& finer = m_levels.back();
        Level level;
        for (std::size_t i = 0; i < finer.size(); ++i) {
            if (i % kLevelFactor == 0)
                level.push_back(finer[i]);
            level.back() = {std::min(level.back().min, finer[i].min),
                            std::max(level.back().max, finer[i].max)};
        }
        m_levels.push_back(std::move(level));
    }
}

bool WriteWaveFile(const QString& path, const ContentKey& key, const WavePyramid& pyramid)
{
    QByteArray data;
    for (const WavePyramid::Level& level : pyramid.Levels())
        data += LevelBytes(level);
    constexpr int blockBytes = int(kBlockBins * kBinBytes);
    QByteArray sums;
    QDataStream table(&sums, QIODevice::WriteOnly);
    for (int place = 0; place < data.size(); place += blockBytes)
        table << quint32(Checksum(data.constData() + place, blockBytes));
    QByteArray head;
    QDataStream fields(&head, QIODevice::WriteOnly);
    fields << kMagic << quint64(key.high) << quint64(key.low) << qint64(pyramid.SampleCount())
           << quint32(Checksum(sums.constData(), std::size_t(sums.size())));
    WholeFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.write(head + sums) == kHeadSize + sums.size() &&
                           file.write(data) == data.size() && file.Commit();
    if (!isWritten)
        RefuseWriting(E_FAIL, path, file);
    return isWritten;
}

std::unique_ptr<WaveFile> WaveFile::Open(const QString& path, const ContentKey& key)
{
    std::unique_ptr<WaveFile> file(new WaveFile(path));
    return file->ReadHead(key) ? std::move(file) : nullptr;
}

bool WaveFile::ReadHead(const ContentKey& key)
{
    if (!m_file.open(QIODevice::ReadOnly))
        return false;
    QDataStream fields(m_file.read(kHeadSize));
    quint32 magic = 0;
    quint64 high = 0;
    quint64 low = 0;
    qint64 samples = 0;
    quint32 sum = 0;
    fields >> magic >> high >> low >> samples >> sum;
    const bool isOurs = fields.status() == QDataStream::Ok && magic == kMagic &&
                        ContentKey{high, low} == key && samples > 0 &&
                        samples <= WavePyramid::kMostSamples;
    if (!isOurs)
        return false;
    m_sampleCount = samples;
    m_sizes = WavePyramid::LevelSizes(samples);
    const std::int64_t blocks = BlockCount(m_sizes);
    const QByteArray table = m_file.read(blocks * qint64(sizeof(quint32)));
    m_dataOffset = kHeadSize + table.size();
    const bool isWhole = table.size() == int(blocks * std::int64_t(sizeof(quint32))) &&
                         Checksum(table.constData(), std::size_t(table.size())) == sum &&
                         m_file.size() == m_dataOffset + blocks * kBlockBins * kBinBytes;
    if (!isWhole)
        return false;
    m_sums.resize(std::size_t(blocks));
    QDataStream sums(table);
    for (std::uint32_t& blockSum : m_sums)
        sums >> blockSum;
    return true;
}

bool WaveFile::ReadBins(std::size_t level, std::int64_t first, std::int64_t count,
                        WavePyramid::Level* bins)
{
    bins->resize(std::size_t(count));
    if (count == 0)
        return true;
    const auto start = m_sizes.begin();
    const std::vector<std::int64_t> before(start, start + std::ptrdiff_t(level));
    const std::int64_t firstBlock = first / kBlockBins;
    const std::int64_t blocks = (first + count - 1) / kBlockBins - firstBlock + 1;
    const std::int64_t place = BlockCount(before) + firstBlock;
    constexpr std::int64_t blockBytes = kBlockBins * kBinBytes;
    if (!m_file.seek(m_dataOffset + place * blockBytes))
        return false;
    const QByteArray data = m_file.read(blocks * blockBytes);
    if (data.size() != blocks * blockBytes)
        return false;
    for (std::int64_t block = 0; block < blocks; ++block) {
        if (Checksum(data.constData() + block * blockBytes, blockBytes) !=
            m_sums[std::size_t(place + block)])
            return false;
    }
    const char* from = data.constData() + (first - firstBlock * kBlockBins) * kBinBytes;
    for (WavePyramid::Bin& bin : *bins) {
        bin = {qFromLittleEndian<qint16>(from), qFromLittleEndian<qint16>(from + sizeof(qint16))};
        from += kBinBytes;
    }
    return true;
}

std::int64_t WaveFile::BinAt(std::size_t level, std::int64_t sample) const
{
    const std::int64_t size = WavePyramid::SamplesOf(level);
    // What there is of the last bin may end before its middle.
    if (sample >= m_sampleCount)
        return m_sizes[level];
    return std::clamp<std::int64_t>(CeilDivide(sample - size / 2, size), 0, m_sizes[level] - 1);
}

std::vector<WavePeak> WaveFile::Peaks(std::int64_t firstSample, std::int64_t sampleCount,
                                      int buckets)
{
    const std::int64_t step = sampleCount / std::max(1, buckets);
    if (buckets < 1 || step < kShortestStep || firstSample < 0)
        return {};
    std::size_t level = 0;
    while (level + 1 < m_sizes.size() && WavePyramid::SamplesOf(level + 1) * kFewestBins <= step)
        ++level;
    const std::int64_t firstBin = BinAt(level, firstSample);
    const std::int64_t count = BinAt(level, firstSample + sampleCount) - firstBin;
    WavePyramid::Level bins;
    if (!ReadBins(level, firstBin, count, &bins))
        return {};
    std::vector<WavePeak> peaks(std::size_t(buckets), WavePeak{});
    auto bin = bins.begin();
    for (int i = 0; i < buckets; ++i) {
        const std::int64_t last =
            BinAt(level, firstSample + WaveBucketStart(i + 1, sampleCount, buckets));
        const auto end = bins.begin() + std::ptrdiff_t(last - firstBin);
        if (bin != end)
            peaks[std::size_t(i)] = PeakOf(bin, end);
        bin = end;
    }
    return peaks;
}

} // namespace nle
