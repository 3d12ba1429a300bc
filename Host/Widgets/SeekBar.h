// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/ToolBarSlider.h"

#include <QPointer>

class MediaPlayer;

/// The play head of a player as a slider, from left to right: dragging it scrubs, a press beside it
/// and keys seek. What was playing before goes on afterwards.
class SeekBar : public ToolBarSlider
{
    Q_OBJECT

public:
    explicit SeekBar(QWidget* parent = nullptr);

    /// Follows \a player, which stays the caller's; once.
    void SetPlayer(MediaPlayer* player);

Q_SIGNALS:
    /// The user moved the play head; the player tells its position later.
    void FrameChosen(int frame);

private:
    void Choose(int frame);
    void PlayOn();

    QPointer<MediaPlayer> m_player;
    bool m_wasPlaying = false; ///< when the user took the play head
    bool m_isDragging = false;
};
