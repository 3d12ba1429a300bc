// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/MultiLangMgr.h"
#include "tests/support/TestFonts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

class tst_Languages : public QObject
{
    Q_OBJECT

private:
    const QString m_lang = QCoreApplication::applicationDirPath() + "/Lang/";
    const QFont m_font = QApplication::font();
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_ini;

    MultiLangMgr* Manager() const
    {
        auto* manager = MultiLangMgr::GetInstance();
        manager->SetConfigPath(m_ini);
        return manager;
    }
    static QString Shown(int number = 0)
    {
        return QCoreApplication::translate("Test", qPrintable(QString("text %1").arg(number)));
    }
    /// Puts a compiled translation below the folder of languages.
    bool Install(const QString& variant, const QString& name) const
    {
        const QString path = m_lang + name;
        QDir().mkpath(QFileInfo(path).path());
        QFile::remove(path);
        return QFile::copy(TEST_TRANSLATIONS "/" + variant + ".qm", path);
    }
    QString Stored() const
    {
        return QSettings(m_ini, QSettings::IniFormat).value("System/DefInstallLang").toString();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QDir(m_lang).removeRecursively();
        QVERIFY(Install("deutsch", "de/a.qm"));
        QVERIFY(Install("nihongo", "ja/host.qm"));
        QVERIFY(Install("hk", "zhh/name without suffix"));
    }
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        m_ini = m_folder->filePath("Multilang.ini");
    }
    void cleanup()
    {
        MultiLangMgr::Release();
        QApplication::setFont(m_font);
    }

    void table()
    {
        const QStringList rows = {
            "1 en US ENG English en en",         "3 de DE DEU German de de",
            "7 es ES ESP Spanish es esp",        "4 fr FR FRA French fr fr",
            "8 it IT ITA Italian it it",         "5 pt PT PTG Portuguese pt pt",
            "2 ja JP JPN Japanese ja ja",        "9 zh TW CHT Chinese TW zh_tw cht",
            "10 zh HK ZHH Chinese HK zh_hk zhh", "11 ru RU RUS Russian ru ru",
            "12 nl NL NLD Netherlands nl nl",    "13 ar AE ARG Arabic ae ar",
            "14 ko KR KOR Korean kr ko",         "15 pl PL PLK Poland pl pl",
            "16 ro RO ROM Romania ro ro",        "17 id ID IDN Indonesia id id",
            "18 sv SE SWE Sweden sv sv"};
        int count = 0;
        const LangConstInfo* info = GetGlobalLangConstInfos(count);
        QCOMPARE(count, rows.size());
        for (int i = 0; i < count; ++i, ++info) {
            const QStringList codes = {info->langCode, info->regionCode, info->simpleName1};
            const QStringList texts = codes + QStringList{info->englishName};
            QCOMPARE(QString::number(info->locale) + ' ' + texts.join(' ') + ' ' +
                         info->AdaptLangCode() + ' ' + info->DirName(),
                     rows[i]);
            QVERIFY(info->simpleName2.isEmpty() && !info->Contains(QString()));
            QCOMPARE(Manager()->LangCodeIter().value(i), info->locale);
            for (const QString& text : texts)
                QVERIFY(info->Contains(text) && !info->Contains(text + ' '));
            QVERIFY(info->Contains(info->locale) && !info->Contains(Language_Esm));
        }
        LangConstInfo noRow;
        noRow.locale = Language_Esm;
        QCOMPARE(noRow.DirName(), QString("esm"));
    }

    void restore_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("expected");
        const auto row = [](const char* name, const QByteArray& content, Language_Locale expected) {
            QTest::newRow(name) << content << int(expected);
        };
        row("empty", "", Language_English);
        row("no value", "[System]\nDefInstallLang=\n", Language_English);
        row("Chinese TW", "[System]\nDefInstallLang=CHT\n", Language_ChineseTW);
        row("CR LF, and a byte order mark", "\xef\xbb\xbf[System]\r\nDefInstallLang=KOR\r\n",
            Language_Korean);
        row("another case", "[System]\nDefInstallLang=deu\n", Language_English);
        row("an English name", "[System]\nDefInstallLang=German\n", Language_English);
        row("another group", "[Other]\nDefInstallLang=DEU\n", Language_English);
        row("a list", "[System]\nDefInstallLang=DEU, JPN\n", Language_English);
        row("UTF-16", QByteArray("\xff\xfe[\0S\0y\0s\0t\0e\0m\0]\0\n\0D\0e\0f\0", 24),
            Language_English);
        QByteArray noise;
        for (unsigned value = 1; noise.size() < 20000; value = value * 1103515245 + 12345)
            noise += char(value >> 16);
        row("binary", noise, Language_English);
        row("huge", "[System]\nDefInstallLang=DEU\n" + QByteArray(1024 * 1024, ' '),
            Language_English);
    }

    void restore()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, expected);
        const bool huge = content.size() > 1024 * 1024;
        QVERIFY(TestFonts::Write(m_ini, content));
        Manager()->SetLangLocale();
        QCOMPARE(int(Manager()->GetLangLocale()), expected);
        QCOMPARE(Manager()->GetLangConstInfo().locale, Manager()->GetLangLocale());
        if (huge)
            QCOMPARE(TestFonts::Read(m_ini), content);
        else
            QCOMPARE(Stored(), Manager()->GetSimpleName1());
        // Another choice survives a restart, whatever the file held before.
        Manager()->SetLangLocale(QString("Sweden"));
        MultiLangMgr::Release();
        Manager()->SetLangLocale();
        QCOMPARE(Manager()->GetSimpleName1(), QString(huge ? "ENG" : "SWE"));
    }

    void missingFileIsCreated()
    {
        QCOMPARE(Manager()->GetLangConstInfo().simpleName1 + Manager()->GetSimpleName1(),
                 QString("ENG"));
        Manager()->SetLangLocale();
        // with the line ends of the system
        QCOMPARE(TestFonts::Read(m_ini).replace("\r\n", "\n"),
                 QByteArray("[System]\nDefInstallLang=ENG\nProductID=\n"));
        QVERIFY(MultiLangMgr::IsCurLanguage_Locale(Language_English));
    }

    void switching()
    {
        struct Step
        {
            int to;
            bool newFont;
            const char* shown;
            const char* stored;
        };
        // Chinese keeps the font of English: their lists differ, but only Japanese and Korean
        // count.
        const Step steps[] = {{1, true, "text 0", "ENG"},    {3, false, "deutsch 0", "DEU"},
                              {2, true, "nihongo 0", "JPN"}, {14, true, "text 0", "KOR"},
                              {9, true, "text 0", "CHT"},    {10, false, "hk 0", "ZHH"},
                              {1, false, "text 0", "ENG"},   {2, true, "nihongo 0", "JPN"},
                              {6, true, "text 0", ""},       {3, false, "deutsch 0", "DEU"},
                              {0, true, "text 0", ""},       {4, true, "text 0", "FRA"}};
        QSignalSpy fonts(Manager(), &MultiLangMgr::sigFontFamilyChanged);
        for (const Step& step : steps) {
            fonts.clear();
            Manager()->SetLangLocale(Language_Locale(step.to));
            QCOMPARE(fonts.count(), step.newFont ? 1 : 0);
            QCOMPARE(Shown(), QString(step.shown));
            QCOMPARE(Stored(), QString(step.stored));
            QCOMPARE(Manager()->GetSimpleName1() + Manager()->GetSimpleName2(),
                     QString(step.stored));
        }
    }

    void sameLanguageAndNames()
    {
        Manager()->SetLangLocale(QString("German"));
        QVERIFY(QFile::remove(m_ini));
        for (const char* name : {"German", "DEU", "de", "german", "", "Chinese"})
            Manager()->SetLangLocale(QString(name));
        Manager()->SetLangLocale(Language_German);
        QVERIFY(!QFile::exists(m_ini) && Shown(1) == "deutsch 1");
    }

    /// The language is selected all the same, and the file stays whole.
    void unwritableFiles()
    {
#ifdef Q_OS_UNIX
        const QByteArray old = "[System]\nDefInstallLang=JPN\nProductID=old\n";
        const rlimit none{0, RLIM_INFINITY};
        const rlimit all{RLIM_INFINITY, RLIM_INFINITY};
        std::signal(SIGXFSZ, SIG_IGN);
        QVERIFY(TestFonts::Write(m_ini, old));
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &none), 0); // as on a full disk
        Manager()->SetLangLocale(Language_German);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &all), 0);
        QCOMPARE(TestFonts::Read(m_ini), old);
        QCOMPARE(Shown(), QString("deutsch 0"));
        // Neither what could be read for ever nor a folder is touched.
        QVERIFY(QFile::remove(m_ini) && QFile::link("/dev/zero", m_ini));
        Manager()->SetLangLocale();
        QCOMPARE(Manager()->GetLangLocale(), Language_English);
        QVERIFY(QFile::remove(m_ini));
