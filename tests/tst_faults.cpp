// SPDX-License-Identifier: LGPL-2.1-or-later
// Writers whose calls fail, whose process is killed at one, whose folder goes or whose disk is
// full: what was there before is whole, or what was to come is; a failure has a reason; and the
// next run is as if nothing had happened.
//
// COMMONLIB_ALL_FAULTS=1 tries each call; otherwise the later ones of many are tried here and
// there.
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sched.h>
#include <sys/mount.h>

namespace {

constexpr int kPatience = 60000; // milliseconds
constexpr int kEach = 8;         // calls that are tried one by one
const char* const kScenarios[] = {"film.mlt", "film.otio",     "settings", "export",
                                  "play",     "preview-cache", "language", "thumbnails",
                                  "import",   "unzip",         "log"};

struct Run
{
    int exitCode = -1; ///< -1: killed
    QString output;
};

Run RunScenario(const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // The platform without a screen leaves memory, and finding out whose takes longer than the run.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "minimal");
    environment.insert("SDL_AUDIODRIVER", "dummy");
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + "/fault_scenarios", arguments);
    if (!process.waitForFinished(kPatience))
        return {-2, QStringLiteral("not ended")};
    const bool isWell = process.exitStatus() == QProcess::NormalExit;
    // What the import says of its own comes before.
    const QString output = QString(process.readAllStandardOutput()).trimmed();
    return {isWell ? process.exitCode() : -1, output.section('\n', -1)};
}

/// Names of files and folders below a folder, in order.
QStringList EntriesIn(const QString& folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << QDir(folder).relativeFilePath(walk.next());
    files.sort();
    return files;
}

void Copy(const QString& from, const QString& to)
{
    for (const QString& file : EntriesIn(from)) {
        QDir(to).mkpath(QFileInfo(file).path());
        QFile::copy(from + '/' + file, to + '/' + file);
    }
}

int Next(int at)
{
    return at < kEach || qEnvironmentVariableIsSet("COMMONLIB_ALL_FAULTS") ? at + 1 : at * 3 / 2;
}

/// One run of a scenario with a fault, in a folder of its own.
struct Trial
{
    Trial(const QString& scenario, const QString& before, const QStringList& fault)
    {
        Copy(before, folder.path());
        act = RunScenario(QStringList{scenario, folder.path(), "act"} + fault);
        left = RunScenario({scenario, folder.path(), "look"}).output;
        place = QString("at %1: %2, %3").arg(fault[1], act.output, left).toUtf8();
    }
    bool IsAnswered() const
    {
        return act.output == "fault, done" || act.output == "fault, refused";
    }

    QTemporaryDir folder;
    Run act;
    QString left;
    QByteArray place; ///< for messages
};

