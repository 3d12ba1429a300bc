// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <string>

/// Calls of the C library on the files below one folder, whichever module makes them, or for
/// threads and memory, that are counted and one of which fails or ends the process.
namespace FaultCalls {

enum class How
{
    Fail, ///< once: no room for what writes, no rights for what opens, an error of the device else
    Kill, ///< as a loss of power would, but for what the system had been given already
    Vanish, ///< the folder is removed with all that is in it before the call
    Unnamed ///< files without a name are refused each time, as some file systems do
};

struct Fault
{
    std::string folder; ///< canonical
    /// "open", "read", "write", "sync", "rename", "map", or "any" of these; "thread" and "memory",
    /// which are no file's.
    std::string call;
    int at = 0; ///< the so-manieth, from 1; 0 for none
    How how = How::Fail;
};

/// Counts from here on.
void Begin(const Fault& fault);
/// Counts no more; whether the fault happened.
bool End();

} // namespace FaultCalls
