// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <cstddef>
#include <cstdint>

/// The AES block cipher and the inner loops of its modes, once per kind of processor.
///
/// Everything works on whole blocks of 16 bytes; padding, partial blocks and checks of the
/// arguments are the caller's. Nothing allocates or fails.
namespace AesCipher {

constexpr int kBlockSize = 16;
constexpr int kMaxRounds = 14;

constexpr int RoundsFor(int keyWords)
{
    return keyWords + 6;
}

constexpr int ScheduleSize(int rounds)
{
    return (rounds + 1) * kBlockSize;
}

/// The round keys in order of use, as bytes.
struct Schedule
{
    int rounds;
    alignas(kBlockSize) std::uint8_t encryption[ScheduleSize(kMaxRounds)];
    /// Round keys of the equivalent inverse cipher; set by addDecryptionKeys only.
    alignas(kBlockSize) std::uint8_t decryption[ScheduleSize(kMaxRounds)];
};

/// Turns \a blocks blocks at \a in into as many at \a out; the two do not overlap. None is fine.
///
/// \a chain is the block that the next one depends on: the initialisation vector, afterwards what
/// a following call needs to go on (the last cipher text block, in OFB the last of the key
/// stream). ECB does not touch it.
using Transform = void (*)(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in,
                           std::uint8_t* out, std::size_t blocks);

struct Implementation
{
    const char* name;
    /// Reads \a keyWords (4, 6 or 8) times four bytes; sets the rounds and the encryption keys.
    void (*expandKey)(const std::uint8_t* key, int keyWords, Schedule& schedule);
    /// Needs the encryption keys. Only ecbDecrypt and cbcDecrypt use what it makes.
    void (*addDecryptionKeys)(Schedule& schedule);
    Transform ecbEncrypt;
    Transform ecbDecrypt;
    Transform cbcEncrypt;
    Transform cbcDecrypt;
    Transform cfbEncrypt;
    Transform cfbDecrypt;
    Transform ofb;
};

/// Runs everywhere.
COMMONLIB_EXPORT extern const Implementation kPortable;

/// The implementations on instructions of this processor, best first; null from the end on.
const Implementation* Native(int index);

/// All that this processor can run, best first, kPortable last; null from the end on.
COMMONLIB_EXPORT const Implementation* Available(int index);

/// What the library works with: the best one, unless a test chose another.
const Implementation& Current();

/// Lets tests choose one of Available(); null goes back to the best one.
COMMONLIB_EXPORT void Use(const Implementation* implementation);

} // namespace AesCipher
