// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFactory.h"

namespace nle {

/// Which clips the graphics hardware decodes; NLEHardware_Never at first. Any thread. Setting it
/// forgets which devices could not be opened.
void SetHardwareDecoding(NLEHardwareDecoding clips);
NLEHardwareDecoding HardwareDecoding();

/// Whether a clip is to be decoded by hardware; \a isAsked: its own setting says GPU first.
bool IsHardwareWanted(bool isAsked);

/// Closes the devices that no decoder uses.
void ForgetDevices();

} // namespace nle
