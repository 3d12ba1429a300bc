// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QPainter;
class QRect;

/// The dark look that every sheet of the host shares. Measures are pixels.
namespace SheetStyle {

constexpr int Width = 1920;
constexpr int Margin = 56;
constexpr int HeaderHeight = 108; ///< title and subtitle, below the upper margin
constexpr int Gap = 20;
constexpr int ContentWidth = Width - 2 * Margin;

const QColor Background(0x16, 0x18, 0x1c);
const QColor Panel(0x0d, 0x0e, 0x11);
const QColor Line(0x33, 0x37, 0x3f);
const QColor Text(0xf2, 0xf3, 0xf5);
const QColor FaintText(0x9a, 0xa1, 0xad);
const QColor Accent(0x4f, 0xa3, 0xff);

/// A sans-serif font of \a pixels height.
QFont TextFont(int pixels, bool strong = false);
/// Paints title and subtitle into the sheet's upper part; text that is too long is cut in the
/// middle.
void PaintHeader(QPainter& painter, const QString& title, const QString& subtitle);
/// Paints a line of text into \a area, cut where it does not fit.
void PaintText(QPainter& painter, const QRect& area, const QFont& font, const QColor& color,
               const QString& text, int alignment);

} // namespace SheetStyle
