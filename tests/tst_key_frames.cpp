// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedComposite.h"
#include "tests/support/ScriptedSession.h"
#include "tests/support/ScriptedSettings.h"

#include <QtTest>

using namespace Scripted;
using Setting = VideoKeyFrameSetting;
using Param = VideoKeyFrameParam;
using Operation = QVariant (*)(Setting&);

static const Param Second = {0.5, 30, 0.25, {1, 2}, {3, 4}};

static QString Read(const Setting& setting, int index, Param param = {})
{
    const bool ok = index < 0 || setting.GetKeyFrameParam(index, param);
    return QString::number(param.time) + ' ' + QString::number(param.rotateAngle) + ' ' +
           QString::number(param.opacity) + ' ' + QString::number(param.position.y()) + ' ' +
           QString::number(param.scale.height()) + (ok ? "" : " failed");
}

static int Find(const Setting& setting, int frame, int count)
{
    int index = -7;
    return setting.GetKeyFrameIndex(frame, count, index) ? index : -1;
}

/// A host's service, which brings its basin.
struct Service : NLETimelineContextPropertyService
{
    explicit Service(INLEBasin* basin) { m_basin = basin; }
};

class tst_KeyFrames : public QObject
{
    Q_OBJECT

    Script& script = Script::Get();
    struct Engine
    {
        NLEComPtr<Node> node = MakeCom<Node>("node");
        NLEComPtr<KeyFrameList> list = MakeCom<KeyFrameList>("keys");
        Engine()
        {
            list->records = {{0.25, 0, 0, 0, 1, 1, 1, 1}, {0.5, 30, 1, 2, 3, 4, 0.25, 1}};
            node->Offer<INLEKeyFrameList>(list);
            node->Offer<INLEKeyFrameStatus>(MakeCom<KeyFrameStatus>("keys"));
        }
    };

private slots:
    void cleanup()
    {
        EndSession();
        QCOMPARE(script.liveObjects, QStringList());
    }

    void operations()
    {
        // What a clip with key frames gives, one without a list and none; and the engine's calls.
        const auto outcome = [this](Operation operation) -> QVariantList {
            const Engine e;
            Setting setting(e.node);
            const QVariant value = operation(setting);
            QStringList calls = script.TakeCalls();
            calls.removeAll("keys.GetCount()");
            setting.SetTimeline(MakeCom<Node>("lacking"));
            const QVariant neutral = operation(setting);
            return {value, neutral, operation(setting = Setting(nullptr)),
                    calls.join(' ').remove("keys.")};
        };
#define CHECK(expression, value, neutral, calls)                                                   \
    QCOMPARE(outcome([](Setting& s) -> QVariant { return expression; }),                           \
             QVariantList({value, neutral, neutral, QString(calls)}))
        const QString read = "GetKeyFrame(1)";
        const QString change = read + " SetKeyFrame(1, 0.5 %1 1)";
        CHECK(s.AddKeyFrame(Second), 1, -1, "AddKeyFrame(0.5 30 1 2 3 4 0.25 1)");
        CHECK(s.DeleteKeyFrame(1), true, false, "DeleteKeyFrame(1)");
        CHECK(s.DeleteKeyFrame(-1), false, false, "");
        CHECK(s.DeleteKeyFrame(2), false, false, "");
        CHECK((s.ClearAllKeyFrame(), 0), 0, 0, "DeleteAll()");
        CHECK(s.GetKeyFrameCount(), 2, 0, "");
        CHECK(Read(s, 1), "0.5 30 0.25 2 4", "0 0 1 0 1 failed", read);
        CHECK(Read(s, 2), "0 0 1 0 1 failed", "0 0 1 0 1 failed", "");
        CHECK(Read(s, -1, s.GetKeyFrameParam(0.75)), "0.25 0 1 0 1", "0 0 1 0 1",
              "GetParamAt(0.75)");
        CHECK((s.SetKeyFrameParam(0, Second), 0), 0, 0, "SetKeyFrame(0, 0.5 30 1 2 3 4 0.25 1)");
        CHECK((s.SetKeyFrameParam(2, Second), 0), 0, 0, "");
        CHECK(s.GetKeyFrameIndex(Second), 1, -1, "GetKeyFrame(0) " + read);
        CHECK(s.GetKeyFrameIndex(Param()), -1, -1, "GetKeyFrame(0) " + read);
        CHECK(Find(s, 3, 50), 1, -1, "FindIndex(3, 50)");
        CHECK(s.GetPosition(1), QPointF(1, 2), QPointF(), read);
        CHECK(s.GetScale(1), QSizeF(3, 4), QSizeF(1, 1), read);
        CHECK(s.GetRotateAngle(1), 30.0, 0.0, read);
        CHECK(s.GetOpacity(1), 0.25, 1.0, read);
        CHECK((s.SetPosition(1, {7, 8}), 0), 0, 0, change.arg("30 7 8 3 4 0.25"));
        CHECK((s.SetScale(1, {7, 8}), 0), 0, 0, change.arg("30 1 2 7 8 0.25"));
        CHECK((s.SetRotateAngle(1, -9), 0), 0, 0, change.arg("-9 1 2 3 4 0.25"));
        CHECK((s.SetOpacity(1, 0.5), 0), 0, 0, change.arg("30 1 2 3 4 0.5"));
        CHECK((s.SetOpacity(2, 0.5), 0), 0, 0, "");
        CHECK(s.HasNext(0) && !s.HasNext(1), true, false, "");
        CHECK(s.HasPrevious(1) && !s.HasPrevious(0), true, false, "");
        CHECK(s.SetKeyFrameStatus(true) && s.GetKeyFrameStatus(), true, false,
              "SetStatus(true) GetStatus()");
#undef CHECK
    }

