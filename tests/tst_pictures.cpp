// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/FrameDecoder.h"
#include "NLECore/media/ImageSequence.h"
#include "NLECore/media/MediaStore.h"
#include "NLECore/media/StillPictures.h"
#include "tests/support/MediaFixture.h"

#include <QColorSpace>
#include <QDir>
#include <QPainter>
#include <QProcess>
#include <QTcpServer>
#include <QtEndian>
#include <QtTest>

#include <atomic>
#include <thread>

#ifdef NLECORE_WITH_TURBOJPEG
#include <lcms2.h>
#include <turbojpeg.h>
#endif

using namespace nle;

namespace {

constexpr QSize kSize(160, 120);
constexpr int kNumber = 1234;

#ifndef NLECORE_WITH_SVG
constexpr char kNoDrawings[] = "librsvg, on pango, cairo and Rust, is not built for this system";
#endif

/// Four fields: colours that every usual colour space holds.
QImage Colours()
{
    QImage picture(kSize, QImage::Format_RGB32);
    picture.fill(QColor(200, 60, 40));
    QPainter painter(&picture);
    painter.fillRect(kSize.width() / 2, 0, kSize.width() / 2, kSize.height() / 2,
                     QColor(40, 180, 70));
    painter.fillRect(0, kSize.height() / 2, kSize.width() / 2, kSize.height() / 2,
                     QColor(50, 80, 210));
    painter.fillRect(kSize.width() / 2, kSize.height() / 2, kSize.width() / 2, kSize.height() / 2,
                     QColor(128, 128, 128));
    return picture;
}

/// The greatest difference of a component in the middle of the four fields.
int WorstOf(const QImage& found, const QImage& wanted)
{
    if (found.size() != wanted.size())
        return 256;
    int worst = 0;
    for (const QPoint& quarter : {QPoint(1, 1), QPoint(3, 1), QPoint(1, 3), QPoint(3, 3)}) {
        const QPoint place(quarter.x() * kSize.width() / 4, quarter.y() * kSize.height() / 4);
        const QRgb a = found.pixel(place);
        const QRgb b = wanted.pixel(place);
        worst = std::max({worst, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                          std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
    }
    return worst;
}

QByteArray LittleEndian(quint32 value, int bytes)
{
    QByteArray text(4, '\0');
    qToLittleEndian(value, text.data());
    return text.left(bytes);
}

/// An uncompressed TIFF (Revision 6.0) of \a pixels of RGB or inks with a colour profile.
QByteArray Tiff(const QSize& size, const QByteArray& pixels, const QByteArray& profile)
{
    const int samples = pixels.size() / (size.width() * size.height());
    const quint32 colours = samples == 4 ? 5 : 2;
    constexpr quint32 word = 3;
    constexpr quint32 number = 4;
    constexpr quint32 bytes = 7;
    const quint32 pixelsAt = 8;
    const quint32 profileAt = pixelsAt + quint32(pixels.size());
    const quint32 bitsAt = profileAt + quint32(profile.size() + profile.size() % 2);
    const std::vector<std::array<quint32, 4>> tags = {
        {256, number, 1, quint32(size.width())},
        {257, number, 1, quint32(size.height())},
        {258, word, quint32(samples), bitsAt},
        {259, word, 1, 1},
        {262, word, 1, colours},
        {273, number, 1, pixelsAt},
        {277, word, 1, quint32(samples)},
        {278, number, 1, quint32(size.height())},
        {279, number, 1, quint32(pixels.size())},
        {34675, bytes, quint32(profile.size()), profileAt}};
    QByteArray file = "II*" + QByteArray(1, '\0') + LittleEndian(bitsAt + quint32(samples) * 2, 4) +
                      pixels + profile;
    file += QByteArray(profile.size() % 2, '\0');
    for (int i = 0; i < samples; ++i)
        file += LittleEndian(8, 2);
    file += LittleEndian(quint32(tags.size()), 2);
    for (const auto& [tag, type, count, value] : tags)
        file += LittleEndian(tag, 2) + LittleEndian(type, 2) + LittleEndian(count, 4) +
                LittleEndian(value, 4);
    return file + LittleEndian(0, 4);
}

/// \a webp, of a simple layout, in the extended one with a colour profile.
QByteArray WithProfile(const QByteArray& webp, const QSize& size, const QByteArray& profile)
{
    constexpr char hasProfile = 0x20;
    QByteArray body = "WEBPVP8X" + LittleEndian(10, 4) + QByteArray(1, hasProfile) +
                      QByteArray(3, '\0') + LittleEndian(quint32(size.width() - 1), 3) +
                      LittleEndian(quint32(size.height() - 1), 3) + "ICCP" +
                      LittleEndian(quint32(profile.size()), 4) + profile +
                      QByteArray(profile.size() % 2, '\0') + webp.mid(12);
    return "RIFF" + LittleEndian(quint32(body.size()), 4) + body;
}

/// \a jpeg with a colour profile in one segment.
QByteArray JpegWithProfile(const QByteArray& jpeg, const QByteArray& profile)
{
    const QByteArray segment = QByteArray("ICC_PROFILE\0\1\1", 14) + profile;
    char length[2];
    qToBigEndian(quint16(segment.size() + 2), length);
    return jpeg.left(2) + "\xff\xe2" + QByteArray(length, 2) + segment + jpeg.mid(2);
}

#ifdef NLECORE_WITH_TURBOJPEG
/// A profile of inks that are darker than those that nobody described.
QByteArray InkProfile()
{
    const auto sample = [](const cmsUInt16Number ink[], cmsUInt16Number out[], void*) {
        const double left = 1 - 0.9 * ink[3] / UINT16_MAX;
        const auto share = [&](int i) { return double(ink[i]) / UINT16_MAX; };
        const cmsCIELab lab = {
            100 * (1 - 0.4 * share(0)) * (1 - 0.5 * share(1)) * (1 - 0.1 * share(2)) * left,
            (50 * share(1) - 30 * share(0)) * left, (60 * share(2) - 35 * share(0)) * left};
        cmsFloat2LabEncoded(out, &lab);
        return cmsInt32Number(1);
    };
    const cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 4.3);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsPipeline* const pipeline = cmsPipelineAlloc(nullptr, 4, 3);
    cmsStage* const table = cmsStageAllocCLut16bit(nullptr, 7, 4, 3, nullptr);
    cmsStageSampleCLut16bit(table, sample, nullptr, 0);
    for (cmsStage* stage : {cmsStageAllocToneCurves(nullptr, 4, nullptr), table,
                            cmsStageAllocToneCurves(nullptr, 3, nullptr)})
        cmsPipelineInsertStage(pipeline, cmsAT_END, stage);
    cmsWriteTag(profile, cmsSigAToB0Tag, pipeline);
    cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ());
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(int(size), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsPipelineFree(pipeline);
    cmsCloseProfile(profile);
    return bytes;
}

/// As Adobe's programs write it.
QByteArray InkJpeg(QByteArray pixels, const QByteArray& profile)
{
    std::transform(pixels.begin(), pixels.end(), pixels.begin(), [](char c) { return ~c; });
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    const tjhandle encoder = tjInitCompress();
    tjCompress2(encoder, reinterpret_cast<const unsigned char*>(pixels.constData()), kSize.width(),
                0, kSize.height(), TJPF_CMYK, &bytes, &size, TJSAMP_444, 100, 0);
    const QByteArray jpeg(reinterpret_cast<const char*>(bytes), int(size));
    tjFree(bytes);
    tjDestroy(encoder);
    return JpegWithProfile(jpeg, profile);
}
#endif

/// Counts how often a picture is read.
struct CountedStill
{
    StillPicture still;
    std::shared_ptr<std::atomic<int>> reads = std::make_shared<std::atomic<int>>(0);
};

} // namespace

class tst_Pictures : public QObject, private MediaFixture
{
    Q_OBJECT

