// SPDX-License-Identifier: LGPL-2.1-or-later
// What settings of clips and mixers do to the samples of the open engine.
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLEMixerSetting.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

#include <complex>
#include <functional>

using Change = std::function<void(INLEAudioStreamProcess&)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(tagMixerParam)

namespace {

constexpr int kRate = EngineFixture::kSampleRate;
constexpr double kTone = 440;
/// Levels in dB: half of one, and less than can be heard.
const double kHalf = 20 * std::log10(0.5);
constexpr double kSilence = -100;
/// Of the clip that is faded, in frames.
constexpr int kFadedFrames = 50;
constexpr int kFadeIn = 10;
constexpr int kFadeOut = 20;

double Decibels(double value, double reference)
{
    return 20 * std::log10(std::max(value, 1e-9) / reference);
}

/// Strength of one frequency in a sound, by correlation: the peak of a sine of that frequency.
double Strength(const std::vector<double>& samples, double frequency)
{
    std::complex<double> sum;
    for (size_t i = 0; i < samples.size(); ++i)
        sum += samples[i] * std::polar(1.0, -2 * M_PI * frequency * double(i) / kRate);
    return 2 * std::abs(sum) / double(samples.size());
}

} // namespace

class tst_EngineSound : public QObject, private EngineFixture
{
    Q_OBJECT

    Node Media() const { return EngineFixture::Media(m_media); }
    double GainAt(const Node& node, int frame) const
    {
        return Loudness(Sound(node, frame)[0]) / kToneLoudness;
    }

