// SPDX-License-Identifier: LGPL-2.1-or-later
// Kept wave forms.
#include "Fuzz.h"
#include "NLECore/media/WavePyramid.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr nle::ContentKey key = {1, 2};
    constexpr int stretches = 16;
    const QString path =
        fuzz::Write("wave", QByteArray(reinterpret_cast<const char*>(data), int(size)));
    const auto file = nle::WaveFile::Open(path, key);
    if (!file)
        return 0;
    const auto peaks = file->Peaks(0, file->SampleCount(), stretches);
    fuzz::Require(peaks.empty() || peaks.size() == stretches, "a peak for each stretch");
    file->Peaks(-5, nle::WaveFile::kShortestStep, 1);
    return 0;
}
