// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QString>

class QFont;
class QWidget;

/// Free functions for the interface's scale and for what is chosen by it. GUI thread only. The
/// system's pixel ratio is found on first use and kept: create the application object before.

/// Scale of the interface on the monitor of \a widget: the system's pixel ratio, corrected by how
/// the monitor's scale differs from the primary one's. At least 1.
///
/// The system's ratio for null and for a widget without a native window.
COMMONLIB_EXPORT float gGetDevicePixelRatio(QWidget* widget);

/// Device pixels for a pixel of \a widget; for null the system's pixel ratio.
COMMONLIB_EXPORT float gGetDevicePixelRatioFor(QWidget* widget);

/// \a path unchanged at a system pixel ratio of 1, else the same with "_2x" before the suffix; one
/// without a folder then begins with "./", and one without a suffix ends in a dot.
COMMONLIB_EXPORT QString gGetResourcePathWithPixelRatio(QString path);

/// The library's own style sheet, for the system's pixel ratio.
COMMONLIB_EXPORT QString gGetCommonLibStyles();

/// Width in pixels for a translated \a text: its own plus \a extra when it is wider than
/// \a minimum, else \a minimum.
COMMONLIB_EXPORT int gGetRetranslateUiTextLenght(QFont font, QString text, int minimum, int extra);
