// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/TimelineNode.h"

#include <QLatin1String>

#include <algorithm>

/// What writer and reader of documents agree on.
///
/// A document is MLT XML: a producer for each clip, a playlist for each lane of clips that do not
/// overlap, a tractor for each composite. What MLT has no place for is kept in properties whose
/// names begin with "nle:"; other programs ignore them. Their names and texts are encoded, so that
/// every text comes back; a property of MLT stands as it is, and where XML cannot carry it, its
/// text is encoded once more under "nle:exact:".
namespace nle::document {

inline const QLatin1String kOwnPrefix("nle:");
/// Followed by the name of a property of MLT; holds as long as that one says the same.
inline const QLatin1String kExactPrefix("nle:exact:");
inline const QLatin1String kKind("nle:kind");
inline const QLatin1String kOrder("nle:order");
inline const QLatin1String kRange("nle:range");
inline const QLatin1String kRate("nle:rate");
inline const QLatin1String kSize("nle:size");
inline const QLatin1String kAudio("nle:audio");
inline const QLatin1String kDecoder("nle:decoder");
inline const QLatin1String kBagPrefix("nle:bag:");
/// Followed by the key of a project's context.
inline const QLatin1String kContextPrefix("nle:context:");

inline const QLatin1String kProject("project");
inline const QLatin1String kComposite("composite");
inline const QLatin1String kMedia("media");
inline const QLatin1String kColor("color");
inline const QLatin1String kText("text");
/// The empty track below all others.
inline const QLatin1String kBackground("background");
/// A playlist of clips that do not show: disabled ones and ones of no length.
inline const QLatin1String kUnplaced("unplaced");

/// Where a clip stands on a playlist: MLT has no place before frame 0.
struct Placement
{
    std::int64_t position;
    NLERange range;

    friend bool operator==(const Placement& a, const Placement& b)
    {
        return a.position == b.position && a.range.in == b.range.in && a.range.out == b.range.out;
    }
};

/// The part of a clip that lies at or after frame 0 of its parent.
inline Placement VisiblePart(int position, const NLERange& range)
{
    const std::int64_t cut = std::max<std::int64_t>(0, -std::int64_t(position));
    return {position + cut, {int(std::min<std::int64_t>(range.in + cut, INT32_MAX)), range.out}};
}

} // namespace nle::document
