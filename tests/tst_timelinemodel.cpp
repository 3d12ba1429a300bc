// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"
#include "tests/support/ScriptedComposite.h"
#include "tests/support/ScriptedSession.h"
#include "tests/support/ScriptedSettings.h"

#include <QtTest>

#include <functional>
#include <limits>

using namespace Scripted;
using Operation = std::function<QVariant(NLETimeline&)>;
Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(NLERange)

namespace {

constexpr int Min = std::numeric_limits<int>::min();
constexpr int Max = std::numeric_limits<int>::max();

/// Counts the calls of its hooks.
class Probe : public NLETimeline
{
public:
    explicit Probe(const NLEComPtr<INLETimeline>& node)
        : NLETimeline(node, ExactType_Video, nullptr)
    {
    }
    int moves = 0;
    int trims = 0;

protected:
    void PositionChanged() override { ++moves; }
    void TrimRangeChanged() override { ++trims; }
};

} // namespace

class tst_TimelineModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void settings_data();
    void settings();
    void gettersThatFail();
    void onlyChangesAreSet();
    void lengths_data();
    void lengths();
    void freezeFrame_data();
    void freezeFrame();
    void tree();
    void currentNode();
    void project();
    void helpersLiveAsLongAsTheNode();

private:
    Script& script = Script::Get();
    NLEComPtr<Node> node;
    NLEComPtr<Composite> composite;
    NLEComPtr<ProjectSetting> setting;
};

/// A node that answers everything.
void tst_TimelineModel::init()
{
    composite = MakeCom<Composite>("composite");
    setting = MakeCom<ProjectSetting>("setting");
    setting->profile = {{64, 48}, {30, 1}, 44100, 1, 8};
    node = MakeCom<Node>("node");
    node->Offer<INLETimelineComposite>(composite);
    node->Offer<INLETimelineCompositeEx>(composite);
    node->Offer<INLEProjectSetting>(setting);
    node->Offer<INLETimelineSource>(MakeCom<Source>("source"));
    node->Offer<INLETimelineSourceDecoder>(MakeCom<SourceDecoder>("decoder"));
    node->Offer<INLEAudioStreamProcess>(MakeCom<AudioStreamProcess>("audio"));
    node->Offer<INLEVideoStreamProcess>(MakeCom<VideoStreamProcess>("video"));
    node->Offer<INLEBlendSetting>(MakeCom<BlendSetting>("blend"));
    node->Offer<INLETransform>(MakeCom<Scripted::Transform>("transform"));
    script.SetResult("node.GetProperties", MakeCom<Properties>("bag"));
}

void tst_TimelineModel::cleanup()
{
    EndSession();
    QCOMPARE(References(node.get()), 1u);
    node.reset();
    composite.reset();
    setting.reset();
    QCOMPARE(script.LiveObjects(), QStringList());
}

template <typename T>
static QVariant ToVariant(const T& value)
{
    if constexpr (std::is_enum_v<T>)
        return int(value);
    else
        return QVariant(value);
}

/// Rows that set an \a argument of \a target and then read \a value, the same when it is not given.
/// Without an engine that is \a neutral, or the default of its type.
template <typename Target>
static auto RowsFor(Target target)
{
    return [=](const char* call, auto set, auto get, const auto& argument, QVariant value = {},
               QVariant neutral = {}) {
        const Operation operation = [=](NLETimeline& timeline) {
            std::invoke(set, target(timeline), argument);
            return ToVariant(std::invoke(get, target(timeline)));
        };
        if (!value.isValid())
            value = ToVariant(argument);
        if (!neutral.isValid())
            neutral = QVariant(value.userType(), nullptr);
        QTest::newRow(call) << operation << value << neutral;
    };
}

