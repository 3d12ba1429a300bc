// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFactory.h"

namespace nle {

/// Saves nodes in MLT's XML and opens such documents again.
class DocumentSerialize final : public ComObject<INLEDocumentSerialize>
{
public:
    HRESULT Save(INLETimeline* timeline, const wchar_t* path) override;
    HRESULT Load(const wchar_t* path, INLETimeline** timeline) override;
};

} // namespace nle
