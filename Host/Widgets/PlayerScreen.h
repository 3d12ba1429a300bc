// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class LevelMeter;
class MediaPlayer;
class PictureView;

/// What a player shows and sounds: its picture with the meter beside it.
class PlayerScreen : public QWidget
{
    Q_OBJECT

public:
    explicit PlayerScreen(QWidget* parent = nullptr);

    /// Follows \a player, which stays the caller's; once.
    void SetPlayer(MediaPlayer* player);
    PictureView* View() const { return m_view; }
    LevelMeter* Meter() const { return m_meter; }

private:
    PictureView* m_view;
    LevelMeter* m_meter;
};
