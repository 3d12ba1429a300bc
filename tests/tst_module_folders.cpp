// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CBSUrlReader.h"
#include "CommonLib/ModuleFolders.h"
#include "CommonLib/MultiLangMgr.h"

#include <QApplication>
#include <QtTest>

/// Runs in a folder without modules and translations.
class tst_ModuleFolders : public QObject
{
    Q_OBJECT

private:
    const QString m_own = QCoreApplication::applicationDirPath();

    static QString Read(const QString& name)
    {
        return CBSUrlReader(nullptr).ReadCustomerUrl("ENG", name);
    }

private Q_SLOTS:
    void cleanup()
    {
        SetModuleFolders({});
        qunsetenv("COMMONLIB_PATH");
        QFile::remove(m_own + "/CVUtilities.dll");
        QDir(m_own + "/Lang").removeRecursively();
        MultiLangMgr::Release();
    }

    void firstFileFoundIsLoaded_data()
    {
        QTest::addColumn<QStringList>("holders"); // of a module that answers "ENG 256"
        QTest::addColumn<QString>("real");        // holder of one that finds no value
        QTest::addColumn<QString>("expected");
        const QString scripted("ENG 256");
        QTest::newRow("none anywhere") << QStringList() << ""
                                       << "";
        QTest::newRow("beside the executable") << QStringList("own") << "host" << scripted;
        QTest::newRow("not the host's, when one is beside the executable")
            << QStringList({"host", "environment"}) << "own"
            << "";
        QTest::newRow("the host's folder") << QStringList("host") << "environment" << scripted;
        QTest::newRow("the host's second folder") << QStringList("host 2") << "" << scripted;
        QTest::newRow("the environment's folder") << QStringList("environment") << "" << scripted;
        QTest::newRow("not a relative folder of the environment") << QStringList("relative") << ""
                                                                  << "";
        QTest::newRow("not a folder of the module's name")
            << QStringList("environment") << "folder" << scripted;
    }
    void firstFileFoundIsLoaded()
    {
        QFETCH(QStringList, holders);
        QFETCH(QString, real);
        QTemporaryDir work;
        const auto place = [&](const QString& holder) {
            const QString folder = holder == "own" ? m_own : work.filePath(holder);
            QDir().mkpath(folder);
            return folder + "/CVUtilities.dll";
        };
        for (const QString& holder : holders)
            QVERIFY(QFile::copy(SCRIPTED_UTILITIES, place(holder)));
        if (real == "folder")
            QVERIFY(QDir().mkpath(work.filePath("host/CVUtilities.dll")));
        else if (!real.isEmpty())
            QVERIFY(QFile::copy(REAL_UTILITIES, place(real)));
        SetModuleFolders({work.filePath("host"), work.filePath("host 2")});
        const QStringList listed = {"relative", work.filePath("environment")};
        qputenv("COMMONLIB_PATH", QFile::encodeName(listed.join(QDir::listSeparator())));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(work.path()));
        const QString read = Read("PID");
        QVERIFY(QDir::setCurrent(before)); // else the folder could not be removed everywhere
        QTEST(read, "expected");
    }

    void nearerTranslationsHold()
    {
        QTemporaryDir host;
        const auto put = [](const QString& folder, const QString& file, const QString& language) {
            const QString target = folder + "/Lang/de/";
            return QDir().mkpath(target) &&
                   QFile::copy(TEST_TRANSLATIONS "/" + language + ".qm", target + file);
        };
        QVERIFY(put(host.path(), "a.qm", "nihongo"));
        QVERIFY(put(host.path(), "same.qm", "hk"));
        SetModuleFolders({host.path()});
        const auto text = [&] {
            MultiLangMgr::Release();
            MultiLangMgr::GetInstance()->SetConfigPath(host.filePath("Multilang.ini"));
            MultiLangMgr::GetInstance()->SetLangLocale(Language_German);
            return QCoreApplication::translate("Test", "text 1");
        };
        QVERIFY(text() == "nihongo 1" || text() == "hk 1");
        QVERIFY(put(m_own, "same.qm", "deutsch"));
        QCOMPARE(text(), QString("deutsch 1"));
        QVERIFY(QFile::remove(host.filePath("Lang/de/a.qm")));
        QCOMPARE(text(), QString("deutsch 1"));
    }
};

QTEST_MAIN(tst_ModuleFolders)
#include "tst_module_folders.moc"
