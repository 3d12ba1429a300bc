// SPDX-License-Identifier: LGPL-2.1-or-later
// Settings of the open engine itself: in the process, and in a file.
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLESystemFile.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

namespace Key = NLEKey::System;

class tst_SystemConfig : public QObject, private EngineFixture
{
    Q_OBJECT

    NLEComPtr<INLEProperties> Bag() const
    {
        NLEComPtr<INLEProperties> bag;
        provider->GetSystemConfig()->GetProperties(bag.put());
        return bag;
    }
    int Number(const wchar_t* key) const
    {
        int number = -1;
        Bag()->GetInt(key, &number);
        return number;
    }
    QString Folder() const
    {
        wchar_t text[1000] = L"none";
        Bag()->GetString(Key::kCacheFolder, text, 1000);
        return QString::fromWCharArray(text);
    }
    void Set(int threads, int pictures, int quota, const QString& cacheFolder) const
    {
        QCOMPARE(Bag()->SetInt(Key::kThreads, threads), S_OK);
        QCOMPARE(Bag()->SetInt(Key::kDecodedPictures, pictures), S_OK);
        QCOMPARE(Bag()->SetInt(Key::kCacheQuota, quota), S_OK);
        QCOMPARE(Bag()->SetString(Key::kCacheFolder, cacheFolder.toStdWString().c_str()), S_OK);
    }
    HRESULT Load(const QByteArray& content) const
    {
        if (!SetContents(Path("written.json"), content))
            return E_ABORT;
        return provider->GetSystemConfig().query<INLESystemFile>()->Load(
            Path("written.json").toStdWString().c_str());
    }

private slots:
    void cleanup() { Set(0, 512, 10240, QString()); }

    void savedAndLoaded()
    {
        const auto file = provider->GetSystemConfig().query<INLESystemFile>();
        const std::wstring path = Path("system.json").toStdWString();
        const QString cache = Path("c\xC3\xA4"
                                   "che");
        Set(3, 64, 200, cache);
        QCOMPARE(file->Save(path.c_str()), S_OK);
        Set(0, 512, 10240, QString());
        QCOMPARE(file->Load(path.c_str()), S_OK);
        QCOMPARE(Number(Key::kThreads), 3);
        QCOMPARE(Number(Key::kDecodedPictures), 64);
        QCOMPARE(Number(Key::kCacheQuota), 200);
        QCOMPARE(Folder(), cache);
        QCOMPARE(file->Save(L"/none/system.json"), E_FAIL);
        QCOMPARE(file->Load(L"/none/system.json"), E_FAIL);
    }

    void filesThatAreNotTaken_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<HRESULT>("result");
        QTest::addColumn<int>("threads");
        QTest::newRow("one key alone") << QByteArray("{\"kSystem_Threads\": 5}") << S_OK << 5;
        QTest::newRow("a key of another version") << QByteArray("{\"new\": 5}") << S_OK << 2;
        const auto refused = [](const char* name, const char* content, HRESULT result) {
            QTest::newRow(name) << QByteArray(content) << result << 2;
        };
        refused("no settings", "threads=4", E_FAIL);
        refused("a list", "[1]", E_FAIL);
        refused("beyond the range, after one that is not",
                "{\"kSystem_Threads\": 5, \"kSystem_DecodedPictures\": 1e30}", E_INVALIDARG);
        refused("half a thread", "{\"kSystem_Threads\": 0.5}", E_INVALIDARG);
        refused("a number as a text", "{\"kSystem_Threads\": \"4\"}", E_INVALIDARG);
        refused("a folder that is a number", "{\"kSystem_Threads\": 5, \"kSystem_CacheFolder\": 1}",
                E_INVALIDARG);
    }
    void filesThatAreNotTaken()
    {
        QFETCH(QByteArray, content);
        QFETCH(HRESULT, result);
        QFETCH(int, threads);
        Set(2, 512, 10240, QString());
        QCOMPARE(Load(content), result);
        QCOMPARE(Number(Key::kThreads), threads);
        QCOMPARE(Number(Key::kDecodedPictures), 512);
    }

    void valuesThatAreNotTaken()
    {
        QCOMPARE(Bag()->SetInt(Key::kThreads, 65), E_INVALIDARG);
        QCOMPARE(Bag()->SetInt(Key::kThreads, -1), E_INVALIDARG);
        QCOMPARE(Bag()->SetInt(Key::kCacheFolder, 1), E_INVALIDARG);
        QCOMPARE(Bag()->SetString(Key::kThreads, L"1"), E_INVALIDARG);
        QCOMPARE(Bag()->SetInt(L"none", 1), E_INVALIDARG);
        QCOMPARE(Number(Key::kThreads), 0);
    }

    /// Timelines have a cache without a word of the host.
    void cacheOfATimeline()
    {
        const NLESize size = {160, 90};
        const auto cacheOf = [](const Node& project) {
            NLEComPtr<INLEBackgroundCache> cache;
            project->GetInterface(INLEBackgroundCache::Iid, cache.putVoid(), 0, 0);
            return cache;
        };
        QCOMPARE(cacheOf(ProjectWith(Colour(Qt::red)))->Start(&size, nullptr, nullptr),
                 E_INVALIDARG);
        Set(1, 512, 100, Path("previews"));
        const Node project = ProjectWith(Trimmed(Colour(Qt::red), 0, 9));
        const auto cache = cacheOf(project);
        QCOMPARE(cache->Start(&size, nullptr, nullptr), S_OK);
        QTRY_VERIFY_WITH_TIMEOUT(!QDir(Path("previews")).entryList(QDir::Files).isEmpty(), 60000);
        QCOMPARE(cache->DeleteCache(true), S_OK);
    }
};

QTEST_MAIN(tst_SystemConfig)
#include "tst_system_config.moc"
