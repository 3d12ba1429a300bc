// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/Composer.h"

#include "NLECore/media/DecoderPool.h"
#include "NLECore/media/HardwareDecoding.h"
#include "NLECore/scene/FrameMath.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

/// Longest side of a picture that is asked of a decoder; a larger one is drawn enlarged.
constexpr int kLongestSide = 8192;
/// A place or a side beyond it shows the same as one at it, and whole numbers do not overflow.
constexpr double kFarthestPixel = 1e6;
/// Bits of a pixel of four components in 16 bits.
constexpr int kDeepPixel = 64;

QSizeF Scaled(NLESize size, double scale)
{
    return QSizeF(size.width * scale, size.height * scale);
}

/// What layers are drawn on.
QImage::Format CanvasFormat(const Layer& root)
{
    return IsDeep(root.context) ? QImage::Format_RGBA64_Premultiplied
                                : QImage::Format_ARGB32_Premultiplied;
}

QImage ColorPicture(std::uint32_t argb, const QSize& size, QImage::Format format)
{
    QImage image(size, format);
    image.fill(QColor::fromRgba(argb));
    return image;
}

QImage TextPicture(const Layer& layer, const QSize& size, QImage::Format format)
{
    QImage image(size, format);
    image.fill(Qt::transparent);
    // Fonts belong to the GUI application; without one there is nothing to draw with.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return image;
    QFont font(layer.family);
    font.setPixelSize(std::max(1, int(size.height() * kTextHeight)));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter | Qt::TextWordWrap, layer.text);
    return image;
}

/// The layer's own transform with what a key frame adds to it.
TransformSettings TransformAt(const Layer& layer, const NLEKeyFrameRecord* key)
{
    TransformSettings result = layer.transform.enabled ? layer.transform : TransformSettings();
    if (!key)
        return result;
    result.center.x += key->positionX;
    result.center.y -= key->positionY; // it grows upward
    result.scale.width *= key->scaleWidth;
    result.scale.height *= key->scaleHeight;
    result.rotation = std::fmod(result.rotation, 360.0) + std::fmod(key->angle, 360.0);
    return result;
}

QPainter::CompositionMode PainterMode(BlendMode mode)
{
    switch (mode) {
    case BlendMode::Normal:
        return QPainter::CompositionMode_SourceOver;
    case BlendMode::Multiply:
        return QPainter::CompositionMode_Multiply;
    case BlendMode::Screen:
        return QPainter::CompositionMode_Screen;
    case BlendMode::Overlay:
        return QPainter::CompositionMode_Overlay;
    case BlendMode::Darken:
        return QPainter::CompositionMode_Darken;
    case BlendMode::Lighten:
        return QPainter::CompositionMode_Lighten;
    case BlendMode::Add:
        return QPainter::CompositionMode_Plus;
    case BlendMode::Difference:
        return QPainter::CompositionMode_Difference;
    case BlendMode::ColorDodge:
        return QPainter::CompositionMode_ColorDodge;
    case BlendMode::ColorBurn:
        return QPainter::CompositionMode_ColorBurn;
    case BlendMode::HardLight:
        return QPainter::CompositionMode_HardLight;
    case BlendMode::SoftLight:
        return QPainter::CompositionMode_SoftLight;
    case BlendMode::Exclusion:
        return QPainter::CompositionMode_Exclusion;
    }
    return QPainter::CompositionMode_SourceOver;
}

bool IsShown(const Layer& layer, std::int64_t frame)
{
    return layer.PlaysAt(frame) && layer.mode != NLERender_AudioOnly;
}

/// Whether there is a child at the place \a child, and it shows.
bool IsShownAt(const Layer& composite, int child, std::int64_t frame)
{
    return child >= 0 && IsShown(*composite.children[size_t(child)], frame);
}

/// The place of the higher one of the clips of a transition that show.
int HighestShown(const Layer& composite, const LayerTransition::Clips& clips, std::int64_t frame)
{
    const int from = IsShownAt(composite, clips.from, frame) ? clips.from : -1;
    const int to = IsShownAt(composite, clips.to, frame) ? clips.to : -1;
    return std::max(from, to);
}

/// Size to ask a decoder for, for a picture that will be drawn as large as \a rect.
QSize DecodeSize(const QRectF& rect)
{
    const auto side = [](double length) {
        return int(std::clamp(std::ceil(std::abs(length)), 1.0, double(kLongestSide)));
    };
    return QSize(side(rect.width()), side(rect.height()));
}

