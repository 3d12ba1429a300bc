// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/MultiLangMgr.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/TestFonts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <utility>

namespace {

/// Does something at the first event of a type that it sees as a filter.
class OnEvent : public QObject
{
public:
    OnEvent(QEvent::Type type, std::function<void()> action)
        : m_type(type), m_action(std::move(action))
    {
    }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == m_type && m_action)
            std::exchange(m_action, nullptr)();
        return false;
    }

private:
    const QEvent::Type m_type;
    std::function<void()> m_action;
};

} // namespace

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
    static bool HasFontOfTheLists()
    {
        const QStringList families = QFontDatabase().families();
        const auto has = [&](const char* family) { return families.contains(family); };
        return has("Tahoma") || has("Segoe UI") || has("Arial") || has("Malgun Gothic") ||
               has("Yu Gothic UI");
    }

private Q_SLOTS:
    void init()
    {
        QDir(m_lang).removeRecursively();
        QVERIFY(Install("deutsch", "de/a.qm"));
        QVERIFY(Install("nihongo", "ja/host.qm"));
        QVERIFY(Install("hk", "zhh/name without suffix"));
        m_folder.reset(new QTemporaryDir);
        m_ini = m_folder->filePath("Multilang.ini");
    }
    void cleanup()
    {
        MultiLangMgr::Release();
        QApplication::setFont(m_font);
        QFontDatabase::removeAllApplicationFonts();
    }

    void table_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("locale");
        QTest::addColumn<QStringList>("texts"); // three codes, the adapted code and the folder
        int index = 0;
        const auto row = [&](const char* englishName, int locale, const QStringList& texts) {
            QTest::newRow(englishName) << index++ << locale << texts;
        };
        row("English", 1, {"en", "US", "ENG", "en", "en"});
        row("German", 3, {"de", "DE", "DEU", "de", "de"});
        row("Spanish", 7, {"es", "ES", "ESP", "es", "esp"});
        row("French", 4, {"fr", "FR", "FRA", "fr", "fr"});
        row("Italian", 8, {"it", "IT", "ITA", "it", "it"});
        row("Portuguese", 5, {"pt", "PT", "PTG", "pt", "pt"});
        row("Japanese", 2, {"ja", "JP", "JPN", "ja", "ja"});
        row("Chinese TW", 9, {"zh", "TW", "CHT", "zh_tw", "cht"});
        row("Chinese HK", 10, {"zh", "HK", "ZHH", "zh_hk", "zhh"});
        row("Russian", 11, {"ru", "RU", "RUS", "ru", "ru"});
        row("Netherlands", 12, {"nl", "NL", "NLD", "nl", "nl"});
        row("Arabic", 13, {"ar", "AE", "ARG", "ae", "ar"});
        row("Korean", 14, {"ko", "KR", "KOR", "kr", "ko"});
        row("Poland", 15, {"pl", "PL", "PLK", "pl", "pl"});
        row("Romania", 16, {"ro", "RO", "ROM", "ro", "ro"});
        row("Indonesia", 17, {"id", "ID", "IDN", "id", "id"});
        row("Sweden", 18, {"sv", "SE", "SWE", "sv", "sv"});
    }
    void table()
    {
        QFETCH(int, index);
        int count = 0;
        const LangConstInfo& info = GetGlobalLangConstInfos(count)[index];
        QTEST(int(info.locale), "locale");
        QCOMPARE(info.englishName, QString(QTest::currentDataTag()));
        QCOMPARE(info.simpleName2, QString());
        const QStringList texts = {info.langCode, info.regionCode, info.simpleName1,
                                   info.AdaptLangCode(), info.DirName()};
        QTEST(texts, "texts");
        QCOMPARE(Manager()->LangCodeIter().value(index), info.locale);
    }

    void tableEnds()
    {
        int count = 0;
        GetGlobalLangConstInfos(count);
        QCOMPARE(count, 17);
    }

    void rowContainsItsOwn_data() { table_data(); }
    void rowContainsItsOwn()
    {
        QFETCH(int, index);
        int count = 0;
        const LangConstInfo& info = GetGlobalLangConstInfos(count)[index];
        for (const QString& text :
             {info.langCode, info.regionCode, info.simpleName1, info.englishName}) {
            QVERIFY2(info.Contains(text), qPrintable(text));
            QVERIFY2(!info.Contains(text + ' '), qPrintable(text));
        }
        QVERIFY(!info.Contains(QString()));
        QVERIFY(info.Contains(info.locale));
        QVERIFY(!info.Contains(Language_Esm));
    }

    void folderOfALanguageWithoutARow()
    {
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
    }
    void restore()
    {
        QFETCH(QByteArray, content);
        QVERIFY(SetContents(m_ini, content));
        Manager()->SetLangLocale();
        QTEST(int(Manager()->GetLangLocale()), "expected");
        QCOMPARE(Manager()->GetLangConstInfo().locale, Manager()->GetLangLocale());
        QCOMPARE(Stored(), Manager()->GetSimpleName1());
    }

    void choiceReplacesAnyFile_data() { restore_data(); }
    void choiceReplacesAnyFile()
    {
        QFETCH(QByteArray, content);
        QVERIFY(SetContents(m_ini, content));
        Manager()->SetLangLocale(QString("Sweden"));
        MultiLangMgr::Release();
        Manager()->SetLangLocale();
        QCOMPARE(Manager()->GetSimpleName1(), QString("SWE"));
    }

    void hugeFileStaysUnread()
    {
        const QByteArray content = "[System]\nDefInstallLang=DEU\n" + QByteArray(1 << 20, ' ');
        QVERIFY(SetContents(m_ini, content));
        Manager()->SetLangLocale();
        QCOMPARE(Manager()->GetSimpleName1(), QString("ENG"));
        Manager()->SetLangLocale(Language_Swedish);
        QCOMPARE(Contents(m_ini), content);
    }

    void missingFileIsCreated()
    {
        QCOMPARE(Manager()->GetLangConstInfo().simpleName1, QString("ENG"));
        QCOMPARE(Manager()->GetSimpleName1(), QString());
        Manager()->SetLangLocale();
        // with the line ends of the system
        QCOMPARE(Contents(m_ini).replace("\r\n", "\n"),
                 QByteArray("[System]\nDefInstallLang=ENG\nProductID=\n"));
        QVERIFY(MultiLangMgr::IsCurLanguage_Locale(Language_English));
    }

    void switching_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("newFonts");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("stored");
        const auto row = [](const char* name, Language_Locale from, Language_Locale to,
                            int newFonts, const char* shown, const char* stored) {
            QTest::newRow(name) << int(from) << int(to) << newFonts << shown << stored;
        };
        row("none to English", Language_None, Language_English, 1, "text 0", "ENG");
        row("English to German", Language_English, Language_German, 0, "deutsch 0", "DEU");
        row("German to Japanese", Language_German, Language_Japanese, 1, "nihongo 0", "JPN");
        row("Japanese to Korean", Language_Japanese, Language_Korean, 1, "text 0", "KOR");
        row("Korean to Chinese", Language_Korean, Language_ChineseTW, 1, "text 0", "CHT");
        row("Chinese to Chinese", Language_ChineseTW, Language_ChineseHK, 0, "hk 0", "ZHH");
        // Their lists of fonts differ, but only those of Japanese and Korean count.
        row("Chinese to English", Language_ChineseHK, Language_English, 0, "text 0", "ENG");
        row("English to Japanese", Language_English, Language_Japanese, 1, "nihongo 0", "JPN");
        row("Japanese to no row", Language_Japanese, Language_Esm, 1, "text 0", "");
        row("no row to German", Language_Esm, Language_German, 0, "deutsch 0", "DEU");
        row("German to none", Language_German, Language_None, 1, "text 0", "");
        row("none to French", Language_None, Language_French, 1, "text 0", "FRA");
    }
    void switching()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, stored);
        Manager()->SetLangLocale(Language_Locale(from));
        QSignalSpy fonts(Manager(), &MultiLangMgr::sigFontFamilyChanged);
        Manager()->SetLangLocale(Language_Locale(to));
        QTEST(int(fonts.count()), "newFonts");
        QTEST(Shown(), "shown");
        QCOMPARE(Stored(), stored);
        QCOMPARE(Manager()->GetSimpleName1(), stored);
        QCOMPARE(Manager()->GetSimpleName2(), QString());
    }

    void currentLanguageIsNotStoredAgain()
    {
        Manager()->SetLangLocale(QString("German"));
        QVERIFY(QFile::remove(m_ini));
        Manager()->SetLangLocale(QString("German"));
        Manager()->SetLangLocale(Language_German);
        QVERIFY(!QFile::exists(m_ini));
    }

    void otherNamesSelectNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("simple name") << "JPN";
        QTest::newRow("code") << "ja";
        QTest::newRow("other case") << "japanese";
        QTest::newRow("no name") << "";
        QTest::newRow("part of a name") << "Chinese";
    }
    void otherNamesSelectNothing()
    {
        QFETCH(QString, name);
        Manager()->SetLangLocale(QString("German"));
        QVERIFY(QFile::remove(m_ini));
        Manager()->SetLangLocale(name);
        QVERIFY(!QFile::exists(m_ini));
        QCOMPARE(Shown(1), QString("deutsch 1"));
    }

    void fullDiskKeepsTheFileAndSelects()
    {
        const QByteArray old = "[System]\nDefInstallLang=JPN\nProductID=old\n";
        QVERIFY(SetContents(m_ini, old));
        {
            const FileSizeLimit full(0);
            Manager()->SetLangLocale(Language_German);
        }
        QCOMPARE(Contents(m_ini), old);
        QCOMPARE(Shown(), QString("deutsch 0"));
    }

