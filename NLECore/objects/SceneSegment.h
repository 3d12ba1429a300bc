// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFrames.h"
#include "NLECore/render/Composer.h"
#include "NLECore/render/SceneDetector.h"

#include <optional>

namespace nle {

/// Looks for scenes in a snapshot, frame by frame as it plays.
class SceneSegment final : public ComObject<INLESceneSegment, INLESceneProgress>
{
public:
    /// E_INVALIDARG for null and another engine's node. What shows one picture has no scenes.
    HRESULT Open(INLETimeline* timeline) override;
    /// E_FAIL before Open.
    HRESULT Next(int* frame) override;

    HRESULT SetProgress(NLEProgressCallback callback, void* userData) override;

private:
    /// False when the callback stopped it.
    bool Report();
    void LookAt(std::int64_t frame);

    NLERange m_range = {0, -1};
    std::int64_t m_next = 0; ///< frame to look at
    QSize m_size;
    std::optional<Composer> m_composer;
    std::optional<SceneDetector> m_detector;

    NLEProgressCallback m_callback = nullptr;
    void* m_userData = nullptr;
};

} // namespace nle
