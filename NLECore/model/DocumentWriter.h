// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/SourceNodes.h"

#include <QDir>
#include <QXmlStreamWriter>

namespace nle {

/// Writes one node and what it holds as MLT XML.
class DocumentWriter
{
public:
    /// Media below \a folder is named relative to it, so that document and media can move together.
    DocumentWriter(QString& text, const QDir& folder);

    void Write(const TimelineNode& root);

private:
    /// Clips that do not overlap, in order of position.
    struct Lane
    {
        int level = 0;
        std::int64_t end = 0;
        std::vector<std::pair<const TimelineNode*, QString>> clips;
    };

    QString WriteNode(const TimelineNode& node, int order);
    QString WriteComposite(const CompositeNode& node, int order);
    void WriteProducer(const QString& id, const TimelineNode& node, int order);
    void WriteBackground(const QString& id, const CompositeNode& node);
    QString WriteLane(const Lane& lane);
    QString WriteUnplaced(const Lane& lane);
    void WriteTrack(const QString& producer, bool hidden);
    void WriteTransition(const char* service, int track);
    void WriteMotion(const TimelineNode& node);
    void WriteProfile(const TimelineNode& root);
    void WriteCommon(const TimelineNode& node, QLatin1String kind, int order);
    void WriteMedia(const MediaClip& clip);
    void Property(const QString& name, const QString& value);
    void EntryOf(const QString& producer, const NLERange& range);
    QString NewId(const char* prefix);

    QXmlStreamWriter m_xml;
    const QDir m_folder;
    int m_lastId = 0;
};

} // namespace nle
