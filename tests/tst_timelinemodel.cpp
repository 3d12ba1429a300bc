// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"
#include "tests/support/LogCapture.h"
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
using Audio = FAudioStreamProcessHelper;
using Blending = FTimelineBlendingHelper;
using Placing = FTimelineTransformHelper;
using Video = FVideoStreamProcessHelper;

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

/// Counts the calls of its hooks.
struct Probe : NLETimeline
{
    explicit Probe(INLETimeline* node) : NLETimeline(node, ExactType_Video, nullptr) {}
    void PositionChanged() override { ++moves; }
    void TrimRangeChanged() override { ++trims; }

    int moves = 0;
    int trims = 0;
};

/// A node that answers everything, and one that answers nothing; both on a parent.
struct Engine
{
    Engine()
    {
        node->Offer<INLETimelineComposite>(composite);
        node->Offer<INLETimelineCompositeEx>(composite);
        node->Offer<INLEProjectSetting>(setting);
        node->Offer<INLETimelineSource>(MakeCom<Source>("source"));
        node->Offer<INLETimelineSourceDecoder>(MakeCom<SourceDecoder>("decoder"));
        node->Offer<INLEAudioStreamProcess>(audio);
        node->Offer<INLEVideoStreamProcess>(video);
        node->Offer<INLEBlendSetting>(MakeCom<BlendSetting>("blend"));
        node->Offer<INLETransform>(transform);
        node->Offer<INLEMixerSetting>(mixer);
        auto parent = MakeCom<Node>("parent");
        parent->Offer<INLERenderRegion>(region);
        Script::Get().results["node.GetParent"] = parent;
        Script::Get().results["lacking.GetParent"] = parent;
        Script::Get().results["node.GetProperties"] = bag;
    }

    NLEComPtr<Node> node = MakeCom<Node>("node");
    NLEComPtr<Node> lacking = MakeCom<Node>("lacking");
    NLEComPtr<Properties> bag = MakeCom<Properties>("bag");
    NLEComPtr<Composite> composite = MakeCom<Composite>("composite");
    NLEComPtr<ProjectSetting> setting = MakeCom<ProjectSetting>("setting");
    NLEComPtr<AudioStreamProcess> audio = MakeCom<AudioStreamProcess>("audio");
    NLEComPtr<VideoStreamProcess> video = MakeCom<VideoStreamProcess>("video");
    NLEComPtr<Scripted::Transform> transform = MakeCom<Scripted::Transform>("transform");
    NLEComPtr<RenderRegion> region = MakeCom<RenderRegion>("region");
    NLEComPtr<MixerSetting> mixer = MakeCom<MixerSetting>("mixer");
};

} // namespace

template <typename T>
static QVariant ToVariant(const T& value)
{
    if constexpr (std::is_enum_v<T>)
        return int(value);
    else
        return QVariant(value);
}

/// Rows that set an \a argument of \a target and then read \a value, the same when it is not given.
/// Without an engine that is \a neutral, or the default of its type. \a call is made of \a object.
template <typename Target>
static auto RowsFor(const QString& object, Target target)
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
            neutral = QVariant(QVariant::Type(value.userType()));
        QTest::newRow(qUtf8Printable(object + call)) << operation << value << neutral;
    };
}

class tst_TimelineModel : public QObject
{
    Q_OBJECT

private:
    Script& m_script = Script::Get();
    std::unique_ptr<Engine> m_e;

private Q_SLOTS:
    void init() { m_e = std::make_unique<Engine>(); }

    void cleanup()
    {
        EndSession();
        QCOMPARE(References(m_e->node.get()), 1u);
        m_e.reset();
        QCOMPARE(m_script.liveObjects, QStringList());
    }

