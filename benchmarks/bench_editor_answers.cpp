// SPDX-License-Identifier: LGPL-2.1-or-later
// How long the editor's window lets a user wait: a project of 1,000 clips, worked on first alone
// and then while media comes in, the preview is rendered and a film is written. A thread asks the
// event loop all the time; of each kind of work it prints the median of the longest wait of each
// time and the longest of all, in milliseconds, and for how many of these the thread itself ran:
// the others it stood waiting, for a lock or for a processor that others had. The medians of the
// second time are reported beside those of the first.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/FPreViewRenderHelper.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/TimelineRuler.h"
#include "CommonLib/externalapi/PixelRatio.h"
#include "Host/Editor/Export/ExportQueue.h"
#include "Host/Editor/Timeline/TimelinePanel.h"
#include "Host/Editor/Timeline/TimelineView.h"
#include "Host/Editor/Window/EditorWindow.h"
#include "Host/Editor/Window/FileCommands.h"
#include "Host/Widgets/LoopWatch.h"
#include "benchmarks/LargeFilm.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QMap>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QUndoStack>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <random>
#include <utility>
#include <vector>

namespace {

constexpr int kClips = 1000;
constexpr int kFiles = 100;
constexpr int kMoreFiles = 200;
constexpr int kRounds = 12;
constexpr int kPause = 150; // milliseconds after each piece of work
constexpr QSize kWindow(1600, 1000);

class Desk
{
public:
    Desk(const QString& folder, LargeFilm film)
        : m_film(std::move(film))
        , m_window({folder + "/autosave", folder + "/log", folder + "/preview"})
    {
        QObject::connect(&m_watch, &LoopWatch::Answered, &m_watch,
                         [this](double wait) { Take(wait); });
        m_window.resize(kWindow);
        m_window.show();
        m_timeline = m_window.findChild<TimelinePanel*>();
        Wait(kPause);
    }
    ~Desk() { m_window.Shown().Steps().setClean(); }

    void Open()
    {
        Do("open", [this] { m_window.Files().Open(m_film.document); });
    }
    /// The work that a user does, \a kRounds times.
    void Work(const char* title)
    {
        m_timeline->Ruler()->SetZoom(m_timeline->Ruler()->FindZoom(20 * LargeFilm::kFrames, 1200));
        for (int round = 0; round < kRounds; ++round)
            WorkOnce();
        std::printf("milliseconds that a window with 1,000 clips lets wait, %s\n", title);
        for (auto it = m_waits.cbegin(); it != m_waits.cend(); ++it) {
            const double median = Print(it.key(), it.value()) / 1e3;
            if (m_medians.contains(it.key()))
                Report(it.key() + ", " + title, median, Ours("nothing else", m_medians[it.key()]));
            m_medians[it.key()] = median;
        }
        m_waits.clear();
        std::fflush(stdout);
    }
    /// Has the preview rendered, a film written and media taken in from now on.
    void StartJobs(const QStringList& media, const QString& film)
    {
        Do("jobs begin", [&] {
            ExportOrder order;
            order.path = film;
            if (m_window.Films().Add(m_window.Shown().Node(), order) == 0)
                std::fputs("the film is not written\n", stderr);
            m_window.SwitchPreview();
            m_window.AddMedia(media);
        });
    }
    void TellJobs()
    {
        const FPreViewRenderHelper* preview = m_window.Shown().Timeline()->GetPreViewRenderHelper();
        std::printf("the film is %s, the preview is %s\n",
                    m_window.Films().IsBusy() ? "being written" : "written",
                    preview->IsCaching() ? "being rendered" : "rendered");
    }

private:
    /// Milliseconds.
    struct Waited
    {
        double wait = 0;
        double ran = 0;
    };

    /// What the thread has run since the answer before is what the event has waited for.
    void Take(double wait)
    {
        timespec now = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        const double ran = double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
        if (wait > m_longest.wait)
            m_longest = {wait, ran - m_ran};
        m_ran = ran;
    }
    /// Gives the median.
    static double Print(const QString& name, const std::vector<Waited>& all)
    {
        std::vector<double> waits;
        for (const Waited& one : all)
            waits.push_back(one.wait);
        const auto longest = std::max_element(
            all.begin(), all.end(), [](const auto& a, const auto& b) { return a.wait < b.wait; });
        std::printf("  %-14s %3d times, median %6.1f, longest %6.1f, of these ran %6.1f\n",
                    qPrintable(name), int(all.size()), Median(waits), longest->wait, longest->ran);
        return Median(waits);
    }
    void WorkOnce()
    {
        Project& project = m_window.Shown();
        const int length = project.Length();
        const int frame = std::uniform_int_distribution<>(0, length - 1)(m_random);
        Do("seek", [&] { m_window.Player().Seek(frame); });
        Do("scroll", [&] { m_timeline->Ruler()->SetOffsetFrames(frame); });
        Do("select", [&] { Key(Qt::Key_D, Qt::NoModifier); });
        Do(
            "play", [&] { m_window.Player().Play(1); }, 4 * kPause);
        Do("pause", [&] { m_window.Player().Pause(); });
        Do("split", [&] { Key(Qt::Key_S, Qt::NoModifier); });
        Do("nudge", [&] { Key(Qt::Key_Right, Qt::AltModifier); });
        Do("select all", [&] { Key(Qt::Key_A, Qt::ControlModifier); });
        Do("nudge all", [&] { Key(Qt::Key_Right, Qt::AltModifier); });
        Do("undo", [&] { project.Steps().undo(); });
        Do("deselect", [&] { m_window.Selected().Clear(); });
        Do("show all", [&] { m_timeline->Fit(); });
        Do("save a copy", [&] { project.SaveCopy(m_film.document + ".copy.mlt"); });
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        for (const QAction* action : m_timeline->Actions()) {
            if (action && action->shortcuts().contains(QKeySequence(int(modifiers) | key)))
                return const_cast<QAction*>(action)->trigger();
        }
        std::fprintf(stderr, "no action has %s\n",
                     qPrintable(QKeySequence(int(modifiers) | key).toString()));
    }
    void Do(const char* name, const std::function<void()>& work, int pause = kPause)
    {
        m_longest = {};
        QTimer::singleShot(0, &m_watch, work);
        Wait(pause);
        m_waits[name].push_back(m_longest);
    }
    static void Wait(int milliseconds)
    {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }

    const LargeFilm m_film;
    EditorWindow m_window;
    TimelinePanel* m_timeline;
    LoopWatch m_watch{std::chrono::milliseconds(5)};
    Waited m_longest; ///< of the work that goes on
    double m_ran = 0; ///< by the thread in all
    QMap<QString, std::vector<Waited>> m_waits;
    QMap<QString, double> m_medians; ///< seconds, of the work before
    std::mt19937 m_random{1};
};

void Run(const QString& folder)
{
    const LargeFilm film = LargeFilm::Make(folder, kClips, kFiles);
    QDir(folder).mkdir("more");
    QStringList more;
    for (int number = 0; number < kMoreFiles; ++number) {
        more << folder + QStringLiteral("/more/%1.mp4").arg(number);
        QFile::copy(film.media.first(), more.last());
    }
    if (film.document.isEmpty())
        return;
    Desk desk(folder, film);
    desk.Open();
    desk.Work("alone");
    desk.StartJobs(more, folder + "/film.mp4");
    desk.TellJobs();
    desk.Work("jobs behind");
    desk.TellJobs();
}

} // namespace

int main(int argc, char** argv)
{
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    app.setStyleSheet(gGetCommonLibStyles());
    const QTemporaryDir folder;
    Run(folder.path());
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}
