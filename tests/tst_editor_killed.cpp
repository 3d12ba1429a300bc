// SPDX-License-Identifier: LGPL-2.1-or-later
// An editor that is killed at any moment while somebody edits opens again, with what was done until
// ten seconds before. The seed is printed and taken from COMMONLIB_KILL_SEED, the number of kills
// from COMMONLIB_KILLS.
#include "Host/Editor/Window/EditorWindow.h"
#include "tests/support/EngineFixture.h"

#include <QApplication>
#include <QDateTime>
#include <QProcess>
#include <QStandardPaths>
#include <QUndoStack>

#include <random>

namespace {

const char kEditing[] = "--editing";
constexpr int kLongestRun = 14000; // milliseconds until the kill
constexpr int kMostLost = 10000;
constexpr int kPatience = 30000;
constexpr int kFrames = 50;
constexpr int kLevels = 3;

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
            Act();
            Note();
            timer.setInterval(Any(5, 150));
        });
        timer.start(0);
        return QApplication::exec();
    }

private:
    int Any(int least, int most) { return std::uniform_int_distribution<>(least, most)(m_random); }
    void Note()
    {
        m_journal.write(QByteArray::number(Now()) + ' ' + StateOf(m_window.Shown().Node()) + '\n');
        m_journal.flush();
    }
    void Act()
    {
        Project& project = m_window.Shown();
        const int kind = Any(0, 19);
        const int count = EngineFixture::ClipCount(project.Node());
        if (kind == 0)
            project.Save();
        else if (kind < 4)
            project.Steps().undo();
        else if (kind < 6)
            project.Steps().redo();
        else if (kind < 12 || count == 0)
            Place();
        else
            Change(EngineFixture::ClipAt(project.Node(), Any(0, count - 1)), kind < 16);
    }
    void Place()
    {
        auto* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
        const Node clip = provider->CreateColorTimeline(Qt::red, QSize(320, 180), 25);
        const NLERange range = {0, Any(1, kFrames) - 1};
        clip->SetRange(&range);
        m_window.Shown().Edit("Place", [&](INLEEditing& editing) {
            return editing.Place(clip.get(), Any(0, 20 * kFrames), Any(0, kLevels - 1),
                                 NLEEdit_Alone);
        });
    }
    void Change(const Node& clip, bool moves)
    {
        int position = 0;
        clip->GetPosition(&position);
        const int frame = position + Any(1, kFrames);
        m_window.Shown().Edit("Change", [&](INLEEditing& editing) {
            return moves ? editing.Move(clip.get(), frame, Any(0, kLevels - 1), NLEEdit_Alone)
                         : editing.Split(clip.get(), frame, NLEEdit_Alone);
        });
    }

    EditorWindow m_window;
    QFile m_journal;
    const QString m_film;
    std::mt19937 m_random;
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
        const unsigned seed = qEnvironmentVariableIsSet("COMMONLIB_KILL_SEED")
                                  ? unsigned(qEnvironmentVariableIntValue("COMMONLIB_KILL_SEED"))
                                  : std::random_device()() % 1000000;
        const int kills = std::max(2, qEnvironmentVariableIntValue("COMMONLIB_KILLS"));
        qInfo("%d kills, COMMONLIB_KILL_SEED=%u", kills, seed);
        std::mt19937 random(seed);
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
            qInfo("killed after %5d ms and %d edits: %d ms lost", run, entries.size() - 1, lost);
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
