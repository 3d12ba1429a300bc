// SPDX-License-Identifier: LGPL-2.1-or-later
// AES in plain C++ on 32-bit columns. It looks up tables at places that depend on key and text, so
// its running time is not constant: a process that shares the processor's caches may learn
// something about the key. The implementations on AES instructions are free of that.
#include "CommonLib/aes/AesCipher_p.h"

#include <array>
#include <cstring>

namespace AesCipher {

namespace {

using Bytes = std::array<std::uint8_t, 256>;
using Words = std::array<std::uint32_t, 256>;

constexpr std::uint8_t Double(std::uint8_t value)
{
    return static_cast<std::uint8_t>((value << 1) ^ ((value & 0x80) ? 0x1b : 0));
}

constexpr std::uint8_t Multiply(std::uint8_t a, std::uint8_t b)
{
    std::uint8_t product = 0;
    for (; b; b = static_cast<std::uint8_t>(b >> 1), a = Double(a))
        product = static_cast<std::uint8_t>(product ^ ((b & 1) ? a : 0));
    return product;
}

constexpr std::uint8_t RotateByte(std::uint8_t value, int bits)
{
    return static_cast<std::uint8_t>((value << bits) | (value >> (8 - bits)));
}

// The affine transformation of the inverse in GF(2^8).
constexpr Bytes MakeSBox()
{
    Bytes box{};
    // 3 generates the field and 0xf6 is its inverse, so the two walk through all pairs.
    std::uint8_t value = 1;
    std::uint8_t inverse = 1;
    do {
        box[value] =
            static_cast<std::uint8_t>(inverse ^ RotateByte(inverse, 1) ^ RotateByte(inverse, 2) ^
                                      RotateByte(inverse, 3) ^ RotateByte(inverse, 4) ^ 0x63);
        value = Multiply(value, 3);
        inverse = Multiply(inverse, 0xf6);
    } while (value != 1);
    box[0] = 0x63;
    return box;
}

constexpr Bytes MakeInverseSBox(const Bytes& box)
{
    Bytes inverse{};
    for (std::size_t i = 0; i < box.size(); ++i)
        inverse[box[i]] = static_cast<std::uint8_t>(i);
    return inverse;
}

// What a byte of row 0 adds to its mixed column, substituted by box: row 0 in the lowest bits. The
// other rows add the same, rotated.
constexpr Words MakeColumns(const Bytes& box, const std::array<std::uint8_t, 4>& factors)
{
    Words columns{};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        for (unsigned row = 0; row < 4; ++row) {
            const std::uint32_t byte = Multiply(box[i], factors[row]);
            columns[i] |= byte << (8 * row);
        }
    }
    return columns;
}

constexpr Bytes kSBox = MakeSBox();
constexpr Bytes kInverseSBox = MakeInverseSBox(kSBox);
constexpr Words kColumns = MakeColumns(kSBox, {2, 1, 1, 3});
constexpr Words kInverseColumns = MakeColumns(kInverseSBox, {14, 9, 13, 11});

constexpr std::uint32_t Rotate(std::uint32_t value, int bits)
{
    return (value << bits) | (value >> ((32 - bits) & 31));
}

constexpr std::uint8_t Row(std::uint32_t column, int row)
{
    return static_cast<std::uint8_t>(column >> (8 * row));
}

inline std::uint32_t LoadColumn(const std::uint8_t* columns, int index)
{
    const std::uint8_t* bytes = columns + std::ptrdiff_t(4) * index;
    return bytes[0] | (std::uint32_t(bytes[1]) << 8) | (std::uint32_t(bytes[2]) << 16) |
           (std::uint32_t(bytes[3]) << 24);
}

inline void StoreColumn(std::uint8_t* columns, int index, std::uint32_t column)
{
    std::uint8_t* bytes = columns + std::ptrdiff_t(4) * index;
    for (int row = 0; row < 4; ++row)
        bytes[row] = Row(column, row);
}

// The rows of column c come from columns c + row * Step: 1 encrypts, 3 (which is -1) decrypts.
template <int Step>
std::uint32_t MixedColumn(const Words& table, const std::uint32_t* state, int c)
{
    std::uint32_t column = 0;
    for (int row = 0; row < 4; ++row)
        column ^= Rotate(table[Row(state[(c + row * Step) % 4], row)], 8 * row);
    return column;
}

template <int Step>
std::uint32_t LastColumn(const Bytes& box, const std::uint32_t* state, int c)
{
    std::uint32_t column = 0;
    for (int row = 0; row < 4; ++row)
        column |= std::uint32_t(box[Row(state[(c + row * Step) % 4], row)]) << (8 * row);
    return column;
}

template <int Step>
void Cipher(const Words& table, const Bytes& box, const std::uint8_t* keys, int rounds,
            const std::uint8_t* in, std::uint8_t* out)
{
    std::uint32_t state[4];
    for (int c = 0; c < 4; ++c)
        state[c] = LoadColumn(in, c) ^ LoadColumn(keys, c);
    for (int round = 1; round < rounds; ++round) {
        keys += kBlockSize;
        std::uint32_t next[4];
        for (int c = 0; c < 4; ++c)
            next[c] = MixedColumn<Step>(table, state, c) ^ LoadColumn(keys, c);
        std::memcpy(state, next, sizeof state);
    }
    keys += kBlockSize;
    for (int c = 0; c < 4; ++c)
        StoreColumn(out, c, LastColumn<Step>(box, state, c) ^ LoadColumn(keys, c));
}

void Encrypt(const Schedule& schedule, const std::uint8_t* in, std::uint8_t* out)
{
    Cipher<1>(kColumns, kSBox, schedule.encryption, schedule.rounds, in, out);
}

void Decrypt(const Schedule& schedule, const std::uint8_t* in, std::uint8_t* out)
{
    Cipher<3>(kInverseColumns, kInverseSBox, schedule.decryption, schedule.rounds, in, out);
}

void Xor(std::uint8_t* out, const std::uint8_t* a, const std::uint8_t* b)
{
    for (int i = 0; i < kBlockSize; ++i)
        out[i] = a[i] ^ b[i];
}

std::uint32_t Substitute(std::uint32_t word)
{
    std::uint32_t result = 0;
    for (int row = 0; row < 4; ++row)
        result |= std::uint32_t(kSBox[Row(word, row)]) << (8 * row);
    return result;
}

void ExpandKey(const std::uint8_t* key, int keyWords, Schedule& schedule)
{
    schedule.rounds = RoundsFor(keyWords);
    std::uint8_t* const bytes = schedule.encryption;
    std::memcpy(bytes, key, 4 * static_cast<std::size_t>(keyWords));
    std::uint8_t roundConstant = 1;
    for (int i = keyWords; i < 4 * (schedule.rounds + 1); ++i) {
        std::uint32_t word = LoadColumn(bytes, i - 1);
        if (i % keyWords == 0) {
            word = Substitute(Rotate(word, 24)) ^ roundConstant;
            roundConstant = Double(roundConstant);
        } else if (keyWords == 8 && i % keyWords == 4) {
            word = Substitute(word);
        }
        StoreColumn(bytes, i, word ^ LoadColumn(bytes, i - keyWords));
    }
}

void AddDecryptionKeys(Schedule& schedule)
{
    const int last = 4 * schedule.rounds;
    for (int i = 0; i < last + 4; ++i) {
        // The rounds in reverse order, the columns of a round in theirs.
        std::uint32_t column = LoadColumn(schedule.encryption, last - i / 4 * 4 + i % 4);
        if (i >= 4 && i < last) {
            const std::uint32_t mixed = Substitute(column);
            column = 0;
            for (int row = 0; row < 4; ++row)
                column ^= Rotate(kInverseColumns[Row(mixed, row)], 8 * row);
        }
        StoreColumn(schedule.decryption, i, column);
    }
}

void EcbEncrypt(const Schedule& schedule, std::uint8_t*, const std::uint8_t* in, std::uint8_t* out,
                std::size_t blocks)
{
    for (; blocks; --blocks, in += kBlockSize, out += kBlockSize)
        Encrypt(schedule, in, out);
}

void EcbDecrypt(const Schedule& schedule, std::uint8_t*, const std::uint8_t* in, std::uint8_t* out,
                std::size_t blocks)
{
    for (; blocks; --blocks, in += kBlockSize, out += kBlockSize)
        Decrypt(schedule, in, out);
}

void CbcEncrypt(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in,
                std::uint8_t* out, std::size_t blocks)
{
    for (; blocks; --blocks, in += kBlockSize, out += kBlockSize) {
        Xor(chain, chain, in);
        Encrypt(schedule, chain, chain);
        std::memcpy(out, chain, kBlockSize);
    }
}

void CbcDecrypt(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in,
                std::uint8_t* out, std::size_t blocks)
{
    for (; blocks; --blocks, in += kBlockSize, out += kBlockSize) {
        Decrypt(schedule, in, out);
        Xor(out, out, chain);
        std::memcpy(chain, in, kBlockSize);
    }
}

void CfbEncrypt(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in,
                std::uint8_t* out, std::size_t blocks)
{
    for (; blocks; --blocks, in += kBlockSize, out += kBlockSize) {
        Encrypt(schedule, chain, chain);
        Xor(chain, chain, in);
        std::memcpy(out, chain, kBlockSize);
    }
}

void CfbDecrypt(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in,
                std::uint8_t* out, std::size_t blocks)
{
    for (; blocks; --blocks, in += kBlockSize, out += kBlockSize) {
        Encrypt(schedule, chain, chain);
        Xor(out, chain, in);
        std::memcpy(chain, in, kBlockSize);
    }
}

void Ofb(const Schedule& schedule, std::uint8_t* chain, const std::uint8_t* in, std::uint8_t* out,
         std::size_t blocks)
{
    for (; blocks; --blocks, in += kBlockSize, out += kBlockSize) {
        Encrypt(schedule, chain, chain);
        Xor(out, chain, in);
    }
}

} // namespace

constexpr Implementation kPortable = {"portable", ExpandKey,  AddDecryptionKeys, EcbEncrypt,
                                      EcbDecrypt, CbcEncrypt, CbcDecrypt,        CfbEncrypt,
                                      CfbDecrypt, Ofb};

} // namespace AesCipher
