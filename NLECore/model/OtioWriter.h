// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentLanes.h"

#include <QByteArray>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

namespace nle {

/// Writes one node and what it holds as OpenTimelineIO's JSON: a track for each lane of clips that
/// do not overlap, and one more for its sound. What the format has no place for stands in the
/// metadata.
class OtioWriter
{
public:
    /// Media below \a folder is named relative to it, so that document and media can move together.
    explicit OtioWriter(const QDir& folder) : m_folder(folder) {}

    QByteArray Write(const TimelineNode& root);

private:
    using Orders = QMap<const TimelineNode*, int>;
    using Clips = std::map<std::int64_t, LaneClip>;

    QJsonObject Timeline(const CompositeNode& node);
    QJsonObject Stack(const CompositeNode& node);
    /// \a joins are those of the clips that meet.
    QJsonObject Track(const Clips& clips, const LaneJoins& joins, const Orders& orders,
                      bool isSound, bool isTwin);
    QJsonObject Unplaced(const std::vector<const TimelineNode*>& clips, const Orders& orders);
    /// A node on a track, with the part of it that shows.
    QJsonObject Item(const TimelineNode& node, const NLERange& range, int order, bool isTwin);
    QJsonObject MediaReference(const TimelineNode& node);
    /// The metadata of a node: what another program kept there, and what is this engine's own.
    QJsonObject Metadata(const TimelineNode& node, int order);

    const QDir m_folder;
};

} // namespace nle
