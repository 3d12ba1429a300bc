// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/AesCipher_p.h"
#include "CommonLib/QAESEncryption.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace {

using Aes = QAESEncryption::Aes;
using Mode = QAESEncryption::Mode;
using Padding = QAESEncryption::Padding;

QByteArray FromHex(const char* hex)
{
    return QByteArray::fromHex(hex);
}

// Bytes with nothing behind them that could be read by mistake unseen by a sanitizer.
class ExactArray
{
public:
    explicit ExactArray(const QByteArray& bytes)
        : m_bytes(new char[static_cast<std::size_t>(bytes.size())])
        , m_array(QByteArray::fromRawData(m_bytes.get(), bytes.size()))
    {
        std::copy(bytes.begin(), bytes.end(), m_bytes.get());
    }
    const QByteArray& Get() const { return m_array; }
    operator const QByteArray&() const { return m_array; }

private:
    std::unique_ptr<char[]> m_bytes;
    QByteArray m_array;
};

QByteArray RandomArray(QRandomGenerator& random, int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; i += 4) {
        const quint32 four = random.generate();
        std::memcpy(bytes.data() + i, &four, std::size_t(std::min(4, size - i)));
    }
    return bytes;
}

const QByteArray kCountingKey =
    FromHex("000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f");
const QByteArray kIv = kCountingKey.left(16);

// Of SP 800-38A and of the expansion examples of FIPS-197, by key size.
const QByteArray kKeys38A[] = {
    FromHex("2b7e151628aed2a6abf7158809cf4f3c"),
    FromHex("8e73b0f7da0e6452c810f32b809079e562f8ead2522c6b7b"),
    FromHex("603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4")};

int KeyLength(Aes level)
{
    return 16 + 8 * level;
}

std::uint8_t* Bytes(char* bytes)
{
    return reinterpret_cast<std::uint8_t*>(bytes);
}

const std::uint8_t* Bytes(const char* bytes)
{
    return reinterpret_cast<const std::uint8_t*>(bytes);
}

using TransformMember = AesCipher::Transform AesCipher::Implementation::*;

} // namespace

Q_DECLARE_METATYPE(TransformMember)
Q_DECLARE_METATYPE(QAESEncryption::Aes)
Q_DECLARE_METATYPE(QAESEncryption::Mode)
Q_DECLARE_METATYPE(QAESEncryption::Padding)

/// Encryption against published vectors, and every implementation of the cipher against each other.
class TestAes : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { AesCipher::Use(nullptr); }

    void processorIsUsed();
    void publishedVectors_data();
    void publishedVectors();
    void implementationsAgree_data();
    void implementationsAgree();
    void largeTexts_data();
    void largeTexts();
    void keySchedule_data();
    void keySchedule();
    void refusedKeysAndVectors();
    void paddingAdded_data();
    void paddingAdded();
    void paddingRemoved_data();
    void paddingRemoved();
    void hexadecimalText();
};

void TestAes::processorIsUsed()
{
#if defined(__x86_64__) && defined(__GNUC__)
    QCOMPARE(AesCipher::Available(0) != &AesCipher::Portable, bool(__builtin_cpu_supports("aes")));
#else
    QVERIFY(AesCipher::Available(0));
#endif
}

