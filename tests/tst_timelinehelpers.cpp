// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedComposite.h"
#include "tests/support/ScriptedSession.h"
#include "tests/support/ScriptedSettings.h"

#include <QtTest>

using namespace Scripted;

using Audio = FAudioStreamProcessHelper;
using Video = FVideoStreamProcessHelper;
using Placing = FTimelineTransformHelper;
using AlphaParm = Video::AlphaChannelParm;

class tst_TimelineHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void onlyZeroIsSuccess();
    void audioObjects();
    void alphaChannel();
    void premultipliedTypeIsCached();
    void proxyFile();
    void pixels_data();
    void pixels();
    void renderRegion();
    void lock_data();
    void lock();
    void mixerFollowsItsTimeline();

private:
    void OfferAll();

    Script& script = Script::Get();
    NLEComPtr<Node> node;
    NLEComPtr<AudioStreamProcess> audio;
    NLEComPtr<VideoStreamProcess> video;
    NLEComPtr<Transform> transform;
    NLEComPtr<RenderRegion> region;
    NLEComPtr<MixerSetting> mixer;
};

/// A clip without any settings, on a parent of 1920 x 1080.
void tst_TimelineHelpers::init()
{
    node = MakeCom<Node>("node");
    audio = MakeCom<AudioStreamProcess>("audio");
    video = MakeCom<VideoStreamProcess>("video");
    transform = MakeCom<Transform>("transform");
    mixer = MakeCom<MixerSetting>("mixer");
    region = MakeCom<RenderRegion>("region");
    region->region = {0, 0, 1920, 1080};
    auto parent = MakeCom<Node>("parent");
    parent->Offer<INLERenderRegion>(region);
    script.SetResult("node.GetParent", parent);
}

void tst_TimelineHelpers::OfferAll()
{
    node->Offer<INLEAudioStreamProcess>(audio);
    node->Offer<INLEVideoStreamProcess>(video);
    node->Offer<INLETransform>(transform);
    node->Offer<INLEMixerSetting>(mixer);
}

void tst_TimelineHelpers::cleanup()
{
    EndSession();
    QCOMPARE(References(node.get()), 1u);
    node.reset();
    audio.reset();
    video.reset();
    transform.reset();
    region.reset();
    mixer.reset();
    QCOMPARE(script.LiveObjects(), QStringList());
}

void tst_TimelineHelpers::onlyZeroIsSuccess()
{
    NLETimeline timeline(node, ExactType_Video, nullptr);
    FMixerSettingDelegate strips(&timeline, nullptr);
    const auto* helper = timeline.GetAudioStreamProcessHelper();
    const auto results = [&] {
        double volume = 0;
        int level = 0;
        tagMixerParam param{};
        return QList<bool>{helper->GetVolume(volume), helper->GetDenoiseLevel(level),
                           strips.GetMixerParam(3, &param), strips.SetMixerParam(4, param)};
    };
    QCOMPARE(results(), QList<bool>({false, false, false, false}));
    OfferAll();
    QCOMPARE(results(), QList<bool>({true, true, true, true}));
    QCOMPARE(script.TakeCalls().filter("mixer."),
             QStringList({"mixer.GetParam(3)", "mixer.SetParam(4)"}));
    for (const HRESULT status : {S_FALSE, E_FAIL}) {
        for (const char* operation :
             {"audio.GetVolume", "audio.GetDenoiseLevel", "mixer.GetParam", "mixer.SetParam"})
            script.SetStatus(operation, status);
        QCOMPARE(results(), QList<bool>({false, false, false, false}));
    }
}

void tst_TimelineHelpers::audioObjects()
{
    Audio helper(node, nullptr);
    auto* const untouched = reinterpret_cast<INLEKeyFrameParam*>(this);
    INLEKeyFrameParam* param = untouched;
    double band = 7;
    helper.GetVolumeKeyFrameParam(&param);
    helper.GetEqualizerParam(&band);
    QCOMPARE(param, untouched);
    QCOMPARE(band, 7.0);

    OfferAll();
    helper.GetVolumeKeyFrameParam(&param);
    QVERIFY(!param);
    helper.SetEqualizerParam(&band);
    band = 0;
    helper.GetEqualizerParam(&band);
    QCOMPARE(band, 7.0);
    helper.SetVolume(0.25);
    helper.SetDenoiseLevel(3);
    QVERIFY(audio->volume == 0.25 && audio->denoiseLevel == 3);
    audio->equalizerName = QString(300, 'x');
    QCOMPARE(helper.GetEqualizerName(), QString(127, 'x')); // cut to its buffer
}