void tst_TimelineModel::settings_data()
{
    using T = NLETimeline;
    using A = FAudioStreamProcessHelper;
    using V = FVideoStreamProcessHelper;
    using B = FTimelineBlendingHelper;
    using P = FTimelineTransformHelper;
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("neutral");
    auto row = RowsFor([](T& t) { return &t; });
    row("node.SetLevel(-3)", &T::SetLevel, &T::GetLevel, -3);
    row("node.SetPosition(-5)", &T::SetPosition, &T::GetPosition, -5);
    row("node.SetMarginMode(2)", &T::SetMarginMode, &T::GetMarginMode, NLEMargin_Stretch);
    row("node.SetEnabled(true)", &T::SetHiden, &T::GetClipEnable, false, true);
    const auto rate = [=](const char* call, float argument, float value) {
        row(call, &T::SetRenderFrameRate, &T::GetRenderFrameRate, argument, value, 25.f);
    };
    rate("node.SetRenderFrameRate(29969999/1000000)", 29.97f, 29.97f);
    rate("node.SetRenderFrameRate(0/1000000)", float(qQNaN()), 0);
    rate("node.SetRenderFrameRate(9223372036854775807/1000000)", 3e38f, 9223372036854.775807f);
    const auto guid = [=](const char* call, auto set, auto get, const QString& text) {
        row(call, set, get, text, text, "0");
    };
    guid("bag.SetString(Key_TimelineGuid, ü\U0001F3AC)", &T::SetTimelineGuid, &T::GetTimelineGuid,
         "ü\U0001F3AC");
    guid("bag.SetString(Key_AncestralGuid, )", &T::SetAncestralGuid, &T::GetAncestralGuid, "");
    row("bag.SetInt(kFreeze_Enabled, 1)", &T::SetFreezeEnable, &T::IsFreezeEnable, true);
    row("bag.SetInt(kSpeed_Enabled, 1)", &T::SetRenderScaleEnable, &T::IsRenderScaleEnable, true);
    const auto scale = [=](const char* call, float argument, float value) {
        row(call, &T::SetRenderScale, &T::GetRenderScale, argument, value);
    };
    scale("bag.SetRational(kSpeed_Scale, -150000000/100000000)", -1.5f, -1.5f);
    scale("bag.SetRational(kSpeed_Scale, -9223372036854775808/100000000)", -3e38f, -92233720368.5f);
    row("bag.SetInt(kRender_Mode, 2)", &T::SetRenderMode, &T::GetLevel, NLERender_AudioOnly, 0);
    const QColor color(1, 2, 3, 128);
    row("bag.SetInt(kRender_BackgroundColor, -2147417597)", &T::SetRenderBackgroundColor,
        &T::GetRenderBackgroundColor, color, color, QColor(0, 0, 0, 0));
    row("source.SetFilePath(/é)", &T::SetFilePath, &T::GetFilePath, "/é");
    row("decoder.SetGPUFirst(2)", &T::SetGPUFirst, &T::GetGPUFirst, 2);

    const auto audio = RowsFor(std::mem_fn(&T::GetAudioStreamProcessHelper));
    audio("audio.SetPitch(-7)", &A::SetPitch, &A::GetPitch, -7);
    audio("audio.SetDenoiseEnable(true)", &A::SetDenoiseEnable, &A::GetDenoiseEnable, true);
    audio("audio.SetMixToMonoEnable(true)", &A::SetMix2MomoEnable, &A::GetMix2MomoEnable, true);
    audio("audio.SetVolumeEnable(true)", &A::SetVolumeEnable, &A::GetVolumeEnable, true);
    audio("audio.SetMute(true)", &A::SetMute, &A::GetMute, true);
    audio("audio.SetBalance(-0.5)", &A::SetBalance, &A::GetBalance, -0.5);
    audio("audio.SetFadeInEnable(true)", &A::SetFadeInEnable, &A::GetFadeInEnable, true);
    audio("audio.SetFadeInRange(5)", &A::SetFadeInRange, &A::GetFadeInRange, 5);
    audio("audio.SetFadeOutEnable(true)", &A::SetFadeOutEnable, &A::GetFadeOutEnable, true);
    audio("audio.SetFadeOutRange(6)", &A::SetFadeOutRange, &A::GetFadeOutRange, 6);
    audio("audio.SetEqualizerEnable(true)", &A::SetEqualizerEnable, &A::GetEqualizerEnable, true);
    audio("audio.SetEqualizerName(ö)", &A::SetEqualizerName, &A::GetEqualizerName, "ö");
    const auto video = RowsFor(std::mem_fn(&T::GetVideoStreamProcessHelper));
    video("video.SetProxyEnabled(true)", &V::SetProxyEnabled, &V::GetProxyEnabled, true);
    const auto blend = RowsFor(std::mem_fn(&T::GetBlendingHelper));
    blend("blend.SetEnable(true)", &B::SetBlendingEnable, &B::GetBlendingEnable, true);
    blend("blend.SetMode(3)", &B::SetBlendingMode, &B::GetBlendingMode, 3);
    blend("blend.SetAlpha(128)", &B::SetBlendingAlpha, &B::GetBlendingAlpha, 128);
    const auto place = RowsFor(std::mem_fn(&T::GetTransformHelper));
    place("transform.SetEnable(true)", &P::SetTransformEnable, &P::GetTransformEnable, true);
    place("transform.SetRotation(-90.5)", &P::SetRotate, &P::GetRotate, -90.5);
}

