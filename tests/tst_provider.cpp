// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedMedia.h"
#include "tests/support/ScriptedNodes.h"
#include "tests/support/ScriptedSession.h"

#include <QLibrary>
#include <QtTest>

#include <functional>

using namespace Scripted;

using Operation = std::function<bool(PlayerMaterProvider*)>;
Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(_GUID)

static PlayerMaterProvider* Provider()
{
    return NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
}

class tst_Provider : public QObject
{
    Q_OBJECT

private:
    Script& m_script = Script::Get();

    NLEComPtr<Node> NodeWith(const NLEComPtr<Properties>& bag)
    {
        auto node = MakeCom<Node>("node");
        node->Offer<INLEPropertyHost>(MakeCom<PropertyHost>("host"));
        m_script.results["host.GetProperties"] = bag;
        return node;
    }

private Q_SLOTS:
    void cleanup() { QCOMPARE(EndSession(), QStringList()); }

    void firstParentOwnsTheWrapper()
    {
        QObject second;
        auto first = std::make_unique<QObject>();
        QPointer<NLEWraper> wrapper = NLEWraper::GetInstance(first.get());
        QCOMPARE(NLEWraper::GetInstance(&second), wrapper.data());
        QCOMPARE(wrapper->parent(), first.get());
        first.reset();
        QVERIFY(!wrapper);
        QCOMPARE(NLEWraper::GetInstance(&second)->parent(), &second);
    }