    void failures()
    {
        const Engine e;
        Setting setting(e.node);
        for (const char* operation : {"GetKeyFrame", "FindIndex", "GetStatus", "SetStatus"})
            script.statuses[QString("keys.") + operation] = S_FALSE; // no success for these
        script.statuses["keys.GetParamAt"] = script.statuses["keys.AddKeyFrame"] = E_FAIL;
        QCOMPARE(Read(setting, 1), "0 0 1 0 1 failed");
        QVERIFY(setting.GetAllKeyFrameParams().isEmpty() && Find(setting, 1, 2) == -1);
        QVERIFY(!setting.SetKeyFrameStatus(true) && !setting.GetKeyFrameStatus());
        QVERIFY(setting.GetKeyFrameParam(0.5) == Param());
        QCOMPARE(setting.AddKeyFrame(Second), -1);
    }

    void equality()
    {
        const Param a = {0.5, 0, 0.75, {0.25, -0.5}, {2, 2}};
        const auto check = [&](bool strict, bool loose, void (*edit)(Param&)) {
            Param b = a;
            edit(b);
            return (a == b) == strict && video_keyframe_equals(nullptr, a, b) == loose;
        };
        QVERIFY(check(false, true, [](Param& p) { p.time = 3; }));
        QVERIFY(check(false, true, [](Param& p) { p.rotateAngle = 1e-13; }));
        QVERIFY(check(false, false, [](Param& p) { p.rotateAngle = 1e-11; }));
        QVERIFY(check(false, true, [](Param& p) { p.opacity += 1e-13; }));
        QVERIFY(check(true, true, [](Param& p) { p.position.rx() += 1e-13; }));
        QVERIFY(check(false, false, [](Param& p) { p.position.ry() -= 3e-12; }));
        QVERIFY(check(true, true, [](Param& p) { p.scale.rwidth() += 1e-12; }));
        QVERIFY(check(false, false, [](Param& p) { p.scale.rheight() += 1e-11; }));
        QVERIFY(check(false, false, [](Param& p) { p.position.rx() = qQNaN(); }));
        QVERIFY(compare_double(0.123, 0.124, 2) && !compare_double(0.123, 0.124, 3));
        QVERIFY(compare_double(-0.5, -1.0, 0) && !compare_double(0.49, 0.5, 0));
        QVERIFY(!compare_double(1e300, 2e300, 2) && !compare_double(qQNaN(), 0, 2));
    }

    void framesAndPlaces()
    {
        const auto place = CalculateVideoKeyFramePosition;
        const auto index = CalculateVideoKeyFrameIndex;
        int wrong = 0;
        for (int count = 1; count <= 10000; ++count) {
            for (int i = 0; i < count; ++i)
                wrong += index(place(i, count), count) != i;
        }
        QCOMPARE(wrong, 0);
        QVERIFY(place(-5, 20) == -0.25 && place(3, 0) == 0);
        QVERIFY(index(qInf(), 20) == INT_MAX && index(-1e300, 20) == INT_MIN);
        QVERIFY(index(qQNaN(), 20) == 0 && index(0.5, -1) == 0);
    }