void TestAes::publishedVectors_data()
{
    QTest::addColumn<Aes>("level");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("plain");
    QTest::addColumn<QByteArray>("cipher");

    const QByteArray plain197 = FromHex("00112233445566778899aabbccddeeff");
    QTest::newRow("FIPS-197 C.1") << QAESEncryption::AES_128 << QAESEncryption::ECB
                                  << kCountingKey.left(16) << plain197
                                  << FromHex("69c4e0d86a7b0430d8cdb78070b4c55a");
    QTest::newRow("FIPS-197 C.2") << QAESEncryption::AES_192 << QAESEncryption::ECB
                                  << kCountingKey.left(24) << plain197
                                  << FromHex("dda97ca4864cdfe06eaf70a0ec0d7191");
    QTest::newRow("FIPS-197 C.3") << QAESEncryption::AES_256 << QAESEncryption::ECB << kCountingKey
                                  << plain197 << FromHex("8ea2b7ca516745bfeafc49904b496089");

    // NIST SP 800-38A (2001), appendix F: for each key size the same key, vector and text.
    const QByteArray plain38a =
        FromHex("6bc1bee22e409f96e93d7e117393172a ae2d8a571e03ac9c9eb76fac45af8e51"
                "30c81c46a35ce411e5fbc1191a0a52ef f69f2445df4f9b17ad2b417be66c3710");
    const struct
    {
        const char* section;
        Aes level;
        Mode mode;
        const char* cipher;
    } tables[] = {
        {"F.1.1", QAESEncryption::AES_128, QAESEncryption::ECB,
         "3ad77bb40d7a3660a89ecaf32466ef97 f5d3d58503b9699de785895a96fdbaaf"
         "43b1cd7f598ece23881b00e3ed030688 7b0c785e27e8ad3f8223207104725dd4"},
        {"F.1.3", QAESEncryption::AES_192, QAESEncryption::ECB,
         "bd334f1d6e45f25ff712a214571fa5cc 974104846d0ad3ad7734ecb3ecee4eef"
         "ef7afd2270e2e60adce0ba2face6444e 9a4b41ba738d6c72fb16691603c18e0e"},
        {"F.1.5", QAESEncryption::AES_256, QAESEncryption::ECB,
         "f3eed1bdb5d2a03c064b5a7e3db181f8 591ccb10d410ed26dc5ba74a31362870"
         "b6ed21b99ca6f4f9f153e7b1beafed1d 23304b7a39f9f3ff067d8d8f9e24ecc7"},
        {"F.2.1", QAESEncryption::AES_128, QAESEncryption::CBC,
         "7649abac8119b246cee98e9b12e9197d 5086cb9b507219ee95db113a917678b2"
         "73bed6b8e3c1743b7116e69e22229516 3ff1caa1681fac09120eca307586e1a7"},
        {"F.2.3", QAESEncryption::AES_192, QAESEncryption::CBC,
         "4f021db243bc633d7178183a9fa071e8 b4d9ada9ad7dedf4e5e738763f69145a"
         "571b242012fb7ae07fa9baac3df102e0 08b0e27988598881d920a9e64f5615cd"},
        {"F.2.5", QAESEncryption::AES_256, QAESEncryption::CBC,
         "f58c4c04d6e5f1ba779eabfb5f7bfbd6 9cfc4e967edb808d679f777bc6702c7d"
         "39f23369a9d9bacfa530e26304231461 b2eb05e2c39be9fcda6c19078c6a9d1b"},
        {"F.3.13", QAESEncryption::AES_128, QAESEncryption::CFB,
         "3b3fd92eb72dad20333449f8e83cfb4a c8a64537a0b3a93fcde3cdad9f1ce58b"
         "26751f67a3cbb140b1808cf187a4f4df c04b05357c5d1c0eeac4c66f9ff7f2e6"},
        {"F.3.15", QAESEncryption::AES_192, QAESEncryption::CFB,
         "cdc80d6fddf18cab34c25909c99a4174 67ce7f7f81173621961a2b70171d3d7a"
         "2e1e8a1dd59b88b1c8e60fed1efac4c9 c05f9f9ca9834fa042ae8fba584b09ff"},
        {"F.3.17", QAESEncryption::AES_256, QAESEncryption::CFB,
         "dc7e84bfda79164b7ecd8486985d3860 39ffed143b28b1c832113c6331e5407b"
         "df10132415e54b92a13ed0a8267ae2f9 75a385741ab9cef82031623d55b1e471"},
        {"F.4.1", QAESEncryption::AES_128, QAESEncryption::OFB,
         "3b3fd92eb72dad20333449f8e83cfb4a 7789508d16918f03f53c52dac54ed825"
         "9740051e9c5fecf64344f7a82260edcc 304c6528f659c77866a510d9c1d6ae5e"},
        {"F.4.3", QAESEncryption::AES_192, QAESEncryption::OFB,
         "cdc80d6fddf18cab34c25909c99a4174 fcc28b8d4c63837c09e81700c1100401"
         "8d9a9aeac0f6596f559c6d4daf59a5f2 6d9f200857ca6c3e9cac524bd9acc92a"},
        {"F.4.5", QAESEncryption::AES_256, QAESEncryption::OFB,
         "dc7e84bfda79164b7ecd8486985d3860 4febdc6740d20b3ac88f6ad82a4fb08d"
         "71ab47a086e86eedf39d1c5bba97c408 0126141d67f37be8538f5a8be740e484"},
    };
    for (const auto& table : tables) {
        QTest::addRow("SP 800-38A %s", table.section)
            << table.level << table.mode << kKeys38A[table.level] << plain38a
            << FromHex(table.cipher);
    }
}