/// Draws a picture so that what it is the picture of fills the place.
void Draw(QPainter& painter, const DrawnPicture& picture, const Placing& placing)
{
    const QRectF& rect = placing.rect;
    const QRect whole = rect.toRect();
    const QMargins& margins = picture.margins;
    const QSize size = picture.image.rect().marginsRemoved(margins).size();
    if (placing.rotation == 0 && rect == QRectF(whole) && size == whole.size()) {
        painter.drawImage(whole.topLeft() - QPoint(margins.left(), margins.top()), picture.image);
        return;
    }
    painter.save();
    painter.translate(rect.center());
    painter.rotate(placing.rotation);
    painter.scale(rect.width() / size.width(), rect.height() / size.height());
    painter.drawImage(
        QPointF(-size.width() / 2.0 - margins.left(), -size.height() / 2.0 - margins.top()),
        picture.image);
    painter.restore();
}

QImage Faded(QImage image, double opacity)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(image.rect(), QColor::fromRgbF(0, 0, 0, opacity));
    painter.end();
    return image;
}

/// What no layer has used since the last call goes.
template <typename Kept>
void DropUnused(std::map<const Layer*, Kept>& kept)
{
    for (auto one = kept.begin(); one != kept.end();) {
        if (std::exchange(one->second.used, false))
            ++one;
        else
            one = kept.erase(one);
    }
}

QImage WithColor(QImage canvas, QRgb argb)
{
    QPainter painter(&canvas);
    painter.fillRect(canvas.rect(), QColor::fromRgba(argb));
    return canvas;
}

/// Without alpha the painter can copy instead of blending.
/// The frame of the stream that a layer of media shows at \a frame of it; none where it shows none.
std::optional<int> ShownFrameOf(const Layer& layer, const ShownStream& stream, std::int64_t frame)
{
    if (!layer.ShownMedia()->Stream(stream.index))
        return {};
    // A frozen clip names a frame of its material, which plays at normal speed.
    const double played =
        layer.frozenFrame ? double(*layer.frozenFrame) : double(frame) * layer.speed;
    const int wanted = stream.FrameAt(FrameTime{played, layer.frameRate});
    return stream.Shows(wanted) ? std::optional<int>(wanted) : std::nullopt;
}

QImage AsOpaque(QImage image)
{
    image.reinterpretAsFormat(image.depth() == kDeepPixel ? QImage::Format_RGBX64
                                                          : QImage::Format_RGB32);
    return image;
}

} // namespace

QRect PlacePicture(NLESize size, tagNLEMarginMode margin, NLESize parentSize, const QSize& canvas)
{
    if (size.width < 1 || size.height < 1 || parentSize.width < 1 || parentSize.height < 1)
        return {};
    const double fitWidth = double(canvas.width()) / size.width;
    const double fitHeight = double(canvas.height()) / size.height;
    QSizeF placed;
    switch (margin) {
    case NLEMargin_Fit:
        placed = Scaled(size, std::min(fitWidth, fitHeight));
        break;
    case NLEMargin_Fill:
        placed = Scaled(size, std::max(fitWidth, fitHeight));
        break;
    case NLEMargin_Stretch:
        placed = canvas;
        break;
    case NLEMargin_None:
        placed = QSizeF(double(size.width) * canvas.width() / parentSize.width,
                        double(size.height) * canvas.height() / parentSize.height);
        break;
    }
    const auto side = [](double length) {
        return std::max(1, qRound(std::min(length, kFarthestPixel)));
    };
    const QSize whole(side(placed.width()), side(placed.height()));
    return QRect(
        QPoint((canvas.width() - whole.width()) / 2, (canvas.height() - whole.height()) / 2),
        whole);
}

QRect PlaceRoot(NLESize size, const QSize& frameSize)
{
    return PlacePicture(size, NLEMargin_Fit, size, frameSize);
}

Placing PlaceLayer(const Layer& layer, const NLEKeyFrameRecord* key, NLESize parentSize,
                   const QSize& canvas)
{
    const QRect plain = PlacePicture(layer.size, layer.margin, parentSize, canvas);
    const TransformSettings transform = TransformAt(layer, key);
    if (plain.isEmpty() || transform.IsIdentity())
        return {plain, 0};
    const auto pixels = [](double value) {
        return std::clamp(value, -kFarthestPixel, kFarthestPixel);
    };
    const QSizeF size(pixels(plain.width() * transform.scale.width),
                      pixels(plain.height() * transform.scale.height));
    const QPointF center(pixels(transform.center.x * canvas.width()),
                         pixels(transform.center.y * canvas.height()));
    return {QRectF(center - QPointF(size.width() / 2, size.height() / 2), size),
            std::fmod(transform.rotation, 360.0)};
}

