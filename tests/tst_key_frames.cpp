// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"
#include "EngineApi/NLECommon.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedComposite.h"
#include "tests/support/ScriptedSession.h"
#include "tests/support/ScriptedSettings.h"

#include <QtTest>

#include <functional>

using namespace Scripted;
using Setting = VideoKeyFrameSetting;
using Param = VideoKeyFrameParam;
using Operation = std::function<QVariant(Setting&)>;
using Edit = std::function<void(Param&)>;
Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(Edit)

static QString Shown(const Param& p)
{
    const auto text = [](double number) { return QString::number(number); };
    return text(p.time) + ' ' + text(p.rotateAngle) + ' ' + text(p.opacity) + " (" +
           text(p.position.x()) + ", " + text(p.position.y()) + ") (" + text(p.scale.width()) +
           ", " + text(p.scale.height()) + ')';
}

static QString Read(const Setting& setting, int index)
{
    Param param;
    const bool ok = setting.GetKeyFrameParam(index, param);
    return ok || param == Param() ? Shown(param) : "written without success";
}

static int Find(const Setting& setting, int frame, int count)
{
    int index = -7;
    return setting.GetKeyFrameIndex(frame, count, index) ? index : -1;
}

/// The service of a host, which brings its basin, and a count of its bags.
struct Service : NLETimelineContextPropertyService
{
    explicit Service(INLEBasin* basin) { m_basin = basin; }
    NLEComPtr<INLEProperties> GetContextProperty() const override
    {
        ++bags;
        return NLETimelineContextPropertyService::GetContextProperty();
    }
    mutable int bags = 0;
};

class tst_KeyFrames : public QObject
{
    Q_OBJECT

    Script& script = Script::Get();
    const Param m_param = {0.5, 30, 0.25, {1, 2}, {3, 4}};

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

