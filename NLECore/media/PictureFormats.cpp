// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PictureFormats_p.h"

#include "NLECore/media/ImageSequence_p.h"
#include "NLECore/media/MediaFile_p.h"

#include <QFile>

#include <cctype>

namespace nle {
namespace {

// What a drawing may have before its first element: a declaration, comments, a document type.
constexpr int kHeadLength = 4096;

// A box of brands is not longer in what cameras and programs write.
constexpr int kLongestBrands = 256;

enum class Kind
{
    Other,
    Heic,
    Avif,
    Drawing,
    Animation
};

QByteArray HeadOf(const QString& path)
{
    QFile file(path);
    return StampOf(path).size > 0 && file.open(QIODevice::ReadOnly) ? file.read(kHeadLength)
                                                                    : QByteArray();
}

// ISO/IEC 14496-12, file type box: length, "ftyp", the major brand, its version, other brands.
Kind KindOfIsoFile(const QByteArray& head)
{
    const QByteArray major = head.mid(8, 4);
    if (major == "avif")
        return Kind::Avif;
    if (QByteArrayList{"heic", "heix", "heim", "heis", "hevc", "hevx", "mif1", "msf1"}.contains(
            major)) {
        const bool isAvif = head.left(kLongestBrands).indexOf("avif") > 0;
        return isAvif ? Kind::Avif : Kind::Heic;
    }
    return Kind::Other;
}

bool IsDrawingHead(const QByteArray& head)
{
    const QByteArray text = head.startsWith("\xef\xbb\xbf") ? head.mid(3) : head;
    const QByteArray start = text.trimmed();
    const int element = start.indexOf("<svg");
    return start.startsWith('<') && element >= 0 && element + 4 < start.size() &&
           !std::isalnum(std::uint8_t(start[element + 4]));
}

// RIFF container of WebP: the flags of its extended header name an animation.
bool IsAnimationHead(const QByteArray& head)
{
    constexpr int flagsAt = 20;
    constexpr int animated = 2;
    return head.startsWith("RIFF") && head.mid(8, 8) == "WEBPVP8X" && head.size() > flagsAt &&
           (head[flagsAt] & animated) != 0;
}

Kind KindOf(const QByteArray& head)
{
    if (head.mid(4, 4) == "ftyp")
        return KindOfIsoFile(head);
    if (IsAnimationHead(head))
        return Kind::Animation;
    return IsDrawingHead(head) ? Kind::Drawing : Kind::Other;
}

[[maybe_unused]] std::shared_ptr<const MediaInfo> DescribeStill(const StillFormat& format,
                                                                const QString& path, QString* error)
{
    auto info = std::make_shared<MediaInfo>();
    info->path = path;
    info->stamp = StampOf(path);
    info->containerName = QLatin1String(format.container);
    std::optional<MediaStream> stream = format.describe(path, error);
    if (!stream)
        return nullptr;
    info->streams.push_back(std::move(*stream));
    info->videoStream = 0;
    MakeStill(info.get());
    return info;
}

[[maybe_unused]] std::shared_ptr<const MediaInfo> Refuse(const QString& path, const char* what,
                                                         QString* error)
{
    SetError(error, path, QStringLiteral(": this build does not read %1").arg(QLatin1String(what)));
    return nullptr;
}

} // namespace

const StillFormat* FormatOf(const MediaInfo& info)
{
#ifdef NLECORE_WITH_HEIF
    if (info.containerName == QLatin1String(kHeifFormat.container))
        return &kHeifFormat;
#endif
#ifdef NLECORE_WITH_SVG
    if (info.containerName == QLatin1String(kSvgFormat.container))
        return &kSvgFormat;
#endif
    (void)info;
    return nullptr;
}

bool IsDrawn(const MediaInfo& info)
{
    const StillFormat* const format = FormatOf(info);
    return format != nullptr && format->isDrawn;
}

std::optional<std::shared_ptr<const MediaInfo>> ProbePictures(const QString& path, QString* error)
{
    if (const std::optional<ImageSequence> sequence = FindSequence(path))
        return DescribeSequence(path, *sequence, error);
    switch (KindOf(HeadOf(path))) {
    case Kind::Other:
        break;
    case Kind::Avif:
#ifdef NLECORE_WITH_HEIF
        // What libheif cannot read, libavformat may.
        if (auto info = DescribeStill(kHeifFormat, path, nullptr))
            return info;
#endif
        break;
    case Kind::Heic:
#ifdef NLECORE_WITH_HEIF
        return DescribeStill(kHeifFormat, path, error);
#else
        return Refuse(path, "HEIC pictures", error);
#endif
    case Kind::Drawing:
#ifdef NLECORE_WITH_SVG
        return DescribeStill(kSvgFormat, path, error);
#else
        return Refuse(path, "SVG drawings", error);
#endif
    case Kind::Animation:
#ifdef NLECORE_WITH_WEBP
        return DescribeAnimation(path, error);
#else
        return Refuse(path, "animated WebP", error);
#endif
    }
    return std::nullopt;
}

#ifndef NLECORE_WITH_WEBP
bool IsAnimation(const MediaInfo& /*info*/)
{
    return false;
}

std::unique_ptr<PictureSource> OpenAnimation(const MediaInfo& /*info*/, QString* /*error*/)
{
    return nullptr;
}
#endif

QByteArray ReadWhole(const QString& path, std::int64_t limit, QString* error)
{
    QFile file(path);
    QByteArray content;
    if (StampOf(path).size < 0 || !file.open(QIODevice::ReadOnly))
        SetError(error, path, QStringLiteral(" cannot be read"));
    else if (file.size() > limit)
        SetError(error, path, QStringLiteral(" is too large"));
    else if (content = file.readAll(); content.isEmpty())
        SetError(error, path, QStringLiteral(" is empty"));
    return content;
}

} // namespace nle
