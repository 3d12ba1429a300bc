// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComMemory.h"
#include "Com/ComTypes.h"
#include "Com/WideText.h"

#include <QByteArray>

#include <cstdint>
#include <cstdio>
#include <memory>

/// Text that an out-parameter delivered; freed at the end.
struct TaskMemoryDeleter
{
    void operator()(wchar_t* text) const { CoTaskMemFree(text); }
};
using TaskText = std::unique_ptr<wchar_t, TaskMemoryDeleter>;

/// A result as the messages print it: its 32 bits, which a 64-bit long would sign-extend.
inline unsigned long ResultBits(HRESULT result)
{
    return static_cast<std::uint32_t>(result);
}

/// Wide text for a message. A printf of wide text would end at a character that the character set
/// of the process lacks.
inline QByteArray MessageText(const wchar_t* text)
{
    return FromWide(text).toLocal8Bit();
}
