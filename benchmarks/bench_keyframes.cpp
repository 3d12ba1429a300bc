// SPDX-License-Identifier: LGPL-2.1-or-later
// Key frames of the open engine through the library, beside the same numbers in a std::map: adding
// ten thousand, finding an index by time, interpolating; and what a render asks, whose time should
// grow as the logarithm of the number.
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "CommonLib/NLEWraper/VideoKeyFrame.h"
#include "CommonLib/NLEWraper/VideoKeyFrameSetting.h"
#include "NLECore/scene/KeyFrameList.h"
#include "benchmarks/Pairs.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <numeric>
#include <random>
#include <vector>

namespace {

using Map = std::map<double, NLEKeyFrameRecord>;
using Order = std::vector<int>;

constexpr int kCount = 10000;

NLEKeyFrameRecord RecordAt(int frame, int count)
{
    NLEKeyFrameRecord record = nle::kPlainKeyFrame;
    record.time = CalculateVideoKeyFramePosition(frame, count);
    record.angle = frame;
    return record;
}

NLEKeyFrameRecord ValueIn(const Map& map, double time)
{
    const auto after = map.lower_bound(time);
    const auto before = after == map.begin() ? after : std::prev(after);
    return nle::Interpolate(&before->second, after == map.end() ? nullptr : &after->second, time);
}

double TimeOf(int frame)
{
    return CalculateVideoKeyFramePosition(frame, kCount);
}

Map Fill(const Order& order)
{
    Map map;
    for (const int frame : order)
        map[TimeOf(frame)] = RecordAt(frame, kCount);
    return map;
}

void AddAll(VideoKeyFrameSetting& keys, const Order& order)
{
    keys.ClearAllKeyFrame();
    VideoKeyFrameParam param;
    for (const int frame : order) {
        param.time = TimeOf(frame);
        param.rotateAngle = frame;
        keys.AddKeyFrame(param);
    }
}

void CompareAdding(VideoKeyFrameSetting& keys, const char* name, const Order& order)
{
    AddPair(
        QString("one of %1 added, %2").arg(kCount).arg(name),
        [&keys, order] { AddAll(keys, order); }, Other("std::map"), [order] { return Fill(order); },
        kCount);
}

/// Finds the keys in \a order; adding leaves all of them there.
void CompareFinding(VideoKeyFrameSetting& keys, const Order& order)
{
    AddAll(keys, order);
    auto next = [order, at = std::size_t(0)]() mutable {
        at = (at + 1) % order.size();
        return TimeOf(order[at]);
    };
    const auto map = std::make_shared<Map>(Fill(order));
    // The map knows no index: it only finds the place.
    AddPair(
        "index by time",
        [&keys, next]() mutable {
            int index = -1;
            keys.GetKeyFrameIndex(CalculateVideoKeyFrameIndex(next(), kCount), kCount, index);
            return index;
        },
        Other("std::map"), [map, next]() mutable { return map->lower_bound(next()); });
    AddPair(
        "values at a time",
        [&keys, next]() mutable { return keys.GetKeyFrameParam(next() + 3e-5); }, Other("std::map"),
        [map, next]() mutable { return ValueIn(*map, next() + 3e-5); });
}

void CompareRendering(int count)
{
    const auto curve = std::make_shared<nle::KeyFrameCurve>();
    const auto map = std::make_shared<Map>();
    curve->axis = {0, double(count)};
    for (int frame = 0; frame < count; ++frame) {
        curve->frames.push_back(RecordAt(frame, count));
        (*map)[curve->frames.back().time] = curve->frames.back();
    }
    std::mt19937 random(1);
    std::vector<double> frames(10000);
    for (double& frame : frames)
        frame = double(random() % unsigned(count)) + 0.5;
    auto next = [frames, at = std::size_t(0)]() mutable {
        at = (at + 1) % frames.size();
        return frames[at];
    };
    AddPair(
        QString("values while rendering, of %1").arg(count),
        [curve, next]() mutable { return curve->AtFrame(next()); }, Other("std::map"),
        [map, next, count]() mutable { return ValueIn(*map, next() / count); });
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    PlayerMaterProvider* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    const NLEComPtr<INLETimeline> clip =
        provider->CreateColorTimeline(Qt::red, QSize(64, 48), 25.0f);
    if (!clip) {
        std::fputs("the engine did not start\n", stderr);
        return 1;
    }
    const NLERange range = {0, kCount - 1};
    clip->SetRange(&range);
    int result = 0;
    {
        VideoKeyFrameSetting keys(clip);
        Order order(kCount);
        std::iota(order.begin(), order.end(), 0);
        CompareAdding(keys, "in order", order);
        std::reverse(order.begin(), order.end());
        CompareAdding(keys, "backwards", order);
        std::shuffle(order.begin(), order.end(), std::mt19937(1));
        CompareAdding(keys, "in any order", order);
        CompareFinding(keys, order);
        for (const int count : {100, 10000, 1000000})
            CompareRendering(count);
        result = RunPairs(argc, argv);
    }
    NLEWraper::Release();
    return result;
}
