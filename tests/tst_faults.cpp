// SPDX-License-Identifier: LGPL-2.1-or-later
// Writers whose calls fail, or whose process is killed at one: what was there before is whole, or
// what was to come is; a failure has a reason; and the next run is as if nothing had happened.
//
// COMMONLIB_ALL_FAULTS=1 tries each call; otherwise the later ones of many are tried here and
// there.
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int kPatience = 60000; // milliseconds
constexpr int kEach = 8;         // calls that are tried one by one
const char* const kScenarios[] = {"film.mlt",      "film.otio", "settings", "export", "thumbnails",
                                  "preview-cache", "language",  "unzip",    "log"};

struct Run
{
    int exitCode = -1; ///< -1: killed
    QString output;
};

Run RunScenario(const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + "/fault_scenarios", arguments);
    if (!process.waitForFinished(kPatience))
        return {-2, QStringLiteral("not ended")};
    const bool isWell = process.exitStatus() == QProcess::NormalExit;
    return {isWell ? process.exitCode() : -1, QString(process.readAllStandardOutput()).trimmed()};
}

/// Names of files below a folder, in order, without what differs from run to run in them.
QStringList FilesIn(const QString& folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << QDir(folder).relativeFilePath(walk.next());
    files.sort();
    return files;
}

void Copy(const QString& from, const QString& to)
{
    for (const QString& file : FilesIn(from)) {
        QDir(to).mkpath(QFileInfo(file).path());
        QFile::copy(from + '/' + file, to + '/' + file);
    }
}

int Next(int at)
{
    return at < kEach || qEnvironmentVariableIsSet("COMMONLIB_ALL_FAULTS") ? at + 1 : at * 3 / 2;
}

} // namespace

class tst_Faults : public QObject
{
    Q_OBJECT

    /// Folders: as it is before the work, and as it is after it.
    std::unique_ptr<QTemporaryDir> m_before;
    QStringList m_filesAfter;
    QString m_scenario;

    void Prepare(const QString& scenario)
    {
        if (m_scenario == scenario)
            return;
        m_scenario = scenario;
        m_before = std::make_unique<QTemporaryDir>();
        QCOMPARE(RunScenario({scenario, m_before->path(), "prepare"}).exitCode, 0);
        const QTemporaryDir after;
        Copy(m_before->path(), after.path());
        QCOMPARE(RunScenario({scenario, after.path(), "act"}).output, QString("done"));
        m_filesAfter = FilesIn(after.path());
    }

private slots:
    void aCallFails_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("call");
        for (const char* scenario : kScenarios) {
            for (const char* call : {"open", "read", "write", "sync", "rename", "map"})
                QTest::addRow("%s of %s", call, scenario) << scenario << call;
        }
        // The others convert pictures, and Qt waits for ever when its pool cannot have a thread.
        QTest::newRow("a thread of export") << "export"
                                            << "thread";
    }
    void aCallFails()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, call);
        Prepare(scenario);
        for (int at = 1;; at = Next(at)) {
            const QTemporaryDir folder;
            Copy(m_before->path(), folder.path());
            const Run act =
                RunScenario({scenario, folder.path(), "act", call, QString::number(at), "fail"});
            QVERIFY2(act.exitCode == 0, qPrintable(QString("crash at %1").arg(at)));
            if (!act.output.startsWith("fault"))
                return;
            const QString left = RunScenario({scenario, folder.path(), "look"}).output;
            const QByteArray place =
                QString("at %1: %2, %3").arg(at).arg(act.output, left).toUtf8();
            QVERIFY2(act.output == "fault, done" || act.output == "fault, refused",
                     place.constData());
            QVERIFY2(left != "broken", place.constData());
            QVERIFY2(act.output != "fault, done" || left == "new" || scenario == "thumbnails" ||
                         scenario == "log",
                     place.constData());
        }
    }

    void theProcessIsKilled_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<bool>("isTidied");
        for (const QString scenario : kScenarios) {
            // A folder for a trial beside the film, and an empty lock of the cache, may stay.
            const bool isTidied = scenario != "export" && scenario != "preview-cache";
            QTest::newRow(qPrintable(scenario)) << scenario << isTidied;
        }
    }
    void theProcessIsKilled()
    {
        QFETCH(QString, scenario);
        QFETCH(bool, isTidied);
        Prepare(scenario);
        for (int at = 1;; at = Next(at)) {
            const QTemporaryDir folder;
            Copy(m_before->path(), folder.path());
            const Run act =
                RunScenario({scenario, folder.path(), "act", "any", QString::number(at), "kill"});
            if (act.exitCode == 0)
                return;
            const QString left = RunScenario({scenario, folder.path(), "look"}).output;
            const QByteArray place = QString("at %1: %2").arg(at).arg(left).toUtf8();
            QVERIFY2(left != "broken", place.constData());
            QCOMPARE(RunScenario({scenario, folder.path(), "act"}).output, QString("done"));
            QVERIFY(!isTidied || FilesIn(folder.path()) == m_filesAfter);
        }
    }
};

QTEST_GUILESS_MAIN(tst_Faults)
#include "tst_faults.moc"
