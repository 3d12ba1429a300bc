// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/QAESEncryption.h"

#include "CommonLib/aes/AesCipher_p.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace {

using AesCipher::kBlockSize;

struct KeySizeValues
{
    int keyWords;
    int rounds;
    int expandedKeySize;
};

// By QAESEncryption::Aes. The schedule for 209 has 208 bytes: its length follows from the rounds,
// and this value is only stored. Kept: see docs/compatibility.md.
constexpr KeySizeValues kKeySizes[] = {{4, 10, 176}, {6, 12, 209}, {8, 14, 240}};

const std::uint8_t* Bytes(const QByteArray& array)
{
    return reinterpret_cast<const std::uint8_t*>(array.constData());
}

// Null when there is no memory for it.
QByteArray UninitializedArray(qint64 size)
{
    // What QByteArray can hold beside its own header.
    constexpr int most = std::numeric_limits<int>::max() - 64;
    if (size <= 0 || size > most)
        return QByteArray();
    try {
        return QByteArray(static_cast<int>(size), Qt::Uninitialized);
    } catch (const std::bad_alloc&) {
        return QByteArray();
    }
}

// Fills block up behind its first used bytes. False when the padding wants no such block at all.
bool Pad(std::uint8_t* block, int used, QAESEncryption::Padding padding)
{
    if (used == 0 && padding != QAESEncryption::PKCS7)
        return false;
    const int size = kBlockSize - used;
    const int value = padding == QAESEncryption::PKCS7 ? size : 0;
    std::memset(block + used, value, static_cast<std::size_t>(size));
    if (padding == QAESEncryption::ISO)
        block[used] = 0x80;
    return true;
}

AesCipher::Transform Encryption(QAESEncryption::Mode mode)
{
    const AesCipher::Implementation& cipher = AesCipher::Current();
    switch (mode) {
    case QAESEncryption::CBC:
        return cipher.cbcEncrypt;
    case QAESEncryption::CFB:
        return cipher.cfbEncrypt;
    case QAESEncryption::OFB:
        return cipher.ofb;
    case QAESEncryption::ECB:
        break;
    }
    return cipher.ecbEncrypt;
}

AesCipher::Transform Decryption(QAESEncryption::Mode mode)
{
    const AesCipher::Implementation& cipher = AesCipher::Current();
    switch (mode) {
    case QAESEncryption::CBC:
        return cipher.cbcDecrypt;
    case QAESEncryption::CFB:
        return cipher.cfbDecrypt;
    case QAESEncryption::OFB:
        return cipher.ofb;
    case QAESEncryption::ECB:
        break;
    }
    return cipher.ecbDecrypt;
}

// Modes that only add the key stream to the text, so a part of a block can be decrypted.
bool IsStreamMode(QAESEncryption::Mode mode)
{
    return mode == QAESEncryption::CFB || mode == QAESEncryption::OFB;
}

} // namespace

QAESEncryption::QAESEncryption(Aes level, Mode mode, Padding padding)
    : m_columns(4)
    , m_blockLength(kBlockSize)
    , m_level(level)
    , m_mode(mode)
    , m_keyWords(kKeySizes[level].keyWords)
    , m_keyLength(4 * m_keyWords)
    , m_rounds(kKeySizes[level].rounds)
    , m_expandedKeySize(kKeySizes[level].expandedKeySize)
    , m_padding(padding)
    , m_block(nullptr)
{
}

bool QAESEncryption::Accepts(const QByteArray& key, const QByteArray& iv) const
{
    return key.size() >= m_keyLength && (m_mode == ECB || iv.size() == kBlockSize);
}

QByteArray QAESEncryption::encode(const QByteArray& rawText, const QByteArray& key,
                                  const QByteArray& iv)
{
    if (!Accepts(key, iv))
        return QByteArray();
    const int rest = rawText.size() % kBlockSize;
    const int whole = rawText.size() - rest;
    std::uint8_t last[kBlockSize];
    std::copy_n(Bytes(rawText) + whole, rest, last);
    const bool padded = Pad(last, rest, m_padding);
    QByteArray result = UninitializedArray(qint64(whole) + (padded ? kBlockSize : 0));
    if (result.isEmpty())
        return result;

    AesCipher::Schedule schedule;
    AesCipher::Current().expandKey(Bytes(key), m_keyWords, schedule);
    std::uint8_t chain[kBlockSize];
    std::copy_n(Bytes(iv), m_mode == ECB ? 0 : kBlockSize, chain);
    const AesCipher::Transform encrypt = Encryption(m_mode);
    m_block = reinterpret_cast<unsigned char*>(result.data());
    encrypt(schedule, chain, Bytes(rawText), m_block, static_cast<std::size_t>(whole / kBlockSize));
    m_block += whole;
    encrypt(schedule, chain, last, m_block, padded ? 1 : 0);
    m_block = nullptr;
    return result;
}

