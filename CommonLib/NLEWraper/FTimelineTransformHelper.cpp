// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/FTimelineTransformHelper.h"

#include "CommonLib/BaseLog.h"
#include "CommonLib/NLEWraper/EngineCall_p.h"
#include "EngineApi/INLEProperties.h"

namespace {

constexpr char kSourcePath[] = "CommonLib/NLEWraper/FTimelineTransformHelper";
constexpr char kSetTransformLockName[] = "FTimelineTransformHelper::SetTransformLock";

/// The timeline type that \a node's properties tell; 0 when they do not.
int TimelineType(INLETimeline* node)
{
    constexpr int capacity = 255;
    const auto properties = EngineObject<INLEProperties>(node, &INLETimeline::GetProperties);
    return EngineText<capacity>(L'\0', properties.get(), &INLEProperties::GetString,
                                L"key_timeline_type")
        .toInt();
}

/// Normalised distance of \a pixels on a region of \a size, offset to the middle. 0 on an empty
/// region.
double Normalised(double pixels, double size)
{
    // Compared with 0 this is true for exactly 0 only.
    return qFuzzyCompare(size, 0.0) ? 0.0 : pixels / size + 0.5;
}

/// As Normalised(), for the axis that grows the other way.
double NormalisedY(double pixels, double size)
{
    return qFuzzyCompare(size, 0.0) ? 0.0 : 0.5 - pixels / size;
}

} // namespace

FTimelineTransformHelper::FTimelineTransformHelper(NLEComPtr<INLETimeline> timeline,
                                                   QObject* parent)
    : QObject(parent), m_timeline(std::move(timeline))
{
}

FTimelineTransformHelper::~FTimelineTransformHelper() = default;

NLEComPtr<INLETransform> FTimelineTransformHelper::Transform() const
{
    if (!m_transform)
        m_transform = m_timeline.query<INLETransform>();
    return m_transform;
}

NLEComPtr<INLETimeline> FTimelineTransformHelper::Parent() const
{
    return EngineObject<INLETimeline>(m_timeline.get(), &INLETimeline::GetParent);
}

bool FTimelineTransformHelper::GetTransformEnable() const
{
    return EngineValue(false, Transform().get(), &INLETransform::GetEnable);
}

void FTimelineTransformHelper::SetTransformEnable(bool enable)
{
    EngineSet(Transform().get(), &INLETransform::SetEnable, enable);
}

QPointF FTimelineTransformHelper::GetCenterPos() const
{
    const auto center = EngineValue(NLEPointF{}, Transform().get(), &INLETransform::GetCenter);
    return QPointF(center.x, center.y);
}

void FTimelineTransformHelper::SetCenterPos(QPointF center)
{
    const NLEPointF value{center.x(), center.y()};
    EngineSet(Transform().get(), &INLETransform::SetCenter, &value);
}

QSizeF FTimelineTransformHelper::GetResizeScale() const
{
    const auto scale = EngineValue(NLESizeF{}, Transform().get(), &INLETransform::GetScale);
    return QSizeF(scale.width, scale.height);
}

void FTimelineTransformHelper::SetResizeScale(QSizeF scale)
{
    const NLESizeF value{scale.width(), scale.height()};
    EngineSet(Transform().get(), &INLETransform::SetScale, &value);
}

double FTimelineTransformHelper::GetRotate() const
{
    return EngineValue(0.0, Transform().get(), &INLETransform::GetRotation);
}

void FTimelineTransformHelper::SetRotate(double rotation)
{
    EngineSet(Transform().get(), &INLETransform::SetRotation, rotation);
}

bool FTimelineTransformHelper::GetRenderROD(NLERectF& rect) const
{
    const auto region = Parent().query<INLERenderRegion>();
    if (!region)
        return false;
    region->GetRenderRegion(&rect);
    return true;
}

QPointF FTimelineTransformHelper::NormalizationPos2Pix(QPointF normalised) const
{
    NLERectF region{};
    if (!GetRenderROD(region))
        return QPointF();
    return QPointF((normalised.x() - 0.5) * region.width, (0.5 - normalised.y()) * region.height);
}

QPointF FTimelineTransformHelper::GetXYpos() const
{
    return Transform() ? NormalizationPos2Pix(GetCenterPos()) : QPointF();
}

float FTimelineTransformHelper::GetXpos() const
{
    NLERectF region{};
    if (!Transform() || !GetRenderROD(region))
        return 0;
    // The size is rounded before the product, here and below; GetXYpos() rounds nothing. Kept: see
    // docs/compatibility.md.
    return static_cast<float>((GetCenterPos().x() - 0.5) * static_cast<float>(region.width));
}

float FTimelineTransformHelper::GetYpos() const
{
    NLERectF region{};
    if (!Transform() || !GetRenderROD(region))
        return 0;
    return static_cast<float>((0.5 - GetCenterPos().y()) * static_cast<float>(region.height));
}

void FTimelineTransformHelper::SetXYpos(QPointF pixels)
{
    NLERectF region{};
    if (GetRenderROD(region))
        SetCenterPos(
            QPointF(Normalised(pixels.x(), region.width), NormalisedY(pixels.y(), region.height)));
}

void FTimelineTransformHelper::SetXpos(float x)
{
    NLERectF region{};
    if (GetRenderROD(region))
        SetCenterPos(QPointF(Normalised(x, region.width), GetCenterPos().y()));
}

void FTimelineTransformHelper::SetYpos(float y)
{
    NLERectF region{};
    if (GetRenderROD(region))
        SetCenterPos(QPointF(GetCenterPos().x(), NormalisedY(y, region.height)));
}

QRectF FTimelineTransformHelper::GetRenderRegion() const
{
    if (!Transform())
        return QRectF(0, 0, 1, 1);
    const QPointF center = GetCenterPos();
    const QSizeF scale = GetResizeScale();
    // Not the inverse of SetRenderRegion(). Kept: see docs/compatibility.md.
    return QRectF(2 * center.x() - scale.width(), 2 * center.y() - scale.height(), scale.width(),
                  scale.height());
}

void FTimelineTransformHelper::SetRenderRegion(const QRectF& region)
{
    SetCenterPos(
        QPointF((region.left() + region.right()) * 0.5, (region.top() + region.bottom()) * 0.5));
    SetResizeScale(region.size());
}

void FTimelineTransformHelper::SetTransformLock(bool lock)
{
    EngineSet(Transform().get(), &INLETransform::SetLock, lock);

    // "%x" takes an unsigned int, so the log shows the low 32 bits of the address.
    const auto address =
        static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(m_timeline.get()));
    BaseLog* log = GetGlobalLogInstance();
    if (TimelineType(m_timeline.get()) == ExactType_SplitScreen)
        log->LogInfo(kSourcePath, kSetTransformLockName, __LINE__,
                     "SplitScreen m_ptimeline = %x, lock = %d", address, lock ? 1 : 0);
    if (TimelineType(Parent().get()) == ExactType_SplitScreen)
        log->LogInfo(kSourcePath, kSetTransformLockName, __LINE__,
                     "SubSplitScreen m_ptimeline = %x, lock = %d", address, lock ? 1 : 0);
}

bool FTimelineTransformHelper::GetTransformLock() const
{
    // The transform is looked up, its lock is not read. Kept: see docs/compatibility.md.
    Transform();
    return false;
}
