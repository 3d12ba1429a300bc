// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFactory.h"

namespace nle {

/// The engine's own settings, one set for the process; all objects show the same.
class SystemConfig final : public ComObject<INLESystemConfig>
{
public:
    HRESULT GetProperties(INLEProperties** properties) override;
};

} // namespace nle
