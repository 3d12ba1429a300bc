// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/PictureTrail.h"

#include <algorithm>
#include <tuple>

namespace nle {

namespace {

bool IsSame(const PictureTrail::Key& a, const PictureTrail::Key& b)
{
    const auto parts = [](const PictureTrail::Key& key) {
        return std::make_tuple(key.media.get(), key.stream, key.frame, key.size.width(),
                               key.size.height(), key.deinterlacing.mode, key.deinterlacing.order,
                               key.depth);
    };
    return parts(a) == parts(b);
}

} // namespace

void PictureTrail::BeginFrame()
{
    ++m_frame;
    while (!m_entries.empty() && m_entries.front().used + kFrames < m_frame) {
        m_bytes -= m_entries.front().image.sizeInBytes();
        m_entries.pop_front();
    }
}

QImage PictureTrail::Find(const Key& key)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry& entry) { return IsSame(entry.key, key); });
    if (found == m_entries.end())
        return {};
    found->used = m_frame;
    return found->image;
}

void PictureTrail::Add(const Key& key, const QImage& image)
{
    m_bytes += image.sizeInBytes();
    while (!m_entries.empty() && m_bytes > kMostBytes) {
        m_bytes -= m_entries.front().image.sizeInBytes();
        m_entries.pop_front();
    }
    if (m_bytes > kMostBytes)
        m_bytes = 0;
    else
        m_entries.push_back({key, image, m_frame});
}

} // namespace nle