void tst_TimelineHelpers::alphaChannel()
{
    const auto values = [](const AlphaParm& p) {
        return QList<double>{double(p.nParam1), double(p.nParam2), double(p.nParam3), p.dParam4,
                             double(p.nParam5), double(p.nParam6), double(p.nParam7)};
    };
    Video helper(node, nullptr);
    QCOMPARE(values(helper.GetAlphaChannel()), QList<double>({0, 1, 0, 0, 0, 0, 0}));
    OfferAll();
    memset(&video->record, 0x5A, sizeof video->record);
    const NLEAlphaChannelRecord before = video->record;
    const AlphaParm parm{1, -2, 3, 4.5, -5, 6, 7};
    helper.SetAlphaChannel(parm);
    QCOMPARE(values(helper.GetAlphaChannel()), values(parm));
    const auto* fields = reinterpret_cast<const qint32*>(&video->record);
    QCOMPARE(fields[1], -2);
    QCOMPARE(fields[6], -5);
    constexpr int Kept = 36; // bytes from here on are the engine's
    QVERIFY(!memcmp(reinterpret_cast<const char*>(&video->record) + Kept,
                    reinterpret_cast<const char*>(&before) + Kept, sizeof before - Kept));
}

void tst_TimelineHelpers::premultipliedTypeIsCached()
{
    Video without(node, nullptr);
    without.SetPremultiAlphaType(2);
    QCOMPARE(without.GetPremultiAlphaType(), 0);
    OfferAll();
    video->alphaType = 5;
    Video helper(node, nullptr);
    video->alphaType = 6;
    QCOMPARE(helper.GetPremultiAlphaType(), 5);
    helper.SetPremultiAlphaType(2);
    QCOMPARE(helper.GetPremultiAlphaType(), 2);
    QCOMPARE(video->alphaType, 2);
}

void tst_TimelineHelpers::proxyFile()
{
    OfferAll();
    Video helper(node, nullptr);
    const QString file = QCoreApplication::applicationFilePath();
    for (const QString& path : {file, QString("/none"), QString()})
        helper.SetProxyFile(path);
    QCOMPARE(script.TakeCalls().filter("SetProxyFile"),
             QStringList({"video.SetProxyFile(" + file + ')', "video.SetProxyFile()"}));
    video->proxyPath = QString(300, 'x');
    QCOMPARE(helper.GetProxyPeth(), QString(259, 'x')); // cut to its buffer
}

void tst_TimelineHelpers::pixels_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QPointF>("pixels");
    QTest::addColumn<QPointF>("normalised");
    const QSizeF full(1920, 1080);
    QTest::newRow("middle") << full << QPointF(0, 0) << QPointF(0.5, 0.5);
    QTest::newRow("top right") << full << QPointF(960, 540) << QPointF(1, 0);
    QTest::newRow("no width") << QSizeF(0, 100) << QPointF(9, 25) << QPointF(0, 0.25);
    QTest::newRow("no height") << QSizeF(100, 0) << QPointF(25, 9) << QPointF(0.75, 0);
}

void tst_TimelineHelpers::pixels()
{
    QFETCH(QSizeF, size);
    QFETCH(QPointF, pixels);
    QFETCH(QPointF, normalised);
    const QPointF back(size.width() > 0 ? pixels.x() : 0, size.height() > 0 ? pixels.y() : 0);
    region->region = {3, 4, size.width(), size.height()};
    Placing helper(node, nullptr);
    helper.SetXYpos(pixels);
    QCOMPARE(helper.GetXYpos(), QPointF());
    QCOMPARE(helper.GetXpos() + helper.GetYpos(), 0.f);
    OfferAll();
    transform->center = {7, 8};
    helper.SetXpos(float(pixels.x()));
    QCOMPARE(helper.GetCenterPos(), QPointF(normalised.x(), 8));
    helper.SetYpos(float(pixels.y()));
    QCOMPARE(helper.GetCenterPos(), normalised);
    transform->center = {7, 8};
    helper.SetXYpos(pixels);
    QCOMPARE(helper.GetCenterPos(), normalised);
    QCOMPARE(helper.GetXYpos(), back);
    QCOMPARE(QPointF(helper.GetXpos(), helper.GetYpos()), back);

    script.SetStatus("node.GetParent", E_FAIL);
    NLERectF rect{};
    QVERIFY(!helper.GetRenderROD(rect));
    helper.SetXYpos({1, 1});
    helper.SetXpos(1);
    helper.SetYpos(1);
    QCOMPARE(helper.GetCenterPos(), normalised);
    QCOMPARE(helper.GetXYpos(), QPointF());
    QCOMPARE(helper.GetXpos() + helper.GetYpos(), 0.f);
}

