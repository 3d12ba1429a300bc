// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentFilter.h"
#include "NLECore/model/DocumentLanes.h"
#include "NLECore/model/MltTransitions.h"
#include "NLECore/model/SourceNodes.h"

#include <QDir>
#include <QXmlStreamWriter>

namespace nle {

class TitleClip;

/// Writes one node and what it holds as MLT XML: a producer for each clip, a playlist for each lane
/// of clips that do not overlap, a tractor for each composite. What a filter or service of the
/// framework can show or sound is written as such, for other programs only.
class MltWriter
{
public:
    /// Media below \a folder is named relative to it, so that document and media can move together.
    MltWriter(QString& text, const QDir& folder);

    void Write(const TimelineNode& root);

private:
    /// Names of the services that were written, by their nodes.
    using Ids = QMap<const TimelineNode*, QString>;

    QString WriteNode(const TimelineNode& node, int order);
    QString WriteComposite(const CompositeNode& node, int order);
    QString WriteProducer(const TimelineNode& node, int order);
    QString WriteBackground(const CompositeNode& node);
    /// \a filters are those of the whole lane.
    /// \a hide is what of the track is off; null: nothing.
    QString WriteLane(const DocumentLane& lane, const Ids& ids, const char* hide,
                      const std::vector<DocumentFilter>& filters);
    QString WriteUnplaced(const std::vector<const TimelineNode*>& clips, const Ids& ids);
    void WriteTrack(const QString& producer, const char* hide);
    void WriteMix(int track);
    void WriteBlend(int track, const DocumentLane& lane, bool isInner);
    void WriteBetween(const MltBetween& between);
    void WriteFilters(const std::vector<DocumentFilter>& filters);
    /// The rest of a started element that stands for something of the node.
    void WriteEffect(const DocumentFilter& effect);
    void WriteProfile(const TimelineNode& root);
    /// What is the node's own, and the filters that stand for some of it.
    void WriteCommon(const TimelineNode& node, int order);
    void WriteMedia(const MediaClip& clip);
    void WriteText(const TextClip& clip);
    void WriteTitle(const TitleClip& clip);
    /// A service of \a length frames; returns its id.
    QString StartService(const char* element, std::int64_t length);
    void StartTransition(const char* service, int track);
    void Property(const QString& name, const QString& value);
    void EntryOf(const QString& producer, const NLERange& range);
    QString NewId(const char* prefix);

    QXmlStreamWriter m_xml;
    const QDir m_folder;
    int m_lastId = 0;
};

} // namespace nle
