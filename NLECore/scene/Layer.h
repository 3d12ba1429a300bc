// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"
#include "NLECore/media/MediaInfo.h"
#include "NLECore/scene/ClipSettings.h"
#include "NLECore/scene/KeyFrameList.h"
#include "NLECore/scene/Transition.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace nle {

/// What a node shows.
enum class LayerKind
{
    Media,
    Color,
    Text,
    Title,
    Composite
};

/// Settings of a project that count for the whole of a render.
struct RenderContext
{
    double previewScale = 1; ///< share of the wanted size that pictures are drawn at, up to 1
    bool smooth = true;      ///< whether scaled and turned pictures are smoothed
    int bitDepth = 8;        ///< of a colour component that is drawn, 8 or 10
};
template <>
inline constexpr auto
    kFields<RenderContext> = std::tuple(Field{&RenderContext::previewScale, nullptr, Shows::kYes},
                                        Field{&RenderContext::smooth, nullptr, Shows::kYes},
                                        Field{&RenderContext::bitDepth, nullptr, Shows::kYes});
static_assert(kListsAllFields<RenderContext>);

constexpr int kUsualDepth = 8;
constexpr int kDeepDepth = 10;
/// Whether components are drawn with more than 8 bits.
constexpr bool IsDeep(const RenderContext& context)
{
    return context.bitDepth > kUsualDepth;
}

/// Immutable picture of one node and what it holds: all that a render needs, without the model.
///
/// A snapshot is built on the thread that edits and read on the thread that renders.
struct Layer
{
    LayerKind kind = LayerKind::Composite;
    NLERange range = {0, -1};        ///< frames of the layer that play
    int position = 0;                ///< first frame on the parent
    int level = 0;                   ///< higher covers lower
    NLERational frameRate = {25, 1}; ///< of range and of the children's positions
    tagNLEMarginMode margin = NLEMargin_Fit;
    NLERenderMode mode = NLERender_All;
    NLESize size = {0, 0}; ///< picture size in pixels

    double speed = 1;               ///< source time that passes in a unit of layer time
    std::optional<int> frozenFrame; ///< the one frame that shows
    BlendSettings blend;
    TransformSettings transform;
    std::shared_ptr<const KeyFrameCurve> keyFrames; ///< null: none apply
    std::vector<SharedParameters> effects;          ///< those that apply, in their order
    std::vector<SharedParameters> soundEffects;     ///< the same of its sound
    RenderContext context; ///< the outermost project's; of the rendered layer alone
    AudioSettings audio;

    std::shared_ptr<const MediaInfo> media; ///< Media only
    SourceSettings source;                  ///< Media only
    std::shared_ptr<const MediaInfo> proxy; ///< Media only: read for the picture instead, or null
    std::uint32_t argb = 0;                 ///< Color: the colour; Composite: what shows behind
    QString text;                           ///< Text only
    QString family;                         ///< Text and Title
    SharedParameters title;                 ///< Title only
    std::vector<std::shared_ptr<const Layer>>
        children;                             ///< Composite: enabled ones, lowest level first
    std::vector<LayerTransition> transitions; ///< Composite: between children, by position

    QString guid;        ///< Composite only: the host's name for it, empty without one
    MixerSettings mixer; ///< Composite only: strips of the children's tracks, by level

    /// Whether the layer plays at \a frame of its parent.
    bool PlaysAt(std::int64_t frame) const
    {
        return frame >= position && frame < position + NLERangeLength(range);
    }
    /// The layer's own frame, counted as its trim range is, at \a frame of its parent.
    std::int64_t FrameAt(std::int64_t frame) const { return frame - position + range.in; }
    /// Media only: the one of media and proxy that pictures are read from.
    const std::shared_ptr<const MediaInfo>& ShownMedia() const { return proxy ? proxy : media; }
};

/// Which of a layer's fields its own picture depends on. The others say where and when it shows,
/// how it sounds, what it holds (layers with keys of their own), or count for the root alone.
template <>
inline constexpr auto kFields<Layer> = std::tuple(
    Field{&Layer::kind, nullptr, Shows::kYes}, Field{&Layer::range, nullptr, Shows::kNo},
    Field{&Layer::position, nullptr, Shows::kNo}, Field{&Layer::level, nullptr, Shows::kNo},
    Field{&Layer::frameRate, nullptr, Shows::kYes}, Field{&Layer::margin, nullptr, Shows::kYes},
    Field{&Layer::mode, nullptr, Shows::kNo}, Field{&Layer::size, nullptr, Shows::kYes},
    Field{&Layer::speed, nullptr, Shows::kYes}, Field{&Layer::frozenFrame, nullptr, Shows::kYes},
    Field{&Layer::blend, nullptr, Shows::kYes}, Field{&Layer::transform, nullptr, Shows::kYes},
    Field{&Layer::keyFrames, nullptr, Shows::kYes}, Field{&Layer::effects, nullptr, Shows::kYes},
    Field{&Layer::soundEffects, nullptr, Shows::kNo}, Field{&Layer::context, nullptr, Shows::kNo},
    Field{&Layer::audio, nullptr, Shows::kNo}, Field{&Layer::media, nullptr, Shows::kYes},
    Field{&Layer::source, nullptr, Shows::kYes}, Field{&Layer::proxy, nullptr, Shows::kYes},
    Field{&Layer::argb, nullptr, Shows::kYes}, Field{&Layer::text, nullptr, Shows::kYes},
    Field{&Layer::family, nullptr, Shows::kYes}, Field{&Layer::title, nullptr, Shows::kNo},
    Field{&Layer::children, nullptr, Shows::kNo}, Field{&Layer::transitions, nullptr, Shows::kNo},
    Field{&Layer::guid, nullptr, Shows::kNo}, Field{&Layer::mixer, nullptr, Shows::kNo});
static_assert(kListsAllFields<Layer>);

using Snapshot = std::shared_ptr<const Layer>;

} // namespace nle
