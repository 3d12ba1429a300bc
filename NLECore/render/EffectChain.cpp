// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/EffectChain.h"

#include <algorithm>

namespace nle {

namespace {

/// Where rows come from or go to: an image, or planes between two effects.
struct Ends
{
    const QImage* from;
    QImage* to;
};

bool IsCanvas(QImage::Format format)
{
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied ||
           format == QImage::Format_RGBX64 || format == QImage::Format_RGBA64_Premultiplied;
}

EffectRow RowOf(EffectPicture& picture, int line, int y)
{
    return {{picture.Row(0, line), picture.Row(1, line), picture.Row(2, line)},
            picture.Row(3, line),
            picture.Width(),
            y};
}

/// Brings the rows of \a ends through \a effects; planes stand in for an image that is null.
void RunRows(const std::vector<RowEffect>& effects, const Ends& ends, bool hasAlpha,
             EffectPicture& planes, const Bands& bands)
{
    const QSize size = ends.from ? ends.from->size() : planes.Size();
    if (!ends.to && ends.from)
        planes = EffectPicture(size);
    const bool needsPlanes = !(ends.from && ends.to);
    ForBands(size.height(), bands, [&](int first, int end) {
        EffectPicture line(needsPlanes ? QSize(0, 0) : QSize(size.width(), 1));
        for (int y = first; y < end; ++y) {
            const EffectRow row = needsPlanes ? RowOf(planes, y, y) : RowOf(line, 0, y);
            if (ends.from)
                ReadRow(*ends.from, row);
            else if (hasAlpha)
                Divide(row);
            for (const RowEffect& effect : effects)
                effect(row);
            if (ends.to)
                WriteRow(row, *ends.to);
            else if (hasAlpha)
                Multiply(row);
        }
    });
}

} // namespace

QImage DrawnPicture::Inner() const
{
    return margins.isNull() ? image : image.copy(image.rect().marginsRemoved(margins));
}

DrawnPicture EffectChain::Apply(QImage image, QImage::Format format) const
{
    if (image.isNull() || effects.empty())
        return {std::move(image), {}};
    if (!IsCanvas(image.format()))
        image = image.convertToFormat(format);
    const bool hasAlpha = image.hasAlphaChannel() || MakeTransparent(effects);
    const QImage::Format result = hasAlpha ? format : image.format();
    EffectFrame drawn = {image.rect(), scale, hasAlpha, bands};
    const QImage* from = &image;
    EffectPicture planes;
    std::vector<RowEffect> rows;
    for (const SharedParameters& values : effects) {
        const EffectKind& kind = KindOf(*values);
        const ParametersAt at(*values, frame);
        if (kind.makeRows) {
            if (RowEffect row = kind.makeRows(at, drawn))
                rows.push_back(std::move(row));
            continue;
        }
        if (from || !rows.empty())
            RunRows(rows, {from, nullptr}, hasAlpha, planes, bands);
        rows.clear();
        from = nullptr;
        kind.draw(at, drawn, planes);
    }
    if (from && rows.empty())
        return {std::move(image), {}};
    QImage drawnImage(from ? image.size() : planes.Size(), result);
    if (drawnImage.isNull())
        return {};
    RunRows(rows, {from, &drawnImage}, hasAlpha, planes, bands);
    const QRect& inner = drawn.inner;
    const QRect whole = drawnImage.rect();
    return {std::move(drawnImage),
            QMargins(inner.left(), inner.top(), whole.right() - inner.right(),
                     whole.bottom() - inner.bottom())};
}

bool MakeTransparent(const std::vector<SharedParameters>& effects)
{
    return std::any_of(effects.begin(), effects.end(), [](const SharedParameters& values) {
        return KindOf(*values).makesTransparent;
    });
}

} // namespace nle
