// SPDX-License-Identifier: LGPL-2.1-or-later
// Feeds arbitrary texts, rates and frames to the timecode functions and compares each answer with a
// second reading of the text. Under libFuzzer the input comes from there; otherwise
//
//     fuzz_timecode [number of texts] [seed]
//
// makes its own.
#include "CommonLib/GlobalUtils.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>

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

void Require(bool holds, const char* what, const QString& text)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s: \"%s\"\n", what, qPrintable(text));
    std::abort();
}

void CheckText(const QString& text, float fps)
{
    const bool isTimecode = IsTimecode(text);
    const int frame = gString2Frame(fps, text);
    const int frameAt25 = gString2Frame(25, text);
    Require(isTimecode || (frame == -1 && frameAt25 == -1), "refused", text);
    if (!isTimecode)
        return;
    // Single precision counts whole frames up to here, and rounds twice to steps of 8 above.
    const std::int64_t allowed = FramesAt25(text) < (1 << 24) ? 0 : 8;
    Require(std::llabs(frameAt25 - FramesAt25(text)) <= allowed, "frame at 25", text);
    Require(FramesAt25(gFrame2String(frameAt25, 25)) == frameAt25, "back to text", text);
}

void CheckFrame(int frame, float fps)
{
    const QString text = gFrame2String(frame, fps);
    Require(text.split(':').size() == 4, "four fields", text);
    const QString seconds = gFrame2StringSecond(frame, fps);
    Require(seconds.split(':').size() == 3, "three fields", seconds);
    gFrameBaseFps(frame, static_cast<double>(fps), 25);
    gFrameBaseFps(frame, 25, static_cast<double>(fps));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size)
{
    int frame = 0;
    float fps = 0;
    if (size < sizeof frame + sizeof fps)
        return 0;
    std::memcpy(&frame, data, sizeof frame);
    std::memcpy(&fps, data + sizeof frame, sizeof fps);
    const size_t used = sizeof frame + sizeof fps;
    CheckFrame(frame, fps);
    CheckText(QString::fromUtf8(reinterpret_cast<const char*>(data + used), int(size - used)), fps);
    return 0;
}

#ifndef COMMONLIB_FUZZ
namespace {

// A timecode with a few characters changed, or characters that timecodes are made of.
QByteArray RandomText(std::minstd_rand& random)
{
    static const QByteArray alphabet("0123456789:::;,. \t\n-+a\xD9\xA1\0", 26);
    const auto any = [&random](int end) { return static_cast<int>(random() % unsigned(end)); };
    QByteArray text;
    if (any(2) == 0) {
        text = QByteArray::number(any(1100)) + ':' + QByteArray::number(any(64)) + ':' +
               QByteArray::number(any(64)) + ':' + QByteArray::number(any(1100)).rightJustified(2);
        text.replace(' ', '0');
    } else {
        for (int length = any(16); length > 0; --length)
            text += alphabet[any(alphabet.size())];
    }
    for (int changes = any(3); changes > 0 && !text.isEmpty(); --changes)
        text[any(text.size())] = alphabet[any(alphabet.size())];
    return text;
}

} // namespace

int main(int argc, char** argv)
{
    const long count = argc > 1 ? std::atol(argv[1]) : 100000;
    std::minstd_rand random(argc > 2 ? unsigned(std::atol(argv[2])) : 1);
    long accepted = 0;
    for (long i = 0; i < count; ++i) {
        const std::uint32_t numbers[2] = {std::uint32_t(random() * 2), std::uint32_t(random() * 2)};
        const QByteArray text = RandomText(random);
        QByteArray input(reinterpret_cast<const char*>(numbers), sizeof numbers);
        input += text;
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                               size_t(input.size()));
        accepted += IsTimecode(QString::fromUtf8(text)) ? 1 : 0;
    }
    std::printf("%ld texts, %ld of them timecodes, no finding\n", count, accepted);
    return 0;
}
#endif
