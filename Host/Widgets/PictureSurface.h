// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Widgets/PicturePainter.h"

#include <functional>

class QWidget;

/// A child of \a parent that draws by OpenGL what \a scene gives each time. Null where Qt is built
/// without OpenGL.
QWidget* MakeGlSurface(std::function<PictureScene()> scene, QWidget* parent);
