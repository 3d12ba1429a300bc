// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ContentHash.h"

#include <cstring>
#include <memory>

extern "C" {
#include <libavutil/mem.h>
#include <libavutil/murmur3.h>
}

namespace nle {

namespace {

struct MurmurFreer
{
    void operator()(AVMurMur3* state) const { av_free(state); }
};

} // namespace

ContentHash& ContentHash::Add(const QString& text)
{
    Add(text.size());
    return AddBytes(text.constData(), std::size_t(text.size()) * sizeof(QChar));
}

ContentKey ContentHash::Of(const void* bytes, std::size_t size)
{
    // Not kept for the thread: with mingw-w64 the memory of a thread's own objects goes before
    // them.
    const std::unique_ptr<AVMurMur3, MurmurFreer> state(av_murmur3_alloc());
    if (!state)
        return {};
    std::uint8_t result[16];
    av_murmur3_init(state.get());
    av_murmur3_update(state.get(), static_cast<const std::uint8_t*>(bytes), size);
    av_murmur3_final(state.get(), result);
    ContentKey key;
    std::memcpy(&key.high, result, sizeof key.high);
    std::memcpy(&key.low, result + sizeof key.high, sizeof key.low);
    return key;
}

QString ToText(const ContentKey& key)
{
    return QStringLiteral("%1%2")
        .arg(key.high, 16, 16, QLatin1Char('0'))
        .arg(key.low, 16, 16, QLatin1Char('0'));
}

} // namespace nle
