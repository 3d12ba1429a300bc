// SPDX-License-Identifier: LGPL-2.1-or-later
// Normalisation of loudness, and effects of sound whose key frames change them.
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLELoudness.h"
#include "tests/support/EngineFixture.h"

#include <QProcess>
#include <QRegularExpression>

#include <atomic>

namespace {

/// What an engine's thread has told.
struct Told
{
    std::atomic<HRESULT> state{S_FALSE};

    INLELoudness* cancelled = nullptr; ///< when it is told for the first time

    static void Take(HRESULT state, int /*percent*/, void* data)
    {
        auto* told = static_cast<Told*>(data);
        if (told->cancelled)
            told->cancelled->Cancel();
        told->state = state;
    }
};

/// What FFmpeg's own filter measures of a file: LUFS and dBTP.
struct Measured
{
    double integrated = -1000;
    double truePeak = -1000;
};
Measured MeasureFile(const QString& path)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("ffmpeg", {"-hide_banner", "-nostats", "-nostdin", "-i", path, "-af",
                             "ebur128=peak=true", "-f", "null", "-"});
    process.closeWriteChannel();
    if (!process.waitForFinished(60000))
        return {};
    const QString text = QString::fromUtf8(process.readAll());
    const auto last = [&text](const char* pattern) {
        auto matches = QRegularExpression(pattern).globalMatch(text);
        double number = -1000;
        while (matches.hasNext())
            number = matches.next().captured(1).toDouble();
        return number;
    };
    return {last("I:\\s+(-?[0-9.]+) LUFS"), last("Peak:\\s+(-?[0-9.]+) dBFS")};
}

double Furthest(const Stereo& a, const Stereo& b)
{
    double most = a[0].size() == b[0].size() ? 0 : 1000;
    for (size_t i = 0; i < std::min(a[0].size(), b[0].size()); ++i)
        most = std::max(most, std::abs(a[0][i] - b[0][i]));
    return most;
}

} // namespace

class tst_EngineLoudness : public QObject, private EngineFixture
{
    Q_OBJECT

    /// An effect of sound that \a clip carries.
    static Node Carried(const Node& clip, const wchar_t* name)
    {
        Node effect;
        Nodes()->CreateAudioFilter(name, effect.put());
        Facet<INLEEffects>(clip)->AddEffect(effect.get(), -1);
        return effect;
    }
    static NLELoudnessRecord ResultOf(const Node& effect)
    {
        NLELoudnessRecord record = {};
        effect.query<INLELoudness>()->GetResult(&record);
        return record;
    }
    Node Tone(const char* name, double level) const
    {
        TestClip made;
        made.codec.clear();
        made.audioCodec = "pcm_s16le";
        made.toneHz = 1000;
        made.toneLevel = level;
        made.toneStart = 1;
        made.frames = 75;
        return MakeTestClip(Path(name), made).isEmpty() ? Media(Path(name)) : Node();
    }
    /// From frame 0 on, read without a jump.
    Stereo Through(const Node& node, int frame) const
    {
        constexpr int samples = kSampleRate / 25;
        const auto sound = provider->CreateAudioFrame(samples);
        const auto extractor = provider->CreateFrameExtractor();
        float* data = nullptr;
        Stereo result;
        extractor->Open(node.get(), NLEOpen_Render);
        for (int i = 0; i <= frame; ++i)
            extractor->ExtractAudio(i, sound.get());
        sound->GetData(&data);
        for (int i = 0; i < samples; ++i) {
            result[0].push_back(data[size_t(i) * 2]);
            result[1].push_back(data[size_t(i) * 2 + 1]);
        }
        return result;
    }

private slots:
    void normalised_data()
    {
        QTest::addColumn<double>("level");
        QTest::addColumn<double>("target");
        QTest::addColumn<double>("ceiling");
        QTest::addColumn<double>("wanted");
        QTest::newRow("a loud tone becomes softer") << 0.5 << -23.0 << -1.0 << -23.0;
        QTest::newRow("a soft tone becomes louder") << 0.02 << -16.0 << -1.0 << -16.0;
        // A sine of two channels has its peak's level.
        QTest::newRow("no peak goes over the ceiling") << 0.1 << -5.0 << -12.0 << -12.0;
    }
    /// The silence before the tone does not count, by the gates of the recommendation.
    void normalised()
    {
        QFETCH(double, level);
        QFETCH(double, target);
        QFETCH(double, ceiling);
        QFETCH(double, wanted);
        const Node clip = Tone("tone.wav", level);
        QVERIFY(clip);
        const Node project = ProjectWith(clip);
        const double plain = Loudness(Sound(project, 40)[0]);
        const Node effect = Carried(clip, L"loudness");
        const auto parameters = effect.query<INLEParameters>();
        const auto meter = effect.query<INLELoudness>();
        QCOMPARE(parameters->SetNumber(L"target", target), S_OK);
        QCOMPARE(parameters->SetNumber(L"ceiling", ceiling), S_OK);
        QVERIFY(std::abs(Loudness(Sound(project, 40)[0]) - plain) < 1e-6);
        Told told;
        QCOMPARE(meter->Measure(Told::Take, &told), S_OK);
        QTRY_COMPARE_WITH_TIMEOUT(HRESULT(told.state), S_OK, 60000);
        QCOMPARE(meter->Apply(), S_OK);
        QCOMPARE(meter->Apply(), S_FALSE);
        const Measured source = MeasureFile(Path("tone.wav"));
        const NLELoudnessRecord result = ResultOf(effect);
        QVERIFY2(std::abs(result.integrated - source.integrated) < 0.2,
                 qPrintable(QString("%1 %2").arg(result.integrated).arg(source.integrated)));
        QVERIFY2(std::abs(result.truePeak - source.truePeak) < 0.2,
                 qPrintable(QString("%1 %2").arg(result.truePeak).arg(source.truePeak)));
        QVERIFY(Furthest(Sound(project, 40), Through(project, 40)) == 0);

        Node copy;
        QCOMPARE(project->Clone(true, copy.put()), S_OK);
        QVERIFY(Save(project, Path("loud.mlt")));
        for (const Node& node : {copy, Load(Path("loud.mlt"))})
            QVERIFY(Furthest(Sound(project, 40), Sound(node, 40)) < 1e-5);
        const auto encoder = provider->CreateMediaEncoder();
        const NLEEncodeSettings settings = {};
        const std::wstring path = Path("out.wav").toStdWString();
        QCOMPARE(encoder->Open(project.get(), path.c_str(), &settings), S_OK);
        QCOMPARE(encoder->Encode(nullptr, nullptr), S_OK);
        const Measured written = MeasureFile(Path("out.wav"));
        QVERIFY2(std::abs(written.integrated - wanted) < 0.5,
                 qPrintable(QString::number(written.integrated)));
        QVERIFY(written.truePeak < ceiling + 0.2);
    }

