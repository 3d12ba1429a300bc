// SPDX-License-Identifier: LGPL-2.1-or-later
// Colour tables, and colours looked up in them.
#include "Fuzz.h"
#include "NLECore/media/CubeTable.h"

#include <limits>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto table =
        nle::CubeTable::Parse(QByteArray(reinterpret_cast<const char*>(data), int(size)));
    if (!table)
        return 0;
    fuzz::Require(table->Size() >= 2, "a table has a side");
    for (const float value :
         {-1.0F, 0.0F, 0.3F, 1.0F, 1e30F, std::numeric_limits<float>::quiet_NaN()})
        table->At(value, 1 - value, value / 2);
    return 0;
}