void TestAes::publishedVectors()
{
    QFETCH(Aes, level);
    QFETCH(Mode, mode);
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, plain);
    QFETCH(QByteArray, cipher);
    for (int i = 0; const AesCipher::Implementation* implementation = AesCipher::Available(i);
         ++i) {
        AesCipher::Use(implementation);
        QVERIFY2(QAESEncryption::Crypt(level, mode, plain, key, kIv, QAESEncryption::ZERO) ==
                     cipher,
                 implementation->name);
        QVERIFY2(QAESEncryption::Decrypt(level, mode, cipher, key, kIv, QAESEncryption::ZERO) ==
                     plain,
                 implementation->name);
    }
}

void TestAes::implementationsAgree_data()
{
    QTest::addColumn<Aes>("level");
    QTest::addColumn<Mode>("mode");
    const char* const modes[] = {"ECB", "CBC", "CFB", "OFB"};
    for (int level = 0; level < 3; ++level) {
        for (int mode = 0; mode < 4; ++mode) {
            QTest::addRow("%s, %d bits", modes[mode], 8 * KeyLength(Aes(level)))
                << Aes(level) << Mode(mode);
        }
    }
}

// Every length over one group of the widest vectors, then some over several; odd ones too.
void TestAes::implementationsAgree()
{
    QFETCH(Aes, level);
    QFETCH(Mode, mode);
    const bool stream = mode == QAESEncryption::CFB || mode == QAESEncryption::OFB;
    QRandomGenerator random(197);
    for (int size = 0; size < 2500; size += size < 560 ? 1 : 173) {
        const ExactArray text(RandomArray(random, size));
        const ExactArray key(RandomArray(random, KeyLength(level)));
        const ExactArray iv(RandomArray(random, 16));
        QAESEncryption aes(level, mode, QAESEncryption::PKCS7);
        AesCipher::Use(&AesCipher::Portable);
        const QByteArray encoded = aes.encode(text, key, iv);
        const QByteArray decoded = aes.decode(text, key, iv);
        QCOMPARE(encoded.size(), size / 16 * 16 + 16);
        // Of a text that is no multiple of 16, only the stream modes decrypt the rest.
        QCOMPARE(decoded.size(), stream ? size : size / 16 * 16);

        for (int i = 0; const AesCipher::Implementation* cipher = AesCipher::Available(i); ++i) {
            AesCipher::Use(cipher);
            QVERIFY2(aes.encode(text, key, iv) == encoded, cipher->name);
            QVERIFY2(aes.decode(text, key, iv) == decoded, cipher->name);
            const QByteArray plain = aes.decode(ExactArray(encoded), key, iv);
            QVERIFY2(aes.removePadding(plain) == text.Get(), cipher->name);
            // A text cut short decrypts to the same as far as it goes.
            const QByteArray part = aes.decode(ExactArray(encoded.left(size)), key, iv);
            QVERIFY2(part == plain.left(decoded.size()), cipher->name);
        }
    }
}

void TestAes::largeTexts_data()
{
    using AesCipher::Implementation;
    QTest::addColumn<TransformMember>("transform");
    QTest::newRow("ECB, encrypting") << &Implementation::EcbEncrypt;
    QTest::newRow("ECB, decrypting") << &Implementation::EcbDecrypt;
    QTest::newRow("CBC, decrypting") << &Implementation::CbcDecrypt;
    QTest::newRow("CFB, decrypting") << &Implementation::CfbDecrypt;
}