Composer::Composer(Snapshot root) : Composer(std::move(root), Decoders()) {}

Composer::Composer(Snapshot root, DecoderPool& decoders) : m_root(std::move(root)), m_pool(decoders)
{
}

QImage Composer::Render(std::int64_t frame, const QSize& frameSize, QRect* place)
{
    m_isNear = false;
    return Fitted(frame, frameSize, place);
}

QImage Composer::Fitted(std::int64_t frame, const QSize& frameSize, QRect* place)
{
    *place = PlaceRoot(m_root->size, frameSize);
    if (place->isEmpty())
        return {};
    const RenderContext& context = m_root->context;
    const QSize drawn = (QSizeF(place->size()) * context.previewScale).toSize();
    QImage image = Content(*m_root, frame, drawn.expandedTo(QSize(1, 1))).Inner();
    if (!m_isNear && IsStopped())
        return {};
    DropIdle();
    if (image.isNull() || image.size() == place->size())
        return image;
    return image.scaled(place->size(), Qt::IgnoreAspectRatio,
                        context.smooth ? Qt::SmoothTransformation : Qt::FastTransformation);
}

QImage Composer::RenderNear(std::int64_t frame, const QSize& frameSize, QRect* place, bool* isExact)
{
    m_isNear = true;
    m_isExact = true;
    QImage image = Fitted(frame, frameSize, place);
    *isExact = m_isExact;
    return image;
}

DrawnPicture Composer::Content(const Layer& layer, std::int64_t frame, const QSize& size)
{
    // The rest of a title's picture is empty.
    if (layer.kind == LayerKind::Title && layer.effects.empty())
        return Title(layer, frame, size);
    QImage image = PlainContent(layer, frame, size);
    if (layer.effects.empty())
        return {std::move(image), {}};
    const QPointF scale(double(size.width()) / std::max(layer.size.width, 1),
                        double(size.height()) / std::max(layer.size.height, 1));
    const EffectChain chain = {layer.effects, double(frame), scale, {}};
    return chain.Apply(std::move(image), CanvasFormat(*m_root));
}

QImage Composer::PlainContent(const Layer& layer, std::int64_t frame, const QSize& size)
{
    switch (layer.kind) {
    case LayerKind::Media:
        return MediaPicture(layer, frame, size);
    case LayerKind::Color:
        return ColorPicture(layer.argb, size, CanvasFormat(*m_root));
    case LayerKind::Text:
        return TextPicture(layer, size, CanvasFormat(*m_root));
    case LayerKind::Title:
        return Title(layer, frame, size).Inner();
    case LayerKind::Composite:
        return Composite(layer, frame, size);
    }
    return {};
}

DrawnPicture Composer::Title(const Layer& layer, std::int64_t frame, const QSize& size)
{
    OpenTitle& title = m_titles[&layer];
    title.used = true;
    const TitleMoment moment = MomentOf(layer, frame);
    TitleShot shot = title.painter.Draw(moment, layer.size, size, CanvasFormat(*m_root));
    if (shot.image.isNull() || moment.opacity == 0)
        shot = {ColorPicture(0, QSize(1, 1), CanvasFormat(*m_root)), QPoint(0, 0)};
    else if (moment.opacity < 1)
        shot.image = Faded(std::move(shot.image), moment.opacity);
    const QSize after = size - shot.image.size();
    const QPoint& corner = shot.corner;
    return {shot.image, QMargins(-corner.x(), -corner.y(), corner.x() - after.width(),
                                 corner.y() - after.height())};
}

FrameDecoder* Composer::DecoderOf(const Layer& layer, int stream, int wanted)
{
    OpenDecoder& decoder = m_decoders[&layer];
    decoder.used = true;
    if (!decoder.lease)
        decoder.lease = m_pool.Acquire(layer.ShownMedia(), stream, DecodePurpose::Render, wanted,
                                       nullptr, IsHardwareWanted(layer.source.gpuFirst != 0));
    return decoder.lease ? &*decoder.lease : nullptr;
}

QImage Composer::MediaPicture(const Layer& layer, std::int64_t frame, const QSize& size)
{
    const ShownStream stream = ShownStreamOf(layer);
    const std::optional<int> wanted = ShownFrameOf(layer, stream, frame);
    if (!wanted)
        return {};
    const PictureDepth depth = IsDeep(m_root->context) ? PictureDepth::Deep : PictureDepth::Usual;
    const PictureTrail::Key key = {layer.ShownMedia(),   stream.index, *wanted, size,
                                   stream.deinterlacing, depth};
    QImage image = m_trail ? m_trail->Find(key) : QImage();
    if (image.isNull())
        image = DecodedPicture(layer, key);
    const bool hasAlpha = key.media->Stream(stream.index)->hasAlpha;
    return hasAlpha || image.isNull() ? image : AsOpaque(image);
}

