// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QByteArray>
#include <QObject>

/// Encrypts and decrypts byte arrays with AES (FIPS-197) in the modes of NIST SP 800-38A.
///
/// Keys have 16, 24 or 32 bytes, by the key size; of a longer key only the first bytes count, and
/// with a shorter one every operation that takes a key gives an empty array. All modes but ECB need
/// an initialisation vector of exactly 16 bytes, without which the result is empty too; ECB ignores
/// it. A wrong key or padding is not detected: they give wrong bytes. A result that there is
/// no memory for is empty.
///
/// One instance serves one thread at a time. The static functions can be called from any thread.
class COMMONLIB_EXPORT QAESEncryption : public QObject
{
    Q_OBJECT

public:
    /// Lengths of a key in bits (FIPS 197).
    enum Aes
    {
        AES_128,
        AES_192,
        AES_256
    };

    /// CFB works on segments of a whole block.
    enum Mode
    {
        ECB,
        CBC,
        CFB,
        OFB
    };

    /// How a text is filled up to whole blocks of 16 bytes.
    enum Padding
    {
        /// Zero bytes, none behind whole blocks.
        ZERO,
        /// One to 16 bytes, each of which tells their number.
        PKCS7,
        /// 0x80 and zero bytes, but nothing behind whole blocks. Unlike ISO/IEC 7816-4, so removing
        /// it can take a 0x80 that belongs to the text.
        ISO
    };

    QAESEncryption(Aes level, Mode mode, Padding padding); ///< keeps the three

    /// Pads \a rawText, in every mode, and encrypts it. The result is a multiple of 16 bytes.
    QByteArray encode(const QByteArray& rawText, const QByteArray& key, const QByteArray& iv);

    /// Decrypts \a rawText; the padding stays, see removePadding().
    ///
    /// When the size is no multiple of 16, ECB and CBC give what its whole blocks hold and drop the
    /// rest; CFB and OFB decrypt every byte.
    QByteArray decode(const QByteArray& rawText, const QByteArray& key, const QByteArray& iv);

    /// \a rawText without the padding of this instance; an empty text stays empty.
    ///
    /// ZERO removes all zero bytes at the end. PKCS7 removes as many bytes as the last byte says,
    /// as a signed value and unchecked: above 127 none, more than there are all. ISO cuts at a 0x80
    /// that only zero bytes follow and leaves other texts as they are, but gives an empty one for
    /// zero bytes alone.
    QByteArray removePadding(const QByteArray& rawText);

    /// The round keys, 16 bytes for each round and one more. What \a key has beyond its length
    /// follows behind them.
    QByteArray expandKey(const QByteArray& key);

    /// \a length bytes as lower-case hexadecimal digits, two a byte. A debugging aid.
    QByteArray printArray(unsigned char* data, int length);

    /// encode() of a temporary instance.
    static QByteArray Crypt(Aes level, Mode mode, const QByteArray& rawText, const QByteArray& key,
                            const QByteArray& iv, Padding padding);
    /// decode() of a temporary instance; the padding stays, see RemovePadding().
    static QByteArray Decrypt(Aes level, Mode mode, const QByteArray& rawText,
                              const QByteArray& key, const QByteArray& iv, Padding padding);
    /// expandKey() of a temporary instance. The mode makes no difference.
    static QByteArray ExpandKey(Aes level, Mode mode, const QByteArray& key);
    /// removePadding() of a temporary instance.
    static QByteArray RemovePadding(const QByteArray& rawText, Padding padding);

private:
    Q_DISABLE_COPY(QAESEncryption)

    bool Accepts(const QByteArray& key, const QByteArray& iv) const;

    // The order of the fields is fixed.
    qint32 m_columns;
    int m_blockLength;
    Aes m_level;
    Mode m_mode;
    int m_keyWords;
    int m_keyLength;
    int m_rounds;
    int m_expandedKeySize;
    Padding m_padding;
    /// What is being written; null between operations, not owned.
    unsigned char* m_block;
};