// Where results may be written in another way, which depends on how they lie in memory.
void TestAes::largeTexts()
{
    QFETCH(TransformMember, transform);
    // Little or nothing is left behind whole groups, to cover up what was written there.
    constexpr std::size_t blocks = (8 << 20) / 16 + 33;
    constexpr int size = int(blocks) * 16;
    QRandomGenerator random(38);
    const ExactArray text(RandomArray(random, size));
    const auto run = [&](const AesCipher::Implementation& cipher, char* out) {
        AesCipher::Schedule schedule;
        cipher.ExpandKey(Bytes(kCountingKey.constData()), 4, schedule);
        cipher.AddDecryptionKeys(schedule);
        QByteArray chain = kIv;
        (cipher.*transform)(schedule, Bytes(chain.data()), Bytes(text.Get().constData()),
                            Bytes(out), blocks);
        return chain;
    };
    QByteArray expected(size, Qt::Uninitialized);
    const QByteArray expectedChain = run(AesCipher::Portable, expected.data());

    for (int i = 0; AesCipher::Available(i) != &AesCipher::Portable; ++i) {
        const AesCipher::Implementation& cipher = *AesCipher::Available(i);
        for (int offset : {0, 8, 40, 61}) {
            std::vector<char> buffer(std::size_t(size) + 256, '#');
            char* const aligned = buffer.data() + 64 - quintptr(buffer.data()) % 64;
            char* const out = aligned + offset;
            QVERIFY2(run(cipher, out) == expectedChain, cipher.name);
            QVERIFY2(std::memcmp(out, expected.constData(), std::size_t(size)) == 0, cipher.name);
            // Nothing around it was touched.
            const auto untouched = std::count(buffer.data(), out, '#') +
                                   std::count(out + size, buffer.data() + buffer.size(), '#');
            QCOMPARE(untouched, std::ptrdiff_t(buffer.size()) - size);
        }
    }
}

void TestAes::keySchedule_data()
{
    QTest::addColumn<Aes>("level");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("lastRoundKey");
    // FIPS-197, appendix A.
    QTest::newRow("A.1") << QAESEncryption::AES_128 << kKeys38A[0]
                         << FromHex("d014f9a8c9ee2589e13f0cc8b6630ca6");
    QTest::newRow("A.2") << QAESEncryption::AES_192 << kKeys38A[1]
                         << FromHex("e98ba06f448c773c8ecc720401002202");
    QTest::newRow("A.3") << QAESEncryption::AES_256 << kKeys38A[2]
                         << FromHex("fe4890d1e6188d0b046df344706c631e");
}

void TestAes::keySchedule()
{
    QFETCH(Aes, level);
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, lastRoundKey);
    for (int i = 0; const AesCipher::Implementation* cipher = AesCipher::Available(i); ++i) {
        AesCipher::Use(cipher);
        const QByteArray schedule =
            QAESEncryption::ExpandKey(level, QAESEncryption::CBC, ExactArray(key));
        QCOMPARE(schedule.size(), 16 * (11 + 2 * level));
        QVERIFY2(schedule.startsWith(key) && schedule.endsWith(lastRoundKey), cipher->name);
        const QByteArray longer =
            QAESEncryption::ExpandKey(level, QAESEncryption::CBC, key + "xyz");
        QCOMPARE(longer, schedule + "xyz");
    }
}

void TestAes::refusedKeysAndVectors()
{
    const QByteArray text(20, 'a');
    for (int n = 0; n < 12; ++n) {
        const Aes level = Aes(n % 3);
        const Mode mode = Mode(n / 3);
        QAESEncryption aes(level, mode, QAESEncryption::ZERO);
        const QByteArray key = kCountingKey.left(KeyLength(level));
        const QByteArray encoded = aes.encode(text, key, kIv);
        QCOMPARE(encoded.size(), 32);
        QCOMPARE(aes.encode(text, key + "surplus", kIv), encoded);
        QVERIFY(aes.encode(QByteArray(), key, kIv).isEmpty());
        QVERIFY(aes.decode(QByteArray(), key, kIv).isEmpty());
        for (int length : {0, 1, key.size() - 1}) {
            const ExactArray shorter(key.left(length));
            QVERIFY(aes.encode(text, shorter, kIv).isEmpty());
            QVERIFY(aes.decode(encoded, shorter, kIv).isEmpty());
            QVERIFY(aes.expandKey(shorter).isEmpty());
        }
        for (int length : {0, 15, 17}) {
            const ExactArray iv((kIv + kIv).left(length));
            const bool ignored = mode == QAESEncryption::ECB;
            QCOMPARE(aes.encode(text, key, iv), ignored ? encoded : QByteArray());
            QCOMPARE(aes.decode(encoded, key, iv).isEmpty(), !ignored);
        }
    }
}