QImage Composer::DecodedPicture(const Layer& layer, const PictureTrail::Key& key)
{
    FrameDecoder* decoder = DecoderOf(layer, key.stream, key.frame);
    bool isExact = true;
    QImage image;
    if (decoder && m_isNear)
        image = decoder->NearPicture(key.frame, key.size, &isExact, key.deinterlacing, key.depth);
    else if (decoder && !IsStopped())
        image = decoder->Picture(key.frame, key.size, key.deinterlacing, key.depth, m_stop);
    m_isExact = m_isExact && isExact;
    if (m_trail && isExact && !image.isNull())
        m_trail->Add(key, image);
    return image;
}

const LayerTransition* Composer::TransitionOf(const Layer& composite, int child, std::int64_t frame)
{
    const auto end = composite.transitions.end();
    for (auto one = FirstFrom(composite.transitions, frame); one != end && one->position <= frame;
         ++one) {
        if (one->PlaysAt(frame) && one->pictures.Has(child))
            return &*one;
    }
    return nullptr;
}

bool Composer::CoversPlainly(const Layer& composite, const Layer& child, const QSize& size)
{
    if (child.kind != LayerKind::Media)
        return false;
    const MediaStream* stream = child.ShownMedia()->Stream(ShownStreamOf(child).index);
    const Placing placing = PlaceLayer(child, nullptr, composite.size, size);
    return stream && !stream->hasAlpha && !child.keyFrames && !MakeTransparent(child.effects) &&
           (!child.blend.enabled || IsSame(child.blend, BlendSettings())) &&
           placing.rotation == 0 && placing.rect == QRectF(QPointF(0, 0), QSizeF(size));
}

const Layer* Composer::PlainBottom(const Layer& composite, std::int64_t frame,
                                   const QSize& size) const
{
    const auto bottom =
        std::find_if(composite.children.begin(), composite.children.end(),
                     [frame](const Snapshot& child) { return IsShown(*child, frame); });
    if (bottom == composite.children.end() ||
        TransitionOf(composite, int(bottom - composite.children.begin()), frame))
        return nullptr;
    return CoversPlainly(composite, **bottom, size) ? bottom->get() : nullptr;
}

const AVFrame* Composer::PlainPicture(std::int64_t frame, const QSize& frameSize)
{
    if (m_root->context.previewScale < 1 || !m_root->context.smooth || !m_root->effects.empty())
        return nullptr;
    if (m_root->kind == LayerKind::Media)
        return PlainMedia(*m_root, frame);
    const QRect place = PlaceRoot(m_root->size, frameSize);
    const Layer* sole = PlainBottom(*m_root, frame, place.size());
    const auto covers = [&](const Snapshot& child) {
        return child.get() != sole && IsShown(*child, frame);
    };
    if (!sole || !sole->effects.empty() ||
        std::any_of(m_root->children.begin(), m_root->children.end(), covers))
        return nullptr;
    return PlainMedia(*sole, sole->FrameAt(frame));
}

const AVFrame* Composer::PlainMedia(const Layer& layer, std::int64_t frame)
{
    const ShownStream shown = ShownStreamOf(layer);
    const MediaStream* stream = layer.ShownMedia()->Stream(shown.index);
    if (!stream || stream->hasAlpha)
        return nullptr;
    const std::optional<int> wanted = ShownFrameOf(layer, shown, frame);
    FrameDecoder* decoder = wanted ? DecoderOf(layer, shown.index, *wanted) : nullptr;
    const AVFrame* picture = decoder ? decoder->Decoded(*wanted, shown.deinterlacing) : nullptr;
    if (picture)
        DropIdle();
    return picture;
}

QImage Composer::Composite(const Layer& layer, std::int64_t frame, const QSize& size)
{
    // A picture that covers all others is the canvas for them.
    const Layer* bottom = PlainBottom(layer, frame, size);
    QImage canvas;
    if (bottom)
        canvas = Content(*bottom, bottom->FrameAt(frame), size).Inner();
    if (canvas.isNull())
        canvas = ColorPicture(layer.argb, size, CanvasFormat(*m_root));
    else
        canvas.reinterpretAsFormat(CanvasFormat(*m_root));
    for (int index = 0; index < int(layer.children.size()); ++index) {
        const Layer& child = *layer.children[size_t(index)];
        if (&child == bottom || !IsShown(child, frame))
            continue;
        const LayerTransition* transition = TransitionOf(layer, index, frame);
        if (!transition)
            DrawChild({layer, child, frame}, QTransform(), canvas);
        else if (index == HighestShown(layer, transition->pictures, frame))
            DrawTransition(layer, *transition, frame, canvas);
    }
    return canvas;
}

