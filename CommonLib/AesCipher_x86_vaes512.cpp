// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/AesCipher_x86_kernels_p.h"

namespace AesCipher {

namespace {

struct Vector512
{
    using Type = __m512i;
    static constexpr std::size_t Blocks = 4;

    static Type Load(const std::uint8_t* bytes) { return _mm512_loadu_si512(bytes); }
    static void Store(std::uint8_t* bytes, Type value) { _mm512_storeu_si512(bytes, value); }
    static Type Repeat(const std::uint8_t* bytes)
    {
        // The form without a mask makes some compilers warn about its own undefined operand.
        return _mm512_maskz_broadcast_i32x4(0xffff, Vector128::Repeat(bytes));
    }
    static Type Xor(Type a, Type b) { return _mm512_xor_si512(a, b); }
    static Type Encrypt(Type state, Type key) { return _mm512_aesenc_epi128(state, key); }
    static Type EncryptLast(Type state, Type key) { return _mm512_aesenclast_epi128(state, key); }
    static Type Decrypt(Type state, Type key) { return _mm512_aesdec_epi128(state, key); }
    static Type DecryptLast(Type state, Type key) { return _mm512_aesdeclast_epi128(state, key); }
};

} // namespace

constexpr Implementation Vaes512 = MakeImplementation<Vector512>("VAES with AVX-512");

} // namespace AesCipher
