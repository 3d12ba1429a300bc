// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

#include "CommonLib/system/CommandCapture_p.h"

#include <string>

namespace {

constexpr int kBufferSize = 2048;
constexpr int kLargestRead = 2046; // what follows stays zero and ends the text in any case

} // namespace

QString excuteCmd(void* /*ignored*/, QString commandLine)
{
    CommandCapture command(commandLine);
    if (!command.IsStarted())
        return QString();
    // Not cleared between reads, so that a short piece brings along the older bytes behind it
    // instead of standing alone. Kept: see docs/compatibility.md.
    char buffer[kBufferSize] = {};
    std::string output;
    while (command.Read(buffer, kLargestRead))
        output += buffer;
    return QString::fromLocal8Bit(output.c_str(), static_cast<int>(output.size()));
}
