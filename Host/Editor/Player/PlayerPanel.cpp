// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Player/PlayerPanel.h"

#include "CommonLib/GlobalUtils.h"
#include "CommonLib/ToolBarSlider.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Player/PointsBar.h"
#include "Host/Editor/Player/ProjectMarkers.h"
#include "Host/Editor/Player/Transport.h"
#include "Host/Widgets/KeepTranslated.h"
#include "Host/Widgets/MediaPlayer.h"
#include "Host/Widgets/PictureView.h"
#include "Host/Widgets/PlayerScreen.h"
#include "Host/Widgets/SeekBar.h"
#include "Host/Widgets/TimecodeEdit.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int kGap = 6;
constexpr int kVolumeWidth = 80;
constexpr int kVolumeHeight = 18;
constexpr int kFullVolume = 100;
const QColor kLine(0xd5, 0xd8, 0xdc);

/// As time runs, whatever way text does.
QHBoxLayout* MakeRow(QWidget* box)
{
    box->setLayoutDirection(Qt::LeftToRight);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    return row;
}

void Name(QWidget* widget, const char* text)
{
    KeepTranslated(widget, [widget, text] {
        widget->setAccessibleName(PlayerPanel::tr(text));
        widget->setToolTip(PlayerPanel::tr(text));
    });
}

} // namespace

PlayerPanel::PlayerPanel(Project& project, MediaPlayer& player, QWidget* parent)
    : QWidget(parent)
    , m_project(project)
    , m_player(player)
    , m_transport(new Transport(project, player, this))
    , m_screen(new PlayerScreen(this))
    , m_points(new PointsBar(this))
    , m_seek(new SeekBar(this))
    , m_timecode(new TimecodeEdit(this))
    , m_length(new QLabel(this))
{
    AddActions();
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(kGap);
    layout->addWidget(m_screen, 1);
    layout->addWidget(MakePositionRow());
    layout->addWidget(MakeButtonRow());
    m_screen->SetPlayer(&player);
    m_seek->SetPlayer(&player);
    connect(&player, &MediaPlayer::StateChanged, this, &PlayerPanel::ShowState);
    connect(&player, &MediaPlayer::PositionChanged, this, &PlayerPanel::ShowPosition);
    connect(&player, &MediaPlayer::LengthChanged, this, &PlayerPanel::ShowProject);
    connect(&project, &Project::NodeChanged, this, &PlayerPanel::ShowProject);
    connect(&project, &Project::Replaced, this, &PlayerPanel::ShowProject);
    connect(m_transport, &Transport::PointsChanged, this, &PlayerPanel::ShowPoints);
    ShowState();
    ShowProject();
}

PictureView* PlayerPanel::View() const
{
    return m_screen->View();
}

// ---- Actions

QAction* PlayerPanel::AddSwitch(const char* text, const char* keys)
{
    auto* action = new QAction(this);
    action->setCheckable(true);
    action->setShortcut(QKeySequence(QLatin1String(keys)));
    KeepTranslated(this, [action, text] { action->setText(tr(text)); });
    addAction(action);
    m_actions << action;
    return action;
}

QAction* PlayerPanel::AddAction(const char* text, const char* keys, void (Transport::*act)())
{
    QAction* action = AddSwitch(text, keys);
    action->setCheckable(false);
    connect(action, &QAction::triggered, m_transport, act);
    return action;
}

void PlayerPanel::AddActions()
{
    m_play = AddAction(QT_TR_NOOP("Play or pause"), "Space", &Transport::TogglePlay);
    AddAction(QT_TR_NOOP("Play backwards"), "J", &Transport::PlayBackwards);
    AddAction(QT_TR_NOOP("Stop"), "K", &Transport::Pause);
    AddAction(QT_TR_NOOP("Play forwards"), "L", &Transport::PlayForwards);
    m_loop = AddSwitch(QT_TR_NOOP("Loop"), "Ctrl+L");
    m_actions << nullptr;
    m_stepBack = AddAction(QT_TR_NOOP("Back one frame"), ",", &Transport::StepBack);
    m_stepForward = AddAction(QT_TR_NOOP("Forward one frame"), ".", &Transport::StepForward);
    AddAction(QT_TR_NOOP("Go to beginning"), "Home", &Transport::GoToBegin);
    AddAction(QT_TR_NOOP("Go to end"), "End", &Transport::GoToEnd);
    m_actions << nullptr;
    m_inPoint = AddAction(QT_TR_NOOP("Set in point"), "I", &Transport::SetInPoint);
    m_outPoint = AddAction(QT_TR_NOOP("Set out point"), "O", &Transport::SetOutPoint);
    AddAction(QT_TR_NOOP("Clear in and out point"), "Alt+X", &Transport::ClearPoints);
    AddAction(QT_TR_NOOP("Go to in point"), "Shift+I", &Transport::GoToInPoint);
    AddAction(QT_TR_NOOP("Go to out point"), "Shift+O", &Transport::GoToOutPoint);
    m_marker = AddAction(QT_TR_NOOP("Set or remove marker"), "M", &Transport::ToggleMarker);
    m_actions << nullptr;
    m_mute = AddSwitch(QT_TR_NOOP("Mute"), "Ctrl+M");
    m_safeAreas = AddSwitch(QT_TR_NOOP("Safe areas"), "'");
    m_fullScreen = AddSwitch(QT_TR_NOOP("Picture on full screen"), "F11");
    connect(m_loop, &QAction::toggled, m_transport, &Transport::SetLooping);
    connect(m_mute, &QAction::toggled, &m_player, &MediaPlayer::SetMuted);
    connect(m_safeAreas, &QAction::toggled, View(), &PictureView::SetSafeAreas);
    connect(m_fullScreen, &QAction::toggled, this, &PlayerPanel::SetFullScreen);
}

