// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/TimelinePanel.h"

#include "CommonLib/NLEWraper/FPreViewRenderHelper.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/TimelineRuler.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Timeline/LevelHeaders.h"
#include "Host/Editor/Timeline/TimelineActions.h"
#include "Host/Editor/Timeline/TimelineCommands.h"
#include "Host/Editor/Timeline/TimelineModel.h"
#include "Host/Editor/Timeline/TimelineView.h"
#include "Host/Widgets/MediaPlayer.h"

#include <QAction>
#include <QEvent>
#include <QGridLayout>
#include <QMenu>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kFewestLevels = 3;
constexpr float kZoomStep = 15;
constexpr int kHeightStep = 12;
constexpr double kFitShare = 0.9;   ///< of the width, which a whole project fills
constexpr int kEmptySeconds = 60;   ///< that an empty project shows
constexpr double kPageMargin = 0.1; ///< of the width, before the play head on a new page
constexpr int kWheelStep = 40;      ///< pixels

using Needs = TimelineActions::Needs;

} // namespace

TimelinePanel::TimelinePanel(Project& project, Selection& selection, MediaPlayer& player,
                             QWidget* parent)
    : QWidget(parent)
    , m_project(project)
    , m_selection(selection)
    , m_player(player)
    , m_model(new TimelineModel(project, this))
    , m_commands(new TimelineCommands(project, selection, *m_model, this))
    , m_actions(new TimelineActions(this))
    , m_ruler(new TimelineRuler(this))
    , m_headers(new LevelHeaders(m_levels, *m_model, this))
    , m_view(new TimelineView(project, selection, *m_model, m_levels, *m_ruler, this))
    , m_across(new QScrollBar(Qt::Horizontal, this))
    , m_down(new QScrollBar(Qt::Vertical, this))
{
    AddEditActions();
    AddMoveActions();
    AddToolActions();
    AddViewActions();
    LayOut();
    ConnectRuler();
    ConnectScrollBars();
    ConnectModel();
    SetTexts();
    FollowProject();
    FollowSelection();
}

TimelinePanel::~TimelinePanel() = default;

QList<QAction*> TimelinePanel::Actions() const
{
    return m_actions->All();
}

QList<QAction*> TimelinePanel::Actions(std::initializer_list<ActionGroup> groups) const
{
    QList<QAction*> actions;
    for (const ActionGroup group : groups) {
        if (!actions.isEmpty())
            actions << nullptr;
        actions << m_actions->Group(int(group));
    }
    return actions;
}

// Actions -----------------------------------------------------------------------------------------

