// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLETimeline.h"
#include "EngineApi/INLETransform.h"

#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// Where one clip stands on its parent: centre, scale and rotation.
///
/// The engine keeps the centre normalised, from (0, 0) top left to (1, 1) bottom right of the
/// parent's render region. Pixel coordinates here have their origin in the region's middle, and y
/// grows upwards. The units of scale and rotation are the engine's.
///
/// A node without a transform, and for pixels a parent without a render region, ignores setters and
/// gives false, 0 and (0, 0). Not thread-safe.
class COMMONLIB_EXPORT FTimelineTransformHelper : public QObject
{
    Q_OBJECT

public:
    /// Holds a reference to \a timeline, which should not be null.
    FTimelineTransformHelper(NLEComPtr<INLETimeline> timeline, QObject* parent);
    ~FTimelineTransformHelper() override;

    bool GetTransformEnable() const; ///< whether the transform counts
    void SetTransformEnable(bool enable);
    /// Normalised centre.
    QPointF GetCenterPos() const;
    void SetCenterPos(QPointF center);
    QSizeF GetResizeScale() const;
    void SetResizeScale(QSizeF scale);
    double GetRotate() const;
    void SetRotate(double rotation);

    /// Fills \a rect with the parent's render region in pixels; false when it has none.
    bool GetRenderROD(NLERectF& rect) const;
    /// Pixel coordinates of a normalised position.
    QPointF NormalizationPos2Pix(QPointF normalised) const;
    /// Centre in pixels.
    QPointF GetXYpos() const;
    float GetXpos() const;
    float GetYpos() const;
    /// Moves the centre, given in pixels. A region without width (or height) gives 0.
    void SetXYpos(QPointF pixels);
    /// As SetXYpos(); keeps the other coordinate.
    void SetXpos(float x);
    void SetYpos(float y);

    /// Centre and scale as a rectangle whose top-left corner is twice the centre minus the size;
    /// (0, 0, 1, 1) without a transform. Not what SetRenderRegion() was given.
    QRectF GetRenderRegion() const;
    /// Sets the centre to the middle of \a region and the scale to its size.
    void SetRenderRegion(const QRectF& region);

    /// Locks the transform in the engine. Split-screen timelines and their clips report it in the
    /// log.
    void SetTransformLock(bool lock);
    /// Always false: the engine's lock is never read back.
    bool GetTransformLock() const;

private:
    NLEComPtr<INLETransform> Transform() const;
    NLEComPtr<INLETimeline> Parent() const;

    // The reverse of this order is the order of release.
    NLEComPtr<INLETimeline> m_timeline;
    mutable NLEComPtr<INLETransform> m_transform; ///< null until first use
};