void tst_TimelineModel::settings()
{
    QFETCH(Operation, operation);
    const QString call = QTest::currentDataTag();
    NLETimeline nothing(nullptr, ExactType_Unknown, nullptr);
    QTEST(operation(nothing), "neutral");
    NLETimeline lacking(MakeCom<Node>("lacking"), ExactType_Unknown, nullptr);
    if (!call.startsWith("node."))
        QTEST(operation(lacking), "neutral");
    script.TakeCalls();
    NLETimeline timeline(node, ExactType_Video, nullptr);
    QTEST(operation(timeline), "value");
    const QStringList calls = script.TakeCalls();
    QCOMPARE(calls.filter(".Set"), QStringList(call));
    // The interface is kept; only the video helper asks anew, for the first time when it is made.
    // The transform comes by a plain query.
    const QString video = "node.GetInterface(7E764BF3, 0, 0)";
    const QHash<QString, QStringList> lookUps = {{"audio", {"node.GetInterface(1A649613, 0, 0)"}},
                                                 {"blend", {"node.GetInterface(328290B5, 0, 0)"}},
                                                 {"video", {video, video, video}}};
    QCOMPARE(calls.filter("GetInterface"), lookUps.value(call.section('.', 0, 0)));
}

void tst_TimelineModel::gettersThatFail()
{
    node->range = node->totalRange = {3, 9};
    node->id = 4000000000u;
    NLETimeline timeline(node, ExactType_Video, nullptr);
    QCOMPARE(timeline.GetGuidString(), "4000000000");
    for (const char* operation : {"node.GetRange", "node.GetTotalRange", "node.GetPosition",
                                  "node.GetRenderFrameRate", "node.GetId"})
        script.SetStatus(operation, E_FAIL);
    QCOMPARE(timeline.GetRange(), qMakePair(0, 0));
    QCOMPARE(timeline.GetPlayLen() + timeline.GetTotalLength() + timeline.GetDuration(), 0);
    QVERIFY(!timeline.IsFrameIn(0));
    QCOMPARE(timeline.GetRenderFrameRate(), 25.f);
    QCOMPARE(timeline.GetGuidString(), "0");
}

void tst_TimelineModel::onlyChangesAreSet()
{
    Probe clip(node);
    node->range = {2, 8};
    node->position = 5;
    script.TakeCalls();
    clip.SetPosition(5);
    clip.SetRange(2, 8);
    clip.SetClipRange(&clip, 2, 8);
    QCOMPARE(clip.moves + clip.trims, 0);
    QCOMPARE(script.TakeCalls().filter("Set"), QStringList());
    clip.SetTrimin(3);
    clip.SetTrimout(Min);
    QCOMPARE(script.TakeCalls().join(' ').remove("node."),
             QString("GetRange() GetRange() SetRange(3..8) GetRange() GetRange() SetRange(3..%1)")
                 .arg(Min));
    clip.SetRange(qMakePair(3, 4));
    QCOMPARE(clip.trims, 3);
    clip.SetClipPos(&clip, 6);
    clip.SetClipLevel(&clip, 2);
    QCOMPARE(clip.moves, 1);
    QVERIFY(node->position == 6 && node->level == 2);
}

void tst_TimelineModel::lengths_data()
{
    QTest::addColumn<NLERange>("range");
    QTest::addColumn<int>("position");
    QTest::addColumn<QList<int>>("results"); // length, seconds at 1/2 a second, and at 0
    QTest::addColumn<QList<int>>("inside");
    QTest::addColumn<QList<int>>("outside");
    using L = QList<int>;
    QTest::newRow("three") << NLERange{2, 4} << 10 << L{3, 6, 0} << L{10, 12} << L{9, 13};
    QTest::newRow("empty") << NLERange{4, 3} << 10 << L{0, 0, 0} << L{} << L{9, 10, 11};
    QTest::newRow("reversed far") << NLERange{Max, Min} << 0 << L{0, 0, 0} << L{} << L{Min, 0, Max};
    QTest::newRow("everything") << NLERange{Min, Max} << Min << L{Max, Max, 0} << L{Min, 0, Max}
                                << L{};
    QTest::newRow("past the end") << NLERange{0, 9} << Max << L{10, 20, 0} << L{Max}
                                  << L{Min, Max - 1};
}

