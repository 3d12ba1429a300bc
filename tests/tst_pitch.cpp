// SPDX-License-Identifier: LGPL-2.1-or-later
// Sound of another pitch, by each way to make it.
#include "NLECore/media/AudioFilter.h"
#include "NLECore/render/PitchFilter.h"
#include "tests/support/Deviation.h"

#include <QtMath>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace nle;

Q_DECLARE_METATYPE(PitchMethod)

namespace {

constexpr int kRate = 48000;
constexpr double kTone = 440;
/// Silence before the tone, and all, in seconds.
constexpr int kSilent = 9;
constexpr int kLength = 12;

int s_told = 0;

void CountTold(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    s_told += text.startsWith("pitch is changed by ") ? 1 : 0;
}

std::vector<float> Raised(PitchMethod method, int semitones)
{
    const auto tone = [](std::int64_t first, int count, float* samples) {
        for (int i = 0; i < count; ++i) {
            const double time = double(first + i) / kRate;
            samples[i] = time < kSilent ? 0 : float(0.5 * std::sin(2 * M_PI * kTone * time));
        }
    };
    AudioFilter filter(PitchFilters(method, semitones, kRate), kRate, 1);
    std::vector<float> samples(size_t(kRate) * kLength);
    for (int first = 0; first < kRate * kLength; first += kRate / 25)
        filter.Read(first, kRate / 25, tone, samples.data() + first);
    return samples;
}

} // namespace

class tst_Pitch : public QObject
{
    Q_OBJECT

private slots:
    void toneAndTempo_data()
    {
        QTest::addColumn<PitchMethod>("method");
        QTest::addColumn<int>("semitones");
        const bool hasBoth = AudioFilter::IsThere("rubberband");
        for (const int semitones : {-24, -13, -1, 7, 12, 24}) {
            QTest::addRow("resampled by %d", semitones) << PitchMethod::Tempo << semitones;
            if (hasBoth && std::abs(semitones) <= 12)
                QTest::addRow("rubber band by %d", semitones)
                    << PitchMethod::RubberBand << semitones;
        }
    }
    void toneAndTempo()
    {
        QFETCH(PitchMethod, method);
        QFETCH(int, semitones);
        const std::vector<float> samples = Raised(method, semitones);
        const auto isHeard = [](float sample) { return std::abs(sample) > 0.1f; };
        const auto start = std::find_if(samples.begin(), samples.end(), isHeard);
        QCOMPARE(Deviation(double(start - samples.begin()) / kRate, kSilent, 0.15), QString());

        const auto second = start + kRate;
        int crossings = 0;
        double power = 0;
        for (auto at = second; at < second + kRate; ++at) {
            crossings += *at < 0 && at[1] >= 0 ? 1 : 0;
            power += double(*at) * *at / kRate;
        }
        const double pitch = kTone * std::exp2(semitones / 12.0);
        QCOMPARE(Deviation(crossings, pitch, 0.01 * pitch), QString());
        QCOMPARE(Deviation(std::sqrt(2 * power), 0.5, 0.05), QString());
    }

    void tellsOnceHow()
    {
        const auto before = qInstallMessageHandler(CountTold);
        const PitchMethod method = PitchMethodHere();
        QCOMPARE(PitchMethodHere(), method);
        qInstallMessageHandler(before);
        QCOMPARE(s_told, 1);
        QCOMPARE(method == PitchMethod::RubberBand, AudioFilter::IsThere("rubberband"));
    }
};

QTEST_APPLESS_MAIN(tst_Pitch)
#include "tst_pitch.moc"
