// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/InkPictures_p.h"

#include <QFile>

#include <memory>

#include <tiffio.h>

namespace nle {
namespace {

constexpr int kInks = 4;

QFile& FileOf(thandle_t file)
{
    return *static_cast<QFile*>(file);
}

tmsize_t ReadBytes(thandle_t file, void* bytes, tmsize_t count)
{
    return tmsize_t(FileOf(file).read(static_cast<char*>(bytes), count));
}

tmsize_t WriteNothing(thandle_t /*file*/, void* /*bytes*/, tmsize_t /*count*/)
{
    return 0;
}

toff_t SeekByte(thandle_t file, toff_t offset, int whence)
{
    QFile& device = FileOf(file);
    qint64 place = qint64(offset);
    if (whence == SEEK_CUR)
        place += device.pos();
    else if (whence == SEEK_END)
        place += device.size();
    return device.seek(place) ? toff_t(place) : toff_t(-1);
}

int KeepOpen(thandle_t /*file*/)
{
    return 0;
}

toff_t SizeOf(thandle_t file)
{
    return toff_t(FileOf(file).size());
}

int Log(TIFF* /*tiff*/, void* /*data*/, const char* module, const char* format, va_list arguments)
{
    const QString text = QString::vasprintf(format, arguments);
    qCDebug(lcEngine, "libtiff: %s: %s", module, qUtf8Printable(text));
    return 1;
}

struct Closer
{
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using TiffPtr = std::unique_ptr<TIFF, Closer>;

struct OptionsFreer
{
    void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};

TiffPtr Open(QFile& file)
{
    const std::unique_ptr<TIFFOpenOptions, OptionsFreer> options(TIFFOpenOptionsAlloc());
    if (!options || !file.open(QIODevice::ReadOnly))
        return nullptr;
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), &Log, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), &Log, nullptr);
    // Without its own mapping of the file into memory.
    return TiffPtr(TIFFClientOpenExt("picture", "rm", &file, &ReadBytes, &WriteNothing, &SeekByte,
                                     &KeepOpen, &SizeOf, nullptr, nullptr, options.get()));
}

std::uint32_t NumberIn(TIFF* tiff, ttag_t tag)
{
    std::uint16_t value = 0;
    TIFFGetFieldDefaulted(tiff, tag, &value);
    return value;
}

} // namespace

std::optional<InkPicture> ReadInkTiff(const QString& path)
{
    QFile file(path);
    const TiffPtr tiff = Open(file);
    if (!tiff)
        return std::nullopt;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    TIFFGetField(tiff.get(), TIFFTAG_IMAGEWIDTH, &width);
    TIFFGetField(tiff.get(), TIFFTAG_IMAGELENGTH, &height);
    const std::uint32_t bits = NumberIn(tiff.get(), TIFFTAG_BITSPERSAMPLE);
    const std::size_t samples = NumberIn(tiff.get(), TIFFTAG_SAMPLESPERPIXEL);
    const std::size_t sampleBytes = bits / 8;
    std::vector<std::uint8_t> line(std::size_t(TIFFScanlineSize64(tiff.get())));
    const bool isRead = NumberIn(tiff.get(), TIFFTAG_PHOTOMETRIC) == PHOTOMETRIC_SEPARATED &&
                        NumberIn(tiff.get(), TIFFTAG_INKSET) == INKSET_CMYK &&
                        NumberIn(tiff.get(), TIFFTAG_PLANARCONFIG) == PLANARCONFIG_CONTIG &&
                        (bits == 8 || bits == 16) && samples >= kInks &&
                        TIFFIsTiled(tiff.get()) == 0 &&
                        line.size() >= width * samples * sampleBytes && width > 0 && height > 0;
    if (!isRead)
        return std::nullopt;
    InkPicture picture{QSize(int(width), int(height)), {}};
    picture.inks.resize(std::size_t(width) * height * kInks);
    // Samples of 16 bits come in the machine's own order.
    const std::size_t top = bits == 16 && Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? 1 : 0;
    std::uint8_t* to = picture.inks.data();
    for (std::uint32_t y = 0; y < height; ++y) {
        if (TIFFReadScanline(tiff.get(), line.data(), y) < 0)
            return std::nullopt;
        for (std::size_t x = 0; x < width; ++x) {
            for (std::size_t ink = 0; ink < kInks; ++ink)
                *to++ = line[(x * samples + ink) * sampleBytes + top];
        }
    }
    return picture;
}

} // namespace nle
