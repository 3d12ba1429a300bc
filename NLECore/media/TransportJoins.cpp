// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/TransportJoins_p.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <chrono>
#include <map>
#include <optional>

namespace nle {
namespace {

// A packet, and what some recorders put before or after it.
constexpr int kPacketBytes = 188;
constexpr int kPacketSizes[] = {188, 192, 204};
constexpr char kSync = 0x47;
constexpr int kSyncsToTrust = 5;

constexpr std::int64_t kBlockBytes = std::int64_t(1) << 20;
constexpr std::int64_t kSmallFile = std::int64_t(64) << 20;
constexpr int kSamples = 1024;
constexpr std::int64_t kSampleBytes = std::int64_t(256) << 10;
constexpr std::chrono::seconds kLongest{5};

constexpr std::int64_t kTicksPerSecond = 90000;
// The clock has 33 bits; a step back by more than half of that is its own turn.
constexpr std::int64_t kHalfClock = std::int64_t(1) << 32;
// What one stream, and what one stream against another, goes back at the most within a recording
// that has faults. A sound one never goes back, so where a table of programs comes in between, any
// step back is a join.
constexpr std::int64_t kStepBack = kTicksPerSecond;
constexpr std::int64_t kStepBackOfOthers = 10 * kTicksPerSecond;

struct Layout
{
    int packetSize = 0;
    int offset = 0; ///< of the first packet's sync byte in the file
};

std::optional<Layout> FindLayout(const QByteArray& head)
{
    for (const int size : kPacketSizes) {
        for (int offset = 0; offset < size; ++offset) {
            int syncs = 0;
            while (syncs < kSyncsToTrust && offset + syncs * size < head.size() &&
                   head[offset + syncs * size] == kSync)
                ++syncs;
            if (syncs == kSyncsToTrust)
                return Layout{size, offset};
        }
    }
    return std::nullopt;
}

/// What a packet tells of the clock.
struct Packet
{
    int pid = 0;
    bool isTable = false; ///< begins the table of programs, with which a recording begins
    std::optional<std::int64_t> time; ///< of decoding, in ticks of 90 kHz
};

std::int64_t ReadTime(const std::uint8_t* bytes)
{
    return (std::int64_t(bytes[0] & 0x0e) << 29) | (bytes[1] << 22) |
           (std::int64_t(bytes[2] & 0xfe) << 14) | (bytes[3] << 7) | (bytes[4] >> 1);
}

// 13818-1, 2.4.3.6: the head of a packet of an elementary stream.
std::optional<std::int64_t> ReadTimeOf(const std::uint8_t* payload, int length)
{
    constexpr int headBytes = 19;
    const bool isElementary = length >= headBytes && payload[0] == 0 && payload[1] == 0 &&
                              payload[2] == 1 && (payload[6] & 0xc0) == 0x80;
    const int flags = isElementary ? payload[7] >> 6 : 0;
    if (flags == 2)
        return ReadTime(payload + 9);
    if (flags == 3)
        return ReadTime(payload + 14);
    return std::nullopt;
}

Packet ReadPacket(const std::uint8_t* bytes)
{
    Packet packet;
    packet.pid = (bytes[1] & 0x1f) << 8 | bytes[2];
    const bool isStart = (bytes[1] & 0x40) != 0;
    const bool hasPayload = (bytes[3] & 0x10) != 0;
    const bool hasField = (bytes[3] & 0x20) != 0;
    const int at = hasField ? 5 + bytes[4] : 4;
    if (!isStart || !hasPayload || at >= kPacketBytes)
        return packet;
    packet.isTable = packet.pid == 0;
    packet.time = ReadTimeOf(bytes + at, kPacketBytes - at);
    return packet;
}

/// Follows the clocks of a stretch of the file.
class Scan
{
public:
    Scan(QFile& file, Layout layout) : m_file(file), m_layout(layout)
    {
        m_deadline = std::chrono::steady_clock::now() + kLongest;
    }