    /// A file that was written long enough ago to be trusted, and a reader of one colour for it.
    CountedStill Counted(const QString& name, const QSize& ownSize) const
    {
        CountedStill counted;
        counted.still.path = Path(name);
        QFile file(counted.still.path);
        if (!file.open(QIODevice::WriteOnly) || file.write("picture") < 0)
            qWarning("no file");
        file.close();
        QTest::qSleep(150);
        counted.still.stamp = StampOf(counted.still.path);
        counted.still.ownSize = ownSize;
        counted.still.read = [reads = counted.reads](const QSize& size) {
            ++*reads;
            QTest::qSleep(20);
            QImage picture(size, QImage::Format_ARGB32);
            picture.fill(Qt::red);
            return picture;
        };
        return counted;
    }
    QImage Shown(const QString& name, const QSize& size, int frame = 0) const
    {
        const Info info = Probe(name);
        const auto decoder = info ? FrameDecoder::Open(info, info->videoStream, nullptr) : nullptr;
        return decoder ? decoder->Picture(frame, size) : QImage();
    }

    /// Empty on success.
    static QString Run(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        if (!process.waitForStarted())
            return "the program " + program + " does not start";
        if (!process.waitForFinished(120000) || process.exitCode() != 0)
            return program + " failed: " + process.readAll();
        return {};
    }

private Q_SLOTS:
    void readOnce_data()
    {
        QTest::addColumn<QSize>("ownSize");
        QTest::addColumn<bool>("isKeptWhole");
        QTest::addColumn<QList<QSize>>("shown");
        QTest::addColumn<int>("reads");
        const QSize own(100, 100);
        const QSize smaller(50, 40);
        QTest::newRow("the same size again") << own << true << QList<QSize>{own, own} << 1;
        QTest::newRow("other sizes come from the whole picture")
            << own << true << QList<QSize>{smaller, own, QSize(10, 10), smaller} << 1;
        QTest::newRow("what is drawn is drawn anew at each size")
            << own << false << QList<QSize>{smaller, own, smaller} << 2;
        // Half of the room holds 200 x 125 pixels.
        QTest::newRow("a picture without room is kept at half its size")
            << QSize(400, 200) << true << QList<QSize>{QSize(20, 10), QSize(30, 15), QSize(20, 10)}
            << 1;
        QTest::newRow("what was used longest ago goes first")
            << own << false << QList<QSize>{QSize(100, 100), QSize(99, 100),  QSize(100, 100),
                                            QSize(98, 100),  QSize(100, 100), QSize(99, 100)}
            << 4;
    }

