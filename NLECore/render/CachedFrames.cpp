// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/CachedFrames.h"

namespace nle {

CachedFrames::CachedFrames(std::shared_ptr<const ChunkPlan> plan, std::shared_ptr<ChunkStore> store)
    : m_plan(std::move(plan))
    , m_store(std::move(store))
    , m_decoder(PictureDecoder::Open(m_plan->Coding().format))
{
}

QImage CachedFrames::Picture(std::int64_t frame, const QSize& size)
{
    if (!m_decoder || !OpenChunkOf(frame))
        return {};
    QImage image = m_decoder->Decode(m_reader->Picture(int(frame - m_chunk->first)), size);
    if (image.isNull()) {
        m_reader.reset();
        m_store->Remove(m_chunk->key);
        m_chunk = nullptr;
    }
    return image;
}

bool CachedFrames::OpenChunkOf(std::int64_t frame)
{
    const Chunk* chunk = m_plan->At(frame);
    if (!chunk)
        return false;
    if (chunk != m_chunk) {
        m_reader = m_store->Read(chunk->key);
        m_chunk = m_reader ? chunk : nullptr;
    }
    return m_reader != nullptr;
}

} // namespace nle
