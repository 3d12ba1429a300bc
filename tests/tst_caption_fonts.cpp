// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalResources/ICaptionEnvironment.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedFonts.h"
#include "tests/support/ScriptedSession.h"
#include "tests/support/TestFonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QTemporaryDir>
#include <QtTest>

using namespace Scripted;

class tst_CaptionFonts : public QObject
{
    Q_OBJECT

private:
    Script& m_script = Script::Get();
    const QString m_fonts = QCoreApplication::applicationDirPath() + "/Fonts/";

    static NLEComPtr<FontLibrary> MakeLibrary(const QStringList& names)
    {
        auto library = MakeCom<FontLibrary>("fonts");
        library->names = names;
        Script::Get().results["factory.GetFontLibrary"] = library.query<IUnknown>();
        return library;
    }
    static QStringList List(ICaptionEnvironment* environment)
    {
        QStringList list;
        for (const CaptionFont* font : *environment->GetFonts())
            list << font->name + '=' + font->family;
        return list;
    }
    /// "Function: message" of each line.
    static QStringList Messages(LogCapture& log)
    {
        QStringList lines = log.Take();
        for (QString& line : lines)
            line.replace(QRegularExpression("-INFO- \\[CaptionEnvironment::(\\w+)\\]:  (.*) - "
                                            "\\[CommonLib/GlobalResources\\(\\d+\\)\\]"),
                         "\\1: \\2");
        return lines;
    }

private Q_SLOTS:
    void cleanup()
    {
        ICaptionEnvironment::GetInstance()->Release();
        QDir(m_fonts).removeRecursively();
        QCOMPARE(EndSession(), QStringList());
    }

    void startAsksTheEngineForItsFonts()
    {
        constexpr int longestName = 256;
        LogCapture log;
        const auto library = MakeLibrary({"B", "A", "B", QString(300, 'x')});
        ICaptionEnvironment* environment = ICaptionEnvironment::GetInstance();
        QCOMPARE(ICaptionEnvironment::GetInstance(), environment);
        QCOMPARE(Text(environment->GetFactory()), QString("factory"));
        const QString native = QDir::toNativeSeparators(m_fonts);
        const QStringList setUp = {"module.DllGetClassObject()",
                                   "classFactory.CreateInstance(null)",
                                   "factory.Init(0)",
                                   "factory.GetFontLibrary()",
                                   "fonts.SetCacheFile(" + native + "Cache.xml)",
                                   "fonts.SetFontFolder(" + native + ")",
                                   "fonts.GetFontCount()"};
        const QString name = QString("fonts.GetFontName(%1)").arg(longestName);
        QCOMPARE(m_script.TakeCalls(), setUp + QStringList({name, name, name, name}));
        const QString cut(longestName, 'x');
        QCOMPARE(List(environment), QStringList({"A=A", "B=B", cut + '=' + cut}));
        QCOMPARE(Messages(log), QStringList("InitSystemFont: Fontcount:4"));
    }

    void fontFilesGiveQtTheirFamilies()
    {
        QVERIFY(QDir().mkpath(m_fonts));
        const QByteArray serif = TestFonts::Serif();
        QVERIFY(SetContents(m_fonts + "a.TTF", TestFonts::Renamed(serif, "Caption A")));
        QVERIFY(SetContents(m_fonts + "b.otfx", TestFonts::Renamed(serif, "Caption B")));
        QVERIFY(SetContents(m_fonts + "c.txt", TestFonts::Renamed(serif, "Caption C")));
        QVERIFY(SetContents(m_fonts + "broken.ttf", "no font"));
        const auto library = MakeLibrary({"caption b", "Unknown", "Caption A", "Caption C"});
        // Sorted; Qt's spelling where it has the font.
        const QStringList expected = {"Caption A=Caption A", "Caption C=Caption C",
                                      "Unknown=Unknown", "caption b=Caption B"};
        QCOMPARE(List(ICaptionEnvironment::GetInstance()), expected);
        QVERIFY(!QFontDatabase().hasFamily("Caption C"));
    }

