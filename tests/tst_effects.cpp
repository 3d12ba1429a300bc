// SPDX-License-Identifier: LGPL-2.1-or-later
// What the effects make of pictures, measured against FFmpeg's own filters.
#include "EngineApi/NLEKey.h"
#include "NLECore/media/CubeTable.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/EffectNode.h"
#include "NLECore/model/SourceNodes.h"
#include "NLECore/render/ChunkPlan.h"
#include "NLECore/render/Composer.h"
#include "tests/support/Files.h"
#include "tests/support/TestMedia.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <random>

using namespace nle;

/// Values of an effect by name; texts stand as texts.
using Settings = std::vector<std::pair<const char*, QVariant>>;
Q_DECLARE_METATYPE(Settings)
Q_DECLARE_METATYPE(Bands)

namespace {

constexpr QSize kSize(192, 108);
const QImage::Format kUsual = QImage::Format_ARGB32_Premultiplied;

ParameterValues ValuesOf(const QByteArray& effect, const Settings& settings)
{
    ParameterValues values(FindEffect(QString::fromLatin1(effect))->declaration);
    for (const auto& [name, value] : settings) {
        const int index = values.Declared().IndexOf(name);
        const bool isSet =
            index >= 0 && (value.userType() == QMetaType::QString
                               ? values.SetText(index, value.toString().toStdWString())
                               : values.SetNumber(index, value.toDouble()));
        if (!isSet)
            qFatal("%s has no such %s", effect.constData(), name);
    }
    return values;
}

DrawnPicture Drawn(const std::vector<ParameterValues>& effects, const QImage& picture,
                   double scale = 1, const Bands& bands = {}, double frame = 0)
{
    std::vector<SharedParameters> shared;
    for (const ParameterValues& values : effects)
        shared.push_back(std::make_shared<ParameterValues>(values));
    const EffectChain chain = {shared, frame, QPointF(scale, scale), bands};
    return chain.Apply(picture,
                       picture.depth() == 64 ? QImage::Format_RGBA64_Premultiplied : kUsual);
}

QImage Applied(const QByteArray& effect, const Settings& settings, const QImage& picture,
               double scale = 1)
{
    return Drawn({ValuesOf(effect, settings)}, picture, scale).Inner();
}

/// Ramps, an edge and a pattern, in colours; opaque.
QImage Colourful(const QSize& size = kSize)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int across = 255 * x / (size.width() - 1);
            const int down = 255 * y / (size.height() - 1);
            const bool isDark = (x * 8 / size.width() + y * 4 / size.height()) % 2 == 0;
            picture.setPixel(x, y, qRgb(across, down, isDark ? 60 : 200));
        }
    }
    return picture;
}

QImage Plain(QColor color, const QSize& size = kSize)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    return picture;
}

/// Mean and largest difference of the components of two pictures, the \a border left out.
std::pair<double, int> Difference(const QImage& a, const QImage& b, int border = 0)
{
    const QRect inside = a.rect().adjusted(border, border, -border, -border);
    double sum = 0;
    int most = 0;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            for (const int off : {qRed(one) - qRed(other), qGreen(one) - qGreen(other),
                                  qBlue(one) - qBlue(other), qAlpha(one) - qAlpha(other)}) {
                sum += std::abs(off);
                most = std::max(most, std::abs(off));
            }
        }
    }
    return {sum / 3 / inside.width() / inside.height(), most};
}

/// Deviation of the green of a picture.
double Roughness(const QImage& picture)
{
    double sum = 0;
    double squares = 0;
    const double count = double(picture.width()) * picture.height();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const double value = qGreen(picture.pixel(x, y));
            sum += value;
            squares += value * value;
        }
    }
    return std::sqrt(squares / count - sum / count * sum / count);
}

QImage Noisy(const QImage& picture, double deviation)
{
    std::mt19937 random(7);
    std::normal_distribution<double> noise(0, deviation);
    QImage result = picture;
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x) {
            const QRgb own = result.pixel(x, y);
            const auto with = [&](int value) { return qBound(0, value + int(noise(random)), 255); };
            result.setPixel(x, y, qRgb(with(qRed(own)), with(qGreen(own)), with(qBlue(own))));
        }
    }
    return result;
}

