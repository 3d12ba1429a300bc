// SPDX-License-Identifier: LGPL-2.1-or-later
// Titles of the open engine: what they show and when, and what is kept of them; clips of a colour.
#include "EngineApi/INLEEffects.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLETitle.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/PreviewCacheFixture.h"
#include "tests/support/TestFonts.h"

#include <QFontDatabase>
#include <QPainter>
#include <QtMath>

#include <functional>
#include <map>
#include <thread>

namespace {

/// Names and values of parameters.
using Numbers = std::vector<std::pair<const wchar_t*, double>>;
using Edit = std::function<void(const Node& title)>;

constexpr double kWidth = 320;
constexpr double kHeight = 180;
/// Height of the test font's em where a row does not say otherwise.
constexpr double kSize = 0.2;
constexpr double kEm = kSize * kHeight;
/// The test font: half an em wide, 0.7 high, with 0.1 before and 0.2 after it between the letters;
/// lines are an em high with 0.8 above the base line.
constexpr double kBox = 0.5;
constexpr double kStep = 0.7;
constexpr double kBefore = 0.1;
constexpr const char* kBoxes = "Title Boxes";

NLEComPtr<INLEParameters> Of(const Node& title)
{
    return title.query<INLEParameters>();
}

void Set(const Node& title, const Numbers& numbers)
{
    for (const auto& [name, value] : numbers) {
        if (Of(title)->SetNumber(name, value) != S_OK)
            QFAIL(qPrintable(QString::fromWCharArray(name) + " is refused"));
    }
}

QString WordsOf(const Node& title)
{
    return EngineFixture::TextOf([&](wchar_t* text, int capacity) {
        return title.query<INLETitle>()->GetText(text, capacity);
    });
}

/// What is not black.
QRect Ink(const QImage& picture)
{
    constexpr int visible = 40;
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) >= visible)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// How many times a column of pixels goes into ink.
int Strokes(const QImage& picture, int x)
{
    int strokes = 0;
    for (int y = 1; y < picture.height(); ++y)
        strokes += qGreen(picture.pixel(x, y)) > 127 && qGreen(picture.pixel(x, y - 1)) <= 127;
    return strokes;
}

/// Columns within the ink that have none.
int Gaps(const QImage& picture)
{
    const QRect ink = Ink(picture);
    int gaps = 0;
    for (int x = ink.left(); x <= ink.right(); ++x)
        gaps += Ink(picture.copy(x, 0, 1, picture.height())).isEmpty();
    return gaps;
}

QString Difference(const QRectF& found, const QRectF& wanted, double tolerance)
{
    const QString told = QString("left %1, top %2, right %3, bottom %4");
    const auto text = [&told](const QRectF& r) {
        return told.arg(r.left()).arg(r.top()).arg(r.right()).arg(r.bottom());
    };
    const bool isNear = std::abs(found.left() - wanted.left()) <= tolerance &&
                        std::abs(found.top() - wanted.top()) <= tolerance &&
                        std::abs(found.right() - wanted.right()) <= tolerance &&
                        std::abs(found.bottom() - wanted.bottom()) <= tolerance;
    return isNear ? QString() : text(found) + " instead of " + text(wanted);
}

/// Ink of some lines of the test font whose block has its corner at a place in pixels; lengths in
/// ems.
QRectF LinesAt(const QPointF& corner, int letters, int lines = 1, double lineHeight = 1)
{
    return QRectF(corner.x() + kBefore * kEm, corner.y() + kBefore * kEm,
                  ((letters - 1) * kStep + kBox) * kEm, ((lines - 1) * lineHeight + 0.7) * kEm);
}

} // namespace

Q_DECLARE_METATYPE(Numbers)
Q_DECLARE_METATYPE(Edit)

class tst_Titles : public QObject, private PreviewCacheFixture
{
    Q_OBJECT

    NLEComPtr<INLETimelineFactory> m_factory;

