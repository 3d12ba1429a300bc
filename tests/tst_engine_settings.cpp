// SPDX-License-Identifier: LGPL-2.1-or-later
// What settings, key frames and other media of clips do to the pictures of the open engine.
#include "CommonLib/CommonLib.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLEMixerSetting.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

#include <QThread>

#include <atomic>
#include <functional>
#include <map>
#include <random>

using Rule = std::function<double(double below, double above)>;
using Setting = VideoKeyFrameSetting;
using Param = VideoKeyFrameParam;
using Params = QList<Param>;
using Field = double NLEKeyFrameRecord::*;
namespace Key = NLEKey::Context;
Q_DECLARE_METATYPE(Rule)
Q_DECLARE_METATYPE(Param)
Q_DECLARE_METATYPE(Field)

namespace {

constexpr int kMediaFrames = 100;
constexpr QRect kPicture(0, 0, 320, 180);
constexpr int kAnimatedAt = 50;
/// A preview of so small a part of the size that it has visible blocks.
constexpr double kCoarse = 0.05;

/// The context of a project.
struct Context : NLETimelineContextPropertyService
{
    explicit Context(const Node& project) { m_basin = project.query<INLEBasin>(); }
};

/// Where \a frame is not black around and red within \a shown; empty when it is so.
QString Misplaced(const QImage& frame, const QRect& shown, int red = 255)
{
    for (int y = 0; y < kPicture.height(); ++y) {
        for (int x = 0; x < kPicture.width(); ++x) {
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

/// The sum of the differences of the red of all pixels.
int RedDifference(const QImage& a, const QImage& b)
{
    int sum = 0;
    for (int y = 0; y < kPicture.height(); ++y) {
        for (int x = 0; x < kPicture.width(); ++x)
            sum += qAbs(qRed(a.pixel(x, y)) - qRed(b.pixel(x, y)));
    }
    return sum;
}

} // namespace

class tst_EngineSettings : public QObject, private EngineFixture
{
    Q_OBJECT

    Node Media() const { return EngineFixture::Media(m_media); }
    /// A clip that moves over its project, with its key frames.
    struct Animated
    {
        Node clip, project;
        Params keys;
    };
    Animated Animate() const
    {
        const Node clip = Trimmed(Colour(Qt::red), 100, 199);
        Setting keys(clip);
        for (const int frame : {10, 37, 90}) {
            const double time = CalculateVideoKeyFramePosition(frame, 100);
            keys.AddKeyFrame({time, frame * 3.0, time, {time / 2, 0}, {0.5, 0.5}});
        }
        return {clip, ProjectWith(clip, kAnimatedAt), keys.GetAllKeyFrameParams()};
    }
    /// Before, at, between and after the key frames.
    QList<QImage> Pictures(const Node& animated) const
    {
        QList<QImage> result;
        for (const int frame : {5, 30, 49, 70, 95})
            result << Frame(animated, kAnimatedAt + frame);
        return result;
    }
    static bool SetCoarse(const Node& project)
    {
        Context context(project);
        return context.SetDoubleValue(Key::kContext_PreviewScale, kCoarse) &&
               context.SetBoolValue(Key::kContext_SmoothScaling, false);
    }
    Node ProjectWithEverySetting() const
    {
        const Node clip = Media();
        Node project = ProjectWith(clip, 3, 2);
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
        Context(project).SetIntValue(L"my own", 5);
        return project;
    }

    QString m_media = Path("clip.mkv");
    QString m_proxy = Path("proxy.mp4");

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = kMediaFrames;
        clip.audioCodec = "pcm_s16le";
        QCOMPARE(MakeTestClip(m_media, clip), QString());
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", "color=c=red:size=160x90:rate=25", "-frames:v",
                            "100", "-pix_fmt", "yuv420p", m_proxy}),
                 QString());
        TestClip other;
        other.size = {160, 120};
        other.frames = 20;
        other.rateNum = 50;
        QCOMPARE(MakeTestClip(Path("short.mp4"), other), QString());
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", "sine=duration=1", Path("sound.wav")}), QString());
        QVERIFY(QFile::copy(m_media, Path("moved.mkv")));
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
            return 255 * (b / 255.0 + (mixed - b / 255.0) * alpha / 255.0);
        };
        QCOMPARE(Deviation(shown.red(), expect(below.red(), above.red()), 2.5), QString());
        QCOMPARE(Deviation(shown.green(), expect(below.green(), above.green()), 2.5), QString());
        QCOMPARE(Deviation(shown.blue(), expect(below.blue(), above.blue()), 2.5), QString());
        blend->SetEnable(false);
        QCOMPARE(Frame(project, 0).pixelColor(100, 100), above);
    }

    void speedCountsWhenEnabled()
    {
        const Node clip = Trimmed(Media(), 20, 59);
        const Node project = ProjectWith(clip, 10);
        const auto bag = BagOf(clip);
        bag->SetRational(NLEKey::Speed::kScale, {200000000, 100000000});
        QCOMPARE(ReadFrameNumber(Frame(project, 15)), 25);
        bag->SetInt(NLEKey::Speed::kEnabled, 1);
        QCOMPARE(RangeOf(clip).in, 10);
        QCOMPARE(RangeOf(clip).out, 29);
        QCOMPARE(TotalOf(clip).out, kMediaFrames / 2 - 1);
        QCOMPARE(ReadFrameNumber(Frame(project, 10)), 20);
        QCOMPARE(ReadFrameNumber(Frame(project, 15)), 30);
        QVERIFY(Frame(project, 30).isNull());
        bag->SetInt(NLEKey::Speed::kEnabled, 0);
        QCOMPARE(RangeOf(clip).in, 20);
        QCOMPARE(RangeOf(clip).out, 59);
    }

    void frozenClipShowsOneFrame()
    {
        const Node clip = Trimmed(Media(), 20, 59);
        const Node project = ProjectWith(clip, 10);
        BagOf(clip)->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1);
        QCOMPARE(ReadFrameNumber(Frame(project, 40)), 20);
        BagOf(clip)->SetInt(NLEKey::Freeze::kFreeze_Frame, 33);
        QCOMPARE(ReadFrameNumber(Frame(project, 11)), 33);
        Trimmed(clip, 20, 519); // longer than the file
        QCOMPARE(ReadFrameNumber(Frame(project, 509)), 33);
    }

    void frozenClipKeepsItsRange()
    {
        const Node clip = Media();
        BagOf(clip)->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1);
        QCOMPARE(RangeOf(clip).out, kMediaFrames - 1);
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
        QCOMPARE(Deviation(shown.red(), 255, 14), QString());
        QCOMPARE(Deviation(shown.green(), 0, 9), QString());
        video->SetProxyFile(L"");
        QCOMPARE(ReadFrameNumber(Frame(project, 5)), 5);
    }

    void refusedBlends()
    {
        const auto blend = Facet<INLEBlendSetting>(Colour(Qt::red));
        QCOMPARE(blend->SetMode(-1), E_INVALIDARG);
        QCOMPARE(blend->SetMode(1000), E_INVALIDARG);
        QCOMPARE(blend->SetAlpha(256), E_INVALIDARG);
    }

    void refusedTransforms()
    {
        const auto transform = Colour(Qt::red).query<INLETransform>();
        const NLEPointF nowhere = {qQNaN(), 0};
        const NLESizeF endless = {qInf(), 1};
        QCOMPARE(transform->SetCenter(&nowhere), E_INVALIDARG);
        QCOMPARE(transform->SetScale(&endless), E_INVALIDARG);
        QCOMPARE(transform->SetRotation(qInf()), E_INVALIDARG);
    }

    void hugeScaleIsDrawn()
    {
        const Node clip = Colour(Qt::red);
        const NLESizeF huge = {1e300, 1e300};
        QCOMPARE(clip.query<INLETransform>()->SetScale(&huge), S_OK);
        QVERIFY(!Frame(ProjectWith(clip), 0).isNull());
    }

    void facilityKeepsItsClipAlive()
    {
        Node node = Colour(Qt::red);
        const auto facet = Facet<INLEBlendSetting>(node);
        QVERIFY(facet.query<INLETimeline>() == node);
        node.reset();
        QCOMPARE(facet->SetAlpha(3), S_OK);
    }

    void keyFrames_data()
    {
        QTest::addColumn<Param>("first");
        QTest::addColumn<Param>("last");
        QTest::addColumn<int>("frame");
        QTest::addColumn<QRect>("shown");
        QTest::addColumn<int>("red");
        const auto row = [](const char* name, Param first, Param last, int frame, QRect shown,
                            int red = 255) {
            QTest::newRow(name) << first << last << frame << shown << red;
        };
        const Param left = {0.2, 0, 1, {-0.25, 0.25}, {0.5, 0.5}};
        const Param right = {0.6, 0, 1, {0.25, -0.25}, {0.5, 0.5}};
        const Param wide = {0.6, 0, 1, {-0.25, 0.25}, {1, 0.1}};
        const Param turned = {0, -90, 1, {}, {0.5, 0.5}};
        const Param huge = {0, 1e308, 1, {1e308, 1e308}, {1e308, 1e308}};
        row("before the first", left, right, 0, {0, 0, 160, 90});
        row("between two", left, right, 50, {120, 68, 160, 90});
        row("after the last", left, right, 99, {160, 90, 160, 90});
        row("one that grows", left, wide, 40, {0, 18, 200, 54});
        row("one that turns", turned, {1, 270, 1, {}, {0.5, 0.5}}, 50, {115, 10, 90, 160});
        row("one that appears", {0, 0, 0}, {1}, 60, kPicture, 153);
        row("an opacity of more than all", {0, 0, 5}, {1, 0, 7}, 25, kPicture);
        row("an opacity of less than nothing", {0, 0, -1}, right, 0, {});
        row("numbers near the largest", huge, {1, -1e308, 1, {-1e308, 0}, {-1e308, 1}}, 10, {});
    }

    void keyFrames()
    {
        QFETCH(Param, first);
        QFETCH(Param, last);
        QFETCH(int, frame);
        QFETCH(QRect, shown);
        QFETCH(int, red);
        const Node clip = Trimmed(Colour(Qt::red), 200, 299);
        const int position = 50;
        const Node project = ProjectWith(clip, position);
        Setting keys(clip);
        QCOMPARE(keys.AddKeyFrame(last), 0);
        QCOMPARE(keys.AddKeyFrame(first), 0); // before it
        QCOMPARE(Misplaced(Frame(project, position + frame), shown, red), QString());
        keys.SetKeyFrameStatus(false);
        QCOMPARE(Misplaced(Frame(project, position + frame), kPicture), QString());
    }

    void cutClipKeepsItsAnimation()
    {
        const Animated a = Animate();
        const QList<QImage> before = Pictures(a.project);
        QVERIFY(before[1] != before[2]);
        const int cut = 32;
        Node second;
        a.clip->Clone(true, second.put());
        Trimmed(a.clip, 100, 100 + cut - 1);
        Add(a.project, Trimmed(second, 100 + cut, 199), kAnimatedAt + cut);
        QVERIFY(Pictures(a.project) == before);
        int index = -1;
        QVERIFY(Setting(second).GetKeyFrameIndex(90 - cut, 100 - cut, index));
        QCOMPARE(index, 2);
        QVERIFY(!Setting(second).GetKeyFrameIndex(0, 100 - cut, index));
    }

    void animationIsTheSameAtAnotherRate()
    {
        const Animated a = Animate();
        const QImage before = Frame(a.project, 80);
        a.project->SetRenderFrameRate({50, 1});
        QCOMPARE(Frame(a.project, 160), before);
        a.project->SetRenderFrameRate({25, 1});
        QCOMPARE(Setting(a.clip).GetAllKeyFrameParams(), a.keys);
    }

    void keyFramesComeBackAfterATrim_data()
    {
        QTest::addColumn<int>("out"); // of a range that begins at 5
        QTest::newRow("to nothing") << 4;
        QTest::newRow("to before the clip's range") << 75;
        QTest::newRow("to some frames more") << 81;
        QTest::newRow("to more again") << 87;
    }

    void keyFramesComeBackAfterATrim()
    {
        QFETCH(int, out);
        const Animated a = Animate();
        Setting keys(a.clip);
        Trimmed(a.clip, 5, out);
        QCOMPARE(keys.GetAllKeyFrameParams().size(), a.keys.size());
        NLETimeline timeline(a.clip, ExactType_Color, nullptr);
        timeline.SetRenderScale(2);
        timeline.SetRenderScaleEnable(true);
        timeline.SetRenderScaleEnable(false);
        Trimmed(a.clip, 100, 199);
        QCOMPARE(keys.GetAllKeyFrameParams(), a.keys);
    }

    void doubleSpeedIsTheSameAnimationInHalfTheTime()
    {
        const Animated a = Animate();
        const QImage before = Frame(a.project, kAnimatedAt + 30);
        NLETimeline timeline(a.clip, ExactType_Color, nullptr);
        timeline.SetRenderScale(2);
        timeline.SetRenderScaleEnable(true);
        QCOMPARE(Setting(a.clip).GetAllKeyFrameParams(), a.keys);
        QCOMPARE(Frame(a.project, kAnimatedAt + 15), before);
    }

    void growingCompositeKeepsItsAnimation()
    {
        // It counts in the first length that it has, and then grows.
        const Node group = provider->CreateVirtualTimeline(0);
        Setting(group).AddKeyFrame({0.5});
        Add(group, Trimmed(Colour(Qt::blue), 0, 49));
        QCOMPARE(Setting(group).GetAllKeyFrameParams(), Params{{0.5}});
        Add(group, Trimmed(Colour(Qt::blue), 0, 49), 50);
        QCOMPARE(Setting(group).GetAllKeyFrameParams(), Params{{0.25}});
    }

    void keyFrameListIsASortedMap()
    {
        // Against a plain one, refusals included.
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
                QCOMPARE(added, place);
                QCOMPARE(found, place);
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
        for (const auto& [time, angle] : model) {
            QCOMPARE(keys->GetKeyFrame(index++, &record), S_OK);
            QCOMPARE(record.time, time);
            QCOMPARE(record.angle, angle);
        }
        QCOMPARE(keys->GetKeyFrame(index, &record), E_INVALIDARG);
    }

    void brokenKeyFramesAreRefused_data()
    {
        QTest::addColumn<Field>("field");
        QTest::addColumn<double>("value");
        QTest::newRow("no time") << &NLEKeyFrameRecord::time << qQNaN();
        QTest::newRow("an endless angle") << &NLEKeyFrameRecord::angle << qInf();
        QTest::newRow("no x") << &NLEKeyFrameRecord::positionX << qQNaN();
        QTest::newRow("no y") << &NLEKeyFrameRecord::positionY << qQNaN();
        QTest::newRow("no width") << &NLEKeyFrameRecord::scaleWidth << qQNaN();
        QTest::newRow("no height") << &NLEKeyFrameRecord::scaleHeight << qQNaN();
        QTest::newRow("no opacity") << &NLEKeyFrameRecord::opacity << qQNaN();
    }

    void brokenKeyFramesAreRefused()
    {
        QFETCH(Field, field);
        QFETCH(double, value);
        const auto keys = Trimmed(Colour(Qt::red), 0, 99).query<INLEKeyFrameList>();
        int index = 0;
        NLEKeyFrameRecord record = {};
        QCOMPARE(keys->AddKeyFrame(&record, &index), S_OK);
        record.*field = value;
        QCOMPARE(keys->AddKeyFrame(&record, &index), E_INVALIDARG);
        QCOMPARE(keys->SetKeyFrame(0, &record), E_INVALIDARG);
    }

    void questionsWithoutAnAnswerAreRefused()
    {
        const auto keys = Trimmed(Colour(Qt::red), 0, 99).query<INLEKeyFrameList>();
        int index = 0;
        NLEKeyFrameRecord record = {};
        QCOMPARE(keys->AddKeyFrame(&record, &index), S_OK);
        QCOMPARE(keys->GetParamAt(qQNaN(), &record), E_INVALIDARG);
        QCOMPARE(keys->FindIndex(0, 0, &index), E_INVALIDARG);
    }

    void contextColoursTheBackground()
    {
        const Node project = ProjectWith(Trimmed(Media(), 0, 9), 10);
        QVERIFY(Context(project).SetIntValue(Key::kContext_BackgroundColor, int(0xFF00FF00u)));
        QCOMPARE(Frame(project, 0).pixelColor(200, 20), QColor(Qt::green));
    }

    void previewScaleCoarsensFrames()
    {
        const Node project = ProjectWith(Trimmed(Media(), 0, 9), 10);
        const QImage full = Frame(project, 12);
        QVERIFY(SetCoarse(project));
        const QImage coarse = Frame(project, 12);
        QVERIFY(coarse != full);
        QVERIFY(coarse == Frame(ClipAt(project, 0), 2));
        const int block = int(1 / kCoarse);
        for (int x = 0; x < 320; ++x)
            QCOMPARE(coarse.pixel(x, 57), coarse.pixel(x / block * block, 40));
    }

    void fileIsWrittenAtItsFullSize()
    {
        const Node project = ProjectWith(Trimmed(Media(), 0, 9), 10);
        const QImage full = Frame(project, 12);
        QVERIFY(SetCoarse(project));
        const auto encoder = provider->CreateMediaEncoder();
        const QString file = Path("full.mkv");
        QCOMPARE(encoder->Open(project.get(), file.toStdWString().c_str(), nullptr), S_OK);
        QCOMPARE(encoder->Encode(nullptr, nullptr), S_OK);
        const QImage written = Frame(EngineFixture::Media(file), 12);
        QVERIFY(RedDifference(written, full) * 3 < RedDifference(Frame(project, 12), full));
    }

    void contextTakesAllOrNothing_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<double>("value");
        const QString scale = QString::fromWCharArray(Key::kContext_PreviewScale);
        QTest::newRow("a preview of no size") << scale << 0.0;
        QTest::newRow("a preview larger than the picture") << scale << 1.5;
        QTest::newRow("a scale that is no number") << scale << qQNaN();
        QTest::newRow("a colour that is no whole number")
            << QString::fromWCharArray(Key::kContext_BackgroundColor) << 1.0;
        QTest::newRow("a bit depth that is no whole number")
            << QString::fromWCharArray(Key::kContext_BitDepth) << 10.0;
        QTest::newRow("a value that is no number") << "mine" << qQNaN();
    }

    void contextTakesAllOrNothing()
    {
        QFETCH(QString, key);
        QFETCH(double, value);
        const Node project = Project();
        Context context(project);
        QVERIFY(SetCoarse(project));
        const std::wstring bad = key.toStdWString();
        QVERIFY(!context.SetDoubleValue(bad.c_str(), value));
        QVERIFY(!context.SetDoubleValues({{bad.c_str(), value}, {L"other", 1}}));
        double kept = 0;
        QVERIFY(!context.GetDoubleValue(L"other", kept));
        QVERIFY(context.GetDoubleValue(Key::kContext_PreviewScale, kept));
        QCOMPARE(kept, kCoarse);
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
        QCOMPARE(picture->Prepare(), S_OK);
        QCOMPARE(picture->GetData(&pixels), S_OK);
        QCOMPARE(extractor->Open(project.get(), NLEOpen_Render), S_OK);
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
        QVERIFY(render->wait());
        QCOMPARE(wrong.load(), 0);
        QCOMPARE(timeline.GetRange(), qMakePair(5, 44));
        QVERIFY(timeline.GetParentTimeline() == project);
    }

    void relinkedThumbnails_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("frame");
        QTest::addColumn<bool>("isTaken");
        QTest::addColumn<int>("media");  // the frame that the file's thumbnail shows
        QTest::addColumn<int>("stream"); // the one that the clip's shows
        const auto row = [](const char* title, const char* name, int frame, bool isTaken, int media,
                            int stream) {
            QTest::newRow(title) << QString(name) << frame << isTaken << media << stream;
        };
        row("the file moved", "moved.mkv", 40, true, 40, 40);
        row("no such file", "none.mkv", 40, false, 40, 40);
        row("a file of twice the rate", "short.mp4", 8, true, 8, 16);
        row("beyond the end at the clip's rate", "short.mp4", 19, true, 19, -1);
        row("beyond the end of the file", "short.mp4", 20, true, -1, -1);
        row("a file of sound only", "sound.wav", 8, true, -1, -1);
    }

    void relinkedThumbnails()
    {
        QFETCH(QString, name);
        QFETCH(int, frame);
        const QString path = folder.filePath(name);
        NLETimeline timeline(Trimmed(Media(), 5, 44), ExactType_Video, nullptr);
        QTEST(timeline.Relink(path), "isTaken");
        QCOMPARE(timeline.GetFilePath(), name == "none.mkv" ? m_media : path);
        const QImage media = timeline.GetThumbnailFromMediaInfo(frame, 160, 90, true, true);
        const QImage stream = timeline.GetThumbnailFromStream(frame, 160, 90, false, true);
        QTEST(ReadFrameNumber(media), "media");
        QTEST(ReadFrameNumber(stream), "stream");
        // And back, with nothing left of the other file.
        QVERIFY(timeline.Relink(m_media));
        QCOMPARE(ReadFrameNumber(timeline.GetThumbnailFromMediaInfo(8, 160, 90, true, true)), 8);
        QCOMPARE(ReadFrameNumber(timeline.GetThumbnailFromStream(8, 160, 90, false, true)), 8);
    }

    void relinkedClipKeepsItsLength()
    {
        NLETimeline timeline(Trimmed(Media(), 5, 44), ExactType_Video, nullptr);
        QVERIFY(timeline.Relink(Path("short.mp4")));
        QCOMPARE(timeline.GetSourceSize(), QSizeF(160, 120));
        QCOMPARE(timeline.GetPlayLen(), 40);
    }

    void documentNamesEverySetting_data()
    {
        // That each is in the document makes equal documents equal settings.
        QTest::addColumn<QByteArray>("name");
        for (const char* name :
             {"blend", "transform", "sound:levels", "sound:fades", "sound:effects", "sound:curve",
              "sound:equalizer", "sound:equalizer-name", "alpha-channel", "proxy", "premultiplied",
              "key-frames", "context:my own"})
            QTest::newRow(name) << "\"nle:" + QByteArray(name) + '"';
    }

    void documentNamesEverySetting()
    {
        QFETCH(QByteArray, name);
        QVERIFY(Save(ProjectWithEverySetting(), Path("saved.mlt")));
        QVERIFY(Contents(Path("saved.mlt")).contains(name));
    }

    void settingsSurvive_data()
    {
        QTest::addColumn<bool>("isDocument");
        QTest::newRow("in a clone") << false;
        QTest::newRow("in a document") << true;
    }

    void settingsSurvive()
    {
        QFETCH(bool, isDocument);
        const Node project = ProjectWithEverySetting();
        QVERIFY(Save(project, Path("saved.mlt")));
        Node copy;
        if (isDocument)
            copy = Load(Path("saved.mlt"));
        else
            QCOMPARE(project->Clone(true, copy.put()), S_OK);
        QVERIFY(Save(copy, Path("again.mlt")));
        QCOMPARE(Contents(Path("again.mlt")), Contents(Path("saved.mlt")));
        QCOMPARE(Frame(copy, 30), Frame(project, 30));
        QCOMPARE(Sound(copy, 10)[0], Sound(project, 10)[0]);
        NLEAlphaChannelRecord kept = {};
        Facet<INLEVideoStreamProcess>(ClipAt(copy, 0))->GetAlphaChannel(&kept);
        QCOMPARE(kept.param4, 0.125);
        QCOMPARE(kept.text2[259], u'x');
        QCOMPARE(int(kept.tail[15]), 77);
    }
};

QTEST_MAIN(tst_EngineSettings)
#include "tst_engine_settings.moc"