void TimelinePanel::AddEditActions()
{
    const auto add = [this](const char* text, QList<const char*> keys,
                            void (TimelineCommands::*run)(), Needs needs) {
        m_actions->Add({text, keys, [commands = m_commands, run] { (commands->*run)(); }, needs});
    };
    using C = TimelineCommands;
    m_actions->BeginGroup();
    add(QT_TRANSLATE_NOOP("Timeline", "Cut"), {"Ctrl+X"}, &C::Cut, Needs::Selection);
    add(QT_TRANSLATE_NOOP("Timeline", "Copy"), {"Ctrl+C"}, &C::Copy, Needs::Selection);
    add(QT_TRANSLATE_NOOP("Timeline", "Paste"), {"Ctrl+V"}, &C::Paste, Needs::Copy);
    add(QT_TRANSLATE_NOOP("Timeline", "Paste insert"), {"Ctrl+Shift+V"}, &C::PasteInsert,
        Needs::Copy);
    add(QT_TRANSLATE_NOOP("Timeline", "Delete"), {"Del", "Backspace"}, &C::Delete,
        Needs::Selection);
    add(QT_TRANSLATE_NOOP("Timeline", "Ripple delete"), {"Shift+Del", "Shift+Backspace"},
        &C::RippleDelete, Needs::Selection);
    m_actions->BeginGroup();
    add(QT_TRANSLATE_NOOP("Timeline", "Split at play head"), {"S"}, &C::Split, Needs::Nothing);
    add(QT_TRANSLATE_NOOP("Timeline", "Trim begin to play head"), {"Q"}, &C::TrimBegin,
        Needs::Selection);
    add(QT_TRANSLATE_NOOP("Timeline", "Trim end to play head"), {"W"}, &C::TrimEnd,
        Needs::Selection);
    add(QT_TRANSLATE_NOOP("Timeline", "Close gap at play head"), {"Shift+G"}, &C::CloseGap,
        Needs::Nothing);
    add(QT_TRANSLATE_NOOP("Timeline", "Group"), {"Ctrl+G"}, &C::Group, Needs::Selection);
    add(QT_TRANSLATE_NOOP("Timeline", "Ungroup"), {"Ctrl+Shift+G"}, &C::Ungroup, Needs::Selection);
    add(QT_TRANSLATE_NOOP("Timeline", "Lock or unlock level"), {"Shift+L"}, &C::ToggleLock,
        Needs::Selection);
    const auto flag = [this](const char* text, const char* key, int which) {
        m_actions->Add({text,
                        {key},
                        [commands = m_commands, which] { commands->ToggleFlag(which); },
                        Needs::Selection});
    };
    flag(QT_TRANSLATE_NOOP("Timeline", "Hide or show level"), "Shift+H", NLELevel_Hidden);
    flag(QT_TRANSLATE_NOOP("Timeline", "Mute or unmute level"), "Shift+M", NLELevel_Muted);
    flag(QT_TRANSLATE_NOOP("Timeline", "Level solo or not"), "Shift+A", NLELevel_Solo);
    m_actions->BeginGroup();
    add(QT_TRANSLATE_NOOP("Timeline", "Select all"), {"Ctrl+A"}, &C::SelectAll, Needs::Nothing);
    add(QT_TRANSLATE_NOOP("Timeline", "Select at play head"), {"D"}, &C::SelectAtPlayHead,
        Needs::Nothing);
    add(QT_TRANSLATE_NOOP("Timeline", "Select none"), {"Ctrl+Shift+A"}, &C::Deselect,
        Needs::Nothing);
    m_actions->SetUsable(Needs::Copy, false);
    connect(m_commands, &C::Copied, this,
            [this] { m_actions->SetUsable(Needs::Copy, m_commands->CanPaste()); });
}

void TimelinePanel::AddMoveActions()
{
    const auto nudge = [this](const char* text, const char* key, double seconds, int frames) {
        m_actions->Add({text,
                        {key},
                        [=] {
                            const double rate = seconds * m_project.FrameRate();
                            m_commands->Nudge(frames + static_cast<int>(std::lround(rate)));
                        },
                        Needs::Selection});
    };
    m_actions->BeginGroup();
    nudge(QT_TRANSLATE_NOOP("Timeline", "Frame earlier"), "Alt+Left", 0, -1);
    nudge(QT_TRANSLATE_NOOP("Timeline", "Frame later"), "Alt+Right", 0, 1);
    nudge(QT_TRANSLATE_NOOP("Timeline", "Second earlier"), "Alt+Shift+Left", -1, 0);
    nudge(QT_TRANSLATE_NOOP("Timeline", "Second later"), "Alt+Shift+Right", 1, 0);
    const auto step = [this](const char* text, const char* key, Needs needs, int by,
                             void (TimelineCommands::*run)(int)) {
        m_actions->Add({text, {key}, [=, commands = m_commands] { (commands->*run)(by); }, needs});
    };
    using C = TimelineCommands;
    step(QT_TRANSLATE_NOOP("Timeline", "Level up"), "Alt+Up", Needs::Selection, 1, &C::NudgeLevel);
    step(QT_TRANSLATE_NOOP("Timeline", "Level down"), "Alt+Down", Needs::Selection, -1,
         &C::NudgeLevel);
    step(QT_TRANSLATE_NOOP("Timeline", "Previous cut"), "Up", Needs::Nothing, -1, &C::GoToCut);
    step(QT_TRANSLATE_NOOP("Timeline", "Next cut"), "Down", Needs::Nothing, 1, &C::GoToCut);
}

