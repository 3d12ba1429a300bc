// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/MltDocument.h"
#include "NLECore/model/SourceNodes.h"

#include <QDir>

#include <optional>
#include <vector>

namespace nle {

/// What a producer of an MLT document plays.
struct MltSource
{
    enum class Kind
    {
        Unknown, ///< a service that there is no clip for
        Media,
        Color,
        Text
    };

    Kind kind = Kind::Unknown;
    QString service;  ///< its name in the document
    QString resource; ///< file, colour or text
    QString family;   ///< of a text
    double speed = 1; ///< below 0 backwards
    bool keepsPitch = false;
    std::optional<int> frozen; ///< the one frame that shows
};

MltSource SourceOf(const MltService& producer);
/// What a document says of \a clip when this engine writes it; files below \a folder by their
/// names relative to it.
MltSource SourceOf(const MediaClip& clip, const QDir& folder);

/// Which streams of its file a producer plays.
struct MltStreams
{
    int video = -1;         ///< index; -1: the file's preferred one
    std::vector<int> audio; ///< indexes, summed; none: the file's preferred one
    bool isHidden = false;  ///< no picture shows
    bool isSilent = false;

    friend bool operator==(const MltStreams& a, const MltStreams& b)
    {
        return a.video == b.video && a.audio == b.audio && a.isHidden == b.isHidden &&
               a.isSilent == b.isSilent;
    }
};

/// What "video_index" and "audio_index" in \a properties choose, or "vstream" and "astream", which
/// count streams of their type alone, of the producer's file \a media; -1 is none. The preferred
/// streams, and those that the file has not, count as not chosen.
MltStreams StreamsOf(const DocumentFields& properties, const MediaInfo& media);
/// The indexes of the streams that are chosen in \a clip, of one each, as a document says them.
DocumentFields IndexesOf(const MediaClip& clip);

/// A colour as MLT writes it: "#aarrggbb", "#rrggbb", "0xrrggbbaa" or a name; black when it is
/// none.
std::uint32_t ParseMltColor(const QString& text);

} // namespace nle
