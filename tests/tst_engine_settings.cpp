// SPDX-License-Identifier: LGPL-2.1-or-later
// What settings, key frames and other media of clips do to pixels and samples of the open engine.
#include "CommonLib/CommonLib.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLEMixerSetting.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

#include <QThread>

#include <atomic>
#include <complex>
#include <functional>
#include <map>
#include <random>

using Rule = std::function<double(double below, double above)>;
using Change = std::function<void(INLEAudioStreamProcess&)>;
using Setting = VideoKeyFrameSetting;
using Param = VideoKeyFrameParam;
using Params = QList<Param>;
namespace Key = NLEKey::Context;
Q_DECLARE_METATYPE(Rule)
Q_DECLARE_METATYPE(Change)

namespace {

constexpr int kRate = EngineFixture::kSampleRate;
constexpr double kTone = 440;
/// Loudness of a full-scale sine of the test tone's level, 0.5.
const double kToneLoudness = 0.5 / std::sqrt(2.0);

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

template <typename Facility>
NLEComPtr<Facility> Facet(const Node& node)
{
    NLEComPtr<Facility> facility;
    node->GetInterface(Facility::Iid, facility.putVoid(), 0, 0);
    return facility;
}

/// The context of a project.
struct Context : NLETimelineContextPropertyService
{
    explicit Context(const Node& project) { m_basin = project.query<INLEBasin>(); }
};

/// Where \a frame is not black around and red within \a shown; empty when it is so.
QString Misplaced(const QImage& frame, const QRect& shown, int red = 255)
{
    for (int y = 0; y < 180; ++y) {
        for (int x = 0; x < 320; ++x) {
            // To within one pixel: the edge itself may be either.
            const bool inside = !shown.isEmpty() && shown.adjusted(1, 1, -1, -1).contains(x, y);
            const bool outside = shown.isEmpty() || !shown.adjusted(-1, -1, 1, 1).contains(x, y);
            const QColor pixel = frame.pixelColor(x, y);
            if ((inside && qAbs(pixel.red() - red) > 1) || (outside && pixel != Qt::black))
                return QString("%1 at %2, %3").arg(pixel.name()).arg(x).arg(y);
        }
    }
    return {};
}

} // namespace

class tst_EngineSettings : public QObject, private EngineFixture
{
    Q_OBJECT

    Node Media() const { return EngineFixture::Media(m_media); }
    double GainAt(const Node& node, int frame) const
    {
        return Loudness(Sound(node, frame)[0]) / kToneLoudness;
    }
    Node ProjectWith(const Node& clip, int position = 0, int level = 0) const
    {
        Node project = Project();
        Add(project, clip, position, level);
        return project;
    }

