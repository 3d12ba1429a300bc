// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/long_run/Samples.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <malloc.h>
#include <unistd.h>

namespace {

constexpr double kMiB = 1024 * 1024;

int EntriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

int FilesBelow(const QString& folder)
{
    int count = 0;
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    for (; files.hasNext(); files.next())
        ++count;
    return count;
}

double ResidentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    const QByteArray pages =
        file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1) : QByteArray();
    return pages.toDouble() * double(sysconf(_SC_PAGESIZE)) / kMiB;
}

double AllocatedMemory()
{
    const struct mallinfo2 all = mallinfo2();
    return double(all.uordblks + all.hblkhd) / kMiB;
}

/// Where the second half begins.
Samples::const_iterator Middle(const Samples& samples)
{
    const double half = samples.last().minutes / 2;
    return std::find_if(samples.begin(), samples.end() - 2,
                        [half](const Sample& sample) { return sample.minutes >= half; });
}

double MedianOf(QVector<double> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

const std::array<Quantity, kQuantities>& Quantities()
{
    static const std::array<Quantity, kQuantities> quantities = {{
        {"Allocated memory", "MiB", 0.02, 1},
        {"Resident memory", "MiB", 0.05, 8},
        {"Descriptors", "", 0, 0.5},
        {"Threads", "", 0, 0.5},
        {"Files", "", 0, 0.5},
        {"Widgets", "", 0, 0.5},
    }};
    return quantities;
}

Sample TakeSample(double minutes, const QString& folder)
{
    return {minutes,
            {AllocatedMemory(), ResidentMemory(),
             double(EntriesOf(QStringLiteral("/proc/self/fd"))),
             double(EntriesOf(QStringLiteral("/proc/self/task"))), double(FilesBelow(folder)),
             double(QApplication::allWidgets().size())}};
}

Growth GrowthOf(const Samples& samples, int quantity)
{
    const auto first = Middle(samples);
    QVector<double> slopes;
    QVector<double> values;
    const auto at = [quantity](Samples::const_iterator sample) {
        return sample->values[std::size_t(quantity)];
    };
    for (auto one = first; one != samples.end(); ++one) {
        values << at(one);
        for (auto other = one + 1; other != samples.end(); ++other)
            slopes << (at(other) - at(one)) / (other->minutes - one->minutes);
    }
    const double growth = MedianOf(slopes) * (samples.last().minutes - first->minutes);
    const double middle = MedianOf(values);
    const Quantity& limits = Quantities()[std::size_t(quantity)];
    return {middle - growth / 2, middle + growth / 2, std::max(limits.part * middle, limits.least)};
}

bool WriteSamples(const Samples& samples, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QTextStream text(&file);
    text << "minutes";
    for (const Quantity& quantity : Quantities())
        text << ',' << quantity.name;
    text << '\n';
    for (const Sample& sample : samples) {
        text << sample.minutes;
        for (const double value : sample.values)
            text << ',' << value;
        text << '\n';
    }
    text.flush();
    return text.status() == QTextStream::Ok && file.flush();
}

Samples ReadSamples(const QString& path)
{
    Samples samples;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    file.readLine();
    while (!file.atEnd()) {
        const QList<QByteArray> fields = file.readLine().trimmed().split(',');
        Sample sample = {fields.value(0).toDouble(), {}};
        for (int i = 0; i < kQuantities; ++i)
            sample.values[std::size_t(i)] = fields.value(i + 1).toDouble();
        samples << sample;
    }
    return samples;
}
