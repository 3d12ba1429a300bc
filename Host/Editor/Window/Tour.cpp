// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/Tour.h"

#include "CommonLib/NLEWraper/FPreViewRenderHelper.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Bin/BinView.h"
#include "Host/Editor/Export/ExportQueue.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Properties/ClipActions.h"
#include "Host/Editor/Properties/MovementKeys.h"
#include "Host/Editor/Timeline/TimelinePanel.h"
#include "Host/Editor/Window/EditorWindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QTextStream>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kSeconds = 3;      // of each clip
constexpr int kLook = 700;       // milliseconds until what is made in the background shows
constexpr int kPatience = 60000; // milliseconds that a step may wait
constexpr int kOften = 20;       // milliseconds
constexpr double kSmall = 0.4;
constexpr double kAside = 0.25; // of the picture, from its middle

/// What the panels call such a step.
QString Text(const char* context, const char* text)
{
    return QCoreApplication::translate(context, text);
}

void Wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Null where the engine cannot read the file.
NLEComPtr<INLETimeline> ClipOf(const QString& path)
{
    return QFileInfo::exists(path) ? EngineProvider().CreateMediaTimeline(path, false) : nullptr;
}

} // namespace

Tour::Tour(EditorWindow& window, const QString& folder, const QStringList& media)
    : m_window(window), m_folder(QFileInfo(folder).absoluteFilePath())
{
    for (const QString& path : media)
        m_media << QFileInfo(path).absoluteFilePath();
}

bool Tour::Run()
{
    const Step steps[] = {{"import", &Tour::Import},
                          {"arrange", &Tour::Arrange},
                          {"split", &Tour::Split},
                          {"title", &Tour::AddTitle},
                          {"transition", &Tour::AddTransition},
                          {"effect", &Tour::AddEffect},
                          {"key frames", &Tour::Animate},
                          {"undo and redo", &Tour::Undo},
                          {"preview", &Tour::RenderPreview},
                          {"play", &Tour::Play},
                          {"save", &Tour::Save},
                          {"export", &Tour::Export}};
    QFile file(Path(QStringLiteral("report.txt")));
    if (!QDir().mkpath(m_folder) || !file.open(QIODevice::WriteOnly))
        return false;
    QTextStream report(&file);
    QTextStream out(stdout);
    int number = 0;
    for (const Step& step : steps) {
        QElapsedTimer timer;
        timer.start();
        const bool isDone = (this->*step.run)();
        const QString line = QStringLiteral("%1 %2 ms%3\n")
                                 .arg(QLatin1String(step.name), -14)
                                 .arg(timer.elapsed(), 6)
                                 .arg(QLatin1String(isDone ? "" : ", failed"));
        report << line;
        out << line << Qt::flush;
        if (!isDone || !Picture(++number, step.name))
            return false;
    }
    return true;
}

// ---- Steps

bool Tour::Import()
{
    const auto isUnreadable = [](const QString& path) { return !ClipOf(path); };
    m_media.erase(std::remove_if(m_media.begin(), m_media.end(), isUnreadable), m_media.end());
    if (m_media.isEmpty())
        return false;
    m_window.AddMedia(m_media);
    const QAbstractItemView* bin = m_window.findChild<BinView*>();
    return Await([&] { return bin->model() && bin->model()->rowCount() > 0; });
}

bool Tour::Arrange()
{
    const int length = int(kSeconds * m_window.Shown().FrameRate());
    const bool isArranged = Place(m_media.first(), 0, 0) && Place(m_media.last(), length, 0) &&
                            Place(m_media.first(), length / 2, 1);
    m_window.findChild<TimelinePanel*>()->Fit();
    return isArranged;
}

bool Tour::Split()
{
    const int frame = int(kSeconds * m_window.Shown().FrameRate()) * 3 / 2;
    return m_window.Shown().Edit(Text("TimelineCommands", "Split"), [&](INLEEditing& editing) {
        return editing.Split(m_clips[1].get(), frame, NLEEdit_Alone);
    });
}