    QString m_media = Path("clip.mkv");
    QString m_proxy = Path("proxy.mp4");

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 100;
        clip.audioCodec = "pcm_s16le";
        clip.toneHz = kTone;
        QCOMPARE(MakeTestClip(m_media, clip), QString());
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", "color=c=red:size=160x90:rate=25", "-frames:v",
                            "100", "-pix_fmt", "yuv420p", m_proxy}),
                 QString());
        QVERIFY(provider->CreateNLEProperties());
    }

    void transformFillsExactly_data()
    {
        QTest::addColumn<QPointF>("center");
        QTest::addColumn<QSizeF>("scale");
        QTest::addColumn<double>("rotation");
        QTest::addColumn<QRect>("shown");
        const auto row = [](const char* name, QPointF center, QSizeF scale, double turn,
                            QRect shown) {
            QTest::newRow(name) << center << scale << turn << shown;
        };
        row("top left quarter", {0.25, 0.25}, {0.5, 0.5}, 0, {0, 0, 160, 90});
        row("bottom right quarter", {0.75, 0.75}, {0.5, 0.5}, 0, {160, 90, 160, 90});
        row("moved half out", {0, 0.5}, {1, 1}, 0, {0, 0, 160, 180});
        row("a quarter turn", {0.5, 0.5}, {0.5, 0.5}, 90, {115, 10, 90, 160});
        row("mirrored covers the same", {0.5, 0.5}, {-1, 1}, 0, {0, 0, 320, 180});
        row("no width, nothing", {0.5, 0.5}, {0, 1}, 0, {});
    }

    void transformFillsExactly()
    {
        QFETCH(QPointF, center);
        QFETCH(QSizeF, scale);
        QFETCH(double, rotation);
        QFETCH(QRect, shown);
        const Node clip = Colour(Qt::red);
        const Node project = ProjectWith(clip);
        const auto transform = clip.query<INLETransform>();
        const NLEPointF place = {center.x(), center.y()};
        const NLESizeF size = {scale.width(), scale.height()};
        QCOMPARE(transform->SetCenter(&place), S_OK);
        QCOMPARE(transform->SetScale(&size), S_OK);
        QCOMPARE(transform->SetRotation(rotation), S_OK);
        QCOMPARE(Misplaced(Frame(project, 0), shown), QString());
        transform->SetEnable(false);
        QCOMPARE(Frame(project, 0).pixelColor(160, 90), QColor(Qt::red));
    }

    void blendModes_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("alpha");
        QTest::addColumn<Rule>("rule");
        const auto row = [](const char* name, int mode, Rule rule) {
            QTest::addRow("%s", name) << mode << 255 << rule;
            QTest::addRow("%s, half", name) << mode << 128 << rule;
        };
        row("normal", 0, [](double, double a) { return a; });
        row("multiply", 1, [](double b, double a) { return a * b; });
        row("screen", 2, [](double b, double a) { return a + b - a * b; });
        row("overlay", 3,
            [](double b, double a) { return b <= 0.5 ? 2 * a * b : 1 - 2 * (1 - a) * (1 - b); });
        row("darken", 4, [](double b, double a) { return std::min(a, b); });
        row("lighten", 5, [](double b, double a) { return std::max(a, b); });
        row("add", 6, [](double b, double a) { return std::min(1.0, a + b); });
        row("difference", 7, [](double b, double a) { return std::abs(a - b); });
    }

    void blendModes()
    {
        QFETCH(int, mode);
        QFETCH(int, alpha);
        QFETCH(Rule, rule);
        const QColor below(200, 90, 30);
        const QColor above(60, 160, 250);
        const Node project = ProjectWith(Colour(below));
        const Node clip = Colour(above);
        Add(project, clip, 0, 1);
        const auto blend = Facet<INLEBlendSetting>(clip);
        QCOMPARE(blend->SetMode(mode), S_OK);
        QCOMPARE(blend->SetAlpha(alpha), S_OK);
        const QColor shown = Frame(project, 0).pixelColor(100, 100);
        const auto expect = [&](int b, int a) {
            const double mixed = rule(b / 255.0, a / 255.0);
            const double value = b / 255.0 + (mixed - b / 255.0) * alpha / 255.0;
            return int(std::lround(value * 255));
        };
        QVERIFY(std::abs(shown.red() - expect(below.red(), above.red())) <= 2);
        QVERIFY(std::abs(shown.green() - expect(below.green(), above.green())) <= 2);
        QVERIFY(std::abs(shown.blue() - expect(below.blue(), above.blue())) <= 2);
        blend->SetEnable(false);
        QCOMPARE(Frame(project, 0).pixelColor(100, 100), above);
    }

    void speedAndFreeze()
    {
        const Node clip = Trimmed(Media(), 20, 59);
        const Node project = ProjectWith(clip, 10);
        const auto bag = BagOf(clip);
        bag->SetRational(NLEKey::Speed::kScale, {200000000, 100000000});
        QCOMPARE(ReadFrameNumber(Frame(project, 15)), 25);
        bag->SetInt(NLEKey::Speed::kEnabled, 1);
        QCOMPARE(RangeOf(clip).in, 10);
        QCOMPARE(RangeOf(clip).out, 29);
        QCOMPARE(ReadFrameNumber(Frame(project, 10)), 20);
        QCOMPARE(ReadFrameNumber(Frame(project, 15)), 30);
        QVERIFY(Frame(project, 30).isNull());
        QCOMPARE(TotalOf(clip).out, 49);
        // Twice as fast is an octave higher.
        QVERIFY(Strength(Sound(project, 12, kRate / 5)[0], 2 * kTone) > 0.45);
        bag->SetInt(NLEKey::Speed::kEnabled, 0);
        QCOMPARE(RangeOf(clip).in, 20);
        QCOMPARE(RangeOf(clip).out, 59);

        const Node untrimmed = Media();
        BagOf(untrimmed)->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1);
        QCOMPARE(RangeOf(untrimmed).out, 99);

        bag->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1);
        QCOMPARE(ReadFrameNumber(Frame(project, 40)), 20);
        QCOMPARE(Loudness(Sound(project, 20)[0]), 0.0);
        bag->SetInt(NLEKey::Freeze::kFreeze_Frame, 33);
        QCOMPARE(ReadFrameNumber(Frame(project, 11)), 33);
        Trimmed(clip, 20, 519);
        QCOMPARE(ReadFrameNumber(Frame(project, 509)), 33);
    }

    void proxyIsShown()
    {
        const Node clip = Media();
        const Node project = ProjectWith(clip);
        const auto video = Facet<INLEVideoStreamProcess>(clip);
        QVERIFY(FAILED(video->SetProxyFile(L"/none.mp4")));
        QCOMPARE(video->SetProxyFile(m_proxy.toStdWString().c_str()), S_OK);
        QCOMPARE(ReadFrameNumber(Frame(project, 5)), 5);
        video->SetProxyEnabled(true);
        const QColor shown = Frame(project, 5).pixelColor(160, 90);
        QVERIFY(shown.red() > 240 && shown.green() < 10);
        video->SetProxyFile(L"");
        QCOMPARE(ReadFrameNumber(Frame(project, 5)), 5);
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
        row("half volume", -6.02, -6.02, [](auto& a) { a.SetVolume(0.5); });
        row("double volume", 6.02, 6.02, [](auto& a) { a.SetVolume(2); });
        row("muted", -150, -150, [](auto& a) { a.SetMute(true); });
        row("half to the left", 0, -6.02, [](auto& a) { a.SetBalance(-0.5); });
        row("all to the right", -150, 0, [](auto& a) { a.SetBalance(1); });
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
        const auto matches = [](double found, double wanted) {
            return wanted < -100 ? found < -100 : std::abs(found - wanted) < 0.5;
        };
        const double foundLeft = Decibels(Loudness(sound[0]), kToneLoudness);
        const double foundRight = Decibels(Loudness(sound[1]), kToneLoudness);
        QVERIFY2(matches(foundLeft, left) && matches(foundRight, right),
                 qPrintable(QString("%1 dB, %2 dB").arg(foundLeft).arg(foundRight)));
    }

    void fades()
    {
        const Node clip = Trimmed(Media(), 20, 69);
        const Node project = ProjectWith(clip, 5);
        const auto audio = Facet<INLEAudioStreamProcess>(clip);
        audio->SetFadeInRange(10);
        audio->SetFadeOutRange(20);
        audio->SetFadeInEnable(true);
        audio->SetFadeOutEnable(true);
        // A frame at a time; a linear fade has its middle value in the frame's middle.
        const auto gainAt = [&](int frame) { return GainAt(project, frame); };
        for (int frame : {5, 7, 14})
            QVERIFY(std::abs(gainAt(frame) - (frame - 5 + 0.5) / 10) < 0.03);
        QVERIFY(std::abs(gainAt(25) - 1) < 0.03);
        for (int frame : {36, 45, 54})
            QVERIFY(std::abs(gainAt(frame) - (55 - frame - 0.5) / 20) < 0.03);
    }

    void volumeCurve()
    {
        const Node clip = Media();
        NLEComPtr<INLEKeyFrameParam> curve;
        Facet<INLEAudioStreamProcess>(clip)->GetVolumeKeyFrameParam(curve.put());
        curve->SetPoint(2, 0);
        curve->SetPoint(1, 1);
        QVERIFY(FAILED(curve->SetPoint(qQNaN(), 1)));
        int count = 0;
        curve->GetCount(&count);
        QCOMPARE(count, 2);
        const Node project = ProjectWith(clip);
        QVERIFY(std::abs(GainAt(project, 10) - 1) < 0.03);
        QVERIFY(std::abs(GainAt(project, 37) - 0.5) < 0.03);
        QVERIFY(GainAt(project, 60) < 0.001);
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
        QVERIFY(std::abs(Decibels(Loudness(after[0]), before) + 6.02) < 0.1);
        QCOMPARE(after[0], after[1]);
    }

    void effectsContinue()
    {
        const Node clip = Media();
        Facet<INLEAudioStreamProcess>(clip)->SetPitch(5);
        const Node project = ProjectWith(clip); // has effects of its own, which want larger blocks
        QCOMPARE(project->SetRenderFrameRate({60, 1}), S_OK);
        for (const auto& [node, rate] : {std::pair(Media(), 25), {project, 60}}) {
            Facet<INLEAudioStreamProcess>(node)->SetPitch(-5);
            const auto extractor = provider->CreateFrameExtractor();
            const auto sound = provider->CreateAudioFrame(kRate / rate);
            float* data = nullptr;
            sound->GetData(&data);
            QCOMPARE(extractor->Open(node.get(), 1), S_OK);
            std::vector<double> pieces;
            for (int frame = 30; frame < 36; ++frame) {
                QCOMPARE(extractor->ExtractAudio(frame, sound.get()), S_OK);
                for (int i = 0; i < kRate / rate; ++i)
                    pieces.push_back(data[size_t(i) * 2]);
            }
            QCOMPARE(pieces, Sound(node, 30, int(pieces.size()))[0]);
        }
        // It is silent before the material begins.
        const Node early = Trimmed(Media(), -50, 49);
        Facet<INLEAudioStreamProcess>(early)->SetPitch(5);
        QCOMPARE(GainAt(ProjectWith(early), 0), 0.0);
    }

    void pitch()
    {
        const Node clip = Media();
        const Node project = ProjectWith(clip);
        const auto audio = Facet<INLEAudioStreamProcess>(clip);
        QCOMPARE(audio->SetPitch(12), S_OK);
        const std::vector<double> sound = Sound(project, 25, kRate)[0];
        double best = 0;
        double frequency = 0;
        for (double f = 400; f < 1000; f += 1) {
            const double strength = Strength(sound, f);
            if (strength > best) {
                best = strength;
                frequency = f;
            }
        }
        QVERIFY2(std::abs(frequency - 2 * kTone) < 0.01 * 2 * kTone,
                 qPrintable(QString::number(frequency)));
        QVERIFY(std::abs(Decibels(Loudness(sound), kToneLoudness)) < 1);
    }

    void equalizer()
    {
        const QString path = Path("band.wav");
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", "sine=frequency=500:duration=2", path}),
                 QString());
        const Node clip = EngineFixture::Media(path);
        const auto audio = Facet<INLEAudioStreamProcess>(clip);
        const auto loudness = [&] { return Loudness(Sound(clip, 25, kRate / 5)[0]); };
        const double before = loudness();
        double gains[10] = {0, 0, 0, 0, -12, 0, 0, 0, 0, 0};
        QCOMPARE(audio->SetEqualizerParam(gains), S_OK);
        QCOMPARE(loudness(), before);
        audio->SetEqualizerEnable(true);
        QVERIFY(std::abs(Decibels(loudness(), before) + 12) < 0.5);
        // 16 kHz: the tone is far away.
        std::swap(gains[4], gains[9]);
        audio->SetEqualizerParam(gains);
        QVERIFY(std::abs(Decibels(loudness(), before)) < 0.5);
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
        QVERIFY(std::abs(Decibels(Strength(after, kTone), Strength(before, kTone))) < 0.5);
    }

    void mixer()
    {
        const Node project = ProjectWith(Media(), 0, 1);
        Add(project, Media(), 0, 2);
        const auto mixer = Facet<INLEMixerSetting>(project);
        tagMixerParam strip = {};
        QCOMPARE(mixer->GetParam(1, &strip), S_OK);
        QCOMPARE(strip.volume, 1.0);
        const auto loudness = [&] { return GainAt(project, 10); };
        QVERIFY(std::abs(loudness() - 2) < 0.05);
        strip.volume = 0.5;
        QCOMPARE(mixer->SetParam(1, &strip), S_OK);
        QVERIFY(std::abs(loudness() - 1.5) < 0.05);
        strip.solo = 1;
        mixer->SetParam(1, &strip);
        QVERIFY(std::abs(loudness() - 0.5) < 0.05);
        strip.mute = 1;
        mixer->SetParam(1, &strip);
        QVERIFY(loudness() < 0.001);
    }

    void refusals()
    {
        const Node clip = Colour(Qt::red);
        const auto blend = Facet<INLEBlendSetting>(clip);
        QCOMPARE(blend->SetMode(-1), E_INVALIDARG);
        QCOMPARE(blend->SetMode(1000), E_INVALIDARG);
        QCOMPARE(blend->SetAlpha(256), E_INVALIDARG);
        const auto transform = clip.query<INLETransform>();
        const NLEPointF nowhere = {qQNaN(), 0};
        const NLESizeF endless = {qInf(), 1};
        QCOMPARE(transform->SetCenter(&nowhere), E_INVALIDARG);
        QCOMPARE(transform->SetScale(&endless), E_INVALIDARG);
        QCOMPARE(transform->SetRotation(qInf()), E_INVALIDARG);
        const NLESizeF huge = {1e300, 1e300};
        QCOMPARE(transform->SetScale(&huge), S_OK);
        QVERIFY(!Frame(ProjectWith(clip), 0).isNull());
        const auto audio = Facet<INLEAudioStreamProcess>(clip);
        QCOMPARE(audio->SetVolume(qQNaN()), E_INVALIDARG);
        QCOMPARE(audio->SetVolume(-1), E_INVALIDARG);
        QCOMPARE(audio->SetFadeInRange(-1), E_INVALIDARG);
        const tagMixerParam bad = {qQNaN(), 0, 0, 0};
        QCOMPARE(Facet<INLEMixerSetting>(clip)->SetParam(0, &bad), E_INVALIDARG);

        // A facility is the node itself: it answers for it and keeps it alive.
        Node node = Colour(Qt::red);
        const auto facet = Facet<INLEBlendSetting>(node);
        QVERIFY(facet.query<INLETimeline>() == node);
        node.reset();
        QCOMPARE(facet->SetAlpha(3), S_OK);
    }

    void keyFrames()
    {
        const auto misplaced = [this](Param first, Param last, int frame, QRect shown,
                                      int red = 255) {
            const Node clip = Trimmed(Colour(Qt::red), 200, 299);
            const Node project = ProjectWith(clip, 50);
            Setting keys(clip);
            QString wrong = keys.AddKeyFrame(last) + keys.AddKeyFrame(first) == 0 ? "" : "order ";
            wrong += Misplaced(Frame(project, frame), shown, red);
            keys.SetKeyFrameStatus(false);
            return wrong + Misplaced(Frame(project, frame), {0, 0, 320, 180});
        };
        const Param left = {0.2, 0, 1, {-0.25, 0.25}, {0.5, 0.5}};
        const Param right = {0.6, 0, 1, {0.25, -0.25}, {0.5, 0.5}};
        const Param wide = {0.6, 0, 1, {-0.25, 0.25}, {1, 0.1}};
        const Param turned = {0, -90, 1, {}, {0.5, 0.5}};
        const Param far = {0, 1e308, 1, {1e308, 1e308}, {1e308, 1e308}};
        const QRect all(0, 0, 320, 180);
        QCOMPARE(misplaced(left, right, 50, {0, 0, 160, 90}), "");
        QCOMPARE(misplaced(left, right, 100, {120, 68, 160, 90}), "");
        QCOMPARE(misplaced(left, right, 149, {160, 90, 160, 90}), "");
        QCOMPARE(misplaced(left, wide, 90, {0, 18, 200, 54}), "");
        QCOMPARE(misplaced(turned, {1, 270, 1, {}, {0.5, 0.5}}, 100, {115, 10, 90, 160}), "");
        QCOMPARE(misplaced({0, 0, 0}, {1}, 110, all, 153), "");
        QCOMPARE(misplaced({0, 0, 5}, {1, 0, 7}, 75, all), "");
        QCOMPARE(misplaced({0, 0, -1}, right, 50, {}), "");
        QCOMPARE(misplaced(far, {1, -1e308, 1, {-1e308, 0}, {-1e308, 1}}, 60, {}), "");
    }

    void keyFramesStayWithTheirFrames()
    {
        const Node clip = Trimmed(Colour(Qt::red), 100, 199);
        const Node project = ProjectWith(clip, 50);
        Setting keys(clip);
        for (const int frame : {10, 37, 90}) {
            const double time = CalculateVideoKeyFramePosition(frame, 100);
            keys.AddKeyFrame({time, frame * 3.0, time, {time / 2, 0}, {0.5, 0.5}});
        }
        const Params set = keys.GetAllKeyFrameParams();
        const auto pictures = [&] {
            QList<QImage> result;
            for (const int frame : {55, 80, 99, 120, 145})
                result << Frame(project, frame);
            return result;
        };
        const QList<QImage> before = pictures();
        // Cut in two at a frame.
        Node second;
        clip->Clone(true, second.put());
        Trimmed(clip, 100, 131);
        Add(project, Trimmed(second, 132, 199), 82);
        QVERIFY(pictures() == before && before[1] != before[2]);
        int index = -1;
        QVERIFY(Setting(second).GetKeyFrameIndex(90 - 32, 68, index) && index == 2);
        QVERIFY(!Setting(second).GetKeyFrameIndex(0, 68, index));
        // Another rate, other ranges and none, another speed, and back.
        project->SetRenderFrameRate({50, 1});
        QCOMPARE(Frame(project, 160), before[1]);
        project->SetRenderFrameRate({25, 1});
        for (const int out : {4, 75, 81, 87}) {
            Trimmed(clip, 5, out);
            QCOMPARE(keys.GetAllKeyFrameParams().size(), 3);
        }
        NLETimeline timeline(clip, ExactType_Color, nullptr);
        timeline.SetRenderScale(2);
        timeline.SetRenderScaleEnable(true);
        timeline.SetRenderScaleEnable(false);
        Trimmed(clip, 100, 199);
        QCOMPARE(keys.GetAllKeyFrameParams(), set);
        // Twice as fast is the same animation in half the time.
        timeline.SetRenderScaleEnable(true);
        QCOMPARE(keys.GetAllKeyFrameParams(), set);
        QCOMPARE(Frame(project, 65), before[1]);
        // A composite counts in the first length that it has, and then grows.
        const Node group = provider->CreateVirtualTimeline(0);
        Setting(group).AddKeyFrame({0.5});
        Add(group, Trimmed(Colour(Qt::blue), 0, 49));
        QCOMPARE(Setting(group).GetAllKeyFrameParams(), Params{{0.5}});
        Add(group, Trimmed(Colour(Qt::blue), 0, 49), 50);
        QCOMPARE(Setting(group).GetAllKeyFrameParams(), Params{{0.25}});
    }

    void keyFrameList()
    {
        // Against a plain sorted map, refusals included.
        using Record = NLEKeyFrameRecord;
        const auto keys = Trimmed(Colour(Qt::red), 0, 9999).query<INLEKeyFrameList>();
        std::map<double, double> model;
        std::mt19937 random(7);
        for (int step = 0; step < 6000; ++step) {
            const int frame = int(random() % 4000);
            const Record record = {frame / 4000.0, double(step), 0, 0, 1, 1, 1, 1};
            int place = int(random() % (model.size() + 2)) - 1; // sometimes -1 and the count
            int added = -1;
            int found = -2;
            if (step % 7 < 5) {
                QCOMPARE(keys->AddKeyFrame(&record, &added), S_OK);
                QCOMPARE(keys->FindIndex(frame, 4000, &found), S_OK);
                model[record.time] = step;
                place = int(std::distance(model.begin(), model.find(record.time)));
                QVERIFY(added == place && found == place);
                continue;
            }
            const bool moves = step % 7 == 6;
            bool valid = place >= 0 && place < int(model.size());
            const auto chosen = std::next(model.begin(), valid ? place : 0);
            valid = valid && !(moves && record.time != chosen->first && model.count(record.time));
            QCOMPARE(moves ? keys->SetKeyFrame(place, &record) : keys->DeleteKeyFrame(place),
                     valid ? S_OK : E_INVALIDARG);
            if (valid)
                model.erase(chosen);
            if (valid && moves)
                model[record.time] = step;
        }
        int index = 0;
        Record record = {};
        for (double Record::*const field :
             {&Record::time, &Record::angle, &Record::positionX, &Record::positionY,
              &Record::scaleWidth, &Record::scaleHeight, &Record::opacity}) {
            Record broken = {};
            broken.*field = field == &Record::angle ? qInf() : qQNaN();
            QCOMPARE(keys->AddKeyFrame(&broken, &index), E_INVALIDARG);
            QCOMPARE(keys->SetKeyFrame(0, &broken), E_INVALIDARG);
        }
        for (const auto& [time, angle] : model) {
            QCOMPARE(keys->GetKeyFrame(index++, &record), S_OK);
            QVERIFY(record.time == time && record.angle == angle);
        }
        QCOMPARE(keys->GetKeyFrame(index, &record), E_INVALIDARG);
        QCOMPARE(keys->GetParamAt(qQNaN(), &record), E_INVALIDARG);
        QCOMPARE(keys->FindIndex(0, 0, &index), E_INVALIDARG);
    }

    void contextReachesEveryRender()
    {
        const Node project = ProjectWith(Trimmed(Media(), 0, 9), 10);
        Context context(project);
        QVERIFY(context.SetIntValue(Key::kContext_BackgroundColor, int(0xFF00FF00u)));
        QCOMPARE(Frame(project, 0).pixelColor(200, 20), QColor(Qt::green));
        const QImage full = Frame(project, 12);
        const auto distance = [&full](const QImage& image) {
            int sum = 0;
            for (int i = 0; i < 320 * 180; ++i)
                sum +=
                    qAbs(qRed(image.pixel(i % 320, i / 320)) - qRed(full.pixel(i % 320, i / 320)));
            return sum;
        };
        QVERIFY(context.SetDoubleValue(Key::kContext_PreviewScale, 0.05));
        QVERIFY(context.SetBoolValue(Key::kContext_SmoothScaling, false));
        const QImage coarse = Frame(project, 12);
        QVERIFY(coarse != full && coarse == Frame(ClipAt(project, 0), 2));
        for (int x = 0; x < 320; ++x)
            QCOMPARE(coarse.pixel(x, 57), coarse.pixel(x / 20 * 20, 40));
        // A file is written at its full size.
        const auto encoder = provider->CreateMediaEncoder();
        const QString file = Path("full.mkv");
        QCOMPARE(encoder->Open(project.get(), file.toStdWString().c_str(), nullptr), S_OK);
        QCOMPARE(encoder->Encode(nullptr, nullptr), S_OK);
        QVERIFY(distance(Frame(EngineFixture::Media(file), 12)) * 3 < distance(coarse));
        // Nothing is taken of a bag with one bad value.
        double value = 0;
        for (const double bad : {0.0, 1.5, qQNaN()})
            QVERIFY(!context.SetDoubleValues({{Key::kContext_PreviewScale, bad}, {L"other", 1}}));
        QVERIFY(!context.SetDoubleValue(Key::kContext_BackgroundColor, 1) &&
                !context.SetDoubleValue(L"other", qQNaN()));
        QVERIFY(!context.GetDoubleValue(L"other", value));
        QVERIFY(context.GetDoubleValue(Key::kContext_PreviewScale, value) && value == 0.05);
    }

    void thumbnailsLeaveTheClipAlone()
    {
        const Node project = ProjectWith(Trimmed(Media(), 5, 44));
        NLETimeline timeline(ClipAt(project, 0), ExactType_Video, nullptr);
        std::atomic<bool> stop{false};
        std::atomic<int> wrong{0};
        const auto extractor = provider->CreateFrameExtractor();
        const auto picture = provider->CreateVideoFrame(320, 180);
        std::uint8_t* pixels = nullptr;
        QVERIFY(picture->Prepare() == S_OK && picture->GetData(&pixels) == S_OK);
        QCOMPARE(extractor->Open(project.get(), 1), S_OK);
        const QImage image(pixels, 320, 180, QImage::Format_ARGB32);
        const std::unique_ptr<QThread> render(QThread::create([&] {
            for (int i = 0; !stop; i = (i + 1) % 40)
                wrong += extractor->Extract(i, picture.get()) || ReadFrameNumber(image) != i + 5;
        }));
        render->start();
        for (int i = 0; i < 40; ++i) {
            const QImage media = timeline.GetThumbnailFromMediaInfo(i, 160, 90, true, i % 2);
            const QImage stream = timeline.GetThumbnailFromStream(i, 160, 90, true, i % 3);
            wrong += ReadFrameNumber(media) != i || ReadFrameNumber(stream) != i;
        }
        stop = true;
        QVERIFY(render->wait() && wrong == 0);
        QVERIFY(timeline.GetRange() == qMakePair(5, 44) && timeline.GetParentTimeline() == project);
    }

    void relinkedThumbnails()
    {
        TestClip other;
        other.size = {160, 120};
        other.frames = 20;
        other.rateNum = 50;
        QCOMPARE(MakeTestClip(Path("short.mp4"), other), QString());
        QVERIFY(RunFfmpeg({"-f", "lavfi", "-i", "sine=duration=1", Path("sound.wav")}).isEmpty());
        QVERIFY(QFile::copy(m_media, Path("moved.mkv")));
        NLETimeline timeline(Trimmed(Media(), 5, 44), ExactType_Video, nullptr);
        // Relinks and gives the frame numbers that the file's and the clip's picture show.
        const auto shown = [&](const QString& path, int frame) {
            const bool taken = path.isEmpty() || timeline.Relink(path);
            const QImage media = timeline.GetThumbnailFromMediaInfo(frame, 160, 90, true, true);
            const QImage stream = timeline.GetThumbnailFromStream(frame, 160, 90, false, true);
            return QList<int>{taken, ReadFrameNumber(media), ReadFrameNumber(stream)};
        };
        QCOMPARE(shown(Path("moved.mkv"), 40), QList<int>({true, 40, 40}));
        QCOMPARE(shown(Path("none.mkv"), 40), QList<int>({false, 40, 40}));
        QCOMPARE(timeline.GetFilePath(), Path("moved.mkv"));
        QCOMPARE(shown(Path("short.mp4"), 8), QList<int>({true, 8, 16}));
        QCOMPARE(shown({}, 19), QList<int>({true, 19, -1}));
        QCOMPARE(shown({}, 20), QList<int>({true, -1, -1}));
        QVERIFY(timeline.GetSourceSize() == QSizeF(160, 120) && timeline.GetPlayLen() == 40);
        QCOMPARE(shown(Path("sound.wav"), 8), QList<int>({true, -1, -1}));
        QCOMPARE(shown(m_media, 8), QList<int>({true, 8, 8}));
    }

    void settingsSurvive()
    {
        const Node clip = Media();
        const Node project = ProjectWith(clip, 3, 2);
        const NLEPointF center = {0.25, 0.75};
        const NLESizeF scale = {0.5, 0.4};
        clip.query<INLETransform>()->SetCenter(&center);
        clip.query<INLETransform>()->SetScale(&scale);
        clip.query<INLETransform>()->SetRotation(30);
        Facet<INLEBlendSetting>(clip)->SetMode(2);
        Facet<INLEBlendSetting>(clip)->SetAlpha(200);
        const auto audio = Facet<INLEAudioStreamProcess>(clip);
        const double gains[10] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
        audio->SetVolume(0.7);
        audio->SetBalance(0.3);
        audio->SetFadeInEnable(true);
        audio->SetFadeInRange(12);
        audio->SetPitch(-3);
        audio->SetEqualizerParam(gains);
        audio->SetEqualizerName(L"Rock \u2013 loud");
        NLEComPtr<INLEKeyFrameParam> curve;
        audio->GetVolumeKeyFrameParam(curve.put());
        curve->SetPoint(0.1, 0.9);
        const auto video = Facet<INLEVideoStreamProcess>(clip);
        NLEAlphaChannelRecord record = {};
        record.param4 = 0.125;
        record.text2[259] = u'x';
        record.tail[15] = 77;
        video->SetAlphaChannel(&record);
        video->SetProxyFile(m_proxy.toStdWString().c_str());
        video->SetProxyEnabled(true);
        video->SetPremultipliedAlphaType(2);
        const tagMixerParam strip = {0.5, -0.25, 0, 1};
        Facet<INLEMixerSetting>(project)->SetParam(2, &strip);
        Setting(clip).AddKeyFrame({0.1, 20, 0.7, {0.125, 0}, {1, 2}});
        Setting(clip).AddKeyFrame({1 / 3.0});
        Setting(project).SetKeyFrameStatus(false);
        QVERIFY(Context(project).SetIntValue(L"my own", 5));

        Node clone;
        QCOMPARE(project->Clone(true, clone.put()), S_OK);
        QVERIFY(Save(project, Path("saved.mlt")));
        // The document names each setting that is no preset, so equal documents are equal settings.
        const QByteArray saved = Contents(Path("saved.mlt"));
        for (const char* setting :
             {"blend", "transform", "sound:levels", "sound:fades", "sound:effects", "sound:curve",
              "sound:equalizer", "sound:equalizer-name", "alpha-channel", "proxy", "premultiplied",
              "key-frames", "context:my own"})
            QVERIFY2(saved.contains(QByteArray("\"nle:") + setting + '"'), setting);
        for (const Node& copy : {clone, Load(Path("saved.mlt"))}) {
            QVERIFY(Save(copy, Path("again.mlt")));
            QCOMPARE(Contents(Path("again.mlt")), saved);
            QCOMPARE(Frame(copy, 30), Frame(project, 30));
            QCOMPARE(Sound(copy, 10)[0], Sound(project, 10)[0]);
            NLEAlphaChannelRecord kept = {};
            Facet<INLEVideoStreamProcess>(ClipAt(copy, 0))->GetAlphaChannel(&kept);
            QVERIFY(kept.param4 == 0.125 && kept.text2[259] == u'x' && kept.tail[15] == 77);
        }
    }
};

QTEST_MAIN(tst_EngineSettings)
#include "tst_engine_settings.moc"
