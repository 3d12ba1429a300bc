// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Timeline/LevelLayout.h"
#include "Host/Editor/Timeline/TimelineTool.h"

#include <QList>
#include <QWidget>

struct ClipRow;
class LevelHeaders;
class MediaPlayer;
class Project;
class QAction;
class QScrollBar;
class Selection;
class TimelineActions;
class TimelineCommands;
class TimelineModel;
class TimelineRuler;
class TimelineView;

/// The timeline of an editor: ruler, heads of the levels, clips.
class TimelinePanel : public QWidget
{
    Q_OBJECT

public:
    /// All but the parent outlive the panel. Its play head is the player's, which it moves too.
    TimelinePanel(Project& project, Selection& selection, MediaPlayer& player,
                  QWidget* parent = nullptr);
    ~TimelinePanel() override;

    enum class ActionGroup
    {
        Clipboard,
        Edits,
        Selection,
        Moves, ///< of clips, and of the play head to cuts
        Tools,
        View
    };
    /// For the menus of a window. Their keys count while the keyboard is with the panel.
    QList<QAction*> Actions() const;
    /// Those of \a groups, with null between groups.
    QList<QAction*> Actions(std::initializer_list<ActionGroup> groups) const;
    /// A clip in words: name, level, frames.
    static QString Described(const ClipRow& row);
    /// Shows the whole project.
    void Fit();

    TimelineView* View() const { return m_view; }
    TimelineRuler* Ruler() const { return m_ruler; }

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void AddEditActions();
    void AddMoveActions();
    void AddToolActions();
    void AddViewActions();
    void LayOut();
    void ConnectRuler();
    void ConnectScrollBars();
    void ConnectModel();
    void SetTexts();
    void SetTool(TimelineTool tool);
    void FollowProject();
    void FollowModel();
    void FollowLevels();
    void SetHeight(int level, int pixels);
    /// Those that the project keeps.
    void ReadHeights();
    void FollowScale();
    void FollowSelection();
    void ShowMenu(const QPoint& global);
    void MovePlayHead(int frame);
    void KeepInSight(int frame);
    void SetPlayHead(int frame);
    void ZoomBy(float steps);
    void ChangeHeights(int pixels);
    void AskCached();
    void ReadCached();

    Project& m_project;
    Selection& m_selection;
    MediaPlayer& m_player;
    LevelLayout m_levels;
    TimelineModel* m_model;
    TimelineCommands* m_commands;
    TimelineActions* m_actions;
    TimelineRuler* m_ruler;
    LevelHeaders* m_headers;
    TimelineView* m_view;
    QScrollBar* m_across;
    QScrollBar* m_down;
    bool m_isFitPending = true; ///< until the panel has a size
    bool m_isScrubbing = false;
};
