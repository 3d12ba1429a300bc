// SPDX-License-Identifier: LGPL-2.1-or-later
// Lets libFuzzer change documents by their tokens as well as by their bytes.
#include "Tokens.h"

#include <cstdint>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t limit);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t limit, unsigned seed);

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t limit,
                                    unsigned seed)
{
    std::minstd_rand random(seed);
    random.discard(1);
    if (random() % 4 == 0)
        return LLVMFuzzerMutate(data, size, limit);
    QByteArray text(reinterpret_cast<const char*>(data), int(size));
    for (auto changes = 1 + random() % 4; changes > 0; --changes)
        text = fuzz::ChangeTokens(text, random);
    if (std::size_t(text.size()) > limit)
        return LLVMFuzzerMutate(data, size, limit);
    std::memcpy(data, text.constData(), std::size_t(text.size()));
    return std::size_t(text.size());
}
