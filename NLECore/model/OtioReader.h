// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentNodes.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>

namespace nle {

/// Reads a node from OpenTimelineIO's JSON, written here or by another program.
///
/// Of a foreign document the clips, gaps and nested stacks of its tracks are taken, with linear
/// changes of speed, and the markers, those of tracks as their composite's; names, metadata and
/// transitions are kept as text for the next writing. What is left out is remarked.
class OtioReader
{
public:
    /// Relative media names start from \a folder.
    OtioReader(const QByteArray& text, const QDir& folder);

    /// The document's root node; null on failure.
    NLEComPtr<TimelineNode> Read();
    /// What was wrong.
    QString Error() const { return m_error; }
    const DocumentRemarks& Remarks() const { return m_nodes.remarks; }

private:
    /// Where the items of a track go to.
    struct Target
    {
        std::vector<PlacedNode>& clips;
        int level;
        bool isPictureOff;
        bool isSoundOff;
        bool isEnabled;
    };

    /// What of the document plays.
    QJsonObject RootOf(const QJsonObject& document);
    void ReadRate(const QJsonObject& root, const DocumentFields& properties);
    void DescribeMedia(const QJsonObject& root);

    NLEComPtr<TimelineNode> MakeRoot(const QJsonObject& root);
    NLEComPtr<TimelineNode> MakeItem(const QJsonObject& item);
    NLEComPtr<TimelineNode> MakeClip(const QJsonObject& clip, const DocumentFields& properties);
    NLEComPtr<TimelineNode> MakeMedia(const QJsonObject& clip, const QJsonObject& reference,
                                      const DocumentFields& properties);
    NLEComPtr<TimelineNode> MakeGenerated(const QJsonObject& clip, const QJsonObject& reference,
                                          const DocumentFields& properties);
    NLEComPtr<TimelineNode> MakeComposite(const QJsonObject& stack,
                                          const DocumentFields& properties, bool isRoot);
    static void NameLevels(const QJsonArray& tracks, TimelineNode& node);
    void ReadTracks(const QJsonArray& tracks, std::vector<PlacedNode>& clips);
    void ReadTrack(const QJsonObject& track, Target target);
    void PlaceItem(const QJsonObject& item, double position, double end, const Target& target);
    /// Lets clips that meet at \a cut overlap where a transition is, which it adds unless it stands
    /// elsewhere in the document. False where it is none of ours or the clips have no more
    /// material.
    bool Join(const QJsonObject& transition, TimelineNode& before, TimelineNode& after,
              const Target& target);
    void PlaceTrack(const QJsonObject& track, const Target& target);
    void TakeEffects(const QJsonObject& item, bool isOwn, TimelineNode& node);
    /// Keeps what other programs wrote and the node has no place for.
    void KeepTexts(const QJsonObject& item, bool isOwn, TimelineNode& node);
    void TakeMarkers(const QJsonObject& item, bool isOwn, TimelineNode& node);
    /// How long an item plays, in seconds.
    double DurationOf(const QJsonObject& item) const;
    /// Where the time of the item's file begins, in seconds.
    static double MediaStartOf(const QJsonObject& item, const TimelineNode& node);
    /// What of its material an item leaves out in front, in seconds.
    static double StartOf(const QJsonObject& item, const TimelineNode& node);
    NLERange RangeOf(const QJsonObject& item, const TimelineNode& node, bool isOwn,
                     std::int64_t length) const;
    double Fps() const;

    const QByteArray m_text;
    const QDir m_folder;
    DocumentNodes m_nodes;
    QString m_error;
    int m_depth = 0;
};

} // namespace nle
