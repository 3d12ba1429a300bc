// SPDX-License-Identifier: LGPL-2.1-or-later
// What the open engine tells of calls that failed.
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLEMarkers.h"
#include "EngineApi/INLEProxies.h"
#include "EngineApi/INLEReasons.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLESystemFile.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/FailingMemory.h"
#include "tests/support/FullDisk.h"

#include <QThread>

#include <functional>

namespace {

using Call = std::function<HRESULT()>;

/// A failure as a host sees it.
struct Failure
{
    HRESULT result = S_OK;
    int reason = NLEReason_None;
    QString text;
};

/// Warnings and debug messages of the engine while it is there.
class EngineMessages
{
public:
    EngineMessages() { s_old = qInstallMessageHandler(Take); }
    ~EngineMessages() { qInstallMessageHandler(s_old); }

    static QStringList All()
    {
        const QMutexLocker lock(&s_mutex);
        return s_messages;
    }

private:
    static void Take(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (qstrcmp(context.category, "nle.engine") != 0)
            return s_old(type, context, message);
        const QMutexLocker lock(&s_mutex);
        s_messages << message;
    }

    static inline QtMessageHandler s_old = nullptr;
    static inline QMutex s_mutex;
    static inline QStringList s_messages;
};

} // namespace
Q_DECLARE_METATYPE(Call)

class tst_EngineReasons : public QObject, private EngineFixture
{
    Q_OBJECT

    Failure Last() const
    {
        Failure last;
        wchar_t text[600] = L"";
        m_reasons->GetLast(&last.result, &last.reason);
        m_reasons->GetText(text, 600);
        last.text = QString::fromWCharArray(text);
        return last;
    }

    Call Setting(const Node& node, const wchar_t* name, double value) const
    {
        return [=] { return node.query<INLEParameters>()->SetNumber(name, value); };
    }
    Call Reading(const QString& name) const
    {
        return [=] {
            NLEComPtr<INLECodec> codec;
            return m_factory->CreateCodecFromFile(folder.filePath(name).toStdWString().c_str(),
                                                  codec.put());
        };
    }
    /// The call on a disk without room.
    static Call OnFullDisk(const Call& call)
    {
        return [call] {
            FullDisk::s_isFull = true;
            const HRESULT result = call();
            FullDisk::s_isFull = false;
            return result;
        };
    }
    Call Encoding(const QString& name, const Node& node) const
    {
        return [=] {
            return provider->CreateMediaEncoder()->Open(
                node.get(), folder.filePath(name).toStdWString().c_str(), nullptr);
        };
    }

    /// Reads the sound of the file at \a path.
    NLEComPtr<INLEWaveExtractor> SoundOf(const QString& path) const
    {
        const auto codec = provider->CreateCodecFromFile(path);
        NLEComPtr<INLEMediaInfo> info;
        codec->GetMediaInfo(info.put());
        auto waves = provider->CreateWaveExtractor();
        waves->SetSource(info.get(), 1);
        return waves;
    }

