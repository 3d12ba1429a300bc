// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/aes/AesCipher_x86_kernels_p.h"

namespace AesCipher {

namespace {

struct Vector256
{
    using Type = __m256i;
    static constexpr std::size_t kBlocks = 2;

    static Type Load(const std::uint8_t* bytes)
    {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(bytes));
    }
    static void Store(std::uint8_t* bytes, Type value)
    {
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(bytes), value);
    }
    static Type Repeat(const std::uint8_t* bytes)
    {
        return _mm256_broadcastsi128_si256(Vector128::Repeat(bytes));
    }
    static Type Xor(Type a, Type b) { return _mm256_xor_si256(a, b); }
    static Type Encrypt(Type state, Type key) { return _mm256_aesenc_epi128(state, key); }
    static Type EncryptLast(Type state, Type key) { return _mm256_aesenclast_epi128(state, key); }
    static Type Decrypt(Type state, Type key) { return _mm256_aesdec_epi128(state, key); }
    static Type DecryptLast(Type state, Type key) { return _mm256_aesdeclast_epi128(state, key); }
};

} // namespace

constexpr Implementation kVaes256 = MakeImplementation<Vector256>("VAES with AVX2");

} // namespace AesCipher
