// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/PropertyScope.h"

#include "Host/Widgets/MediaPlayer.h"

int PropertyScope::PlayHead() const
{
    return player.IsOpen() ? player.Position() : 0;
}
