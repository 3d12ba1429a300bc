// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/aes/AesCipher_x86_kernels_p.h"

namespace AesCipher {

namespace {

struct Vector512
{
    using Type = __m512i;
    static constexpr std::size_t kBlocks = 4;

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

// Writes past the caches, which saves reading each line before it is overwritten. That takes whole
// lines, so the vectors are shifted to where these begin.
class StreamWriter
{
public:
    static bool Suits(const std::uint8_t* out) { return Address(out) % sizeof(std::uint64_t) == 0; }

    explicit StreamWriter(std::uint8_t* out)
        : m_held(static_cast<unsigned>(Address(out) % kLine / sizeof(std::uint64_t)))
        , m_line(out - m_held * sizeof(std::uint64_t))
        , m_fresh(static_cast<__mmask8>(0xff << m_held))
    {
        // Selects the held words at the end of the carried vector, then the first of the new one.
        const __m512i words = _mm512_set_epi64(15, 14, 13, 12, 11, 10, 9, 8);
        m_selection = _mm512_sub_epi64(words, _mm512_set1_epi64(m_held));
    }

    void Put(__m512i value)
    {
        const __m512i line = _mm512_permutex2var_epi64(m_carried, m_selection, value);
        m_carried = value;
        if (m_first)
            _mm512_mask_storeu_epi64(m_line, m_fresh, line);
        else
            _mm512_stream_si512(reinterpret_cast<__m512i*>(m_line), line);
        m_first = false;
        m_line += kLine;
    }

    void Prefetch(std::size_t) const {}

    std::uint8_t* Finish() const
    {
        const __m512i rest = _mm512_permutex2var_epi64(m_carried, m_selection, m_carried);
        _mm512_mask_storeu_epi64(m_line, static_cast<__mmask8>(~m_fresh), rest);
        _mm_sfence();
        return m_line + m_held * sizeof(std::uint64_t);
    }

private:
    static constexpr std::size_t kLine = 64;

    static std::uintptr_t Address(const std::uint8_t* out)
    {
        return reinterpret_cast<std::uintptr_t>(out);
    }

    /// Words of eight bytes that the line has before the first byte of a vector.
    unsigned m_held;
    std::uint8_t* m_line;
    __mmask8 m_fresh;
    bool m_first = true;
    __m512i m_carried = _mm512_setzero_si512();
    __m512i m_selection;
};

} // namespace

constexpr Implementation kVaes512 =
    MakeImplementation<Vector512, StreamWriter>("VAES with AVX-512");

} // namespace AesCipher
