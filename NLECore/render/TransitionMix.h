// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/scene/Transition.h"

#include <QImage>
#include <QTransform>

#include <cstdint>
#include <vector>

namespace nle {

/// Weight of the second picture where nothing is left of the first.
constexpr std::uint32_t kWholeWeight = 65536;

/// Which pixels a wipe changes when: a number for each, from 1 for the first to 65535.
class WipePattern
{
public:
    /// \a parameters are those of a wipe of the kind \a kind.
    WipePattern(TransitionKind kind, const ParametersAt& parameters, const QSize& size);

    /// Whether it is what the constructor would make of the arguments.
    bool Is(TransitionKind kind, const ParametersAt& parameters, const QSize& size) const;
    const std::uint16_t* Row(int y) const { return m_values.data() + std::size_t(y) * m_width; }
    QSize Size() const { return m_shape.size; }

private:
    /// All that the pattern depends on.
    struct Shape
    {
        TransitionKind kind;
        int direction;
        bool isReverse;
        QSize size;
    };
    static Shape ShapeOf(TransitionKind kind, const ParametersAt& parameters, const QSize& size);

    Shape m_shape;
    std::size_t m_width;
    std::vector<std::uint16_t> m_values;
};

/// How much of a second picture shows in the place of the first: evenly, or by a pattern.
struct MixWeights
{
    const WipePattern* pattern = nullptr; ///< null: all pixels change at once
    double progress = 0;                  ///< 0 nothing, 1 all
    double softness = 0;                  ///< width of the edge, as a share of the pattern
};

/// Mixes rows from \a first to before \a end of \a other into \a picture. Both have the same size
/// and one format, ARGB32_Premultiplied or RGBA64_Premultiplied; a pattern has their size. Each
/// pixel depends on its own place only.
void MixRows(QImage& picture, const QImage& other, const MixWeights& weights, int first, int end);

/// Where a dip to a colour is.
struct DipStep
{
    bool comes;      ///< from the colour to the second picture; else from the first to the colour
    double progress; ///< of this part
};
/// A clip that goes or comes alone takes all of the time, two take half of it each.
DipStep DipStepAt(const LayerTransition::Clips& clips, double progress);

/// How a transition moves the pictures of its clips, in pixels of a canvas.
struct TransitionMotion
{
    QTransform from;
    QTransform to;
};
/// \a isAlone where no clip comes.
TransitionMotion MotionAt(const LayerTransition& transition, bool isAlone, std::int64_t frame,
                          const QSize& canvas);

/// Whether a transition mixes pictures where they lie; the others move them.
bool MixesPictures(TransitionKind kind);
/// Whether it does so by a pattern.
bool IsWipe(TransitionKind kind);

} // namespace nle
