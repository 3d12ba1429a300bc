// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ColourProfile_p.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureFormats_p.h"
#include "NLECore/media/StillReader_p.h"

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

void ToSrgb(QImage* picture, const heif_image_handle* handle, const QString& path)
{
    if (const QByteArray profile = ProfileOf(handle); !profile.isEmpty()) {
        ConvertToSrgb(picture, profile, path);
        return;
    }
    heif_color_profile_nclx* nclx = nullptr;
    if (heif_image_handle_get_nclx_color_profile(handle, &nclx).code != heif_error_Ok)
        return;
    const HeifPtr<heif_color_profile_nclx> owner(nclx);
    ConvertToSrgb(picture, int(nclx->color_primaries), int(nclx->transfer_characteristics), path);
}

QImage ToImage(const heif_image* image)
{
    int stride = 0;
    const std::uint8_t* const pixels =
        heif_image_get_plane_readonly(image, heif_channel_interleaved, &stride);
    const int width = heif_image_get_primary_width(image);
    const int height = heif_image_get_primary_height(image);
    if (pixels == nullptr || width < 1 || height < 1)
        return {};
    const QImage wrapped(pixels, width, height, stride, QImage::Format_RGBA8888);
    return wrapped.convertToFormat(QImage::Format_ARGB32);
}

QImage Read(const QString& path, const QSize& size, QString* error)
{
    const std::optional<Primary> primary = OpenPrimary(path, error);
    const HeifPtr<heif_decoding_options> options(heif_decoding_options_alloc());
    if (!primary || !options)
        return {};
    options->convert_hdr_to_8bit = 1;
    heif_image* decoded = nullptr;
    const heif_error result =
        heif_decode_image(primary->handle.get(), &decoded, heif_colorspace_RGB,
                          heif_chroma_interleaved_RGBA, options.get());
    const HeifPtr<heif_image> image(decoded);
    if (!Check(result, path, error))
        return {};
    QImage picture = ToImage(image.get());
    if (picture.isNull()) {
        SetError(error, path, QStringLiteral(": the picture cannot be decoded"));
        return {};
    }
    if (picture.size() != size)
        picture = ScalePicture(picture, size);
    ToSrgb(&picture, primary->handle.get(), path);
    return picture;
}

} // namespace

const StillFormat kHeifFormat{"heif", false, &Describe, &Read};

} // namespace nle
