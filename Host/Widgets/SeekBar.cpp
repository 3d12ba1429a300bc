// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/SeekBar.h"

#include "Host/Widgets/MediaPlayer.h"

namespace {

constexpr int kHeight = 18;

}

SeekBar::SeekBar(QWidget* parent) : ToolBarSlider(parent, Qt::Horizontal)
{
    setMinimumHeight(kHeight);
    setRange(0, 0);
    connect(this, &ToolBarSlider::startValueChanged, this,
            [this] { m_wasPlaying = m_player && m_player->IsPlaying(); });
    connect(this, &ToolBarSlider::startDrag, this, [this] { m_isDragging = true; });
    connect(this, &ToolBarSlider::endDrag, this, [this] { m_isDragging = false; });
    connect(this, &ToolBarSlider::valueChanged, this,
            [this](double value) { Choose(qRound(value)); });
    connect(this, &ToolBarSlider::endValueChanged, this, &SeekBar::PlayOn);
}

void SeekBar::SetPlayer(MediaPlayer* player)
{
    m_player = player;
    const auto setLength = [this](int frames) { setRange(0, float(qMax(0, frames - 1))); };
    const auto setFrame = [this](int frame) { setValue(float(frame), false); };
    connect(player, &MediaPlayer::LengthChanged, this, setLength);
    connect(player, &MediaPlayer::PositionChanged, this, setFrame);
    setLength(player->Length());
    setFrame(player->Position());
}

void SeekBar::Choose(int frame)
{
    Q_EMIT FrameChosen(frame);
    if (m_player)
        m_isDragging ? m_player->Scrub(frame) : m_player->Seek(frame);
}

void SeekBar::PlayOn()
{
    if (m_player && m_wasPlaying && !m_player->IsPlaying())
        m_player->Play(m_player->Rate());
}
