// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/EffectFilters.h"

#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/EffectNode.h"
#include "NLECore/render/Composer.h"
#include "NLECore/render/EffectKinds.h"
#include "NLECore/render/SoundKinds.h"
#include "NLECore/scene/FrameMath.h"

#include <QStringList>

#include <set>

namespace nle {

namespace {

/// Steps in which a way from a key frame to the next one is written that is no straight line.
constexpr int kSteps = 8;

/// Pixels of the document's picture for one of the clip's: other programs bring its picture to the
/// size of the timeline first.
QPointF ScaleOf(const TimelineNode& node)
{
    const NLESize size = node.PictureSize();
    const NLESize parent = node.Parent() ? node.Parent()->PictureSize() : size;
    if (size.width < 1 || size.height < 1)
        return {1, 1};
    const QSize canvas(parent.width, parent.height);
    const QRect place = PlacePicture(size, NLEMargin_Fit, parent, canvas);
    return {double(place.width()) / size.width, double(place.height()) / size.height};
}

/// Frames, 0 and later ones, at which a filter has to have a value so that it goes as the key
/// frames do.
std::set<int> FramesOf(const ParameterValues& values)
{
    std::set<int> frames;
    const auto add = [&](double time) {
        frames.insert(std::max(0, ClampToInt(std::round(values.Axis().FrameOf(time)))));
    };
    for (int index = 0; index < int(values.Declared().parameters.size()); ++index) {
        const ParameterKey* before = nullptr;
        for (const ParameterKey& key : values.Keys(index)) {
            const bool isCurved = before && before->interpolation == NLEInterpolation_Smooth;
            for (int step = 1; isCurved && step < kSteps; ++step)
                add(before->time + (key.time - before->time) * step / kSteps);
            const int frame = ClampToInt(std::round(values.Axis().FrameOf(key.time)));
            if (before && before->interpolation == NLEInterpolation_Hold && frame > 0)
                frames.insert(frame - 1);
            add(key.time);
            before = &key;
        }
    }
    if (frames.empty())
        frames.insert(0);
    return frames;
}

/// One text for all frames where it is the same, else "frame=text;frame=text".
DocumentFilter Joined(const std::map<int, MltTexts>& byFrame)
{
    DocumentFilter filter;
    const MltTexts& first = byFrame.begin()->second;
    for (std::size_t i = 0; i < first.size(); ++i) {
        QStringList keys;
        bool isSame = true;
        for (const auto& [frame, texts] : byFrame) {
            keys << QString::number(frame) + QLatin1Char('=') + texts[i].second;
            isSame = isSame && texts[i].second == first[i].second;
        }
        filter.properties.emplace_back(first[i].first,
                                       isSame ? first[i].second : keys.join(QLatin1Char(';')));
    }
    return filter;
}

/// Whether all name the same properties of the same service.
bool IsOneFilter(const std::map<int, MltTexts>& byFrame)
{
    const MltTexts& first = byFrame.begin()->second;
    const auto isLike = [&first](const auto& other) {
        const MltTexts& texts = other.second;
        return std::equal(first.begin(), first.end(), texts.begin(), texts.end(),
                          [](const auto& a, const auto& b) { return a.first == b.first; }) &&
               !texts.empty() && texts.front() == first.front();
    };
    return std::all_of(byFrame.begin(), byFrame.end(), isLike);
}

/// The same filter of libavfilter, under the name that the framework gives it.
MltTexts HeardTexts(const ParametersAt& values, const SoundKind& kind)
{
    const SoundFilter sound = kind.filter(values);
    MltTexts texts;
    texts.emplace_back(QStringLiteral("mlt_service"),
                       QLatin1String("avfilter.") + QLatin1String(sound.name));
    for (const auto& [option, value] : sound.options)
        texts.emplace_back(QLatin1String("av.") + QLatin1String(option), QLatin1String(value));
    return texts;
}

} // namespace

std::vector<DocumentFilter> EffectFilters(const TimelineNode& node)
{
    std::vector<DocumentFilter> filters;
    for (const SharedParameters& values : node.Effects().Shown()) {
        const EffectKind& kind = KindOf(*values);
        if (!kind.mlt)
            continue;
        std::map<int, MltTexts> byFrame;
        for (const int frame : FramesOf(*values))
            byFrame[frame] = kind.mlt(ParametersAt(*values, frame), ScaleOf(node));
        if (IsOneFilter(byFrame))
            filters.push_back(Joined(byFrame));
    }
    for (const SharedParameters& values : node.Effects().Heard()) {
        std::map<int, MltTexts> byFrame;
        for (const int frame : FramesOf(*values))
            byFrame[frame] = HeardTexts(ParametersAt(*values, frame), *SoundOf(*values));
        filters.push_back(Joined(byFrame));
    }
    return filters;
}

} // namespace nle
