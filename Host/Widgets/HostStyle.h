// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>

class QLabel;

/// How the host's windows look: the library's dark or light sheet with the host's own rules.
///
/// For the GUI thread, while there is a QApplication.
namespace HostStyle {

/// Has all windows look so, at once; what paints by itself is painted again.
void Apply(bool isLight);
/// Before Apply(): whether the palette is light.
bool IsLight();
/// What stands for a colour of the dark look in the one on show: the same one in the dark look, and
/// in the light one for colours that are light enough for both. Opacity stays.
QColor Shown(const QColor& dark);
/// Has \a label look like the title of a page, somewhat larger than its font is now.
void MakeTitle(QLabel& label);

} // namespace HostStyle
