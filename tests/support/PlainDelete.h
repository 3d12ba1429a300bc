// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstdlib>
#include <new>

// Gives back what a program's own operators new took from malloc. Modules take these, as the
// executable's come first. For one source of a program.
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*bytes*/) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t /*bytes*/) noexcept
{
    std::free(memory);
}