/// A table that turns colours around and darkens them, 5 entries a side.
QByteArray CubeText()
{
    QByteArray text = "TITLE \"test\"\nLUT_3D_SIZE 5\n# red first\n";
    for (int blue = 0; blue < 5; ++blue) {
        for (int green = 0; green < 5; ++green) {
            for (int red = 0; red < 5; ++red)
                text += QByteArray::number(std::sqrt(green / 4.0)) + ' ' +
                        QByteArray::number(blue / 4.0 * 0.8) + ' ' +
                        QByteArray::number(red / 4.0 * (1 - green / 8.0)) + '\n';
        }
    }
    return text;
}

constexpr int kFrames = 200;

/// A project of one red clip of kFrames frames at its start.
struct SmallProject
{
    SmallProject()
    {
        clip->Placement().range = NLERange{0, kFrames - 1};
        project->Adopt(clip);
    }
    NLEComPtr<EffectNode> AddEffect(const char* name)
    {
        NLEComPtr<EffectNode> effect = MakeCom<EffectNode>(FindEffect(name)->declaration);
        clip->Effects().AddEffect(effect.get(), -1);
        return effect;
    }
    KeySet Keys() const { return ChunkPlan(project->MakeSnapshot(), {QSize(64, 36), 900}).Keys(); }
    /// The keys of chunks, in order.
    std::vector<std::pair<int, ContentKey>> Chunks() const
    {
        const ChunkPlan plan(project->MakeSnapshot(), {QSize(64, 36), 900});
        std::vector<std::pair<int, ContentKey>> chunks;
        for (const Chunk& chunk : plan.Chunks())
            chunks.emplace_back(chunk.first, chunk.key);
        return chunks;
    }
    QImage Frame(int frame) const
    {
        QRect place;
        return Composer(project->MakeSnapshot()).Render(frame, QSize(64, 36), &place);
    }

    NLEComPtr<ProjectNode> project =
        MakeCom<ProjectNode>(tagNLEProjectProfile{{64, 36}, {25000000, 1000000}, 48000, 2, 3});
    NLEComPtr<ColorClip> clip =
        MakeCom<ColorClip>(0xFF804020u, NLESize{64, 36}, NLERational{25000000, 1000000});
};

} // namespace

class tst_Effects : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString Path(const char* name) const { return m_folder.filePath(name); }
    /// What FFmpeg's \a filters make of a picture; null when they fail.
    QImage Filtered(const QImage& picture, const QString& filters) const
    {
        const QString from = Path("from.png");
        const QString to = Path("to.png");
        QFile::remove(to);
        picture.save(from);
        const QString error = RunFfmpeg({"-y", "-i", from, "-vf", filters + ",format=rgb24", to});
        if (!error.isEmpty())
            qWarning().noquote() << error;
        return QImage(to).convertToFormat(QImage::Format_RGB32);
    }