#ifdef Q_OS_UNIX
    void fileThatReadsForEver()
    {
        QVERIFY(QFile::link("/dev/zero", m_ini));
        Manager()->SetLangLocale();
        QCOMPARE(Manager()->GetLangLocale(), Language_English);
        QCOMPARE(QFileInfo(m_ini).symLinkTarget(), QString("/dev/zero"));
    }
#endif

    void folderForAFileStaysAndSelects()
    {
        QVERIFY(QDir().mkdir(m_ini));
        Manager()->SetLangLocale(Language_Japanese);
        QCOMPARE(Shown(), QString("nihongo 0"));
        QVERIFY(QFileInfo(m_ini).isDir());
    }

    void damagedTranslations_data()
    {
        QTest::addColumn<QString>("variant");
        QTest::newRow("plain") << "po-russki";
        QTest::newRow("compressed") << "po-russki.compressed";
    }
    /// Beside a good one.
    void damagedTranslations()
    {
        QFETCH(QString, variant);
        QVERIFY(Install(variant, "ru/good.qm"));
        const QByteArray good = Contents(m_lang + "ru/good.qm");
        QVERIFY(QDir().mkpath(m_lang + "sv/a folder.qm"));
        QVERIFY(SetContents(m_lang + "sv/empty.qm", {}));
        QVERIFY(SetContents(m_lang + "sv/text.qm", "No translations.\n"));
        for (int i = 0; i < good.size(); ++i) {
            const QString name = m_lang + QString("sv/%1.qm").arg(i);
            QByteArray bad = good;
            bad[i] = char(~bad[i]);
            QVERIFY(SetContents(name, bad));
            QVERIFY(SetContents(name + " cut", good.left(i)));
            bad = good;
            bad.replace(i, 2, QByteArray(2, '\0'));
            QVERIFY(SetContents(name + " empty", bad));
        }
        // Depends on itself: Qt would load it for ever.
        QByteArray section;
        QDataStream stream(&section, QIODevice::WriteOnly);
        stream << QString("self");
        QByteArray self = good + QByteArray("\x96\0\0\0", 4);
        self += char(section.size());
        QVERIFY(SetContents(m_lang + "sv/self.qm", self + section));

        for (const char* name : {"Sweden", "Russian"}) {
            Manager()->SetLangLocale(QString(name));
            for (int i = 0; i < 4; ++i)
                Shown(i);
            QCoreApplication::translate("Other", "text 0");
            QCOMPARE(Manager()->GetLangConstInfo().englishName, QString(name));
        }
        QCOMPARE(Shown(), QString("po-russki 0"));
    }

    void loadedTranslationOutlivesItsFolder()
    {
        Manager()->SetLangLocale(QString("English"));
        QVERIFY(QDir(m_lang + "de").removeRecursively());
        Manager()->SetLangLocale(QString("German"));
        QCOMPARE(Shown(), QString("deutsch 0"));
    }

    void releaseTakesTheTranslationsAway()
    {
        Manager()->SetLangLocale(QString("German"));
        MultiLangMgr::Release();
        QCOMPARE(Shown(), QString("text 0"));
    }

    void releasedOnTheWay_data()
    {
        QTest::addColumn<int>("event"); // of the window or the application; 0 for the signal
        QTest::newRow("in a slot of the new font") << 0;
        QTest::newRow("when a window hears of the new font") << int(QEvent::ApplicationFontChange);
        QTest::newRow("when the application hears of translators") << int(QEvent::LanguageChange);
    }
    void releasedOnTheWay()
    {
        QFETCH(int, event);
        Manager()->SetLangLocale(Language_German);
        // Qt 6 tells windows of other fonts only, and later.
        QApplication::setFont(QFont("none"));
        QCoreApplication::processEvents();
        QWidget window;
        OnEvent listener(QEvent::Type(event), [] { MultiLangMgr::Release(); });
        if (event == QEvent::LanguageChange)
            QCoreApplication::instance()->installEventFilter(&listener);
        else if (event != 0)
            window.installEventFilter(&listener);
        else
            connect(Manager(), &MultiLangMgr::sigFontFamilyChanged,
                    [] { MultiLangMgr::Release(); });
        QPointer<MultiLangMgr> manager(Manager());
        manager->SetLangLocale(Language_Japanese);
        QCoreApplication::processEvents();
        QVERIFY(!manager);
        QCOMPARE(Shown(), QString("text 0"));
    }

    void anotherLanguageInASlotOfTheFont()
    {
        Manager()->SetLangLocale(Language_German);
        bool isFirst = true;
        connect(Manager(), &MultiLangMgr::sigFontFamilyChanged, [&] {
            if (!std::exchange(isFirst, false))
                return;
            Manager()->SetLangLocale(Language_German);
            Manager()->SetLangLocale(Language_Japanese);
        });
        Manager()->SetLangLocale(Language_Japanese);
        QCOMPARE(Shown(), QString("nihongo 0"));
        Manager()->disconnect();
        Manager()->SetLangLocale(Language_English);
        QCOMPARE(Shown(), QString("text 0")); // nothing is in twice
    }

    void selectsLanguageWithoutTranslations()
    {
        QVERIFY(QDir(m_lang + "de").removeRecursively());
        Manager()->SetLangLocale(QString("German"));
        QCOMPARE(Shown(), QString("text 0"));
        QCOMPARE(Stored(), QString("DEU"));
    }

    void fontBeforeTheFirstSelection()
    {
        QCOMPARE(Manager()->GetCurrentFontFamily(), QString("Segoe UI"));
        QCOMPARE(QApplication::font(), m_font);
    }

    void defaultFontWhereNoneSuits()
    {
        if (HasFontOfTheLists())
            QSKIP("this system has fonts of the lists");
        QSignalSpy fonts(Manager(), &MultiLangMgr::sigFontFamilyChanged);
        Manager()->SetLangLocale(Language_English);
        QCOMPARE(fonts.value(0).value(0).toString(), QString("Tahoma"));
        QCOMPARE(QApplication::font().family(), m_font.family());
        QCOMPARE(QApplication::font().styleStrategy(), QFont::PreferAntialias);
    }

    void firstFontThatIsThere_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("shown");
        QTest::newRow("the first") << int(Language_Korean) << "Malgun Gothic"
                                   << "Malgun Gothic";
        QTest::newRow("the second") << int(Language_Arabic) << "Segoe UI"
                                    << "Segoe UI";
        QTest::newRow("none") << int(Language_Japanese) << "Yu Gothic UI" << m_font.family();
    }
    void firstFontThatIsThere()
    {
        QFETCH(int, language);
        QFETCH(QString, family);
        QFETCH(QString, shown);
        if (HasFontOfTheLists())
            QSKIP("this system has fonts of the lists");
        const QString path = m_folder->filePath("font.ttf");
        for (const char* added : {"Segoe UI", "Malgun Gothic"}) {
            QVERIFY(SetContents(path, TestFonts::Renamed(TestFonts::Serif(), added)));
            const int id = QFontDatabase::addApplicationFont(path);
            QCOMPARE(QFontDatabase::applicationFontFamilies(id), QStringList(added));
        }
        QSignalSpy fonts(Manager(), &MultiLangMgr::sigFontFamilyChanged);
        Manager()->SetLangLocale(Language_Locale(language));
        QCOMPARE(fonts.value(0).value(0).toString(), family);
        QCOMPARE(Manager()->GetCurrentFontFamily(), family);
        QCOMPARE(QApplication::font().family(), shown);
        QCOMPARE(QApplication::font("QPushButton").family(), shown);
    }
};

QTEST_MAIN(tst_Languages)
#include "tst_languages.moc"