    void pixels()
    {
        const Engine e;
        const auto region = MakeCom<RenderRegion>("region");
        region->region = {10, 20, 1920, 1080};
        const auto parent = MakeCom<Node>("parent");
        parent->Offer<INLERenderRegion>(region);
        script.results["node.GetParent"] = parent;
        const QRectF rect(10, 20, 1920, 1080);
        const QPointF place(0.25, 0.5);
        QCOMPARE(GetRenderROD(e.node.get()), rect);
        QTest::ignoreMessage(QtDebugMsg, "x:10 y:20 width:1920 height:1080");
        QCOMPARE(ConvertFromNLEPositionToUI(e.node.get(), place), QPointF(480, -540));
        QCOMPARE(ConvertFromUIToNLEPosition(e.node.get(), QPointF(480, -540)), place);
        QCOMPARE(ConvertFromUIToNLEPosition(ConvertFromNLEPositionToUI(place, rect), rect), place);
        QCOMPARE(GetRenderROD(nullptr), QRectF(0, 0, 0, 0));
        QCOMPARE(ConvertFromUIToNLEPosition(nullptr, place), QPointF(0, 0));
    }

    void context()
    {
        const auto bag = MakeCom<Properties>("bag");
        script.results["factory.CreateProperties"] = bag;
        Service service(nullptr);
        service = Service(MakeCom<Basin>("basin").get()); // a copy has the same basin
        NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
        const auto calls = [this] { return script.TakeCalls().join(' '); };
        const QString fill = "factory.CreateProperties() basin.FillProperties(bag) bag.";
        bool flag = false;
        calls();
        QVERIFY(service.SetIntValue(L"i", 7));
        QCOMPARE(calls(), fill + "SetInt(i, 7) basin.TakeProperties(bag)");
        QVERIFY(service.GetBoolValue(L"i", flag) && flag);
        QVERIFY(!service.GetBoolValue(L"none", flag) && flag);

        const wchar_t* const keys = L"a\0b";
        const QMap<const wchar_t*, double> pair = {{keys + 2, 2}, {keys, 1}};
        calls();
        QVERIFY(!service.SetDoubleValues({}) && calls().isEmpty());
        QVERIFY(service.SetDoubleValues(pair));
        QCOMPARE(calls(), fill + "SetDouble(a, 1) bag.SetDouble(b, 2) basin.TakeProperties(bag)");
        script.statuses["bag.SetDouble"] = E_FAIL;
        QVERIFY(!service.SetDoubleValues(pair));
        QCOMPARE(calls(), fill + "SetDouble(a, 1)");
        script.statuses = {{"basin.TakeProperties", E_FAIL}};
        QVERIFY(!service.SetDoubleValues(pair) && !service.SetIntValue(L"i", 1));
        calls();
        service.SetContextProperty(nullptr);
        service.SetContextProperty(bag);
        QCOMPARE(calls(), QString("basin.TakeProperties(bag)"));
    }

    void contextWithoutBasin()
    {
        LogCapture log;
        Service s(nullptr);
        int number = 9;
        bool flag = true;
        double value = 0.5;
        const bool any[] = {s.GetIntValue(L"k", number),    s.SetIntValue(L"k", 1),
                            s.GetBoolValue(L"k", flag),     s.SetBoolValue(L"k", true),
                            s.GetDoubleValue(L"k", value),  s.SetDoubleValue(L"k", 1),
                            s.SetDoubleValues({{L"k", 1}}), s.SetDoubleValues({})};
        QVERIFY(std::count(std::begin(any), std::end(any), true) == 0 &&
                !s.SetProperty(MakeCom<Properties>("bag")));
        QVERIFY(number == 9 && flag && value == 0.5);
        const QString line = "-ERROR- [NLETimelineContextPropertyService::GetContextProperty]:  "
                             "%1 is null - [CommonLib/NLEWraper/NLETimeline(%2)]";
        QStringList expected;
        for (size_t i = 0; i < std::size(any); ++i)
            expected << line.arg("basin").arg(1180) << line.arg("context property").arg(1185);
        QCOMPARE(log.Take(), expected);
    }
};

QTEST_GUILESS_MAIN(tst_KeyFrames)
#include "tst_key_frames.moc"