    void settings_data()
    {
        using T = NLETimeline;
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("neutral");
        const auto self = [](T& t) { return &t; };
        const auto node = RowsFor("node.", self);
        node("SetLevel(-3)", &T::SetLevel, &T::GetLevel, -3);
        node("SetPosition(-5)", &T::SetPosition, &T::GetPosition, -5);
        node("SetMarginMode(2)", &T::SetMarginMode, &T::GetMarginMode, NLEMargin_Stretch);
        node("SetEnabled(true)", &T::SetHiden, &T::GetClipEnable, false, true);
        const auto rate = [=](const char* value, float argument, float result) {
            node(qPrintable(QString("SetRenderFrameRate(%1/1000000)").arg(value)),
                 &T::SetRenderFrameRate, &T::GetRenderFrameRate, argument, result, 25.f);
        };
        rate("29969999", 29.97f, 29.97f);
        rate("0", float(qQNaN()), 0);
        rate("9223372036854775807", 3e38f, 9223372036854.775807f);

        const auto bag = RowsFor("bag.", self);
        const QString guid = "ü\U0001F3AC";
        bag("SetString(Key_TimelineGuid, ü\U0001F3AC)", &T::SetTimelineGuid, &T::GetTimelineGuid,
            guid, guid, "0");
        bag("SetString(Key_AncestralGuid, )", &T::SetAncestralGuid, &T::GetAncestralGuid, "", "",
            "0");
        bag("SetInt(kFreeze_Enabled, 1)", &T::SetFreezeEnable, &T::IsFreezeEnable, true);
        bag("SetInt(kSpeed_Enabled, 1)", &T::SetRenderScaleEnable, &T::IsRenderScaleEnable, true);
        const auto scale = [=](const char* value, float argument, float result) {
            bag(qPrintable(QString("SetRational(kSpeed_Scale, %1/100000000)").arg(value)),
                &T::SetRenderScale, &T::GetRenderScale, argument, result);
        };
        scale("-150000000", -1.5f, -1.5f);
        scale("-9223372036854775808", -3e38f, -92233720368.5f);
        bag("SetInt(kRender_Mode, 2)", &T::SetRenderMode, &T::GetLevel, NLERender_AudioOnly, 0);
        const QColor color(1, 2, 3, 128);
        bag("SetInt(kRender_BackgroundColor, -2147417597)", &T::SetRenderBackgroundColor,
            &T::GetRenderBackgroundColor, color, color, QColor(0, 0, 0, 0));
        RowsFor("source.", self)("SetFilePath(/é)", &T::SetFilePath, &T::GetFilePath, "/é");
        RowsFor("decoder.", self)("SetGPUFirst(2)", &T::SetGPUFirst, &T::GetGPUFirst, 2);

        const auto audio = RowsFor("audio.", std::mem_fn(&T::GetAudioStreamProcessHelper));
        audio("SetPitch(-7)", &Audio::SetPitch, &Audio::GetPitch, -7);
        audio("SetDenoiseEnable(true)", &Audio::SetDenoiseEnable, &Audio::GetDenoiseEnable, true);
        audio("SetMixToMonoEnable(true)", &Audio::SetMix2MomoEnable, &Audio::GetMix2MomoEnable,
              true);
        audio("SetVolumeEnable(true)", &Audio::SetVolumeEnable, &Audio::GetVolumeEnable, true);
        audio("SetMute(true)", &Audio::SetMute, &Audio::GetMute, true);
        audio("SetBalance(-0.5)", &Audio::SetBalance, &Audio::GetBalance, -0.5);
        audio("SetFadeInEnable(true)", &Audio::SetFadeInEnable, &Audio::GetFadeInEnable, true);
        audio("SetFadeInRange(5)", &Audio::SetFadeInRange, &Audio::GetFadeInRange, 5);
        audio("SetFadeOutEnable(true)", &Audio::SetFadeOutEnable, &Audio::GetFadeOutEnable, true);
        audio("SetFadeOutRange(6)", &Audio::SetFadeOutRange, &Audio::GetFadeOutRange, 6);
        audio("SetEqualizerEnable(true)", &Audio::SetEqualizerEnable, &Audio::GetEqualizerEnable,
              true);
        audio("SetEqualizerName(ö)", &Audio::SetEqualizerName, &Audio::GetEqualizerName, "ö");
        const auto video = RowsFor("video.", std::mem_fn(&T::GetVideoStreamProcessHelper));
        video("SetProxyEnabled(true)", &Video::SetProxyEnabled, &Video::GetProxyEnabled, true);
        const auto blend = RowsFor("blend.", std::mem_fn(&T::GetBlendingHelper));
        blend("SetEnable(true)", &Blending::SetBlendingEnable, &Blending::GetBlendingEnable, true);
        blend("SetMode(3)", &Blending::SetBlendingMode, &Blending::GetBlendingMode, 3);
        blend("SetAlpha(128)", &Blending::SetBlendingAlpha, &Blending::GetBlendingAlpha, 128);
        const auto place = RowsFor("transform.", std::mem_fn(&T::GetTransformHelper));
        place("SetEnable(true)", &Placing::SetTransformEnable, &Placing::GetTransformEnable, true);
        place("SetRotation(-90.5)", &Placing::SetRotate, &Placing::GetRotate, -90.5);
    }

