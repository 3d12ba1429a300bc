// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/scene/Parameters.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace nle {

struct Layer;

/// What a transition does with the pictures of its clips; the order is that of the declarations.
enum class TransitionKind : int
{
    Dissolve,
    Dip,
    Wipe,
    Circle,
    Diamond,
    Clock,
    BarnDoors,
    Push,
    Slide,
    Zoom
};

/// How the sound of the clips goes over; numbers are those of the parameter's choices.
enum class CrossFade : int
{
    Linear = 0, ///< gains whose sum stays the same
    Power = 1,  ///< gains whose sum of squares stays the same
    None = 2    ///< both sound as without the transition
};

/// Where something moves to; numbers are those of the parameter's choices.
enum class Direction : int
{
    Right = 0,
    Left = 1,
    Down = 2,
    Up = 3,
    DownRight = 4,
    DownLeft = 5,
    UpRight = 6,
    UpLeft = 7
};
/// Steps to the right and down, -1 to 1.
struct DirectionSteps
{
    int x;
    int y;
};
DirectionSteps StepsOf(Direction direction);

/// Names of parameters that transitions have in common.
namespace TransitionParameter {
inline constexpr const char* kSound = "sound";
inline constexpr const char* kSoftness = "softness";
inline constexpr const char* kReverse = "reverse";
inline constexpr const char* kDirection = "direction";
inline constexpr const char* kColor = "color";
} // namespace TransitionParameter

/// All transitions that can be made, by kind.
const std::vector<Declaration>& TransitionDeclarations();
/// The one of that name; null for another name.
const Declaration* FindTransition(const QString& name);
/// The kind of a declaration that is one of them.
TransitionKind TransitionKindOf(const Declaration& declaration);
/// Whether pictures depend on a parameter of a transition.
bool ShowsInPicture(const ParameterRow& row);

/// A transition as a composite holds it. It has neither picture nor sound of its own: it changes
/// how those of its clips show and sound while it plays.
///
/// Clips take part that begin or end in it: the one that begins comes, the one that ends goes. A
/// clip that plays on all through the transition is left alone.
struct LayerTransition
{
    /// The clips that take part, as places among the composite's children; -1: none.
    struct Clips
    {
        int from = -1; ///< goes
        int to = -1;   ///< comes

        bool Has(int child) const { return child >= 0 && (child == from || child == to); }
        bool IsEmpty() const { return from < 0 && to < 0; }
    };

    std::int64_t position = 0; ///< first frame on the composite
    NLERange range = {0, -1};  ///< of the transition's own frames
    int level = 0;
    SharedParameters parameters;
    Clips pictures;
    Clips sounds;
    std::int64_t furthestEnd = 0; ///< of this one and those before it on the composite

    std::int64_t End() const { return position + NLERangeLength(range); }
    bool PlaysAt(std::int64_t frame) const { return frame >= position && frame < End(); }
    /// How far it is at the beginning of a frame of the composite: 0 at its first one, 1 behind the
    /// last.
    double ProgressAt(std::int64_t frame) const
    {
        return double(frame - position) / double(NLERangeLength(range));
    }
    TransitionKind Kind() const { return TransitionKindOf(parameters->Declared()); }
    /// The parameters that apply at a frame of the composite.
    ParametersAt At(std::int64_t frame) const
    {
        return ParametersAt(*parameters, double(frame - position + range.in));
    }
};

/// The first of a composite's transitions that does not lie, with all before it, before \a frame.
std::vector<LayerTransition>::const_iterator
FirstFrom(const std::vector<LayerTransition>& transitions, std::int64_t frame);

/// Gain of the clip that goes, or of the one that comes, when \a progress of the way is gone.
double CrossFadeGain(CrossFade kind, bool comes, double progress);

/// Sorts the transitions of \a composite by their places and finds the clips that take part in
/// each. The children stand in their order already. A clip that takes part in two at a time does so
/// in the one that begins first.
void FindTransitionClips(Layer& composite);

} // namespace nle