    void onlyWhatItMeasuresAndWhenItCan()
    {
        const Node clip = Tone("tone.wav", 0.5);
        Node loose;
        QCOMPARE(Nodes()->CreateAudioFilter(L"loudness", loose.put()), S_OK);
        QCOMPARE(loose.query<INLELoudness>()->Measure(nullptr, nullptr), E_FAIL);
        QCOMPARE(loose.query<INLELoudness>()->Cancel(), S_FALSE);
        QVERIFY(!Carried(clip, L"limiter").query<INLELoudness>());
        // What comes after it, and the clip's gain, change nothing.
        const Node effect = Carried(clip, L"loudness");
        QVERIFY(Carried(clip, L"high-pass"));
        NLELoudnessRecord record;
        QCOMPARE(effect.query<INLELoudness>()->GetResult(&record), S_FALSE);
        Told told;
        QCOMPARE(effect.query<INLELoudness>()->Measure(Told::Take, &told), S_OK);
        QTRY_COMPARE_WITH_TIMEOUT(HRESULT(told.state), S_OK, 60000);
        QCOMPARE(effect.query<INLELoudness>()->Apply(), S_OK);
        QVERIFY(std::abs(ResultOf(effect).integrated - MeasureFile(Path("tone.wav")).integrated) <
                0.2);
    }

    void cancelled()
    {
        const Node clip = Tone("tone.wav", 0.5);
        const Node effect = Carried(clip, L"loudness");
        const auto meter = effect.query<INLELoudness>();
        Told told;
        told.cancelled = meter.get();
        QCOMPARE(meter->Measure(Told::Take, &told), S_OK);
        QTRY_COMPARE_WITH_TIMEOUT(HRESULT(told.state), E_ABORT, 60000);
        QCOMPARE(meter->Apply(), S_FALSE);
    }

    void keyFrames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("parameter");
        QTest::addColumn<double>("first");
        QTest::addColumn<double>("last");
        QTest::addColumn<double>("gainAtFirst");
        QTest::addColumn<double>("gainAtLast");
        QTest::newRow("a high pass that rises") << "high-pass"
                                                << "frequency" << 20.0 << 10000.0 << 1.0 << 0.01;
        QTest::newRow("a limiter that closes") << "limiter"
                                               << "limit" << 0.0 << -24.0 << 1.0 << 0.126;
    }
    /// The tone of 1 kHz from one end of the clip to the other.
    void keyFrames()
    {
        QFETCH(QString, name);
        QFETCH(QString, parameter);
        QFETCH(double, first);
        QFETCH(double, last);
        QFETCH(double, gainAtFirst);
        QFETCH(double, gainAtLast);
        const Node clip = Tone("tone.wav", 0.5);
        const Node project = ProjectWith(clip);
        const Node effect = Carried(clip, name.toStdWString().c_str());
        const auto parameters = effect.query<INLEParameters>();
        for (const auto& [time, value] : {std::pair(0.5, first), std::pair(0.9, last)}) {
            const NLEParameterKeyFrame key = {time, value, NLEInterpolation_Linear, 0};
            QCOMPARE(parameters->PutKeyFrame(parameter.toStdWString().c_str(), &key, nullptr),
                     S_OK);
        }
        Node copy;
        QCOMPARE(project->Clone(true, copy.put()), S_OK);
        QVERIFY(Save(project, Path("keys.otio")));
        double before = gainAtFirst;
        for (const int frame : {34, 45, 55, 60, 72}) {
            const Stereo sound = Sound(project, frame);
            const double gain = Loudness(sound[0]) / kToneLoudness;
            QVERIFY2(gain <= before + 0.01, qPrintable(QString::number(gain)));
            before = gain;
            if (frame == 34)
                QVERIFY2(std::abs(gain - gainAtFirst) < 0.02, qPrintable(QString::number(gain)));
            QVERIFY(Furthest(sound, Through(project, frame)) < 1e-4);
            QVERIFY(Furthest(sound, Sound(copy, frame)) == 0);
            QVERIFY(Furthest(sound, Sound(Load(Path("keys.otio")), frame)) < 1e-6);
        }
        QVERIFY2(std::abs(before - gainAtLast) < 0.01, qPrintable(QString::number(before)));
    }
};

QTEST_MAIN(tst_EngineLoudness)
#include "tst_engine_loudness.moc"