    void settings()
    {
        QFETCH(Operation, operation);
        const QString call = QTest::currentDataTag();
        NLETimeline nothing(nullptr, ExactType_Unknown, nullptr);
        QTEST(operation(nothing), "neutral");
        NLETimeline other(m_e->lacking, ExactType_Unknown, nullptr);
        if (!call.startsWith("node."))
            QTEST(operation(other), "neutral");
        m_script.TakeCalls();
        NLETimeline timeline(m_e->node, ExactType_Video, nullptr);
        QTEST(operation(timeline), "value");
        const QStringList calls = m_script.TakeCalls();
        QCOMPARE(calls.filter(".Set"), QStringList(call));
        // The interface is kept; only the video helper asks anew, for the first time when it is
        // made. The transform comes by a plain query.
        const QHash<QString, QString> lookUps = {
            {"audio", "1A649613"}, {"blend", "328290B5"}, {"video", "7E764BF3 7E764BF3 7E764BF3"}};
        QString made = calls.filter("GetInterface").join(' ').remove("node.GetInterface(");
        QCOMPARE(made.remove(", 0, 0)"), lookUps.value(call.section('.', 0, 0)));
    }

    void gettersThatFail()
    {
        m_e->node->range = m_e->node->totalRange = {3, 9};
        m_e->node->id = 4000000000u;
        NLETimeline timeline(m_e->node, ExactType_Video, nullptr);
        QCOMPARE(timeline.GetGuidString(), "4000000000");
        for (const char* operation : {"node.GetRange", "node.GetTotalRange", "node.GetPosition",
                                      "node.GetRenderFrameRate", "node.GetId"})
            m_script.statuses[operation] = E_FAIL;
        QCOMPARE(timeline.GetRange(), qMakePair(0, 0));
        QCOMPARE(timeline.GetPlayLen(), 0);
        QCOMPARE(timeline.GetTotalLength(), 0);
        QCOMPARE(timeline.GetDuration(), 0);
        QVERIFY(!timeline.IsFrameIn(0));
        QCOMPARE(timeline.GetRenderFrameRate(), 25.f);
        QCOMPARE(timeline.GetGuidString(), "0");
    }

    void onlyChangesAreSet()
    {
        Probe clip(m_e->node.get());
        m_e->node->range = {2, 8};
        m_e->node->position = 5;
        m_script.TakeCalls();
        clip.SetPosition(5);
        clip.SetRange(2, 8);
        clip.SetClipRange(&clip, 2, 8);
        QCOMPARE(clip.moves + clip.trims, 0);
        QCOMPARE(m_script.TakeCalls().filter("Set"), QStringList());
        clip.SetTrimin(3);
        clip.SetTrimout(kMin);
        QCOMPARE(
            m_script.TakeCalls().join(' ').remove("node."),
            QString("GetRange() GetRange() SetRange(3..8) GetRange() GetRange() SetRange(3..%1)")
                .arg(kMin));
        clip.SetRange(qMakePair(3, 4));
        QCOMPARE(clip.trims, 3);
        clip.SetClipPos(&clip, 6);
        clip.SetClipLevel(&clip, 2);
        QCOMPARE(clip.moves, 1);
        QCOMPARE(m_e->node->position, 6);
        QCOMPARE(m_e->node->level, 2);
    }

    void lengths_data()
    {
        QTest::addColumn<NLERange>("range");
        QTest::addColumn<int>("position");
        QTest::addColumn<QList<int>>("results"); // length, seconds at 1/2 a second, and at 0
        QTest::addColumn<QList<bool>>("inside"); // at the greatest and smallest int, 9 to 13
        using L = QList<int>;
        using B = QList<bool>;
        QTest::newRow("three") << NLERange{2, 4} << 10 << L{3, 6, 0} << B{0, 0, 0, 1, 1, 1, 0};
        QTest::newRow("empty") << NLERange{4, 3} << 10 << L{0, 0, 0} << B{0, 0, 0, 0, 0, 0, 0};
        QTest::newRow("reversed") << NLERange{kMax, kMin} << 9 << L{0, 0, 0}
                                  << B{0, 0, 0, 0, 0, 0, 0};
        QTest::newRow("all") << NLERange{kMin, kMax} << kMin << L{kMax, kMax, 0}
                             << B{1, 1, 1, 1, 1, 1, 1};
        QTest::newRow("far out") << NLERange{0, 9} << kMax << L{10, 20, 0}
                                 << B{1, 0, 0, 0, 0, 0, 0};
    }