    void releaseShutsTheEngineDown()
    {
        const auto library = MakeLibrary({});
        LogCapture log;
        ICaptionEnvironment* environment = ICaptionEnvironment::GetInstance();
        m_script.TakeCalls();
        environment->Release();
        QCOMPARE(m_script.TakeCalls(), QStringList("factory.Shutdown(1)"));
        QCOMPARE(References(library.get()), 2u); // the script's and this one
        QCOMPARE(Messages(log), QStringList("InitSystemFont: Fontcount:0"));
    }

    void addsFontsOfAFolder()
    {
        const QTemporaryDir folder;
        const auto library = MakeLibrary({"B"});
        LogCapture log;
        ICaptionEnvironment* environment = ICaptionEnvironment::GetInstance();
        m_script.TakeCalls();
        library->names << "A"
                       << "C";
        environment->AddFonts(folder.path());
        QCOMPARE(m_script.TakeCalls().first(),
                 "fonts.AddFontFolder(" + QDir::toNativeSeparators(folder.path() + '/') + ')');
        QCOMPARE(List(environment), QStringList({"A=A", "B=B", "C=C"}));
        const QStringList messages = {
            "InitSystemFont: Fontcount:1", "AddFonts: AddFonts Fontcount:1",
            "InitSystemFont: Fontcount:3", "AddFonts: AddFonts Fontcount:3"};
        QCOMPARE(Messages(log), messages);
    }

    void addsNothingOfAMissingFolder()
    {
        const QTemporaryDir folder;
        const auto library = MakeLibrary({"B"});
        LogCapture log;
        ICaptionEnvironment* environment = ICaptionEnvironment::GetInstance();
        m_script.TakeCalls();
        library->names = QStringList("D");
        environment->AddFonts(folder.path() + "/missing");
        environment->AddFonts(QString());
        QCOMPARE(m_script.TakeCalls(), QStringList());
        QCOMPARE(List(environment), QStringList("B=B"));
        QCOMPARE(Messages(log), QStringList("InitSystemFont: Fontcount:1"));
    }

    void addsFontsOfTheSystem()
    {
        const auto library = MakeLibrary({"B"});
        LogCapture log;
        ICaptionEnvironment* environment = ICaptionEnvironment::GetInstance();
        m_script.TakeCalls();
        library->names = QStringList("D");
        environment->AddSystemFonts();
        const QStringList calls = {"fonts.LoadSystemFonts()", "fonts.GetFontCount()",
                                   "fonts.GetFontName(256)"};
        QCOMPARE(m_script.TakeCalls(), calls);
        QCOMPARE(List(environment), QStringList("D=D"));
        const QStringList messages = {
            "InitSystemFont: Fontcount:1", "AddSystemFonts: LoadSystemFonts start",
            "AddSystemFonts: LoadSystemFonts end", "InitSystemFont: Fontcount:1"};
        QCOMPARE(Messages(log), messages);
    }

    void failures_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::addColumn<QString>("message");
        QTest::newRow("no factory") << "classFactory.CreateInstance"
                                    << "CaptionEnvironment: Font Factory failed";
        QTest::newRow("no library") << "factory.GetFontLibrary"
                                    << "CaptionEnvironment: m_pFontLibrary failed";
        QTest::newRow("no count") << "fonts.GetFontCount"
                                  << "InitSystemFont: Fontcount:0";
        QTest::newRow("no names") << "fonts.GetFontName"
                                  << "InitSystemFont: Fontcount:1";
    }

    void failures()
    {
        QFETCH(QString, failing);
        QFETCH(QString, message);
        LogCapture log;
        const auto library = MakeLibrary({"A"});
        m_script.statuses[failing] = E_FAIL;
        ICaptionEnvironment* environment = ICaptionEnvironment::GetInstance();
        QCOMPARE(environment->GetFactory() == nullptr, failing.startsWith("class"));
        if (!failing.startsWith("fonts.")) {
            m_script.TakeCalls();
            environment->AddFonts(QDir::tempPath());
            environment->AddSystemFonts();
            QCOMPARE(m_script.TakeCalls(), QStringList());
        }
        QCOMPARE(List(environment), QStringList());
        QCOMPARE(Messages(log), QStringList(message));
    }
};

QTEST_MAIN(tst_CaptionFonts)
#include "tst_caption_fonts.moc"