void TimelinePanel::AddToolActions()
{
    m_actions->BeginGroup();
    const auto add = [this](const char* text, const char* key, TimelineTool tool) {
        return m_actions->AddChoice({text, {key}, [this, tool] { SetTool(tool); }});
    };
    add(QT_TRANSLATE_NOOP("Timeline", "Selection tool"), "V", TimelineTool::Select)
        ->setChecked(true);
    add(QT_TRANSLATE_NOOP("Timeline", "Ripple tool"), "B", TimelineTool::Ripple);
    add(QT_TRANSLATE_NOOP("Timeline", "Roll tool"), "N", TimelineTool::Roll);
    add(QT_TRANSLATE_NOOP("Timeline", "Slip tool"), "Y", TimelineTool::Slip);
    add(QT_TRANSLATE_NOOP("Timeline", "Slide tool"), "U", TimelineTool::Slide);
    add(QT_TRANSLATE_NOOP("Timeline", "Razor tool"), "C", TimelineTool::Razor);
    m_actions->AddSwitch(QT_TRANSLATE_NOOP("Timeline", "Snap"), {"Shift+S"},
                         [this](bool on) { m_view->SetSnapping(on); });
}

void TimelinePanel::AddViewActions()
{
    m_actions->BeginGroup();
    const auto add = [this](const char* text, QList<const char*> keys, std::function<void()> run) {
        m_actions->Add({text, keys, std::move(run)});
    };
    add(QT_TRANSLATE_NOOP("Timeline", "Zoom in"), {"Ctrl+=", "Ctrl++"},
        [this] { ZoomBy(-kZoomStep); });
    add(QT_TRANSLATE_NOOP("Timeline", "Zoom out"), {"Ctrl+-"}, [this] { ZoomBy(kZoomStep); });
    add(QT_TRANSLATE_NOOP("Timeline", "Fit to window"), {"Shift+Z"}, [this] { Fit(); });
    add(QT_TRANSLATE_NOOP("Timeline", "Taller levels"), {"Ctrl+Shift+Up"},
        [this] { ChangeHeights(kHeightStep); });
    add(QT_TRANSLATE_NOOP("Timeline", "Lower levels"), {"Ctrl+Shift+Down"},
        [this] { ChangeHeights(-kHeightStep); });
}

void TimelinePanel::SetTool(TimelineTool tool)
{
    m_view->SetTool(tool);
    m_commands->SetTool(tool);
}

// Widgets -----------------------------------------------------------------------------------------

void TimelinePanel::LayOut()
{
    // Time runs from left to right in all languages.
    m_ruler->setLayoutDirection(Qt::LeftToRight);
    m_across->setLayoutDirection(Qt::LeftToRight);
    m_view->setLayoutDirection(Qt::LeftToRight);
    m_across->setFocusPolicy(Qt::NoFocus);
    m_down->setFocusPolicy(Qt::NoFocus);
    m_across->setObjectName(QStringLiteral("across"));
    m_down->setObjectName(QStringLiteral("down"));
    m_ruler->SetCursorEnable(true);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_ruler, 0, 1);
    layout->addWidget(m_headers, 1, 0);
    layout->addWidget(m_view, 1, 1);
    layout->addWidget(m_down, 1, 2);
    layout->addWidget(m_across, 2, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(1, 1);
    setFocusProxy(m_view);
}

void TimelinePanel::SetTexts()
{
    setAccessibleName(tr("Timeline"));
    m_ruler->setAccessibleName(tr("Play head"));
    m_view->setAccessibleName(tr("Clips"));
    m_actions->SetTexts();
}

void TimelinePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        SetTexts();
        if (m_project.IsUsable())
            m_model->Reload();
    }
    QWidget::changeEvent(event);
}

void TimelinePanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    FollowLevels();
    FollowScale();
}

void TimelinePanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_isFitPending)
        return;
    layout()->activate();
    Fit();
}

void TimelinePanel::ConnectRuler()
{
    const auto follow = [this] { FollowScale(); };
    connect(m_ruler, &TimelineRuler::ZoomChanged, this, follow);
    connect(m_ruler, &TimelineRuler::OffsetFramesChanged, this, follow);
    connect(m_view, &TimelineView::Scrolling, this, follow);
    connect(m_ruler, &TimelineRuler::StartFramesChanged, this, [this] { m_isScrubbing = true; });
    connect(m_ruler, &TimelineRuler::FramesChanged, this, [this](int frame) {
        if (m_player.IsOpen())
            m_player.Scrub(frame);
        SetPlayHead(frame);
    });
    connect(m_ruler, &TimelineRuler::EndFramesChanged, this, [this] {
        m_isScrubbing = false;
        MovePlayHead(m_ruler->CurrentFrames());
    });
    connect(&m_player, &MediaPlayer::PositionChanged, this, [this](int frame) {
        // What it tells of a scrub is behind the mouse.
        if (m_isScrubbing)
            return;
        SetPlayHead(frame);
        if (m_player.IsPlaying())
            KeepInSight(frame);
    });
    connect(m_commands, &TimelineCommands::PlayHeadAsked, this, &TimelinePanel::MovePlayHead);
}

