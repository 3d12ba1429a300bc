// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEPlayer.h"

#include <QWidget>

#include <functional>

class MediaPlayer;
class PictureView;
class PlayerScreen;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class SeekBar;
class ToolBarSlider;

/// Plays a file: the picture with its scales and safe areas, the meter, and what moves through
/// time. A test card shows before anything is opened.
class PlayerPage : public QWidget
{
    Q_OBJECT

public:
    explicit PlayerPage(QWidget* parent = nullptr);

    /// Opens a media file, paused; false when it cannot be played. The first file starts the
    /// engine.
    bool Open(const QString& path);

    /// Owned by the page; the player is null before anything was opened.
    MediaPlayer* Player() const { return m_player; }
    PictureView* View() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QPushButton* AddButton(QHBoxLayout& row, const char* text, QIcon icon, const char* keys,
                           void (PlayerPage::*act)());
    QWidget* MakePositionRow();
    QWidget* MakeButtonRow();
    QWidget* MakePictureRow();
    void AddSound(QHBoxLayout& row);
    void MakePlayer();

    void ChooseFile();
    void TogglePlay();
    void StepBack();
    void StepForward();
    void ShowState();
    void ShowPosition(int frame);
    void Report(std::function<QString()> text);
    double ChosenRate() const;

    MediaPlayer* m_player = nullptr;
    PlayerScreen* m_screen;
    SeekBar* m_seek;
    ToolBarSlider* m_volume;
    QLabel* m_time;
    QLabel* m_report;
    QComboBox* m_rate;
    QPushButton* m_loop;
    QPushButton* m_mute;
    QPushButton* m_play = nullptr;

    std::function<QString()> m_reportText;
    float m_fps = 25;
};
