// SPDX-License-Identifier: LGPL-2.1-or-later
// Key frames of the open engine through the library, beside the same numbers in a std::map: adding
// ten thousand, finding an index by frame and by time, interpolating; and what a render asks.
// Interleaved, compared by medians.
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "CommonLib/NLEWraper/VideoKeyFrame.h"
#include "CommonLib/NLEWraper/VideoKeyFrameSetting.h"
#include "NLECore/scene/KeyFrameList.h"
#include "benchmarks/Median.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <numeric>
#include <random>

namespace {

using Action = std::function<void()>;
using Peer = std::map<double, NLEKeyFrameRecord>;
using Order = std::vector<int>;

constexpr int kCount = 10000;
constexpr int kRounds = 21;

double Time(const Action& action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return double(timer.nsecsElapsed());
}

/// Prints what one of \a calls costs in \a first and in \a peer, which take turns.
void Compare(const char* name, int calls, const Action& first, const Action& peer)
{
    std::vector<double> firsts;
    std::vector<double> peers;
    for (int round = 0; round < kRounds; ++round) {
        firsts.push_back(Time(first) / calls);
        peers.push_back(Time(peer) / calls);
    }
    std::printf("  %-26s %8.1f ns, std::map %8.1f ns, ratio %.2f\n", name, Median(firsts),
                Median(peers), Median(firsts) / Median(peers));
}

/// Keeps the compiler from leaving out a call whose result nobody uses.
template <typename T>
void Use(const T& value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

NLEKeyFrameRecord RecordAt(int frame, int count)
{
    NLEKeyFrameRecord record = nle::kPlainKeyFrame;
    record.time = CalculateVideoKeyFramePosition(frame, count);
    record.angle = frame;
    return record;
}

NLEKeyFrameRecord PeerValue(const Peer& peer, double time)
{
    const auto after = peer.lower_bound(time);
    const auto before = after == peer.begin() ? after : std::prev(after);
    return nle::Interpolate(&before->second, after == peer.end() ? nullptr : &after->second, time);
}

Peer Fill(const Order& order)
{
    Peer peer;
    for (const int frame : order)
        peer[CalculateVideoKeyFramePosition(frame, kCount)] = RecordAt(frame, kCount);
    return peer;
}

void Adding(VideoKeyFrameSetting& keys, const char* name, const Order& order)
{
    const Action add = [&] {
        keys.ClearAllKeyFrame();
        VideoKeyFrameParam param;
        for (const int frame : order) {
            param.time = CalculateVideoKeyFramePosition(frame, kCount);
            param.rotateAngle = frame;
            keys.AddKeyFrame(param);
        }
    };
    Compare(name, kCount, add, [&] { Use(Fill(order)); });
}

void Rendering(int count)
{
    nle::KeyFrameCurve curve;
    Peer peer;
    curve.axis = {0, double(count)};
    for (int frame = 0; frame < count; ++frame) {
        curve.frames.push_back(RecordAt(frame, count));
        peer[curve.frames.back().time] = curve.frames.back();
    }
    constexpr int calls = 10000;
    std::mt19937 random(1);
    std::vector<double> frames(calls);
    for (double& frame : frames)
        frame = double(random() % unsigned(count)) + 0.5;
    char name[64];
    std::snprintf(name, sizeof name, "of %d", count);
    Compare(
        name, calls,
        [&] {
            for (const double frame : frames)
                Use(curve.AtFrame(frame));
        },
        [&] {
            for (const double frame : frames)
                Use(PeerValue(peer, frame / count));
        });
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
    {
        VideoKeyFrameSetting keys(clip);
        Order order(kCount);
        std::iota(order.begin(), order.end(), 0);
        std::printf("adding one of %d (target: below 10000 ns)\n", kCount);
        Adding(keys, "in order", order);
        std::reverse(order.begin(), order.end());
        Adding(keys, "backwards", order);
        std::shuffle(order.begin(), order.end(), std::mt19937(1));
        Adding(keys, "in any order", order);

        const Peer peer = Fill(order);
        std::puts("finding (target: below 1000 ns)");
        const auto each = [&order](auto call) {
            return [&order, call] {
                for (const int frame : order)
                    Use(call(frame));
            };
        };
        const auto time = [](int frame) { return CalculateVideoKeyFramePosition(frame, kCount); };
        // The map knows no index: it only finds the place.
        Compare("index by time", kCount, each([&](int frame) {
                    int index = -1;
                    keys.GetKeyFrameIndex(CalculateVideoKeyFrameIndex(time(frame), kCount), kCount,
                                          index);
                    return index;
                }),
                each([&](int frame) { return peer.lower_bound(time(frame)); }));
        Compare("values at a time", kCount,
                each([&](int frame) { return keys.GetKeyFrameParam(time(frame) + 3e-5); }),
                each([&](int frame) { return PeerValue(peer, time(frame) + 3e-5); }));
    }
    std::puts("values while rendering (target: grows as the logarithm)");
    for (const int count : {100, 10000, 1000000})
        Rendering(count);
    NLEWraper::Release();
    return 0;
}
