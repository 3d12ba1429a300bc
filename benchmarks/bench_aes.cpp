// SPDX-License-Identifier: LGPL-2.1-or-later
// Encryption beside OpenSSL's EVP on the same buffers. Our side is the public class, which makes
// its schedule and its result anew for every message. The peer writes into a buffer that is there
// already; for 64-byte messages it makes a context each time, for longer ones it keeps one. Its
// cipher is looked up beforehand. Rounds are interleaved; figures are medians.
#include "CommonLib/QAESEncryption.h"
#include "CommonLib/aes/AesCipher_p.h"
#include "benchmarks/Median.h"

#include <openssl/evp.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kFreshContextSize = 64;
constexpr int kSizes[] = {kFreshContextSize, 1 << 10, 1 << 16, 1 << 24};
constexpr int kRounds = 31;
// What a side does in a round, at least one message.
constexpr int kRoundBytes = 1 << 20;
constexpr const char* kModes[] = {"ecb", "cbc", "cfb", "ofb"};

struct Case
{
    QAESEncryption::Aes level;
    QAESEncryption::Mode mode;
    bool encrypts;
    int size;
};

class Peer
{
public:
    Peer(const Case& test, const QByteArray& key, const QByteArray& iv)
        : m_cipher(EVP_CIPHER_fetch(nullptr, Name(test).c_str(), nullptr))
        , m_kept(test.size == kFreshContextSize ? nullptr : EVP_CIPHER_CTX_new())
        , m_out(static_cast<std::size_t>(test.size) + 32)
        , m_key(key)
        , m_iv(iv)
        , m_encrypts(test.encrypts)
    {
    }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    ~Peer()
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

template <class Message>
double Nanoseconds(int count, const Message& message)
{
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < count; ++i)
        message();
    const std::chrono::duration<double, std::nano> time = Clock::now() - start;
    return time.count() / count;
}

QByteArray Pattern(int size, int seed)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        bytes[i] = static_cast<char>((i * 167 + seed) >> 3);
    return bytes;
}

void Compare(const Case& test)
{
    const QByteArray text = Pattern(test.size, 11);
    const QByteArray key = Pattern(16 + 8 * test.level, 500);
    const QByteArray iv = Pattern(16, 900);
    Peer peer(test, key, iv);
    peer.Run(text);
    if (!peer.Gave(RunOurs(test, text, key, iv))) {
        std::fprintf(stderr, "the results differ\n");
        std::exit(1);
    }

    const int count = std::max(1, kRoundBytes / 4 / std::max(test.size, 1 << 10));
    std::vector<double> ours, theirs, ratios;
    for (int round = 0; round < kRounds; ++round) {
        ours.push_back(Nanoseconds(count, [&] { RunOurs(test, text, key, iv); }));
        theirs.push_back(Nanoseconds(count, [&] { peer.Run(text); }));
        // Within a round, what slows the machine for a while slows both sides.
        ratios.push_back(theirs.back() / ours.back());
    }
    std::printf("%-4s %s %d bits %9d bytes %12.0f ns %12.0f ns %7.2f GB/s %6.2f\n",
                kModes[test.mode], test.encrypts ? "enc" : "dec", 128 + 64 * test.level, test.size,
                Median(ours), Median(theirs), test.size / Median(ours), Median(ratios));
    std::fflush(stdout);
}

} // namespace

// The optional argument chooses an implementation by its number, 0 the best.
int main(int argc, char** argv)
{
    const AesCipher::Implementation* cipher =
        AesCipher::Available(argc > 1 ? std::atoi(argv[1]) : 0);
    if (!cipher) {
        std::fprintf(stderr, "no such implementation\n");
        return 1;
    }
    AesCipher::Use(cipher);
    std::printf("%s; a message of ours, of OpenSSL, our rate, our rate / OpenSSL's\n",
                cipher->name);
    for (int size : kSizes) {
        for (int mode = 0; mode < 4; ++mode) {
            for (bool encrypts : {true, false}) {
                for (int level = 0; level < 3; ++level)
                    Compare(
                        {QAESEncryption::Aes(level), QAESEncryption::Mode(mode), encrypts, size});
            }
        }
    }
    return 0;
}
