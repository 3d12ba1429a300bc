// SPDX-License-Identifier: LGPL-2.1-or-later
// The open engine's font library, and what text clips show of it.
#include "EngineApi/INLEFactory.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/TestFonts.h"

#include <QFontDatabase>
#include <QtTest>

class tst_EngineFonts : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<EngineFixture> m_engine;
    NLEComPtr<INLEFontLibrary> m_library;

    /// A second start, as far as the library can tell.
    void Restart()
    {
        m_library.reset();
        const auto factory = EngineFixture::Factory();
        QCOMPARE(factory->GetFontLibrary(m_library.put()), S_OK);
        QCOMPARE(m_library->SetCacheFile(Path("Cache.xml").toStdWString().c_str()), S_OK);
    }
    QString Path(const char* name) const { return m_engine->Path(name); }
    bool Put(const char* name, const QByteArray& font) const
    {
        return SetContents(Path(name), font);
    }

    /// Fonts in files of each kind, one of them twice, and files that are none.
    void PutFonts() const
    {
        const QByteArray serif = TestFonts::Serif();
        QVERIFY(Put("b.ttf", TestFonts::Renamed(serif, "Files B")));
        QVERIFY(Put("a.OTF", TestFonts::Renamed(serif, "Files A")));
        QVERIFY(Put("c.ttc", TestFonts::Collection(TestFonts::Renamed(serif, "Files C1"),
                                                   TestFonts::Renamed(serif, "Files C2"))));
        QVERIFY(Put("d.ttf", TestFonts::Renamed(serif, "Files B")));
        QVERIFY(Put("e.txt", serif));
        QVERIFY(Put("f.ttf", {}));
        QVERIFY(Put("g.ttf", "no font at all"));
        QVERIFY(Put("h.ttf", serif.left(serif.size() / 3)));
        QVERIFY(QDir().mkdir(Path("i.ttf")));
    }
    QStringList Names() const
    {
        int count = -1;
        m_library->GetFontCount(&count);
        QStringList names;
        for (int i = 0; i < count; ++i) {
            wchar_t buffer[64];
            if (m_library->GetFontName(i, buffer, 64) == S_OK)
                names << QString::fromWCharArray(buffer);
        }
        return names;
    }
    HRESULT Scan() const
    {
        return m_library->SetFontFolder(m_engine->folder.path().toStdWString().c_str());
    }
    QImage Text(const char* family) const
    {
        const Node project = m_engine->Project();
        m_engine->Add(project, m_engine->provider->CreateTipTextTimeline("Hamburg", family));
        return m_engine->Frame(project, 0);
    }

private Q_SLOTS:
    void init()
    {
        m_engine.reset(new EngineFixture);
        Restart();
    }
    void cleanup()
    {
        m_library.reset();
        m_engine.reset();
    }

    void namesOfFiles()
    {
        PutFonts();
        QCOMPARE(Scan(), S_OK);
        QCOMPARE(Names(), QStringList({"Files A", "Files B", "Files C1", "Files C2"}));
        // Once more from the cache.
        Restart();
        QCOMPARE(Scan(), S_OK);
        QCOMPARE(Names(), QStringList({"Files A", "Files B", "Files C1", "Files C2"}));
    }

    void namesFollowChangesOfFiles()
    {
        PutFonts();
        QCOMPARE(Scan(), S_OK);
        QVERIFY(Put("g.ttf", TestFonts::Renamed(TestFonts::Serif(), "Files G")));
        QVERIFY(QFile::remove(Path("a.OTF")));
        Restart();
        QCOMPARE(Scan(), S_OK);
        QCOMPARE(Names(), QStringList({"Files B", "Files C1", "Files C2", "Files G"}));
        QVERIFY(!Contents(Path("Cache.xml")).contains("Files A"));
    }

    void nameIsCutToTheBuffer()
    {
        PutFonts();
        QCOMPARE(Scan(), S_OK);
        wchar_t buffer[4];
        QCOMPARE(m_library->GetFontName(0, buffer, 4), S_OK);
        QCOMPARE(QString::fromWCharArray(buffer), QString("Fil"));
    }

    void fontsOfTheSystemComeAfterTheFiles()
    {
        PutFonts();
        QCOMPARE(Scan(), S_OK);
        QCOMPARE(m_library->LoadSystemFonts(), S_OK);
        QStringList names = Names();
        QCOMPARE(names.first(), QString("Files A"));
        QVERIFY(names.contains("DejaVu Sans"));
        QCOMPARE(names.removeDuplicates(), 0);
    }

    /// The cache is believed as long as a file looks the same; that also shows that it is used.
    void cacheFile_data()
    {
        QTest::addColumn<QByteArray>("replace");
        QTest::addColumn<QByteArray>("with");
        QTest::addColumn<QString>("expected");
        QTest::newRow("as it was written") << QByteArray("zzz") << QByteArray() << "Cache A";
        QTest::newRow("a family of another name is believed")
            << QByteArray(">Cache A<") << QByteArray(">Told<") << "Told";
        QTest::newRow("a size that the file has not")
            << QByteArray("size=\"") << QByteArray("size=\"1") << "Cache A";
        QTest::newRow("a damaged end")
            << QByteArray("</FontCache>") << QByteArray("</") << "Cache A";
        QTest::newRow("bytes that are no text")
            << QByteArray("<") << QByteArray("\0\xff", 2) << "Cache A";
    }

    void cacheFile()
    {
        QFETCH(QByteArray, replace);
        QFETCH(QByteArray, with);
        QVERIFY(Put("a.ttf", TestFonts::Renamed(TestFonts::Serif(), "Cache A")));
        QCOMPARE(Scan(), S_OK);
        const QByteArray written = Contents(Path("Cache.xml"));
        QVERIFY(written.contains("Cache A"));
        QVERIFY(Put("Cache.xml", QByteArray(written).replace(replace, with)));
        Restart();
        QCOMPARE(Scan(), S_OK);
        QTEST(Names().join(','), "expected");
        if (QTest::currentDataTag() != QByteArray("a family of another name is believed"))
            QCOMPARE(Contents(Path("Cache.xml")), written);
    }

    void textClipsUseThem()
    {
        const QImage fallback = Text("Shown Serif");
        QVERIFY(fallback != Text("DejaVu Serif"));
        QVERIFY(Put("a.ttf", TestFonts::Renamed(TestFonts::Serif(), "Shown Serif")));
        QCOMPARE(Scan(), S_OK);
        QCOMPARE(Text("Shown Serif"), Text("DejaVu Serif"));
    }

    void textClipsUseThemAtASecondStart()
    {
        // The cache alone knows the font then; Qt learns of it when a clip asks.
        QVERIFY(Put("b.ttf", TestFonts::Renamed(TestFonts::Serif(), "Shown Later")));
        const QFileInfo file(Path("b.ttf"));
        const QString cache = "<FontCache><Font file='%1' size='%2' modified='%3'>"
                              "<Family>Shown Later</Family></Font></FontCache>";
        const qint64 modified = file.lastModified().toMSecsSinceEpoch();
        QVERIFY(Put("Cache.xml",
                    cache.arg(file.absoluteFilePath()).arg(file.size()).arg(modified).toUtf8()));
        Restart();
        QCOMPARE(Scan(), S_OK);
        QVERIFY(Names().contains("Shown Later"));
        QVERIFY(!QFontDatabase().hasFamily("Shown Later"));
        QCOMPARE(Text("Shown Later"), Text("DejaVu Serif"));
    }
};

QTEST_MAIN(tst_EngineFonts)
#include "tst_engine_fonts.moc"
