// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/SoundQueue.h"

#include <chrono>

namespace nle {

/// What playing begins with, so much is rendered while it is paused.
constexpr int kSoundAtFirst = SoundQueue::kRate / 10;
constexpr int kPicturesAtFirst = 4;
/// A picture that is too late is shown in spite of it when none was for as long.
constexpr std::chrono::milliseconds kLongestStill{250};
/// While playing the threads look around as often.
constexpr std::chrono::milliseconds kPlayEvery{20};

} // namespace nle
