// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/aes/AesCipher_x86_p.h"

#include <immintrin.h>
#include <type_traits>
#include <utility>

/// The cipher on the AES instructions of x86, over the width of the vector.
///
/// Each source that includes this is compiled for processors of its own kind. Everything here
/// therefore has internal linkage: the linker must not let one kind of code stand in for another.
namespace AesCipher {

namespace {

struct Vector128
{
    using Type = __m128i;
    static constexpr std::size_t kBlocks = 1;

    static Type Load(const std::uint8_t* bytes)
    {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    }
    static void Store(std::uint8_t* bytes, Type value)
    {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(bytes), value);
    }
    /// The 16 bytes, which are aligned, for each block of the vector.
    static Type Repeat(const std::uint8_t* bytes)
    {
        return _mm_load_si128(reinterpret_cast<const __m128i*>(bytes));
    }
    static Type Xor(Type a, Type b) { return _mm_xor_si128(a, b); }
    static Type Encrypt(Type state, Type key) { return _mm_aesenc_si128(state, key); }
    static Type EncryptLast(Type state, Type key) { return _mm_aesenclast_si128(state, key); }
    static Type Decrypt(Type state, Type key) { return _mm_aesdec_si128(state, key); }
    static Type DecryptLast(Type state, Type key) { return _mm_aesdeclast_si128(state, key); }
};

// ---- Modes whose blocks do not wait for each other

enum class Parallel
{
    EcbEncrypt,
    EcbDecrypt,
    CbcDecrypt,
    CfbDecrypt
};

constexpr bool UsesInverseCipher(Parallel mode)
{
    return mode == Parallel::EcbDecrypt || mode == Parallel::CbcDecrypt;
}

constexpr bool UsesPreviousBlock(Parallel mode)
{
    return mode == Parallel::CbcDecrypt || mode == Parallel::CfbDecrypt;
}

/// Writes one vector behind the other.
template <class Vector>
class PlainWriter
{
public:
    explicit PlainWriter(std::uint8_t* out) : m_out(out) {}
    void Put(typename Vector::Type value)
    {
        Vector::Store(m_out, value);
        m_out += Vector::kBlocks * kBlockSize;
    }
    /// Asks for the line that is to be written ahead bytes further on.
    void Prefetch(std::size_t ahead) const
    {
        _mm_prefetch(reinterpret_cast<const char*>(m_out + ahead), _MM_HINT_T0);
    }
    /// Where the next byte goes; nothing is put any more.
    std::uint8_t* Finish() const { return m_out; }

private:
    std::uint8_t* m_out;
};

/// As many vectors at once as there are Index, to hide the latency of the instructions. previous
/// is where the cipher text block before in stands.
template <class Vector, Parallel Mode, int Rounds, class Writer, std::size_t... Index>
inline void Group(const typename Vector::Type (&keys)[Rounds + 1], const std::uint8_t* previous,
                  const std::uint8_t* in, Writer& writer, std::index_sequence<Index...>)
{
    constexpr std::size_t step = Vector::kBlocks * kBlockSize;
    const std::uint8_t* source = Mode == Parallel::CfbDecrypt ? previous : in;
    const std::uint8_t* mask = Mode == Parallel::CfbDecrypt ? in : previous;

    typename Vector::Type state[] = {Vector::Xor(Vector::Load(source + Index * step), keys[0])...};
    for (int round = 1; round < Rounds; ++round) {
        if constexpr (UsesInverseCipher(Mode))
            ((state[Index] = Vector::Decrypt(state[Index], keys[round])), ...);
        else
            ((state[Index] = Vector::Encrypt(state[Index], keys[round])), ...);
    }
    typename Vector::Type last[] = {(static_cast<void>(Index), keys[Rounds])...};
    // The last instruction adds its key, so what is to be added behind it can ride on that key.
    if constexpr (UsesPreviousBlock(Mode))
        ((last[Index] = Vector::Xor(last[Index], Vector::Load(mask + Index * step))), ...);
    if constexpr (UsesInverseCipher(Mode))
        (writer.Put(Vector::DecryptLast(state[Index], last[Index])), ...);
    else
        (writer.Put(Vector::EncryptLast(state[Index], last[Index])), ...);
}

template <class Vector, int Rounds>
inline void LoadKeys(typename Vector::Type (&keys)[Rounds + 1], const std::uint8_t* schedule)
{
    for (int round = 0; round <= Rounds; ++round)
        keys[round] = Vector::Repeat(schedule + std::ptrdiff_t(round) * kBlockSize);
}

/// Works through as many groups of Count vectors as there are, and moves on behind them.
template <class Vector, std::size_t Count, Parallel Mode, int Rounds,
          class Writer = PlainWriter<Vector>>
inline void Groups(const std::uint8_t* schedule, const std::uint8_t*& in, std::uint8_t*& out,
                   std::size_t& blocks)
{
    constexpr std::size_t step = Count * Vector::kBlocks;
    // The processor itself fetches ahead, but not across the end of a page.
    constexpr std::size_t ahead = 4096;
    constexpr std::size_t line = 64;
    if (blocks < step)
        return;
    typename Vector::Type keys[Rounds + 1];
    LoadKeys<Vector, Rounds>(keys, schedule);
    Writer writer(out);
    for (; blocks >= step; blocks -= step) {
        if constexpr (Vector::kBlocks > 1 && Count == 8) {
            for (std::size_t at = ahead; at < ahead + step * kBlockSize; at += line) {
                _mm_prefetch(reinterpret_cast<const char*>(in + at), _MM_HINT_T0);
                writer.Prefetch(at);
            }
        }
        Group<Vector, Mode, Rounds>(keys, UsesPreviousBlock(Mode) ? in - kBlockSize : in, in,
                                    writer, std::make_index_sequence<Count>());
        in += step * kBlockSize;
    }
    out = writer.Finish();
}

/// A text past this size leaves the caches before anyone comes to read the result.
constexpr std::size_t kLargeText = 8 << 20;

template <class Vector, class LargeWriter, Parallel Mode, int Rounds>
void RunParallel(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in,
                 std::uint8_t* out, std::size_t blocks)
{
    if (blocks == 0)
        return;
    const std::uint8_t* keys = UsesInverseCipher(Mode) ? schedule.decryption : schedule.encryption;
    if constexpr (UsesPreviousBlock(Mode)) {
        // Only the first block's predecessor stands elsewhere than before it.
        __m128i first[Rounds + 1];
        LoadKeys<Vector128, Rounds>(first, keys);
        PlainWriter<Vector128> writer(out);
        Group<Vector128, Mode, Rounds>(first, chain, in, writer, std::make_index_sequence<1>());
        Vector128::Store(chain, Vector128::Load(in + (blocks - 1) * kBlockSize));
        in += kBlockSize;
        out = writer.Finish();
        --blocks;
    }
    if constexpr (!std::is_same_v<LargeWriter, PlainWriter<Vector>>) {
        if (blocks >= kLargeText / kBlockSize && LargeWriter::Suits(out))
            Groups<Vector, 8, Mode, Rounds, LargeWriter>(keys, in, out, blocks);
    }
    Groups<Vector, 8, Mode, Rounds>(keys, in, out, blocks);
    if constexpr (Vector::kBlocks > 1)
        Groups<Vector, 2, Mode, Rounds>(keys, in, out, blocks);
    Groups<Vector128, 4, Mode, Rounds>(keys, in, out, blocks);
    Groups<Vector128, 1, Mode, Rounds>(keys, in, out, blocks);
}

// ---- Modes where a block waits for the one before it

enum class Serial
{
    CbcEncrypt,
    CfbEncrypt,
    Ofb
};

/// The time goes into the chain of dependent instructions, and that is kept at the rounds
/// themselves: state always stands behind the addition of the first round key, and the last
/// instruction of a block adds, with its own key, also that one and the text.
template <Serial Mode, int Rounds>
void RunSerial(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in,
               std::uint8_t* out, std::size_t blocks)
{
    if (blocks == 0)
        return;
    __m128i keys[Rounds + 1];
    LoadKeys<Vector128, Rounds>(keys, schedule.encryption);
    const __m128i first = keys[0];
    const __m128i joint = _mm_xor_si128(keys[Rounds], first);

    __m128i state = _mm_xor_si128(Vector128::Load(chain), first);
    if constexpr (Mode == Serial::CbcEncrypt)
        state = _mm_xor_si128(state, Vector128::Load(in));
    for (; blocks; --blocks, in += kBlockSize, out += kBlockSize) {
        __m128i text = _mm_setzero_si128();
        if constexpr (Mode != Serial::CbcEncrypt)
            text = Vector128::Load(in);
        else if (blocks > 1)
            text = Vector128::Load(in + kBlockSize);

        for (int round = 1; round < Rounds; ++round)
            state = _mm_aesenc_si128(state, keys[round]);
        if constexpr (Mode == Serial::Ofb)
            state = _mm_aesenclast_si128(state, joint);
        else
            state = _mm_aesenclast_si128(state, _mm_xor_si128(joint, text));

        __m128i result = _mm_xor_si128(state, first);
        if constexpr (Mode != Serial::CfbEncrypt)
            result = _mm_xor_si128(result, text);
        Vector128::Store(out, result);
    }
    Vector128::Store(chain, _mm_xor_si128(state, first));
}

// ---- One function for all key sizes

template <class Vector, class LargeWriter, Parallel Mode>
void Run(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in, std::uint8_t* out,
         std::size_t blocks)
{
    if (schedule.rounds == 10)
        RunParallel<Vector, LargeWriter, Mode, 10>(schedule, chain, in, out, blocks);
    else if (schedule.rounds == 12)
        RunParallel<Vector, LargeWriter, Mode, 12>(schedule, chain, in, out, blocks);
    else
        RunParallel<Vector, LargeWriter, Mode, 14>(schedule, chain, in, out, blocks);
}

template <Serial Mode>
void Run(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in, std::uint8_t* out,
         std::size_t blocks)
{
    if (schedule.rounds == 10)
        RunSerial<Mode, 10>(schedule, chain, in, out, blocks);
    else if (schedule.rounds == 12)
        RunSerial<Mode, 12>(schedule, chain, in, out, blocks);
    else
        RunSerial<Mode, 14>(schedule, chain, in, out, blocks);
}

// ---- Key schedule

enum class Step
{
    RotateAndSubstitute,
    Substitute
};

/// The S-box of word Word of words, in each word of the result. With all columns alike the shift of
/// rows in the instruction changes nothing.
template <int Word, Step Kind>
inline __m128i ScheduleWord(__m128i words, int roundConstant)
{
    constexpr int w = 4 * Word;
    constexpr int bytes = Kind == Step::Substitute
                              ? (w | (w + 1) << 8 | (w + 2) << 16 | (w + 3) << 24)
                              : ((w + 1) | (w + 2) << 8 | (w + 3) << 16 | w << 24);
    const __m128i repeated = _mm_shuffle_epi8(words, _mm_set1_epi32(bytes));
    return _mm_aesenclast_si128(repeated, _mm_set1_epi32(roundConstant));
}

/// Each word with all before it added.
inline __m128i RunningXor(__m128i words)
{
    words = _mm_xor_si128(words, _mm_slli_si128(words, 4));
    return _mm_xor_si128(words, _mm_slli_si128(words, 8));
}

constexpr int kRoundConstants[] = {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0x1b, 0x36};

inline void ExpandKey128(const std::uint8_t* key, std::uint8_t* out)
{
    __m128i words = Vector128::Load(key);
    Vector128::Store(out, words);
    for (int constant : kRoundConstants) {
        const __m128i added = ScheduleWord<3, Step::RotateAndSubstitute>(words, constant);
        words = _mm_xor_si128(RunningXor(words), added);
        Vector128::Store(out += kBlockSize, words);
    }
}

inline void ExpandKey192(const std::uint8_t* key, std::uint8_t* out)
{
    __m128i words = Vector128::Load(key);
    __m128i tail = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(key + kBlockSize));
    Vector128::Store(out, words);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(out + kBlockSize), tail);
    // Six words a turn; the last turn's surplus of two stays inside the array of the schedule.
    for (int turn = 0; turn < 8; ++turn) {
        const __m128i added =
            ScheduleWord<1, Step::RotateAndSubstitute>(tail, kRoundConstants[turn]);
        words = _mm_xor_si128(RunningXor(words), added);
        tail = _mm_xor_si128(tail, _mm_slli_si128(tail, 4));
        tail = _mm_xor_si128(tail, _mm_shuffle_epi32(words, 0xff));
        out += 24;
        Vector128::Store(out, words);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out + kBlockSize), tail);
    }
}

