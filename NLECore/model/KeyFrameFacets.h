// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEKeyFrames.h"
#include "NLECore/model/NodeFacets.h"
#include "NLECore/scene/KeyFrameList.h"

namespace nle {

/// A node's key frames. Their times count from 0 at the in point to 1 at the end of the trim range.
///
/// Trimming changes the times and not the key frames: each stays with the frame that it was set at,
/// also outside of the range. With another speed or rate it stays with its instant of the material.
class KeyFrameFacet final : public NodeFacet<INLEKeyFrameList>
{
public:
    explicit KeyFrameFacet(TimelineNode& node);

    HRESULT GetCount(int* count) override;
    /// Index arguments that name no key frame, and records that hold a number that is not finite,
    /// are E_INVALIDARG and change nothing.
    HRESULT GetKeyFrame(int index, NLEKeyFrameRecord* record) override;
    /// Another time moves the key frame to another index; E_INVALIDARG when one is there already.
    HRESULT SetKeyFrame(int index, const NLEKeyFrameRecord* record) override;
    /// Replaces the key frame that is at the same time.
    HRESULT AddKeyFrame(const NLEKeyFrameRecord* record, int* index) override;
    HRESULT DeleteKeyFrame(int index) override;
    HRESULT DeleteAll() override;
    /// E_FAIL without key frames, E_INVALIDARG for a time that is not finite.
    HRESULT GetParamAt(double time, NLEKeyFrameRecord* record) override;
    /// The first key frame whose nearest frame is \a frame of \a frameCount; E_FAIL when there is
    /// none.
    HRESULT FindIndex(int frame, int frameCount, int* index) override;

    /// What applies; null when that is nothing.
    std::shared_ptr<const KeyFrameCurve> Curve() const;
    /// As Curve(), whether it applies or not.
    std::shared_ptr<const KeyFrameCurve> Stored() const;
    /// Takes key frames over with their axis.
    void Restore(const KeyFrameCurve& curve);
    /// The same material is counted in \a factor times as many frames from now on.
    void RescaleAxis(double factor);

    bool enabled = true;

private:
    void Changed() { m_curve.reset(); }
    bool Has(int index) const { return index >= 0 && index < m_frames.Count(); }
    void FollowRange();

    const TimelineNode& m_owner;
    KeyFrameList m_frames;
    KeyFrameAxis m_axis; ///< what the times count in; empty until the node has a length
    mutable std::shared_ptr<const KeyFrameCurve> m_curve; ///< null: to be made
};

class KeyFrameStatusFacet final : public NodeFacet<INLEKeyFrameStatus>
{
public:
    KeyFrameStatusFacet(IUnknown& node, KeyFrameFacet& keyFrames)
        : NodeFacet(node), m_keyFrames(keyFrames)
    {
    }

    HRESULT GetStatus(bool* enabled) override;
    HRESULT SetStatus(bool enabled) override;

private:
    KeyFrameFacet& m_keyFrames;
};

} // namespace nle