// ---- Rows

QWidget* PlayerPanel::MakePositionRow()
{
    auto* box = new QWidget(this);
    QHBoxLayout* row = MakeRow(box);
    Name(m_timecode, QT_TR_NOOP("Timecode of the play head"));
    Name(m_seek, QT_TR_NOOP("Play head"));
    auto* bars = new QVBoxLayout;
    bars->setSpacing(0);
    bars->addWidget(m_points);
    bars->addWidget(m_seek);
    row->addWidget(m_timecode);
    row->addLayout(bars, 1);
    row->addWidget(m_length);
    connect(m_seek, &SeekBar::FrameChosen, this, &PlayerPanel::ShowPosition);
    connect(m_timecode, &TimecodeEdit::FrameEntered, this, [this](int frame) {
        m_transport->GoTo(frame);
        setFocus(); // so that single keys play again
    });
    return box;
}

void PlayerPanel::AddButton(QHBoxLayout& row, QAction* action, Symbol symbol)
{
    action->setIcon(SymbolIcon(symbol, kLine));
    auto* button = new QToolButton(this);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setFocusPolicy(Qt::TabFocus);
    button->setDefaultAction(action);
    row.addWidget(button);
}

QWidget* PlayerPanel::MakeButtonRow()
{
    setFocusPolicy(Qt::StrongFocus);
    auto* box = new QWidget(this);
    QHBoxLayout* row = MakeRow(box);
    AddButton(*row, m_inPoint, Symbol::InPoint);
    AddButton(*row, m_outPoint, Symbol::OutPoint);
    AddButton(*row, m_marker, Symbol::Marker);
    row->addStretch(1);
    AddButton(*row, m_stepBack, Symbol::StepBack);
    AddButton(*row, m_play, Symbol::Play);
    AddButton(*row, m_stepForward, Symbol::StepForward);
    AddButton(*row, m_loop, Symbol::Loop);
    row->addStretch(1);
    AddSound(*row);
    AddButton(*row, m_safeAreas, Symbol::SafeAreas);
    AddButton(*row, m_fullScreen, Symbol::FullScreen);
    return box;
}

void PlayerPanel::AddSound(QHBoxLayout& row)
{
    AddButton(row, m_mute, Symbol::Sound);
    auto* volume = new ToolBarSlider(this, Qt::Horizontal);
    volume->setFixedHeight(kVolumeHeight);
    volume->setMinimumWidth(kVolumeWidth / 2);
    volume->setMaximumWidth(kVolumeWidth);
    volume->setRange(0, kFullVolume);
    volume->setValue(kFullVolume, false);
    Name(volume, QT_TR_NOOP("Volume"));
    connect(volume, &ToolBarSlider::valueChanged, this,
            [this](double value) { m_player.SetVolume(value / kFullVolume); });
    row.addWidget(volume);
}

// ---- What is shown

void PlayerPanel::ShowState()
{
    const bool isPlaying = m_player.IsPlaying();
    m_play->setIcon(SymbolIcon(isPlaying ? Symbol::Pause : Symbol::Play, kLine));
}

void PlayerPanel::ShowPosition(int frame)
{
    m_timecode->SetFrame(frame);
}

void PlayerPanel::ShowProject()
{
    const double rate = m_project.FrameRate();
    m_timecode->SetFrameRate(rate);
    m_length->setText(gFrame2String(m_player.Length(), float(rate)));
    m_points->SetLength(m_player.Length());
    m_points->SetMarkers(MarkerFrames(m_project.Node()));
    ShowPosition(m_player.Position());
    ShowPoints();
}

void PlayerPanel::ShowPoints()
{
    const int in = m_transport->InPoint();
    const int out = m_transport->OutPoint();
    const bool isNone = in == Transport::kNoPoint && out == Transport::kNoPoint;
    const int last = isNone ? -1 : m_player.Length() - 1;
    m_points->SetRange(qMax(0, in), out == Transport::kNoPoint ? last : out);
}

void PlayerPanel::SetFullScreen(bool on)
{
    if (!on) {
        if (QWidget* view = std::exchange(m_fullView, nullptr))
            view->close();
        return;
    }
    auto* view = new PictureView(this);
    view->setWindowFlag(Qt::Window);
    view->setAttribute(Qt::WA_DeleteOnClose);
    view->ShowPicture(View()->Picture());
    view->SetSafeAreas(m_safeAreas->isChecked());
    view->addActions(actions()); // with their keys
    connect(m_safeAreas, &QAction::toggled, view, &PictureView::SetSafeAreas);
    connect(&m_player, &MediaPlayer::PictureReady, view,
            [view](const NLEComPtr<INLEVideoFrame>& picture) { view->ShowFrame(picture); });
    // Also when the system closes it; by then there may be another one.
    connect(view, &QObject::destroyed, m_fullScreen, [this](QObject* gone) {
        if (gone != m_fullView)
            return;
        m_fullView = nullptr;
        m_fullScreen->setChecked(false);
    });
    m_fullView = view;
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), view);
    connect(escape, &QShortcut::activated, m_fullScreen,
            [this] { m_fullScreen->setChecked(false); });
    view->showFullScreen();
}
