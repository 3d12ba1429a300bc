// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentFilter.h"
#include "NLECore/model/DocumentLanes.h"
#include "NLECore/scene/Transition.h"

#include <map>
#include <vector>

namespace nle {

/// A transition of MLT between two lanes, by their places.
struct MltBetween
{
    DocumentFilter effect;
    int from;
    int to;
};

/// What MLT has for the transitions of a composite. It is written for other programs only: a
/// document is read from the transitions' own texts.
struct MltTransitions
{
    std::vector<MltBetween> between;
    std::map<int, std::vector<DocumentFilter>> onLanes; ///< filters, by the lane's place
};
MltTransitions TransitionsInMlt(const CompositeNode& composite, const DocumentLanes& lanes);

/// A pattern of MLT, by which pixels change.
struct MltPattern
{
    QString resource;
    bool isInverted;
};
/// The pattern that shows a wipe; none for one that MLT has no pattern for, and for what is no
/// wipe.
std::optional<MltPattern> PatternInMlt(const ParameterValues& transition);

/// Whether MLT has a transition of pictures for one between two clips.
bool HasLuma(const ParameterValues& transition);
/// The wipe that a pattern of the framework shows, all else at its preset; none for another name.
std::optional<ParameterValues> WipeOfMlt(const QString& pattern, bool isInverted);

} // namespace nle
