// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLETimelineContextPropertyService.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/MissingEncoder.h"
#include "tests/support/PreviewCacheFixture.h"

#include <QRgba64>

#include <algorithm>
#include <functional>
#include <set>

namespace {

constexpr QSize kChart(320, 180);
constexpr int kPatch = 20; // pixels
/// The brightest component of the chart that high dynamic range shows as it is.
constexpr int kDimmest = 175;
/// Codes of PQ: SMPTE ST 2084 for 10, 100, 203, 1,000 and 4,000 cd/m².
constexpr double kPq10 = 0.2997;
constexpr double kPq100 = 0.5081;
constexpr double kPq203 = 0.5807;
constexpr double kPq1000 = 0.7518;
constexpr double kPq4000 = 0.9026;

QPoint MiddleOf(int column, int row)
{
    return {column * kPatch + kPatch / 2, row * kPatch + kPatch / 2};
}

/// Patches of all hues with components up to \a brightest, from grey to three quarters of full
/// saturation: near black, a level of light is less than a code of 10 bits.
QImage Chart(int brightest)
{
    QImage chart(kChart, QImage::Format_RGB32);
    for (int y = 0; y < chart.height(); ++y) {
        for (int x = 0; x < chart.width(); ++x) {
            const int hue = x / kPatch * 360 / (kChart.width() / kPatch);
            const int saturation = y / kPatch * 190 / (kChart.height() / kPatch - 1);
            chart.setPixelColor(x, y, QColor::fromHsv(hue, saturation, brightest));
        }
    }
    return chart;
}

/// The greatest difference of a component in the middle of a patch.
int Difference(const QImage& a, const QImage& b)
{
    int worst = a.size() == b.size() ? 0 : 255;
    for (int row = 0; worst < 255 && row < kChart.height() / kPatch; ++row) {
        for (int column = 0; column < kChart.width() / kPatch; ++column) {
            const QColor first = a.pixelColor(MiddleOf(column, row));
            const QColor second = b.pixelColor(MiddleOf(column, row));
            worst = std::max({worst, std::abs(first.red() - second.red()),
                              std::abs(first.green() - second.green()),
                              std::abs(first.blue() - second.blue())});
        }
    }
    return worst;
}

/// A picture with components of 16 bits, as raw video.
QByteArray Raw(const QSize& size, const std::function<QRgba64(int x)>& colourAt)
{
    QByteArray data;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgba64 colour = colourAt(x);
            for (const quint16 full : {colour.red(), colour.green(), colour.blue()}) {
                // White of the scale filter is 255 of 8 bits, shifted.
                const int code = full - (full >> 8);
                data.append(char(code & 0xFF)).append(char(code >> 8));
            }
        }
    }
    return data;
}

QStringList RawInput(const QSize& size)
{
    return {"-f",
            "rawvideo",
            "-pixel_format",
            "rgb48le",
            "-video_size",
            QString("%1x%2").arg(size.width()).arg(size.height()),
            "-i",
            "-"};
}

/// The context of a project.
struct Context : NLETimelineContextPropertyService
{
    explicit Context(const Node& project) { m_basin = project.query<INLEBasin>(); }
};

QStringList Tags(const QString& primaries, const QString& transfer, const QString& matrix)
{
    return {"-color_primaries", primaries, "-color_trc",   transfer,
            "-colorspace",      matrix,    "-color_range", "tv"};
}

} // namespace

class tst_Colour : public QObject, private EngineFixture
{
    Q_OBJECT