void Composer::DrawChild(const Shown& shown, const QTransform& motion, QImage& canvas)
{
    const Layer& child = shown.child;
    const std::int64_t frame = child.FrameAt(shown.frame);
    std::optional<NLEKeyFrameRecord> key;
    if (child.keyFrames)
        key = child.keyFrames->AtFrame(double(frame));
    const Placing placing =
        PlaceLayer(child, key ? &*key : nullptr, shown.composite.size, canvas.size());
    if (placing.rect.width() == 0 || placing.rect.height() == 0)
        return;
    const double opacity = key ? std::clamp(key->opacity, 0.0, 1.0) : 1;
    if (opacity == 0)
        return;
    const DrawnPicture picture = Content(child, frame, DecodeSize(placing.rect));
    if (picture.image.isNull())
        return;
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, m_root->context.smooth);
    const BlendSettings blend = child.blend.enabled ? child.blend : BlendSettings();
    painter.setCompositionMode(PainterMode(blend.mode));
    painter.setOpacity(opacity * blend.alpha / kOpaqueAlpha);
    painter.setTransform(motion);
    Draw(painter, picture, placing);
}

QImage Composer::WithChild(const Shown& shown, const QImage& below)
{
    if (CoversPlainly(shown.composite, shown.child, below.size())) {
        QImage picture =
            Content(shown.child, shown.child.FrameAt(shown.frame), below.size()).Inner();
        picture.reinterpretAsFormat(below.format());
        if (!picture.isNull())
            return picture;
    }
    QImage canvas = below;
    DrawChild(shown, QTransform(), canvas);
    return canvas;
}

void Composer::DrawTransition(const Layer& composite, const LayerTransition& transition,
                              std::int64_t frame, QImage& canvas)
{
    const auto shown = [&](int child) -> std::optional<Shown> {
        if (!IsShownAt(composite, child, frame))
            return std::nullopt;
        return Shown{composite, *composite.children[size_t(child)], frame};
    };
    const std::optional<Shown> from = shown(transition.pictures.from);
    const std::optional<Shown> to = shown(transition.pictures.to);
    const auto draw =
        MixesPictures(transition.Kind()) ? &Composer::MixChildren : &Composer::MoveChildren;
    (this->*draw)(from ? &*from : nullptr, to ? &*to : nullptr, transition, frame, canvas);
}

void Composer::MixChildren(const Shown* from, const Shown* to, const LayerTransition& transition,
                           std::int64_t frame, QImage& canvas)
{
    const TransitionKind kind = transition.Kind();
    const ParametersAt parameters = transition.At(frame);
    MixWeights weights;
    weights.progress = transition.ProgressAt(frame);
    const auto picture = [&](const Shown* shown) {
        return shown ? WithChild(*shown, canvas) : canvas;
    };
    QImage first;
    QImage second;
    if (kind == TransitionKind::Dip) {
        const DipStep step = DipStepAt(transition.pictures, weights.progress);
        weights.progress = step.progress;
        const QImage color = WithColor(canvas, parameters.Color(TransitionParameter::kColor));
        first = step.comes ? color : picture(from);
        second = step.comes ? picture(to) : color;
    } else {
        first = picture(from);
        second = picture(to);
    }
    if (IsWipe(kind)) {
        weights.softness = parameters.Number(TransitionParameter::kSoftness);
        weights.pattern = &PatternOf(kind, parameters, canvas.size());
    }
    MixRows(first, second, weights, 0, first.height());
    canvas = first;
}

void Composer::MoveChildren(const Shown* from, const Shown* to, const LayerTransition& transition,
                            std::int64_t frame, QImage& canvas)
{
    const bool isAlone = transition.pictures.to < 0;
    const TransitionMotion motion = MotionAt(transition, isAlone, frame, canvas.size());
    if (from && motion.from.isInvertible())
        DrawChild(*from, motion.from, canvas);
    if (to && motion.to.isInvertible())
        DrawChild(*to, motion.to, canvas);
}

const WipePattern& Composer::PatternOf(TransitionKind kind, const ParametersAt& parameters,
                                       const QSize& size)
{
    if (!m_pattern || !m_pattern->Is(kind, parameters, size))
        m_pattern.emplace(kind, parameters, size);
    return *m_pattern;
}

void Composer::DropIdle()
{
    DropUnused(m_decoders);
    DropUnused(m_titles);
}

} // namespace nle