    void start_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::addColumn<int>("callCount");
        QTest::addColumn<QString>("line");
        QTest::newRow("all works") << "" << 4 << "";
        QTest::newRow("no class object")
            << "module.DllGetClassObject" << 1 << "Check NLECore Exist:1";
        QTest::newRow("no timeline factory")
            << "factory.GetTimelineFactory" << 4
            << "-INFO- [PlayerMaterProviderPrivate::PlayerMaterProviderPrivate]:  "
               "m_pNLETimelineFactory is NULL. - "
               "[CommonLib/NLEWraper/PlayerMaterProviderPrivate(39)]";
    }

    void start()
    {
        QFETCH(QString, failing);
        QFETCH(int, callCount);
        QFETCH(QString, line);
        const QLibrary module(QCoreApplication::applicationDirPath() + "/NLECore.dll");
        QVERIFY(!module.isLoaded());
        LogCapture log;
        m_script.statuses[failing] = E_FAIL;
        Provider();
        QVERIFY(module.isLoaded());
        const QStringList calls = {"module.DllGetClassObject()",
                                   "classFactory.CreateInstance(null)", "factory.Init(0)",
                                   "factory.GetTimelineFactory()"};
        QCOMPARE(m_script.TakeCalls(), calls.mid(0, callCount));
        const QStringList lines = log.Take();
        QCOMPARE(lines.isEmpty(), line.isEmpty());
        QVERIFY2(line.isEmpty() || lines.last().contains(line), qPrintable(lines.join('\n')));
        EndSession();
        QVERIFY(!module.isLoaded());
    }

    void createInstanceFailures_data()
    {
        QTest::addColumn<_GUID>("classId");
        QTest::addColumn<_GUID>("iid");
        QTest::addColumn<QString>("failing");
        QTest::newRow("unknown class") << INLETimeline::Iid << INLEFactory::Iid << "";
        QTest::newRow("unknown interface") << INLEFactory::ClassId << INLETimeline::Iid << "";
        QTest::newRow("refused") << INLEFactory::ClassId << INLEFactory::Iid
                                 << "classFactory.CreateInstance";
    }

    void createInstanceFailures()
    {
        QFETCH(_GUID, classId);
        QFETCH(_GUID, iid);
        QFETCH(QString, failing);
        m_script.statuses[failing] = E_FAIL;
        void* out = QCoreApplication::instance(); // anything but null
        QVERIFY(!CVCreateInstance::Instance()->cvCreateInstance(classId, nullptr, 0, iid, &out));
        QCOMPARE(out, nullptr);
    }

    void requests_data()
    {
        using P = PlayerMaterProvider*;
        QTest::addColumn<Operation>("operation");
        const auto row = [](const char* call, auto operation) {
            QTest::newRow(call) << Operation([=](P p) { return bool(operation(p)); });
        };
        row("timelineFactory.CreateProject(1920x1080, 25000000/1000000)",
            [](P p) { return p->CreateProjectTimeline(); });
        row("timelineFactory.CreateMedia(/none/ü.mov)",
            [](P p) { return p->CreateMediaTimeline("/none/ü.mov", true); });
        row("timelineFactory.CreateFromTemplate(..)",
            [](P p) { return p->CreateTimelineFromTemplate(".."); });
        row("timelineFactory.CreateColor(ff010203, 4x5, 12.5)",
            [](P p) { return p->CreateColorTimeline(QColor(1, 2, 3), QSize(4, 5), 12.5f); });
        row("timelineFactory.CreateTipText(a text, a font)",
            [](P p) { return p->CreateTipTextTimeline("a text", "a font"); });
        row("timelineFactory.CreateVirtual(-7)", [](P p) { return p->CreateVirtualTimeline(-7); });
        row("factory.CreateVideoFrame(4, 5, 0, 1, 0, 0, 400000, 0)",
            [](P p) { return p->CreateVideoFrame(4, 5); });
        row("factory.CreateVideoFrame(4, 5, 0, 2, 0, 0, 400000, 0)",
            [](P p) { return p->CreateVideoFrameOpencl(4, 5); });
    }

    void requests()
    {
        QFETCH(Operation, operation);
        const QString call = QTest::currentDataTag();
        QVERIFY2(!operation(Provider()), "without a result");
        QCOMPARE(QDir::fromNativeSeparators(m_script.TakeCalls().last()), call);
        auto result = MakeCom<Node>("result");
        result->Offer<INLEVideoFrame>(MakeCom<VideoFrame>("frame"));
        m_script.results[call.section('(', 0, 0)] = result;
        m_script.statuses[call.section('(', 0, 0)] = S_FALSE;
        QVERIFY2(operation(Provider()), "a positive status is a success");
    }

    void missingFilesAreNotAskedFor()
    {
        Provider();
        m_script.TakeCalls();
        QVERIFY(!Provider()->CreateMediaTimeline("/none", false));
        QVERIFY(!Provider()->CreateCodecFromFile("/none"));
        QVERIFY(!Provider()->CreateMarkBook("/none"));
        QVERIFY(!Provider()->CreateTimelineFromTemplate(QCoreApplication::applicationFilePath()));
        QVERIFY(!Provider()->CreateTimelineFromTemplate(""));
        QCOMPARE(m_script.TakeCalls(), QStringList());
    }

    void frameRateIsAPropertyOfTheTimeline()
    {
        const QString key = Text(NLEKey::Render::kRender_Framerate);
        const auto bag = MakeCom<Properties>("bag");
        const auto node = NodeWith(bag);
        Provider()->SetTimelineFrameRate(node, 30);
        QCOMPARE(Text(bag->rationals[key]), "30000000/1000000");
        bag->rationals[key] = {30000, 1001};
        QCOMPARE(Provider()->GetTimelineFrameRate(node), 29);
        bag->rationals[key] = {25, 0};
        QCOMPARE(Provider()->GetTimelineFrameRate(node), 0);
        QCOMPARE(References(node.get()), 1u);
    }

    void frameRateOfNothing()
    {
        QCOMPARE(Provider()->GetTimelineFrameRate(MakeCom<Node>("node")), 0);
        Provider()->SetTimelineFrameRate(nullptr, 30);
        QCOMPARE(Provider()->GetTimelineFrameRate(nullptr), 0);
    }

    void lengthIsAPropertyOfTheTimeline()
    {
        const auto bag = MakeCom<Properties>("bag");
        const auto node = NodeWith(bag);
        bag->ints[Text(NLEKey::Render::kRender_TotalFrameCount)] = 77;
        QCOMPARE(Provider()->GetTimelineLength(node), 77);
        QCOMPARE(References(node.get()), 1u);
    }

    void combiningGivesTheTimelineItself()
    {
        const auto node = MakeCom<Node>("node");
        NLEComPtr<INLETimeline> out;
        QVERIFY(Provider()->GetMediaCombineTimeline(node, out.put()));
        QCOMPARE(out.get(), node.get());
        out.reset();
        QCOMPARE(References(node.get()), 1u);
    }
};

QTEST_GUILESS_MAIN(tst_Provider)
#include "tst_provider.moc"
