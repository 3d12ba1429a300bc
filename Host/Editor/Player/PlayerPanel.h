// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Widgets/Symbols.h"

#include <QList>
#include <QWidget>

class MediaPlayer;
class PictureView;
class PlayerScreen;
class PointsBar;
class Project;
class QAction;
class QHBoxLayout;
class QLabel;
class SeekBar;
class TimecodeEdit;
class Transport;

/// The picture and the sound of the project, with what moves the play head and what it marks.
class PlayerPanel : public QWidget
{
    Q_OBJECT

public:
    /// Both have to outlive the panel.
    PlayerPanel(Project& project, MediaPlayer& player, QWidget* parent = nullptr);

    Transport& Playing() const { return *m_transport; }
    /// For a menu, with their keys, which work in the whole window; null between groups. Owned by
    /// the panel.
    QList<QAction*> Actions() const { return m_actions; }
    PictureView* View() const;

private:
    QAction* AddAction(const char* text, const char* keys, void (Transport::*act)());
    QAction* AddSwitch(const char* text, const char* keys);
    void AddActions();
    void AddButton(QHBoxLayout& row, QAction* action, Symbol symbol);
    QWidget* MakePositionRow();
    QWidget* MakeButtonRow();
    void AddSound(QHBoxLayout& row);
    void ShowState();
    void ShowPosition(int frame);
    void ShowProject();
    void ShowPoints();
    void SetFullScreen(bool on);

    Project& m_project;
    MediaPlayer& m_player;
    Transport* m_transport;
    PlayerScreen* m_screen;
    PointsBar* m_points;
    SeekBar* m_seek;
    TimecodeEdit* m_timecode;
    QLabel* m_length;

    QList<QAction*> m_actions;
    QAction* m_play = nullptr;
    QAction* m_stepBack = nullptr;
    QAction* m_stepForward = nullptr;
    QAction* m_inPoint = nullptr;
    QAction* m_outPoint = nullptr;
    QAction* m_marker = nullptr;
    QAction* m_loop = nullptr;
    QAction* m_safeAreas = nullptr;
    QAction* m_fullScreen = nullptr;
    QAction* m_mute = nullptr;
    QWidget* m_fullView = nullptr; ///< while the picture fills the screen
};