inline void ExpandKey256(const std::uint8_t* key, std::uint8_t* out)
{
    __m128i even = Vector128::Load(key);
    __m128i odd = Vector128::Load(key + kBlockSize);
    Vector128::Store(out, even);
    Vector128::Store(out += kBlockSize, odd);
    for (int turn = 0;; ++turn) {
        __m128i added = ScheduleWord<3, Step::RotateAndSubstitute>(odd, kRoundConstants[turn]);
        even = _mm_xor_si128(RunningXor(even), added);
        Vector128::Store(out += kBlockSize, even);
        if (turn == 6)
            return;
        added = ScheduleWord<3, Step::Substitute>(even, 0);
        odd = _mm_xor_si128(RunningXor(odd), added);
        Vector128::Store(out += kBlockSize, odd);
    }
}

void ExpandKey(const std::uint8_t* key, int keyWords, Schedule& schedule)
{
    schedule.rounds = RoundsFor(keyWords);
    if (keyWords == 4)
        ExpandKey128(key, schedule.encryption);
    else if (keyWords == 6)
        ExpandKey192(key, schedule.encryption);
    else
        ExpandKey256(key, schedule.encryption);
}

void AddDecryptionKeys(Schedule& schedule)
{
    const std::uint8_t* source = schedule.encryption + std::ptrdiff_t(schedule.rounds) * kBlockSize;
    std::uint8_t* target = schedule.decryption;
    Vector128::Store(target, Vector128::Load(source));
    for (int round = 1; round < schedule.rounds; ++round) {
        source -= kBlockSize;
        target += kBlockSize;
        Vector128::Store(target, _mm_aesimc_si128(Vector128::Load(source)));
    }
    Vector128::Store(target + kBlockSize, Vector128::Load(schedule.encryption));
}

/// LargeWriter takes the place of PlainWriter for large texts where its Suits() allows.
template <class Vector, class LargeWriter = PlainWriter<Vector>>
constexpr Implementation MakeImplementation(const char* name)
{
    return {name,
            ExpandKey,
            AddDecryptionKeys,
            Run<Vector, LargeWriter, Parallel::EcbEncrypt>,
            Run<Vector, LargeWriter, Parallel::EcbDecrypt>,
            Run<Serial::CbcEncrypt>,
            Run<Vector, LargeWriter, Parallel::CbcDecrypt>,
            Run<Serial::CfbEncrypt>,
            Run<Vector, LargeWriter, Parallel::CfbDecrypt>,
            Run<Serial::Ofb>};
}

} // namespace

} // namespace AesCipher