void TestAes::paddingAdded_data()
{
    QTest::addColumn<Padding>("padding");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("added");
    const QByteArray block(16, 'a');
    QTest::newRow("zero, rest") << QAESEncryption::ZERO << block.left(13) << QByteArray(3, 0);
    QTest::newRow("zero, whole blocks") << QAESEncryption::ZERO << block << QByteArray();
    QTest::newRow("PKCS7, rest") << QAESEncryption::PKCS7 << block + "abc" << QByteArray(13, 13);
    QTest::newRow("PKCS7, whole blocks") << QAESEncryption::PKCS7 << block << QByteArray(16, 16);
    QTest::newRow("PKCS7, empty") << QAESEncryption::PKCS7 << QByteArray() << QByteArray(16, 16);
    QTest::newRow("ISO, rest") << QAESEncryption::ISO << block.left(13) << FromHex("800000");
    QTest::newRow("ISO, one byte") << QAESEncryption::ISO << block.left(15) << FromHex("80");
    QTest::newRow("ISO, whole blocks") << QAESEncryption::ISO << block << QByteArray();
    QTest::newRow("ISO, empty") << QAESEncryption::ISO << QByteArray() << QByteArray();
}

void TestAes::paddingAdded()
{
    QFETCH(Padding, padding);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, added);
    for (Mode mode :
         {QAESEncryption::ECB, QAESEncryption::CBC, QAESEncryption::CFB, QAESEncryption::OFB}) {
        const QByteArray encoded =
            QAESEncryption::Crypt(QAESEncryption::AES_256, mode, text, kCountingKey, kIv, padding);
        QCOMPARE(QAESEncryption::Decrypt(QAESEncryption::AES_256, mode, encoded, kCountingKey, kIv,
                                         padding),
                 text + added);
    }
}

void TestAes::paddingRemoved_data()
{
    QTest::addColumn<Padding>("padding");
    QTest::addColumn<QByteArray>("padded");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char* name, Padding padding, const char* padded, const char* text) {
        QTest::newRow(name) << padding << FromHex(padded) << FromHex(text);
    };
    row("zero", QAESEncryption::ZERO, "0100020000", "010002");
    row("zero, none there", QAESEncryption::ZERO, "0001", "0001");
    row("zero, nothing else", QAESEncryption::ZERO, "0000", "");
    row("PKCS7, unchecked bytes", QAESEncryption::PKCS7, "aabb0102030405", "aabb");
    row("PKCS7, more than there are", QAESEncryption::PKCS7, "aabb7f", "");
    row("PKCS7, negative", QAESEncryption::PKCS7, "aabb80", "aabb80");
    row("PKCS7, none", QAESEncryption::PKCS7, "aabb00", "aabb00");
    row("PKCS7, empty", QAESEncryption::PKCS7, "", "");
    row("ISO", QAESEncryption::ISO, "aabb800000", "aabb");
    row("ISO, one of two marks", QAESEncryption::ISO, "aa8080", "aa80");
    row("ISO, no mark", QAESEncryption::ISO, "aa80bb0000", "aa80bb0000");
    row("ISO, zeros only", QAESEncryption::ISO, "000000", "");
}

void TestAes::paddingRemoved()
{
    QFETCH(Padding, padding);
    QFETCH(QByteArray, padded);
    QFETCH(QByteArray, text);
    QCOMPARE(QAESEncryption::RemovePadding(ExactArray(padded), padding), text);
}

void TestAes::hexadecimalText()
{
    QAESEncryption aes(QAESEncryption::AES_128, QAESEncryption::ECB, QAESEncryption::ZERO);
    unsigned char bytes[] = {0x00, 0x0f, 0xA5, 0xff};
    QCOMPARE(aes.printArray(bytes, 3), QByteArray("000fa5"));
    QVERIFY(aes.printArray(bytes, 0).isEmpty());
}

QTEST_GUILESS_MAIN(TestAes)
#include "tst_aes.moc"