    NLEComPtr<INLEFactory> m_factory;
    NLEComPtr<INLEReasons> m_reasons;

private slots:
    void initTestCase()
    {
        m_factory = Factory();
        QVERIFY(m_factory);
        QCOMPARE(m_factory->GetReasons(m_reasons.put()), S_OK);
        QVERIFY(SetContents(Path("text.txt"), "no media"));
        QVERIFY(QDir(folder.path()).mkdir("folder.mp4"));
        TestClip clip;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(Path("sound.mp4"), clip), QString());
        // Where OpenCL looks for drivers, when it is first used.
        QVERIFY(qputenv("OCL_ICD_VENDORS", QFile::encodeName(Path("folder.mp4"))));
    }

    void cleanupTestCase()
    {
        m_reasons.reset();
        m_factory.reset();
    }

    void everyRefusalHasItsReason_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<int>("reason");
        QTest::addColumn<QString>("words");
        const auto row = [](const char* name, Call call, int reason, const QString& words = {}) {
            QTest::newRow(name) << call << reason << words;
        };
        const Node project = Project();
        const Node clip = Colour(Qt::red);
        const Node blur = Effect("blur");
        const Node lut = Effect("lut");
        const auto bag = BagOf(clip);

        row(
            "an out-parameter that is null", [=] { return clip->GetLevel(nullptr); },
            NLEReason_NullPointer);
        row(
            "a reference that nobody takes", [=] { return clip->GetProperties(nullptr); },
            NLEReason_NullPointer);
        row(
            "an object that nobody takes", [=] { return m_factory->CreateFrameExtractor(nullptr); },
            NLEReason_NullPointer);
        row("a parameter beyond its range", Setting(blur, L"size", 1e6), NLEReason_OutOfRange,
            "size: 0 to 200");
        row(
            "a setting beyond its range",
            [=] { return Facet<INLEAudioStreamProcess>(clip)->SetPitch(25); }, NLEReason_OutOfRange,
            "-24 to 24");
        row("a parameter that there is not", Setting(blur, L"sizex", 1), NLEReason_UnknownName,
            "sizex");
        row(
            "an effect that there is not",
            [] {
                Node effect;
                return Nodes()->CreateEffect(L"blurx", effect.put());
            },
            NLEReason_UnknownName, "blurx");
        row(
            "a table of colours that is not there",
            [=] { return lut.query<INLEParameters>()->SetText(L"file", L"/none/a.cube"); },
            NLEReason_FileMissing, "/none/a.cube");
        row(
            "a table of colours that is none",
            [=] {
                return lut.query<INLEParameters>()->SetText(
                    L"file", Path("text.txt").toStdWString().c_str());
            },
            NLEReason_FileUnsupported, "text.txt");
        row(
            "an effect beyond the last",
            [=] {
                Node effect;
                return Facet<INLEEffects>(clip)->GetEffect(3, effect.put());
            },
            NLEReason_UnknownIndex, "3: 0");
        row(
            "a marker that there is not", [=] { return Facet<INLEMarkers>(clip)->DeleteMarker(7); },
            NLEReason_UnknownIndex, "7: 0");
        row(
            "a key frame that there is not",
            [=] { return Facet<INLEKeyFrameList>(clip)->DeleteKeyFrame(2); },
            NLEReason_UnknownIndex, "2: 0");
        row(
            "a project in itself", [=] { return Add(project, project); }, NLEReason_WrongObject);
        row(
            "a clip as an effect",
            [=] { return Facet<INLEEffects>(project)->AddEffect(clip.get(), -1); },
            NLEReason_WrongObject);
        row(
            "a value that is only read",
            [=] { return bag->SetInt(NLEKey::Render::kRender_TotalFrameCount, 1); },
            NLEReason_ReadOnly);
        row(
            "a value that is not there",
            [=] {
                int value = 0;
                return bag->GetInt(L"none", &value);
            },
            NLEReason_NoValue, "none");
        row(
            "memory that the engine has no frames in",
            [=] {
                NLEComPtr<INLEVideoFrame> frame;
                return m_factory->CreateVideoFrame(2, 2, 0, NLEMemory_OpenCL + 1, 0, 0, 0, 0,
                                                   frame.put());
            },
            NLEReason_NotOffered);
        row(
            "a device that there is not",
            [=] {
                NLEComPtr<INLEVideoFrame> frame;
                const HRESULT result =
                    m_factory->CreateVideoFrame(2, 2, 0, NLEMemory_OpenCL, 0, 0, 0, 0, frame.put());
                return frame ? S_OK : result;
            },
            NLEReason_NoDevice, "OpenCL");
        row(
            "a frame of no size",
            [=] {
                NLEComPtr<INLEVideoFrame> frame;
                return m_factory->CreateVideoFrame(0, 2, 0, NLEMemory_System, 0, 0, 0, 0,
                                                   frame.put());
            },
            NLEReason_OutOfRange);
        row(
            "a frame beyond the end",
            [=] {
                const auto extractor = provider->CreateFrameExtractor();
                const auto frame = provider->CreateVideoFrame(32, 18);
                frame->Prepare();
                extractor->Open(project.get(), NLEOpen_Render);
                return extractor->Extract(5, frame.get());
            },
            NLEReason_NothingThere, "5");
        row(
            "scenes of nothing",
            [=] {
                int frame = 0;
                return provider->CreateSceneSegment()->Next(&frame);
            },
            NLEReason_WrongState);
        row(
            "a cache without a folder",
            [=] {
                const NLESize size = {32, 18};
                NLEComPtr<INLEBackgroundCache> cache;
                project->GetInterface(INLEBackgroundCache::Iid, cache.putVoid(), 0, 0);
                return cache->Start(&size, nullptr, nullptr);
            },
            NLEReason_WrongState);
        row(
            "a proxy of too few lines",
            [=] {
                NLEComPtr<INLEProxyMaker> maker;
                m_factory->CreateProxyMaker(maker.put());
                return maker->SetHeight(1);
            },
            NLEReason_OutOfRange, "64 to 2160");
        row("a file that is missing", Reading("none.mp4"), NLEReason_FileMissing, "none.mp4");
        row("a folder as a film", Reading("folder.mp4"), NLEReason_FileUnreadable, "folder.mp4");
        row("a file of no known format", Reading("text.txt"), NLEReason_FileUnsupported,
            "text.txt");
        row(
            "a document that is missing",
            [=] {
                Node node;
                return provider->CreateDocumentSerialize()->Load(L"/none/a.mlt", node.put());
            },
            NLEReason_FileMissing, "/none/a.mlt");
        row(
            "a document that is none",
            [=] {
                QFile::copy(Path("text.txt"), Path("text.mlt"));
                Node node;
                return provider->CreateDocumentSerialize()->Load(
                    Path("text.mlt").toStdWString().c_str(), node.put());
            },
            NLEReason_FileUnsupported, "text.mlt");
        row(
            "a document in no folder",
            [=] {
                return provider->CreateDocumentSerialize()->Save(project.get(), L"/none/a.mlt");
            },
            NLEReason_NotWritable, "/none/a.mlt");
        row("a film in no folder", Encoding("none/film.mp4", clip), NLEReason_NotWritable,
            "film.mp4");
        row("a film of no container", Encoding("film.none", clip), NLEReason_NoContainer,
            "film.none");
        row("a film of nothing", Encoding("film.mp4", project), NLEReason_NothingThere);
        row("a film on a full disk", OnFullDisk(Encoding("full.mp4", clip)), NLEReason_DiskFull,
            "full.mp4");
        row("pictures on a full disk", OnFullDisk(Encoding("full_%d.png", clip)),
            NLEReason_DiskFull, "full_%d.png");
        row(
            "a film, when the disk fills",
            [=] {
                const auto encoder = provider->CreateMediaEncoder();
                const QString film = Path("fills.mp4");
                const HRESULT opened =
                    encoder->Open(clip.get(), film.toStdWString().c_str(), nullptr);
                return FAILED(opened)
                           ? S_OK
                           : OnFullDisk([&] { return encoder->Encode(nullptr, nullptr); })();
            },
            NLEReason_DiskFull, "fills.mp4");
        row("a document on a full disk", OnFullDisk([=] {
                return provider->CreateDocumentSerialize()->Save(
                    project.get(), Path("full.mlt").toStdWString().c_str());
            }),
            NLEReason_DiskFull, "full.mlt");
        row("settings on a full disk", OnFullDisk([=] {
                return provider->GetSystemConfig().query<INLESystemFile>()->Save(
                    Path("full.json").toStdWString().c_str());
            }),
            NLEReason_DiskFull, "full.json");
        row("an envelope on a full disk", OnFullDisk([=] {
                return SoundOf(Path("sound.mp4")).query<INLEWaveCache>()->Compute(nullptr, nullptr);
            }),
            NLEReason_DiskFull, "waves");
        row(
            "an interrupted picture",
            [=] {
                const auto extractor = provider->CreateFrameExtractor();
                const auto frame = provider->CreateVideoFrame(32, 18);
                frame->Prepare();
                extractor->Open(clip.get(), NLEOpen_Render);
                extractor.query<INLEFrameScrubber>()->Interrupt();
                return extractor->Extract(0, frame.get());
            },
            NLEReason_Cancelled);
        row(
            "a frame that there is no memory for",
            [=] {
                NLEComPtr<INLEVideoFrame> frame;
                bool ranOut = false;
                return FailingMemory::After(
                           0,
                           [&] {
                               return m_factory->CreateVideoFrame(32, 18, 0, NLEMemory_System, 0, 0,
                                                                  0, 0, frame.put());
                           },
                           &ranOut)
                    .value_or(S_OK);
            },
            NLEReason_OutOfMemory);
        row(
            "a codec that there is not",
            [=] {
                NLEComPtr<INLEProperties> options;
                m_factory->CreateProperties(options.put());
                options->SetString(NLEKey::Encode::kVideoCodec, L"nonesuch");
                NLEComPtr<INLEEncodeOptions> encoder;
                provider->CreateMediaEncoder()->QueryInterface(INLEEncodeOptions::Iid,
                                                               encoder.putVoid());
                return encoder->SetOptions(options.get());
            },
            NLEReason_SettingsRefused);
    }
    void everyRefusalHasItsReason()
    {
        QFETCH(Call, call);
        QFETCH(int, reason);
        QFETCH(QString, words);
        m_reasons->Forget();
        const EngineMessages messages;
        const int before = EngineMessages::All().size();
        const HRESULT result = call();
        QVERIFY(FAILED(result));
        const Failure last = Last();
        QCOMPARE(last.reason, reason);
        QCOMPARE(last.result, result);
        wchar_t title[100] = L"";
        QCOMPARE(m_reasons->GetTitle(reason, title, 100), S_OK);
        QVERIFY2(last.text.startsWith(QString::fromWCharArray(title)), qPrintable(last.text));
        QVERIFY2(last.text.contains(words), qPrintable(last.text));
        const QStringList logged = EngineMessages::All().mid(before);
        if (reason == NLEReason_NoValue)
            QCOMPARE(logged, QStringList());
        else
            QVERIFY2(!logged.isEmpty() && logged.last().contains(words),
                     qPrintable(logged.join('\n')));
    }

    void aSuccessLeavesTheReason()
    {
        const Node clip = Colour(Qt::red);
        QCOMPARE(clip->GetLevel(nullptr), E_POINTER);
        QCOMPARE(clip->SetLevel(3), S_OK);
        QCOMPARE(Last().reason, int(NLEReason_NullPointer));
        QCOMPARE(m_reasons->Forget(), S_OK);
        QCOMPARE(Last().reason, int(NLEReason_None));
        QCOMPARE(m_reasons->GetLast(nullptr, nullptr), S_FALSE);
    }

    void eachThreadHasItsOwn()
    {
        const Node clip = Colour(Qt::red);
        QCOMPARE(clip->GetLevel(nullptr), E_POINTER);
        Failure before;
        Failure after;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            before = Last();
            Reading("none.mp4")();
            after = Last();
        }));
        thread->start();
        QVERIFY(thread->wait(60000));
        QCOMPARE(before.reason, int(NLEReason_None));
        QCOMPARE(after.reason, int(NLEReason_FileMissing));
        QCOMPARE(Last().reason, int(NLEReason_NullPointer));
    }

    void whatFailsInTheBackgroundIsToldThere_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("isFull");
        QTest::addColumn<int>("reason");
        QTest::newRow("a file that is missing")
            << "none.mp4" << false << int(NLEReason_FileMissing);
        QTest::newRow("a full disk") << "sound.mp4" << true << int(NLEReason_DiskFull);
        QTest::newRow("cancelled") << "sound.mp4" << false << int(NLEReason_Cancelled);
    }
    void whatFailsInTheBackgroundIsToldThere()
    {
        QFETCH(QString, file);
        QFETCH(bool, isFull);
        QFETCH(int, reason);
        struct Told
        {
            tst_EngineReasons* self;
            INLEProxyMaker* maker;
            bool isFull;
            Failure failure;
            std::atomic<bool> isDone{false};
        };
        NLEComPtr<INLEProxyMaker> maker;
        QCOMPARE(m_factory->CreateProxyMaker(maker.put()), S_OK);
        maker->SetFolder(folder.filePath("proxies").toStdWString().c_str(), 100);
        maker->SetHeight(64);
        Told told{this, maker.get(), isFull, {}, {}};
        const auto take = [](const wchar_t*, HRESULT state, int, void* data) {
            auto* to = static_cast<Told*>(data);
            if (state == S_FALSE) {
                FullDisk::s_isFull = to->isFull;
                if (!to->isFull)
                    to->maker->Cancel(nullptr);
                return;
            }
            FullDisk::s_isFull = false;
            to->failure = to->self->Last();
            to->isDone = true;
        };
        m_reasons->Forget();
        QCOMPARE(maker->Make(folder.filePath(file).toStdWString().c_str(), take, &told), S_OK);
        QTRY_VERIFY_WITH_TIMEOUT(told.isDone, 60000);
        QCOMPARE(told.failure.reason, reason);
        QCOMPARE(Last().reason, int(NLEReason_None));
    }

    void longWordsAreCut()
    {
        QVERIFY(FAILED(Nodes()->CreateEffect(std::wstring(2000, L'x').c_str(), Node().put())));
        wchar_t words[600] = L"";
        QCOMPARE(m_reasons->GetWords(words, 600), S_OK);
        QCOMPARE(QString::fromWCharArray(words), QString(511, 'x'));
        QCOMPARE(m_reasons->GetWords(words, 3), S_OK);
        QCOMPARE(QString::fromWCharArray(words), QString("xx"));
        QCOMPARE(m_reasons->GetTitle(1000, words, 600), E_INVALIDARG);
    }
};

QTEST_MAIN(tst_EngineReasons)
#include "tst_engine_reasons.moc"