    void lengths()
    {
        QFETCH(NLERange, range);
        QFETCH(int, position);
        m_e->node->range = m_e->node->totalRange = range;
        m_e->node->position = position;
        m_e->node->rate = {1, 2};
        NLETimeline timeline(m_e->node, ExactType_Video, nullptr);
        QCOMPARE(timeline.GetTotalLength(), timeline.GetPlayLen());
        const int seconds = timeline.GetDuration();
        m_e->node->rate = {1, 0};
        QTEST((QList<int>{timeline.GetPlayLen(), seconds, timeline.GetDuration()}), "results");
        QList<bool> inside;
        for (int frame : {kMax, kMin, 9, 10, 11, 12, 13})
            inside.append(timeline.IsFrameIn(frame));
        QTEST(inside, "inside");
    }

    void freezeFrame_data()
    {
        QTest::addColumn<int>("frame");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("calls");
        const auto row = [](const char* name, int frame, int count, const QString& range) {
            const QString freeze = "bag.SetInt(kFreeze_Frame, %1) bag.SetInt(kFreeze_Enabled, 1)%2";
            QTest::newRow(name) << frame << count << freeze.arg(QString::number(frame), range);
        };
        row("one", -3, 1, " node.SetRange(-3..-3)");
        row("ten", 5, 10, " node.SetRange(5..14)");
        row("the range stands already", 2, 3, "");
        row("up to the greatest", kMax - 1, kMax, " node.SetRange(2147483646..2147483647)");
        QTest::newRow("none") << 5 << 0 << "";
        QTest::newRow("fewer than none") << kMin << kMin << "";
    }

    void freezeFrame()
    {
        QFETCH(int, frame);
        QFETCH(int, count);
        m_e->node->range = {2, 4};
        NLETimeline timeline(m_e->node, ExactType_Video, nullptr);
        timeline.SetFreezeFrame(frame, count);
        QTEST(m_script.TakeCalls().filter("Set").join(' '), "calls");
    }

    void givesItsParent()
    {
        NLETimeline clip(m_e->lacking, ExactType_Video, nullptr);
        QCOMPARE(Text(clip.GetParentTimeline().get()), "parent");
        m_script.statuses["lacking.GetParent"] = E_FAIL;
        QVERIFY(!clip.GetParentTimeline());
    }

    void givesItsChildren()
    {
        using Children = QList<NLEComPtr<INLETimeline>>;
        NLETimeline project(m_e->node, ExactType_Project, nullptr);
        QCOMPARE(project.GetChilds(), Children());
        m_e->composite->clips = {m_e->lacking, m_e->node, m_e->lacking};
        QCOMPARE(project.GetClipCount(), 3);
        QCOMPARE(project.GetChilds(), Children({m_e->lacking, m_e->node, m_e->lacking}));
        m_e->composite->clips.clear();
        NLETimeline clip(m_e->lacking, ExactType_Video, nullptr);
        QCOMPARE(clip.GetClipCount(), 0);
        QCOMPARE(clip.GetChilds(), Children());
    }

    void clipsComeAndGo()
    {
        Probe clip(m_e->lacking.get());
        NLETimeline project(m_e->node, ExactType_Project, nullptr);
        m_script.TakeCalls();
        project.AddClipSuper(&clip, 9, 4);
        project.AddClipSuper(&clip, 9, 5);
        QCOMPARE(clip.moves, 1);
        project.RemoveClip(&clip);
        project.AddClipSuper(m_e->lacking);
        project.RemoveClip(m_e->lacking);
        QCOMPARE(m_script.TakeCalls().join(' '),
                 "lacking.SetLevel(4) lacking.GetPosition() lacking.SetPosition(9) "
                 "composite.AddClip(lacking) "
                 "lacking.SetLevel(5) lacking.GetPosition() composite.AddClip(lacking) "
                 "composite.RemoveClip(lacking) composite.AddClip(lacking) "
                 "composite.RemoveClip(lacking)");
    }