QByteArray QAESEncryption::decode(const QByteArray& rawText, const QByteArray& key,
                                  const QByteArray& iv)
{
    if (!Accepts(key, iv))
        return QByteArray();
    const int rest = rawText.size() % kBlockSize;
    const int whole = rawText.size() - rest;
    const bool partial = rest > 0 && IsStreamMode(m_mode);
    QByteArray result = UninitializedArray(partial ? rawText.size() : whole);
    if (result.isEmpty())
        return result;

    AesCipher::Schedule schedule;
    AesCipher::Current().expandKey(Bytes(key), m_keyWords, schedule);
    if (!IsStreamMode(m_mode))
        AesCipher::Current().addDecryptionKeys(schedule);
    std::uint8_t chain[kBlockSize];
    std::copy_n(Bytes(iv), m_mode == ECB ? 0 : kBlockSize, chain);
    const AesCipher::Transform decrypt = Decryption(m_mode);
    m_block = reinterpret_cast<unsigned char*>(result.data());
    decrypt(schedule, chain, Bytes(rawText), m_block, static_cast<std::size_t>(whole / kBlockSize));
    if (partial) {
        std::uint8_t last[kBlockSize] = {};
        std::uint8_t plain[kBlockSize];
        std::copy_n(Bytes(rawText) + whole, rest, last);
        decrypt(schedule, chain, last, plain, 1);
        m_block += whole;
        std::copy_n(plain, rest, m_block);
    }
    m_block = nullptr;
    return result;
}

QByteArray QAESEncryption::removePadding(const QByteArray& rawText)
{
    int size = rawText.size();
    if (size == 0)
        return rawText;
    if (m_padding == PKCS7) {
        // As a signed byte, so what is above 127 is negative and removes nothing.
        const int value = static_cast<unsigned char>(rawText.at(size - 1));
        return value > 127 ? rawText : rawText.left(std::max(0, size - value));
    }
    while (size > 0 && rawText.at(size - 1) == 0)
        --size;
    if (m_padding == ISO && size > 0) {
        if (static_cast<unsigned char>(rawText.at(size - 1)) != 0x80)
            return rawText;
        --size;
    }
    return rawText.left(size);
}

QByteArray QAESEncryption::expandKey(const QByteArray& key)
{
    if (key.size() < m_keyLength)
        return QByteArray();
    AesCipher::Schedule schedule;
    AesCipher::Current().expandKey(Bytes(key), m_keyWords, schedule);
    const int size = AesCipher::ScheduleSize(m_rounds);
    const int surplus = key.size() - m_keyLength;
    QByteArray result = UninitializedArray(qint64(size) + surplus);
    if (result.isEmpty())
        return result;
    char* target =
        std::copy_n(reinterpret_cast<const char*>(schedule.encryption), size, result.data());
    // What a key has beyond its length stands behind the schedule instead of being cut off: the
    // schedule grows in front of it. Kept: see docs/compatibility.md.
    std::copy_n(key.constData() + m_keyLength, surplus, target);
    return result;
}

QByteArray QAESEncryption::printArray(unsigned char* data, int length)
{
    if (!data || length <= 0)
        return QByteArray();
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), length).toHex();
}

QByteArray QAESEncryption::Crypt(Aes level, Mode mode, const QByteArray& rawText,
                                 const QByteArray& key, const QByteArray& iv, Padding padding)
{
    return QAESEncryption(level, mode, padding).encode(rawText, key, iv);
}

QByteArray QAESEncryption::Decrypt(Aes level, Mode mode, const QByteArray& rawText,
                                   const QByteArray& key, const QByteArray& iv, Padding padding)
{
    return QAESEncryption(level, mode, padding).decode(rawText, key, iv);
}

QByteArray QAESEncryption::ExpandKey(Aes level, Mode mode, const QByteArray& key)
{
    return QAESEncryption(level, mode, ZERO).expandKey(key);
}

QByteArray QAESEncryption::RemovePadding(const QByteArray& rawText, Padding padding)
{
    return QAESEncryption(AES_128, ECB, padding).removePadding(rawText);
}
