// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/MltDocument.h"
#include "NLECore/model/SourceNodes.h"

#include <QDir>

#include <optional>

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

/// A colour as MLT writes it: "#aarrggbb", "#rrggbb", "0xrrggbbaa" or a name; black when it is
/// none.
std::uint32_t ParseMltColor(const QString& text);

} // namespace nle
