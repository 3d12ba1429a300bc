// SPDX-License-Identifier: LGPL-2.1-or-later
// Texts, keys and vectors of any length in all modes: what was encrypted comes back.
#include "CommonLib/QAESEncryption.h"
#include "Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    const auto level = QAESEncryption::Aes(input.Take<std::uint8_t>() % 3);
    const auto mode = QAESEncryption::Mode(input.Take<std::uint8_t>() % 4);
    const auto padding = QAESEncryption::Padding(input.Take<std::uint8_t>() % 3);
    const QByteArray key = input.Take(input.Take<std::uint8_t>() % 40);
    const QByteArray iv = input.Take(input.Take<std::uint8_t>() % 20);
    const QByteArray& text = input.Rest();
    QAESEncryption aes(level, mode, padding);
    const bool isUsable =
        key.size() >= 16 + 8 * int(level) && (mode == QAESEncryption::ECB || iv.size() == 16);
    const QByteArray secret = aes.encode(text, key, iv);
    fuzz::Require(isUsable || secret.isEmpty(), "nothing without a whole key and vector");
    const QByteArray back = aes.decode(secret, key, iv);
    fuzz::Require(!isUsable || back.startsWith(text), "what was encrypted comes back");
    if (isUsable && padding == QAESEncryption::PKCS7)
        fuzz::Require(aes.removePadding(back) == text, "and its padding goes");
    aes.removePadding(aes.decode(text, key, iv));
    aes.expandKey(key);
    return 0;
}
