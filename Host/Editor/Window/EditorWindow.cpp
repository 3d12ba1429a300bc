// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/EditorWindow.h"

#include "CommonLib/NLEWraper/FPreViewRenderHelper.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "Host/Editor/Bin/BinCommands.h"
#include "Host/Editor/Bin/BinPanel.h"
#include "Host/Editor/Export/ExportDialog.h"
#include "Host/Editor/Export/ExportQueue.h"
#include "Host/Editor/Player/PlayerPanel.h"
#include "Host/Editor/Player/Transport.h"
#include "Host/Editor/Properties/PictureHandles.h"
#include "Host/Editor/Properties/PropertiesPanel.h"
#include "Host/Editor/Timeline/TimelinePanel.h"
#include "Host/Editor/Timeline/TimelineView.h"
#include "Host/Editor/Window/AboutBox.h"
#include "Host/Editor/Window/FileCommands.h"
#include "Host/Editor/Window/FocusedKeys.h"
#include "Host/Editor/Window/LanguageMenu.h"
#include "Host/Editor/Window/LogView.h"
#include "Host/Editor/Window/ShortcutList.h"
#include "Host/Gallery/GalleryWindow.h"
#include "Host/Widgets/HostStyle.h"
#include "Host/Widgets/KeepTranslated.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize kSize(1280, 800);
constexpr int kTimelineHeight = 280;
constexpr int kMediaWidth = 310;
constexpr int kPropertiesWidth = 300;
constexpr int kMessageTime = 10000; // milliseconds
const char kGeometry[] = "window/geometry";
const char kState[] = "window/state";
const char kLight[] = "window/light";

/// Takes keys that \a kept have from \a others: what two actions want, none gets.
void KeepKeys(const QList<QAction*>& kept, const QList<QAction*>& others)
{
    QList<QKeySequence> taken;
    for (const QAction* action : kept) {
        if (action)
            taken += action->shortcuts();
    }
    for (QAction* action : others) {
        QList<QKeySequence> keys = action->shortcuts();
        keys.erase(std::remove_if(keys.begin(), keys.end(),
                                  [&](const QKeySequence& key) { return taken.contains(key); }),
                   keys.end());
        action->setShortcuts(keys);
    }
}

} // namespace

EditorWindow::EditorWindow(const Paths& paths)
    : m_selection(m_project)
    , m_autosave(m_project, paths.autosave)
    , m_previewFolder(paths.preview)
    , m_files(new FileCommands(m_project, *this))
    , m_playerPanel(new PlayerPanel(m_project, m_player, this))
    , m_bin(new BinPanel(m_project, m_selection, m_player, this))
    , m_timeline(new TimelinePanel(m_project, m_selection, m_player, this))
    , m_films(new ExportQueue(this))
{
    qApp->installEventFilter(new FocusedKeys(this));
    resize(kSize.boundedTo(screen()->availableSize()));
    setCentralWidget(m_playerPanel);
    new PictureHandles(m_project, m_selection, m_player, *m_playerPanel->View());
    AddPanels(paths);
    AddMenus();
    AddToolBar();
    statusBar(); // there from the beginning: it would push up what is being dragged
    connect(&m_project, &Project::Refused, this,
            [this](const QString& reason) { statusBar()->showMessage(reason, kMessageTime); });
    // An empty text clears it.
    connect(&m_project, &Project::DragRefused, this,
            [this](const QString& reason) { statusBar()->showMessage(reason, kMessageTime); });
    connect(&m_project, &Project::ModifiedChanged, this, &QWidget::setWindowModified);
    connect(&m_project, &Project::PathChanged, this, &EditorWindow::ShowTitle);
    connect(&m_project, &Project::Replaced, this, &EditorWindow::ShowRemarks);
    connect(&m_playerPanel->Playing(), &Transport::PointsChanged, this, &EditorWindow::ShowPoints);
    KeepTranslated(this, [this] { ShowTitle(); });
    const QSettings settings;
    restoreGeometry(settings.value(QLatin1String(kGeometry)).toByteArray());
    restoreState(settings.value(QLatin1String(kState)).toByteArray());
    m_timeline->View()->setFocus();
}

EditorWindow::~EditorWindow()
{
    // Nobody is to see it wait for a preview that renders. That handles events, for which all must
    // still be there.
    hide();
    if (NLETimeline* timeline = m_project.Timeline())
        timeline->GetPreViewRenderHelper()->StopRenderSync();
    m_project.disconnect(this);
    // Panels know the project and the player.
    for (QDockWidget* dock : findChildren<QDockWidget*>())
        delete dock;
    delete m_export;
    delete m_playerPanel;
}