#endif
        QVERIFY(QDir().mkdir(m_ini));
        Manager()->SetLangLocale(Language_Japanese);
        QVERIFY(Shown() == "nihongo 0" && QDir().rmdir(m_ini));
    }

    void damagedTranslations()
    {
        QVERIFY(QDir().mkpath(m_lang + "sv/a folder.qm") && QDir().mkpath(m_lang + "ru"));
        QVERIFY(TestFonts::Write(m_lang + "sv/empty.qm", {}));
        QVERIFY(TestFonts::Write(m_lang + "sv/text.qm", "No translations.\n"));
        for (const bool compress : {false, true}) {
            QVERIFY(Install(compress ? "po-russki.compressed" : "po-russki", "ru/good.qm"));
            const QByteArray good = TestFonts::Read(m_lang + "ru/good.qm");
            for (int i = 0; i < good.size(); ++i) {
                QByteArray bad = good;
                bad[i] = char(~bad[i]);
                const QString name = QString("sv/%1 %2.qm").arg(compress).arg(i);
                QVERIFY(TestFonts::Write(m_lang + name, bad));
                QVERIFY(TestFonts::Write(m_lang + name + " cut", good.left(i)));
                bad = good;
                bad.replace(i, 2, QByteArray(2, '\0'));
                QVERIFY(TestFonts::Write(m_lang + name + " empty", bad));
            }
            // Depends on itself: Qt would load it for ever.
            QByteArray section;
            QDataStream stream(&section, QIODevice::WriteOnly);
            stream << QString("self");
            QByteArray self = good + QByteArray("\x96\0\0\0", 4);
            self += char(section.size());
            QVERIFY(TestFonts::Write(m_lang + "sv/self.qm", self + section));
        }
        for (const char* name : {"Sweden", "Russian"}) {
            Manager()->SetLangLocale(QString(name));
            for (int i = 0; i < 4; ++i)
                Shown(i);
            QCoreApplication::translate("Other", "text 0");
            QCOMPARE(Manager()->GetLangConstInfo().englishName, QString(name));
        }
        QCOMPARE(Shown(), QString("po-russki 0"));
        // What is loaded stays although the folder goes.
        QVERIFY(QDir(m_lang).rename("de", "gone") && QDir(m_lang + "gone").removeRecursively());
        Manager()->SetLangLocale(QString("German"));
        QCOMPARE(Shown(), QString("deutsch 0"));
        MultiLangMgr::Release();
        QCOMPARE(Shown(), QString("text 0"));
        Manager()->SetLangLocale(QString("German"));
        QCOMPARE(Shown(), QString("text 0"));
        QCOMPARE(Stored(), QString("DEU"));
        initTestCase();
    }

    void fonts()
    {
        const QFontDatabase database;
        QCOMPARE(Manager()->GetCurrentFontFamily(), QString("Segoe UI"));
        QCOMPARE(QApplication::font(), m_font);
        for (const char* family :
             {"Tahoma", "Segoe UI", "Arial", "Malgun Gothic", "Yu Gothic UI"}) {
            if (database.hasFamily(family))
                QSKIP("this system has fonts of the list");
        }
        QSignalSpy fonts(Manager(), &MultiLangMgr::sigFontFamilyChanged);
        Manager()->SetLangLocale(Language_English);
        QCOMPARE(fonts.takeFirst().value(0).toString(), QString("Tahoma"));
        QCOMPARE(QApplication::font().family(), m_font.family());
        QCOMPARE(QApplication::font().styleStrategy(), QFont::PreferAntialias);

        // The second of the list is there, the first is not.
        const QString path = m_folder->filePath("font.ttf");
        const QByteArray serif = TestFonts::Serif();
        for (const char* family : {"Segoe UI", "Malgun Gothic"}) {
            QVERIFY(TestFonts::Write(path, TestFonts::Renamed(serif, family)));
            const int id = QFontDatabase::addApplicationFont(path);
            QCOMPARE(QFontDatabase::applicationFontFamilies(id), QStringList(family));
        }
        Manager()->SetLangLocale(Language_Korean);
        QCOMPARE(QApplication::font("QPushButton").family(), QString("Malgun Gothic"));
        Manager()->SetLangLocale(Language_Arabic);
        QCOMPARE(fonts.last().value(0).toString(), QString("Segoe UI"));
        QCOMPARE(QApplication::font().family(), QString("Segoe UI"));
        Manager()->SetLangLocale(Language_Japanese);
        QCOMPARE(Manager()->GetCurrentFontFamily(), QString("Yu Gothic UI"));
        QCOMPARE(QApplication::font().family(), m_font.family());
    }
};

QTEST_MAIN(tst_Languages)
#include "tst_languages.moc"
