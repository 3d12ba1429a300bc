// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/VideoKeyFrame.h"

#include "CommonLib/NLEWraper/FTimelineTransformHelper.h"
#include "EngineApi/NLECommon.h"

#include <QDebug>

#include <cmath>

namespace {

/// Near 0 a relative tolerance alone would accept nothing.
bool AlmostEqual(double a, double b)
{
    return qFuzzyCompare(a + 1.0, b + 1.0);
}

double Share(double pixels, double side)
{
    return side == 0 ? 0 : pixels / side;
}

} // namespace

bool video_keyframe_equals(INLETimeline* /*timeline*/, const VideoKeyFrameParam& a,
                           const VideoKeyFrameParam& b)
{
    return AlmostEqual(a.rotateAngle, b.rotateAngle) &&
           AlmostEqual(a.scale.width(), b.scale.width()) &&
           AlmostEqual(a.scale.height(), b.scale.height()) &&
           AlmostEqual(a.position.x(), b.position.x()) &&
           AlmostEqual(a.position.y(), b.position.y()) && AlmostEqual(a.opacity, b.opacity);
}

bool compare_double(double a, double b, int digits)
{
    const double power = std::pow(10.0, digits);
    // Whole numbers as doubles: what a 64-bit integer holds compares the same, and what it does not
    // hold cannot overflow.
    return std::round(a * power) == std::round(b * power);
}

double CalculateVideoKeyFramePosition(int index, int count)
{
    const NLERational place = NLECommon::KeyFrame::CaculateKeyFramePosition(index, count);
    return place.den == 0 ? 0 : static_cast<double>(place.num) / static_cast<double>(place.den);
}

int CalculateVideoKeyFrameIndex(double time, int count)
{
    return NLECommon::KeyFrame::CaculateKeyFrameIndex(time, count);
}

QPointF ConvertFromNLEPositionToUI(QPointF position, const QRectF& region)
{
    return QPointF(position.x() * region.width(), -(position.y() * region.height()));
}

QPointF ConvertFromNLEPositionToUI(INLETimeline* timeline, QPointF position)
{
    const QRectF region = GetRenderROD(timeline);
    qDebug().nospace() << "x:" << region.x() << " y:" << region.y() << " width:" << region.width()
                       << " height:" << region.height();
    return ConvertFromNLEPositionToUI(position, region);
}

QPointF ConvertFromUIToNLEPosition(QPointF pixels, const QRectF& region)
{
    return QPointF(Share(pixels.x(), region.width()), -Share(pixels.y(), region.height()));
}

QPointF ConvertFromUIToNLEPosition(INLETimeline* timeline, QPointF pixels)
{
    return ConvertFromUIToNLEPosition(pixels, GetRenderROD(timeline));
}

QRectF GetRenderROD(INLETimeline* timeline)
{
    NLERectF region{};
    if (timeline)
        FTimelineTransformHelper(timeline, nullptr).GetRenderROD(region);
    return QRectF(region.x, region.y, region.width, region.height);
}
