// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/InkPictures_p.h"
#include "NLECore/media/PictureFormats_p.h"

#include <QtEndian>

#include <memory>

#include <turbojpeg.h>

namespace nle {
namespace {

constexpr std::int64_t kLongestFile = std::int64_t(1) << 30;

struct Destroyer
{
    void operator()(void* decoder) const { tjDestroy(decoder); }
};

bool IsAdobes(const QByteArray& jpeg)
{
    constexpr std::uint8_t startOfScan = 0xDA;
    constexpr std::uint8_t app14 = 0xEE;
    constexpr int headLength = 4;
    for (int at = 2; at + headLength < jpeg.size();) {
        const std::uint8_t marker = std::uint8_t(jpeg[at + 1]);
        if (std::uint8_t(jpeg[at]) != 0xFF || marker == startOfScan)
            return false;
        if (marker == app14 && jpeg.mid(at + headLength, 5) == "Adobe")
            return true;
        at += 2 + qFromBigEndian<std::uint16_t>(jpeg.constData() + at + 2);
    }
    return false;
}

} // namespace

std::optional<InkPicture> ReadInkJpeg(const QString& path)
{
    const QByteArray file = ReadWhole(path, kLongestFile, nullptr);
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(file.constData());
    const auto length = static_cast<unsigned long>(file.size());
    const std::unique_ptr<void, Destroyer> decoder(tjInitDecompress());
    int width = 0;
    int height = 0;
    int sampling = 0;
    int colours = -1;
    if (file.isEmpty() || !decoder ||
        tjDecompressHeader3(decoder.get(), bytes, length, &width, &height, &sampling, &colours) !=
            0 ||
        (colours != TJCS_CMYK && colours != TJCS_YCCK))
        return std::nullopt;
    InkPicture picture{QSize(width, height), {}, IsAdobes(file)};
    picture.inks.resize(std::size_t(width) * std::size_t(height) * 4);
    // Of a picture that is cut off what is there shows.
    const bool isDecoded = tjDecompress2(decoder.get(), bytes, length, picture.inks.data(), width,
                                         0, height, TJPF_CMYK, 0) == 0 ||
                           tjGetErrorCode(decoder.get()) == TJERR_WARNING;
    return isDecoded ? std::optional<InkPicture>(std::move(picture)) : std::nullopt;
}

} // namespace nle
