// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"
#include "CommonLib/NLEWraper/VideoKeyFrameParam.h"
#include "EngineApi/INLETimeline.h"

#include <QPointF>
#include <QRectF>

/// Loose comparison, for telling whether an edit changed anything: angle, scale, position and
/// opacity are equal to a relative 1e-12 once 1 is added to both, so that it works near 0 too. Time
/// is not compared; \a timeline is ignored and may be null.
COMMONLIB_EXPORT bool video_keyframe_equals(INLETimeline* timeline, const VideoKeyFrameParam& a,
                                            const VideoKeyFrameParam& b);

/// Whether \a a and \a b are the same number once they are rounded to \a digits decimals, halves
/// away from zero. What is not a number equals nothing.
COMMONLIB_EXPORT bool compare_double(double a, double b, int digits);

/// Place on the key-frame axis of frame \a index of a clip of \a count frames, as the engine counts
/// it.
COMMONLIB_EXPORT double CalculateVideoKeyFramePosition(int index, int count);

/// The frame of a clip of \a count frames that is at the place \a time, as the engine counts it.
COMMONLIB_EXPORT int CalculateVideoKeyFrameIndex(double time, int count);

/// Pixels from the middle of \a region, y growing downward, for a normalised position. Where the
/// region lies does not matter.
COMMONLIB_EXPORT QPointF ConvertFromNLEPositionToUI(QPointF position, const QRectF& region);

/// As above, with the clip's render region, which is written to the debug channel.
COMMONLIB_EXPORT QPointF ConvertFromNLEPositionToUI(INLETimeline* timeline, QPointF position);

/// The inverse of ConvertFromNLEPositionToUI(); 0 along a side of no length.
COMMONLIB_EXPORT QPointF ConvertFromUIToNLEPosition(QPointF pixels, const QRectF& region);

/// As above, with the clip's render region.
COMMONLIB_EXPORT QPointF ConvertFromUIToNLEPosition(INLETimeline* timeline, QPointF pixels);

/// Region in pixels that the clip is rendered in, its parent's; all zeros for a null timeline and
/// for a clip without a parent.
COMMONLIB_EXPORT QRectF GetRenderROD(INLETimeline* timeline);
