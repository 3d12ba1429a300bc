// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Model/Autosave.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Widgets/MediaPlayer.h"

#include <QMainWindow>

#include <functional>

class BinPanel;
class ExportDialog;
class ExportQueue;
class FileCommands;
class PlayerPanel;
class TimelinePanel;

/// The editor: one project, the panels that show it in docks around the player, menus.
class EditorWindow : public QMainWindow
{
    Q_OBJECT

public:
    struct Paths
    {
        QString autosave; ///< folder of what is not saved yet
        QString log;      ///< file that the log view shows
        QString preview;  ///< folder of rendered previews
    };

    /// Whether the user has chosen the light look.
    static bool WantsLight();

    /// Not without an engine.
    explicit EditorWindow(const Paths& paths);
    ~EditorWindow() override;

    Project& Shown() { return m_project; }
    Selection& Selected() { return m_selection; }
    MediaPlayer& Player() { return m_player; }
    ExportQueue& Films() { return *m_films; }
    FileCommands& Files() { return *m_files; }
    /// Takes media files and folders of them into the bin.
    void AddMedia(const QStringList& paths);
    /// Renders the preview in the background, or stops that.
    void SwitchPreview();
    /// Asks for what runs that crashed have left, the newest first.
    void OfferRecovery();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QDockWidget* AddPanel(Qt::DockWidgetArea area, const char* title, const char* name,
                          QWidget* panel);
    QMenu* AddMenu(const char* title, const QList<QAction*>& actions);
    QAction* AddAction(const char* text, const QKeySequence& keys,
                       const std::function<void()>& act);
    void AddPanels(const Paths& paths);
    void AddMenus();
    void AddToolBar();
    QAction* AddGallerySwitch();
    QAction* AddLightSwitch();
    QAction* AddStep(const char* text, const QKeySequence& keys, bool isUndo);
    void ShowTitle();
    void ShowRemarks();
    void ShowPoints();
    void ShowExport();
    void TranslateExport();
    bool MayEndFilms();
    void CutRange(const QString& text, HRESULT (INLEEditing::*edit)(int, int, int));

    Project m_project;
    Selection m_selection;
    MediaPlayer m_player;
    Autosave m_autosave;
    const QString m_previewFolder;
    FileCommands* m_files;
    PlayerPanel* m_playerPanel;
    BinPanel* m_bin;
    TimelinePanel* m_timeline;
    ExportQueue* m_films;
    ExportDialog* m_export = nullptr; ///< null before it is asked for
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QList<QAction*> m_panelSwitches;
};