    void operations_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("neutral"); ///< of a clip without a list
        QTest::addColumn<QString>("calls");    ///< all but those for the count
        const auto row = [](const char* name, Operation operation, const QVariant& value,
                            const QVariant& neutral, const QString& calls = {}) {
            QTest::newRow(name) << operation << value << neutral << calls;
        };
#define DO(expression) [=](Setting& s) -> QVariant { return expression; }
        const Param param = m_param;
        const QString preset = "0 0 1 (0, 0) (1, 1)";
        const QString read = "GetKeyFrame(1)";
        const QString change = read + " SetKeyFrame(1, 0.5 %1 1)";
        row("add", DO(s.AddKeyFrame(param)), 1, -1, "AddKeyFrame(0.5 30 1 2 3 4 0.25 1)");
        row("delete", DO(s.DeleteKeyFrame(1)), true, false, "DeleteKeyFrame(1)");
        row("delete -1", DO(s.DeleteKeyFrame(-1)), false, false);
        row("delete past the end", DO(s.DeleteKeyFrame(2)), false, false);
        row("clear", DO((s.ClearAllKeyFrame(), 0)), 0, 0, "DeleteAll()");
        row("count", DO(s.GetKeyFrameCount()), 2, 0);
        row("read", DO(Read(s, 1)), "0.5 30 0.25 (1, 2) (3, 4)", preset, read);
        row("read -1", DO(Read(s, -1)), preset, preset);
        row("read past the end", DO(Read(s, 2)), preset, preset);
        row("at a time", DO(Shown(s.GetKeyFrameParam(0.75))), "0.25 0 1 (0, 0) (1, 1)", preset,
            "GetParamAt(0.75)");
        row("write", DO((s.SetKeyFrameParam(0, param), 0)), 0, 0,
            "SetKeyFrame(0, 0.5 30 1 2 3 4 0.25 1)");
        row("write past the end", DO((s.SetKeyFrameParam(2, param), 0)), 0, 0);
        row("find equal", DO(s.GetKeyFrameIndex(param)), 1, -1, "GetKeyFrame(0) " + read);
        row("find none", DO(s.GetKeyFrameIndex(Param())), -1, -1, "GetKeyFrame(0) " + read);
        row("find frame", DO(Find(s, 3, 50)), 1, -1, "FindIndex(3, 50)");
        row("position", DO(s.GetPosition(1)), QPointF(1, 2), QPointF(), read);
        row("scale", DO(s.GetScale(1)), QSizeF(3, 4), QSizeF(1, 1), read);
        row("angle", DO(s.GetRotateAngle(1)), 30.0, 0.0, read);
        row("opacity", DO(s.GetOpacity(1)), 0.25, 1.0, read);
        row("opacity of none", DO(s.GetOpacity(-1)), 1.0, 1.0);
        row("move", DO((s.SetPosition(1, {7, 8}), 0)), 0, 0, change.arg("30 7 8 3 4 0.25"));
        row("resize", DO((s.SetScale(1, {7, 8}), 0)), 0, 0, change.arg("30 1 2 7 8 0.25"));
        row("turn", DO((s.SetRotateAngle(1, -9), 0)), 0, 0, change.arg("-9 1 2 3 4 0.25"));
        row("fade", DO((s.SetOpacity(1, 0.5), 0)), 0, 0, change.arg("30 1 2 3 4 0.5"));
        row("fade none", DO((s.SetOpacity(2, 0.5), 0)), 0, 0);
        row("next of 0", DO(s.HasNext(0)), true, false);
        row("next of the last", DO(s.HasNext(1)), false, false);
        row("previous of 0", DO(s.HasPrevious(0)), false, false);
        row("previous of the last", DO(s.HasPrevious(1)), true, false);
        row("status", DO(s.SetKeyFrameStatus(true) && s.GetKeyFrameStatus()), true, false,
            "SetStatus(true) GetStatus()");
#undef DO
    }

    void operations()
    {
        QFETCH(Operation, operation);
        QFETCH(QVariant, value);
        QFETCH(QVariant, neutral);
        QFETCH(QString, calls);
        const Engine e;
        Setting setting(e.node);
        QCOMPARE(operation(setting), value);
        QStringList made = script.TakeCalls();
        made.removeAll("keys.GetCount()");
        QCOMPARE(made.join(' ').remove("keys."), calls);
        setting.SetTimeline(MakeCom<Node>("lacking"));
        QCOMPARE(operation(setting), neutral);
        QCOMPARE(operation(setting = Setting(nullptr)), neutral);
        QCOMPARE(script.TakeCalls(), QStringList());
    }

    void failures()
    {
        const Engine e;
        Setting setting(e.node);
        for (const char* operation :
             {"keys.GetKeyFrame", "keys.FindIndex", "keys.GetStatus", "keys.SetStatus"})
            script.statuses[operation] = S_FALSE; // no success for these
        script.statuses["keys.GetParamAt"] = script.statuses["keys.AddKeyFrame"] = E_FAIL;
        Param param;
        int index = 5;
        QVERIFY(!setting.GetKeyFrameParam(0, param) && param == Param());
        QVERIFY(!setting.GetKeyFrameIndex(1, 2, index));
        QVERIFY(!setting.SetKeyFrameStatus(true) && !setting.GetKeyFrameStatus());
        QVERIFY(setting.GetKeyFrameParam(0.5) == Param());
        QCOMPARE(setting.AddKeyFrame(m_param), -1);
        script.statuses.clear();
        e.list->unreadable = 0;
        QCOMPARE(setting.GetAllKeyFrameParams().size(), 1);
        QCOMPARE(setting.GetKeyFrameIndex(m_param), 1);
    }

    void equality_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<bool>("strict");
        QTest::addColumn<bool>("loose");
        const auto row = [](const char* name, bool strict, bool loose, Edit edit) {
            QTest::newRow(name) << edit << strict << loose;
        };
        row("same", true, true, [](Param&) {});
        row("time", false, true, [](Param& p) { p.time += 1e-13; });
        row("angle near 0", false, true, [](Param& p) { p.rotateAngle = 1e-13; });
        row("angle", false, false, [](Param& p) { p.rotateAngle = 1e-11; });
        row("opacity", false, true, [](Param& p) { p.opacity += 1e-13; });
        row("faded", false, false, [](Param& p) { p.opacity = 0.9; });
        row("x", true, true, [](Param& p) { p.position.rx() += 1e-13; });
        row("y moved", false, false, [](Param& p) { p.position.ry() -= 3e-12; });
        row("width", true, true, [](Param& p) { p.scale.rwidth() += 1e-12; });
        row("height", false, false, [](Param& p) { p.scale.rheight() += 1e-11; });
        row("no number", false, false, [](Param& p) { p.position.rx() = qQNaN(); });
    }

    void equality()
    {
        QFETCH(Edit, edit);
        const Param a = {0.5, 0, 0.75, {0.25, -0.5}, {2, 2}};
        Param b = a;
        edit(b);
        QTEST(a == b, "strict");
        QTEST(video_keyframe_equals(nullptr, a, b), "loose");
    }

    void decimals()
    {
        QVERIFY(compare_double(0.123, 0.124, 2) && !compare_double(0.123, 0.124, 3));
        QVERIFY(compare_double(-0.5, -1.0, 0) && !compare_double(0.49, 0.5, 0));
        QVERIFY(!compare_double(1e300, 2e300, 2) && !compare_double(qQNaN(), 0, 2));
    }

    void framesAndPlaces()
    {
        for (int count = 1; count <= 10000; ++count) {
            for (int i = 0; i < count; ++i) {
                if (CalculateVideoKeyFrameIndex(CalculateVideoKeyFramePosition(i, count), count) !=
                    i)
                    QFAIL(qPrintable(QString("%1 of %2").arg(i).arg(count)));
            }
        }
        QCOMPARE(CalculateVideoKeyFramePosition(-5, 20), -0.25);
        QCOMPARE(CalculateVideoKeyFramePosition(3, 0), 0.0);
        QCOMPARE(CalculateVideoKeyFrameIndex(-0.25, 20), -5);
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
        script.results["node.GetParent"] = parent;
        const QRectF rect(10, 20, 1920, 1080);
        QCOMPARE(GetRenderROD(e.node.get()), rect);
        QTest::ignoreMessage(QtDebugMsg, "x:10 y:20 width:1920 height:1080");
        const QPointF shown = ConvertFromNLEPositionToUI(e.node.get(), QPointF(0.25, 0.5));
        QCOMPARE(shown, QPointF(480, -540));
        QCOMPARE(ConvertFromNLEPositionToUI(QPointF(0.25, 0.5), rect), shown);
        QCOMPARE(ConvertFromUIToNLEPosition(shown, rect), QPointF(0.25, 0.5));
        QCOMPARE(ConvertFromUIToNLEPosition(e.node.get(), shown), QPointF(0.25, 0.5));
        QCOMPARE(GetRenderROD(nullptr), QRectF(0, 0, 0, 0));
        QCOMPARE(ConvertFromUIToNLEPosition(nullptr, shown), QPointF(0, 0));
    }

    void context()
    {
        const auto basin = MakeCom<Basin>("basin");
        const auto bag = MakeCom<Properties>("bag");
        script.results["factory.CreateProperties"] = bag;
        Service first(basin.get());
        Service service(nullptr);
        service = first; // a copy has the same basin
        NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
        script.TakeCalls();
        const QString filled = "factory.CreateProperties() basin.FillProperties(bag) ";
        const auto calls = [this] { return script.TakeCalls().join(' '); };
        int number = 9;
        bool flag = false;
        double value = 0.5;

        QVERIFY(service.SetIntValue(L"i", 7));
        QCOMPARE(calls(), filled + "bag.SetInt(i, 7) basin.TakeProperties(bag)");
        QVERIFY(service.GetBoolValue(L"i", flag) && flag);
        QVERIFY(service.GetIntValue(L"i", number) && number == 7);
        QVERIFY(service.SetBoolValue(L"i", true) && service.GetIntValue(L"i", number));
        QCOMPARE(number, 1);
        QVERIFY(service.SetDoubleValue(L"d", 2.5) && service.GetDoubleValue(L"d", value));
        QCOMPARE(value, 2.5);
        QVERIFY(!service.GetIntValue(L"none", number) && !service.GetBoolValue(L"none", flag) &&
                !service.GetDoubleValue(L"none", value));
        QVERIFY(number == 1 && flag && value == 2.5);
        QCOMPARE(service.bags, 10);

        const wchar_t* const keys = L"a\0b";
        const QMap<const wchar_t*, double> pair = {{keys + 2, 2}, {keys, 1}};
        calls();
        QVERIFY(!service.SetDoubleValues({}));
        QCOMPARE(calls(), QString());
        QVERIFY(service.SetDoubleValues(pair));
        QCOMPARE(calls(),
                 filled + "bag.SetDouble(a, 1) bag.SetDouble(b, 2) basin.TakeProperties(bag)");
        script.statuses["bag.SetDouble"] = E_FAIL;
        QVERIFY(!service.SetDoubleValues(pair));
        QCOMPARE(calls(), filled + "bag.SetDouble(a, 1)");
        QVERIFY(!service.SetDoubleValue(L"d", 1));
        script.statuses = {{"basin.TakeProperties", E_FAIL}};
        QVERIFY(!service.SetDoubleValues(pair) && !service.SetIntValue(L"i", 1) &&
                !service.SetProperty(bag));
        calls();
        service.SetContextProperty(nullptr);
        service.SetContextProperty(bag);
        QCOMPARE(calls(), QString("basin.TakeProperties(bag)"));
    }

    void contextWithoutBasin()
    {
        LogCapture log;
        Service service(nullptr);
        int number = 9;
        bool flag = true;
        double value = 0.5;
        const bool any[] = {service.GetIntValue(L"k", number),    service.SetIntValue(L"k", 1),
                            service.GetBoolValue(L"k", flag),     service.SetBoolValue(L"k", true),
                            service.GetDoubleValue(L"k", value),  service.SetDoubleValue(L"k", 1),
                            service.SetDoubleValues({{L"k", 1}}), service.SetDoubleValues({})};
        QCOMPARE(std::count(std::begin(any), std::end(any), true), 0);
        QVERIFY(number == 9 && flag && value == 0.5);
        QVERIFY(!service.SetProperty(MakeCom<Properties>("bag")));
        const QString line = "-ERROR- [NLETimelineContextPropertyService::GetContextProperty]:  "
                             "%1 is null - [CommonLib/NLEWraper/NLETimeline(%2)]";
        const QStringList lines = log.Take();
        QStringList expected;
        for (size_t i = 0; i < std::size(any); ++i)
            expected << line.arg("basin").arg(1180) << line.arg("context property").arg(1185);
        QCOMPARE(lines, expected);
    }
};

QTEST_GUILESS_MAIN(tst_KeyFrames)
#include "tst_key_frames.moc"
