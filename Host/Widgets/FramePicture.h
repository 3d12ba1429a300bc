// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEFrames.h"

#include <QImage>

/// The valid part of \a frame as an image over the frame's own pixels: nothing is copied, and the
/// image holds the frame for as long as it or a copy of it lives. The pixels are not premultiplied.
///
/// Nobody may draw into the frame meanwhile. Null for a frame that is null, is not prepared, has an
/// empty valid rectangle or does not live in system memory. For any thread; the frame is released
/// on that of the last image.
QImage PictureOf(NLEComPtr<INLEVideoFrame> frame);
