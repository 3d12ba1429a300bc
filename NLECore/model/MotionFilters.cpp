// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MotionFilters.h"

#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/SourceNodes.h"
#include "NLECore/render/Composer.h"
#include "NLECore/scene/FrameMath.h"

#include <QStringList>

namespace nle {

namespace {

/// The key frames by the frame that each is nearest to; those before frame 0, which a document
/// cannot name, as what is left of them there.
std::map<int, NLEKeyFrameRecord> ByFrame(const KeyFrameCurve* curve)
{
    std::map<int, NLEKeyFrameRecord> result;
    if (!curve)
        return {{0, kPlainKeyFrame}};
    for (const NLEKeyFrameRecord& record : curve->frames) {
        const int frame = ClampToInt(std::round(curve->axis.FrameOf(record.time)));
        if (frame >= 0)
            result[frame] = record;
        else
            result[0] = curve->AtFrame(0);
    }
    return result;
}

/// Names of alignments, in the order of TitleAlignment.
constexpr const char* kAcross[] = {"left", "centre", "right"};

QString Number(double value)
{
    return QString::number(value, 'f', 3);
}

QString Join(const QStringList& values)
{
    return values.join(QLatin1Char(';'));
}

QRect Canvas(const TimelineNode& node)
{
    const NLESize parent = node.Parent()->PictureSize();
    return QRect(0, 0, parent.width, parent.height);
}

/// The frames between which the layer changes evenly.
std::map<int, NLEKeyFrameRecord> FramesOf(const Layer& layer)
{
    std::map<int, NLEKeyFrameRecord> frames = ByFrame(layer.keyFrames.get());
    if (layer.kind != LayerKind::Title)
        return frames;
    for (const double point : TurningPoints(layer)) {
        const int frame = std::max(0, ClampToInt(std::round(point)));
        frames.emplace(frame, layer.keyFrames ? layer.keyFrames->AtFrame(frame) : kPlainKeyFrame);
    }
    return frames;
}

bool IsText(const Layer& layer)
{
    return layer.kind == LayerKind::Text || layer.kind == LayerKind::Title;
}

/// A text clip as the title that looks like it.
TitleMoment TextMoment(const Layer& layer, int frame)
{
    if (layer.kind == LayerKind::Title)
        return MomentOf(layer, frame);
    TitleMoment moment;
    moment.look.text = layer.text;
    moment.look.family = layer.family;
    moment.look.size = kTextHeight;
    return moment;
}

/// Where lines are about that no font was there to lay out.
double UsualTop(const TitleLook& look, const QSize& picture)
{
    constexpr double lineHeight = 1.2; // in sizes
    const double block =
        (look.text.count(QLatin1Char('\n')) + 1) * lineHeight * look.size * picture.height();
    const double margin = look.margin * picture.height();
    return margin + (picture.height() - 2 * margin - block) * int(look.place) / 2;
}

/// The part of a picture at whose top the lines of a text lie, with the padding of their box.
QRectF TextArea(TitlePainter& painter, const Layer& layer, int frame, const QSize& picture)
{
    const TitleMoment moment = TextMoment(layer, frame);
    const TitleLook& look = moment.look;
    const bool hasBox = look.boxColor >> 24 != 0;
    const double pad = hasBox ? look.boxPadding * look.size * picture.height() : 0;
    const QRectF lines = painter.Lines(moment, layer.size, picture);
    const double margin = picture.width() * look.margin;
    const double sides[] = {margin, (picture.width() - lines.width()) / 2,
                            picture.width() - margin - lines.width()};
    const double moved = lines.isEmpty() ? 0 : lines.x() - sides[size_t(look.alignment)];
    const double top = lines.isEmpty() ? UsualTop(look, picture) : lines.y();
    return QRectF(margin - pad + moved, top - pad, picture.width() - 2 * (margin - pad),
                  picture.height());
}

/// Where a part of a picture lies that is \a size large and placed as \a whole.
Placing PlacePart(const Placing& whole, const QRectF& part, const QSizeF& size)
{
    const double scaleX = whole.rect.width() / size.width();
    const double scaleY = whole.rect.height() / size.height();
    const QPointF away = part.center() - QPointF(size.width() / 2, size.height() / 2);
    const QPointF turned =
        QTransform().rotate(whole.rotation).map(QPointF(away.x() * scaleX, away.y() * scaleY));
    const QSizeF partSize(part.width() * scaleX, part.height() * scaleY);
    const QPointF half(partSize.width() / 2, partSize.height() / 2);
    return {QRectF(whole.rect.center() + turned - half, partSize), whole.rotation};
}

/// Whether other programs put the picture to its place without being told.
bool LiesByItself(const TimelineNode& node, const Layer& layer)
{
    if (layer.keyFrames || !layer.transform.IsIdentity() || IsText(layer))
        return false;
    const QRect canvas = Canvas(node);
    if (layer.kind == LayerKind::Media)
        return layer.margin == NLEMargin_Fit;
    return PlacePicture(layer.size, layer.margin, {canvas.width(), canvas.height()},
                        canvas.size()) == canvas;
}

DocumentFilter PlaceFilter(const TimelineNode& node, const Layer& layer)
{
    const QSize canvas = Canvas(node).size();
    TitlePainter painter;
    QStringList rects;
    QStringList turns;
    for (const auto& [frame, key] : FramesOf(layer)) {
        Placing placing = PlaceLayer(layer, &key, {canvas.width(), canvas.height()}, canvas);
        if (IsText(layer))
            placing = PlacePart(placing, TextArea(painter, layer, frame, canvas), canvas);
        const QString start = QString::number(frame) + QLatin1Char('=');
        const QRectF rect = placing.rect.normalized();
        rects << start + QStringList{Number(rect.x()), Number(rect.y()), Number(rect.width()),
                                     Number(rect.height())}
                             .join(QLatin1Char(' '));
        turns << start + Number(placing.rotation);
    }
    const QString one = QStringLiteral("1");
    DocumentTexts texts = {
        {QStringLiteral("mlt_service"), QStringLiteral("affine")},
        {QStringLiteral("background"), QStringLiteral("color:#00000000")},
        // Else the rectangle counts in pixels of the source and not in those of the profile.
        {QStringLiteral("use_normalised"), one},
        {QStringLiteral("transition.repeat_off"), one},
        {QStringLiteral("transition.mirror_off"), one},
        {QStringLiteral("transition.rect"), Join(rects)},
        {QStringLiteral("transition.fix_rotate_x"), Join(turns)}};
    if (IsText(layer)) {
        // The picture of a text is as large as its letters.
        const TitleLook look = TextMoment(layer, layer.range.in).look;
        texts.emplace_back(QStringLiteral("transition.fill"), QStringLiteral("0"));
        texts.emplace_back(QStringLiteral("transition.halign"),
                           QLatin1String(kAcross[size_t(look.alignment)]));
        texts.emplace_back(QStringLiteral("transition.valign"), QStringLiteral("top"));
    } else {
        texts.emplace_back(QStringLiteral("transition.distort"), one);
    }
    return {texts, std::nullopt};
}

/// How much the layer covers; one value where that does not change.
QStringList Opacities(const Layer& layer)
{
    const double whole = layer.blend.enabled ? double(layer.blend.alpha) / kOpaqueAlpha : 1;
    QStringList opacities;
    bool isSame = true;
    std::optional<double> before;
    for (const auto& [frame, key] : FramesOf(layer)) {
        double opacity = std::clamp(key.opacity, 0.0, 1.0) * whole;
        if (layer.kind == LayerKind::Title)
            opacity *= MomentOf(layer, frame).opacity;
        opacities << QString::number(frame) + QLatin1Char('=') + Number(opacity);
        isSame = isSame && (!before || *before == opacity);
        before = opacity;
    }
    if (!isSame)
        return opacities;
    return {opacities.front().section(QLatin1Char('='), 1)};
}

} // namespace

std::vector<DocumentFilter> MotionFilters(const TimelineNode& node)
{
    if (!node.Parent() || node.PictureSize().width < 1 || Canvas(node).isEmpty())
        return {};
    const Snapshot layer = node.MakeSnapshot();
    std::vector<DocumentFilter> filters;
    if (!LiesByItself(node, *layer))
        filters.push_back(PlaceFilter(node, *layer));
    const QStringList opacities = Opacities(*layer);
    if (opacities != QStringList{Number(1)})
        filters.push_back({{{QStringLiteral("mlt_service"), QStringLiteral("brightness")},
                            {QStringLiteral("level"), QStringLiteral("1")},
                            {QStringLiteral("alpha"), Join(opacities)}},
                           std::nullopt});
    return filters;
}

int DocumentTextSize(const TimelineNode& text)
{
    const TransformSettings& transform = text.Transform().settings;
    double height = text.PictureSize().height;
    if (text.Parent() && !Canvas(text).isEmpty())
        height = PlacePicture(text.PictureSize(), text.Placement().margin,
                              text.Parent()->PictureSize(), Canvas(text).size())
                     .height();
    const double scale = transform.enabled ? std::abs(transform.scale.height) : 1;
    const Snapshot layer = text.MakeSnapshot();
    const double share =
        layer->kind == LayerKind::Title ? MomentOf(*layer, layer->range.in).look.size : kTextHeight;
    return std::max(1, ClampToInt(height * share * scale));
}

} // namespace nle