    void noClipIsIgnored()
    {
        NLETimeline project(m_e->node, ExactType_Project, nullptr);
        m_script.TakeCalls();
        project.AddClipSuper(nullptr, 1, 2);
        project.AddClipSuper(NLEComPtr<INLETimeline>());
        project.RemoveClip(static_cast<NLETimeline*>(nullptr));
        project.RemoveClip(NLEComPtr<INLETimeline>());
        project.SetClipPos(nullptr, 1);
        project.SetClipRange(nullptr, 1, 2);
        project.SetClipLevel(nullptr, 1);
        QCOMPARE(m_script.TakeCalls(), QStringList());
    }

    void clipIsPlacedThoughNotAdded()
    {
        NLETimeline clip(m_e->lacking, ExactType_Video, nullptr);
        NLETimeline project(m_e->node, ExactType_Project, nullptr);
        clip.AddClipSuper(&project, 3, 4);
        clip.RemoveClip(&project);
        QCOMPARE(m_e->node->position, 3);
        QCOMPARE(m_e->node->level, 4);
    }

    void kinds()
    {
        const auto kinds = [](const NLETimeline& timeline) {
            return QString(timeline.IsSource() ? "source " : "") +
                   (timeline.IsEffect() ? "effect " : "") +
                   (timeline.IsTransition() ? "transition " : "");
        };
        const NLETimeline clip(m_e->lacking, ExactType_Video, nullptr);
        QCOMPARE(kinds(NLETimeline(m_e->node, ExactType_Project, nullptr)), "source ");
        QCOMPARE(kinds(clip), "");
        m_e->lacking->Offer<INLETimelineEffect>(MakeCom<Kinds>("kinds"));
        QCOMPARE(kinds(clip), "effect ");
        m_e->lacking->Offer<INLETimelineTransition>(MakeCom<Kinds>("kinds"));
        QCOMPARE(kinds(clip), "effect transition ");
    }

    void currentNode()
    {
        NLETimeline project(m_e->node, ExactType_Project, nullptr);
        QVERIFY2(!project.GetCurrentTimeline(), "without the flag");
        QVector<NLEComPtr<RenderRegion>> flags;
        const auto offerFlag = [&flags](const NLEComPtr<Node>& to) {
            flags.append(MakeCom<RenderRegion>("flag"));
            to->Offer<INLERenderRegion>(flags.last());
            return NLEComPtr<INLETimeline>(to);
        };
        offerFlag(m_e->node);
        QVERIFY(!project.GetCurrentTimeline());
        flags[0]->current = true;
        QCOMPARE(project.GetCurrentTimeline().get(), m_e->node.get());
        QVERIFY2(!project.GetCurrentTimelineEx(), "never the node itself");

        for (const char* name : {"a", "b", "c"})
            m_e->composite->clips.append(offerFlag(MakeCom<Node>(name)));
        m_e->composite->allClips = m_e->composite->clips;
        m_e->composite->clips.removeLast();
        QVERIFY2(!project.GetCurrentTimeline(), "not the node itself once there are clips");
        flags[3]->current = true;
        QVERIFY(!project.GetCurrentTimeline());
        m_script.TakeCalls();
        QCOMPARE(Text(project.GetCurrentTimelineEx().get()), "c");
        QVERIFY(m_script.TakeCalls().contains("composite.GetEnumerator(1, 1)"));
        flags[1]->current = flags[2]->current = true;
        QCOMPARE(Text(project.GetCurrentTimeline().get()), "a");
        QVERIFY(m_script.TakeCalls().contains("composite.GetEnumerator(1)"));
    }

    void projectSettingsChangeTheirPartOfTheProfile()
    {
        m_e->setting->profile = {{64, 48}, {30, 1}, 44100, 1, 8};
        NLETimeline project(m_e->node, ExactType_Project, nullptr);
        project.SetProjectFps(12.5f);
        project.SetProjectResolution(-1, 5);
        const tagNLEProjectProfile profile = project.GetProjectProfile();
        QCOMPARE(Text(profile.frameRate), "12500000/1000000");
        QCOMPARE(Text(profile.frameSize), "-1x5");
        QCOMPARE(int(profile.sampleRate), 44100);
        QCOMPARE(int(profile.channels), 1);
        QCOMPARE(int(profile.sampleFormat), 8);
        QCOMPARE(project.GetProjectFps(), 12.5f);
    }

