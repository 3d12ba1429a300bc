// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPalette>

#include <functional>
#include <optional>

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
/// Paints what a button's text stands on.
void PaintPanel(QPainter& painter, const QRect& area, const QPalette& palette, const Panel& panel);
/// Has such a panel painted before all that \a widget paints by itself, while \a panel gives one.
/// For classes that hosts derive from: they get no further virtual operation by it.
void PaintBelow(QWidget& widget, std::function<std::optional<Panel>()> panel);

} // namespace PaletteLook
