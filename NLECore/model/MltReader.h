// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentNodes.h"
#include "NLECore/model/MltDocument.h"
#include "NLECore/model/MltSource.h"

namespace nle {

/// Reads a node from MLT XML, written here or by another editor.
///
/// What plays is the last service of the document, as in the framework itself. Of a foreign
/// document the clips on its tracks are taken: media files, colours and texts, with what of their
/// filters there are settings for. Nothing in the document is run; what is left out is remarked.
class MltReader
{
public:
    /// Relative media names start from \a folder.
    MltReader(const QByteArray& text, const QDir& folder);

    /// The document's root node; null on failure.
    NLEComPtr<TimelineNode> Read();
    /// What was wrong.
    QString Error() const { return m_error; }
    const DocumentRemarks& Remarks() const { return m_nodes.remarks; }

private:
    /// Where the clips of a track go to.
    struct Track
    {
        std::vector<PlacedNode>& clips;
        int level;
        int index;    ///< by which transitions name it
        QString hide; ///< as in MltItem
    };

    /// The service that \a root only wraps, or itself.
    int Unwrapped(int root) const;
    /// Services that \a root and what it holds need.
    std::vector<int> Reachable(int root) const;
    void DescribeMedia(const std::vector<int>& services);
    void MeasureServices();
    std::int64_t LengthOf(const MltService& service) const;
    /// Frames that an item shows of its service.
    NLERange RangeOf(const MltItem& item) const;

    NLEComPtr<TimelineNode> Make(int index, bool isRoot);
    NLEComPtr<TimelineNode> MakeProducer(const MltService& service);
    NLEComPtr<TimelineNode> MakeMedia(const MltSource& source, const MltService& service);
    static void TakeStreams(const MltService& service, MediaClip& clip);
    void KeepPitch(const QString& name, TimelineNode& node);
    NLEComPtr<TimelineNode> MakeComposite(const MltService& service, bool isRoot);
    void ReadTrack(const MltItem& item, bool isLowest, CompositeNode& node, Track track);
    void ReadPlaylist(const MltService& playlist, const Track& track);
    void PlaceEntry(const MltItem& item, std::int64_t position, bool isUnplaced,
                    const Track& track);
    void TakeFilters(const MltService& service, const MltItem* item, TimelineNode& node);
    void TakeHidden(const MltService& service, const std::vector<PlacedNode>& clips,
                    CompositeNode& node) const;
    void TakeStrip(const std::vector<MltEffect>& filters, const QString& name, int level,
                   CompositeNode& node);
    /// A transition between clips of one level, which overlap where it is.
    struct Found
    {
        NLERange range; ///< of the parent
        int lower;      ///< tracks
        int upper;

        friend bool operator==(const Found& a, const Found& b)
        {
            return a.range.in == b.range.in && a.range.out == b.range.out && a.lower == b.lower &&
                   a.upper == b.upper;
        }
    };

    /// Transitions between the clips from the place \a first on; they are added to \a clips.
    void TakeTransitions(const MltService& service, size_t first, std::vector<PlacedNode>& clips);
    /// False when there is nothing here that shows it.
    bool TakeTransition(const MltEffect& transition, const PlacedNode* first,
                        const PlacedNode* last);
    /// The transition that shows a `luma` between clips of one level; null where it is another one.
    NLEComPtr<TimelineNode> MakeTransition(const MltEffect& luma, const Found& found,
                                           const PlacedNode* first, const PlacedNode* last);
    Found FoundOf(const MltEffect& transition) const;
    /// Whether a tractor is a track of playlists and not a picture of its own.
    bool IsTrack(const MltService& service) const;
    bool IsBlack(const MltService& service) const;
    /// What remarks call a service.
    QString NameOf(const MltService& service) const;
    std::int64_t Frames(const QString& text, std::int64_t preset) const;

    const QByteArray m_text;
    MltDocument m_document;
    DocumentNodes m_nodes;
    QString m_error;
    std::vector<std::int64_t> m_lengths; ///< of the services, in frames
    int m_depth = 0;
};

} // namespace nle
