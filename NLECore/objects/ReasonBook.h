// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEReasons.h"

namespace nle {

/// Tells the last failure of whatever thread asks. Its own refusals are none.
class ReasonBook final : public ComObject<INLEReasons>
{
public:
    HRESULT GetLast(HRESULT* result, int* reason) override;
    HRESULT GetText(wchar_t* text, int capacity) override;
    HRESULT GetWords(wchar_t* words, int capacity) override;
    HRESULT Forget() override;
    HRESULT GetTitle(int reason, wchar_t* title, int capacity) override;
};

} // namespace nle
