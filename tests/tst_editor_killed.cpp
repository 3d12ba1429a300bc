// SPDX-License-Identifier: LGPL-2.1-or-later
// An editor that is killed at any moment while somebody edits opens again, with what was done until
// ten seconds before. COMMONLIB_KILLS is the number of kills.
#include "Host/Editor/Window/EditorWindow.h"
#include "tests/support/RandomEdits.h"
#include "tests/support/Seed.h"

#include <QApplication>
#include <QDateTime>
#include <QProcess>
#include <QStandardPaths>

#include <random>

namespace {

const char kEditing[] = "--editing";
constexpr int kLongestRun = 14000; // milliseconds until the kill
constexpr int kMostLost = 10000;
constexpr int kPatience = 30000;

qint64 Now()
{
    return QDateTime::currentMSecsSinceEpoch();
}

/// Places and ranges of all clips, in an order of their own.
QByteArray StateOf(const Node& project)
{
    QStringList clips;
    NLEComPtr<INLETimelineEnumerator> walk;
    bool isEmpty = true;
    project.query<INLETimelineComposite>()->GetEnumerator(1, walk.put());
    if (!walk || FAILED(walk->IsEmpty(&isEmpty)) || isEmpty)
        return "-";
    do {
        Node clip;
        int level = 0;
        int position = 0;
        walk->GetCurrent(clip.put());
        clip->GetLevel(&level);
        clip->GetPosition(&position);
        const NLERange range = EngineFixture::RangeOf(clip);
        clips << QString("%1:%2:%3-%4").arg(level).arg(position).arg(range.in).arg(range.out);
    } while (walk->Next() == S_OK);
    clips.sort();
    return clips.join(',').toLatin1();
}

/// Somebody who edits at random, saves at times, and writes down when the project was how.
class Person
{
public:
    Person(const QString& folder, unsigned seed)
        : m_window({folder + "/autosave", folder + "/log", folder + "/preview"})
        , m_journal(folder + "/journal")
        , m_film(folder + "/film.mlt")
        , m_random(seed)
    {
        m_window.show();
    }
    int Run()
    {
        if (!m_window.Shown().SaveAs(m_film) || !m_journal.open(QIODevice::WriteOnly))
            return 1;
        Note();
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            m_edits.Act();
            Note();
            timer.setInterval(m_edits.Any(5, 150));
        });
        timer.start(0);
        return QApplication::exec();
    }

private:
    void Note()
    {
        m_journal.write(QByteArray::number(Now()) + ' ' + StateOf(m_window.Shown().Node()) + '\n');
        m_journal.flush();
    }

    EditorWindow m_window;
    QFile m_journal;
    const QString m_film;
    std::mt19937 m_random;
    RandomEdits m_edits{m_window.Shown(), m_random};
};

/// What the project was, and when that was written down.
struct Entry
{
    qint64 when;
    QByteArray state;
};

QVector<Entry> Journal(const QString& folder)
{
    QVector<Entry> entries;
    QFile file(folder + "/journal");
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    for (const QByteArray& line : file.readAll().split('\n')) {
        const QList<QByteArray> parts = line.split(' ');
        if (parts.size() == 2)
            entries.append({parts[0].toLongLong(), parts[1]});
    }
    return entries;
}

} // namespace

class tst_EditorKilled : public QObject
{
    Q_OBJECT

    std::unique_ptr<EngineFixture> m_engine;

    /// Has somebody edit for \a run milliseconds; when that ended, 0 when it did not begin.
    static qint64 EditAndKill(const QString& folder, unsigned seed, int run)
    {
        QProcess editor;
        editor.setStandardErrorFile(QProcess::nullDevice());
        editor.start(QCoreApplication::applicationFilePath(),
                     {kEditing, folder, QString::number(seed)});
        const auto hasBegun = [&] { return !Journal(folder).isEmpty(); };
        if (!editor.waitForStarted() || !QTest::qWaitFor(hasBegun, kPatience))
            return 0;
        QTest::qWait(run);
        const qint64 when = editor.state() == QProcess::Running ? Now() : 0;
        editor.kill();
        editor.waitForFinished();
        return when;
    }
    /// What an editor opens that is started again; null when it cannot.
    static QByteArray Reopened(const QString& folder)
    {
        Project project;
        Autosave autosave(project, folder + "/autosave");
        const QVector<Autosave::Leftover> leftovers = autosave.Leftovers();
        const bool isOpen = leftovers.isEmpty() ? project.Open(folder + "/film.mlt")
                                                : autosave.Recover(leftovers.first());
        return isOpen ? StateOf(project.Node()) : QByteArray();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        m_engine = std::make_unique<EngineFixture>();
    }
    void cleanupTestCase() { m_engine.reset(); }

    void opensAgainWithWhatWasDone()
    {
        const int kills = std::max(2, qEnvironmentVariableIntValue("COMMONLIB_KILLS"));
        std::mt19937 random(Seed());
        for (int kill = 0; kill < kills; ++kill) {
            const QTemporaryDir folder;
            const int run = std::uniform_int_distribution<>(0, kLongestRun)(random);
            const qint64 end = EditAndKill(folder.path(), unsigned(random()), run);
            QVERIFY(end > 0);
            QVERIFY(m_engine->Load(folder.filePath("film.mlt")));
            const QByteArray state = Reopened(folder.path());
            const QVector<Entry> entries = Journal(folder.path());
            const auto kept =
                std::find_if(entries.rbegin(), entries.rend(),
                             [&](const Entry& entry) { return entry.state == state; });
            QVERIFY2(kept != entries.rend(), state.constData());
            const int lost = kept == entries.rbegin() ? 0 : int(end - (kept - 1)->when);
            qInfo("killed after %5d ms and %d edits: %d ms lost", run, int(entries.size()) - 1,
                  lost);
            QVERIFY(lost <= kMostLost);
        }
    }
};

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String(kEditing)) {
        QStandardPaths::setTestModeEnabled(true);
        return Person(arguments.value(2), arguments.value(3).toUInt()).Run();
    }
    tst_EditorKilled test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_editor_killed.moc"