    void readOnce()
    {
        QFETCH(QSize, ownSize);
        QFETCH(bool, isKeptWhole);
        QFETCH(QList<QSize>, shown);
        QFETCH(int, reads);
        CountedStill counted = Counted("counted", ownSize);
        counted.still.isKeptWhole = isKeptWhole;
        constexpr std::int64_t capacity = 200000;
        StillPictures stills(capacity);
        for (const QSize& size : shown) {
            QCOMPARE(stills.Picture(counted.still, size).size(), size);
            QVERIFY(stills.Bytes() <= capacity);
        }
        QCOMPARE(int(*counted.reads), reads);
    }

    void changedFileIsReadAnew()
    {
        StillPictures stills;
        const CountedStill old = Counted("changed", kSize);
        QVERIFY(!stills.Picture(old.still, kSize).isNull());
        const std::int64_t bytes = stills.Bytes();
        const CountedStill changed = Counted("changed", kSize);
        QVERIFY(!stills.Picture(changed.still, kSize).isNull());
        QCOMPARE(int(*changed.reads), 1);
        QCOMPARE(stills.Bytes(), bytes);
    }

    void threadsShareOneReading()
    {
        StillPictures stills;
        const CountedStill counted = Counted("shared", kSize);
        std::vector<std::thread> threads;
        std::atomic<int> shown = 0;
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&, i] {
                const QSize size(40 + i % 2, 30);
                shown += stills.Picture(counted.still, size).size() == size ? 1 : 0;
            });
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(int(shown), 4);
        QCOMPARE(int(*counted.reads), 1);
    }

    void heif_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("options");
        QTest::newRow("HEIC") << "a.heic" << QStringList{};
        QTest::newRow("HEIC of ten bits") << "b.heic" << QStringList{"-b", "10"};
        QTest::newRow("AVIF") << "c.avif" << QStringList{"-A"};
    }

    void heif()
    {
#ifndef NLECORE_WITH_HEIF
        QSKIP("this build has no libheif");
#endif
        QFETCH(QString, name);
        QFETCH(QStringList, options);
        const QImage source = Colours();
        QVERIFY(source.save(Path("colours.png")));
        QCOMPARE(Run("heif-enc",
                     options + QStringList{"-q", "95", "-o", Path(name), Path("colours.png")}),
                 QString());
        const Info info = Probe(name);
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Image);
        const MediaStream& stream = *info->Stream(info->videoStream);
        QCOMPARE(QSize(stream.width, stream.height), kSize);
        const int worst = WorstOf(Shown(name, kSize), source);
        QVERIFY2(worst <= 8, qPrintable(QString::number(worst)));
    }

    // By numbers of ITU-T H.273.
    void avifOfOtherLight_data()
    {
        QTest::addColumn<QString>("primaries");
        QTest::addColumn<QString>("transfer");
        QTest::addColumn<QString>("matrix");
        QTest::newRow("PQ") << "bt2020"
                            << "smpte2084"
                            << "bt2020nc";
        QTest::newRow("HLG") << "bt2020"
                             << "arib-std-b67"
                             << "bt2020nc";
        QTest::newRow("BT.709") << "bt709"
                                << "bt709"
                                << "bt709";
        QTest::newRow("BT.601") << "smpte170m"
                                << "smpte170m"
                                << "smpte170m";
    }

    void avifOfOtherLight()
    {
#ifndef NLECORE_WITH_HEIF
        QSKIP("this build has no libheif");
#endif
        QFETCH(QString, primaries);
        QFETCH(QString, transfer);
        QFETCH(QString, matrix);
        QVERIFY(Colours().save(Path("codes.png")));
        // A film of the same codes.
        for (const QStringList& target :
             {QStringList{"libsvtav1", Path("a.avif")}, QStringList{"libx264", Path("a.mkv")}})
            QCOMPARE(RunFfmpeg({"-i", Path("codes.png"), "-vf",
                                "scale=out_color_matrix=" + QString(matrix).remove("nc") +
                                    ":out_range=tv,format=yuv420p10",
                                "-c:v", target[0], "-crf", "5", "-colorspace", matrix,
                                "-color_primaries", primaries, "-color_trc", transfer, target[1]}),
                     QString());
        QCOMPARE(Probe("a.avif")->kind, NLEMedia_Image);
        const int worst = WorstOf(Shown("a.avif", kSize), Shown("a.mkv", kSize));
        QVERIFY2(worst <= 8, qPrintable(QString::number(worst)));
    }

    void heifOrientation_data()
    {
        QTest::addColumn<int>("exif");
        for (int exif = 1; exif <= 8; ++exif)
            QTest::addRow("as %d of Exif", exif) << exif;
    }

    void heifOrientation()
    {
#ifndef NLECORE_WITH_HEIF
        QSKIP("this build has no libheif");
#endif
        QFETCH(int, exif);
        const QImage source = Colours();
        QCOMPARE(MakePhotograph(Path("turned.jpg"), source, exif), QString());
        // heif-enc overlooks the orientation where its table is not the end of the block: without
        // the four bytes of a next table it is.
        QByteArray photograph = Contents(Path("turned.jpg")).remove(34, 4);
        photograph[5] = char(photograph[5] - 4);
        QVERIFY(SetContents(Path("turned.jpg"), photograph));
        QCOMPARE(Run("heif-enc", {"-q", "95", "-o", Path("turned.heic"), Path("turned.jpg")}),
                 QString());
        const Info info = Probe("turned.heic");
        QVERIFY(info);
        QCOMPARE(QSize(info->streams[0].width, info->streams[0].height), kSize);
        const int worst = WorstOf(Shown("turned.heic", kSize), source);
        QVERIFY2(worst <= 8, qPrintable(QString::number(worst)));
    }

    void heifKeepsItsAlpha()
    {
#ifndef NLECORE_WITH_HEIF
        QSKIP("this build has no libheif");
#endif
        QImage source(kSize, QImage::Format_ARGB32);
        source.fill(qRgba(200, 100, 50, 128));
        QVERIFY(source.save(Path("alpha.png")));
        QCOMPARE(Run("heif-enc", {"-q", "95", "-o", Path("alpha.heic"), Path("alpha.png")}),
                 QString());
        QVERIFY(Probe("alpha.heic")->Stream(0)->hasAlpha);
        const int worst = WorstOf(Shown("alpha.heic", kSize), source);
        QVERIFY2(worst <= 8, qPrintable(QString::number(worst)));
    }

    void colourProfile_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"p3.png", "p3.jpg", "p3.tif", "p3.webp", "p3.heic"})
            QTest::newRow(name) << name;
    }

    void colourProfile()
    {
#ifndef NLECORE_WITH_LCMS
        QSKIP("this build has no lcms2");
#endif
        QFETCH(QString, name);
        const QImage source = Colours();
        QImage wide = source;
        wide.setColorSpace(QColorSpace::SRgb);
        wide.convertToColorSpace(QColorSpace::DisplayP3);
        // So that a profile that is passed over does not go unnoticed.
        QVERIFY(WorstOf(wide, source) >= 15);
        QVERIFY(wide.save(Path("p3.png")));
        const QByteArray profile = wide.colorSpace().iccProfile();
        if (name == "p3.tif") {
            const QImage rgb = wide.convertToFormat(QImage::Format_RGB888);
            const QByteArray pixels(reinterpret_cast<const char*>(rgb.constBits()),
                                    int(rgb.sizeInBytes()));
            QVERIFY(SetContents(Path(name), Tiff(kSize, pixels, profile)));
        } else if (name == "p3.jpg") {
            QCOMPARE(RunFfmpeg({"-i", Path("p3.png"), "-q:v", "1", "-qmin", "1", "-update", "1",
                                Path("plain.jpg")}),
                     QString());
            QVERIFY(SetContents(Path(name), JpegWithProfile(Contents(Path("plain.jpg")), profile)));
        } else if (name == "p3.webp") {
            QCOMPARE(RunFfmpeg({"-i", Path("p3.png"), "-lossless", "1", Path("plain.webp")}),
                     QString());
            QVERIFY(
                SetContents(Path(name), WithProfile(Contents(Path("plain.webp")), kSize, profile)));
        } else if (name == "p3.heic") {
#ifndef NLECORE_WITH_HEIF
            QSKIP("this build has no libheif");
#endif
            QCOMPARE(Run("heif-enc", {"-q", "95", "-o", Path(name), Path("p3.png")}), QString());
        }
        const int worst = WorstOf(Shown(name, kSize), source);
        QVERIFY2(worst <= 8, qPrintable(QString::number(worst)));
    }

    void printingInks_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("TIFF") << "inks.tif";
        QTest::newRow("JPEG of Adobe's programs") << "inks.jpg";
    }

    void printingInks()
    {
#if !defined(NLECORE_WITH_TURBOJPEG) || !defined(NLECORE_WITH_TIFF)
        QSKIP("this build has no libturbojpeg or no libtiff");
#else
        QFETCH(QString, name);
        const QByteArray quarters[] = {"\x20\xd0\xe0\x08", "\xc0\x20\xe8\x10", "\xe0\xa0\x08\x18",
                                       "\x30\x28\x20\x80"};
        QByteArray pixels;
        for (int i = 0; i < kSize.width() * kSize.height(); ++i)
            pixels += quarters[i / kSize.width() * 2 / kSize.height() * 2 +
                               i % kSize.width() * 2 / kSize.width()];
        const QByteArray profile = InkProfile();
        QVERIFY(SetContents(Path(name), name == "inks.tif" ? Tiff(kSize, pixels, profile)
                                                           : InkJpeg(pixels, profile)));
        QImage wanted(kSize, QImage::Format_RGB32);
        const cmsHPROFILE inks =
            cmsOpenProfileFromMem(profile.constData(), cmsUInt32Number(profile.size()));
        const cmsHPROFILE screen = cmsCreate_sRGBProfile();
        const cmsHTRANSFORM transform =
            cmsCreateTransform(inks, TYPE_CMYK_8, screen, TYPE_BGRA_8, INTENT_RELATIVE_COLORIMETRIC,
                               cmsFLAGS_BLACKPOINTCOMPENSATION);
        wanted.fill(Qt::black);
        cmsDoTransform(transform, pixels.constData(), wanted.bits(),
                       cmsUInt32Number(pixels.size() / 4));
        cmsDeleteTransform(transform);
        cmsCloseProfile(inks);
        cmsCloseProfile(screen);
        const int worst = WorstOf(Shown(name, kSize), wanted);
        QVERIFY2(worst <= 4, qPrintable(QString::number(worst)));
#endif
    }

    void drawing_data()
    {
        QTest::addColumn<QString>("root"); // attributes
        QTest::addColumn<QSize>("size");
        QTest::newRow("width and height") << "width='300' height='200'" << QSize(300, 200);
        QTest::newRow("in inches") << "width='2in' height='1in'" << QSize(192, 96);
        QTest::newRow("of its view box") << "viewBox='0 0 400 100'" << QSize(400, 100);
        QTest::newRow("of no size") << "" << QSize(300, 150);
        QTest::newRow("beyond all bounds")
            << "width='100000000' height='50000000' viewBox='0 0 4 2'" << QSize(8192, 4096);
    }

    void drawing()
    {
#ifndef NLECORE_WITH_SVG
        QSKIP(kNoDrawings);
#endif
        QFETCH(QString, root);
        QFETCH(QSize, size);
        const QString svg = "<?xml version='1.0'?><!-- a comment --><svg "
                            "xmlns='http://www.w3.org/2000/svg' " +
                            root + "><rect width='10000%' height='10000%' fill='#28b446'/></svg>";
        QVERIFY(SetContents(Path("drawing.svg"), svg.toUtf8()));
        const Info info = Probe("drawing.svg");
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Image);
        QCOMPARE(QSize(info->streams[0].width, info->streams[0].height), size);
        QCOMPARE(Shown("drawing.svg", kSize).pixel(80, 60), qRgb(0x28, 0xb4, 0x46));
    }

    void drawingIsSharpAtEachSize()
    {
#ifndef NLECORE_WITH_SVG
        QSKIP(kNoDrawings);
#endif
        QVERIFY(SetContents(Path("sharp.svg"),
                            "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'>"
                            "<rect width='2' height='4' fill='red'/></svg>"));
        const QImage picture = Shown("sharp.svg", QSize(400, 400));
        QCOMPARE(picture.pixel(199, 200), qRgba(255, 0, 0, 255));
        QCOMPARE(qAlpha(picture.pixel(200, 200)), 0);
    }

    void drawingOpensNothingElse_data()
    {
        QTest::addColumn<QString>("content");
        QTest::newRow("picture beside it") << "<image href='red.png' width='160' height='120'/>";
        QTest::newRow("picture by its address")
            << "<image href='file://FOLDER/red.png' width='160' height='120'/>";
        QTest::newRow("picture of a server")
            << "<image href='http://127.0.0.1:PORT/red.png' width='160' height='120'/>";
        QTest::newRow("style sheet of a server")
            << "<style>@import url('http://127.0.0.1:PORT/red.css');</style>";
        QTest::newRow("drawing beside it") << "<use href='red.svg#red'/>";
        QTest::newRow("entity of a file") << "<text y='60'>&outside;</text>";
        QTest::newRow("file included")
            << "<xi:include xmlns:xi='http://www.w3.org/2001/XInclude' href='red.svg'/>";
    }

    void drawingOpensNothingElse()
    {
#ifndef NLECORE_WITH_SVG
        QSKIP(kNoDrawings);
#endif
        QFETCH(QString, content);
        QImage red(kSize, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(Path("red.png")));
        const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='160' height='120'>";
        QVERIFY(SetContents(Path("red.svg"),
                            svg + "<rect id='red' width='160' height='120' fill='red'/></svg>"));
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        content.replace("FOLDER", folder.path());
        content.replace("PORT", QString::number(server.serverPort()));
        QVERIFY(
            SetContents(Path("outside.svg"), "<!DOCTYPE svg [<!ENTITY outside SYSTEM 'red.svg'>]>" +
                                                 svg + content.toUtf8() + "</svg>"));
        const QImage picture = Shown("outside.svg", kSize);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                QCOMPARE(qRed(picture.pixel(x, y)), 0);
        }
        QVERIFY(!server.waitForNewConnection(100));
    }

    void animatedWebp_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("leftOutOf"); // all but each first of so many pictures; 0 for none
        QTest::addColumn<int>("shownRate");
        QTest::newRow("25 pictures a second") << 25 << 0 << 25;
        QTest::newRow("10 pictures a second") << 10 << 0 << 10;
        QTest::newRow("at a variable rate") << 25 << 3 << 25;
    }

    void animatedWebp()
    {
#ifndef NLECORE_WITH_WEBP
        QSKIP("this build has no libwebp");
#endif
        QFETCH(int, rate);
        QFETCH(int, leftOutOf);
        QFETCH(int, shownRate);
        TestClip clip = SmallClip(30);
        clip.rateNum = rate;
        clip.codec = "libwebp_anim";
        clip.extra = QStringList{"-lossless", "1"};
        const auto shownAt = [&](int frame) {
            return leftOutOf > 0 && frame >= 12 ? frame - (frame - 12) % leftOutOf : frame;
        };
        if (leftOutOf > 0)
            clip.isLeftOut = [&](int frame) { return shownAt(frame) != frame; };
        QFile::remove(Path("animation.webp"));
        const Info info = Make("animation.webp", clip);
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Video);
        QCOMPARE(NLECommon::ToDouble(info->frameRate), double(shownRate));
        // The last picture lasts as long as the one before it.
        QVERIFY(info->frameCount >= 28 && info->frameCount <= 31);
        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        for (const int frame : {0, 1, 5, 13, 14, 15, 20, 27, 3, 27, 26, 0})
            QCOMPARE(ReadFrameNumber(decoder->Picture(frame, kThumbnail)), shownAt(frame));
        QVERIFY(decoder->Picture(int(info->frameCount), kThumbnail).isNull());
    }

    void animatedWebpKeepsItsAlpha()
    {
#ifndef NLECORE_WITH_WEBP
        QSKIP("this build has no libwebp");
#endif
        for (int i = 0; i < 3; ++i) {
            QImage picture(kSize, QImage::Format_ARGB32);
            picture.fill(qRgba(200, 100, 50, 60 * i));
            QVERIFY(picture.save(Path(QString("alpha%1.png").arg(i))));
        }
        QCOMPARE(RunFfmpeg({"-i", Path("alpha%d.png"), "-c:v", "libwebp_anim", "-lossless", "1",
                            "-pix_fmt", "bgra", Path("alpha.webp")}),
                 QString());
        const Info info = Probe("alpha.webp");
        QVERIFY(info);
        QVERIFY(info->Stream(0)->hasAlpha);
        const auto decoder = FrameDecoder::Open(info, 0, nullptr);
        QCOMPARE(decoder->Picture(2, kSize).pixel(5, 5), qRgba(200, 100, 50, 120));
        QCOMPARE(qAlpha(decoder->Picture(0, kSize).pixel(5, 5)), 0);
    }

    void sequence_data()
    {
        QTest::addColumn<QList<int>>("numbers");
        QTest::addColumn<QString>("names"); // with %1 for a number
        QTest::addColumn<int>("digits");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QList<int>>("shown"); // empty when there is no such sequence
        const QList<int> three{1001, 1002, 1003};
        QTest::newRow("from 1001") << three << "a_%1.png" << 4 << "a_%04d.png" << three;
        QTest::newRow("without zeros in front")
            << QList<int>{8, 9, 10, 11} << "b%1.png" << 1 << "b%d.png" << QList<int>{8, 9, 10, 11};
        QTest::newRow("past its digits")
            << QList<int>{98, 99, 100} << "c%1.bmp" << 2 << "c%02d.bmp" << QList<int>{98, 99, 100};
        QTest::newRow("ends at the first gap")
            << QList<int>{0, 1, 2, 4, 5} << "d%1.png" << 3 << "d%03d.png" << QList<int>{0, 1, 2};
        QTest::newRow("numbers of other lengths do not count")
            << three << "e%1.png" << 4 << "e%06d.png" << QList<int>{};
        QTest::newRow("other suffix") << three << "f%1.png" << 4 << "f%04d.tif" << QList<int>{};
        QTest::newRow("two numbers") << three << "g%1.png" << 4 << "g%02d%02d.png" << QList<int>{};
        QTest::newRow("in a folder with a sign")
            << three << "50%/h%1.png" << 4 << "50%/h%04d.png" << three;
    }

    void sequence()
    {
        QFETCH(QList<int>, numbers);
        QFETCH(QString, names);
        QFETCH(int, digits);
        QFETCH(QString, pattern);
        QFETCH(QList<int>, shown);
        QVERIFY(QDir().mkpath(QFileInfo(Path(names)).path()));
        for (const int number : numbers) {
            const QString name = names.arg(number, digits, 10, QLatin1Char('0'));
            QVERIFY(PaintFrameNumber(number, kThumbnail).save(Path(name)));
        }
        QString error;
        const Info info = ProbeMedia(Path(pattern), &error);
        QCOMPARE(IsThere(Path(pattern)), !shown.isEmpty());
        if (shown.isEmpty()) {
            QCOMPARE(error, Path(pattern) + ": no such file");
            return;
        }
        QVERIFY2(info, qPrintable(error));
        QCOMPARE(info->kind, NLEMedia_Video);
        QCOMPARE(info->path, Path(pattern));
        QCOMPARE(int(info->frameCount), shown.size());
        QCOMPARE(NLECommon::ToDouble(info->frameRate), 25.0);
        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        for (int frame = shown.size() - 1; frame >= 0; --frame)
            QCOMPARE(ReadFrameNumber(decoder->Picture(frame, kThumbnail)), shown[frame]);
        QVERIFY(decoder->Picture(shown.size(), kThumbnail).isNull());
    }

    void sequenceIsDescribedAnewWhenItsFilesChange()
    {
        for (int number = 0; number < 3; ++number)
            QVERIFY(
                PaintFrameNumber(number, kThumbnail).save(Path(QString("s%1.png").arg(number))));
        QTest::qSleep(150);
        MediaStore store;
        const Info before = store.Describe(Path("s%d.png")).info;
        QVERIFY(before);
        QCOMPARE(store.Describe(Path("s%d.png")).info, before);
        const auto decoder = FrameDecoder::Open(before, 0, nullptr);
        QVERIFY(decoder->IsFileUnchanged());
        QVERIFY(PaintFrameNumber(77, kThumbnail).save(Path("s1.png")));
        QVERIFY(!decoder->IsFileUnchanged());
        QVERIFY(PaintFrameNumber(3, kThumbnail).save(Path("s3.png")));
        const Info after = store.Describe(Path("s%d.png")).info;
        QVERIFY(after);
        QCOMPARE(after->frameCount, 4U);
        QCOMPARE(ReadFrameNumber(FrameDecoder::Open(after, 0, nullptr)->Picture(1, kThumbnail)),
                 77);
    }

    void fileOfAPatternsNameIsThatFile()
    {
        QVERIFY(PaintFrameNumber(kNumber, kThumbnail).save(Path("own%02d.png")));
        QVERIFY(PaintFrameNumber(1, kThumbnail).save(Path("own01.png")));
        const Info info = Probe("own%02d.png");
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Image);
        QCOMPARE(ReadFrameNumber(Shown("own%02d.png", kThumbnail)), kNumber);
    }
};

QTEST_GUILESS_MAIN(tst_Pictures)
#include "tst_pictures.moc"
