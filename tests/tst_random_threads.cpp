// SPDX-License-Identifier: LGPL-2.1-or-later
// Calls at random from all threads that may make them: what any thread may call on several, each
// object on its own. For the thread sanitizer, and for what breaks without it.
// COMMONLIB_SECONDS is how long.
#include "CommonLib/BaseLog.h"
#include "CommonLib/FileOperation.h"
#include "CommonLib/ModuleErrors.h"
#include "CommonLib/PathOperation.h"
#include "CommonLib/QAESEncryption.h"
#include "CommonLib/QuaZipOperate.h"
#include "CommonLib/RegexOperation.h"
#include "CommonLib/StringOperation.h"
#include "CommonLib/XmlOperation.h"

#include <QtTest>

#include <atomic>
#include <random>
#include <thread>

#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEPlayer.h"
#include "EngineApi/INLEProxies.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/Seed.h"

namespace {

/// One thread's calls.
class Caller
{
public:
    Caller(unsigned seed, QString folder) : m_folder(std::move(folder)), m_random(seed)
    {
        QDir().mkpath(m_folder);
    }
    int Any(int least, int most) { return std::uniform_int_distribution<>(least, most)(m_random); }

    /// What any thread may call, in files of its own.
    void UseLibrary()
    {
        const QString path = m_folder + "/" + QString::number(Any(0, 3));
        const QString text = StringOperation::CreateUUID(true);
        switch (Any(0, 9)) {
        case 0:
            return void(FileOperation::WriteTextFile(path, text, true));
        case 1:
            return void(FileOperation::ReadTextFile(path, true));
        case 2:
            return void(FileOperation::CalcFileMD5(path));
        case 3:
            return void(FileOperation::CopyOneFile(path, path + ".copy"));
        case 4:
            return void(PathOperation::GetFileList(m_folder, {"*"}, true));
        case 5:
            return Search(text);
        case 6:
            return WriteXml(path + ".xml");
        case 7:
            return void(QAESEncryption::Crypt(QAESEncryption::AES_256, QAESEncryption::CBC,
                                              text.toUtf8(), QByteArray(32, 'k'),
                                              QByteArray(16, 'i'), QAESEncryption::ISO));
        case 8:
            return void(ModuleLoadError("None.dll"));
        default:
            return Pack();
        }
    }
    /// What any thread may call of a player that another one edits for.
    void UsePlayer(INLEPlayer& player)
    {
        int number = 0;
        double rate = 0;
        NLEPlayerReport report = {};
        NLEPlayerLevels levels = {};
        switch (Any(0, 12)) {
        case 0:
            return void(player.Play(Any(0, 1) ? 1 : -2));
        case 1:
            return void(player.Pause());
        case 2:
            return void(player.Seek(Any(-5, 100)));
        case 3:
            return void(player.Step(Any(-2, 2)));
        case 4:
            return void(player.Scrub(Any(-5, 100)));
        case 5:
            return void(player.SetLoop(Any(0, 40), Any(0, 90), Any(0, 1) == 1));
        case 6:
            return void(player.SetPictureSize(Any(16, 64), Any(16, 64)));
        case 7:
            return void(player.SetVolume(Any(0, 4)));
        case 8:
            return void(player.GetPosition(&number) + player.GetLength(&number));
        case 9:
            return void(player.GetState(&number) + player.GetRate(&rate));
        case 10:
            return void(player.GetReport(&report) + player.GetTotals(&report));
        case 11:
            return void(player.GetLevels(&levels) + player.ResetClipping());
        default:
            std::this_thread::sleep_for(std::chrono::milliseconds(Any(0, 5)));
        }
    }
    /// What any thread may ask the engine for, beside one that edits.
    void UseEngine(const std::wstring& film)
    {
        const auto factory = EngineFixture::Factory();
        wchar_t text[64];
        NLEComPtr<INLEProxyMaker> maker;
        NLEComPtr<INLECodec> codec;
        NLEComPtr<INLESystemConfig> config;
        NLEComPtr<INLEProperties> settings;
        switch (Any(0, 2)) {
        case 0:
            factory->CreateProxyMaker(maker.put());
            return void(maker->SetHeight(Any(60, 100)) + maker->Find(film.c_str(), text, 64));
        case 1:
            return void(factory->CreateCodecFromFile(film.c_str(), codec.put()));
        default:
            factory->GetSystemConfig(config.put());
            config->GetProperties(settings.put());
            return void(settings->SetInt(NLEKey::System::kCacheQuota, Any(1, 100)));
        }
    }

private:
    static void Search(const QString& text)
    {
        QString found;
        RegexOperation::RegexFindString(text, "[0-9a-f]+", found);
        StringOperation::StrToInt(found, 0);
    }
    static void WriteXml(const QString& path)
    {
        XmlOperation::CreateXmlFile(path, "root");
        QDomDocument document;
        if (XmlOperation::OpenXmlFile(document, path, QIODevice::ReadOnly))
            XmlOperation::SaveXmlContent2File(document, path);
    }
    void Pack()
    {
        const QString archive = m_folder + ".zip";
        if (QuaZipOperate::CompressDir(archive, m_folder))
            QuaZipOperate::ExtractDir(archive, m_folder + ".unpacked");
    }

