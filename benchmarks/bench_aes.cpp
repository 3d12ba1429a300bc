// SPDX-License-Identifier: LGPL-2.1-or-later
// Encryption beside OpenSSL's EVP on the same buffers. Our side is the public class, which makes
// its schedule and its result anew for every message. The peer writes into a buffer that is there
// already; for 64-byte messages it makes a context each time, for longer ones it keeps one. Its
// cipher is looked up beforehand. Of the 96 cases those of 256 bits in messages of 64 bytes and of
// 64 KiB run, with --benchmark_filter=. all of them; "--cipher NUMBER", first of the arguments,
// chooses an implementation, 0 the best.
#include "CommonLib/QAESEncryption.h"
#include "CommonLib/aes/AesCipher_p.h"
#include "benchmarks/Pairs.h"

#include <openssl/evp.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int kFreshContextSize = 64;
constexpr int kSizes[] = {kFreshContextSize, 1 << 10, 1 << 16, 1 << 24};
constexpr const char* kModes[] = {"ecb", "cbc", "cfb", "ofb"};

struct Case
{
    QAESEncryption::Aes level;
    QAESEncryption::Mode mode;
    bool encrypts;
    int size;
};

class OpenSsl
{
public:
    OpenSsl(const Case& test, const QByteArray& key, const QByteArray& iv)
        : m_cipher(EVP_CIPHER_fetch(nullptr, Name(test).c_str(), nullptr))
        , m_kept(test.size == kFreshContextSize ? nullptr : EVP_CIPHER_CTX_new())
        , m_out(static_cast<std::size_t>(test.size) + 32)
        , m_key(key)
        , m_iv(iv)
        , m_encrypts(test.encrypts)
    {
    }
    OpenSsl(const OpenSsl&) = delete;
    OpenSsl& operator=(const OpenSsl&) = delete;
    ~OpenSsl()
    {
        EVP_CIPHER_CTX_free(m_kept);
        EVP_CIPHER_free(m_cipher);
    }

    void Run(const QByteArray& text)
    {
        EVP_CIPHER_CTX* context = m_kept ? m_kept : EVP_CIPHER_CTX_new();
        int length = 0;
        int rest = 0;
        const bool done =
            EVP_CipherInit_ex2(context, m_cipher, Bytes(m_key), Bytes(m_iv), m_encrypts, nullptr) &&
            EVP_CIPHER_CTX_set_padding(context, 0) &&
            EVP_CipherUpdate(context, m_out.data(), &length, Bytes(text), text.size()) &&
            EVP_CipherFinal_ex(context, m_out.data() + length, &rest);
        if (!done || length + rest != text.size())
            std::abort();
        if (!m_kept)
            EVP_CIPHER_CTX_free(context);
    }

    bool Gave(const QByteArray& result) const
    {
        return std::equal(result.begin(), result.end(), m_out.begin(), [](char a, unsigned char b) {
            return static_cast<unsigned char>(a) == b;
        });
    }

private:
    static std::string Name(const Case& test)
    {
        return "aes-" + std::to_string(128 + 64 * test.level) + "-" + kModes[test.mode];
    }
    static const unsigned char* Bytes(const QByteArray& array)
    {
        return reinterpret_cast<const unsigned char*>(array.constData());
    }

    EVP_CIPHER* m_cipher;
    EVP_CIPHER_CTX* m_kept;
    std::vector<unsigned char> m_out;
    const QByteArray m_key;
    const QByteArray m_iv;
    const bool m_encrypts;
};

QByteArray RunOurs(const Case& test, const QByteArray& text, const QByteArray& key,
                   const QByteArray& iv)
{
    // The texts are whole blocks, which this padding leaves alone.
    constexpr QAESEncryption::Padding padding = QAESEncryption::ZERO;
    return test.encrypts ? QAESEncryption::Crypt(test.level, test.mode, text, key, iv, padding)
                         : QAESEncryption::Decrypt(test.level, test.mode, text, key, iv, padding);
}

QByteArray Pattern(int size, int seed)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        bytes[i] = static_cast<char>((i * 167 + seed) >> 3);
    return bytes;
}

void Add(const Case& test)
{
    const QByteArray text = Pattern(test.size, 11);
    const QByteArray key = Pattern(16 + 8 * test.level, 500);
    const QByteArray iv = Pattern(16, 900);
    const auto peer = std::make_shared<OpenSsl>(test, key, iv);
    peer->Run(text);
    if (!peer->Gave(RunOurs(test, text, key, iv))) {
        std::fprintf(stderr, "the results differ\n");
        std::exit(1);
    }
    const QString name = QStringLiteral("%1 bits, %2 bytes, %3 %4")
                             .arg(128 + 64 * test.level)
                             .arg(test.size)
                             .arg(kModes[test.mode])
                             .arg(test.encrypts ? "encrypted" : "decrypted");
    AddPair(
        name, [=] { return RunOurs(test, text, key, iv); }, Other("OpenSSL"),
        [=] { peer->Run(text); });
}

} // namespace

int main(int argc, char** argv)
{
    int number = 0;
    if (argc > 2 && std::strcmp(argv[1], "--cipher") == 0) {
        number = std::atoi(argv[2]);
        argv[2] = argv[0];
        argv += 2;
        argc -= 2;
    }
    const AesCipher::Implementation* cipher = AesCipher::Available(number);
    if (!cipher) {
        std::fprintf(stderr, "no such implementation\n");
        return 1;
    }
    AesCipher::Use(cipher);
    std::printf("%s\n", cipher->name);
    for (int size : kSizes) {
        for (int mode = 0; mode < 4; ++mode) {
            for (bool encrypts : {true, false}) {
                for (int level = 0; level < 3; ++level)
                    Add({QAESEncryption::Aes(level), QAESEncryption::Mode(mode), encrypts, size});
            }
        }
    }
    std::string usual = "--benchmark_filter=256 bits, (64|65536) bytes";
    std::vector<char*> arguments = {argv[0], usual.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return RunPairs(int(arguments.size()), arguments.data());
}