/// A file system of a few megabytes that other processes than this one and its own do not see.
class SmallDisk
{
public:
    SmallDisk()
    {
        static const bool isOwn = ::unshare(CLONE_NEWNS) == 0 &&
                                  ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        m_isThere = isOwn && ::mount("small", Name().constData(), "tmpfs", 0, "size=4m") == 0;
    }
    ~SmallDisk()
    {
        if (m_isThere)
            ::umount2(Name().constData(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool IsThere() const { return m_isThere; }
    QString Path() const { return m_folder.path(); }
    /// Leaves so many bytes; -1 lets the disk be read only.
    void Fill(int free)
    {
        if (free < 0) {
            ::mount("none", Name().constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr);
            return;
        }
        QFile file(Filling());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (file.write(QByteArray(4096, 'x')) == 4096) {
        }
        QVERIFY(file.resize(file.size() - free));
    }
    void Free()
    {
        ::mount("none", Name().constData(), nullptr, MS_REMOUNT, "size=16m");
        QFile::remove(Filling());
    }

private:
    QByteArray Name() const { return QFile::encodeName(m_folder.path()); }
    QString Filling() const { return m_folder.filePath("filling"); }

    QTemporaryDir m_folder;
    bool m_isThere = false;
};

} // namespace

class tst_Faults : public QObject
{
    Q_OBJECT

    /// Folders: as it is before the work, and as it is after it.
    std::unique_ptr<QTemporaryDir> m_before;
    QStringList m_entriesAfter;
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
        m_entriesAfter = EntriesIn(after.path());
    }

    static void AddScenarios()
    {
        QTest::addColumn<QString>("scenario");
        for (const char* scenario : kScenarios)
            QTest::newRow(scenario) << scenario;
    }

private slots:
    void aCallFails_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("call");
        for (const char* scenario : kScenarios) {
            for (const char* call : {"open", "read", "write", "sync", "rename", "map", "thread"})
                QTest::addRow("%s of %s", call, scenario) << scenario << call;
        }
        // The others throw as Qt does; interfaces of modules do not.
        for (const char* scenario : {"film.mlt", "film.otio", "settings", "export", "play",
                                     "preview-cache", "thumbnails", "import"})
            QTest::addRow("memory of %s", scenario) << scenario << "memory";
    }
    void aCallFails()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, call);
        if (QT_VERSION >= QT_VERSION_CHECK(6, 0, 0) && scenario == "preview-cache" &&
            call == "thread")
            QSKIP("Qt 6 paints large pictures on threads of its own, and waits for one that did "
                  "not start");
        Prepare(scenario);
        for (int at = 1;; at = Next(at)) {
            const Trial trial(scenario, m_before->path(), {call, QString::number(at), "fail"});
            QVERIFY2(trial.act.exitCode == 0, trial.place.constData());
            if (!trial.act.output.startsWith("fault"))
                return;
            QVERIFY2(trial.IsAnswered(), trial.place.constData());
            QVERIFY2(trial.left != "broken", trial.place.constData());
            QVERIFY2(trial.act.output != "fault, done" || trial.left == "new" ||
                         scenario == "thumbnails" || scenario == "play" || scenario == "log",
                     trial.place.constData());
        }
    }

    void theProcessIsKilled_data() { AddScenarios(); }
    void theProcessIsKilled()
    {
        QFETCH(QString, scenario);
        Prepare(scenario);
        for (int at = 1;; at = Next(at)) {
            const Trial trial(scenario, m_before->path(), {"any", QString::number(at), "kill"});
            if (trial.act.exitCode == 0)
                return;
            QVERIFY2(trial.left != "broken", trial.place.constData());
            QCOMPARE(RunScenario({scenario, trial.folder.path(), "act"}).output, QString("done"));
            QCOMPARE(EntriesIn(trial.folder.path()), m_entriesAfter);
        }
    }

    void theFolderGoes_data() { AddScenarios(); }
    void theFolderGoes()
    {
        QFETCH(QString, scenario);
        Prepare(scenario);
        for (int at = 1;; at = Next(at)) {
            const Trial trial(scenario, m_before->path(), {"any", QString::number(at), "vanish"});
            QVERIFY2(trial.act.exitCode == 0, trial.place.constData());
            if (!trial.act.output.startsWith("fault"))
                return;
            QVERIFY2(trial.IsAnswered(), trial.place.constData());
        }
    }

    void noUnnamedFiles_data() { AddScenarios(); }
    void noUnnamedFiles()
    {
        QFETCH(QString, scenario);
        Prepare(scenario);
        const Trial trial(scenario, m_before->path(), {"none", "1", "unnamed"});
        QCOMPARE(trial.act.output, QString("done"));
        QCOMPARE(EntriesIn(trial.folder.path()), m_entriesAfter);
    }

    void theDiskTakesNoMore_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<int>("free"); // bytes; -1 for a disk that is only read
        for (const char* scenario : kScenarios) {
            QTest::addRow("full, %s", scenario) << scenario << 0;
            QTest::addRow("nearly full, %s", scenario) << scenario << 3 * 4096;
            QTest::addRow("read-only, %s", scenario) << scenario << -1;
        }
    }
    void theDiskTakesNoMore()
    {
        QFETCH(QString, scenario);
        QFETCH(int, free);
        Prepare(scenario);
        SmallDisk disk;
        if (!disk.IsThere())
            QSKIP("only root mounts a disk");
        Copy(m_before->path(), disk.Path());
        disk.Fill(free);
        const QStringList before = EntriesIn(disk.Path());
        const Run act = RunScenario({scenario, disk.Path(), "act"});
        const QStringList after = EntriesIn(disk.Path());
        disk.Free();
        const QString left = RunScenario({scenario, disk.Path(), "look"}).output;
        const QByteArray place = QString("%1, %2").arg(act.output, left).toUtf8();
        QVERIFY2(act.output == "done" || act.output == "refused", place.constData());
        QVERIFY2(left != "broken" || scenario == "preview-cache", place.constData());
        // The folder that an archive goes to stays, as does what was written of a copy.
        QVERIFY2(act.output == "done" || after == before || scenario == "unzip" ||
                     scenario == "import",
                 qPrintable(after.join(' ')));
    }
};

QTEST_GUILESS_MAIN(tst_Faults)
#include "tst_faults.moc"