void tst_TimelineModel::lengths()
{
    QFETCH(NLERange, range);
    QFETCH(int, position);
    QFETCH(QList<int>, inside);
    QFETCH(QList<int>, outside);
    node->range = node->totalRange = range;
    node->position = position;
    node->rate = {1, 2};
    NLETimeline timeline(node, ExactType_Video, nullptr);
    QCOMPARE(timeline.GetTotalLength(), timeline.GetPlayLen());
    const int seconds = timeline.GetDuration();
    node->rate = {1, 0};
    QTEST((QList<int>{timeline.GetPlayLen(), seconds, timeline.GetDuration()}), "results");
    for (int frame : inside)
        QVERIFY2(timeline.IsFrameIn(frame), qPrintable(QString::number(frame)));
    for (int frame : outside)
        QVERIFY2(!timeline.IsFrameIn(frame), qPrintable(QString::number(frame)));
}

void tst_TimelineModel::freezeFrame_data()
{
    QTest::addColumn<int>("frame");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("range");
    QTest::newRow("one") << -3 << 1 << "-3..-3";
    QTest::newRow("many") << 5 << 10 << "5..14";
    QTest::newRow("past the end") << Max - 1 << Max << "2147483646..2147483647";
    QTest::newRow("none") << 5 << 0 << "";
    QTest::newRow("less than none") << Min << Min << "";
}

void tst_TimelineModel::freezeFrame()
{
    QFETCH(int, frame);
    QFETCH(QString, range);
    QFETCH(int, count);
    NLETimeline timeline(node, ExactType_Video, nullptr);
    timeline.SetFreezeFrame(frame, count);
    const QStringList calls{QString("bag.SetInt(kFreeze_Frame, %1)").arg(frame),
                            "bag.SetInt(kFreeze_Enabled, 1)", "node.SetRange(" + range + ')'};
    QCOMPARE(script.TakeCalls().filter("Set"), range.isEmpty() ? QStringList() : calls);
}

void tst_TimelineModel::tree()
{
    auto bare = MakeCom<Node>("bare");
    Probe clip(bare);
    NLETimeline project(node, ExactType_Project, nullptr);
    script.SetResult("bare.GetParent", node);
    QCOMPARE(clip.GetParentTimeline().get(), node.get());
    QVERIFY(!project.GetParentTimeline());
    QVERIFY(project.GetChilds().isEmpty());
    composite->clips = {bare, node, bare};
    QCOMPARE(project.GetClipCount(), 3);
    QCOMPARE(project.GetChilds(), QList<NLEComPtr<INLETimeline>>({bare, node, bare}));
    composite->clips.clear();
    QVERIFY(clip.GetClipCount() == 0 && clip.GetChilds().isEmpty());

    script.TakeCalls();
    project.AddClipSuper(&clip, 9, 4);
    project.AddClipSuper(&clip, 9, 5);
    QCOMPARE(clip.moves, 1);
    project.RemoveClip(&clip);
    project.AddClipSuper(bare);
    project.RemoveClip(bare);
    QCOMPARE(script.TakeCalls().join(' '),
             "bare.SetLevel(4) bare.GetPosition() bare.SetPosition(9) composite.AddClip(bare) "
             "bare.SetLevel(5) bare.GetPosition() composite.AddClip(bare) "
             "composite.RemoveClip(bare) composite.AddClip(bare) composite.RemoveClip(bare)");
    project.AddClipSuper(nullptr, 1, 2);
    project.AddClipSuper(NLEComPtr<INLETimeline>());
    project.RemoveClip(static_cast<NLETimeline*>(nullptr));
    project.RemoveClip(NLEComPtr<INLETimeline>());
    project.SetClipPos(nullptr, 1);
    project.SetClipRange(nullptr, 1, 2);
    project.SetClipLevel(nullptr, 1);
    QCOMPARE(script.TakeCalls(), QStringList());
    clip.AddClipSuper(&project, 3, 4);
    clip.RemoveClip(&project);
    QVERIFY2(node->position == 3 && node->level == 4, "placed, though not added");

    QVERIFY(!clip.IsSource() && !clip.IsEffect() && !clip.IsTransition() && project.IsSource());
    bare->Offer<INLETimelineEffect>(MakeCom<Kinds>("kinds"));
    QVERIFY(clip.IsEffect() && !clip.IsTransition());
    bare->Offer<INLETimelineTransition>(MakeCom<Kinds>("kinds"));
    QVERIFY(clip.IsTransition());
    script.Reset(); // the parent is a result
}

