// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"

#include <cstdint>

/// How loud a sound is, after EBU R128.
struct NLELoudnessRecord
{
    double integrated; ///< LUFS; -70 for silence, and for less than 0.4 seconds
    double range;      ///< LU
    double truePeak;   ///< dBTP; -120 for silence
};
static_assert(sizeof(NLELoudnessRecord) == 24, "fixed binary layout");

/// How far a measurement is, on a thread of the engine. \a state is S_FALSE while it runs, \a
/// percent then the part that is done; S_OK when it is whole, E_ABORT when it was cancelled, else
/// why it failed. After any other state than S_FALSE no call comes for this measurement.
using NLELoudnessCallback = void (*)(HRESULT state, int percent, void* userData);

/// The first pass of the effect "loudness"; found on its node. Measured is what reaches the effect:
/// the sound of its clip or composite in its trim range, through the effects of sound that are
/// switched on before it, as two channels at 48,000 samples a second. The second pass is a gain
/// that follows from what is kept, see the parameters of the effect; without a result it is none.
///
/// For the thread that edits; Cancel() for any.
struct INLELoudness : IUnknown
{
    static constexpr _GUID Iid = {
        0x71D4A2C6, 0x0E5B, 0x4B93, {0x8F, 0x2A, 0xC6, 0x1D, 0x37, 0x85, 0x4E, 0x90}};

    /// Starts to measure in the background, as the clip is now; a measurement that runs is
    /// cancelled. \a callback may be null. E_FAIL for an effect that no clip carries. The last
    /// reference to the node cancels, and no call comes afterwards.
    virtual HRESULT Measure(NLELoudnessCallback callback, void* userData) = 0;
    /// S_FALSE when nothing is measured; does not wait.
    virtual HRESULT Cancel() = 0;
    /// Puts what was measured into the parameters of the effect, where clones and documents keep
    /// it. S_FALSE, and nothing changed, when nothing was measured since.
    virtual HRESULT Apply() = 0;
    /// What the parameters hold; S_FALSE when that is no result.
    virtual HRESULT GetResult(NLELoudnessRecord* record) = 0;
};
