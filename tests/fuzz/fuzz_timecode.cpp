// SPDX-License-Identifier: LGPL-2.1-or-later
// Texts, rates and frames: each answer is compared with a second reading of the text.
#include "CommonLib/GlobalUtils.h"
#include "Fuzz.h"

#include <QStringList>

#include <cstdlib>

using fuzz::Require;

namespace {

bool IsNumber(const QString& text, int fewest, int most)
{
    if (text.size() < fewest || text.size() > most)
        return false;
    for (const QChar digit : text) {
        if (digit < '0' || digit > '9')
            return false;
    }
    return true;
}

bool IsTimecode(const QString& text)
{
    const QStringList fields = text.trimmed().split(':');
    return fields.size() == 4 && IsNumber(fields[0], 1, 3) && IsNumber(fields[1], 1, 2) &&
           IsNumber(fields[2], 1, 2) && IsNumber(fields[3], 2, 3) && fields[1].toInt() < 60 &&
           fields[2].toInt() < 60;
}

std::int64_t FramesAt25(const QString& text)
{
    const QStringList fields = text.trimmed().split(':');
    const std::int64_t minutes = fields[0].toInt() * 60 + fields[1].toInt();
    return (minutes * 60 + fields[2].toInt()) * 25 + fields[3].toInt();
}

void CheckText(const QString& text, float fps)
{
    const bool isTimecode = IsTimecode(text);
    const int frame = gString2Frame(fps, text);
    const int frameAt25 = gString2Frame(25, text);
    Require(isTimecode || (frame == -1 && frameAt25 == -1), "what is no timecode is refused");
    if (!isTimecode)
        return;
    // Single precision counts whole frames up to here, and rounds twice to steps of 8 above.
    const std::int64_t allowed = FramesAt25(text) < (1 << 24) ? 0 : 8;
    Require(std::llabs(frameAt25 - FramesAt25(text)) <= allowed, "the frame at 25");
    Require(FramesAt25(gFrame2String(frameAt25, 25)) == frameAt25, "the same frame from its text");
}

void CheckFrame(int frame, float fps)
{
    Require(gFrame2String(frame, fps).split(':').size() == 4, "four fields");
    Require(gFrame2StringSecond(frame, fps).split(':').size() == 3, "three fields");
    gFrameBaseFps(frame, static_cast<double>(fps), 25);
    gFrameBaseFps(frame, 25, static_cast<double>(fps));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    const auto frame = input.Take<int>();
    const auto fps = input.Take<float>();
    CheckFrame(frame, fps);
    CheckText(QString::fromUtf8(input.Rest()), fps);
    return 0;
}