void TimelinePanel::ConnectScrollBars()
{
    connect(m_across, &QScrollBar::valueChanged, this,
            [this](int pixels) { m_view->ScrollTo(pixels); });
    connect(m_down, &QScrollBar::valueChanged, this, [this](int pixels) {
        m_view->SetScrolled(pixels);
        m_headers->Arrange(pixels);
    });
    const auto scrollBy = [this](int pixels) { m_down->setValue(m_down->value() + pixels); };
    connect(m_view, &TimelineView::LevelsWheeled, this, scrollBy);
    connect(m_headers, &LevelHeaders::ScrollAsked, this, scrollBy);
    m_down->setSingleStep(kWheelStep);
    m_across->setSingleStep(kWheelStep);
}

void TimelinePanel::ConnectModel()
{
    connect(m_model, &TimelineModel::Changed, this, &TimelinePanel::FollowModel);
    connect(&m_project, &Project::Replaced, this, &TimelinePanel::FollowProject);
    connect(&m_project, &Project::ClipsChanged, this, &TimelinePanel::AskCached);
    connect(&m_project, &Project::NodeChanged, this, &TimelinePanel::AskCached);
    connect(&m_selection, &Selection::Changed, this, &TimelinePanel::FollowSelection);
    connect(m_view, &TimelineView::DraggingChanged, this, [this](bool isDragging) {
        if (!isDragging)
            FollowModel();
    });
    connect(m_view, &TimelineView::MenuAsked, this, &TimelinePanel::ShowMenu);
    connect(m_headers, &LevelHeaders::LockAsked, m_commands, &TimelineCommands::SetLocked);
    connect(m_headers, &LevelHeaders::FlagAsked, m_commands, &TimelineCommands::SetFlag);
    connect(m_headers, &LevelHeaders::NameAsked, m_commands, &TimelineCommands::SetName);
    connect(m_headers, &LevelHeaders::HeightAsked, this, [this](int level, int pixels) {
        SetHeight(level, pixels);
        FollowLevels();
    });
}

void TimelinePanel::ShowMenu(const QPoint& global)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto actions =
        Actions({ActionGroup::Clipboard, ActionGroup::Edits, ActionGroup::Selection});
    for (QAction* action : actions)
        action ? menu->addAction(action) : void(menu->addSeparator());
    menu->popup(global);
}

// State -------------------------------------------------------------------------------------------

void TimelinePanel::FollowProject()
{
    if (!m_project.IsUsable())
        return;
    m_ruler->SetFPS(static_cast<float>(m_project.FrameRate()));
    SetPlayHead(m_player.IsOpen() ? m_player.Position() : 0);
    auto* cache = m_project.Timeline()->GetPreViewRenderHelper();
    connect(cache, &FPreViewRenderHelper::sigRenderProgressInfo, this, &TimelinePanel::ReadCached);
    m_view->SetCached({});
    ReadHeights();
    FollowModel();
    m_isFitPending = true;
    if (isVisible())
        Fit();
}

void TimelinePanel::FollowModel()
{
    // Levels stand still below the pointer.
    if (m_view->IsDragging())
        return;
    m_ruler->SetTotalFrames(m_model->Length());
    m_levels.SetCount(
        std::max({kFewestLevels, m_model->LevelCount() + 1, m_model->SetLevelCount()}));
    FollowLevels();
    FollowScale();
}

void TimelinePanel::FollowLevels()
{
    const int room = m_view->height() - TimelineGeometry::kStripHeight;
    // What is below stays in sight when levels come on top.
    const int below = m_down->maximum() - m_down->value();
    const int most = std::max(0, m_levels.TotalHeight() - room);
    {
        const QSignalBlocker quiet(m_down);
        m_down->setRange(0, most);
        m_down->setPageStep(std::max(1, room));
        m_down->setValue(most - below);
    }
    m_view->SetScrolled(m_down->value());
    m_headers->Arrange(m_down->value());
}

