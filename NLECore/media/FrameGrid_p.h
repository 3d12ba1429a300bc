// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstdint>
#include <vector>

extern "C" {
#include <libavformat/avformat.h>
}

namespace nle {

/// Neither unknown nor negative.
inline bool IsValid(AVRational value)
{
    return value.num > 0 && value.den > 0;
}

/// Rate at which the pictures of a stream are numbered.
struct FrameGrid
{
    AVRational rate{25, 1};
    /// No two pictures have the same number at this rate.
    bool isConstant = false;
};

/// The rate that the container and the first pictures suggest.
FrameGrid DeclaredGrid(const AVStream* stream);

/// Whether the mean rate says that not every frame at \a rate has a picture of its own.
bool HasHoles(const AVStream* stream, AVRational rate);

/// Whether the pictures may stand on another grid than the declared one: their mean rate differs,
/// or is none that anybody records at.
bool HasDoubtfulGrid(const AVStream* stream);

/// The rate at which the \a times of the pictures, in ticks of the stream, are whole frames: the
/// one that libavformat found, the mean, or a usual one. Where none fits, the lowest usual rate at
/// which no two pictures share a frame, at most 60 frames a second.
FrameGrid FindGrid(const AVStream* stream, std::vector<std::int64_t> times);

} // namespace nle
