// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// Mixer strips of a timeline, one a track.
struct INLEMixerSetting : IUnknown
{
    static constexpr _GUID Iid = {
        0xE6CC159E, 0x7DDD, 0x4876, {0xA0, 0x61, 0xC5, 0xE5, 0x1D, 0x22, 0x0E, 0xCF}};

    virtual HRESULT GetParam(int index, tagMixerParam* param) = 0; ///< of the level of that number
    virtual HRESULT SetParam(int index, const tagMixerParam* param) = 0;
};
