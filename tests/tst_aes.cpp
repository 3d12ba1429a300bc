// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/QAESEncryption.h"
#include "CommonLib/aes/AesCipher_p.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <cstring>
#include <functional>
#include <vector>

namespace {

using AesCipher::Implementation;
using Crypto = QAESEncryption;
using Aes = Crypto::Aes;
using MemberTransform = AesCipher::Transform Implementation::*;
using Mode = Crypto::Mode;
using Padding = Crypto::Padding;

QByteArray FromHex(const char* hex)
{
    return QByteArray::fromHex(hex);
}

// Bytes with nothing behind them that could be read by mistake unseen by a sanitizer.
class ExactArray
{
public:
    explicit ExactArray(const QByteArray& bytes) : m_bytes(bytes.begin(), bytes.end()) {}
    const char* Data() const { return m_bytes.data(); }
    operator QByteArray() const { return QByteArray::fromRawData(Data(), int(m_bytes.size())); }

private:
    std::vector<char> m_bytes;
};

QByteArray RandomArray(QRandomGenerator& random, int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    std::generate(bytes.begin(), bytes.end(), [&random] { return char(random.generate()); });
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

// NIST SP 800-38A (2001), F.1 to F.4 with whole blocks: of each mode all three key sizes.
const char* const kPlain38A = "6bc1bee22e409f96e93d7e117393172aae2d8a571e03ac9c9eb76fac45af8e51"
                              "30c81c46a35ce411e5fbc1191a0a52eff69f2445df4f9b17ad2b417be66c3710";
const char* const kCiphers38A[] = {
    "3ad77bb40d7a3660a89ecaf32466ef97f5d3d58503b9699de785895a96fdbaaf"
    "43b1cd7f598ece23881b00e3ed0306887b0c785e27e8ad3f8223207104725dd4",
    "bd334f1d6e45f25ff712a214571fa5cc974104846d0ad3ad7734ecb3ecee4eef"
    "ef7afd2270e2e60adce0ba2face6444e9a4b41ba738d6c72fb16691603c18e0e",
    "f3eed1bdb5d2a03c064b5a7e3db181f8591ccb10d410ed26dc5ba74a31362870"
    "b6ed21b99ca6f4f9f153e7b1beafed1d23304b7a39f9f3ff067d8d8f9e24ecc7",
    "7649abac8119b246cee98e9b12e9197d5086cb9b507219ee95db113a917678b2"
    "73bed6b8e3c1743b7116e69e222295163ff1caa1681fac09120eca307586e1a7",
    "4f021db243bc633d7178183a9fa071e8b4d9ada9ad7dedf4e5e738763f69145a"
    "571b242012fb7ae07fa9baac3df102e008b0e27988598881d920a9e64f5615cd",
    "f58c4c04d6e5f1ba779eabfb5f7bfbd69cfc4e967edb808d679f777bc6702c7d"
    "39f23369a9d9bacfa530e26304231461b2eb05e2c39be9fcda6c19078c6a9d1b",
    "3b3fd92eb72dad20333449f8e83cfb4ac8a64537a0b3a93fcde3cdad9f1ce58b"
    "26751f67a3cbb140b1808cf187a4f4dfc04b05357c5d1c0eeac4c66f9ff7f2e6",
    "cdc80d6fddf18cab34c25909c99a417467ce7f7f81173621961a2b70171d3d7a"
    "2e1e8a1dd59b88b1c8e60fed1efac4c9c05f9f9ca9834fa042ae8fba584b09ff",
    "dc7e84bfda79164b7ecd8486985d386039ffed143b28b1c832113c6331e5407b"
    "df10132415e54b92a13ed0a8267ae2f975a385741ab9cef82031623d55b1e471",
    "3b3fd92eb72dad20333449f8e83cfb4a7789508d16918f03f53c52dac54ed825"
    "9740051e9c5fecf64344f7a82260edcc304c6528f659c77866a510d9c1d6ae5e",
    "cdc80d6fddf18cab34c25909c99a4174fcc28b8d4c63837c09e81700c1100401"
    "8d9a9aeac0f6596f559c6d4daf59a5f26d9f200857ca6c3e9cac524bd9acc92a",
    "dc7e84bfda79164b7ecd8486985d38604febdc6740d20b3ac88f6ad82a4fb08d"
    "71ab47a086e86eedf39d1c5bba97c4080126141d67f37be8538f5a8be740e484"};

std::uint8_t* Bytes(char* bytes)
{
    return reinterpret_cast<std::uint8_t*>(bytes);
}

const std::uint8_t* Bytes(const char* bytes)
{
    return reinterpret_cast<const std::uint8_t*>(bytes);
}

const char* const kModes[] = {"ECB", "CBC", "CFB", "OFB"};

int KeySize(int level)
{
    return 16 + 8 * level;
}

// Calls for every mode and level, with words that name both.
void ForEachMode(const std::function<void(const char* name, int mode, int level)>& call)
{
    for (int mode = Crypto::ECB; mode <= Crypto::OFB; ++mode) {
        for (int level = Crypto::AES_128; level <= Crypto::AES_256; ++level) {
            const QString name = QString("%1, %2 bits").arg(kModes[mode]).arg(8 * KeySize(level));
            call(qPrintable(name), mode, level);
        }
    }
}

void AddModes()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("level");
    ForEachMode(
        [](const char* name, int mode, int level) { QTest::newRow(name) << mode << level; });
}

// Returns the chaining block that a following call needs.
QByteArray Run(const Implementation& cipher, MemberTransform transform, const ExactArray& text,
               char* out)
{
    AesCipher::Schedule schedule;
    cipher.expandKey(Bytes(kCountingKey.constData()), 4, schedule);
    cipher.addDecryptionKeys(schedule);
    QByteArray chain = kIv;
    const auto blocks = std::size_t(QByteArray(text).size() / AesCipher::kBlockSize);
    (cipher.*transform)(schedule, Bytes(chain.data()), Bytes(text.Data()), Bytes(out), blocks);
    return chain;
}

} // namespace

