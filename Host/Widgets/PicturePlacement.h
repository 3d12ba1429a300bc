// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>

/// Safe areas of a 16:9 picture by EBU R 95 and SMPTE ST 2046-1, as parts of its width and height:
/// what happens must stay within the larger one, text within the smaller one.
constexpr double kActionSafe = 0.93;
constexpr double kTitleSafe = 0.90;

/// Where a picture stands in a view.
///
/// The view is counted in two ways: positions of a host are in device-independent pixels with a
/// fraction, as Qt's mouse events have them; what is drawn is in whole device pixels, of which
/// there are ratio to a device-independent one. Both count from the view's upper left corner,
/// pictures from their own, in pixels of the picture.
class PicturePlacement
{
public:
    enum class Scale
    {
        Fit,   ///< all of the picture, bars at two sides
        Fill,  ///< all of the view, the picture cut at two sides
        Pixels ///< a device pixel for each pixel of the picture, centred
    };

    /// No picture: all rectangles are empty, positions are (0, 0).
    PicturePlacement() = default;
    /// \a view in device-independent pixels, \a ratio above 0. An empty picture or view is none.
    PicturePlacement(const QSize& picture, const QSize& view, double ratio, Scale scale);

    bool IsEmpty() const { return m_target.isEmpty(); }
    double Ratio() const { return m_ratio; }
    /// The view in device pixels, rounded as Qt rounds what it draws on.
    QSize ViewSize() const { return m_view; }
    /// The whole picture in device pixels; reaches beyond the view where the picture is cut.
    QRect Target() const { return m_target; }
    /// The part of Target() within the view, and the part of the picture that it shows.
    QRect Visible() const { return m_target & QRect(QPoint(), m_view); }
    QRectF VisibleSource() const;
    /// Device pixels for a pixel of the picture.
    double Factor() const;

    /// Also for positions outside of view and picture.
    QPointF ToPicture(const QPointF& view) const;
    QPointF ToView(const QPointF& picture) const;
    /// The picture in device-independent pixels of the view.
    QRectF ViewRect() const;
    /// A centred rectangle, \a part of the picture's width and height, in whole device pixels.
    QRect Area(double part) const;

    bool operator==(const PicturePlacement& other) const;
    bool operator!=(const PicturePlacement& other) const { return !(*this == other); }

private:
    QSize m_picture;
    QSize m_view;
    QRect m_target;
    double m_ratio = 1;
};
