// SPDX-License-Identifier: LGPL-2.1-or-later
// Cue sheets.
#include "Fuzz.h"
#include "NLECore/media/CueSheet.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    nle::ParseCueSheet(QByteArray(reinterpret_cast<const char*>(data), int(size)));
    return 0;
}