void tst_TimelineHelpers::renderRegion()
{
    Placing helper(node, nullptr);
    helper.SetRenderRegion(QRectF(1, 2, 3, 4));
    QCOMPARE(helper.GetRenderRegion(), QRectF(0, 0, 1, 1));
    OfferAll();
    helper.SetRenderRegion(QRectF(0.25, 0.125, 0.5, 0.75));
    QCOMPARE(helper.GetCenterPos(), QPointF(0.5, 0.5));
    QCOMPARE(helper.GetResizeScale(), QSizeF(0.5, 0.75));
    QCOMPARE(helper.GetRenderRegion(), QRectF(0.5, 0.25, 0.5, 0.75)); // not what was set
    helper.SetResizeScale(QSizeF(2, 3));
    QCOMPARE(helper.GetRenderRegion(), QRectF(-1, -2, 2, 3));
}

void tst_TimelineHelpers::lock_data()
{
    QTest::addColumn<QStringList>("types"); // of the clip and of its parent
    QTest::addColumn<QStringList>("lines");
    using L = QStringList;
    QTest::newRow("no types") << L{"", ""} << L{};
    QTest::newRow("split screen") << L{"11", "1"} << L{"SplitScreen"};
    QTest::newRow("part of one") << L{"x", "11"} << L{"SubSplitScreen"};
    QTest::newRow("one in another") << L{"11", "11"} << L{"SplitScreen", "SubSplitScreen"};
}

void tst_TimelineHelpers::lock()
{
    QFETCH(QStringList, types);
    QFETCH(QStringList, lines);
    for (int i = 0; i < 2; ++i) {
        auto bag = MakeCom<Properties>("bag");
        if (!types[i].isEmpty())
            bag->strings["key_timeline_type"] = types[i];
        script.SetResult(i ? "parent.GetProperties" : "node.GetProperties", bag);
    }
    OfferAll();
    LogCapture log;
    Placing helper(node, nullptr);
    helper.SetTransformLock(true);
    QVERIFY2(!helper.GetTransformLock(), "the engine's lock is never read back");
    QVERIFY(script.TakeCalls().contains("transform.SetLock(true)"));
    const QString line = "-INFO- [FTimelineTransformHelper::SetTransformLock]:  %1 m_ptimeline = "
                         "%2, lock = 1 - [CommonLib/NLEWraper/FTimelineTransformHelper(";
    for (QString& expected : lines)
        expected = line.arg(expected, QString::number(quint32(quintptr(node.get())), 16));
    const QRegularExpression lineNumber("\\d+\\)\\]$");
    QCOMPARE(log.Take().replaceInStrings(lineNumber, ""), lines);
}

void tst_TimelineHelpers::mixerFollowsItsTimeline()
{
    OfferAll();
    mixer->param.volume = 1;
    auto other = MakeCom<Node>("other");
    auto otherMixer = MakeCom<MixerSetting>("otherMixer");
    otherMixer->param.volume = 2;
    other->Offer<INLEMixerSetting>(otherMixer);
    NLETimeline first(node, ExactType_Project, nullptr);
    NLETimeline second(other, ExactType_Project, nullptr);
    NLETimeline bare(nullptr, ExactType_Project, nullptr);
    FMixerSettingDelegate strips(&first, nullptr);
    tagMixerParam param{};
    QVERIFY(strips.GetMixerParam(0, &param) && strips.GetMixerParam(0, &param));
    QCOMPARE(param.volume, 1.0);
    strips.SetTimeline(&second);
    QCOMPARE(
        script.TakeCalls().filter("GetInterface"),
        QStringList({"node.GetInterface(E6CC159E, 0, 0)", "other.GetInterface(E6CC159E, 0, 0)"}));
    QVERIFY(strips.GetMixerParam(0, &param));
    QCOMPARE(param.volume, 2.0);
    strips.SetTimeline(&bare);
    QVERIFY(!strips.GetMixerParam(0, &param) && !strips.SetMixerParam(0, param));
}

QTEST_GUILESS_MAIN(tst_TimelineHelpers)
#include "tst_timelinehelpers.moc"