Q_DECLARE_METATYPE(MemberTransform)

/// Encryption against published vectors, and every implementation of the cipher against each other.
class TestAes : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { AesCipher::Use(nullptr); }

    void processorIsUsed()
    {
#if defined(__x86_64__) && defined(__GNUC__)
        const bool isUsed = AesCipher::Available(0) != &AesCipher::kPortable;
        QCOMPARE(isUsed, bool(__builtin_cpu_supports("aes")));
#else
        QVERIFY(AesCipher::Available(0));
#endif
    }

    void publishedVectors_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("plain");
        QTest::addColumn<QByteArray>("cipher");
        const auto row = [](const char* name, Mode mode, const QByteArray& key, const char* plain,
                            const char* cipher) {
            QTest::addRow("%s, %d bits", name, 8 * int(key.size()))
                << int(mode) << key << FromHex(plain) << FromHex(cipher);
        };
        const char* plain197 = "00112233445566778899aabbccddeeff"; // FIPS-197, appendix C
        row("C.1", Crypto::ECB, kIv, plain197, "69c4e0d86a7b0430d8cdb78070b4c55a");
        row("C.2", Crypto::ECB, kCountingKey.left(24), plain197,
            "dda97ca4864cdfe06eaf70a0ec0d7191");
        row("C.3", Crypto::ECB, kCountingKey, plain197, "8ea2b7ca516745bfeafc49904b496089");
        const char* const sections[] = {"F.1", "F.2", "F.3", "F.4"};
        for (int n = 0; n < 12; ++n)
            row(sections[n / 3], Mode(n / 3), kKeys38A[n % 3], kPlain38A, kCiphers38A[n]);
    }
    void publishedVectors()
    {
        QFETCH(int, mode);
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, plain);
        QFETCH(QByteArray, cipher);
        const Aes level = Aes((key.size() - 16) / 8);
        for (int i = 0; const Implementation* implementation = AesCipher::Available(i); ++i) {
            AesCipher::Use(implementation);
            Crypto aes(level, Mode(mode), Crypto::ZERO);
            QVERIFY2(aes.encode(plain, key, kIv) == cipher, implementation->name);
            QVERIFY2(aes.decode(cipher, key, kIv) == plain, implementation->name);
        }
    }

    void implementationsAgree_data()
    {
        AddModes();
    }
    // Every length over one group of the widest vectors, then some over several; odd ones too.
    void implementationsAgree()
    {
        QFETCH(int, level);
        QFETCH(int, mode);
        const bool stream = mode == Crypto::CFB || mode == Crypto::OFB;
        QRandomGenerator random(197);
        for (int size = 0; size < 2500; size += size < 560 ? 1 : 173) {
            const ExactArray text(RandomArray(random, size));
            const ExactArray key(RandomArray(random, KeySize(level)));
            const ExactArray iv(RandomArray(random, 16));
            Crypto aes(Aes(level), Mode(mode), Crypto::PKCS7);
            AesCipher::Use(&AesCipher::kPortable);
            const QByteArray encoded = aes.encode(text, key, iv);
            const QByteArray decoded = aes.decode(text, key, iv);
            QCOMPARE(encoded.size(), size / 16 * 16 + 16);
            // Of a text that is no multiple of 16, only the stream modes decrypt the rest.
            QCOMPARE(decoded.size(), stream ? size : size / 16 * 16);

            for (int i = 0; const Implementation* cipher = AesCipher::Available(i); ++i) {
                AesCipher::Use(cipher);
                QVERIFY2(aes.encode(text, key, iv) == encoded, cipher->name);
                QVERIFY2(aes.decode(text, key, iv) == decoded, cipher->name);
                const QByteArray plain = aes.decode(ExactArray(encoded), key, iv);
                QVERIFY2(aes.removePadding(plain) == QByteArray(text), cipher->name);
                // A text cut short decrypts to the same as far as it goes.
                const QByteArray part = aes.decode(ExactArray(encoded.left(size)), key, iv);
                QVERIFY2(part == plain.left(decoded.size()), cipher->name);
            }
        }
    }

    void largeTexts_data()
    {
        QTest::addColumn<MemberTransform>("transform");
        QTest::newRow("ECB, encrypted") << &Implementation::ecbEncrypt;
        QTest::newRow("ECB, decrypted") << &Implementation::ecbDecrypt;
        QTest::newRow("CBC, decrypted") << &Implementation::cbcDecrypt;
        QTest::newRow("CFB, decrypted") << &Implementation::cfbDecrypt;
    }
    // Where results may be written in another way, which depends on how they lie in memory.
    void largeTexts()
    {
        QFETCH(MemberTransform, transform);
        // Little or nothing is left behind whole groups, to cover up what was written there.
        constexpr int size = (8 << 20) + 33 * AesCipher::kBlockSize;
        QRandomGenerator random(38);
        const ExactArray text(RandomArray(random, size));
        std::vector<char> expected(size);
        const QByteArray expectedChain =
            Run(AesCipher::kPortable, transform, text, expected.data());

        for (int i = 0; AesCipher::Available(i) != &AesCipher::kPortable; ++i) {
            const Implementation& cipher = *AesCipher::Available(i);
            for (int offset : {0, 8, 40, 61}) {
                std::vector<char> buffer(size + 256, '#');
                char* const out = buffer.data() + 64 - quintptr(buffer.data()) % 64 + offset;
                const QString place = QString("%1, offset %2").arg(cipher.name).arg(offset);
                const QByteArray chain = Run(cipher, transform, text, out);
                QVERIFY2(chain == expectedChain, qPrintable(place));
                QVERIFY2(std::equal(expected.begin(), expected.end(), out), qPrintable(place));
                // Nothing around it was touched.
                const auto before = std::count(buffer.data(), out, '#');
                const auto after = std::count(out + size, buffer.data() + buffer.size(), '#');
                QCOMPARE(before + after, 256);
            }
        }
    }

    void keySchedule_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QByteArray>("lastRoundKey"); // FIPS-197, appendix A
        QTest::newRow("128 bits") << int(Crypto::AES_128)
                                  << FromHex("d014f9a8c9ee2589e13f0cc8b6630ca6");
        QTest::newRow("192 bits") << int(Crypto::AES_192)
                                  << FromHex("e98ba06f448c773c8ecc720401002202");
        QTest::newRow("256 bits") << int(Crypto::AES_256)
                                  << FromHex("fe4890d1e6188d0b046df344706c631e");
    }
    void keySchedule()
    {
        QFETCH(int, level);
        QFETCH(QByteArray, lastRoundKey);
        const QByteArray& key = kKeys38A[level];
        for (int i = 0; const Implementation* cipher = AesCipher::Available(i); ++i) {
            AesCipher::Use(cipher);
            const auto expand = [level](const QByteArray& bytes) {
                return Crypto::ExpandKey(Aes(level), Crypto::CBC, bytes);
            };
            const QByteArray schedule = expand(ExactArray(key));
            QCOMPARE(schedule.size(),
                     AesCipher::ScheduleSize(AesCipher::RoundsFor(KeySize(level) / 4)));
            QVERIFY2(schedule.startsWith(key), cipher->name);
            QVERIFY2(schedule.endsWith(lastRoundKey), cipher->name);
            QCOMPARE(expand(key + "xyz"), schedule + "xyz");
        }
    }

    void emptyTextStaysEmpty_data()
    {
        AddModes();
    }
    void emptyTextStaysEmpty()
    {
        QFETCH(int, mode);
        QFETCH(int, level);
        Crypto aes(Aes(level), Mode(mode), Crypto::ZERO);
        QCOMPARE(aes.encode(QByteArray(), kCountingKey, kIv), QByteArray());
        QCOMPARE(aes.decode(QByteArray(), kCountingKey, kIv), QByteArray());
    }

    void keysAndVectors_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("level");
        QTest::addColumn<int>("keySize");
        QTest::addColumn<int>("vectorSize");
        QTest::addColumn<bool>("isRefused");
        ForEachMode([](const char* name, int mode, int level) {
            const auto row = [&](const char* what, int keySize, int vectorSize, bool isRefused) {
                QTest::addRow("%s, %s", name, what)
                    << mode << level << keySize << vectorSize << isRefused;
            };
            const int size = KeySize(level);
            row("key with a surplus", size + 7, 16, false);
            row("key a byte short", size - 1, 16, true);
            row("key of a byte", 1, 16, true);
            row("no key", 0, 16, true);
            const bool hasVector = mode != Crypto::ECB;
            row("no vector", size, 0, hasVector);
            row("short vector", size, 15, hasVector);
            row("long vector", size, 17, hasVector);
        });
    }
    void keysAndVectors()
    {
        QFETCH(int, mode);
        QFETCH(int, level);
        QFETCH(int, keySize);
        QFETCH(int, vectorSize);
        QFETCH(bool, isRefused);
        const QByteArray text(20, 'a');
        const QByteArray goodKey = kCountingKey.left(KeySize(level));
        Crypto aes(Aes(level), Mode(mode), Crypto::ZERO);
        const QByteArray encoded = aes.encode(text, goodKey, kIv);
        QCOMPARE(encoded.size(), 32);
        const ExactArray key((goodKey + "surplus").left(keySize));
        const ExactArray iv(kCountingKey.left(vectorSize));
        QCOMPARE(aes.encode(text, key, iv), isRefused ? QByteArray() : encoded);
        QCOMPARE(aes.decode(encoded, key, iv).isEmpty(), isRefused);
        QCOMPARE(aes.expandKey(key).isEmpty(), keySize < KeySize(level));
    }

    void paddingAdded_data()
    {
        QTest::addColumn<int>("padding");
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("added");
        const auto row = [](const char* name, Padding padding, int size, const QByteArray& added) {
            for (int mode = Crypto::ECB; mode <= Crypto::OFB; ++mode) {
                QTest::addRow("%s, %s", name, kModes[mode])
                    << int(padding) << mode << size << added;
            }
        };
        row("zeros, part of a block", Crypto::ZERO, 13, QByteArray(3, 0));
        row("zeros, whole block", Crypto::ZERO, 16, "");
        row("PKCS7, part of a block", Crypto::PKCS7, 19, QByteArray(13, 13));
        row("PKCS7, whole block", Crypto::PKCS7, 16, QByteArray(16, 16));
        row("PKCS7, no text", Crypto::PKCS7, 0, QByteArray(16, 16));
        row("ISO, part of a block", Crypto::ISO, 13, FromHex("800000"));
        row("ISO, room for the mark alone", Crypto::ISO, 15, FromHex("80"));
        row("ISO, whole block", Crypto::ISO, 16, "");
        row("ISO, no text", Crypto::ISO, 0, "");
    }
    void paddingAdded()
    {
        QFETCH(int, padding);
        QFETCH(int, mode);
        QFETCH(int, size);
        QFETCH(QByteArray, added);
        const QByteArray text(size, 'a');
        const QByteArray encoded =
            Crypto::Crypt(Crypto::AES_256, Mode(mode), text, kCountingKey, kIv, Padding(padding));
        const QByteArray decoded = Crypto::Decrypt(Crypto::AES_256, Mode(mode), encoded,
                                                   kCountingKey, kIv, Padding(padding));
        QCOMPARE(decoded, text + added);
    }

    void paddingRemoved_data()
    {
        QTest::addColumn<int>("padding");
        QTest::addColumn<QByteArray>("padded"); // hexadecimal
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* name, Padding padding, const char* padded,
                            const char* text) {
            QTest::newRow(name) << int(padding) << QByteArray(padded) << QByteArray(text);
        };
        row("zeros at the end", Crypto::ZERO, "0100020000", "010002");
        row("zeros before the end", Crypto::ZERO, "0001", "0001");
        row("zeros alone", Crypto::ZERO, "0000", "");
        row("PKCS7 looks at the last byte only", Crypto::PKCS7, "aabb0102030405", "aabb");
        row("PKCS7, more than there are", Crypto::PKCS7, "aabb7f", "");
        row("PKCS7, negative", Crypto::PKCS7, "aabb80", "aabb80");
        row("PKCS7, zero", Crypto::PKCS7, "aabb00", "aabb00");
        row("PKCS7, no text", Crypto::PKCS7, "", "");
        row("ISO, mark and zeros", Crypto::ISO, "aabb800000", "aabb");
        row("ISO, two marks", Crypto::ISO, "aa8080", "aa80");
        row("ISO, mark with text behind", Crypto::ISO, "aa80bb0000", "aa80bb0000");
        row("ISO, no mark", Crypto::ISO, "000000", "");
    }
    void paddingRemoved()
    {
        QFETCH(int, padding);
        QFETCH(QByteArray, padded);
        const ExactArray exact(QByteArray::fromHex(padded));
        QTEST(Crypto::RemovePadding(exact, Padding(padding)).toHex(), "text");
    }

    void hexadecimalText()
    {
        Crypto aes(Crypto::AES_128, Crypto::ECB, Crypto::ZERO);
        unsigned char bytes[] = {0x00, 0x0f, 0xA5, 0xff};
        QCOMPARE(aes.printArray(bytes, 3), QByteArray("000fa5"));
        QVERIFY(aes.printArray(bytes, 0).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestAes)
#include "tst_aes.moc"
