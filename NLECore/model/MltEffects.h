// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentRemarks.h"
#include "NLECore/model/MltDocument.h"
#include "NLECore/model/TimelineNode.h"

namespace nle {

/// One key frame of an animated property.
struct MltKey
{
    double frame;
    QString value;
};

/// The key frames of an animated property, "time=value;time=value", in order; one at frame 0 for a
/// plain value. \a length is what times before 0 count from.
std::vector<MltKey> MltKeys(const QString& text, const NLERational& rate, std::int64_t length);

/// A gain as a factor or with "dB" behind it; \a preset when it is neither.
double MltGain(const QString& text, double preset);

/// The balance that a panner filter sets, -1 to 1; none when it does something else.
std::optional<double> MltBalance(const MltEffect& effect);

/// The mode of blending that a transition or filter names by the number of its `compositing`; none
/// for one that there is not.
std::optional<BlendMode> MltBlendMode(int compositing);
/// The number of a mode.
int MltCompositing(BlendMode mode);

/// Makes settings of a clip of the filters that other programs have put on it. What has no setting
/// here is left out, with a remark.
class MltEffects
{
public:
    /// \a node has its range, which the filters' times are compared with, and \a canvas is the size
    /// that rectangles count in. \a name is what remarks call the clip.
    MltEffects(TimelineNode& node, NLESize canvas, const QString& name, DocumentRemarks& remarks);

    /// Whether the filter is one of sound, of which a setting could be made.
    static bool IsSound(const MltEffect& effect);
    /// Whether the filter is one of pictures, of which a setting could be made.
    static bool IsPicture(const MltEffect& effect);

    /// All filters of a clip, which has no such settings yet.
    void Take(const std::vector<MltEffect>& effects);
    /// Says that a filter was left out.
    void LeaveOut(const MltEffect& effect);

private:
    struct Gain
    {
        double frame;
        double gain;
    };
    /// The numbers of a rectangle with what they count in.
    struct Rect
    {
        double x, y, width, height, opacity;
    };

    void TakeOne(const MltEffect& effect);
    bool TakeVolume(const MltEffect& effect);
    bool TakeRamp(const MltEffect& effect, double start, double end);
    void TakeLevels(const MltEffect& effect);
    bool TakeBrightness(const MltEffect& effect);
    bool TakeRect(const MltEffect& effect);
    void AddCurve(const MltEffect& effect, const std::vector<Gain>& gains);
    void Finish();
    void FinishSound();
    void FinishPicture();
    NLEKeyFrameRecord MotionAt(const Rect& rect, double rotation, bool distorts) const;
    bool Covers(const MltEffect& effect) const;
    std::int64_t In(const MltEffect& effect) const;
    std::int64_t Out(const MltEffect& effect) const;
    Rect ParseRect(const QString& text, double fullOpacity) const;

    TimelineNode& m_node;
    const NLERange m_range;
    const NLESize m_canvas;
    const QString m_name;
    DocumentRemarks& m_remarks;
    std::vector<std::vector<VolumePoint>> m_curves;
    /// Key frames by their frames.
    std::map<double, NLEKeyFrameRecord> m_motion;
    std::map<double, NLEKeyFrameRecord> m_opacity;
};

} // namespace nle