// ---- Panels

QDockWidget* EditorWindow::AddPanel(Qt::DockWidgetArea area, const char* title, const char* name,
                                    QWidget* panel)
{
    auto* dock = new QDockWidget(this);
    dock->setObjectName(QLatin1String(name));
    dock->setWidget(panel);
    KeepTranslated(dock, [dock, title] { dock->setWindowTitle(tr(title)); });
    addDockWidget(area, dock);
    m_panelSwitches << dock->toggleViewAction();
    return dock;
}

void EditorWindow::AddPanels(const Paths& paths)
{
    setDockNestingEnabled(true);
    setCorner(Qt::BottomLeftCorner, Qt::BottomDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::BottomDockWidgetArea);
    QDockWidget* media = AddPanel(Qt::LeftDockWidgetArea, QT_TR_NOOP("Media"), "media", m_bin);
    QDockWidget* properties =
        AddPanel(Qt::RightDockWidgetArea, QT_TR_NOOP("Properties"), "properties",
                 new PropertiesPanel(m_project, m_selection, m_player, this));
    QDockWidget* timeline =
        AddPanel(Qt::BottomDockWidgetArea, QT_TR_NOOP("Timeline"), "timeline", m_timeline);
    QDockWidget* log =
        AddPanel(Qt::BottomDockWidgetArea, QT_TR_NOOP("Log"), "log", new LogView(paths.log, this));
    tabifyDockWidget(timeline, log);
    log->hide();
    connect(log->toggleViewAction(), &QAction::triggered, log, [log](bool isShown) {
        if (isShown)
            log->raise(); // in front of the timeline
    });
    resizeDocks({timeline}, {kTimelineHeight}, Qt::Vertical);
    resizeDocks({media, properties}, {kMediaWidth, kPropertiesWidth}, Qt::Horizontal);
}

// ---- Menus

QMenu* EditorWindow::AddMenu(const char* title, const QList<QAction*>& actions)
{
    auto* menu = new QMenu(this);
    KeepTranslated(menu, [menu, title] { menu->setTitle(tr(title)); });
    for (QAction* action : actions)
        action ? menu->addAction(action) : void(menu->addSeparator());
    menuBar()->addMenu(menu);
    return menu;
}

QAction* EditorWindow::AddAction(const char* text, const QKeySequence& keys,
                                 const std::function<void()>& act)
{
    auto* action = new QAction(this);
    action->setShortcut(keys);
    KeepTranslated(this, [action, text] { action->setText(tr(text)); });
    connect(action, &QAction::triggered, this, act);
    return action;
}

/// Undo or redo, with the name of the step.
QAction* EditorWindow::AddStep(const char* text, const QKeySequence& keys, bool isUndo)
{
    QUndoStack& steps = m_project.Steps();
    auto* action = new QAction(this);
    action->setShortcut(keys);
    const auto show = [action, text, isUndo, &steps] {
        const QString step = isUndo ? steps.undoText() : steps.redoText();
        action->setText(step.isEmpty() ? tr(text) : QStringLiteral("%1: %2").arg(tr(text), step));
        action->setEnabled(isUndo ? steps.canUndo() : steps.canRedo());
    };
    KeepTranslated(this, show);
    connect(&steps, isUndo ? &QUndoStack::canUndoChanged : &QUndoStack::canRedoChanged, action,
            show);
    connect(&steps, isUndo ? &QUndoStack::undoTextChanged : &QUndoStack::redoTextChanged, action,
            show);
    connect(action, &QAction::triggered, &steps, isUndo ? &QUndoStack::undo : &QUndoStack::redo);
    return action;
}