    /// A clip of some frames from the picture that goes in.
    QString Make(const QString& path, const QStringList& input, const QString& filter,
                 const QStringList& tags, const QByteArray& data = {}) const
    {
        return RunFfmpeg(QStringList{"-loop", "1"}.mid(0, data.isEmpty() ? 2 : 0) + input +
                             QStringList{"-vf", filter, "-frames:v", data.isEmpty() ? "10" : "1",
                                         "-c:v", "libx264", "-preset", "ultrafast", "-qp", "1"} +
                             tags + QStringList{path},
                         data);
    }
    /// What \a chart becomes when it is coded in other colours.
    QString MakeChart(const QString& path, const QImage& chart, const QString& primaries,
                      const QString& transfer, const QString& matrix) const
    {
        const QString still = path + ".png";
        if (!chart.save(still))
            return "the chart cannot be saved";
        const QString filter = QString("format=gbrp,zscale=tin=bt709:pin=bt709:min=gbr:rin=full:"
                                       "npl=203:agamma=0:t=%1:p=%2:m=%3"
                                       ":r=limited,format=yuv444p10")
                                   .arg(transfer, primaries, matrix);
        return Make(path, {"-i", still}, filter, Tags(primaries, transfer, matrix));
    }
    static bool HasZscale() { return RunFfmpeg({"-h", "filter=zscale"}).isEmpty(); }

