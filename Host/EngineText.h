// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "Com/WideText.h"

#include <QString>

#include <array>

/// Room for the path of a file, with the terminating zero.
constexpr int kEnginePath = 4096;

/// The text that a call with a buffer and its capacity gives; empty when it fails. Longer texts are
/// cut to \a Capacity characters with the terminating zero.
template <int Capacity = 256, typename Call>
QString EngineText(Call call)
{
    std::array<wchar_t, Capacity> buffer = {};
    return SUCCEEDED(call(buffer.data(), Capacity)) ? FromWide(buffer) : QString();
}