void EditorWindow::AddMenus()
{
    QMenu* file = AddMenu(QT_TR_NOOP("&File"), m_files->Actions());
    file->addSeparator();
    QAction* films = AddAction(QT_TR_NOOP("Export…"), QKeySequence(QStringLiteral("Ctrl+E")),
                               [this] { ShowExport(); });
    films->setObjectName(QStringLiteral("export"));
    file->addAction(films);
    file->addSeparator();
    file->addAction(
        AddAction(QT_TR_NOOP("Quit"), QKeySequence(QStringLiteral("Ctrl+Q")), [this] { close(); }));
    m_undo = AddStep(QT_TR_NOOP("Undo"), QKeySequence::Undo, true);
    m_redo = AddStep(QT_TR_NOOP("Redo"), QKeySequence(QStringLiteral("Ctrl+Shift+Z")), false);
    using Group = TimelinePanel::ActionGroup;
    QMenu* edit =
        AddMenu(QT_TR_NOOP("&Edit"), QList<QAction*>{m_undo, m_redo, nullptr} +
                                         m_timeline->Actions({Group::Clipboard, Group::Selection}));
    edit->addSeparator();
    edit->addAction(AddAction(QT_TR_NOOP("Lift from in to out point"),
                              QKeySequence(Qt::Key_Semicolon),
                              [this] { CutRange(tr("Lift"), &INLEEditing::Lift); }));
    edit->addAction(AddAction(QT_TR_NOOP("Extract from in to out point"),
                              QKeySequence(QStringLiteral("Shift+;")),
                              [this] { CutRange(tr("Extract"), &INLEEditing::Extract); }));
    QMenu* media = AddMenu(QT_TR_NOOP("&Media"), m_bin->Commands().AddMenu()->actions());
    media->addSeparator();
    media->addActions(m_bin->Commands().ItemMenu()->actions());
    connect(media, &QMenu::aboutToShow, &m_bin->Commands(), &BinCommands::Update);
    QMenu* timeline = AddMenu(QT_TR_NOOP("&Timeline"), m_timeline->Actions({Group::Edits}));
    auto* move = timeline->addMenu(QString());
    KeepTranslated(move, [move] { move->setTitle(QApplication::translate("Timeline", "Move")); });
    move->addActions(m_timeline->Actions({Group::Moves}));
    timeline->addSeparator();
    timeline->addActions(m_timeline->Actions({Group::Tools}));
    QMenu* play = AddMenu(QT_TR_NOOP("&Play"), m_playerPanel->Actions());
    play->addSeparator();
    play->addAction(AddAction(QT_TR_NOOP("Render the preview, or stop it"),
                              QKeySequence(QStringLiteral("Ctrl+P")), [this] { SwitchPreview(); }));
    KeepKeys(m_playerPanel->Actions(), m_timeline->Actions());
    QMenu* view = AddMenu(QT_TR_NOOP("&View"), m_panelSwitches);
    view->addSeparator();
    view->addActions(m_timeline->Actions({Group::View}));
    view->addSeparator();
    view->addMenu(new LanguageMenu(this));
    view->addAction(AddLightSwitch());
    AddMenu(QT_TR_NOOP("&Help"),
            {AddAction(QT_TR_NOOP("Keyboard shortcuts"), QKeySequence::HelpContents,
                       [this] { ShortcutList(this).exec(); }),
             AddGallerySwitch(), AddAction(QT_TR_NOOP("About"), {}, [this] { ShowAbout(this); })});
}

/// The library's widgets, each on a page to try it.
QAction* EditorWindow::AddGallerySwitch()
{
    auto* action = new QAction(this);
    KeepTranslated(this, [action] { action->setText(GalleryWindow::tr("CommonLib widgets")); });
    connect(action, &QAction::triggered, this, [this] {
        auto* gallery = new GalleryWindow(this);
        gallery->setWindowFlag(Qt::Window);
        gallery->setAttribute(Qt::WA_DeleteOnClose);
        gallery->show();
    });
    return action;
}

QAction* EditorWindow::AddLightSwitch()
{
    QAction* action = AddAction(QT_TR_NOOP("Light style"), {}, [] {});
    action->setCheckable(true);
    action->setChecked(HostStyle::IsLight());
    connect(action, &QAction::toggled, this, [](bool isLight) {
        QSettings().setValue(QLatin1String(kLight), isLight);
        HostStyle::Apply(isLight);
    });
    return action;
}

bool EditorWindow::WantsLight()
{
    return QSettings().value(QLatin1String(kLight)).toBool();
}

void EditorWindow::AddToolBar()
{
    auto* bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("toolbar"));
    bar->setMovable(false);
    KeepTranslated(bar, [bar] { bar->setWindowTitle(tr("Tool bar")); });
    for (QAction* action : m_files->Actions()) {
        if (action && !action->menu())
            bar->addAction(action);
    }
    bar->addSeparator();
    bar->addActions({m_undo, m_redo});
    addToolBar(bar);
}

// ---- What is shown

void EditorWindow::ShowTitle()
{
    const QString path = m_project.Path();
    const QString name = path.isEmpty() ? tr("Untitled") : QFileInfo(path).fileName();
    setWindowTitle(QStringLiteral("%1[*] – CommonLib Editor").arg(name));
}

void EditorWindow::ShowRemarks()
{
    const QStringList remarks = m_project.Remarks();
    if (!remarks.isEmpty())
        statusBar()->showMessage(
            tr("%n remark(s) on the file, in the log", nullptr, remarks.size()), kMessageTime);
}

