// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"

#include <cstdint>
#include <limits>

namespace nle {

/// Which frames and which sound come when, from a start on at a steady rate: pure arithmetic.
///
/// Two counts of samples, both at 48,000 a second: *material* is counted from the node's frame 0,
/// *played* from the start of playing. With a loop the material begins again and again.
class PlayPlan
{
public:
    /// What is asked of a plan.
    struct Terms
    {
        NLERational frameRate = {25, 1};
        NLERange range = {0, 0};   ///< frames that are played, not empty
        bool isLoop = false;       ///< over and over
        double rate = 1;           ///< -8 to 8, not 0
        std::int64_t material = 0; ///< where it starts
    };
    /// A picture of the row: played samples until it is due.
    struct Due
    {
        int frame;
        std::int64_t played;
    };
    /// A stretch of material that follows itself.
    struct Stretch
    {
        std::int64_t material;
        std::int64_t count;
    };

    static constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

    PlayPlan() : PlayPlan(Terms()) {}
    /// A start outside of the range becomes its first sample, backwards its last.
    explicit PlayPlan(const Terms& terms);

    /// Material at which \a frame starts, and the frame that shows there.
    static std::int64_t MaterialOf(std::int64_t frame, const NLERational& rate);
    static int FrameOf(std::int64_t material, const NLERational& rate);

    /// Played samples until the end; kNever in a loop.
    std::int64_t Length() const;
    /// Where the material is after \a played samples, 0 to Length(); the last one at the end.
    std::int64_t MaterialAt(std::int64_t played) const;
    int FrameAt(std::int64_t played) const;

    /// The picture \a index of the row, 0 or more: each frame, at rates beyond 1 as many as the
    /// frame rate has. Where the row has ended, its time is not before Length().
    Due Picture(std::int64_t index) const;
    /// The last picture of the row that is due after \a played samples.
    std::int64_t PictureAt(std::int64_t played) const;

    /// Whether sound plays: forwards, from half to twice the speed.
    bool IsSounding() const;
    /// The sound from \a travelled samples of material after the start on, forwards; a count of 0
    /// after the end.
    Stretch SoundAt(std::int64_t travelled) const;
    double Rate() const { return m_terms.rate; }

private:
    bool IsBackwards() const { return m_terms.rate < 0; }
    /// Material from the start to the end that it runs to.
    std::int64_t ToEnd() const;
    std::int64_t Wrapped(std::int64_t travelled) const;

    Terms m_terms;
    std::int64_t m_first; ///< material that the range starts with
    std::int64_t m_end;   ///< and after it
    int m_startFrame;
};

} // namespace nle