    void projectProfileThatFails()
    {
        NLETimeline project(m_e->node, ExactType_Project, nullptr);
        m_script.statuses["setting.GetProfile"] = E_FAIL;
        project.SetProjectFps(50);
        project.SetProjectResolution(1, 1);
        QCOMPARE(m_script.TakeCalls().filter("SetProfile"), QStringList());
        QCOMPARE(Text(project.GetProjectProfile().frameSize), "1920x1080");
        QCOMPARE(project.GetProjectResolution(), QSize(0, 0));
        QCOMPARE(project.GetProjectFps(), 0.f);
    }

    void resolutionOfNoProjectIsInvalid()
    {
        QCOMPARE(Probe(m_e->lacking.get()).GetProjectResolution(), QSize());
    }

    void helpersLiveAsLongAsTheNode()
    {
        NLETimeline timeline(m_e->node, ExactType_Video, nullptr);
        QStringList deleted;
        const auto all = [&timeline] {
            return QList<QObject*>{timeline.GetTransformHelper(), timeline.GetBlendingHelper(),
                                   timeline.GetAudioStreamProcessHelper(),
                                   timeline.GetVideoStreamProcessHelper(),
                                   timeline.GetPreViewRenderHelper()};
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
        QCOMPARE(References(m_e->node.get()), 7u);
        timeline.SetTimelineBase(m_e->node);
        QCOMPARE(deleted, names); // in this order, which is not that of the fields
        QCOMPARE(References(m_e->node.get()), 2u);
        all();
        QCOMPARE(timeline.children().size(), 5);
    }

    void onlyZeroIsSuccess_data()
    {
        QTest::addColumn<bool>("hasHelpers");
        QTest::addColumn<HRESULT>("status");
        QTest::addColumn<bool>("succeeds");
        QTest::newRow("success") << true << S_OK << true;
        QTest::newRow("positive") << true << S_FALSE << false;
        QTest::newRow("failure") << true << E_FAIL << false;
        QTest::newRow("nothing to ask") << false << S_OK << false;
    }

    void onlyZeroIsSuccess()
    {
        QFETCH(bool, hasHelpers);
        QFETCH(HRESULT, status);
        QFETCH(bool, succeeds);
        for (const char* operation :
             {"audio.GetVolume", "audio.GetDenoiseLevel", "mixer.GetParam", "mixer.SetParam"})
            m_script.statuses[operation] = status;
        NLETimeline timeline(hasHelpers ? m_e->node : m_e->lacking, ExactType_Video, nullptr);
        FMixerSettingDelegate strips(&timeline, nullptr);
        const auto* helper = timeline.GetAudioStreamProcessHelper();
        double volume = 0;
        int level = 0;
        tagMixerParam param{};
        QCOMPARE(helper->GetVolume(volume), succeeds);
        QCOMPARE(helper->GetDenoiseLevel(level), succeeds);
        QCOMPARE(strips.GetMixerParam(3, &param), succeeds);
        QCOMPARE(strips.SetMixerParam(4, param), succeeds);
        QCOMPARE(m_script.TakeCalls().filter("mixer.").join(' '),
                 hasHelpers ? "mixer.GetParam(3) mixer.SetParam(4)" : "");
    }

    void audioObjects()
    {
        const Audio without(m_e->lacking, nullptr);
        auto* const untouched = reinterpret_cast<INLEKeyFrameParam*>(this);
        INLEKeyFrameParam* param = untouched;
        double band = 7;
        without.GetVolumeKeyFrameParam(&param);
        without.GetEqualizerParam(&band);
        QCOMPARE(param, untouched);
        QCOMPARE(band, 7.0);

        Audio helper(m_e->node, nullptr);
        helper.GetVolumeKeyFrameParam(&param);
        QVERIFY(!param);
        helper.SetEqualizerParam(&band);
        band = 0;
        helper.GetEqualizerParam(&band);
        QCOMPARE(band, 7.0);
        helper.SetVolume(0.25);
        helper.SetDenoiseLevel(3);
        QCOMPARE(m_e->audio->volume, 0.25);
        QCOMPARE(m_e->audio->denoiseLevel, 3);
        m_e->audio->equalizerName = QString(300, 'x');
        QCOMPARE(helper.GetEqualizerName(), QString(127, 'x')); // cut to its buffer
    }

    void alphaChannel()
    {
        const auto values = [](const Video::AlphaChannelParm& p) {
            const QList<int> numbers{p.nParam1, p.nParam2, p.nParam3,
                                     p.nParam5, p.nParam6, p.nParam7};
            return qMakePair(numbers, p.dParam4);
        };
        QCOMPARE(values(Video(m_e->lacking, nullptr).GetAlphaChannel()),
                 qMakePair(QList<int>({0, 1, 0, 0, 0, 0}), 0.0));
        Video helper(m_e->node, nullptr);
        memset(&m_e->video->record, 0x5A, sizeof m_e->video->record);
        const NLEAlphaChannelRecord before = m_e->video->record;
        const Video::AlphaChannelParm parm{1, -2, 3, 4.5, -5, 6, 7};
        helper.SetAlphaChannel(parm);
        QCOMPARE(values(helper.GetAlphaChannel()), values(parm));
        const auto* fields = reinterpret_cast<const qint32*>(&m_e->video->record);
        QCOMPARE(fields[1], -2);
        QCOMPARE(fields[6], -5);
        constexpr int kept = 36; // bytes from here on are the engine's
        QVERIFY(!memcmp(reinterpret_cast<const char*>(&m_e->video->record) + kept,
                        reinterpret_cast<const char*>(&before) + kept, sizeof before - kept));
    }

    void premultipliedType()
    {
        Video without(m_e->lacking, nullptr);
        without.SetPremultiAlphaType(2);
        QCOMPARE(without.GetPremultiAlphaType(), 0);
        m_e->video->alphaType = 5;
        Video helper(m_e->node, nullptr);
        m_e->video->alphaType = 6;
        QCOMPARE(helper.GetPremultiAlphaType(), 5); // as it was when the helper was made
        helper.SetPremultiAlphaType(2);
        QCOMPARE(helper.GetPremultiAlphaType(), 2);
        QCOMPARE(m_e->video->alphaType, 2);
    }

    void proxyFile()
    {
        Video helper(m_e->node, nullptr);
        const QString file = QCoreApplication::applicationFilePath();
        for (const QString& path : {file, QString("/none"), QString()})
            helper.SetProxyFile(path);
        QCOMPARE(m_script.TakeCalls().filter("SetProxyFile").join(' ').remove("video.SetProxyFile"),
                 '(' + file + ") ()"); // not what does not exist
        m_e->video->proxyPath = QString(300, 'x');
        QCOMPARE(helper.GetProxyPeth(), QString(259, 'x')); // cut to its buffer
    }

    void pixels_data()
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

    void pixels()
    {
        QFETCH(QSizeF, size);
        QFETCH(QPointF, pixels);
        QFETCH(QPointF, normalised);
        const QPointF back(size.width() > 0 ? pixels.x() : 0, size.height() > 0 ? pixels.y() : 0);
        m_e->region->region = {3, 4, size.width(), size.height()};
        Placing helper(m_e->node, nullptr);
        m_e->transform->center = {7, 8};
        helper.SetXpos(float(pixels.x()));
        QCOMPARE(helper.GetCenterPos(), QPointF(normalised.x(), 8));
        helper.SetYpos(float(pixels.y()));
        QCOMPARE(helper.GetCenterPos(), normalised);
        m_e->transform->center = {7, 8};
        helper.SetXYpos(pixels);
        QCOMPARE(helper.GetCenterPos(), normalised);
        QCOMPARE(helper.GetXYpos(), back);
        QCOMPARE(QPointF(helper.GetXpos(), helper.GetYpos()), back);
    }

    void placeWithoutRegion()
    {
        Placing helper(m_e->node, nullptr);
        m_e->transform->center = {7, 8};
        m_script.statuses["node.GetParent"] = E_FAIL;
        NLERectF rect{};
        QVERIFY(!helper.GetRenderROD(rect));
        helper.SetXYpos({1, 1});
        helper.SetXpos(1);
        helper.SetYpos(1);
        QCOMPARE(helper.GetCenterPos(), QPointF(7, 8));
        QCOMPARE(helper.GetXYpos(), QPointF());
        QCOMPARE(helper.GetXpos(), 0.f);
        QCOMPARE(helper.GetYpos(), 0.f);
    }

    void placeWithoutTransform()
    {
        const Placing lacking(m_e->lacking, nullptr);
        QCOMPARE(lacking.GetXYpos(), QPointF());
        QCOMPARE(lacking.GetXpos(), 0.f);
        QCOMPARE(lacking.GetYpos(), 0.f);
    }

    void renderRegion()
    {
        Placing without(m_e->lacking, nullptr);
        without.SetRenderRegion(QRectF(1, 2, 3, 4));
        QCOMPARE(without.GetRenderRegion(), QRectF(0, 0, 1, 1));
        QCOMPARE(without.GetResizeScale(), QSizeF(0, 0));
        Placing helper(m_e->node, nullptr);
        helper.SetRenderRegion(QRectF(0.25, 0.125, 0.5, 0.75));
        QCOMPARE(helper.GetCenterPos(), QPointF(0.5, 0.5));
        QCOMPARE(helper.GetResizeScale(), QSizeF(0.5, 0.75));
        QCOMPARE(helper.GetRenderRegion(), QRectF(0.5, 0.25, 0.5, 0.75)); // not what was set
        helper.SetResizeScale(QSizeF(2, 3));
        QCOMPARE(helper.GetRenderRegion(), QRectF(-1, -2, 2, 3));
    }

    void lock()
    {
        auto parentBag = MakeCom<Properties>("bag");
        m_script.results["parent.GetProperties"] = parentBag;
        LogCapture log;
        Placing helper(m_e->node, nullptr);
        helper.SetTransformLock(true);
        QVERIFY2(!helper.GetTransformLock(), "the engine's lock is never read back");
        m_e->bag->strings["key_timeline_type"] = "11";
        helper.SetTransformLock(false);
        m_e->bag->strings["key_timeline_type"] = "11x";
        parentBag->strings["key_timeline_type"] = "11";
        helper.SetTransformLock(true);
        QCOMPARE(m_script.TakeCalls().filter("Lock").join(' ').remove("transform.SetLock"),
                 "(true) (false) (true)");
        const QString line =
            "-INFO- [FTimelineTransformHelper::SetTransformLock]:  %1 m_ptimeline = "
            "%2, lock = %3 - [CommonLib/NLEWraper/FTimelineTransformHelper(";
        const QString address = QString::number(quint32(quintptr(m_e->node.get())), 16);
        const QRegularExpression lineNumber("\\d+\\)\\]$");
        QCOMPARE(log.Take().replaceInStrings(lineNumber, ""),
                 QStringList({line.arg("SplitScreen", address, "0"),
                              line.arg("SubSplitScreen", address, "1")}));
    }

    void mixerFollowsItsTimeline()
    {
        m_e->mixer->param.volume = 1;
        auto other = MakeCom<Node>("other");
        auto otherMixer = MakeCom<MixerSetting>("otherMixer");
        otherMixer->param.volume = 2;
        other->Offer<INLEMixerSetting>(otherMixer);
        NLETimeline first(m_e->node, ExactType_Project, nullptr);
        NLETimeline second(other, ExactType_Project, nullptr);
        NLETimeline bare(nullptr, ExactType_Project, nullptr);
        FMixerSettingDelegate strips(&first, nullptr);
        tagMixerParam param{};
        QVERIFY(strips.GetMixerParam(0, &param));
        QVERIFY(strips.GetMixerParam(0, &param));
        QCOMPARE(param.volume, 1.0);
        strips.SetTimeline(&second);
        QCOMPARE(m_script.TakeCalls().filter("GetInterface").join(' '),
                 "node.GetInterface(E6CC159E, 0, 0) other.GetInterface(E6CC159E, 0, 0)");
        QVERIFY(strips.GetMixerParam(0, &param));
        QCOMPARE(param.volume, 2.0);
        strips.SetTimeline(&bare);
        QVERIFY(!strips.GetMixerParam(0, &param));
        QVERIFY(!strips.SetMixerParam(0, param));
    }
};

QTEST_GUILESS_MAIN(tst_TimelineModel)
#include "tst_timelinemodel.moc"
