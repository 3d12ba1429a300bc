// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <functional>
#include <vector>

/// The middle one of \a values, of which there is at least one; of an even number the greater of
/// the two in the middle.
inline double Median(std::vector<double> values)
{
    const auto middle =
        values.begin() + static_cast<std::vector<double>::difference_type>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

inline double Largest(const std::vector<double>& values)
{
    return *std::max_element(values.begin(), values.end());
}

inline double Seconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e9;
}

/// Seconds of each round.
struct Rounds
{
    std::vector<double> ours;
    std::vector<double> theirs;
};

/// Both take turns, and another one goes first each time, so that a change of the machine's speed
/// meets both.
inline Rounds TakeTurns(int rounds, const std::function<void()>& ours,
                        const std::function<void()>& theirs)
{
    Rounds times;
    for (int round = 0; round < rounds; ++round) {
        if (round % 2 == 0)
            times.ours.push_back(Seconds(ours));
        times.theirs.push_back(Seconds(theirs));
        if (round % 2 != 0)
            times.ours.push_back(Seconds(ours));
    }
    return times;
}
