// SPDX-License-Identifier: LGPL-2.1-or-later
// Which of the implementations for x86 this processor and its system can run.
#include "CommonLib/aes/AesCipher_x86_p.h"

#include <array>

#ifdef _MSC_VER
#include <intrin.h>
#else
#include <cpuid.h>
#endif

namespace AesCipher {

namespace {

struct Registers
{
    std::uint32_t a, b, c, d;
};

// All 0 for a leaf that the processor does not have.
Registers CpuId(std::uint32_t leaf)
{
    Registers r{};
#ifdef _MSC_VER
    int values[4];
    __cpuid(values, 0);
    if (leaf > static_cast<std::uint32_t>(values[0]))
        return r;
    __cpuidex(values, static_cast<int>(leaf), 0);
    r = {std::uint32_t(values[0]), std::uint32_t(values[1]), std::uint32_t(values[2]),
         std::uint32_t(values[3])};
#else
    __get_cpuid_count(leaf, 0, &r.a, &r.b, &r.c, &r.d);
#endif
    return r;
}

// The vector state that the system saves for a thread. Only with OSXSAVE.
std::uint64_t SavedState()
{
#ifdef _MSC_VER
    return _xgetbv(0);
#else
    std::uint32_t low = 0;
    std::uint32_t high = 0;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return (std::uint64_t(high) << 32) | low;
#endif
}

constexpr bool Has(std::uint64_t flags, std::uint64_t wanted)
{
    return (flags & wanted) == wanted;
}

constexpr std::uint32_t Bit(int number)
{
    return std::uint32_t(1) << number;
}

// Leaf 1, register c.
constexpr std::uint32_t kSsse3 = Bit(9);
constexpr std::uint32_t kSse41 = Bit(19);
constexpr std::uint32_t kAes = Bit(25);
constexpr std::uint32_t kOsxsave = Bit(27);
constexpr std::uint32_t kAvx = Bit(28);
// Leaf 7, registers b and c.
constexpr std::uint32_t kAvx2 = Bit(5);
constexpr std::uint32_t kAvx512 = Bit(16) | Bit(31); // F and VL
constexpr std::uint32_t kVaes = Bit(9);
// Saved state.
constexpr std::uint32_t kYmm = Bit(1) | Bit(2);
constexpr std::uint32_t kZmm = kYmm | Bit(5) | Bit(6) | Bit(7);

using List = std::array<const Implementation*, 4>; // ends in null

List FindNative()
{
    const Registers basic = CpuId(1);
    const Registers extended = CpuId(7);
    const std::uint64_t saved = Has(basic.c, kOsxsave) ? SavedState() : 0;
    const bool aes = Has(basic.c, kAes | kSsse3 | kSse41);
    const bool vaes = aes && Has(basic.c, kAvx) && Has(extended.b, kAvx2) &&
                      Has(extended.c, kVaes) && Has(saved, kYmm);

    List list{};
    std::size_t count = 0;
    if (vaes && Has(extended.b, kAvx512) && Has(saved, kZmm))
        list[count++] = &kVaes512;
    if (vaes)
        list[count++] = &kVaes256;
    if (aes)
        list[count++] = &kAesNi;
    return list;
}

} // namespace

const Implementation* Native(int index)
{
    static const List list = FindNative();
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < list.size();
    return inside ? list[static_cast<std::size_t>(index)] : nullptr;
}

} // namespace AesCipher
