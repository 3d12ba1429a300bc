// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PictureCache.h"
#include "NLECore/media/MediaFile_p.h"

#include <algorithm>
#include <list>
#include <map>
#include <mutex>
#include <new>

extern "C" {
#include <libavutil/imgutils.h>
}

namespace nle {
namespace {

constexpr std::int64_t kPresetBytes = std::int64_t(512) << 20;

// Lines start at multiples of it, and so many bytes follow the last: what reads by vectors wants
// it.
constexpr int kAlignment = 64;

/// Bytes of a copy; 0 for what is not in system memory.
std::int64_t BytesOf(const AVFrame& picture)
{
    const int bytes = picture.hw_frames_ctx != nullptr
                          ? 0
                          : av_image_get_buffer_size(AVPixelFormat(picture.format), picture.width,
                                                     picture.height, kAlignment);
    return bytes > 0 ? std::int64_t(bytes) + kAlignment : 0;
}

PictureCache::Picture CopyOf(const AVFrame& picture, std::int64_t bytes)
{
    FramePtr copy(av_frame_alloc());
    if (!copy)
        return nullptr;
    copy->format = picture.format;
    copy->width = picture.width;
    copy->height = picture.height;
    copy->buf[0] = av_buffer_alloc(decltype(AVBufferRef::size)(bytes));
    if (copy->buf[0] == nullptr || av_frame_copy_props(copy.get(), &picture) < 0 ||
        av_image_fill_arrays(copy->data, copy->linesize, copy->buf[0]->data,
                             AVPixelFormat(copy->format), copy->width, copy->height,
                             kAlignment) < 0 ||
        av_frame_copy(copy.get(), &picture) < 0)
        return nullptr;
    return PictureCache::Picture(std::move(copy));
}

struct Entry
{
    PictureCache::Picture picture;
    std::map<std::int64_t, std::list<Entry>::iterator>* index; ///< of the shelf that it is on
    std::int64_t first;
    std::int64_t last;
    std::int64_t bytes;
};
using Entries = std::list<Entry>;

} // namespace

/// By the first frame that each picture shows. The lock of the cache guards it.
struct PictureCache::Shelf::Index
{
    std::map<std::int64_t, Entries::iterator> entries;

    Entries::iterator* At(std::int64_t frame)
    {
        auto after = entries.upper_bound(frame);
        if (after == entries.begin())
            return nullptr;
        --after;
        return after->second->last >= frame ? &after->second : nullptr;
    }
};

/// Lives as long as the cache or any shelf of it. The functions need the lock; they hand out what
/// is to be freed, as that takes time and is done after the lock was given up.
struct PictureCache::Shared
{
    mutable std::mutex mutex;
    Entries entries; ///< the one used last stands first
    std::int64_t maxBytes = 0;
    std::int64_t bytes = 0; ///< with those that are being copied

    Entries TakeSurplus(std::int64_t room)
    {
        Entries surplus;
        while (!entries.empty() && bytes + room > maxBytes)
            Take(std::prev(entries.end()), surplus);
        return surplus;
    }
    void Take(Entries::iterator entry, Entries& taken)
    {
        entry->index->erase(entry->first);
        bytes -= entry->bytes;
        taken.splice(taken.end(), entries, entry);
    }
};

PictureCache::Shelf::Shelf(const PictureCache& cache)
    : m_shared(cache.m_shared), m_index(std::make_unique<Index>())
{
}

PictureCache::Shelf::~Shelf()
{
    Clear();
}

void PictureCache::Shelf::Keep(const AVFrame& picture, std::int64_t first,
                               std::int64_t last) noexcept
{
    const std::int64_t bytes = BytesOf(picture);
    if (bytes == 0 || last < first)
        return;
    Entries surplus;
    {
        const std::lock_guard<std::mutex> lock(m_shared->mutex);
        if (const auto known = m_index->entries.find(first); known != m_index->entries.end()) {
            known->second->last = std::max(known->second->last, last);
            return;
        }
        if (bytes <= m_shared->maxBytes)
            surplus = m_shared->TakeSurplus(bytes);
        if (m_shared->bytes + bytes > m_shared->maxBytes)
            return;
        m_shared->bytes += bytes;
    }
    surplus.clear();
    Entries kept;
    try {
        kept.push_back({CopyOf(picture, bytes), &m_index->entries, first, last, bytes});
    } catch (const std::bad_alloc&) {
    }
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    try {
        if (!kept.empty() && kept.front().picture) {
            m_index->entries.emplace(first, kept.begin());
            m_shared->entries.splice(m_shared->entries.begin(), kept);
            return;
        }
    } catch (const std::bad_alloc&) {
    }
    m_shared->bytes -= bytes;
}

PictureCache::Picture PictureCache::Shelf::Find(std::int64_t frame)
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    const Entries::iterator* const entry = m_index->At(frame);
    if (entry == nullptr)
        return nullptr;
    m_shared->entries.splice(m_shared->entries.begin(), m_shared->entries, *entry);
    return (*entry)->picture;
}

bool PictureCache::Shelf::Has(std::int64_t frame) const
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    return m_index->At(frame) != nullptr;
}

PictureCache::Picture PictureCache::Shelf::FindNearest(std::int64_t frame, std::int64_t* found)
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    const auto after = m_index->entries.upper_bound(frame);
    Picture nearest;
    if (after != m_index->entries.end()) {
        nearest = after->second->picture;
        *found = after->first;
    }
    if (after == m_index->entries.begin())
        return nearest;
    const Entry& before = *std::prev(after)->second;
    const std::int64_t shown = std::min(before.last, frame);
    if (!nearest || frame - shown <= *found - frame) {
        nearest = before.picture;
        *found = shown;
    }
    return nearest;
}

std::int64_t PictureCache::Shelf::CapacityFor(const AVFrame& picture) const
{
    const std::int64_t bytes = BytesOf(picture);
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    return bytes > 0 ? m_shared->maxBytes / bytes : 0;
}

void PictureCache::Shelf::Clear()
{
    Entries closing;
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    while (!m_index->entries.empty())
        m_shared->Take(m_index->entries.begin()->second, closing);
}

PictureCache::PictureCache(std::int64_t maxBytes) : m_shared(std::make_shared<Shared>())
{
    SetMaxBytes(maxBytes);
}

PictureCache::~PictureCache() = default;

void PictureCache::SetMaxBytes(std::int64_t maxBytes)
{
    Entries closing;
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    m_shared->maxBytes = std::max<std::int64_t>(0, maxBytes);
    closing = m_shared->TakeSurplus(0);
}

std::int64_t PictureCache::MaxBytes() const
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    return m_shared->maxBytes;
}

std::int64_t PictureCache::Bytes() const
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    return m_shared->bytes;
}

void PictureCache::Clear()
{
    Entries closing;
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    while (!m_shared->entries.empty())
        m_shared->Take(m_shared->entries.begin(), closing);
}

PictureCache& KeptPictures()
{
    static PictureCache s_cache(kPresetBytes);
    return s_cache;
}

} // namespace nle
