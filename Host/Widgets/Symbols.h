// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

/// The pictures of buttons, painted so that they are sharp at any scale.
enum class Symbol
{
    Play,
    Pause,
    Stop,
    StepBack,
    StepForward,
    Film,
    Music,
    Title,
    Star,
    Import,
    InPoint,
    OutPoint,
    Marker,
    Loop,
    FullScreen,
    SafeAreas,
    Sound
};

/// Drawn anew for every size; dimmed on a disabled widget.
QIcon SymbolIcon(Symbol symbol, const QColor& color);

/// \a side in device-independent pixels, for a screen of \a scale.
QPixmap SymbolPixmap(Symbol symbol, const QColor& color, int side, qreal scale);
