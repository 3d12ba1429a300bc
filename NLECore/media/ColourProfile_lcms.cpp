// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ColourProfile_p.h"

#include "NLECore/media/EngineLog.h"

#include <QtEndian>

#include <array>
#include <memory>

#include <lcms2.h>

namespace nle {
namespace {

// The pixels of Format_ARGB32 in memory.
constexpr cmsUInt32Number kPixels = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? TYPE_BGRA_8 : TYPE_ARGB_8;

constexpr cmsUInt32Number kFlags = cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_COPY_ALPHA;

constexpr int kGreys = 256;

struct ProfileCloser
{
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using ProfilePtr = std::unique_ptr<void, ProfileCloser>;

struct TransformDeleter
{
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using TransformPtr = std::unique_ptr<void, TransformDeleter>;

ProfilePtr OpenProfile(const QByteArray& profile)
{
    return ProfilePtr(cmsOpenProfileFromMem(profile.constData(), cmsUInt32Number(profile.size())));
}

TransformPtr MakeTransform(const ProfilePtr& source, cmsUInt32Number format, cmsUInt32Number flags)
{
    const ProfilePtr target(cmsCreate_sRGBProfile());
    return TransformPtr(target ? cmsCreateTransform(source.get(), format, target.get(), kPixels,
                                                    INTENT_RELATIVE_COLORIMETRIC, flags)
                               : nullptr);
}

bool ConvertColours(QImage* image, const ProfilePtr& source)
{
    const TransformPtr transform = MakeTransform(source, kPixels, kFlags);
    if (!transform)
        return false;
    for (int y = 0; y < image->height(); ++y) {
        std::uint8_t* const line = image->scanLine(y);
        cmsDoTransform(transform.get(), line, line, cmsUInt32Number(image->width()));
    }
    return true;
}

// Grey pictures were decoded to three equal components.
bool ConvertGreys(QImage* image, const ProfilePtr& source)
{
    const TransformPtr transform = MakeTransform(source, TYPE_GRAY_8, 0);
    if (!transform)
        return false;
    std::array<std::uint8_t, kGreys> greys{};
    for (int i = 0; i < kGreys; ++i)
        greys[size_t(i)] = std::uint8_t(i);
    std::array<QRgb, kGreys> colours{};
    cmsDoTransform(transform.get(), greys.data(), colours.data(), kGreys);
    for (int y = 0; y < image->height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image->scanLine(y));
        for (int x = 0; x < image->width(); ++x) {
            const QRgb colour = colours[size_t(qGreen(line[x]))];
            line[x] = qRgba(qRed(colour), qGreen(colour), qBlue(colour), qAlpha(line[x]));
        }
    }
    return true;
}

// Most profiles that cameras and programs embed are this one, under some version of its name.
bool IsSrgb(const ProfilePtr& profile)
{
    std::array<char, 64> name{};
    cmsGetProfileInfoASCII(profile.get(), cmsInfoDescription, "en", "US", name.data(),
                           cmsUInt32Number(name.size() - 1));
    return QLatin1String(name.data()).startsWith(QLatin1String("sRGB"));
}

// Display P3 has the primaries of code 12, film and television of the next ones those of BT.2020.
ProfilePtr MakeProfile(int primaries)
{
    constexpr int bt2020 = 9;
    constexpr int displayP3 = 12;
    constexpr cmsCIExyY d65{0.3127, 0.3290, 1.0};
    constexpr cmsCIExyYTRIPLE wide{{0.708, 0.292, 1.0}, {0.170, 0.797, 1.0}, {0.131, 0.046, 1.0}};
    constexpr cmsCIExyYTRIPLE p3{{0.680, 0.320, 1.0}, {0.265, 0.690, 1.0}, {0.150, 0.060, 1.0}};
    if (primaries != bt2020 && primaries != displayP3)
        return nullptr;
    // The curve of sRGB, as lcms numbers and parametrises it.
    constexpr std::array<double, 5> srgb{2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    cmsToneCurve* const curve = cmsBuildParametricToneCurve(nullptr, 4, srgb.data());
    if (curve == nullptr)
        return nullptr;
    const std::array<cmsToneCurve*, 3> curves{curve, curve, curve};
    ProfilePtr profile(cmsCreateRGBProfile(&d65, primaries == bt2020 ? &wide : &p3, curves.data()));
    cmsFreeToneCurve(curve);
    return profile;
}

} // namespace

void ConvertToSrgb(QImage* image, const QByteArray& profile, const QString& path)
{
    if (profile.isEmpty() || image->isNull())
        return;
    const ProfilePtr source = OpenProfile(profile);
    if (source && IsSrgb(source))
        return;
    const cmsColorSpaceSignature space =
        source ? cmsGetColorSpace(source.get()) : cmsColorSpaceSignature(0);
    const bool isDone = (space == cmsSigRgbData && ConvertColours(image, source)) ||
                        (space == cmsSigGrayData && ConvertGreys(image, source));
    if (!isDone)
        qCWarning(lcEngine, "%s: its colour profile cannot be used", qUtf8Printable(path));
}

void ConvertToSrgb(QImage* image, int primaries, const QString& path)
{
    if (image->isNull())
        return;
    const ProfilePtr source = MakeProfile(primaries);
    if (source && !ConvertColours(image, source))
        qCWarning(lcEngine, "%s: its colours cannot be converted", qUtf8Printable(path));
}

bool IsOfInks(const QByteArray& profile)
{
    const ProfilePtr source = OpenProfile(profile);
    return source && cmsGetColorSpace(source.get()) == cmsSigCmykData;
}

QImage FromInks(const InkPicture& picture, const QByteArray& profile)
{
    constexpr int inks = 4;
    const ProfilePtr source = OpenProfile(profile);
    const TransformPtr transform =
        source ? MakeTransform(source, picture.isInverted ? TYPE_CMYK_8_REV : TYPE_CMYK_8,
                               cmsFLAGS_BLACKPOINTCOMPENSATION)
               : nullptr;
    QImage image(transform ? picture.size : QSize(), QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    image.fill(Qt::black); // for the alpha, which stays
    for (int y = 0; y < image.height(); ++y) {
        const std::uint8_t* const line =
            picture.inks.data() + std::ptrdiff_t(y) * image.width() * inks;
        cmsDoTransform(transform.get(), line, image.scanLine(y), cmsUInt32Number(image.width()));
    }
    return image;
}

} // namespace nle
