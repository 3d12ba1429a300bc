// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/BaseLog.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "tests/support/ScriptedEngine.h"

namespace Scripted {

/// Releases the library's singletons and the script. Gives the names of the objects that are left:
/// those that the test holds itself, and leaks.
inline QStringList EndSession()
{
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    ReleseGlobalLogInstance();
    Script::Get().Reset();
    return Script::Get().liveObjects;
}

} // namespace Scripted