    bool IsLate() const { return std::chrono::steady_clock::now() > m_deadline; }

    /// The joins from byte \a begin to \a end, and the time that the first packet there has.
    std::vector<std::int64_t> Read(std::int64_t begin, std::int64_t end)
    {
        m_joins.clear();
        m_times.clear();
        m_first.reset();
        m_latest.reset();
        m_table = -1;
        const std::int64_t size = m_layout.packetSize;
        std::int64_t position =
            (begin - m_layout.offset + size - 1) / size * size + m_layout.offset;
        while (position + kPacketBytes <= end && !IsLate()) {
            const std::int64_t wanted =
                std::min(kBlockBytes / size * size, (end - position + size - 1) / size * size);
            const QByteArray block = m_file.seek(position) ? m_file.read(wanted) : QByteArray();
            for (int i = 0; i + kPacketBytes <= block.size(); i += int(size)) {
                if (block[i] == kSync)
                    Take(ReadPacket(reinterpret_cast<const std::uint8_t*>(block.constData()) + i),
                         position + i);
            }
            if (block.size() < wanted)
                break;
            position += wanted;
        }
        return m_joins;
    }
    std::optional<std::int64_t> FirstTime() const { return m_first; }
    std::optional<std::int64_t> LatestTime() const { return m_latest; }

private:
    static bool StepsBack(std::int64_t from, std::int64_t to, std::int64_t most)
    {
        return from - to > most && from - to < kHalfClock;
    }

    void Take(const Packet& packet, std::int64_t position)
    {
        if (packet.isTable)
            m_table = position;
        if (!packet.time)
            return;
        const std::int64_t time = *packet.time;
        const auto before = m_times.find(packet.pid);
        const bool isAnew =
            (before != m_times.end() &&
             StepsBack(before->second, time, m_table > m_lastPosition ? 0 : kStepBack)) ||
            (m_latest && StepsBack(*m_latest, time, kStepBackOfOthers));
        if (isAnew) {
            m_joins.push_back(m_table > m_lastPosition ? m_table : position);
            m_times.clear();
        }
        m_latest = isAnew || !m_latest ? time : std::max(*m_latest, time);
        if (!m_first)
            m_first = time;
        m_times[packet.pid] = time;
        m_lastPosition = position;
    }

    QFile& m_file;
    const Layout m_layout;
    std::chrono::steady_clock::time_point m_deadline;
    std::vector<std::int64_t> m_joins;
    std::map<int, std::int64_t> m_times; ///< last one of each stream
    std::optional<std::int64_t> m_first;
    std::optional<std::int64_t> m_latest; ///< of all streams, since the last join
    std::int64_t m_table = -1;            ///< where the last table of programs begins
    std::int64_t m_lastPosition = -1;     ///< of the last packet with a time
};

} // namespace

std::vector<std::int64_t> FindJoins(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    const std::optional<Layout> layout = FindLayout(file.read(kSampleBytes));
    if (!layout)
        return {};
    Scan scan(file, *layout);
    const std::int64_t size = file.size();
    if (size <= kSmallFile)
        return scan.Read(0, size);
    // Where the time at one place is before that at an earlier one, the stretch between them has a
    // join. Each stretch ends where the next one's first times were read.
    std::vector<std::int64_t> joins;
    std::optional<std::int64_t> before;
    for (int i = 0; i < kSamples && !scan.IsLate(); ++i) {
        const std::int64_t at = size / kSamples * i;
        scan.Read(at, at + kSampleBytes);
        const std::optional<std::int64_t> first = scan.FirstTime();
        if (!first)
            continue;
        if (before && *before - *first > kStepBack && *before - *first < kHalfClock) {
            const auto found = scan.Read(size / kSamples * (i - 1), at + kSampleBytes);
            joins.insert(joins.end(), found.begin(), found.end());
        }
        before = first;
    }
    joins.erase(std::unique(joins.begin(), joins.end()), joins.end());
    return joins;
}

} // namespace nle
