// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPalette>

class QPainter;
class QRect;
class QWidget;

/// How widgets look where no style sheet says so: shapes in colours of the palette.
namespace PaletteLook {

/// The sheets that every button, and every state button, has of its own.
constexpr const char* kButtonSheet = "QPushButton{border:0px;}";
constexpr const char* kStateButtonSheet = "BaseStateButton{background-color:rgb(0,0,0, 0)}";

/// Whether a rule of any sheet says how \a widget looks.
bool HasRule(const QWidget& widget);
/// Whether the application, \a widget or one that it lies in has a sheet, those above left aside.
bool HasSheet(const QWidget& widget);

/// \a part of the way from the colour of one role to that of another.
QColor Mixed(const QPalette& palette, QPalette::ColorRole from, QPalette::ColorRole to,
             double part);
bool IsDark(const QPalette& palette);

struct Panel
{
    bool isFlat;    ///< nothing shows until it is pointed at
    bool isHovered; ///< the mouse is on it
    bool isPressed;
    bool isChecked;
    bool isFocused;
};
/// Paints what a button's text stands on: on the palette's highlight while it is checked, so that
/// the text needs the colour that goes with it.
void PaintPanel(QPainter& painter, const QRect& area, const QPalette& palette, const Panel& panel);

} // namespace PaletteLook
