// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>

/// A picture to judge a view by: 16:9, colour bars, a grey wedge, a circle, and a window that is
/// transparent by and by.
QImage PaintTestCard();