void EditorWindow::ShowPoints()
{
    const auto shown = [](int point) {
        return point == Transport::kNoPoint ? std::nullopt : std::optional<int>(point);
    };
    const Transport& playing = m_playerPanel->Playing();
    m_timeline->View()->SetPoints(shown(playing.InPoint()), shown(playing.OutPoint()));
}

// ---- What menus do

void EditorWindow::ShowExport()
{
    if (!m_export)
        m_export = new ExportDialog(m_project, m_player, *m_films, this);
    const Transport& playing = m_playerPanel->Playing();
    if (playing.InPoint() != Transport::kNoPoint && playing.OutPoint() != Transport::kNoPoint)
        m_export->SetRange(playing.InPoint(), playing.OutPoint());
    m_export->show();
    m_export->raise();
    m_export->activateWindow();
}

/// By another one in its place.
void EditorWindow::TranslateExport()
{
    if (!m_export)
        return;
    const ExportDialog* former = std::exchange(m_export, nullptr);
    m_export = new ExportDialog(m_project, m_player, *m_films, this);
    m_export->TakeChoices(*former);
    m_export->setGeometry(former->geometry());
    m_export->setVisible(former->isVisible());
    delete former;
}

void EditorWindow::SwitchPreview()
{
    FPreViewRenderHelper* preview = m_project.Timeline()->GetPreViewRenderHelper();
    if (preview->IsCaching())
        return preview->StopRender();
    if (preview->GetCacheDirectory() != m_previewFolder &&
        !preview->SetCacheDirectory(m_previewFolder))
        return statusBar()->showMessage(tr("%1 cannot be written to.").arg(m_previewFolder),
                                        kMessageTime);
    preview->StartRender();
}

void EditorWindow::CutRange(const QString& text, HRESULT (INLEEditing::*edit)(int, int, int))
{
    const int in = m_playerPanel->Playing().InPoint();
    const int out = m_playerPanel->Playing().OutPoint();
    if (in == Transport::kNoPoint || out == Transport::kNoPoint)
        return statusBar()->showMessage(tr("Set an in and an out point first."), kMessageTime);
    m_project.Edit(text, [&](INLEEditing& editing) {
        return (editing.*edit)(in, out + 1, NLEEdit_AllLevels);
    });
}

// ---- Beginning and end

void EditorWindow::AddMedia(const QStringList& paths)
{
    QStringList whole;
    for (const QString& path : paths)
        whole << QFileInfo(path).absoluteFilePath();
    m_bin->Add(whole);
}

void EditorWindow::OfferRecovery()
{
    QVector<Autosave::Leftover> leftovers = m_autosave.Leftovers();
    std::sort(leftovers.begin(), leftovers.end(),
              [](const auto& a, const auto& b) { return a.when > b.when; });
    for (const Autosave::Leftover& leftover : leftovers) {
        const QString name =
            leftover.path.isEmpty() ? tr("Untitled") : QFileInfo(leftover.path).fileName();
        QMessageBox box(
            QMessageBox::Question, tr("Recovery"),
            tr("The editor has ended unexpectedly. Changes of %1 until %2 can be opened.")
                .arg(name, QLocale().toString(leftover.when, QLocale::ShortFormat)),
            QMessageBox::Open | QMessageBox::Discard | QMessageBox::Cancel, this);
        const int answer = box.exec();
        if (answer == QMessageBox::Discard)
            Autosave::Discard(leftover);
        // Others are asked for at the next start.
        if (answer == QMessageBox::Open && m_autosave.Recover(leftover))
            return;
    }
}

bool EditorWindow::MayEndFilms()
{
    if (!m_films->IsBusy())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Export"), tr("Films are being written. End that?"),
                    QMessageBox::Yes | QMessageBox::No, this);
    return box.exec() == QMessageBox::Yes;
}

void EditorWindow::closeEvent(QCloseEvent* event)
{
    if (!MayEndFilms() || !m_files->MayLeave())
        return event->ignore();
    QSettings settings;
    settings.setValue(QLatin1String(kGeometry), saveGeometry());
    settings.setValue(QLatin1String(kState), saveState());
    event->accept();
}

void EditorWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        setLocale(QLocale()); // the language's; what is in the window takes it over
        // Not while the dialog is told of it too.
        QMetaObject::invokeMethod(this, &EditorWindow::TranslateExport, Qt::QueuedConnection);
    }
    QMainWindow::changeEvent(event);
}
