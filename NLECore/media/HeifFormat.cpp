// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ColourConverter_p.h"
#include "NLECore/media/ColourProfile_p.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureFormats_p.h"
#include "NLECore/media/PictureScaler_p.h"
#include "NLECore/media/StillReader_p.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

#include <libheif/heif.h>

namespace nle {
namespace {

constexpr std::int64_t kLongestFile = std::int64_t(512) << 20;

struct Freer
{
    void operator()(heif_context* p) const { heif_context_free(p); }
    void operator()(heif_image_handle* p) const { heif_image_handle_release(p); }
    void operator()(heif_image* p) const { heif_image_release(p); }
    void operator()(heif_decoding_options* p) const { heif_decoding_options_free(p); }
    void operator()(heif_color_profile_nclx* p) const { heif_nclx_color_profile_free(p); }
};
template <typename Object>
using HeifPtr = std::unique_ptr<Object, Freer>;

/// The primary picture of a file; of a sequence of pictures that is one as well.
struct Primary
{
    QByteArray file; ///< outlives what was opened in it
    HeifPtr<heif_context> context;
    HeifPtr<heif_image_handle> handle;
};

bool Check(const heif_error& result, const QString& path, QString* error)
{
    if (result.code == heif_error_Ok)
        return true;
    SetError(error, path, QStringLiteral(": ") + QString::fromUtf8(result.message));
    return false;
}

std::optional<Primary> OpenPrimary(const QString& path, QString* error)
{
    Primary primary;
    primary.file = ReadWhole(path, kLongestFile, error);
    primary.context.reset(heif_context_alloc());
    if (primary.file.isEmpty() || !primary.context)
        return std::nullopt;
    heif_image_handle* handle = nullptr;
    const bool isOpen =
        Check(heif_context_read_from_memory_without_copy(primary.context.get(),
                                                         primary.file.constData(),
                                                         size_t(primary.file.size()), nullptr),
              path, error) &&
        Check(heif_context_get_primary_image_handle(primary.context.get(), &handle), path, error);
    primary.handle.reset(handle);
    return isOpen ? std::optional<Primary>(std::move(primary)) : std::nullopt;
}

std::optional<MediaStream> Describe(const QString& path, QString* error)
{
    const std::optional<Primary> primary = OpenPrimary(path, error);
    if (!primary)
        return std::nullopt;
    const heif_image_handle* const handle = primary->handle.get();
    MediaStream stream;
    stream.type = NLEStream_Video;
    // After the turns and mirrors that the file asks for, which libheif applies.
    stream.width = heif_image_handle_get_width(handle);
    stream.height = heif_image_handle_get_height(handle);
    stream.hasAlpha = heif_image_handle_has_alpha_channel(handle) != 0;
    constexpr int brandsLength = 64;
    stream.codecName = primary->file.left(brandsLength).contains("avif") ? "av1" : "hevc";
    if (stream.width > 0 && stream.height > 0)
        return stream;
    SetError(error, path, QStringLiteral(": no picture in it"));
    return std::nullopt;
}

QByteArray ProfileOf(const heif_image_handle* handle)
{
    QByteArray profile(int(heif_image_handle_get_raw_color_profile_size(handle)), '\0');
    const bool isThere =
        !profile.isEmpty() &&
        heif_image_handle_get_raw_color_profile(handle, profile.data()).code == heif_error_Ok;
    const auto type = heif_image_handle_get_color_profile_type(handle);
    const bool isIcc = type == heif_color_profile_type_rICC || type == heif_color_profile_type_prof;
    return isThere && isIcc ? profile : QByteArray();
}

/// What a file says of its colours where it has no profile.
struct Numbers
{
    AVColorPrimaries primaries = AVCOL_PRI_UNSPECIFIED;
    AVColorTransferCharacteristic transfer = AVCOL_TRC_UNSPECIFIED;
};

Numbers NumbersOf(const heif_image_handle* handle)
{
    heif_color_profile_nclx* nclx = nullptr;
    if (heif_image_handle_get_nclx_color_profile(handle, &nclx).code != heif_error_Ok)
        return {};
    const HeifPtr<heif_color_profile_nclx> owner(nclx);
    return {AVColorPrimaries(nclx->color_primaries),
            AVColorTransferCharacteristic(nclx->transfer_characteristics)};
}

/// The brightest of the picture in cd/m², 0 when it is not told.
double PeakOf(const heif_image* image)
{
    heif_content_light_level level = {};
    if (heif_image_has_content_light_level(image) != 0)
        heif_image_get_content_light_level(image, &level);
    if (level.max_content_light_level > 0)
        return level.max_content_light_level;
    heif_mastering_display_colour_volume coded = {};
    heif_decoded_mastering_display_colour_volume display = {};
    if (heif_image_has_mastering_display_colour_volume(image) != 0)
        heif_image_get_mastering_display_colour_volume(image, &coded);
    heif_mastering_display_colour_volume_decode(&coded, &display);
    return display.max_display_mastering_luminance;
}

HeifPtr<heif_image> Decode(const heif_image_handle* handle, heif_chroma chroma, const QString& path,
                           QString* error)
{
    const HeifPtr<heif_decoding_options> options(heif_decoding_options_alloc());
    if (!options)
        return nullptr;
    options->convert_hdr_to_8bit = chroma == heif_chroma_interleaved_RGBA ? 1 : 0;
    heif_image* decoded = nullptr;
    const heif_error result =
        heif_decode_image(handle, &decoded, heif_colorspace_RGB, chroma, options.get());
    HeifPtr<heif_image> image(decoded);
    return Check(result, path, error) ? std::move(image) : nullptr;
}

/// The pixels of an image, four components each; null when it has none.
const std::uint8_t* PixelsOf(const heif_image* image, QSize* size, int* stride)
{
    *size = {heif_image_get_primary_width(image), heif_image_get_primary_height(image)};
    const std::uint8_t* const pixels =
        heif_image_get_plane_readonly(image, heif_channel_interleaved, stride);
    return size->isEmpty() ? nullptr : pixels;
}

QImage ToImage(const heif_image* image)
{
    QSize size;
    int stride = 0;
    const std::uint8_t* const pixels = PixelsOf(image, &size, &stride);
    if (pixels == nullptr)
        return {};
    const QImage wrapped(pixels, size.width(), size.height(), stride, QImage::Format_RGBA8888);
    return wrapped.convertToFormat(QImage::Format_ARGB32);
}

/// As Format_RGBA64.
QImage ToDeepImage(const heif_image* image)
{
    QSize size;
    int stride = 0;
    const std::uint8_t* const pixels = PixelsOf(image, &size, &stride);
    QImage deep(pixels != nullptr ? size : QSize(), QImage::Format_RGBA64);
    const int bits = heif_image_get_bits_per_pixel_range(image, heif_channel_interleaved);
    if (deep.isNull() || bits < 8 || bits > 16)
        return {};
    const std::uint32_t highest = (1U << unsigned(bits)) - 1;
    constexpr int components = 4;
    for (int y = 0; y < deep.height(); ++y) {
        const auto* const from =
            reinterpret_cast<const std::uint16_t*>(pixels + std::ptrdiff_t(y) * stride);
        auto* const to = reinterpret_cast<std::uint16_t*>(deep.scanLine(y));
        for (int i = 0; i < deep.width() * components; ++i)
            to[i] = std::uint16_t(std::min<std::uint32_t>(from[i], highest) * UINT16_MAX / highest);
    }
    return deep;
}

/// A picture of high dynamic range.
QImage ReadHighRange(const heif_image_handle* handle, const Numbers& numbers, const QSize& size,
                     const QString& path, QString* error)
{
    constexpr heif_chroma deep = Q_BYTE_ORDER == Q_LITTLE_ENDIAN
                                     ? heif_chroma_interleaved_RRGGBBAA_LE
                                     : heif_chroma_interleaved_RRGGBBAA_BE;
    const bool isDeep = heif_image_handle_get_luma_bits_per_pixel(handle) > 8;
    const HeifPtr<heif_image> image =
        Decode(handle, isDeep ? deep : heif_chroma_interleaved_RGBA, path, error);
    QImage picture;
    if (image)
        picture = isDeep ? ToDeepImage(image.get()) : ToImage(image.get());
    if (picture.isNull())
        return {};
    if (picture.size() != size)
        picture = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture = picture.convertToFormat(QImage::Format_RGBA64);
    const auto colours = ForeignColoursOf(numbers.primaries, numbers.transfer, PeakOf(image.get()));
    return ConvertForeign(picture, *colours);
}

QImage ReadUsual(const heif_image_handle* handle, const QSize& size, const QString& path,
                 QString* error)
{
    const HeifPtr<heif_image> image = Decode(handle, heif_chroma_interleaved_RGBA, path, error);
    QImage picture = image ? ToImage(image.get()) : QImage();
    return picture.isNull() || picture.size() == size ? picture : ScalePicture(picture, size);
}

QImage Read(const QString& path, const QSize& size, QString* error)
{
    const std::optional<Primary> primary = OpenPrimary(path, error);
    if (!primary)
        return {};
    const heif_image_handle* const handle = primary->handle.get();
    const QByteArray profile = ProfileOf(handle);
    const Numbers numbers = profile.isEmpty() ? NumbersOf(handle) : Numbers();
    const bool isHighRange = IsHighRange(numbers.transfer);
    QImage picture = isHighRange ? ReadHighRange(handle, numbers, size, path, error)
                                 : ReadUsual(handle, size, path, error);
    if (picture.isNull()) {
        if (error && error->isEmpty())
            SetError(error, path, QStringLiteral(": the picture cannot be decoded"));
    } else if (!profile.isEmpty()) {
        ConvertToSrgb(&picture, profile, path);
    } else if (!isHighRange) {
        ConvertToSrgb(&picture, numbers.primaries, path);
    }
    return picture;
}

} // namespace

const StillFormat kHeifFormat{"heif", false, &Describe, &Read};

} // namespace nle
