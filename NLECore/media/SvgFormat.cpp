// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureFormats_p.h"

#include <algorithm>
#include <cmath>

#include <librsvg/rsvg.h>

namespace nle {
namespace {

constexpr std::int64_t kLongestFile = std::int64_t(64) << 20;

// A drawing that is larger is described as one of that side; it is drawn at any size all the same.
constexpr double kLongestSide = 8192;

// CSS 2.1, 10.3.2: the size of what is replaced and says nothing of its own.
constexpr QSizeF kPresetSize(300, 150);

constexpr double kDotsPerInch = 96;

struct Freer
{
    void operator()(RsvgHandle* p) const { g_object_unref(p); }
    void operator()(GError* p) const { g_error_free(p); }
    void operator()(cairo_surface_t* p) const { cairo_surface_destroy(p); }
    void operator()(cairo_t* p) const { cairo_destroy(p); }
};
template <typename Object>
using SvgPtr = std::unique_ptr<Object, Freer>;

QString TextOf(GError* failure)
{
    const SvgPtr<GError> owner(failure);
    return QStringLiteral(": not a drawing: ") +
           (failure != nullptr ? QString::fromUtf8(failure->message) : QStringLiteral("?"));
}

// Without a place of its own a document refers to nothing but itself: librsvg then loads neither
// files nor addresses. Its limits of elements and of references to them hold as well.
SvgPtr<RsvgHandle> OpenDrawing(const QString& path, QString* error)
{
    const QByteArray file = ReadWhole(path, kLongestFile, error);
    if (file.isEmpty())
        return nullptr;
    GError* failure = nullptr;
    SvgPtr<RsvgHandle> drawing(rsvg_handle_new_from_data(
        reinterpret_cast<const guint8*>(file.constData()), gsize(file.size()), &failure));
    if (drawing)
        rsvg_handle_set_dpi(drawing.get(), kDotsPerInch);
    else
        SetError(error, path, TextOf(failure));
    return drawing;
}

QSizeF OwnSize(RsvgHandle* drawing)
{
    QSizeF size;
    if (rsvg_handle_get_intrinsic_size_in_pixels(drawing, &size.rwidth(), &size.rheight()) != 0)
        return size;
    gboolean hasWidth = 0;
    gboolean hasHeight = 0;
    gboolean hasBox = 0;
    RsvgLength width{};
    RsvgLength height{};
    RsvgRectangle box{};
    rsvg_handle_get_intrinsic_dimensions(drawing, &hasWidth, &width, &hasHeight, &height, &hasBox,
                                         &box);
    return hasBox != 0 ? QSizeF(box.width, box.height) : kPresetSize;
}

std::optional<MediaStream> Describe(const QString& path, QString* error)
{
    const SvgPtr<RsvgHandle> drawing = OpenDrawing(path, error);
    if (!drawing)
        return std::nullopt;
    QSizeF size = OwnSize(drawing.get());
    const bool isSize = std::isfinite(size.width()) && std::isfinite(size.height()) &&
                        size.width() > 0 && size.height() > 0;
    if (!isSize)
        size = kPresetSize;
    const double longest = std::max(size.width(), size.height());
    if (longest > kLongestSide)
        size *= kLongestSide / longest;
    MediaStream stream;
    stream.type = NLEStream_Video;
    stream.width = std::max(1, qRound(size.width()));
    stream.height = std::max(1, qRound(size.height()));
    stream.hasAlpha = true;
    stream.codecName = "svg";
    return stream;
}

QImage Read(const QString& path, const QSize& size, QString* error)
{
    const SvgPtr<RsvgHandle> drawing = OpenDrawing(path, error);
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    if (!drawing || picture.isNull())
        return {};
    picture.fill(Qt::transparent);
    const SvgPtr<cairo_surface_t> surface(cairo_image_surface_create_for_data(
        picture.bits(), CAIRO_FORMAT_ARGB32, size.width(), size.height(), picture.bytesPerLine()));
    const SvgPtr<cairo_t> context(cairo_create(surface.get()));
    // The drawing keeps its aspect in what it is drawn on; the whole is stretched to the size.
    QSizeF own = OwnSize(drawing.get());
    if (own.isEmpty())
        own = kPresetSize;
    cairo_scale(context.get(), size.width() / own.width(), size.height() / own.height());
    const RsvgRectangle viewport{0, 0, own.width(), own.height()};
    GError* failure = nullptr;
    if (rsvg_handle_render_document(drawing.get(), context.get(), &viewport, &failure) == 0) {
        SetError(error, path, TextOf(failure));
        return {};
    }
    cairo_surface_flush(surface.get());
    return picture.convertToFormat(QImage::Format_ARGB32);
}

} // namespace

const StillFormat kSvgFormat{"svg", true, &Describe, &Read};

} // namespace nle