void tst_TimelineModel::currentNode()
{
    NLETimeline project(node, ExactType_Project, nullptr);
    QVERIFY2(!project.GetCurrentTimeline(), "without the flag");
    QVector<NLEComPtr<RenderRegion>> flags;
    const auto offerFlag = [&flags](const NLEComPtr<Node>& to) {
        flags.append(MakeCom<RenderRegion>("flag"));
        to->Offer<INLERenderRegion>(flags.last());
        return NLEComPtr<INLETimeline>(to);
    };
    offerFlag(node);
    QVERIFY(!project.GetCurrentTimeline());
    flags[0]->current = true;
    QCOMPARE(project.GetCurrentTimeline().get(), node.get());
    QVERIFY2(!project.GetCurrentTimelineEx(), "never the node itself");

    for (const char* name : {"a", "b", "c"})
        composite->clips.append(offerFlag(MakeCom<Node>(name)));
    composite->allClips = composite->clips;
    composite->clips.removeLast();
    QVERIFY2(!project.GetCurrentTimeline(), "not the node itself once there are clips");
    flags[3]->current = true;
    QVERIFY(!project.GetCurrentTimeline());
    script.TakeCalls();
    QCOMPARE(Text(project.GetCurrentTimelineEx().get()), "c");
    QVERIFY(script.TakeCalls().contains("composite.GetEnumerator(1, 1)"));
    flags[1]->current = flags[2]->current = true;
    QCOMPARE(Text(project.GetCurrentTimeline().get()), "a");
    QVERIFY(script.TakeCalls().contains("composite.GetEnumerator(1)"));
}

void tst_TimelineModel::project()
{
    NLETimeline project(node, ExactType_Project, nullptr);
    project.SetProjectFps(12.5f);
    project.SetProjectResolution(-1, 5);
    const tagNLEProjectProfile profile = project.GetProjectProfile();
    QCOMPARE(Text(profile.frameRate), "12500000/1000000");
    QCOMPARE(Text(profile.frameSize), "-1x5");
    QVERIFY2(profile.sampleRate == 44100 && profile.channels == 1 && profile.sampleFormat == 8,
             "the rest is written back as it was");
    QCOMPARE(project.GetProjectFps(), 12.5f);
    script.SetStatus("setting.GetProfile", E_FAIL);
    script.TakeCalls();
    project.SetProjectFps(50);
    project.SetProjectResolution(1, 1);
    QCOMPARE(script.TakeCalls().filter("SetProfile"), QStringList());
    QCOMPARE(Text(project.GetProjectProfile().frameSize), "1920x1080");
    QCOMPARE(project.GetProjectResolution(), QSize(0, 0));
    QCOMPARE(project.GetProjectFps(), 0.f);
}

void tst_TimelineModel::helpersLiveAsLongAsTheNode()
{
    NLETimeline timeline(node, ExactType_Video, nullptr);
    QStringList deleted;
    const auto all = [&timeline] {
        return QList<QObject*>{timeline.GetTransformHelper(), timeline.GetBlendingHelper(),
                               timeline.GetAudioStreamProcessHelper(),
                               timeline.GetVideoStreamProcessHelper()};
    };
    const QList<QObject*> first = all();
    QCOMPARE(all(), first);
    QStringList names;
    for (QObject* helper : first) {
        QCOMPARE(helper->parent(), &timeline);
        const QString name = helper->metaObject()->className();
        names.append(name);
        connect(helper, &QObject::destroyed, [&deleted, name] { deleted.append(name); });
    }
    QCOMPARE(References(node.get()), 6u);
    timeline.SetTimelineBase(node);
    QCOMPARE(deleted, names); // in this order, which is not that of the fields
    QCOMPARE(References(node.get()), 2u);
    all();
    QCOMPARE(timeline.children().size(), 4);
}

QTEST_GUILESS_MAIN(tst_TimelineModel)
#include "tst_timelinemodel.moc"
