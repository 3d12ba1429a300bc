// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/MovementKeys.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr double kPercent = 100;
constexpr double kFurthest = 2; // regions
constexpr double kLargest = 10;
constexpr double kFullTurn = 360;

QString Tr(const char* text)
{
    return QCoreApplication::translate("MovementKeys", text);
}

/// One number of a key frame; \a part gives it by a reference.
template <typename Part>
PropertyField MakeField(const char* title, double lowest, double highest, double preset,
                        const std::shared_ptr<MovementKeys>& keys,
                        const std::function<int()>& playHead, Part part)
{
    PropertyField field;
    field.title = Tr(title);
    field.lowest = lowest;
    field.highest = highest;
    field.preset = preset;
    field.factor = kPercent;
    field.suffix = Tr(QT_TRANSLATE_NOOP("MovementKeys", " %"));
    field.value = [keys, playHead, part] {
        VideoKeyFrameParam param = keys->ValueAt(keys->Nearest(playHead()));
        return double(part(param));
    };
    field.change = [keys, playHead, part](const QVariant& value) {
        const int frame = keys->Nearest(playHead());
        VideoKeyFrameParam param = keys->ValueAt(frame);
        part(param) = value.toDouble();
        return keys->Put(frame, param);
    };
    return field;
}

} // namespace

MovementKeys::MovementKeys(const NLEComPtr<INLETimeline>& clip) : KeyFrames(clip), m_setting(clip)
{
}

QVector<double> MovementKeys::Times() const
{
    QVector<double> times;
    for (const VideoKeyFrameParam& param : m_setting.GetAllKeyFrameParams())
        times.append(param.time);
    return times;
}

VideoKeyFrameParam MovementKeys::ValueAt(int frame) const
{
    return IsAnimated() ? m_setting.GetKeyFrameParam(Time(frame)) : VideoKeyFrameParam();
}

bool MovementKeys::Write(const Params& params) const
{
    m_setting.ClearAllKeyFrame();
    return std::all_of(params.begin(), params.end(), [this](const VideoKeyFrameParam& param) {
        return m_setting.AddKeyFrame(param) >= 0;
    });
}

PropertyChange MovementKeys::ChangeTo(const Params& params) const
{
    return {
        [keys = *this, params] { return keys.Write(params); },
        [keys = *this, before = m_setting.GetAllKeyFrameParams()] { return keys.Write(before); }};
}

MovementKeys::Params MovementKeys::Others(int frame) const
{
    Params params = m_setting.GetAllKeyFrameParams();
    const auto isThere = [&](const VideoKeyFrameParam& param) {
        return Frame(param.time) == frame;
    };
    params.erase(std::remove_if(params.begin(), params.end(), isThere), params.end());
    return params;
}

PropertyChange MovementKeys::Put(int frame, VideoKeyFrameParam value) const
{
    value.time = Time(frame);
    return ChangeTo(Others(frame) << value);
}

PropertyChange MovementKeys::Toggle(int frame) const
{
    return IsAt(frame) ? ChangeTo(Others(frame)) : Put(frame, ValueAt(frame));
}

std::optional<int> MovementKeys::Interpolation(int /*frame*/) const
{
    return NLEInterpolation_Linear;
}

PropertyChange MovementKeys::Interpolate(int /*frame*/, int /*interpolation*/) const
{
    return {};
}

QVector<PropertyField> MovementFields(const std::shared_ptr<MovementKeys>& keys,
                                      const std::function<int()>& playHead)
{
    using Param = VideoKeyFrameParam;
    const auto field = [&](const char* title, double lowest, double highest, double preset,
                           auto part) {
        return MakeField(title, lowest, highest, preset, keys, playHead, part);
    };
    PropertyField turn = field(
        QT_TRANSLATE_NOOP("MovementKeys", "Turn"), -kFullTurn, kFullTurn, 0,
        [](Param & param) -> auto& { return param.rotateAngle; });
    turn.factor = 1;
    turn.suffix = Tr(QT_TRANSLATE_NOOP("MovementKeys", "°"));
    return {field(
                QT_TRANSLATE_NOOP("MovementKeys", "Shift right"), -kFurthest, kFurthest, 0,
                [](Param & param) -> auto& { return param.position.rx(); }),
            field(
                QT_TRANSLATE_NOOP("MovementKeys", "Shift up"), -kFurthest, kFurthest, 0,
                [](Param & param) -> auto& { return param.position.ry(); }),
            field(
                QT_TRANSLATE_NOOP("MovementKeys", "Width factor"), 0, kLargest, 1,
                [](Param & param) -> auto& { return param.scale.rwidth(); }),
            field(
                QT_TRANSLATE_NOOP("MovementKeys", "Height factor"), 0, kLargest, 1,
                [](Param & param) -> auto& { return param.scale.rheight(); }),
            turn,
            field(
                QT_TRANSLATE_NOOP("MovementKeys", "Opacity factor"), 0, 1, 1,
                [](Param & param) -> auto& { return param.opacity; })};
}
