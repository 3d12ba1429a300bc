// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/PlayerScreen.h"

#include "Host/Widgets/LevelMeter.h"
#include "Host/Widgets/MediaPlayer.h"
#include "Host/Widgets/PictureView.h"

#include <QHBoxLayout>

namespace {

constexpr int kGap = 8;

}

PlayerScreen::PlayerScreen(QWidget* parent)
    : QWidget(parent), m_view(new PictureView(this)), m_meter(new LevelMeter(Qt::Vertical, this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(m_view, 1);
    row->addWidget(m_meter);
}

void PlayerScreen::SetPlayer(MediaPlayer* player)
{
    connect(player, &MediaPlayer::PictureReady, m_view,
            [this](const NLEComPtr<INLEVideoFrame>& picture) {
                if (!m_view->ShowFrame(picture))
                    m_view->ShowPicture({});
            });
    connect(player, &MediaPlayer::StateChanged, m_view, [this](NLEPlayerState state) {
        if (state == NLEPlayer_Closed)
            m_view->ShowPicture({});
    });
    connect(player, &MediaPlayer::LevelsChanged, m_meter, &LevelMeter::SetLevels);
    connect(m_meter, &LevelMeter::ClippingCleared, player, &MediaPlayer::ResetClipping);
}