    QString m_media = Path("clip.mkv");

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 100;
        clip.audioCodec = "pcm_s16le";
        clip.toneHz = kTone;
        QCOMPARE(MakeTestClip(m_media, clip), QString());
    }

    void soundLevels_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("right");
        const auto row = [](const char* name, double left, double right, const Change& change) {
            QTest::newRow(name) << change << left << right;
        };
        row("untouched", 0, 0, [](auto&) {});
        row("half volume", kHalf, kHalf, [](auto& a) { a.SetVolume(0.5); });
        row("double volume", -kHalf, -kHalf, [](auto& a) { a.SetVolume(2); });
        row("muted", kSilence, kSilence, [](auto& a) { a.SetMute(true); });
        row("half to the left", 0, kHalf, [](auto& a) { a.SetBalance(-0.5); });
        row("all to the right", kSilence, 0, [](auto& a) { a.SetBalance(1); });
        row("mono of equal channels", 0, 0, [](auto& a) { a.SetMixToMonoEnable(true); });
        row("volume switched off", 0, 0, [](auto& a) {
            a.SetVolume(0.1);
            a.SetVolumeEnable(false);
        });
    }

    void soundLevels()
    {
        QFETCH(Change, change);
        QFETCH(double, left);
        QFETCH(double, right);
        const Node clip = Media();
        change(*Facet<INLEAudioStreamProcess>(clip));
        const Stereo sound = Sound(ProjectWith(clip), 10, kRate / 5);
        const auto level = [](const std::vector<double>& channel) {
            return std::max(kSilence, Decibels(Loudness(channel), kToneLoudness));
        };
        QCOMPARE(Deviation(level(sound[0]), left, 0.5), QString());
        QCOMPARE(Deviation(level(sound[1]), right, 0.5), QString());
    }

    void fades_data()
    {
        QTest::addColumn<int>("frame");
        QTest::addColumn<double>("gain");
        // A frame at a time; a linear fade has its middle value in the frame's middle.
        for (const int frame : {0, 2, 9})
            QTest::addRow("fading in, frame %d", frame) << frame << (frame + 0.5) / kFadeIn;
        QTest::newRow("between the fades") << 20 << 1.0;
        for (const int left : {19, 10, 1})
            QTest::addRow("fading out, %d frames left", left)
                << kFadedFrames - left << (left - 0.5) / kFadeOut;
    }

    void fades()
    {
        QFETCH(int, frame);
        QFETCH(double, gain);
        const Node clip = Trimmed(Media(), 20, 20 + kFadedFrames - 1);
        const int position = 5;
        const Node project = ProjectWith(clip, position);
        const auto audio = Facet<INLEAudioStreamProcess>(clip);
        audio->SetFadeInRange(kFadeIn);
        audio->SetFadeOutRange(kFadeOut);
        audio->SetFadeInEnable(true);
        audio->SetFadeOutEnable(true);
        QCOMPARE(Deviation(GainAt(project, position + frame), gain, 0.03), QString());
    }

    void volumeCurve()
    {
        const Node clip = Media();
        NLEComPtr<INLEKeyFrameParam> curve;
        Facet<INLEAudioStreamProcess>(clip)->GetVolumeKeyFrameParam(curve.put());
        curve->SetPoint(2, 0); // in seconds
        curve->SetPoint(1, 1);
        int count = 0;
        curve->GetCount(&count);
        QCOMPARE(count, 2);
        const Node project = ProjectWith(clip);
        QCOMPARE(Deviation(GainAt(project, 10), 1, 0.03), QString());
        QCOMPARE(Deviation(GainAt(project, 37), 0.5, 0.03), QString());
        QCOMPARE(Deviation(GainAt(project, 60), 0, 0.001), QString());
    }

    void monoIsTheMean()
    {
        const QString left = Path("left.wav");
        QCOMPARE(
            RunFfmpeg({"-f", "lavfi", "-i", "sine=duration=1", "-af", "pan=stereo|c0=c0", left}),
            QString());
        const Node clip = EngineFixture::Media(left);
        const double before = Loudness(Sound(clip, 5)[0]);
        Facet<INLEAudioStreamProcess>(clip)->SetMixToMonoEnable(true);
        const Stereo after = Sound(clip, 5);
        QVERIFY(before > 0.01);
        QCOMPARE(Deviation(Decibels(Loudness(after[0]), before), kHalf, 0.1), QString());
        QCOMPARE(after[0], after[1]);
    }

    void effectsContinue_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<bool>("isProject");
        QTest::newRow("a clip") << 25 << false;
        // With effects of its own, which want larger blocks.
        QTest::newRow("a project of short frames") << 60 << true;
    }

    void effectsContinue()
    {
        QFETCH(int, rate);
        QFETCH(bool, isProject);
        const Node clip = Media();
        Facet<INLEAudioStreamProcess>(clip)->SetPitch(isProject ? 5 : -5);
        Node node = clip;
        if (isProject) {
            node = ProjectWith(clip);
            QCOMPARE(node->SetRenderFrameRate({rate, 1}), S_OK);
            Facet<INLEAudioStreamProcess>(node)->SetPitch(-5);
        }
        const auto extractor = provider->CreateFrameExtractor();
        const auto sound = provider->CreateAudioFrame(kRate / rate);
        float* data = nullptr;
        sound->GetData(&data);
        QCOMPARE(extractor->Open(node.get(), NLEOpen_Render), S_OK);
        std::vector<double> pieces;
        for (int frame = 30; frame < 36; ++frame) {
            QCOMPARE(extractor->ExtractAudio(frame, sound.get()), S_OK);
            for (int i = 0; i < kRate / rate; ++i)
                pieces.push_back(data[size_t(i) * 2]);
        }
        QCOMPARE(pieces, Sound(node, 30, int(pieces.size()))[0]);
    }

    void effectsAreSilentBeforeTheMaterial()
    {
        const Node early = Trimmed(Media(), -50, 49);
        Facet<INLEAudioStreamProcess>(early)->SetPitch(5);
        QCOMPARE(GainAt(ProjectWith(early), 0), 0.0);
    }

    void doubleSpeedIsAnOctaveHigher()
    {
        const Node clip = Trimmed(Media(), 20, 59);
        const Node project = ProjectWith(clip, 10);
        BagOf(clip)->SetRational(NLEKey::Speed::kScale, {2, 1});
        BagOf(clip)->SetInt(NLEKey::Speed::kEnabled, 1);
        QVERIFY(Strength(Sound(project, 12, kRate / 5)[0], 2 * kTone) > 0.45);
    }

    void frozenClipIsSilent()
    {
        const Node clip = Trimmed(Media(), 20, 59);
        const Node project = ProjectWith(clip, 10);
        BagOf(clip)->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1);
        QCOMPARE(GainAt(project, 20), 0.0);
    }

    void pitch()
    {
        const Node clip = Media();
        QCOMPARE(Facet<INLEAudioStreamProcess>(clip)->SetPitch(12), S_OK); // an octave
        const std::vector<double> sound = Sound(ProjectWith(clip), 25, kRate)[0];
        double best = 0;
        double frequency = 0;
        for (double f = 400; f < 1000; f += 1) {
            const double strength = Strength(sound, f);
            if (strength > best) {
                best = strength;
                frequency = f;
            }
        }
        QCOMPARE(Deviation(frequency, 2 * kTone, 0.01 * 2 * kTone), QString());
        QCOMPARE(Deviation(Decibels(Loudness(sound), kToneLoudness), 0, 1), QString());
    }

    void equalizer_data()
    {
        QTest::addColumn<bool>("isOn");
        QTest::addColumn<int>("band");
        QTest::addColumn<double>("change"); // in dB
        QTest::addColumn<double>("tolerance");
        QTest::newRow("switched off") << false << 4 << 0.0 << 0.0;
        QTest::newRow("the tone's band, 500 Hz") << true << 4 << -12.0 << 0.5;
        QTest::newRow("a band far away, 16 kHz") << true << 9 << 0.0 << 0.5;
    }

    void equalizer()
    {
        QFETCH(bool, isOn);
        QFETCH(int, band);
        QFETCH(double, change);
        QFETCH(double, tolerance);
        const QString path = Path("band.wav");
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", "sine=frequency=500:duration=2", path}),
                 QString());
        const Node clip = EngineFixture::Media(path);
        const double before = Loudness(Sound(clip, 25, kRate / 5)[0]);
        double gains[10] = {};
        gains[band] = -12;
        const auto audio = Facet<INLEAudioStreamProcess>(clip);
        QCOMPARE(audio->SetEqualizerParam(gains), S_OK);
        audio->SetEqualizerEnable(isOn);
        const double after = Loudness(Sound(clip, 25, kRate / 5)[0]);
        QCOMPARE(Deviation(Decibels(after, before), change, tolerance), QString());
    }

    void denoise()
    {
        const QString noisy = Path("noise.wav");
        const QString sine = "sine=frequency=440:duration=4,volume=4[a]";
        const QString noise = "anoisesrc=amplitude=0.02:duration=4:seed=7[b]";
        const QString mix = sine + ";" + noise + ";[a][b]amix=normalize=0";
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", mix, noisy}), QString());
        const Node clip = EngineFixture::Media(noisy);
        const Node project = ProjectWith(clip);
        const auto noiseOf = [](const std::vector<double>& sound) {
            const double tone = Strength(sound, kTone) / std::sqrt(2.0);
            return std::sqrt(std::max(0.0, std::pow(Loudness(sound), 2) - tone * tone));
        };
        const std::vector<double> before = Sound(project, 50, kRate)[0];
        const auto audio = Facet<INLEAudioStreamProcess>(clip);
        audio->SetDenoiseLevel(30);
        audio->SetDenoiseEnable(true);
        const std::vector<double> after = Sound(project, 50, kRate)[0];
        QVERIFY2(noiseOf(after) < noiseOf(before) / 2,
                 qPrintable(QString("%1 of %2").arg(noiseOf(after)).arg(noiseOf(before))));
        QCOMPARE(Deviation(Decibels(Strength(after, kTone), Strength(before, kTone)), 0, 0.5),
                 QString());
    }

    void mixerStripIsNeutralAtFirst()
    {
        tagMixerParam strip = {};
        QCOMPARE(Facet<INLEMixerSetting>(ProjectWith(Media(), 0, 1))->GetParam(1, &strip), S_OK);
        QCOMPARE(strip.volume, 1.0);
        QCOMPARE(strip.balance, 0.0);
        QCOMPARE(strip.mute, 0);
        QCOMPARE(strip.solo, 0);
    }

    void mixer_data()
    {
        QTest::addColumn<tagMixerParam>("strip");
        QTest::addColumn<double>("gain"); // of two tracks with the same tone
        QTest::newRow("a neutral strip") << tagMixerParam{1, 0, 0, 0} << 2.0;
        QTest::newRow("half the volume") << tagMixerParam{0.5, 0, 0, 0} << 1.5;
        QTest::newRow("solo at half the volume") << tagMixerParam{0.5, 0, 0, 1} << 0.5;
        QTest::newRow("solo and muted") << tagMixerParam{0.5, 0, 1, 1} << 0.0;
    }

    void mixer()
    {
        QFETCH(tagMixerParam, strip);
        QFETCH(double, gain);
        const Node project = ProjectWith(Media(), 0, 1);
        Add(project, Media(), 0, 2);
        QCOMPARE(Facet<INLEMixerSetting>(project)->SetParam(1, &strip), S_OK);
        QCOMPARE(Deviation(GainAt(project, 10), gain, gain == 0 ? 0.001 : 0.05), QString());
    }

    void refusals()
    {
        const Node clip = Media();
        const auto audio = Facet<INLEAudioStreamProcess>(clip);
        NLEComPtr<INLEKeyFrameParam> curve;
        audio->GetVolumeKeyFrameParam(curve.put());
        QVERIFY(FAILED(curve->SetPoint(qQNaN(), 1)));
        QCOMPARE(audio->SetVolume(qQNaN()), E_INVALIDARG);
        QCOMPARE(audio->SetVolume(-1), E_INVALIDARG);
        QCOMPARE(audio->SetFadeInRange(-1), E_INVALIDARG);
        const tagMixerParam bad = {qQNaN(), 0, 0, 0};
        QCOMPARE(Facet<INLEMixerSetting>(clip)->SetParam(0, &bad), E_INVALIDARG);
    }
};

QTEST_MAIN(tst_EngineSound)
#include "tst_engine_sound.moc"