    Node Title(const QString& text, const char* font = kBoxes) const
    {
        Node title;
        if (m_factory->CreateTitle(text.toStdWString().c_str(), title.put()) == S_OK)
            title.query<INLETitle>()->SetFont(QString(font).toStdWString().c_str());
        return title;
    }
    Node Title(const QString& text, const Numbers& numbers, const char* font = kBoxes) const
    {
        Node title = Title(text, font);
        Set(title, {{L"size", kSize}});
        Set(title, numbers);
        return title;
    }
    /// On black.
    QImage Shown(const Node& title, int frame = 0) const
    {
        return Frame(ProjectWith(title), frame);
    }
    QImage ShownAs(const QString& text, const Numbers& numbers, const char* font = kBoxes) const
    {
        return Shown(Title(text, numbers, font));
    }
    static double Number(const Node& title, const wchar_t* name)
    {
        double value = -1e9;
        Of(title)->GetNumber(name, &value);
        return value;
    }
    /// Everything that can be read of a title.
    static QStringList Told(const Node& title)
    {
        QStringList told;
        int count = 0;
        Of(title)->GetParameterCount(&count);
        for (int i = 0; i < count; ++i) {
            NLEParameterRecord record = {};
            wchar_t name[64] = L"";
            wchar_t text[256] = L"";
            double number = 0;
            int keys = 0;
            Of(title)->GetParameter(i, &record, name, 64);
            Of(title)->GetText(name, text, 256);
            Of(title)->GetNumber(name, &number);
            Of(title)->GetKeyFrameCount(name, &keys);
            QString line = QString::fromWCharArray(name) + "=" + QString::fromWCharArray(text) +
                           QString::number(number, 'g', 17);
            for (int k = 0; k < keys; ++k) {
                NLEParameterKeyFrame key = {};
                Of(title)->GetKeyFrame(name, k, &key);
                line += QString(" %1:%2").arg(key.time).arg(key.value);
            }
            told << line;
        }
        return told;
    }
    /// A title with another value of each parameter than its preset.
    Node Elaborate() const
    {
        Node title = Title(QString::fromUtf8("Größe 1 % 2\nzwei"), "DejaVu Sans");
        int count = 0;
        Of(title)->GetParameterCount(&count);
        for (int i = 0; i < count; ++i) {
            NLEParameterRecord record = {};
            wchar_t name[64] = L"";
            Of(title)->GetParameter(i, &record, name, 64);
            if (record.kind == NLEParameter_Color)
                Of(title)->SetNumber(name, 0xC0204000u + 16u * unsigned(i));
            else if (record.kind == NLEParameter_Switch || record.kind == NLEParameter_Choice)
                Of(title)->SetNumber(name, record.preset == record.highest ? 0 : record.highest);
            else if (record.kind == NLEParameter_Number)
                Of(title)->SetNumber(name, std::min(record.preset + 0.1, record.highest));
        }
        Set(title, {{L"roll", 0}, {L"fade-in", 0.2}});
        const NLEParameterKeyFrame left = {0, -0.25, NLEInterpolation_Linear, 0};
        const NLEParameterKeyFrame right = {1, 0.25, NLEInterpolation_Smooth, 0};
        Of(title)->PutKeyFrame(L"x", &left, nullptr);
        Of(title)->PutKeyFrame(L"x", &right, nullptr);
        return Trimmed(title, 0, 49);
    }

private slots:
    void initTestCase()
    {
        const auto factory = EngineFixture::Factory();
        QCOMPARE(factory->GetTimelineFactory(m_factory.put()), S_OK);
        QVERIFY(QDir().mkdir(Path("fonts")));
        QVERIFY(SetContents(Path("fonts/boxes.ttf"), TestFonts::Boxes(kBoxes)));
        NLEComPtr<INLEFontLibrary> library;
        QCOMPARE(factory->GetFontLibrary(library.put()), S_OK);
        QCOMPARE(library->AddFontFolder(Path("fonts").toStdWString().c_str()), S_OK);
    }
    void cleanupTestCase() { m_factory.reset(); }

    void onlyTitlesAreTitles()
    {
        QVERIFY(Title("a").query<INLETitle>());
        QVERIFY(!Title("a").query<INLEColorClip>());
        for (const Node& other :
             {Colour(Qt::red), Project(), provider->CreateTipTextTimeline("a", "DejaVu Sans")}) {
            QVERIFY(!other.query<INLETitle>());
            QVERIFY(!other.query<INLEParameters>());
        }
    }

    void textIsReadAndWritten()
    {
        const QString text = QString::fromUtf8("Grüße\n你好 \xF0\x9F\x98\x80");
        const Node title = Title(text);
        int length = 0;
        QCOMPARE(title.query<INLETitle>()->GetTextLength(&length), S_OK);
        QCOMPARE(length, int(text.toStdWString().size()));
        QCOMPARE(WordsOf(title), text);
        QCOMPARE(title.query<INLETitle>()->SetText(L"other"), S_OK);
        QCOMPARE(WordsOf(title), QString("other"));
        wchar_t cut[4];
        QCOMPARE(title.query<INLETitle>()->GetText(cut, 4), S_OK);
        QCOMPARE(QString::fromWCharArray(cut), QString("oth"));
        QCOMPARE(title.query<INLETitle>()->SetText(nullptr), E_POINTER);
    }

