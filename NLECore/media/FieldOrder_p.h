// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaFile_p.h"

namespace nle {

/// Progressive, or which field of the picture was taken first.
NLEFieldOrder FieldOrderOf(const AVFrame& frame);
/// Marks \a frame as interlaced.
void MarkFields(AVFrame* frame, bool isTopFirst);
/// Whether pictures of the codec say themselves whether they are interlaced, one by one; then what
/// the container says counts for none of them.
bool MarksEachPicture(AVCodecID codec);

/// The field order that container and head of the stream declare; where they do not, that of the
/// first picture, which is decoded for it if the codec can be interlaced at all. Reading goes on
/// from the start of \a stream then.
NLEFieldOrder FindFieldOrder(MediaFile& file, const AVStream* stream, const QString& path);

} // namespace nle
