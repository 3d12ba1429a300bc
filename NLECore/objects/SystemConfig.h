// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLESystemFile.h"

namespace nle {

/// The engine's own settings, one set for the process; all objects show the same.
class SystemConfig final : public ComObject<INLESystemConfig, INLESystemFile>
{
public:
    HRESULT GetProperties(INLEProperties** properties) override;
    HRESULT Save(const wchar_t* path) override;
    HRESULT Load(const wchar_t* path) override;
};

} // namespace nle