    void valuesOutOfRangeAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("value");
        const auto row = [](const char* name, double value) {
            QTest::addRow("%s = %g", name, value) << QString(name) << value;
        };
        row("size", 0);
        row("size", 2.01);
        row("size", qQNaN());
        row("alignment", 3);
        row("alignment", 0.5);
        row("color", -1);
        row("outline", -0.01);
        row("fade-in", -1);
        row("roll", 5);
        row("line-spacing", 0);
        row("unknown", 0);
        row("text", 0);
    }
    void valuesOutOfRangeAreRefused()
    {
        QFETCH(QString, name);
        QFETCH(double, value);
        const Node title = Title("a");
        const QStringList before = Told(title);
        QCOMPARE(Of(title)->SetNumber(name.toStdWString().c_str(), value), E_INVALIDARG);
        QCOMPARE(Told(title), before);
    }

    void ink_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Numbers>("numbers");
        QTest::addColumn<QRectF>("wanted");
        const auto row = [](const char* name, const QString& text, const Numbers& numbers,
                            const QRectF& wanted) {
            QTest::newRow(name) << text << numbers << wanted;
        };
        const auto grown = [](const QRectF& rect, double left, double top, double right,
                              double bottom) {
            return rect.adjusted(-left * kEm, -top * kEm, right * kEm, bottom * kEm);
        };
        // Three letters; the margin is a twentieth of each side.
        constexpr double wide = 3 * kStep * kEm;
        constexpr double left = 0.05 * kWidth;
        constexpr double center = (kWidth - wide) / 2;
        constexpr double right = 0.95 * kWidth - wide;
        constexpr double top = 0.05 * kHeight;
        constexpr double middle = (kHeight - kEm) / 2;
        constexpr double bottom = 0.95 * kHeight - kEm;
        const QRectF plain = LinesAt({center, middle}, 3);
        row("in the middle", "aaa", {}, plain);
        row("top left", "aaa", {{L"alignment", 0}, {L"place", 0}}, LinesAt({left, top}, 3));
        row("bottom left", "aaa", {{L"alignment", 0}, {L"place", 2}}, LinesAt({left, bottom}, 3));
        row("bottom right", "aaa", {{L"alignment", 2}, {L"place", 2}}, LinesAt({right, bottom}, 3));
        row("without a margin", "aaa", {{L"alignment", 0}, {L"place", 0}, {L"margin", 0}},
            LinesAt({0, 0}, 3));
        row("shifted", "aaa", {{L"x", 0.25}, {L"y", -0.1}},
            plain.translated(0.25 * kWidth, -0.1 * kHeight));
        row("half out of the picture", "aaa", {{L"x", 0.5}},
            QRectF(QPointF(kWidth / 2 + plain.x(), plain.top()), QPointF(kWidth, plain.bottom())));
        row("larger", "a", {{L"size", 2 * kSize}},
            QRectF(kWidth / 2 - 0.5 * kEm, kHeight / 2 - 0.8 * kEm, kEm, 1.4 * kEm));
        row("two lines", "aaa\na", {}, LinesAt({center, middle - kEm / 2}, 3, 2));
        row("an empty line between", "aaa\n\na", {}, LinesAt({center, middle - kEm}, 3, 3));
        row("lines twice as far apart", "aaa\na", {{L"line-spacing", 2}},
            LinesAt({center, middle - kEm}, 3, 2, 2));
        row("letters farther apart", "aaa", {{L"letter-spacing", 0.5}},
            QRectF(center - 0.5 * kEm + kBefore * kEm, plain.y(), (2 * 1.2 + kBox) * kEm,
                   plain.height()));
        row("broken where the picture ends", "aaaa-aaaa-aaa", {{L"alignment", 0}},
            LinesAt({left, middle - kEm / 2}, 10, 2));
        row("broken earlier", "aaaa-aaaa", {{L"width", 5.5 * kStep * kEm / kWidth}},
            LinesAt({center - kStep * kEm, middle - kEm / 2}, 5, 2));
        row("an outline", "aaa", {{L"outline", 0.1}, {L"outline-color", 0xFFFF0000u}},
            grown(plain, 0.1, 0.1, 0.1, 0.1));
        row("an outline without a colour", "aaa",
            {{L"outline", 0.1}, {L"outline-color", 0x00FF0000u}}, plain);
        const Numbers shadow = {{L"shadow-color", 0xFFFF0000u},
                                {L"shadow-x", 0.3},
                                {L"shadow-y", -0.2},
                                {L"shadow-blur", 0}};
        row("a shadow up and to the right", "aaa", shadow, grown(plain, 0, 0.2, 0.3, 0));
        row("a box", "aaa", {{L"box-color", 0xFFFF0000u}, {L"box-padding", 0.5}},
            grown(QRectF(center, middle, wide, kEm), 0.5, 0.5, 0.5, 0.5));
        row("nothing but spaces", "   ", {{L"box-color", 0xFFFF0000u}}, QRectF());
        row("no text", "", {}, QRectF());
    }
    void ink()
    {
        QFETCH(QString, text);
        QFETCH(Numbers, numbers);
        QFETCH(QRectF, wanted);
        QCOMPARE(Difference(Ink(ShownAs(text, numbers)), wanted, 1), QString());
    }

    void colours_data()
    {
        QTest::addColumn<QPointF>("place");
        QTest::addColumn<QColor>("color");
        // From the middle of the letter, in ems; 0.25 and 0.35 to its edges.
        QTest::newRow("the letter") << QPointF(0.2, 0.3) << QColor(10, 250, 20);
        QTest::newRow("its outline") << QPointF(0.3, 0.3) << QColor(200, 20, 30);
        QTest::newRow("the shadow, half as strong as the box")
            << QPointF(0.3 + 0.3, 0.35 + 0.3) << QColor(0, 0, 125);
        QTest::newRow("the box") << QPointF(-0.6, 0.3) << QColor(0, 0, 250);
        QTest::newRow("beside the box") << QPointF(-0.9, 0.3) << QColor(0, 0, 0);
    }
    void colours()
    {
        QFETCH(QPointF, place);
        QFETCH(QColor, color);
        const QImage picture = ShownAs("a", {{L"size", 0.4},
                                             {L"color", 0xFF0AFA14u},
                                             {L"outline", 0.1},
                                             {L"outline-color", 0xFFC8141Eu},
                                             {L"shadow-color", 0x80000000u},
                                             {L"shadow-x", 0.3},
                                             {L"shadow-y", 0.3},
                                             {L"shadow-blur", 0},
                                             {L"box-color", 0xFF0000FAu},
                                             {L"box-padding", 0.4}});
        // The middle of the letter is 0.05 left of the block's and 0.05 above it.
        const double em = 0.4 * kHeight;
        const QRgb found = picture.pixel(int(kWidth / 2 + (place.x() + 0.0) * em),
                                         int(kHeight / 2 + (place.y() - 0.05) * em));
        QVERIFY2(std::abs(qRed(found) - color.red()) <= 2 &&
                     std::abs(qGreen(found) - color.green()) <= 2 &&
                     std::abs(qBlue(found) - color.blue()) <= 2,
                 qPrintable(QColor(found).name()));
    }

    /// The alpha of a blurred edge is the integral of the Gaussian.
    void shadowsAreSoft()
    {
        const double deviation = 0.1;
        const QImage picture = ShownAs("a", {{L"size", 1},
                                             {L"color", 0xFF000000u},
                                             {L"shadow-color", 0xFFFFFFFFu},
                                             {L"shadow-x", 0.8},
                                             {L"shadow-y", 0},
                                             {L"shadow-blur", deviation}});
        const double edge = kWidth / 2 + (0.8 - kBox / 2) * kHeight;
        const double middle = (0.1 + 0.35) * kHeight;
        for (const double away : {-2.0, -1.0, 0.0, 1.0, 2.0}) {
            const int x = int(std::lround(edge + away * deviation * kHeight));
            const double sigmas = (x + 0.5 - edge) / (deviation * kHeight);
            const double share = 0.5 * std::erfc(-sigmas * M_SQRT1_2);
            QCOMPARE(Deviation(qGreen(picture.pixel(x, int(middle))), 255 * share, 5), QString());
        }
    }

    void arabicRunsToTheLeft()
    {
        // An alef, the only tall letter, then two beh.
        const QImage picture = ShownAs(QString::fromUtf8("ابب"), {}, "DejaVu Sans");
        const QRect ink = Ink(picture);
        const QRect top = Ink(picture.copy(0, 0, picture.width(), ink.top() + 3));
        QVERIFY(top.left() > ink.center().x() + ink.width() / 4);
    }

    void arabicLettersAreJoined_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("spacing");
        QTest::addColumn<bool>("hasGaps");
        const QString joined = QString::fromUtf8("ببب");
        const QString apart = QString::fromUtf8("ب\u200cب\u200cب");
        QTest::newRow("letters of a word") << joined << 0.0 << false;
        QTest::newRow("asked to stand apart") << joined << 0.4 << false;
        QTest::newRow("told not to join") << apart << 0.0 << true;
    }
    void arabicLettersAreJoined()
    {
        QFETCH(QString, text);
        QFETCH(double, spacing);
        const QImage picture = ShownAs(text, {{L"letter-spacing", spacing}}, "DejaVu Sans");
        QVERIFY(!Ink(picture).isEmpty());
        QTEST(Gaps(picture) > 0, "hasGaps");
    }

    void directionOfALine_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("direction");
        QTest::addColumn<bool>("isTallRight");
        const QString arabic = QString::fromUtf8("ا بب"); // the tall letter begins
        QTest::newRow("as the first letter runs") << arabic + " oo" << 0 << true;
        QTest::newRow("after a Latin letter") << "o " + arabic << 0 << true;
        QTest::newRow("full stop of a line to the right") << "oo|" << 1 << true;
        QTest::newRow("full stop of a line to the left") << "oo|" << 2 << false;
    }
    void directionOfALine()
    {
        QFETCH(QString, text);
        QFETCH(int, direction);
        const QImage picture = ShownAs(text, {{L"direction", double(direction)}}, "DejaVu Sans");
        const QRect ink = Ink(picture);
        const QRect top = Ink(picture.copy(0, 0, picture.width(), ink.top() + 3));
        QTEST(top.center().x() > ink.center().x(), "isTallRight");
    }

    void chineseAndJapanese_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("strokes");
        QTest::newRow("three bars") << QString::fromUtf8("三") << 3;
        QTest::newRow("one bar") << QString::fromUtf8("一") << 1;
        QTest::newRow("bars of the sun") << QString::fromUtf8("日") << 3;
    }
    void chineseAndJapanese()
    {
        QFETCH(QString, text);
        QFETCH(int, strokes);
        const QStringList families = QFontDatabase().families(QFontDatabase::Japanese);
        if (families.isEmpty())
            QSKIP("no font with these characters is installed");
        const QImage picture = ShownAs(text, {{L"size", 0.8}}, "DejaVu Sans");
        QCOMPARE(Strokes(picture, Ink(picture).center().x()), strokes);
    }

    void halfAsLargeIsAlike_data()
    {
        QTest::addColumn<Numbers>("numbers");
        QTest::newRow("small letters") << Numbers{{L"size", 0.05}};
        QTest::newRow("broken lines") << Numbers{{L"size", 0.16}, {L"width", 0.61}};
        QTest::newRow("outline, shadow and box")
            << Numbers{{L"outline", 0.06},          {L"outline-color", 0xFF800000u},
                       {L"shadow-blur", 0.1},       {L"shadow-color", 0xFF0000FFu},
                       {L"box-color", 0x80FFFF00u}, {L"box-radius", 0.2},
                       {L"letter-spacing", 0.1}};
        QTest::newRow("rolling up") << Numbers{{L"roll", 1}};
        QTest::newRow("crawling to the left") << Numbers{{L"roll", 3}};
    }
    void halfAsLargeIsAlike()
    {
        QFETCH(Numbers, numbers);
        const Node project = ProjectWith(
            Trimmed(Title("Wide lines of letters that wrap", numbers, "DejaVu Sans"), 0, 49));
        const QImage large = Frame(project, 25, NLEOpen_Render, {1280, 720});
        const QImage reduced = Frame(project, 25, NLEOpen_Render, {640, 360});
        const QImage scaled =
            large.scaled(reduced.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QVERIFY(Ink(reduced).width() > 100);
        const double likeness = Psnr(scaled.convertToFormat(reduced.format()), reduced);
        QVERIFY2(likeness > 30, qPrintable(QString::number(likeness)));
    }

    void fades_data()
    {
        QTest::addColumn<int>("frame");
        QTest::addColumn<double>("share");
        // Ten frames to come, twenty to go, of fifty that begin with the clip's tenth.
        const auto row = [](int frame, double share) {
            QTest::addRow("frame %d", frame) << frame << share;
        };
        row(10, 0);
        row(11, 0.1);
        row(15, 0.5);
        row(20, 1);
        row(40, 1);
        row(45, 0.75);
        row(59, 0.05);
    }
    void fades()
    {
        QFETCH(int, frame);
        QFETCH(double, share);
        const Node title =
            Trimmed(Title("a", {{L"size", 2}, {L"fade-in", 0.4}, {L"fade-out", 0.8}}), 10, 59);
        const QImage picture = Frame(ProjectWith(title, 7), frame - 10 + 7);
        QCOMPARE(Deviation(qRed(picture.pixel(160, 90)), 255 * share, 2), QString());
        // Alone it has an alpha.
        QCOMPARE(Deviation(qAlpha(Frame(title, frame).pixel(160, 90)), 255 * share, 2), QString());
    }

    void rolls_data()
    {
        QTest::addColumn<int>("roll");
        QTest::addColumn<int>("frame");
        QTest::addColumn<QRectF>("wanted");
        const QRectF still = LinesAt({(kWidth - 3 * kStep * kEm) / 2, (kHeight - kEm) / 2}, 3);
        const QRectF all(0, 0, kWidth, kHeight);
        for (const int frame : {0, 10, 25, 40}) {
            const double share = frame / 50.0;
            const double up = kHeight - share * (kHeight + still.height());
            const double left = kWidth - share * (kWidth + still.width());
            const auto row = [&](const char* name, int roll, const QPointF& corner) {
                QTest::addRow("%s, frame %d", name, frame)
                    << roll << frame
                    << (frame == 0 ? QRectF() : QRectF(corner, still.size()) & all);
            };
            row("up", 1, {still.x(), up});
            row("down", 2, {still.x(), kHeight - still.height() - up});
            row("to the left", 3, {left, still.y()});
            row("to the right", 4, {kWidth - still.width() - left, still.y()});
        }
    }
    void rolls()
    {
        QFETCH(int, roll);
        QFETCH(int, frame);
        QFETCH(QRectF, wanted);
        const Node title = Trimmed(Title("aaa", {{L"roll", double(roll)}}), 0, 49);
        QCOMPARE(Difference(Ink(Shown(title, frame)), wanted, 3), QString());
    }

    /// Each of them has pieces of its own.
    void everyRenderGivesTheSame()
    {
        QString text;
        for (int line = 0; line < 60; ++line)
            text += QString("Line %1 of all\n").arg(line);
        const Node title = Trimmed(Title(text,
                                         {{L"roll", 1},
                                          {L"outline", 0.05},
                                          {L"shadow-color", 0xFF0000FFu},
                                          {L"outline-color", 0xFFFF0000u},
                                          {L"shadow-blur", 0.1}},
                                         "DejaVu Sans"),
                                   0, 99);
        const Node project = ProjectWith(title);
        const auto picture = provider->CreateVideoFrame(320, 180);
        const auto extractor = provider->CreateFrameExtractor();
        QCOMPARE(picture->Prepare(), S_OK);
        QCOMPARE(extractor->Open(project.get(), NLEOpen_Render), S_OK);
        std::map<int, QImage> inOrder;
        for (int frame = 0; frame < 100; ++frame) {
            std::uint8_t* pixels = nullptr;
            QCOMPARE(extractor->Extract(frame, picture.get()), S_OK);
            QCOMPARE(picture->GetData(&pixels), S_OK);
            inOrder[frame] = QImage(pixels, 320, 180, QImage::Format_ARGB32).copy();
        }
        QVERIFY(inOrder[40] != inOrder[41]);
        std::vector<std::thread> threads;
        std::array<QImage, 4> alone;
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&, i] { alone[size_t(i)] = Frame(project, 80 - 19 * i); });
        for (std::thread& thread : threads)
            thread.join();
        for (int i = 0; i < 4; ++i)
            QVERIFY(alone[size_t(i)] == inOrder[80 - 19 * i]);
    }

    void sixteenBitsShowTheSame()
    {
        const Node project = ProjectWith(Title("Ab",
                                               {{L"outline", 0.06},
                                                {L"outline-color", 0xFF800000u},
                                                {L"shadow-color", 0x8000FFFFu},
                                                {L"box-color", 0x80FFFF00u}},
                                               "DejaVu Sans"));
        const QImage usual = Frame(project, 0);
        const auto bag = provider->CreateNLEProperties();
        bag->SetInt(NLEKey::Context::kContext_BitDepth, 10);
        QCOMPARE(project.query<INLEBasin>()->TakeProperties(bag.get()), S_OK);
        QVERIFY(Psnr(Frame(project, 0), usual) > 45);
    }

    /// A picture of another shape does not squeeze the letters, and the title has its size.
    void aTitleIsAsLargeAsItsParent()
    {
        const tagNLEProjectProfile tall = {{180, 320}, {25000000, 1000000}, 48000, 2, 3};
        const Node project = provider->CreateProjectTimeline(tall);
        Add(project, Title("a", {{L"size", 0.5}}));
        const QRect ink = Ink(Frame(project, 0, NLEOpen_Render, {180, 320}));
        QCOMPARE(Difference(ink, QRectF(90 - 40, 160 - 64, 80, 112), 1), QString());
    }

    void placedAsAnyClip()
    {
        const Node title = Title("aaa", {{L"x", 0.2}, {L"y", 0.3}});
        const NLESizeF half = {0.5, 0.5};
        title.query<INLETransform>()->SetScale(&half);
        title.query<INLETransform>()->SetRotation(180);
        const QRectF plain = Ink(ShownAs("aaa", {{L"x", 0.2}, {L"y", 0.3}}));
        const QPointF middle(kWidth / 2, kHeight / 2);
        const QRectF turned(middle - (plain.bottomRight() - middle) / 2, plain.size() / 2);
        QCOMPARE(Difference(Ink(Shown(title)), turned, 1.5), QString());
    }

    void effectsApplyToTheWholePicture()
    {
        const Numbers left = {{L"alignment", 0}, {L"fade-in", 0.4}};
        const Node title = Title("aaa", left);
        Node mirror;
        QCOMPARE(m_factory->CreateEffect(L"mirror", mirror.put()), S_OK);
        QCOMPARE(title.query<INLEEffects>()->AddEffect(mirror.get(), -1), S_OK);
        const QRectF plain = Ink(Shown(Title("aaa", left), 10));
        const QRectF mirrored(kWidth - 1 - plain.right(), plain.top(), plain.width(),
                              plain.height());
        QCOMPARE(Difference(Ink(Shown(title, 10)), mirrored, 1), QString());
    }

    void numbersCanBeAnimated()
    {
        const Node title = Trimmed(Title("aaa", {}), 0, 99);
        const NLEParameterKeyFrame from = {0, 0, NLEInterpolation_Linear, 0};
        const NLEParameterKeyFrame to = {1, 0.4, NLEInterpolation_Linear, 0};
        QCOMPARE(Of(title)->PutKeyFrame(L"y", &from, nullptr), S_OK);
        QCOMPARE(Of(title)->PutKeyFrame(L"y", &to, nullptr), S_OK);
        const QRectF start = Ink(Shown(title, 0));
        const Node project = ProjectWith(title.query<INLETimeline>());
        QCOMPARE(Difference(Ink(Frame(project, 50)), start.translated(0, 0.2 * kHeight), 1),
                 QString());
    }

    void boundsAreTold()
    {
        const Node title =
            Trimmed(Title("aaa", {{L"roll", 1}, {L"box-color", 0xFFFFFFFFu}}), 0, 49);
        const Node project = ProjectWith(title);
        NLERectF bounds = {};
        QCOMPARE(title.query<INLETitle>()->GetBounds(25, &bounds), S_OK);
        const QRectF told(bounds.x * kWidth, bounds.y * kHeight, bounds.width * kWidth,
                          bounds.height * kHeight);
        QCOMPARE(Difference(told, Ink(Frame(project, 25)), 2), QString());
    }

    void kept_data()
    {
        QTest::addColumn<QString>("document");
        QTest::newRow("by a clone") << QString();
        QTest::newRow("by the engine's documents") << "title.mlt";
        QTest::newRow("by OpenTimelineIO") << "title.otio";
    }
    void kept()
    {
        QFETCH(QString, document);
        const Node project = ProjectWith(Elaborate(), 5, 2);
        const Node title = ClipAt(project, 0);
        const QStringList told = Told(title);
        Node copy;
        if (document.isEmpty()) {
            QCOMPARE(project->Clone(true, copy.put()), S_OK);
        } else {
            QVERIFY(Save(project, Path(qPrintable(document))));
            copy = Load(Path(qPrintable(document)));
        }
        QVERIFY(copy);
        const Node same = ClipAt(copy, 0);
        QVERIFY(same.query<INLETitle>());
        QCOMPARE(Told(same), told);
        QVERIFY(!Ink(Frame(project, 20)).isEmpty());
        QCOMPARE(Frame(copy, 20), Frame(project, 20));
        // And is edited like the one that was made.
        QCOMPARE(same.query<INLETitle>()->SetText(L"Edited"), S_OK);
        Set(same, {{L"size", 0.3}});
        QVERIFY(Frame(copy, 20) != Frame(project, 20));
        QCOMPARE(Told(title), told);
    }

    void textOfAnotherEditorHolds()
    {
        QVERIFY(Save(ProjectWith(Title("Before", {{L"size", 0.3}})), Path("edit.mlt")));
        QByteArray text = Contents(Path("edit.mlt"));
        text.replace("<property name=\"text\">Before<", "<property name=\"text\">After<");
        QVERIFY(SetContents(Path("edit.mlt"), text));
        const Node title = ClipAt(Load(Path("edit.mlt")), 0);
        QCOMPARE(WordsOf(title), QString("After"));
        QCOMPARE(Number(title, L"size"), 0.3);
    }

    void editsTouchTheFramesTheyChange_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<Frames>("needed");
        const auto row = [](const char* name, const Edit& edit, const Frames& needed) {
            QTest::newRow(name) << edit << needed;
        };
        // Over a colour of 300 frames, from frame 60 to 239; chunks of 50 frames.
        const auto set = [](const wchar_t* name, double value) {
            return [=](const Node& title) { Set(title, {{name, value}}); };
        };
        row("no edit", [](const Node&) {}, {});
        row("the text", [](const Node& t) { t.query<INLETitle>()->SetText(L"b c"); }, {{50, 250}});
        row("the font", [](const Node& t) { t.query<INLETitle>()->SetFont(L"DejaVu Serif"); },
            {{50, 250}});
        row("a colour", set(L"color", 0xFFFF0000u), {{50, 250}});
        row("a switch", set(L"bold", 1), {{50, 250}});
        row("the place", set(L"x", 0.1), {{50, 250}});
        row("a longer way to come", set(L"fade-in", 1), {{50, 100}});
        row("a longer way to go", set(L"fade-out", 1.6), {{200, 250}});
        row("rolling", set(L"roll", 1), {{50, 250}});
        row("other frames of what stands", [](const Node& t) { Trimmed(t, 1000, 1179); }, {});
        row("later key frames of its place",
            [](const Node& t) {
                const NLEParameterKeyFrame keys[] = {{0.9, 0, NLEInterpolation_Linear, 0},
                                                     {1, 0.4, NLEInterpolation_Linear, 0}};
                for (const NLEParameterKeyFrame& key : keys)
                    Of(t)->PutKeyFrame(L"y", &key, nullptr);
            },
            {{200, 250}});
        row("half as long", [](const Node& t) { Trimmed(t, 0, 89); }, {{100, 250}});
    }
    void editsTouchTheFramesTheyChange()
    {
        QFETCH(Edit, edit);
        QFETCH(Frames, needed);
        const Node project = Project();
        Add(project, Trimmed(Colour(Qt::blue), 0, 299));
        const Node title = Trimmed(Title("a b", {}, "DejaVu Sans"), 0, 179);
        Set(title, {{L"fade-in", 0.4}, {L"fade-out", 0.4}});
        Add(project, title, 60, 1);
        Cache cache(project, Path(QTest::currentTestFunction()) + QTest::currentDataTag());
        QCOMPARE(cache.Render(), NLECache_Finished);
        edit(title);
        QCOMPARE(cache.Needed(), needed);
    }

    void aColourIsToldAndChanged()
    {
        const Node project = ProjectWith(Colour(QColor(10, 20, 30)));
        const auto clip = ClipAt(project, 0).query<INLEColorClip>();
        QVERIFY(clip);
        std::uint32_t argb = 0;
        QCOMPARE(clip->GetColor(&argb), S_OK);
        QCOMPARE(argb, 0xFF0A141Eu);
        Cache cache(project, Path("colours"));
        QCOMPARE(cache.Render(), NLECache_Finished);
        QCOMPARE(clip->SetColor(0xFF00C080u), S_OK);
        QVERIFY(!cache.Needed().isEmpty());
        QCOMPARE(QColor(Frame(project, 0).pixel(9, 9)), QColor(0, 0xC0, 0x80));
        Node copy;
        QCOMPARE(project->Clone(true, copy.put()), S_OK);
        for (const char* document : {"", "colour.mlt", "colour.otio"}) {
            if (*document != '\0') {
                QVERIFY(Save(project, Path(document)));
                copy = Load(Path(document));
            }
            argb = 0;
            QCOMPARE(ClipAt(copy, 0).query<INLEColorClip>()->GetColor(&argb), S_OK);
            QCOMPARE(argb, 0xFF00C080u);
        }
        QVERIFY(!Title("a").query<INLEColorClip>());
    }
};

QTEST_MAIN(tst_Titles)
#include "tst_titles.moc"
