// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MotionFilters.h"

#include "NLECore/model/CompositeNode.h"
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

QString Number(double value)
{
    return QString::number(value, 'f', 3);
}

} // namespace

std::vector<DocumentFilter> MotionFilters(const TimelineNode& node)
{
    const bool isPlain = !node.KeyFrames().Curve() && node.Transform().settings.IsIdentity();
    if (!node.Parent() || isPlain || node.PictureSize().width < 1)
        return {};
    const Snapshot layer = node.MakeSnapshot();
    const NLESize parent = node.Parent()->PictureSize();
    QStringList rects;
    QStringList turns;
    QStringList opacities;
    bool isOpaque = true;
    for (const auto& [frame, key] : ByFrame(layer->keyFrames.get())) {
        const Placing placing =
            PlaceLayer(*layer, &key, parent, QSize(parent.width, parent.height));
        const QString start = QString::number(frame) + QLatin1Char('=');
        const QRectF rect = placing.rect.normalized();
        rects << start + QStringList{Number(rect.x()), Number(rect.y()), Number(rect.width()),
                                     Number(rect.height())}
                             .join(QLatin1Char(' '));
        turns << start + Number(placing.rotation);
        const double opacity = std::clamp(key.opacity, 0.0, 1.0);
        opacities << start + Number(opacity);
        isOpaque = isOpaque && opacity == 1;
    }
    const auto join = [](const QStringList& values) { return values.join(QLatin1Char(';')); };
    const QString one = QStringLiteral("1");
    std::vector<DocumentFilter> filters = {
        {{QStringLiteral("mlt_service"), QStringLiteral("affine")},
         {QStringLiteral("background"), QStringLiteral("color:#00000000")},
         // Else the rectangle counts in pixels of the source and not in those of the profile.
         {QStringLiteral("use_normalised"), one},
         {QStringLiteral("transition.distort"), one},
         {QStringLiteral("transition.repeat_off"), one},
         {QStringLiteral("transition.mirror_off"), one},
         {QStringLiteral("transition.rect"), join(rects)},
         {QStringLiteral("transition.fix_rotate_x"), join(turns)}}};
    if (!isOpaque)
        filters.push_back({{QStringLiteral("mlt_service"), QStringLiteral("brightness")},
                           {QStringLiteral("level"), one},
                           {QStringLiteral("alpha"), join(opacities)}});
    return filters;
}

} // namespace nle
