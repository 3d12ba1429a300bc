// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/SoundDevice.h"

namespace nle {

std::shared_ptr<SoundSystem> SoundSystem::Start()
{
    qCInfo(lcEngine, "no sound: built without SDL");
    return nullptr;
}

} // namespace nle
