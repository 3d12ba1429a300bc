// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

#include "CommonLib/NumberConversion_p.h"

#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr double kSmallestRate = 0.000001;
constexpr double kSmallestSourceRate = 0.00001;
// Rates and frames are counted in ten-thousandths, which keeps fractional rates exact.
constexpr quint64 kScale = 10000;
constexpr quint64 kSecondsPerHour = 3600;
constexpr quint64 kSecondsPerMinute = 60;

struct Timecode
{
    quint64 hours = 0;
    quint64 minutes = 0;
    quint64 seconds = 0;
    quint64 frames = 0;
};

// Ten-thousandths of a frame per second; 0 for a rate that cannot be counted in.
quint64 ScaledRate(float fps)
{
    // Not "fps <= ...": a rate that is no number belongs here, too.
    if (!(static_cast<double>(fps) > kSmallestRate))
        return 0;
    const quint64 rate = Truncated<quint64>(fps * static_cast<float>(kScale)).value_or(0);
    return rate > std::numeric_limits<quint64>::max() / kSecondsPerHour ? 0 : rate;
}

Timecode ToTimecode(int frame, float fps)
{
    const quint64 rate = ScaledRate(fps);
    if (rate == 0)
        return {};
    // Sign-extended first: a negative frame wraps to a huge number. Kept: see
    // docs/compatibility.md.
    const quint64 count = static_cast<quint64>(static_cast<qint64>(frame)) * kScale;
    const quint64 inHour = count % (rate * kSecondsPerHour);
    const quint64 inMinute = inHour % (rate * kSecondsPerMinute);
    return {count / (rate * kSecondsPerHour), inHour / (rate * kSecondsPerMinute), inMinute / rate,
            inMinute % rate / kScale};
}

// Hours, minutes and seconds.
std::array<int, 3> ToSeconds(int frame, float fps)
{
    if (!(static_cast<double>(fps) > kSmallestRate))
        return {};
    const float perHour = fps * static_cast<float>(kSecondsPerHour);
    const float perMinute = fps * static_cast<float>(kSecondsPerMinute);
    const int wholePerHour = Truncated<int>(perHour).value_or(0);
    const int wholePerMinute = Truncated<int>(perMinute).value_or(0);
    if (wholePerHour == 0 || wholePerMinute == 0)
        return {};
    const int inHour = frame % wholePerHour;
    const int inMinute = inHour % wholePerMinute;
    return {Truncated<int>(static_cast<float>(frame) / perHour).value_or(0),
            Truncated<int>(static_cast<float>(inHour) / perMinute).value_or(0),
            Truncated<int>(static_cast<float>(inMinute) / fps).value_or(0)};
}

bool IsTimecode(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^[0-9]{1,3}:[0-5]?[0-9]:[0-5]?[0-9]:[0-9]{2,3}$"));
    return pattern.match(text.trimmed()).hasMatch();
}

} // namespace

QString gFrame2String(int frame, float fps)
{
    const QChar zero(u'0');
    const Timecode code = ToTimecode(frame, fps);
    return QStringLiteral("%1:%2:%3:%4")
        .arg(code.hours, 2, 10, zero)
        .arg(code.minutes, 2, 10, zero)
        .arg(code.seconds, 2, 10, zero)
        .arg(code.frames, 2, 10, zero);
}

QString gFrame2StringSecond(int frame, float fps)
{
    const QChar zero(u'0');
    const auto [hours, minutes, seconds] = ToSeconds(frame, fps);
    return QStringLiteral("%1:%2:%3")
        .arg(hours, 2, 10, zero)
        .arg(minutes, 2, 10, zero)
        .arg(seconds, 2, 10, zero);
}

int gString2Frame(float fps, QString text)
{
    if (!IsTimecode(text))
        return -1;
    const QStringList fields = text.split(u':');
    int seconds = 0;
    for (int i = 2; i >= 0; --i)
        seconds = static_cast<int>(fields[2 - i].toInt() * std::pow(60.0, i) + seconds);
    // Double precision would give a frame more for some long timecodes (docs/timecode.md). Kept:
    // see docs/compatibility.md.
    const float frames =
        static_cast<float>(fields.last().toInt()) + static_cast<float>(seconds) * fps;
    return Truncated<int>(std::ceil(frames)).value_or(-1);
}

int gFrameBaseFps(int frame, double fromFps, double toFps)
{
    if (std::abs(fromFps) < kSmallestSourceRate)
        return -1;
    // Only the low 32 bits of a longer number count. Kept: see docs/compatibility.md.
    return static_cast<int>(Truncated<qint64>(frame * toFps / fromFps).value_or(-1));
}

QString gMakeFourCCString(int code)
{
    const auto bits = static_cast<quint32>(code);
    const std::array<char, 4> bytes = {static_cast<char>(bits), static_cast<char>(bits >> 8),
                                       static_cast<char>(bits >> 16),
                                       static_cast<char>(bits >> 24)};
    return QString::fromLatin1(bytes.data(), static_cast<int>(bytes.size()));
}

bool gIsH264Coder(int code)
{
    const QString name = gMakeFourCCString(code);
    return name.contains(QLatin1String("H264"), Qt::CaseInsensitive) ||
           name.contains(QLatin1String("AVC"), Qt::CaseInsensitive);
}
