// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Player/Transport.h"

#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Player/ProjectMarkers.h"
#include "Host/Widgets/MediaPlayer.h"

#include <QCoreApplication>

namespace {

constexpr const wchar_t* kInKey = L"kEditor_InPoint";
constexpr const wchar_t* kOutKey = L"kEditor_OutPoint";
constexpr double kFastest = 8;
constexpr std::uint32_t kMarkerColor = 0xFFE0A030;

Transport::Points ReadPoints(const NLEComPtr<INLETimeline>& node)
{
    Transport::Points points;
    if (const auto bag = BagOf(node.get())) {
        // What is not there stays.
        bag->GetInt(kInKey, &points.in);
        bag->GetInt(kOutKey, &points.out);
    }
    return points;
}

bool WritePoints(const NLEComPtr<INLETimeline>& node, const Transport::Points& points)
{
    const auto bag = BagOf(node.get());
    return bag && SUCCEEDED(bag->SetInt(kInKey, points.in)) &&
           SUCCEEDED(bag->SetInt(kOutKey, points.out));
}

} // namespace

Transport::Transport(Project& project, MediaPlayer& player, QObject* parent)
    : QObject(parent), m_project(project), m_player(player)
{
    m_update.setSingleShot(true);
    m_update.setInterval(0);
    connect(&m_update, &QTimer::timeout, this, &Transport::Update);
    const auto update = [this] { m_update.start(); };
    connect(&project, &Project::Replaced, this, &Transport::OpenLater);
    connect(&project, &Project::ClipsChanged, this, update);
    connect(&project, &Project::NodeChanged, this, update);
    connect(&project, &Project::NodeChanged, this, &Transport::TakePoints);
    connect(&player, &MediaPlayer::LengthChanged, this, &Transport::ApplyLoop);
    m_update.start(); // not now, for a window is to show first
}

void Transport::OpenLater()
{
    m_player.Close();
    TakePoints();
    m_update.start();
}

void Transport::Update()
{
    // Without a frame there is nothing to open.
    if (m_project.Length() <= 0)
        m_player.Close();
    else if (m_player.IsOpen())
        m_player.Refresh();
    else
        m_player.Open(m_project.Node());
}

int Transport::Last() const
{
    return qMax(0, m_player.Length() - 1);
}

void Transport::TogglePlay()
{
    if (m_player.IsPlaying())
        return Pause();
    if (m_player.Position() >= Last())
        GoToBegin();
    m_player.Play(1);
}

void Transport::Pause()
{
    m_player.Pause();
}

void Transport::Hurry(int direction)
{
    const double rate = m_player.IsPlaying() ? m_player.Rate() * direction : 0;
    m_player.Play(direction * (rate > 0 ? qMin(kFastest, 2 * rate) : 1));
}

void Transport::StepForward()
{
    m_player.Step(1);
}

void Transport::StepBack()
{
    m_player.Step(-1);
}

void Transport::GoToBegin()
{
    GoTo(0);
}

void Transport::GoToEnd()
{
    GoTo(Last());
}

void Transport::GoTo(int frame)
{
    m_player.Seek(qBound(0, frame, Last()));
}

void Transport::SetInPoint()
{
    const int here = m_player.Position();
    SetPoints("Set in point", {here, m_points.out < here ? kNoPoint : m_points.out});
}

void Transport::SetOutPoint()
{
    const int here = m_player.Position();
    SetPoints("Set out point", {m_points.in > here ? kNoPoint : m_points.in, here});
}

void Transport::SetPoints(const char* text, Points points)
{
    const NLEComPtr<INLETimeline> node = m_project.Node();
    const Points before = m_points;
    if (points.in == before.in && points.out == before.out)
        return;
    m_project.Change(
        QCoreApplication::translate("PlayerPanel", text), node,
        [node, points] { return WritePoints(node, points); },
        [node, before] { return WritePoints(node, before); });
}

void Transport::TakePoints()
{
    const Points points = ReadPoints(m_project.Node());
    if (points.in == m_points.in && points.out == m_points.out)
        return;
    m_points = points;
    ApplyLoop();
    Q_EMIT PointsChanged();
}

void Transport::ClearPoints()
{
    SetPoints("Clear in and out point", {});
}

void Transport::GoToInPoint()
{
    GoTo(m_points.in == kNoPoint ? 0 : m_points.in);
}

void Transport::GoToOutPoint()
{
    GoTo(m_points.out == kNoPoint ? Last() : m_points.out);
}

void Transport::SetLooping(bool on)
{
    m_isLooping = on;
    ApplyLoop();
}

void Transport::ApplyLoop()
{
    if (!m_player.IsOpen())
        return;
    const int first = m_points.in == kNoPoint ? 0 : m_points.in;
    const int last = m_points.out == kNoPoint ? Last() : qMin(m_points.out, Last());
    if (m_isLooping && first < last)
        m_player.SetLoop(first, last);
    else
        m_player.ClearLoop();
}

void Transport::ToggleMarker()
{
    const NLEMarkerRecord marker = {m_player.Position(), 0, kMarkerColor};
    const NLEComPtr<INLETimeline> node = m_project.Node();
    const auto add = [node, marker] { return AddMarker(node, marker); };
    const auto remove = [node, marker] { return RemoveMarker(node, marker.frame); };
    if (MarkerFrames(node).contains(marker.frame))
        m_project.Change(tr("Remove marker"), node, remove, add);
    else
        m_project.Change(tr("Set marker"), node, add, remove);
}
