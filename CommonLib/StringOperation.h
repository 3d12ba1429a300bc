// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QString>

class QFont;
class QWidget;

/// Operations on texts and on the widths they take. Widths are in pixels, by the metrics of a font
/// on the primary screen.
class COMMONLIB_EXPORT StringOperation
{
public:
    /// Whether two texts are equal without regard to case.
    static bool SameText(const QString& left, const QString& right);
    /// The decimal value of \a text, or \a defaultValue when it is not a number that fits.
    static int StrToInt(const QString& text, int defaultValue);
    /// A new random UUID: 38 characters with braces, 36 without.
    static QString CreateUUID(bool withoutBraces);

    /// The advance width of \a text.
    static int GetTextTrueLenght(const QFont& font, const QString& text);
    /// \a text cut to \a width, with an ellipsis where \a mode says.
    static QString GetElidedString(const QFont& font, int width, const QString& text,
                                   Qt::TextElideMode mode);
    /// \a left and \a right with the fewest spaces between them that make the whole at least
    /// \a width wide. No spaces when the two are that wide already, when \a right is empty, when
    /// spaces have no width in this font, or when it would take more than 1,048,576 of them.
    static QString GetMenuStringW(const QFont& font, const QString& left, const QString& right,
                                  int width);

    /// \a text with a line break wherever a layout \a width wide wraps it, behind the space that it
    /// wraps at. A text that has a line break already is given unchanged.
    static QString Format2WordWrapString(const QString& text, const QFont& font, int width);
    /// The same with the font and the current width of \a widget, which may be null: then the text
    /// is given unchanged.
    static QString FormatWordWrapString(const QString& text, const QWidget* widget);
};
