// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/TimelineNode.h"

#include <QString>

#include <utility>
#include <vector>

namespace nle {

/// A filter of a document: the names and values of its properties, the service first.
using DocumentFilter = std::vector<std::pair<QString, QString>>;

/// Filters that show other programs where \a node lies on its parent and how its key frames move
/// it, to the nearest frame. Empty when it lies where its margin mode says. They are written only:
/// a document is read from the node's own settings.
std::vector<DocumentFilter> MotionFilters(const TimelineNode& node);

} // namespace nle
