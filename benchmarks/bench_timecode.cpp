// SPDX-License-Identifier: LGPL-2.1-or-later
// Timecodes of a million frames beside plain fills of the same four numbers. With "--table": the
// rounding of every frame of 24 hours, as docs/timecode.md shows it.
#include "CommonLib/GlobalUtils.h"
#include "benchmarks/Pairs.h"

#include <QStringList>
#include <QVector>

#include <cstdio>
#include <cstring>

namespace {

constexpr int kFrames = 1000000;
constexpr float kRate = 29.97F;

struct Numbers
{
    quint64 fields[4];
};

QVector<Numbers> SameNumbers()
{
    QVector<Numbers> numbers;
    for (int frame = 0; frame < kFrames; ++frame) {
        const QStringList texts = gFrame2String(frame, kRate).split(':');
        Numbers row;
        for (int i = 0; i < 4; ++i)
            row.fields[i] = texts[i].toULongLong();
        numbers += row;
    }
    return numbers;
}

void PrintTable()
{
    std::printf("| Rate | Frames | Unchanged | One less | Other | First frame changed |\n"
                "|---|---|---|---|---|---|\n");
    for (const float fps : {23.976F, 24.0F, 25.0F, 29.97F, 30.0F, 50.0F, 59.94F, 60.0F, 119.88F}) {
        const int end = static_cast<int>(86400.0 * static_cast<double>(fps) + 0.5);
        int same = 0;
        int less = 0;
        int first = -1;
        for (int frame = 0; frame < end; ++frame) {
            const int gain = gString2Frame(fps, gFrame2String(frame, fps)) - frame;
            same += gain == 0 ? 1 : 0;
            less += gain == -1 ? 1 : 0;
            if (gain != 0 && first < 0)
                first = frame;
        }
        const QString text = first < 0
                                 ? QString("none")
                                 : QString("%1 (%2)").arg(first).arg(gFrame2String(first, fps));
        std::printf("| %g | %d | %d | %d | %d | %s |\n", static_cast<double>(fps), end, same, less,
                    end - same - less, qPrintable(text));
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--table") == 0) {
        PrintTable();
        return 0;
    }
    const QVector<Numbers> numbers = SameNumbers();
    AddPair(
        "a timecode",
        [frame = 0]() mutable {
            frame = (frame + 1) % kFrames;
            return gFrame2String(frame, kRate).size();
        },
        Bare("fills of a QString"),
        [&numbers, row = 0]() mutable {
            row = (row + 1) % kFrames;
            const auto& fields = numbers[row].fields;
            return QString("%1:%2:%3:%4")
                .arg(fields[0])
                .arg(fields[1])
                .arg(fields[2])
                .arg(fields[3])
                .size();
        });
    return RunPairs(argc, argv);
}
