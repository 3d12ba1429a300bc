// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QPainter;
class QRect;

/// The dark look that every sheet of the host shares. Measures are pixels.
namespace SheetStyle {

constexpr int kWidth = 1920;
constexpr int kMargin = 56;
constexpr int kHeaderHeight = 108; ///< title and subtitle, below the upper margin
constexpr int kGap = 20;
constexpr int kContentWidth = kWidth - 2 * kMargin;

const QColor kBackground(0x16, 0x18, 0x1c);
const QColor kPanel(0x0d, 0x0e, 0x11);
const QColor kLine(0x33, 0x37, 0x3f);
const QColor kText(0xf2, 0xf3, 0xf5);
const QColor kFaintText(0x9a, 0xa1, 0xad);
const QColor kAccent(0x4f, 0xa3, 0xff);

/// A sans-serif font of \a pixels height.
QFont TextFont(int pixels, bool strong = false);
/// Paints title and subtitle into the sheet's upper part; text that is too long is cut in the
/// middle.
void PaintHeader(QPainter& painter, const QString& title, const QString& subtitle);
/// Paints a line of text into \a area, cut where it does not fit.
void PaintText(QPainter& painter, const QRect& area, const QFont& font, const QColor& color,
               const QString& text, int alignment);

} // namespace SheetStyle
