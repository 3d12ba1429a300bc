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
Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(Param)

static const Param kSecond = {0.5, 30, 0.25, {1, 2}, {3, 4}};

static const Param kUsual = {0.5, 0, 0.75, {0.25, -0.5}, {2, 2}};

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

/// A host's service on a basin with a bag.
struct Context
{
    inline static const QString kFill = "factory.CreateProperties() basin.FillProperties(bag) bag.";
    const NLEComPtr<Properties> bag = MakeCom<Properties>("bag");
    const wchar_t* const keys = L"a\0b";
    const QMap<const wchar_t*, double> two = {{keys + 2, 2}, {keys, 1}};
    Service service{nullptr};

    Context()
    {
        Script::Get().results["factory.CreateProperties"] = bag;
        service = Service(MakeCom<Basin>("basin").get()); // a copy has the same basin
        NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
        TakeCalls();
    }
    QString TakeCalls() { return Script::Get().TakeCalls().join(' '); }
};

class tst_KeyFrames : public QObject
{
    Q_OBJECT

    Script& m_script = Script::Get();
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
        QCOMPARE(m_script.liveObjects, QStringList());
    }

    void operations_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QVariant>("value");   // of a clip with two key frames
        QTest::addColumn<QVariant>("neutral"); // of one without a list, and of none
        QTest::addColumn<QString>("calls");
        const auto row = [](const char* name, const QVariant& value, const QVariant& neutral,
                            const QString& calls, Operation operation) {
            QTest::newRow(name) << operation << value << neutral << calls;
        };
        using S = Setting;
        using V = QVariant;
        const QString read = "GetKeyFrame(1)", unread = "0 0 1 0 1 failed";
        const QString change = read + " SetKeyFrame(1, 0.5 %1 1)";
        row("add", 1, -1, "AddKeyFrame(0.5 30 1 2 3 4 0.25 1)",
            [](S& s) -> V { return s.AddKeyFrame(kSecond); });
        row("delete", true, false, "DeleteKeyFrame(1)",
            [](S& s) -> V { return s.DeleteKeyFrame(1); });
        row("delete below the first", false, false, "",
            [](S& s) -> V { return s.DeleteKeyFrame(-1); });
        row("delete behind the last", false, false, "",
            [](S& s) -> V { return s.DeleteKeyFrame(2); });
        row("clear", 0, 0, "DeleteAll()", [](S& s) { return s.ClearAllKeyFrame(), V(0); });
        row("count", 2, 0, "", [](S& s) -> V { return s.GetKeyFrameCount(); });
        row("read", "0.5 30 0.25 2 4", unread, read, [](S& s) -> V { return Read(s, 1); });
        row("read behind the last", unread, unread, "", [](S& s) -> V { return Read(s, 2); });
        row("read at a time", "0.25 0 1 0 1", "0 0 1 0 1", "GetParamAt(0.75)",
            [](S& s) -> V { return Read(s, -1, s.GetKeyFrameParam(0.75)); });
        row("set", 0, 0, "SetKeyFrame(0, 0.5 30 1 2 3 4 0.25 1)",
            [](S& s) { return s.SetKeyFrameParam(0, kSecond), V(0); });
        row("set behind the last", 0, 0, "",
            [](S& s) { return s.SetKeyFrameParam(2, kSecond), V(0); });
        row("find", 1, -1, "GetKeyFrame(0) " + read,
            [](S& s) -> V { return s.GetKeyFrameIndex(kSecond); });
        row("find what is not there", -1, -1, "GetKeyFrame(0) " + read,
            [](S& s) -> V { return s.GetKeyFrameIndex(Param()); });
        row("find by frame", 1, -1, "FindIndex(3, 50)", [](S& s) -> V { return Find(s, 3, 50); });
        row("position", QPointF(1, 2), QPointF(), read, [](S& s) -> V { return s.GetPosition(1); });
        row("scale", QSizeF(3, 4), QSizeF(1, 1), read, [](S& s) -> V { return s.GetScale(1); });
        row("angle", 30.0, 0.0, read, [](S& s) -> V { return s.GetRotateAngle(1); });
        row("opacity", 0.25, 1.0, read, [](S& s) -> V { return s.GetOpacity(1); });
        row("set position", 0, 0, change.arg("30 7 8 3 4 0.25"), [](S& s) {
            return s.SetPosition(1, {7, 8}), V(0);
        });
        row("set scale", 0, 0, change.arg("30 1 2 7 8 0.25"), [](S& s) {
            return s.SetScale(1, {7, 8}), V(0);
        });
        row("set angle", 0, 0, change.arg("-9 1 2 3 4 0.25"),
            [](S& s) { return s.SetRotateAngle(1, -9), V(0); });
        row("set opacity", 0, 0, change.arg("30 1 2 3 4 0.5"),
            [](S& s) { return s.SetOpacity(1, 0.5), V(0); });
        row("set opacity behind the last", 0, 0, "",
            [](S& s) { return s.SetOpacity(2, 0.5), V(0); });
        row("after the first", true, false, "", [](S& s) -> V { return s.HasNext(0); });
        row("after the last", false, false, "", [](S& s) -> V { return s.HasNext(1); });
        row("before the last", true, false, "", [](S& s) -> V { return s.HasPrevious(1); });
        row("before the first", false, false, "", [](S& s) -> V { return s.HasPrevious(0); });
        row("switch on", true, false, "SetStatus(true)",
            [](S& s) -> V { return s.SetKeyFrameStatus(true); });
        row("switched on", true, false, "SetStatus(true) GetStatus()",
            [](S& s) { return s.SetKeyFrameStatus(true), V(s.GetKeyFrameStatus()); });
    }
    void operations()
    {
        QFETCH(Operation, operation);
        const Engine e;
        Setting setting(e.node);
        QTEST(operation(setting), "value");
        QStringList calls = m_script.TakeCalls();
        calls.removeAll("keys.GetCount()");
        QTEST(calls.join(' ').remove("keys."), "calls");
        setting.SetTimeline(MakeCom<Node>("lacking"));
        QTEST(operation(setting), "neutral");
        setting = Setting(nullptr);
        QTEST(operation(setting), "neutral");
    }

    void failures()
    {
        const Engine e;
        Setting setting(e.node);
        for (const char* operation : {"GetKeyFrame", "FindIndex", "GetStatus", "SetStatus"})
            m_script.statuses[QString("keys.") + operation] = S_FALSE; // no success for these
        m_script.statuses["keys.GetParamAt"] = m_script.statuses["keys.AddKeyFrame"] = E_FAIL;
        QCOMPARE(Read(setting, 1), "0 0 1 0 1 failed");
        QCOMPARE(setting.GetAllKeyFrameParams().size(), 0);
        QCOMPARE(Find(setting, 1, 2), -1);
        QCOMPARE(setting.SetKeyFrameStatus(true), false);
        QCOMPARE(setting.GetKeyFrameStatus(), false);
        QVERIFY(setting.GetKeyFrameParam(0.5) == Param());
        QCOMPARE(setting.AddKeyFrame(kSecond), -1);
    }

    void equality_data()
    {
        QTest::addColumn<Param>("other");
        QTest::addColumn<bool>("strict");
        QTest::addColumn<bool>("loose");
        const auto row = [](const char* name, bool strict, bool loose, void (*edit)(Param&)) {
            Param other = kUsual;
            edit(other);
            QTest::newRow(name) << other << strict << loose;
        };
        row("another time", false, true, [](Param& p) { p.time = 3; });
        row("angle hardly", false, true, [](Param& p) { p.rotateAngle = 1e-13; });
        row("angle", false, false, [](Param& p) { p.rotateAngle = 1e-11; });
        row("opacity hardly", false, true, [](Param& p) { p.opacity += 1e-13; });
        row("position hardly", true, true, [](Param& p) { p.position.rx() += 1e-13; });
        row("position", false, false, [](Param& p) { p.position.ry() -= 3e-12; });
        row("scale hardly", true, true, [](Param& p) { p.scale.rwidth() += 1e-12; });
        row("scale", false, false, [](Param& p) { p.scale.rheight() += 1e-11; });
        row("no number", false, false, [](Param& p) { p.position.rx() = qQNaN(); });
    }
    void equality()
    {
        QFETCH(Param, other);
        QTEST(kUsual == other, "strict");
        QTEST(video_keyframe_equals(nullptr, kUsual, other), "loose");
    }

    void roundedEquality_data()
    {
        QTest::addColumn<double>("a");
        QTest::addColumn<double>("b");
        QTest::addColumn<int>("digits");
        QTest::addColumn<bool>("equal");
        QTest::newRow("equal to two digits") << 0.123 << 0.124 << 2 << true;
        QTest::newRow("but not to three") << 0.123 << 0.124 << 3 << false;
        QTest::newRow("halves go away from zero") << -0.5 << -1.0 << 0 << true;
        QTest::newRow("less than a half does not") << 0.49 << 0.5 << 0 << false;
        QTest::newRow("huge") << 1e300 << 2e300 << 2 << false;
        QTest::newRow("no number") << qQNaN() << 0.0 << 2 << false;
    }
    void roundedEquality()
    {
        QFETCH(double, a);
        QFETCH(double, b);
        QFETCH(int, digits);
        QTEST(compare_double(a, b, digits), "equal");
    }

    void placesGiveTheirFrames()
    {
        int wrong = 0;
        for (int count = 1; count <= 10000; ++count) {
            for (int i = 0; i < count; ++i) {
                const double place = CalculateVideoKeyFramePosition(i, count);
                wrong += CalculateVideoKeyFrameIndex(place, count) != i;
            }
        }
        QCOMPARE(wrong, 0);
    }

    void oddFramesAndPlaces()
    {
        QCOMPARE(CalculateVideoKeyFramePosition(-5, 20), -0.25);
        QCOMPARE(CalculateVideoKeyFramePosition(3, 0), 0.0);
        QCOMPARE(CalculateVideoKeyFrameIndex(qInf(), 20), INT_MAX);
        QCOMPARE(CalculateVideoKeyFrameIndex(-1e300, 20), INT_MIN);
        QCOMPARE(CalculateVideoKeyFrameIndex(qQNaN(), 20), 0);
        QCOMPARE(CalculateVideoKeyFrameIndex(0.5, -1), 0);
    }

    void pixels()
    {
        const Engine e;
        const auto region = MakeCom<RenderRegion>("region");
        region->region = {10, 20, 1920, 1080};
        const auto parent = MakeCom<Node>("parent");
        parent->Offer<INLERenderRegion>(region);
        m_script.results["node.GetParent"] = parent;
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

    void contextGivesAndTakesValues()
    {
        Context context;
        bool flag = false;
        QVERIFY(context.service.SetIntValue(L"i", 7));
        QCOMPARE(context.TakeCalls(), Context::kFill + "SetInt(i, 7) basin.TakeProperties(bag)");
        QVERIFY(context.service.GetBoolValue(L"i", flag));
        QCOMPARE(flag, true);
        QVERIFY(!context.service.GetBoolValue(L"none", flag));
        QCOMPARE(flag, true);
    }

    void contextTakesSeveralValuesByTheirAddresses()
    {
        Context context;
        QVERIFY(context.service.SetDoubleValues(context.two));
        QCOMPARE(context.TakeCalls(), Context::kFill + "SetDouble(a, 1) bag.SetDouble(b, 2) "
                                                       "basin.TakeProperties(bag)");
        QVERIFY(!context.service.SetDoubleValues({}));
        QCOMPARE(context.TakeCalls(), QString());
    }

    void contextStopsAtTheFirstFailure()
    {
        Context context;
        m_script.statuses["bag.SetDouble"] = E_FAIL;
        QVERIFY(!context.service.SetDoubleValues(context.two));
        QCOMPARE(context.TakeCalls(), Context::kFill + "SetDouble(a, 1)");
        m_script.statuses = {{"basin.TakeProperties", E_FAIL}};
        QVERIFY(!context.service.SetDoubleValues(context.two));
        QVERIFY(!context.service.SetIntValue(L"i", 1));
    }

    void contextTakesABag()
    {
        Context context;
        context.service.SetContextProperty(nullptr);
        context.service.SetContextProperty(context.bag);
        QCOMPARE(context.TakeCalls(), QString("basin.TakeProperties(bag)"));
    }

    void contextWithoutBasin()
    {
        LogCapture log;
        Service s(nullptr);
        int number = 9;
        bool flag = true;
        double value = 0.5;
        const QVector<bool> any{s.GetIntValue(L"k", number),    s.SetIntValue(L"k", 1),
                                s.GetBoolValue(L"k", flag),     s.SetBoolValue(L"k", true),
                                s.GetDoubleValue(L"k", value),  s.SetDoubleValue(L"k", 1),
                                s.SetDoubleValues({{L"k", 1}}), s.SetDoubleValues({})};
        QCOMPARE(any, QVector<bool>(any.size(), false));
        QVERIFY(!s.SetProperty(MakeCom<Properties>("bag")));
        QCOMPARE(number, 9);
        QCOMPARE(flag, true);
        QCOMPARE(value, 0.5);
        const QString line = "-ERROR- [NLETimelineContextPropertyService::GetContextProperty]:  "
                             "%1 is null - [CommonLib/NLEWraper/NLETimeline(%2)]";
        QStringList expected;
        for (int i = 0; i < any.size(); ++i)
            expected << line.arg("basin").arg(1180) << line.arg("context property").arg(1185);
        QCOMPARE(log.Take(), expected);
    }
};

QTEST_GUILESS_MAIN(tst_KeyFrames)
#include "tst_key_frames.moc"