    const QString m_folder;
    std::mt19937 m_random;
};

/// Threads that call until they end, each with what is its own.
class Crowd
{
public:
    Crowd(unsigned seed, QString folder) : m_seed(seed), m_folder(std::move(folder)) {}
    ~Crowd() { Join(); }

    void Add(const std::function<void(Caller&)>& call)
    {
        const unsigned number = unsigned(m_threads.size());
        m_threads.emplace_back([this, call, number] {
            Caller caller(m_seed + number, QString("%1/%2").arg(m_folder).arg(number));
            for (; !m_ends; ++m_calls)
                call(caller);
        });
    }
    /// How many calls there were.
    int Join()
    {
        m_ends = true;
        for (std::thread& thread : m_threads)
            thread.join();
        m_threads.clear();
        return m_calls;
    }

private:
    const unsigned m_seed;
    const QString m_folder;
    std::atomic<bool> m_ends{false};
    std::atomic<int> m_calls{0};
    std::vector<std::thread> m_threads;
};

} // namespace

class tst_RandomThreads : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    unsigned m_seed = 0;
    int m_seconds = 0;

private Q_SLOTS:
    void initTestCase()
    {
        m_seed = Seed();
        m_seconds = std::max(1, qEnvironmentVariableIntValue("COMMONLIB_SECONDS"));
    }

    void theLibrary()
    {
        const QByteArray log = QFile::encodeName(m_folder.filePath("log"));
        QCOMPARE(GetGlobalLogInstance()->Init(log.constData(), false, LogLevelInfo), 0);
        Crowd crowd(m_seed, m_folder.filePath("library"));
        for (int i = 0; i < 4; ++i) {
            crowd.Add([](Caller& caller) {
                caller.UseLibrary();
                GetGlobalLogInstance()->LogInfo("call", "tst_random_threads", 1, "%d", 1);
            });
        }
        QTest::qWait(m_seconds * 1000);
        const int calls = crowd.Join();
        ReleseGlobalLogInstance();
        qInfo("%d calls", calls);
        QVERIFY(calls > 0);
        // Behind the time all lines are the same.
        QFile file(m_folder.filePath("log"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QSet<QByteArray> lines;
        for (const QByteArray& line : file.readAll().trimmed().split('\n'))
            lines << line.mid(line.indexOf(']')).trimmed();
        QCOMPARE(lines.size(), 1);
    }

    void theEngine()
    {
        const EngineFixture engine;
        if (!engine.Factory())
            QSKIP("There is no engine.");
        const Node project = engine.ProjectWith(engine.Trimmed(engine.Colour(Qt::red), 0, 99));
        NLEComPtr<INLEEditing> editing;
        NLEComPtr<INLEPlayer> player;
        engine.Factory()->CreateEditing(project.get(), editing.put());
        engine.Factory()->CreatePlayer(player.put());
        QCOMPARE(player->Open(project.get()), S_OK);
        Crowd crowd(m_seed, m_folder.filePath("engine"));
        for (int i = 0; i < 3; ++i)
            crowd.Add([&](Caller& caller) { caller.UsePlayer(*player.get()); });
        const auto extractor = engine.provider->CreateFrameExtractor();
        const auto picture = engine.provider->CreateVideoFrame(64, 36);
        QCOMPARE(extractor->Open(project.get(), NLEOpen_Render), S_OK);
        crowd.Add([&](Caller& caller) { extractor->Extract(caller.Any(0, 99), picture.get()); });
        const std::wstring film = engine.Path("film.mp4").toStdWString();
        QCOMPARE(MakeTestClip(QString::fromStdWString(film), TestClip()), QString());
        for (int i = 0; i < 2; ++i)
            crowd.Add([&](Caller& caller) { caller.UseEngine(film); });
        // Editing stays here.
        Caller editor(m_seed, m_folder.filePath("editor"));
        int edits = 0;
        for (QElapsedTimer timer = Started(); timer.elapsed() < qint64(m_seconds) * 1000; ++edits) {
            const Node clip = engine.Trimmed(engine.Colour(Qt::blue), 0, editor.Any(0, 20));
            editor.Any(0, 2) == 0 ? editing->Undo()
                                  : editing->Place(clip.get(), editor.Any(0, 90), editor.Any(0, 2),
                                                   NLEEdit_Overwrite);
            player->Refresh();
            engine.Facet<INLEBackgroundCache>(engine.Project());
            QTest::qWait(editor.Any(0, 3));
        }
        const int calls = crowd.Join();
        qInfo("%d calls, %d edits", calls, edits);
        QCOMPARE(player->Close(), S_OK);
        QVERIFY(calls > 0 && edits > 0);
    }

private:
    static QElapsedTimer Started()
    {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }
};

QTEST_MAIN(tst_RandomThreads)
#include "tst_random_threads.moc"
