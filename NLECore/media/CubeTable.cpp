// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/CubeTable.h"

#include "NLECore/media/EngineLog.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>

namespace nle {

namespace {

constexpr int kMostSide = 256;
constexpr int kMostSingle = 65536;
constexpr qint64 kMostBytes = 1 << 29;

using Color = CubeTable::Color;

/// Three finite numbers; false for anything else.
bool ReadColor(const QList<QByteArray>& words, int first, Color& color)
{
    if (words.size() != first + int(color.size()))
        return false;
    bool isNumber = true;
    for (std::size_t i = 0; i < color.size() && isNumber; ++i) {
        color[i] = words[first + int(i)].toFloat(&isNumber);
        isNumber = isNumber && std::isfinite(color[i]);
    }
    return isNumber;
}

/// A file's table as it was, with what tells whether it has changed.
struct KnownTable
{
    QDateTime modified;
    qint64 size = -1; ///< below 0: never read
    bool isTable = false;
    std::weak_ptr<const CubeTable> table;
};

struct KnownTables
{
    std::mutex mutex; ///< guards the rest
    std::map<QString, KnownTable> byPath;
    /// A few stay open between the frames that use them.
    std::array<std::shared_ptr<const CubeTable>, 4> latest;
    std::size_t next = 0;
};

} // namespace

std::shared_ptr<const CubeTable> CubeTable::Open(const QString& path)
{
    // Never destroyed: threads that render may outlive the module's objects.
    static auto& s_known = *new KnownTables;
    const QFileInfo info(path);
    const std::lock_guard<std::mutex> lock(s_known.mutex);
    KnownTable& entry = s_known.byPath[path];
    const bool isKnown = entry.modified == info.lastModified() && entry.size == info.size();
    if (auto table = entry.table.lock(); isKnown && (table || !entry.isTable))
        return table;
    QFile file(path);
    std::shared_ptr<const CubeTable> table;
    if (info.size() <= kMostBytes && file.open(QIODevice::ReadOnly))
        table = Parse(file.readAll());
    entry = {info.lastModified(), info.size(), table != nullptr, table};
    if (table)
        s_known.latest[s_known.next++ % s_known.latest.size()] = table;
    else
        qCWarning(lcEngine, "%s: no table of colours", qUtf8Printable(path));
    return table;
}

std::shared_ptr<const CubeTable> CubeTable::Parse(const QByteArray& text)
{
    const std::shared_ptr<CubeTable> table(new CubeTable);
    Color highest = {1, 1, 1};
    for (const QByteArray& line : text.split('\n')) {
        const QByteArray plain = line.simplified();
        if (plain.isEmpty() || plain.startsWith('#'))
            continue;
        const QList<QByteArray> words = plain.split(' ');
        const QByteArray& first = words.front();
        Color color;
        if (ReadColor(words, 0, color)) {
            table->m_entries.push_back(color);
        } else if (first == "LUT_3D_SIZE" || first == "LUT_1D_SIZE") {
            table->m_isSingle = first == "LUT_1D_SIZE";
            table->m_size = words.value(1).toInt();
        } else if (first == "DOMAIN_MIN" || first == "DOMAIN_MAX") {
            if (!ReadColor(words, 1, first == "DOMAIN_MIN" ? table->m_lowest : highest))
                return nullptr;
        } else if (first == "LUT_3D_INPUT_RANGE" || first == "LUT_1D_INPUT_RANGE") {
            table->m_lowest.fill(words.value(1).toFloat());
            highest.fill(words.value(2).toFloat());
        }
    }
    const std::size_t side = std::size_t(std::max(table->m_size, 0));
    if (table->m_size < 2 || table->m_size > (table->m_isSingle ? kMostSingle : kMostSide) ||
        table->m_entries.size() != (table->m_isSingle ? side : side * side * side))
        return nullptr;
    for (std::size_t i = 0; i < highest.size(); ++i) {
        if (!(highest[i] > table->m_lowest[i]))
            return nullptr;
        table->m_scale[i] = float(table->m_size - 1) / (highest[i] - table->m_lowest[i]);
    }
    return table;
}

float CubeTable::Place(std::size_t component, float value) const
{
    const float place = (value - m_lowest[component]) * m_scale[component];
    return std::min(std::max(0.0F, place), float(m_size - 1)); // 0 for what is no number
}

Color CubeTable::AtSingle(const Color& color) const
{
    Color result;
    for (std::size_t i = 0; i < color.size(); ++i) {
        const float place = Place(i, color[i]);
        const int step = std::min(int(place), m_size - 2);
        const float low = m_entries[std::size_t(step)][i];
        result[i] = low + (m_entries[std::size_t(step) + 1][i] - low) * (place - float(step));
    }
    return result;
}

Color CubeTable::AtCube(const Color& color) const
{
    std::array<float, 3> shares;
    std::array<std::size_t, 3> steps; // to the next entry along a side
    std::size_t entry = 0;
    std::size_t stride = 1;
    for (std::size_t i = 0; i < color.size(); ++i) {
        const float place = Place(i, color[i]);
        const int step = std::min(int(place), m_size - 2);
        shares[i] = place - float(step);
        steps[i] = stride;
        entry += std::size_t(step) * stride;
        stride *= std::size_t(m_size);
    }
    // From the corner with the least of all to that with the most, along the largest share first.
    std::size_t large = 0;
    std::size_t middle = 1;
    std::size_t least = 2;
    if (shares[large] < shares[middle])
        std::swap(large, middle);
    if (shares[middle] < shares[least])
        std::swap(middle, least);
    if (shares[large] < shares[middle])
        std::swap(large, middle);
    const Color& first = m_entries[entry];
    const Color& second = m_entries[entry += steps[large]];
    const Color& third = m_entries[entry += steps[middle]];
    const Color& fourth = m_entries[entry + steps[least]];
    Color result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = first[i] * (1 - shares[large]) + second[i] * (shares[large] - shares[middle]) +
                    third[i] * (shares[middle] - shares[least]) + fourth[i] * shares[least];
    return result;
}

} // namespace nle
