// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/DecoderPool.h"
#include "NLECore/render/EffectChain.h"
#include "NLECore/render/PictureTrail.h"
#include "NLECore/render/TitlePicture.h"
#include "NLECore/render/TransitionMix.h"
#include "NLECore/scene/SourceChoice.h"

#include <QImage>
#include <QRectF>
#include <QTransform>

#include <atomic>
#include <map>
#include <optional>

struct AVFrame;

namespace nle {

/// Where a picture of \a size lies on a parent of \a parentSize that is drawn \a canvas large.
QRect PlacePicture(NLESize size, tagNLEMarginMode margin, NLESize parentSize, const QSize& canvas);
/// Where the picture of a root of \a size lies on a frame: in the middle, as large as it fits.
QRect PlaceRoot(NLESize size, const QSize& frameSize);

/// Height of a line of text, as a share of the picture's height.
constexpr double kTextHeight = 1.0 / 12;

/// Where a layer's picture lies: an upright rectangle and what is done to it.
struct Placing
{
    QRectF rect;     ///< in pixels of the canvas; a side below 0 mirrors
    double rotation; ///< degrees about the rectangle's middle, clockwise
};

/// Where \a layer lies, its transform and a key frame (or null) applied, on a parent of
/// \a parentSize that is drawn \a canvas large.
Placing PlaceLayer(const Layer& layer, const NLEKeyFrameRecord* key, NLESize parentSize,
                   const QSize& canvas);

/// Draws frames of a snapshot. One object serves one thread; it keeps the decoders of the layers
/// that are playing and the titles that show.
class Composer
{
public:
    /// \a decoders outlives the object; without it they are the engine's own.
    explicit Composer(Snapshot root);
    Composer(Snapshot root, DecoderPool& decoders);

    /// The picture of the root's frame \a frame, counted from its frame 0 and not from its in
    /// point, fitted into \a frameSize. \a place receives where in the frame it lies. Null when the
    /// root has no picture or its media cannot be decoded. A picture has 64 bits a pixel where the
    /// root's context asks for more than 8 of a component, else 32.
    QImage Render(std::int64_t frame, const QSize& frameSize, QRect* place);

    /// As Render, but with one newly decoded picture of each layer at the most: a layer whose frame
    /// is not at hand shows one that lies near. \a isExact tells whether none did.
    QImage RenderNear(std::int64_t frame, const QSize& frameSize, QRect* place, bool* isExact);

    /// Render gives null soon after \a stop was set, by any thread. It outlives the object.
    void SetStop(const std::atomic<bool>* stop) { m_stop = stop; }

    /// Pictures that Render would decode are taken from \a trail where they are, and left there
    /// for the next composer. It outlives the object.
    void SetTrail(PictureTrail* trail) { m_trail = trail; }

    /// The decoded picture that alone makes up what Render would draw, as far as it needs nothing
    /// but scaling; else null. Valid until the next call.
    const AVFrame* PlainPicture(std::int64_t frame, const QSize& frameSize);

private:
    /// One child of a composite at one frame of it.
    struct Shown
    {
        const Layer& composite;
        const Layer& child;
        std::int64_t frame; ///< of the composite
    };
    /// The transition of pictures that the child at the place \a child takes part in; else null.
    static const LayerTransition* TransitionOf(const Layer& composite, int child,
                                               std::int64_t frame);
    /// Whether the child's media covers all of \a size.
    static bool CoversPlainly(const Layer& composite, const Layer& child, const QSize& size);
    /// The lowest child that shows, when its media covers all of \a size; else null.
    const Layer* PlainBottom(const Layer& composite, std::int64_t frame, const QSize& size) const;
    const AVFrame* PlainMedia(const Layer& layer, std::int64_t frame);
    QImage Fitted(std::int64_t frame, const QSize& frameSize, QRect* place);
    /// What the layer shows, with its effects; \a size is that of its own picture.
    DrawnPicture Content(const Layer& layer, std::int64_t frame, const QSize& size);
    QImage PlainContent(const Layer& layer, std::int64_t frame, const QSize& size);
    QImage MediaPicture(const Layer& layer, std::int64_t frame, const QSize& size);
    QImage DecodedPicture(const Layer& layer, const PictureTrail::Key& key);
    /// The layer's open decoder, or null, for the frame \a wanted of the stream.
    FrameDecoder* DecoderOf(const Layer& layer, int stream, int wanted);
    QImage Composite(const Layer& layer, std::int64_t frame, const QSize& size);
    /// The part of a title's picture that something shows in; margins below 0 are the rest.
    DrawnPicture Title(const Layer& layer, std::int64_t frame, const QSize& size);
    void DropIdle();
    /// Draws a child where it lies, moved by \a motion.
    void DrawChild(const Shown& shown, const QTransform& motion, QImage& canvas);
    /// \a below with a child drawn on it.
    QImage WithChild(const Shown& shown, const QImage& below);
    /// Draws the clips that take part in a transition and show, on what is below them.
    void DrawTransition(const Layer& composite, const LayerTransition& transition,
                        std::int64_t frame, QImage& canvas);
    /// Null \a from and \a to do not show.
    void MixChildren(const Shown* from, const Shown* to, const LayerTransition& transition,
                     std::int64_t frame, QImage& canvas);
    void MoveChildren(const Shown* from, const Shown* to, const LayerTransition& transition,
                      std::int64_t frame, QImage& canvas);
    const WipePattern& PatternOf(TransitionKind kind, const ParametersAt& parameters,
                                 const QSize& size);

    struct OpenDecoder
    {
        DecoderPool::Lease lease;
        bool used = false;
    };

    struct OpenTitle
    {
        TitlePainter painter;
        bool used = false;
    };

    bool IsStopped() const { return m_stop && m_stop->load(std::memory_order_relaxed); }

    const Snapshot m_root;
    DecoderPool& m_pool;
    std::map<const Layer*, OpenDecoder> m_decoders;
    std::map<const Layer*, OpenTitle> m_titles;
    std::optional<WipePattern> m_pattern; ///< the one that was drawn last
    const std::atomic<bool>* m_stop = nullptr;
    PictureTrail* m_trail = nullptr;
    bool m_isNear = false; ///< RenderNear draws
    bool m_isExact = true;
};

} // namespace nle