void TimelinePanel::FollowScale()
{
    const int position = m_ruler->GetZoomAndScrollRulerOffsetPosition();
    const double length = m_model->Length() * TimelineScale(*m_ruler).pixels;
    const int width = m_view->width();
    {
        const QSignalBlocker quiet(m_across);
        m_across->setRange(0, std::max(position, static_cast<int>(length) - width / 2));
        m_across->setPageStep(std::max(1, width));
        m_across->setValue(position);
    }
    m_view->update();
}

void TimelinePanel::FollowSelection()
{
    const NLEComPtr<INLETimeline> current = m_selection.Current();
    m_actions->SetUsable(Needs::Selection, current != nullptr);
    const ClipRow* row = m_model->Find(current.get());
    m_view->setAccessibleDescription(row ? Described(*row) : QString());
}

QString TimelinePanel::Described(const ClipRow& row)
{
    return tr("%1, level %2, frames %3 to %4")
        .arg(row.name)
        .arg(row.level + 1)
        .arg(row.begin)
        .arg(row.end - 1);
}

/// What is stale comes with the answer. Nothing is cached before there is a folder.
void TimelinePanel::AskCached()
{
    auto* cache = m_project.Timeline()->GetPreViewRenderHelper();
    if (!cache->GetCacheDirectory().isEmpty())
        cache->Update();
}

void TimelinePanel::ReadCached()
{
    QList<QPair<int, int>> cached;
    QList<QPair<int, int>> stale;
    m_project.Timeline()->GetPreViewRenderHelper()->GetRenderProgress(cached, stale);
    m_view->SetCached(cached.toVector());
}

void TimelinePanel::SetPlayHead(int frame)
{
    m_ruler->SetCurrentFrames(frame);
    m_view->SetPlayHead(frame);
    m_commands->SetPlayHead(frame);
}

/// Turns the page when the play head has left it.
void TimelinePanel::KeepInSight(int frame)
{
    const TimelineScale scale(*m_ruler);
    const double x = scale.X(frame);
    if (!m_view->IsDragging() && (x < 0 || x >= m_view->width()))
        m_view->ScrollTo(frame * scale.pixels - m_view->width() * kPageMargin);
}

void TimelinePanel::MovePlayHead(int frame)
{
    if (m_player.IsOpen())
        m_player.Seek(frame);
    SetPlayHead(frame);
    KeepInSight(frame);
}

void TimelinePanel::Fit()
{
    const int empty = static_cast<int>(kEmptySeconds * m_project.FrameRate());
    const int frames = m_model->Length() > 0 ? m_model->Length() : empty;
    m_ruler->SetZoom(m_ruler->FindZoom(frames, static_cast<int>(m_view->width() * kFitShare)));
    m_isFitPending = false;
    m_view->ScrollTo(0);
}

/// The play head keeps its place while it shows, else the middle does.
void TimelinePanel::ZoomBy(float steps)
{
    const TimelineScale before(*m_ruler);
    const double x = before.X(m_ruler->CurrentFrames());
    const double kept = x >= 0 && x <= m_view->width() ? x : m_view->width() / 2.0;
    const double frame = before.Frame(kept);
    m_ruler->SetZoom(std::clamp(m_ruler->Zoom() + steps, 0.0F, m_ruler->MaxZoom()));
    m_view->ScrollTo(frame * TimelineScale(*m_ruler).pixels - kept);
}

void TimelinePanel::ChangeHeights(int pixels)
{
    for (int level = 0; level < m_levels.Count(); ++level)
        SetHeight(level, m_levels.Height(level) + pixels);
    FollowLevels();
}

/// The project keeps it.
void TimelinePanel::SetHeight(int level, int pixels)
{
    m_levels.SetHeight(level, pixels);
    m_project.Levels()->SetHeight(level, m_levels.Height(level));
}

void TimelinePanel::ReadHeights()
{
    m_levels.ForgetHeights();
    for (int level = 0; level < m_model->SetLevelCount(); ++level) {
        int pixels = 0;
        m_project.Levels()->GetHeight(level, &pixels);
        if (pixels > 0)
            m_levels.SetHeight(level, pixels);
    }
}