bool Tour::AddTitle()
{
    return ClipActions::AddTitle(m_window.Shown(), m_window.Selected(), QStringLiteral("CommonLib"),
                                 0);
}

bool Tour::AddTransition()
{
    return ClipActions::AddTransition(m_window.Shown(), m_window.Selected(), m_clips[0],
                                      QStringLiteral("dissolve"), NLEEdge_End);
}

bool Tour::AddEffect()
{
    m_window.Selected().Set({m_clips[2]});
    return ClipActions::AddEffect(m_window.Shown(), m_clips[2], NLECatalog_Effect,
                                  QStringLiteral("drop-shadow"));
}

/// A small picture that moves across the one below.
bool Tour::Animate()
{
    const MovementKeys keys(m_clips[2]);
    const int length = int(kSeconds * m_window.Shown().FrameRate());
    const int first = length / 2;
    for (const int frame : {first, first + length - 1}) {
        VideoKeyFrameParam value = keys.ValueAt(frame);
        value.scale = {kSmall, kSmall};
        value.position = {frame == first ? -kAside : kAside, -kAside};
        const PropertyChange change = keys.Put(frame, value);
        if (!m_window.Shown().Change(Text("TimelineCommands", "Move"), m_clips[2], change.redo,
                                     change.undo))
            return false;
    }
    return m_window.Player().Seek(length);
}

bool Tour::Undo()
{
    QUndoStack& steps = m_window.Shown().Steps();
    const int all = steps.index();
    steps.setIndex(0);
    const bool isEmpty = m_window.Shown().Timeline()->GetClipCount() == 0;
    steps.setIndex(all);
    return isEmpty && steps.index() == all;
}

bool Tour::RenderPreview()
{
    m_window.SwitchPreview();
    const FPreViewRenderHelper* preview = m_window.Shown().Timeline()->GetPreViewRenderHelper();
    return Await([&] { return preview->IsFinished(); });
}

bool Tour::Play()
{
    MediaPlayer& player = m_window.Player();
    return player.Seek(0) && player.Play(1) && Await([&] { return !player.IsPlaying(); });
}

bool Tour::Save()
{
    return m_window.Shown().SaveAs(Path(QStringLiteral("film.mlt")));
}

bool Tour::Export()
{
    ExportOrder order;
    order.path = Path(QStringLiteral("film.mp4"));
    ExportQueue& films = m_window.Films();
    const int number = films.Add(m_window.Shown().Node(), order);
    return number > 0 && Await([&] { return !films.IsBusy(); }) &&
           films.Find(number)->state == ExportQueue::State::Done;
}

// ---- What steps are made of

bool Tour::Place(const QString& path, int position, int level)
{
    const NLEComPtr<INLETimeline> clip = ClipOf(path);
    if (!clip)
        return false;
    // What a transition needs lies before and behind.
    const int rate = int(m_window.Shown().FrameRate());
    const NLERange range = {rate, rate * (kSeconds + 1) - 1};
    const bool isPlaced =
        m_window.Shown().Edit(Text("TimelineView", "Add media"), [&](INLEEditing& editing) {
            clip->SetRenderFrameRate(NLERational{rate, 1});
            clip->SetRange(&range);
            return editing.Place(clip.get(), position, level, 0);
        });
    m_clips << clip;
    return isPlaced;
}

bool Tour::Await(const std::function<bool()>& isDone) const
{
    QElapsedTimer timer;
    timer.start();
    while (!isDone() && timer.elapsed() < kPatience)
        Wait(kOften);
    return isDone();
}

QString Tour::Path(const QString& name) const
{
    return QDir(m_folder).filePath(name);
}

bool Tour::Picture(int number, const char* name) const
{
    Wait(kLook);
    const QString file =
        QStringLiteral("%1 %2.png").arg(number, 2, 10, QLatin1Char('0')).arg(QLatin1String(name));
    return m_window.grab().save(Path(file));
}