private slots:
    void initTestCase() { QVERIFY(SetContents(Path("table.cube"), CubeText())); }

    void doesWhatItsFilterDoes_data()
    {
        QTest::addColumn<QByteArray>("effect");
        QTest::addColumn<Settings>("settings");
        QTest::addColumn<QString>("filters");
        QTest::addColumn<double>("mean");
        QTest::addColumn<int>("most");
        const auto row = [](const char* name, const char* effect, const Settings& settings,
                            const QString& filters, double mean, int most) {
            QTest::newRow(name) << QByteArray(effect) << settings << filters << mean << most;
        };
        // A stop of light is 1 / 2.2 of a doubling of code values.
        row("a stop and a half brighter", "exposure", {{"exposure", 1.5}},
            "format=gbrpf32le,exposure=exposure=0.681818", 0.6, 2);
        row("two stops darker, black raised", "exposure", {{"exposure", -2.0}, {"black", -0.05}},
            "format=gbrpf32le,exposure=exposure=-0.909091:black=-0.05", 0.6, 2);
        row("more contrast about a darker pivot", "contrast",
            {{"contrast", 1.6}, {"brightness", 0.1}, {"pivot", 0.3}},
            "lutrgb=r='clip((val/255-0.3)*1.6+0.4,0,1)*255':g='clip((val/255-0.3)*1.6+0.4,0,1)*255'"
            ":b='clip((val/255-0.3)*1.6+0.4,0,1)*255'",
            0.6, 1);
        row("less colour", "saturation", {{"saturation", 0.4}},
            "format=gbrp,colorchannelmixer=.52756:.42912:.04332:0:.12756:.82912:.04332:0:.12756:"
            ".42912:.44332",
            0.7, 2);
        row("more colour", "saturation", {{"saturation", 1.5}},
            "format=gbrp,colorchannelmixer=1.3937:-.3576:-.0361:0:-.1063:1.1424:-.0361:0:-.1063:"
            "-.3576:1.4639",
            0.7, 2);
        row("curves of all and of two colours", "curves",
            {{"master", "0/0 0.3/0.5 1/1"},
             {"red", "0/0.1 1/0.9"},
             {"blue", "0.1/0 0.5/0.7 1/0.8"}},
            "format=gbrp,curves=master='0/0 0.3/0.5 1/1':red='0/0.1 1/0.9':"
            "blue='0.1/0 0.5/0.7 1/0.8'",
            0.8, 3);
        row("a table of colours", "lut", {{"file", Path("table.cube")}},
            "format=gbrp,lut3d=file='" + Path("table.cube").replace(":", "\\:") +
                "':interp=tetrahedral",
            0.6, 1);
        row("black and white", "black-and-white", {},
            "format=gbrp,colorchannelmixer=.2126:.7152:.0722:0:.2126:.7152:.0722:0:.2126:.7152:"
            ".0722",
            0.7, 2);
        row("grey of red alone, half of it", "black-and-white",
            {{"amount", 0.5}, {"red", 1.0}, {"green", 0.0}, {"blue", 0.0}},
            "format=gbrp,colorchannelmixer=1:0:0:0:.5:.5:0:0:.5:0:.5", 0.7, 2);
        row("a vignette about the middle", "vignette", {},
            "format=rgb24,vignette=angle=PI/5:dither=0", 0.7, 2);
        row("a vignette to the left", "vignette", {{"amount", 0.7}, {"x", 0.25}, {"y", 0.75}},
            "format=rgb24,vignette=angle=0.7*PI/2:x0=0.25*w:y0=0.75*h:dither=0", 0.7, 2);
        row("a small blur", "blur", {{"size", 1.5}}, "format=gbrp,gblur=sigma=1.5:steps=6", 0.7, 8);
        row("a large blur", "blur", {{"size", 7.0}}, "format=gbrp,gblur=sigma=7:steps=6", 1, 5);
        row("a very large blur", "blur", {{"size", 20.0}}, "format=gbrp,gblur=sigma=20:steps=6",
            1.2, 12);
        row("sharpened", "sharpen", {{"amount", 1.2}, {"size", 2.0}},
            "format=gbrp,split[a][b];[b]gblur=sigma=2:steps=6[c];"
            "[a][c]blend=all_expr='clip(A+(A-B)*1.2,0,255)'",
            1, 12);
        row("left and right", "mirror", {}, "hflip", 0, 0);
        row("turned over", "mirror", {{"horizontal", 0}, {"vertical", 1}}, "vflip", 0, 0);
        row("turned around", "mirror", {{"vertical", 1}}, "hflip,vflip", 0, 0);
    }
    void doesWhatItsFilterDoes()
    {
        QFETCH(QByteArray, effect);
        QFETCH(Settings, settings);
        QFETCH(QString, filters);
        QFETCH(double, mean);
        QFETCH(int, most);
        const QImage picture = Colourful();
        const QImage wanted = Filtered(picture, filters);
        QVERIFY(!wanted.isNull());
        const QImage found = Applied(effect, settings, picture);
        QVERIFY(mean == 0 || Difference(found, picture).first > 3);
        const auto [off, worst] = Difference(found, wanted);
        QVERIFY2(off <= mean, qPrintable(QString::number(off)));
        QVERIFY2(worst <= most, qPrintable(QString::number(worst)));
        // The same with components of 16 bits, which keeps what lies between.
        const QImage deep =
            Applied(effect, settings, picture.convertToFormat(QImage::Format_RGBX64));
        QCOMPARE(deep.depth(), 64);
        QVERIFY(Difference(deep.convertToFormat(QImage::Format_RGB32), found).second <= 1);
    }

    /// Grey becomes the colour of the light, by the formula that FFmpeg has too, and keeps its own.
    void whiteBalance()
    {
        const QImage grey = Plain(QColor(128, 128, 128));
        const auto ratio = [](const QImage& picture) {
            const QRgb pixel = picture.pixel(5, 5);
            return double(qRed(pixel)) / qBlue(pixel);
        };
        const double wanted =
            ratio(Filtered(grey, "format=gbrp,colortemperature=temperature=4000")) /
            ratio(Filtered(grey, "format=gbrp,colortemperature=temperature=6500"));
        const QImage warm = Applied("white-balance", {{"temperature", 4000.0}}, grey);
        QVERIFY2(std::abs(ratio(warm) / wanted - 1) < 0.03,
                 qPrintable(QString::number(ratio(warm))));
        QVERIFY(std::abs(qGray(warm.pixel(5, 5)) - 128) < 12);
        QCOMPARE(Applied("white-balance", {}, grey), grey);
        const QRgb magenta = Applied("white-balance", {{"tint", 1.0}}, grey).pixel(5, 5);
        QVERIFY(qRed(magenta) - qGreen(magenta) > 10 && qRed(magenta) == qBlue(magenta));
    }

    void noiseReduction()
    {
        QImage edge = Plain(QColor(60, 60, 60));
        for (int y = 0; y < edge.height(); ++y) {
            for (int x = edge.width() / 2; x < edge.width(); ++x)
                edge.setPixel(x, y, qRgb(200, 200, 200));
        }
        const QImage cleaned = Applied("noise-reduction", {{"strength", 0.3}}, Noisy(edge, 6));
        const QRect dark(4, 4, edge.width() / 2 - 8, edge.height() - 8);
        QVERIFY(Roughness(Noisy(edge, 6).copy(dark)) > 5);
        QVERIFY2(Roughness(cleaned.copy(dark)) < 2.5,
                 qPrintable(QString::number(Roughness(cleaned.copy(dark)))));
        // The edge is as high as it was, next to itself.
        const int middle = edge.width() / 2;
        for (int y = 0; y < edge.height(); ++y)
            QVERIFY(qGreen(cleaned.pixel(middle + 1, y)) - qGreen(cleaned.pixel(middle - 2, y)) >
                    115);
    }

    /// Two colours beside each other, keyed as FFmpeg's filter keys them.
    void chromaKey()
    {
        for (const QColor& color : {QColor(0, 255, 0), QColor(40, 200, 60), QColor(110, 150, 90),
                                    QColor(200, 60, 40), QColor(128, 128, 128)}) {
            const QImage found =
                Applied("chroma-key", {{"tolerance", 0.1}, {"softness", 0.2}}, Plain(color));
            // 0xYYUUVV of pure green: what the filter measures from.
            const QString keyed = "scale=out_color_matrix=bt709,format=yuva444p,chromakey=yuv=1:"
                                  "color=0xAD2A1A:similarity=0.1:blend=0.2,alphaextract";
            const int wanted = qGreen(Filtered(Plain(color), keyed).pixel(50, 50));
            const int alpha = qAlpha(found.pixel(50, 50));
            QVERIFY2(std::abs(alpha - wanted) <= 4,
                     qPrintable(
                         QString("%1: %2 instead of %3").arg(color.name()).arg(alpha).arg(wanted)));
        }
        const QColor spilled(150, 190, 140);
        const QRgb plain = Applied("chroma-key", {{"spill", 1.0}}, Plain(spilled)).pixel(5, 5);
        QVERIFY(qGreen(plain) - qMax(qRed(plain), qBlue(plain)) < 30);
        QVERIFY(qGreen(spilled.rgb()) - qMax(spilled.red(), spilled.blue()) == 40);
    }

    void crop()
    {
        const QImage found = Applied("crop", {{"left", 0.25}, {"top", 0.5}, {"softness", 20.0}},
                                     Plain(Qt::white, {200, 100}));
        const auto alpha = [&found](int x, int y) { return qAlpha(found.pixel(x, y)); };
        QCOMPARE(alpha(49, 90), 0);
        QCOMPARE(alpha(199, 49), 0);
        QCOMPARE(alpha(199, 99), 255);
        // Half of the soft part, which lies inside of the edge.
        QVERIFY(std::abs(alpha(60, 90) - 134) <= 1);
        QVERIFY(std::abs(alpha(199, 60) - 134) <= 1);
        const QImage hard = Applied("crop", {{"right", 0.25}}, Plain(Qt::white, {200, 100}));
        QCOMPARE(qAlpha(hard.pixel(149, 50)), 255);
        QCOMPARE(qAlpha(hard.pixel(150, 50)), 0);
    }

    void dropShadow()
    {
        const auto shadow = ValuesOf(
            "drop-shadow",
            {{"x", 10.0}, {"y", -6.0}, {"blur", 0.0}, {"color", 0xFF0000FFu}, {"opacity", 0.5}});
        const DrawnPicture found = Drawn({shadow}, Plain(Qt::red, {40, 30}));
        QCOMPARE(found.margins, QMargins(0, 6, 10, 0));
        QCOMPARE(found.image.pixel(0, 6), qRgb(255, 0, 0));
        QCOMPARE(found.image.pixel(39, 35), qRgb(255, 0, 0));
        QCOMPARE(found.image.pixel(49, 0), qRgba(0, 0, 128, 128));
        QCOMPARE(qAlpha(found.image.pixel(9, 5)), 0);
        QCOMPARE(qAlpha(found.image.pixel(49, 35)), 0);
        QCOMPARE(found.Inner(), Plain(Qt::red, {40, 30}).convertToFormat(kUsual));
    }

    /// On a layer that is smaller than its parent the shadow lies beside it, at its place.
    void shadowOutsideOfTheClip()
    {
        SmallProject film;
        film.clip->Transform().settings.scale = {0.5, 0.5};
        const QImage plain = film.Frame(0);
        const auto effect = film.AddEffect("drop-shadow");
        effect->Parameters().SetNumber(L"x", 16);
        effect->Parameters().SetNumber(L"y", 8);
        effect->Parameters().SetNumber(L"blur", 0);
        effect->Parameters().SetNumber(L"opacity", 1);
        effect->Parameters().SetNumber(L"color", 0xFF00FF00);
        const QImage found = film.Frame(0);
        QCOMPARE(found.copy(16, 9, 32, 18), plain.copy(16, 9, 32, 18));
        // Half as large as the clip, so half as far away.
        QCOMPARE(found.pixel(55, 30), qRgb(0, 255, 0));
        QCOMPARE(found.pixel(56, 30), plain.pixel(56, 30));
        QCOMPARE(found.pixel(50, 31), plain.pixel(50, 31));
    }

    void sizesFollowThePreview_data()
    {
        QTest::addColumn<QByteArray>("effect");
        QTest::addColumn<Settings>("settings");
        QTest::newRow("blur") << QByteArray("blur") << Settings{{"size", 6.0}};
        QTest::newRow("sharpen") << QByteArray("sharpen") << Settings{{"size", 8.0}};
        QTest::newRow("crop") << QByteArray("crop")
                              << Settings{{"left", 0.2}, {"bottom", 0.3}, {"softness", 40.0}};
        QTest::newRow("shadow") << QByteArray("drop-shadow")
                                << Settings{{"x", -30.0}, {"blur", 9.0}};
    }
    void sizesFollowThePreview()
    {
        QFETCH(QByteArray, effect);
        QFETCH(Settings, settings);
        QImage picture = Colourful().convertToFormat(kUsual);
        for (int y = 0; y < 40; ++y)
            std::fill_n(reinterpret_cast<QRgb*>(picture.scanLine(y)), 60, 0);
        const auto half = [](const QImage& image) {
            return image.scaled(kSize / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        };
        const QImage found = Applied(effect, settings, half(picture), 0.5);
        const QImage wanted = half(Applied(effect, settings, picture));
        QVERIFY(Difference(found, half(picture)).first > 1);
        QVERIFY2(Difference(found, wanted).first < 1,
                 qPrintable(QString::number(Difference(found, wanted).first)));
    }

    void bandsAreAlike_data()
    {
        QTest::addColumn<Bands>("bands");
        QTest::newRow("a row at a time") << Bands{1, false};
        QTest::newRow("a row at a time on all threads") << Bands{1, true};
        QTest::newRow("seven rows") << Bands{7, true};
        QTest::newRow("one for all") << Bands{100000, false};
    }
    void bandsAreAlike()
    {
        QFETCH(Bands, bands);
        QImage picture = Noisy(Colourful(), 20).convertToFormat(kUsual);
        std::fill_n(reinterpret_cast<QRgb*>(picture.scanLine(20)), 90, 0x40200010);
        std::vector<ParameterValues> all;
        for (const EffectKind& kind : EffectKinds()) {
            const QByteArray name = kind.declaration.names.name;
            all.push_back(ValuesOf(name, name == "lut" ? Settings{{"file", Path("table.cube")}}
                                                       : Settings()));
            if (name == "exposure")
                all.back().SetNumber(0, 0.3);
            const QImage wanted = Drawn({all.back()}, picture).image;
            QVERIFY2(Drawn({all.back()}, picture, 1, bands).image == wanted, name.constData());
        }
        QCOMPARE(Drawn(all, picture, 1, bands).image, Drawn(all, picture).image);
    }

    /// Between two effects nothing is cut off or rounded.
    void effectsFollowEachOther()
    {
        const QImage picture = Colourful();
        const auto brighter = ValuesOf("exposure", {{"exposure", 3.0}});
        const auto darker = ValuesOf("exposure", {{"exposure", -3.0}});
        QVERIFY(Difference(Drawn({brighter, darker}, picture).image, picture).second <= 1);
        const auto grey =
            ValuesOf("black-and-white", {{"red", 1.0}, {"green", 0.0}, {"blue", 0.0}});
        const auto warm = ValuesOf("white-balance", {{"temperature", 3000.0}});
        QVERIFY(Difference(Drawn({grey, warm}, picture).image, Drawn({warm, grey}, picture).image)
                    .first > 5);
    }

    void opaqueStaysOpaque()
    {
        const QImage picture = Colourful();
        for (const EffectKind& kind : EffectKinds()) {
            const QImage found = Applied(kind.declaration.names.name, {}, picture);
            QVERIFY2(kind.makesTransparent || !found.hasAlphaChannel(),
                     kind.declaration.names.name);
        }
    }

    void tablesThatAreNone_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no size") << CubeText().replace("LUT_3D_SIZE 5", "");
        QTest::newRow("an entry too few")
            << CubeText().chopped(4).left(CubeText().lastIndexOf('\n', -2));
        QTest::newRow("a size that is too large") << CubeText().replace("SIZE 5", "SIZE 6");
        QTest::newRow("a size beyond all") << CubeText().replace("SIZE 5", "SIZE 2000000000");
        QTest::newRow("no number") << CubeText().replace("0.8", "nan");
        QTest::newRow("no domain") << "DOMAIN_MAX 0 1 1\n" + CubeText();
    }
    void tablesThatAreNone()
    {
        QFETCH(QByteArray, text);
        QVERIFY(CubeTable::Parse(CubeText()));
        QVERIFY(!CubeTable::Parse(text));
    }

    void keyFrames_data()
    {
        QTest::addColumn<int>("interpolation");
        QTest::addColumn<double>("quarter");
        QTest::newRow("hold") << int(NLEInterpolation_Hold) << 1.0;
        QTest::newRow("linear") << int(NLEInterpolation_Linear) << 1.5;
        QTest::newRow("smooth") << int(NLEInterpolation_Smooth) << 1.3125;
    }
    void keyFrames()
    {
        QFETCH(int, interpolation);
        QFETCH(double, quarter);
        SmallProject film;
        const auto effect = film.AddEffect("saturation");
        ParameterFacet& parameters = effect->Parameters();
        const NLEParameterKeyFrame first = {0.2, 1, interpolation, 0};
        const NLEParameterKeyFrame second = {0.6, 3, interpolation, 0};
        int index = -1;
        QCOMPARE(parameters.PutKeyFrame(L"saturation", &second, &index), S_OK);
        QCOMPARE(parameters.PutKeyFrame(L"saturation", &first, &index), S_OK);
        QCOMPARE(index, 0);
        double value = 0;
        for (const auto& [time, wanted] :
             {std::pair(0.0, 1.0), {0.3, quarter}, {0.6, 3.0}, {7.0, 3.0}}) {
            QCOMPARE(parameters.GetNumberAt(L"saturation", time, &value), S_OK);
            QCOMPARE(value, wanted);
        }
        // Trimmed, it stays with frame 40; at half of the speed with that of frame 40.
        const NLERange range = {40, 119};
        film.clip->SetRange(&range);
        NLEParameterKeyFrame key = {};
        QCOMPARE(parameters.GetKeyFrame(L"saturation", 0, &key), S_OK);
        QCOMPARE(key.time, 0.0);
        film.clip->Bag().SetRational(NLEKey::Speed::kScale, {1, 2});
        film.clip->Bag().SetInt(NLEKey::Speed::kEnabled, 1);
        QCOMPARE(ParametersAt(*film.clip->MakeSnapshot()->effects.front(), 80).Number("saturation"),
                 1.0);
        QCOMPARE(
            ParametersAt(*film.clip->MakeSnapshot()->effects.front(), 240).Number("saturation"),
            3.0);
    }

    void colorsAreMixedByComponent()
    {
        ParameterValues values = ValuesOf("drop-shadow", {});
        const int color = values.Declared().IndexOf("color");
        values.PutKey(color, {0, 0xFF000000, NLEInterpolation_Linear});
        values.PutKey(color, {1, 0xFF00FF80, NLEInterpolation_Linear});
        QCOMPARE(QRgb(values.NumberAtTime(color, 0.5)), qRgb(0, 128, 64));
    }

    /// A change of a key frame is a change of those frames that the value differs in.
    void chunksThatAChangeShowsIn()
    {
        SmallProject film;
        const KeySet plain = film.Keys();
        const auto effect = film.AddEffect("exposure");
        for (const auto& [frame, value] : {std::pair(0, 0.0), {70, 1.0}, {80, 1.0}, {149, 0.0}}) {
            const NLEParameterKeyFrame key = {frame / double(kFrames), value, 1, 0};
            QCOMPARE(effect->Parameters().PutKeyFrame(L"exposure", &key, nullptr), S_OK);
        }
        const auto before = film.Chunks();
        QVERIFY(plain.count(before.front().second) == 0);
        const NLEParameterKeyFrame key = {80.0 / kFrames, 2, 1, 0};
        QCOMPARE(effect->Parameters().PutKeyFrame(L"exposure", &key, nullptr), S_OK);
        const auto after = film.Chunks();
        QCOMPARE(after.size(), before.size());
        for (std::size_t i = 0; i < after.size(); ++i) {
            const int last = i + 1 < after.size() ? after[i + 1].first - 1 : kFrames - 1;
            const bool shows = last > 70 && after[i].first < 149;
            QVERIFY2((after[i].second != before[i].second) == shows,
                     qPrintable(QString::number(after[i].first)));
        }
        effect->SetEnabled(false);
        QVERIFY(film.Keys() == plain);
    }

    /// The project's own effects show in all of its frames, and in a plain picture too.
    void effectsOfAProject()
    {
        SmallProject film;
        const KeySet plain = film.Keys();
        const auto effect = MakeCom<EffectNode>(FindEffect("exposure")->declaration);
        QCOMPARE(film.project->Effects().AddEffect(effect.get(), -1), S_OK);
        QVERIFY(film.Keys() != plain);
        QCOMPARE(effect->Parameters().SetNumber(L"exposure", 1), S_OK);
        const double gain = std::exp2(1 / 2.2);
        const QRgb pixel = film.Frame(3).pixel(5, 5);
        QVERIFY(std::abs(qRed(pixel) - 0x80 * gain) <= 1 &&
                std::abs(qBlue(pixel) - 0x20 * gain) <= 1);
    }
};

QTEST_GUILESS_MAIN(tst_Effects)
#include "tst_effects.moc"
