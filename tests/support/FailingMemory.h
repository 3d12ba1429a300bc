// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "tests/support/PlainDelete.h"

#include <cstdlib>
#include <functional>
#include <new>
#include <optional>

namespace FailingMemory {

/// Allocations that this thread may still make; below 0 no matter how many.
inline thread_local long s_allowed = -1;

/// What \a call gives after \a count allocations; empty for an exception.
inline std::optional<HRESULT> After(long count, const std::function<HRESULT()>& call, bool* ranOut)
{
    std::optional<HRESULT> result;
    s_allowed = count;
    try {
        result = call();
    } catch (...) {
    }
    *ranOut = s_allowed == 0;
    s_allowed = -1;
    return result;
}

} // namespace FailingMemory

// Modules take these, as the executable's come first. For one source of a program.
void* operator new(std::size_t bytes, const std::nothrow_t& /*tag*/) noexcept
{
    if (FailingMemory::s_allowed == 0)
        return nullptr;
    if (FailingMemory::s_allowed > 0)
        --FailingMemory::s_allowed;
    return std::malloc(bytes > 0 ? bytes : 1);
}
void* operator new(std::size_t bytes)
{
    if (void* memory = operator new(bytes, std::nothrow))
        return memory;
    throw std::bad_alloc();
}
void* operator new[](std::size_t bytes)
{
    return operator new(bytes);
}
void* operator new[](std::size_t bytes, const std::nothrow_t& tag) noexcept
{
    return operator new(bytes, tag);
}
