// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/SceneSegment.h"

#include "NLECore/media/Reasons.h"
#include "NLECore/model/TimelineNode.h"
#include "NLECore/scene/FrameMath.h"

#include <algorithm>

namespace nle {

namespace {

/// Whether a node shows more than one picture.
bool Changes(const Layer& layer)
{
    if (layer.kind == LayerKind::Composite)
        return !layer.children.empty();
    return layer.kind == LayerKind::Media && !layer.frozenFrame &&
           layer.ShownMedia()->kind == NLEMedia_Video;
}

} // namespace

HRESULT SceneSegment::Open(INLETimeline* timeline)
{
    return ComGuard([&] {
        m_composer.reset();
        m_detector.reset();
        const TimelineNode* node = TimelineNode::From(timeline);
        if (!node)
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        const Snapshot root = node->MakeSnapshot();
        const NLERange range = {std::max(0, root->range.in),
                                std::min(root->range.out, node->TotalLength() - 1)};
        m_range = Changes(*root) ? range : NLERange{0, -1};
        m_next = m_range.in;
        m_size = SceneDetector::PictureSize(QSize(root->size.width, root->size.height));
        m_composer.emplace(root);
        m_detector.emplace(IsRate(root->frameRate) ? ToDouble(root->frameRate) : 25);
        return S_OK;
    });
}

HRESULT SceneSegment::Next(int* frame)
{
    const NLEComPtr<SceneSegment> self(this); // the callback may give up the last reference
    return ComGuard([&] {
        if (!frame)
            return Refuse(E_POINTER);
        if (!m_detector)
            return Refuse(E_FAIL, NLEReason_WrongState);
        std::optional<int> scene = m_detector->Take();
        for (; !scene && m_next <= m_range.out; scene = m_detector->Take()) {
            if (!Report()) {
                *frame = -1;
                return S_FALSE;
            }
            LookAt(m_next++);
        }
        if (!scene)
            return S_FALSE;
        *frame = m_range.in + *scene;
        return S_OK;
    });
}

void SceneSegment::LookAt(std::int64_t frame)
{
    QRect place;
    const QImage picture = m_composer->Render(frame, m_size, &place);
    m_detector->Add(picture);
    if (frame == m_range.out)
        m_detector->Finish();
}

bool SceneSegment::Report()
{
    const double done = double(m_next - m_range.in) / double(NLERangeLength(m_range));
    return !m_callback || m_callback(int(done * 100), m_userData) == 0;
}

HRESULT SceneSegment::SetProgress(NLEProgressCallback callback, void* userData)
{
    m_callback = callback;
    m_userData = userData;
    return S_OK;
}

} // namespace nle
