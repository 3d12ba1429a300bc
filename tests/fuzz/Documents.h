// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Fuzz.h"
#include "NLECore/model/CompositeNode.h"

#include <QDir>

#include <numeric>

namespace fuzz {

/// Nodes of a timeline, itself included.
inline int CountNodes(const nle::TimelineNode& node)
{
    const auto* composite = dynamic_cast<const nle::CompositeNode*>(&node);
    if (!composite)
        return 1;
    const auto& clips = composite->Clips();
    return std::accumulate(clips.begin(), clips.end(), 1,
                           [](int sum, const auto& clip) { return sum + CountNodes(*clip); });
}

/// A document that can be read is written, and what was written can be read, and is written alike
/// from then on: nothing creeps from one saving to the next.
template <typename Reader, typename Write>
void CheckDocument(const QByteArray& text, Write write)
{
    const QDir folder(Folder());
    const NLEComPtr<nle::TimelineNode> node = Reader(text, folder).Read();
    // More clips only take more time.
    constexpr int mostNodes = 200;
    if (!node || CountNodes(*node) > mostNodes)
        return;
    const QByteArray first = write(*node, folder);
    const NLEComPtr<nle::TimelineNode> again = Reader(first, folder).Read();
    Require(bool(again), "a document that was written can be read");
    const QByteArray second = write(*again, folder);
    const NLEComPtr<nle::TimelineNode> once = Reader(second, folder).Read();
    Require(bool(once), "a document that was written twice can be read");
    Require(write(*once, folder) == second, "a document is written as it was read");
}

} // namespace fuzz
