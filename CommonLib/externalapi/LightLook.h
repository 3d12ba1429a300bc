// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QColor>
#include <QString>

/// The light counterpart of the look that gGetCommonLibStyles() gives, which is dark.

/// The library's style sheet for light windows: the same rules as gGetCommonLibStyles() in the
/// colours of ToLightColor().
COMMONLIB_EXPORT QString GetCommonLibLightStyles();

/// What stands in the light look for \a dark, a colour of the dark one; \a dark itself when it is
/// none. Opacity stays.
COMMONLIB_EXPORT QColor ToLightColor(const QColor& dark);

/// A sheet that a host has written for the dark look, in the colours of the light one: each that is
/// written as "#rrggbb" is replaced.
COMMONLIB_EXPORT QString ToLightStyles(const QString& dark);