    static NLEStreamInfo StreamOf(const Node& node)
    {
        NLEComPtr<INLEMediaInfo> info;
        node.query<INLETimelineSource>()->GetMediaInfo(info.put());
        NLEStreamInfo stream{};
        info->GetStream(0, &stream);
        return stream;
    }
    static QByteArray TagsOf(const NLEStreamInfo& stream)
    {
        return QByteArray::number(stream.primaries) + '/' + QByteArray::number(stream.transfer) +
               '/' + QByteArray::number(stream.matrix) + '/' +
               QByteArray::number(stream.colorRange) + '/' + QByteArray::number(stream.bitDepth);
    }
    QString Encode(const Node& node, const QString& path) const
    {
        const auto encoder = provider->CreateMediaEncoder();
        const bool isWritten =
            encoder->Open(node.get(), path.toStdWString().c_str(), nullptr) == S_OK &&
            encoder->Encode(nullptr, nullptr) == S_OK;
        return isWritten ? QString() : "not written";
    }

private Q_SLOTS:
    void streamTellsItsColours_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("tags");
        QTest::newRow("PQ") << QStringList{"-pix_fmt", "yuv420p10le"} +
                                   Tags("bt2020", "smpte2084", "bt2020nc")
                            << QByteArray("9/16/9/1/10");
        QTest::newRow("HLG") << QStringList{"-pix_fmt", "yuv420p10le"} +
                                    Tags("bt2020", "arib-std-b67", "bt2020nc")
                             << QByteArray("9/18/9/1/10");
        QTest::newRow("nothing told")
            << QStringList{"-pix_fmt", "yuv420p"} << QByteArray("2/2/2/0/8");
        QTest::newRow("full range")
            << QStringList{"-pix_fmt", "yuvj420p", "-color_range", "pc"} << QByteArray("2/2/2/2/8");
    }

    void streamTellsItsColours()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, tags);
        const QString path = Path("told.mkv");
        QCOMPARE(RunFfmpeg(
                     QStringList{"-f", "lavfi", "-i", "color=gray:s=64x64:d=1", "-c:v", "libx264"} +
                     arguments + QStringList{path}),
                 QString());
        QCOMPARE(TagsOf(StreamOf(EngineFixture::Media(path))), tags);
    }

    /// A picture of standard range that zimg has brought into other colours looks as before.
    void otherColoursLookAsMeant_data()
    {
        QTest::addColumn<QString>("primaries");
        QTest::addColumn<QString>("transfer");
        QTest::addColumn<QString>("matrix");
        QTest::addColumn<int>("brightest");
        const auto add = [](const char* title, const char* primaries, const char* transfer,
                            const char* matrix, int brightest) {
            QTest::newRow(title) << QString(primaries) << QString(transfer) << QString(matrix)
                                 << brightest;
        };
        add("PQ", "bt2020", "smpte2084", "bt2020nc", kDimmest);
        add("PQ with the primaries of BT.709", "bt709", "smpte2084", "bt709", kDimmest);
        add("HLG", "bt2020", "arib-std-b67", "bt2020nc", kDimmest);
        add("BT.2020 of standard range", "bt2020", "bt2020-10", "bt2020nc", 255);
        add("Display P3", "smpte432", "bt709", "bt709", 255);
        add("BT.709", "bt709", "bt709", "bt709", 255);
    }

    void otherColoursLookAsMeant()
    {
        QFETCH(const QString, primaries);
        QFETCH(const QString, transfer);
        QFETCH(const QString, matrix);
        QFETCH(const int, brightest);
        if (!HasZscale())
            QSKIP("no zscale in this ffmpeg");
        const QImage chart = Chart(brightest);
        const QString path = Path("chart.mkv");
        QCOMPARE(MakeChart(path, chart, primaries, transfer, matrix), QString());
        const Node clip = EngineFixture::Media(path);
        constexpr int tolerance = 3; // two codes of PQ where it is darkest
        const QImage rendered = Frame(clip, 0);
        QVERIFY2(Difference(rendered, chart) <= tolerance,
                 qPrintable(QString::number(Difference(rendered, chart))));
        const NLETimeline timeline(clip, ExactType_Video, nullptr);
        const QImage thumbnail = timeline.GetThumbnailFromMediaInfo(0, 320, 180, true, false);
        QVERIFY(Difference(thumbnail, chart) <= tolerance);
    }

    /// Light beyond white is compressed by ITU-R BT.2390, hue kept.
    void brightLightIsCompressed_data()
    {
        QTest::addColumn<QString>("transfer");
        QTest::addColumn<QColor>("code");
        QTest::addColumn<QColor>("shown");
        const auto grey = [](double code) { return QColor::fromRgbF(code, code, code); };
        const QString pq = "smpte2084";
        const QString hlg = "arib-std-b67";
        QTest::newRow("10 cd/m²") << pq << grey(kPq10) << QColor(73, 73, 73);
        QTest::newRow("100 cd/m²") << pq << grey(kPq100) << QColor(189, 189, 189);
        QTest::newRow("white") << pq << grey(kPq203) << QColor(230, 230, 230);
        QTest::newRow("the peak") << pq << grey(kPq1000) << QColor(255, 255, 255);
        QTest::newRow("beyond the peak") << pq << grey(kPq4000) << QColor(255, 255, 255);
        QTest::newRow("black") << pq << grey(0) << QColor(0, 0, 0);
        QTest::newRow("a red that BT.709 lacks")
            << pq << QColor::fromRgbF(kPq1000, 0, 0) << QColor(255, 0, 0);
        QTest::newRow("HLG white") << hlg << grey(0.75) << QColor(230, 230, 230);
        QTest::newRow("HLG peak") << hlg << grey(1) << QColor(255, 255, 255);
        QTest::newRow("HLG black") << hlg << grey(0) << QColor(0, 0, 0);
    }

    void brightLightIsCompressed()
    {
        QFETCH(const QString, transfer);
        QFETCH(const QColor, code);
        QFETCH(const QColor, shown);
        const QString path = Path("light.mkv");
        QCOMPARE(Make(path, RawInput(kChart),
                      "scale=out_color_matrix=bt2020:out_range=tv,format=yuv444p10le",
                      Tags("bt2020", transfer, "bt2020nc"),
                      Raw(kChart, [&code](int /*x*/) { return code.rgba64(); })),
                 QString());
        const QColor found = Frame(EngineFixture::Media(path), 0).pixelColor(160, 90);
        QCOMPARE(Deviation(found.red(), shown.red(), 1.5), QString());
        QCOMPARE(Deviation(found.green(), shown.green(), 1.5), QString());
        QCOMPARE(Deviation(found.blue(), shown.blue(), 1.5), QString());
    }

    /// What the cache keeps and what is encoded is converted as well, also where nothing is drawn.
    void convertedColoursAreKept()
    {
        if (!HasZscale())
            QSKIP("no zscale in this ffmpeg");
        const QImage chart = Chart(kDimmest);
        const QString path = Path("kept.mkv");
        QCOMPARE(MakeChart(path, chart, "bt2020", "smpte2084", "bt2020nc"), QString());
        const Node project = ProjectWith(EngineFixture::Media(path));
        Cache cache(project, Path("cache"));
        const NLESize size = {kChart.width(), kChart.height()};
        QCOMPARE(cache.Start(size), S_OK);
        QCOMPARE(cache.End(), long(NLECache_Finished));
        constexpr int tolerance = 10; // JPEG and halved colour planes
        QVERIFY(Difference(Frame(project, 3, NLEOpen_Cached), chart) <= tolerance);
        QCOMPARE(Encode(project, Path("kept.mp4")), QString());
        QVERIFY(Difference(Frame(EngineFixture::Media(Path("kept.mp4")), 3), chart) <= tolerance);
    }

    void exportTellsItsColours_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QByteArray>("tags");
        const QByteArray whole = "1/1/1/1/8";
        for (const char* suffix : {"mp4", "mov", "mkv", "ts", "flv", "mpg"})
            QTest::newRow(suffix) << QString(suffix) << whole;
        // The stream of VP9 itself has the matrix and the range, the container the others.
        QTest::newRow("webm") << "webm" << whole;
    }

    void exportTellsItsColours()
    {
        QFETCH(const QString, suffix);
        QFETCH(const QByteArray, tags);
        const QString missing = MissingEncoder(*provider, suffix);
        if (!missing.isEmpty())
            QSKIP(qPrintable(NoEncoderOf(missing)));
        const QString path = folder.filePath("told." + suffix);
        QCOMPARE(Encode(Trimmed(Colour(Qt::red), 0, 9), path), QString());
        QCOMPARE(TagsOf(StreamOf(EngineFixture::Media(path))), tags);
    }

    /// Levels of a gradient in a file that a project has written.
    void projectKeepsItsDepth_data()
    {
        QTest::addColumn<int>("depth");
        QTest::addColumn<bool>("isDrawn");
        QTest::newRow("8 bits") << 8 << true;
        QTest::newRow("10 bits, drawn") << 10 << true;
        QTest::newRow("10 bits, the clip alone") << 10 << false;
    }

    void projectKeepsItsDepth()
    {
        QFETCH(const int, depth);
        QFETCH(const bool, isDrawn);
        constexpr QSize size(1024, 64);
        const QString path = Path("gradient.mkv");
        QCOMPARE(Make(path, RawInput(size), "scale=out_color_matrix=bt709,format=yuv420p10le",
                      Tags("bt709", "bt709", "bt709"),
                      Raw(size,
                          [](int x) {
                              const auto grey = quint16(x * 64);
                              return qRgba64(grey, grey, grey, UINT16_MAX);
                          })),
                 QString());
        tagNLEProjectProfile profile = kSmall;
        profile.frameSize = {size.width(), size.height()};
        const Node project = provider->CreateProjectTimeline(profile);
        QVERIFY(Context(project).SetIntValue(NLEKey::Context::kContext_BitDepth, depth));
        Add(project, EngineFixture::Media(path));
        if (isDrawn)
            Add(project, Trimmed(Colour(QColor(255, 0, 0, 128), QSize(8, 8)), 0, 9), 0, 1);
        const QString written = Path("written.mkv");
        const QString raw = Path("written.raw");
        QCOMPARE(Encode(project, written), QString());
        QCOMPARE(StreamOf(EngineFixture::Media(written)).bitDepth, depth);
        QCOMPARE(RunFfmpeg({"-i", written, "-vf", "extractplanes=y", "-frames:v", "1", "-pix_fmt",
                            "gray10le", "-f", "rawvideo", raw}),
                 QString());
        const QByteArray codes = Contents(raw);
        QCOMPARE(codes.size(), size.width() * size.height() * 2);
        std::set<QByteArray> levels;
        for (int x = 0; x < size.width(); ++x)
            levels.insert(codes.mid(2 * (size.width() * (size.height() - 8) + x), 2));
        QVERIFY2((levels.size() > 400) == (depth > 8), qPrintable(QString::number(levels.size())));
    }
};

QTEST_MAIN(tst_Colour)
#include "tst_colour.moc"
