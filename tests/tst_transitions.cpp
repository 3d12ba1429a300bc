// SPDX-License-Identifier: LGPL-2.1-or-later
// Transitions of the open engine: which clips take part, pixels, sounds, clones, documents, keys.
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "EngineApi/INLEEffects.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/render/TransitionMix.h"
#include "tests/support/PreviewCacheFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>
#include <random>

using namespace nle;

namespace {

const QColor kFrom(200, 40, 60);
const QColor kTo(40, 80, 220);
const QColor kNothing(0, 0, 0); ///< the background of a project

/// Clips from frames 0 to 39 and 20 to 59, and a transition where both play.
struct Pair
{
    Node project, from, to, transition;
};
using Change = std::function<void(const Pair&)>;

/// What a frame of 320 x 180 pixels shows where.
struct Spot
{
    QPoint at;
    QColor color;
};
using Spots = QVector<Spot>;

QColor Mixed(const QColor& a, const QColor& b, double share)
{
    const auto mix = [share](int first, int second) {
        return int(std::lround(first + (second - first) * share));
    };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

void SetNumber(const Node& node, const wchar_t* name, double value)
{
    QCOMPARE(node.query<INLEParameters>()->SetNumber(name, value), S_OK);
}

Change Number(const wchar_t* name, double value)
{
    return [name, value](const Pair& pair) { SetNumber(pair.transition, name, value); };
}

QImage RandomPicture(QImage::Format format, unsigned seed)
{
    QImage image(QSize(37, 23), format);
    std::mt19937 random(seed);
    for (int i = 0; i < int(image.sizeInBytes()); ++i)
        image.bits()[i] = uchar(random());
    return image;
}

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Spots)

class tst_Transitions : public QObject, private PreviewCacheFixture
{
    Q_OBJECT

    Pair MakePair(const char* name) const
    {
        Pair pair{Project(), Trimmed(Colour(kFrom), 0, 39), Trimmed(Colour(kTo), 0, 39),
                  Trimmed(Transition(name), 0, 19)};
        Add(pair.project, pair.from);
        Add(pair.project, pair.to, 20);
        Add(pair.project, pair.transition, 20);
        return pair;
    }
    static Change Nothing()
    {
        return [](const Pair&) {};
    }
    static void Remove(const Pair& pair, const Node& clip)
    {
        pair.project.query<INLETimelineComposite>()->RemoveClip(clip.get());
    }
    /// The largest difference of a component at some spots.
    static int Error(const QImage& image, const Spots& spots)
    {
        int worst = image.isNull() ? 256 : 0;
        for (const Spot& spot : spots) {
            const QColor shown = image.pixelColor(spot.at);
            worst = std::max({worst, std::abs(shown.red() - spot.color.red()),
                              std::abs(shown.green() - spot.color.green()),
                              std::abs(shown.blue() - spot.color.blue())});
        }
        return worst;
    }
    /// A clip of 60 frames with a tone.
    Node Tone() const { return Media(m_tone); }

    const QString m_tone = Path("tone.mp4");

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 75;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(m_tone, clip), QString());
    }

    void mixesPictures_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("frame"); // of the project; 25 is a quarter of the way
        QTest::addColumn<Spots>("spots");
        const QPoint middle(160, 90);
        const auto row = [](const char* title, const char* name, const Change& change, int frame,
                            const Spots& spots) {
            QTest::newRow(title) << name << change << frame << spots;
        };
        row("before it", "dissolve", Nothing(), 19, {{middle, kFrom}});
        row("a dissolve begins with the first clip", "dissolve", Nothing(), 20, {{middle, kFrom}});
        row("a dissolve, a quarter on", "dissolve", Nothing(), 25,
            {{middle, Mixed(kFrom, kTo, 0.25)}});
        row("after it", "dissolve", Nothing(), 40, {{middle, kTo}});
        row("a dip goes to its colour", "dip", Number(L"color", 0xFF00FF00u), 25,
            {{middle, Mixed(kFrom, Qt::green, 0.5)}});
        row("a dip is its colour", "dip", Number(L"color", 0xFF00FF00u), 30, {{middle, Qt::green}});
        row("a dip comes from its colour", "dip", Nothing(), 35,
            {{middle, Mixed(Qt::black, kTo, 0.5)}});
        const auto wipe = [&](const char* title, int direction, const QPoint& early,
                              const QPoint& late) {
            row(title, "wipe", Number(L"direction", direction), 25,
                {{early, kTo}, {late, kFrom}, {middle, kFrom}});
        };
        wipe("a wipe to the right", 0, {70, 90}, {90, 90});
        wipe("a wipe to the left", 1, {250, 90}, {230, 90});
        wipe("a wipe down", 2, {160, 40}, {160, 50});
        wipe("a wipe up", 3, {160, 140}, {160, 130});
        wipe("a wipe to the lower right", 4, {10, 70}, {319, 0});
        wipe("a wipe to the lower left", 5, {310, 70}, {0, 0});
        wipe("a wipe to the upper right", 6, {10, 110}, {0, 0});
        wipe("a wipe to the upper left", 7, {310, 110}, {0, 179});
        const QPoint right(230, 90); // 70 pixels from the middle; the corners are 184 away
        row("a circle grows", "circle", Nothing(), 30,
            {{middle, kTo}, {right, kTo}, {{260, 90}, kFrom}, {{160, 2}, kTo}});
        row("a circle shrinks", "circle", Number(L"reverse", 1), 30,
            {{middle, kFrom}, {right, kFrom}, {{260, 90}, kTo}});
        row("a diamond", "diamond", Nothing(), 30,
            {{middle, kTo}, {{310, 90}, kTo}, {{240, 150}, kFrom}, {{230, 120}, kTo}});
        row("a clock", "clock", Nothing(), 25,
            {{{170, 10}, kTo}, {{300, 80}, kTo}, {{300, 100}, kFrom}, {{150, 10}, kFrom}});
        row("a clock backwards", "clock", Number(L"reverse", 1), 25,
            {{{150, 10}, kTo}, {{20, 80}, kTo}, {{20, 100}, kFrom}, {{170, 10}, kFrom}});
        row("doors that open", "barn-doors", Nothing(), 30,
            {{middle, kTo}, {{230, 90}, kTo}, {{250, 90}, kFrom}, {{70, 90}, kFrom}});
        row("doors one above the other", "barn-doors", Number(L"direction", 1), 30,
            {{middle, kTo}, {{10, 130}, kTo}, {{160, 140}, kFrom}});
        const auto soft = [](const Pair& pair) { SetNumber(pair.transition, L"softness", 0.5); };
        // The edge is at 0.75 of the width and 0.5 wide.
        row("a soft edge", "wipe", soft, 30,
            {{{160, 90}, Mixed(kFrom, kTo, 0.5)},
             {{120, 90}, Mixed(kFrom, kTo, 0.75 * 0.75 * 1.5)},
             {{60, 90}, kTo},
             {{250, 90}, kFrom}});
        const auto halfAndKeyed = [](const Pair& pair) {
            SetNumber(pair.transition, L"softness", 0);
            const NLEParameterKeyFrame key = {0.5, 0.5, NLEInterpolation_Linear, 0};
            pair.transition.query<INLEParameters>()->PutKeyFrame(L"softness", &key, nullptr);
        };
        row("a soft edge by a key frame", "wipe", halfAndKeyed, 30,
            {{{160, 90}, Mixed(kFrom, kTo, 0.5)}});
        const auto isSmall = [](const Pair& pair) {
            const NLESizeF half = {0.5, 0.5};
            pair.from.query<INLETransform>()->SetScale(&half);
        };
        row("a push moves both", "push", isSmall, 25,
            {{{70, 90}, kTo}, {{90, 90}, kNothing}, {{170, 90}, kFrom}, {{310, 90}, kFrom}});
        row("a slide moves the second", "slide", isSmall, 25,
            {{{70, 90}, kTo}, {{90, 90}, kFrom}, {{230, 90}, kFrom}, {{250, 90}, kNothing}});
        row("a zoom lets it grow", "zoom", Nothing(), 30,
            {{middle, kTo}, {{90, 50}, kTo}, {{70, 90}, kFrom}, {{160, 40}, kFrom}});
        row("transforms go on under it", "dissolve", isSmall, 30,
            {{middle, Mixed(kFrom, kTo, 0.5)}, {{20, 20}, Mixed(kNothing, kTo, 0.5)}});
        const auto faint = [](const Pair& pair) {
            pair.to.query<INLEBlendSetting>()->SetAlpha(51);
        };
        row("alpha goes on under it", "dissolve", faint, 30,
            {{middle, Mixed(kFrom, Mixed(kNothing, kTo, 0.2), 0.5)}});
        const auto adding = [this](const Pair& pair) {
            const Node below = Trimmed(Colour(QColor(20, 20, 20)), 0, 59);
            Add(pair.project, below, 0, -1);
            pair.to.query<INLEBlendSetting>()->SetMode(6);
        };
        row("each clip keeps its mode of blending", "dissolve", adding, 30,
            {{middle, Mixed(kFrom, QColor(60, 100, 240), 0.5)}});
        const auto keyed = [](const Pair& pair) {
            const NLEKeyFrameRecord record = {0, 0, 0, 0, 1, 1, 0.5f, 1};
            int index = 0;
            pair.to.query<INLEKeyFrameList>()->AddKeyFrame(&record, &index);
        };
        row("key frames go on under it", "dissolve", keyed, 30,
            {{middle, Mixed(kFrom, Mixed(kNothing, kTo, 0.5), 0.5)}});
    }
    void mixesPictures()
    {
        QFETCH(const QString, name);
        QFETCH(const Change, change);
        QFETCH(const int, frame);
        QFETCH(const Spots, spots);
        const Pair pair = MakePair(name.toLatin1().constData());
        change(pair);
        QVERIFY2(Error(Frame(pair.project, frame), spots) <= 2,
                 qPrintable(Told(pair, frame, spots)));
    }

    void choosesClips_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("frame");
        QTest::addColumn<QColor>("color"); // of a dissolve
        const auto row = [](const char* name, int frame, const QColor& color,
                            const Change& change) {
            QTest::newRow(name) << change << frame << color;
        };
        row("a clip alone comes", 25, Mixed(kNothing, kTo, 0.25),
            [](const Pair& p) { Remove(p, p.from); });
        row("a clip alone goes", 25, Mixed(kFrom, kNothing, 0.25),
            [](const Pair& p) { Remove(p, p.to); });
        row("a clip all through it is left alone", 30, kFrom, [](const Pair& p) {
            Remove(p, p.to);
            Trimmed(p.from, 0, 59);
        });
        row("a clip comes over one that stays", 30, Mixed(kFrom, kTo, 0.5),
            [](const Pair& p) { Trimmed(p.from, 0, 59); });
        row("a disabled transition", 25, kTo,
            [](const Pair& p) { p.transition->SetEnabled(false); });
        row("a disabled clip", 25, Mixed(kNothing, kTo, 0.25),
            [](const Pair& p) { p.from->SetEnabled(false); });
        row("another level", 25, kTo, [](const Pair& p) { p.transition->SetLevel(1); });
        row("a clip of sound only", 25, Mixed(kFrom, kNothing, 0.25), [](const Pair& p) {
            BagOf(p.to)->SetInt(NLEKey::Render::kRender_Mode, NLERender_AudioOnly);
        });
        row("before the second begins", 22, Mixed(kFrom, kNothing, 4 / 24.0), [](const Pair& p) {
            p.transition->SetPosition(18);
            Trimmed(p.transition, 0, 23);
            p.to->SetPosition(23);
        });
        row("the first added lies above", 25, Mixed(kFrom, kTo, 0.25), [](const Pair& p) {
            Remove(p, p.from);
            Add(p.project, p.from);
        });
        row("of three clips the last to come and the first to go", 30, Mixed(kFrom, kTo, 0.5),
            [this](const Pair& p) {
                Remove(p, p.to);
                Add(p.project, Trimmed(Colour(Qt::white), 0, 9), 15);
                Add(p.project, p.to, 21);
                Trimmed(p.to, 0, 39);
            });
        row("of two at a time the one that began first", 30, Mixed(kFrom, kTo, 0.5),
            [](const Pair& p) { Add(p.project, Trimmed(Transition("wipe"), 0, 9), 21); });
        row("in a composite of its own", 30, Mixed(kFrom, kTo, 0.5), [this](const Pair& p) {
            const Node nested = provider->CreateVirtualTimeline(0);
            for (const Node& node : {p.from, p.to, p.transition}) {
                Remove(p, node);
                nested.query<INLETimelineComposite>()->AddClip(node.get());
            }
            Add(p.project, nested);
        });
        row("between composites", 30, Mixed(kFrom, kTo, 0.5), [this](const Pair& p) {
            Remove(p, p.from);
            const Node nested = provider->CreateVirtualTimeline(0);
            Add(nested, p.from);
            Add(p.project, nested);
        });
    }
    void choosesClips()
    {
        QFETCH(const Change, change);
        QFETCH(const int, frame);
        QFETCH(const QColor, color);
        const Pair pair = MakePair("dissolve");
        change(pair);
        const Spots spots = {{QPoint(160, 90), color}};
        QVERIFY2(Error(Frame(pair.project, frame), spots) <= 1,
                 qPrintable(Told(pair, frame, spots)));
    }

    void countsAsChildAndNotAsLength()
    {
        const Pair pair = MakePair("dissolve");
        QCOMPARE(ClipCount(pair.project), 3);
        pair.transition->SetPosition(200);
        QCOMPARE(TotalOf(pair.project).out, 59);
        const NLETimeline timeline(ClipAt(pair.project, 2), ExactType_Unknown, nullptr);
        QVERIFY(timeline.IsTransition() && !timeline.IsSource() && !timeline.IsEffect());
        wchar_t name[20] = L"";
        pair.transition.query<INLETimelineTransition>()->GetTransitionName(name, 20);
        QCOMPARE(QString::fromWCharArray(name), QString("dissolve"));
        Remove(pair, pair.transition);
        QCOMPARE(ClipCount(pair.project), 2);
    }

    void isMadeByName()
    {
        Node none;
        QCOMPARE(Nodes()->CreateTransition(L"no such", none.put()), E_INVALIDARG);
        QVERIFY(!none);
        for (const Declaration& declaration : TransitionDeclarations()) {
            const Node made = Transition(declaration.names.name);
            QVERIFY2(made, declaration.names.name);
            QCOMPARE(RangeOf(made).out, 24);
        }
        int listed = 0;
        wchar_t title[30] = L"";
        const auto catalog = Nodes().query<INLEEffectCatalog>();
        QCOMPARE(catalog->GetCount(NLECatalog_Transition, &listed), S_OK);
        QCOMPARE(listed, int(TransitionDeclarations().size()));
        QCOMPARE(catalog->GetTitle(NLECatalog_Transition, 1, title, 30), S_OK);
        QCOMPARE(QString::fromWCharArray(title), QString("Dip to colour"));
        const auto wipe = Transition("wipe").query<INLEParameters>();
        QCOMPARE(wipe->SetNumber(L"softness", 1.01), E_INVALIDARG);
    }

    void followsTheRateOfItsComposite()
    {
        const Pair pair = MakePair("wipe");
        const NLEParameterKeyFrame keys[] = {{0, 0, NLEInterpolation_Linear, 0},
                                             {1, 1, NLEInterpolation_Linear, 0}};
        for (const NLEParameterKeyFrame& key : keys)
            pair.transition.query<INLEParameters>()->PutKeyFrame(L"softness", &key, nullptr);
        const QImage before = Frame(pair.project, 30);
        pair.project->SetRenderFrameRate({50, 1});
        QCOMPARE(RangeOf(pair.transition).out, 39);
        QVERIFY(Psnr(Frame(pair.project, 60), before) >= kEqual);
    }

    void sameInOneBandAndInMany_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<QString>("name");
        for (const char* name : {"dissolve", "wipe", "circle", "diamond", "clock", "barn-doors"}) {
            QTest::addRow("%s, 8 bits", name) << QImage::Format_ARGB32_Premultiplied << name;
            QTest::addRow("%s, 16 bits", name) << QImage::Format_RGBA64_Premultiplied << name;
        }
    }
    void sameInOneBandAndInMany()
    {
        QFETCH(const QImage::Format, format);
        QFETCH(const QString, name);
        const Declaration& declaration = *FindTransition(name);
        const TransitionKind kind = TransitionKindOf(declaration);
        const ParameterValues values(declaration);
        const QImage other = RandomPicture(format, 2);
        QImage whole = RandomPicture(format, 1);
        std::optional<WipePattern> pattern;
        if (IsWipe(kind))
            pattern.emplace(kind, ParametersAt(values, 0), whole.size());
        const MixWeights weights = {pattern ? &*pattern : nullptr, 0.4, 0.3};
        QImage bands = whole;
        const QImage before = whole;
        MixRows(whole, other, weights, 0, whole.height());
        for (int y = whole.height() - 1; y >= 0; --y)
            MixRows(bands, other, weights, y, y + 1);
        QVERIFY(whole == bands);
        QVERIFY(whole != before);
    }

    void sameInAnyOrder()
    {
        const Pair pair = MakePair("circle");
        const auto extractor = provider->CreateFrameExtractor();
        const auto picture = provider->CreateVideoFrame(320, 180);
        QCOMPARE(picture->Prepare(), S_OK);
        QCOMPARE(extractor->Open(pair.project.get(), NLEOpen_Render), S_OK);
        for (const int frame : {39, 21, 30, 59, 22}) {
            std::uint8_t* pixels = nullptr;
            QCOMPARE(extractor->Extract(frame, picture.get()), S_OK);
            QCOMPARE(picture->GetData(&pixels), S_OK);
            QCOMPARE(QImage(pixels, 320, 180, QImage::Format_ARGB32), Frame(pair.project, frame));
        }
    }

    void fadesSound_data()
    {
        QTest::addColumn<int>("choice");
        QTest::addColumn<int>("clips");   // 1 the first, 2 the second, 3 both, which play the same
        QTest::addColumn<double>("gain"); // in the middle of frame 30, which is 0.525 of the way
        const double share = 0.525;
        const double from = std::cos(share * M_PI_2);
        const double to = std::sin(share * M_PI_2);
        QTest::newRow("linear, the first") << 0 << 1 << 1 - share;
        QTest::newRow("linear, the second") << 0 << 2 << share;
        QTest::newRow("linear, the same sound") << 0 << 3 << 1.0;
        QTest::newRow("equal power, the first") << 1 << 1 << from;
        QTest::newRow("equal power, the second") << 1 << 2 << to;
        QTest::newRow("equal power, the same sound") << 1 << 3 << from + to;
        QTest::newRow("no fade, the same sound") << 2 << 3 << 2.0;
    }
    void fadesSound()
    {
        QFETCH(const int, choice);
        QFETCH(const int, clips);
        QFETCH(const double, gain);
        const Node project = Project();
        if (clips & 1)
            Add(project, Trimmed(Tone(), 0, 39));
        if (clips & 2)
            Add(project, Trimmed(Tone(), 20, 59), 20);
        const Node transition = Trimmed(Transition("dissolve"), 0, 19);
        SetNumber(transition, L"sound", choice);
        Add(project, transition, 20);
        const double loudness = Loudness(Sound(project, 30)[0]) / kToneLoudness;
        QVERIFY2(std::abs(loudness - gain) < 0.015, qPrintable(QString::number(loudness)));
        const double around = Loudness(Sound(project, clips == 2 ? 45 : 10)[0]) / kToneLoudness;
        QVERIFY2(std::abs(around - 1) < 0.015, qPrintable(QString::number(around)));
    }

    void films_data()
    {
        QTest::addColumn<int>("position");
        QTest::newRow("a dissolve from one film to another") << 20;
        QTest::newRow("a film alone that comes") << 0;
    }
    /// What the encoder and the cache draw is not the film as it was decoded.
    void films()
    {
        QFETCH(const int, position);
        const Node project = Project();
        if (position > 0)
            Add(project, Trimmed(Colour(Qt::white), 0, 39));
        Add(project, Trimmed(Tone(), 0, 39), position);
        Add(project, Trimmed(Transition("dissolve"), 0, 19), position);
        Cache cache(project, Path("films"));
        QCOMPARE(cache.Render(), NLECache_Finished);
        QVERIFY(Likeness(project, {{position, position + 20}}) >= kAlike);
        Node plain = Project();
        Add(plain, Trimmed(Tone(), 0, 39), position);
        QVERIFY(Psnr(Frame(project, position + 10), Frame(plain, position + 10)) < 20);
    }

    void clonesAndDocumentsKeepIt_data()
    {
        QTest::addColumn<QString>("document"); // empty: a clone
        QTest::newRow("clone") << QString();
        QTest::newRow("MLT") << Path("transitions.mlt");
        QTest::newRow("OpenTimelineIO") << Path("transitions.otio");
    }
    void clonesAndDocumentsKeepIt()
    {
        QFETCH(const QString, document);
        const Pair pair = MakePair("barn-doors");
        const auto parameters = pair.transition.query<INLEParameters>();
        parameters->SetNumber(L"direction", 1);
        parameters->SetNumber(L"sound", 1);
        const NLEParameterKeyFrame keys[] = {{0.25, 0.1, NLEInterpolation_Linear, 0},
                                             {0.75, 0.7, NLEInterpolation_Smooth, 0}};
        for (const NLEParameterKeyFrame& key : keys)
            parameters->PutKeyFrame(L"softness", &key, nullptr);
        const Node off = Transition("dip");
        off->SetEnabled(false);
        Add(pair.project, off, 7, 3);
        Node copy;
        if (document.isEmpty())
            QCOMPARE(pair.project->Clone(true, copy.put()), S_OK);
        else if (Save(pair.project, document))
            copy = Load(document);
        QVERIFY(copy);
        QCOMPARE(ClipCount(copy), 4);
        for (const int frame : {24, 30, 37})
            QCOMPARE(Frame(copy, frame), Frame(pair.project, frame));
        const Node kept = ClipAt(copy, 2);
        double sound = 0;
        int count = 0;
        NLEParameterKeyFrame last = {};
        const auto restored = kept.query<INLEParameters>();
        QVERIFY(restored);
        QCOMPARE(restored->GetNumber(L"sound", &sound), S_OK);
        QCOMPARE(sound, 1.0);
        QCOMPARE(restored->GetKeyFrameCount(L"softness", &count), S_OK);
        QCOMPARE(count, 2);
        QCOMPARE(restored->GetKeyFrame(L"softness", 1, &last), S_OK);
        QCOMPARE(last.time, 0.75);
        QCOMPARE(last.interpolation, std::int32_t(NLEInterpolation_Smooth));
        const Node keptOff = ClipAt(copy, 3);
        bool isEnabled = true;
        int position = 0;
        int level = 0;
        keptOff->GetEnabled(&isEnabled);
        keptOff->GetPosition(&position);
        keptOff->GetLevel(&level);
        QVERIFY(keptOff.query<INLETimelineTransition>());
        QVERIFY(!isEnabled && position == 7 && level == 3);
    }

    void meetsOnTracksOfOtherPrograms()
    {
        const Pair pair = MakePair("dissolve");
        const Node third = Trimmed(Colour(Qt::white), 0, 39);
        Add(pair.project, third, 50);
        Add(pair.project, Trimmed(Transition("push"), 0, 9), 50);
        const QString path = Path("meeting.otio");
        QVERIFY(Save(pair.project, path));
        QJsonObject document = QJsonDocument::fromJson(Contents(path)).object();
        const QJsonArray tracks = document["tracks"].toObject()["children"].toArray();
        QStringList items;
        for (const QJsonValue value : tracks[0].toObject()["children"].toArray()) {
            const QJsonObject item = value.toObject();
            items
                << item["OTIO_SCHEMA"].toString().left(4) +
                       QString::number(
                           item["source_range"].toObject()["duration"].toObject()["value"].toInt() +
                           item["in_offset"].toObject()["value"].toInt());
        }
        QCOMPARE(items, QStringList({"Clip30", "Tran10", "Clip25", "Tran5", "Clip35"}));
        QCOMPARE(tracks.size(), 2); // and the one of transitions

        const Node kept = Load(path);
        QCOMPARE(ClipCount(kept), 5);
        for (const int frame : {10, 30, 45, 55, 80})
            QCOMPARE(Frame(kept, frame), Frame(pair.project, frame));

        // Without what is this engine's own.
        QVERIFY(SetContents(path, Contents(path).replace("\"nle\"", "\"other\"")));
        const Node foreign = Load(path);
        QVERIFY(foreign);
        for (const int frame : {10, 25, 30, 45})
            QVERIFY(Error(Frame(foreign, frame),
                          {{QPoint(160, 90), Frame(pair.project, frame).pixelColor(160, 90)}}) <=
                    1);
    }

    void editsTouchWhatTheyChange_data()
    {
        QTest::addColumn<Change>("edit");
        QTest::addColumn<Frames>("needed");
        const auto row = [](const char* name, const Frames& needed, const Change& edit) {
            QTest::newRow(name) << edit << needed;
        };
        // Chunks of the first clip are 0 to 49, 50 to 99 and 100 to 119, those of the second one
        // from 120 to 149 and 150 to 199.
        const Frames changed = {{100, 120}};
        row("no edit", {}, Nothing());
        row("softer", changed, Number(L"softness", 0.3));
        row("how the sound fades", {}, Number(L"sound", 1));
        row("switched off", changed, [](const Pair& p) { p.transition->SetEnabled(false); });
        row("taken out", changed, [](const Pair& p) { Remove(p, p.transition); });
        row("moved to the start of the first", {{0, 50}, {100, 120}},
            [](const Pair& p) { p.transition->SetPosition(0); });
        row("moved to where nothing changes", changed,
            [](const Pair& p) { p.transition->SetPosition(60); });
        row("longer than the overlap", {{100, 150}},
            [](const Pair& p) { Trimmed(p.transition, 0, 29); });
        row("another level", changed, [](const Pair& p) { p.transition->SetLevel(2); });
        row("a key frame that changes nothing", {}, [](const Pair& p) {
            const NLEParameterKeyFrame key = {0.5, 0, NLEInterpolation_Linear, 0};
            p.transition.query<INLEParameters>()->PutKeyFrame(L"softness", &key, nullptr);
            p.transition.query<INLEParameters>()->DeleteKeyFrame(L"softness", 0);
        });
        row("a key frame", changed, [](const Pair& p) {
            const NLEParameterKeyFrame key = {0.5, 1, NLEInterpolation_Linear, 0};
            p.transition.query<INLEParameters>()->PutKeyFrame(L"softness", &key, nullptr);
        });
        row("one more that nothing takes part in", {},
            [](const Pair& p) { Add(p.project, Transition("dissolve"), 30, 5); });
        row("all moved on", {{0, 7}}, [this](const Pair& p) {
            for (const Node& node : {p.from, p.to, p.transition}) {
                int position = 0;
                node->GetPosition(&position);
                node->SetPosition(position + 7);
            }
            Add(p.project, Trimmed(Colour(Qt::yellow), 0, 6));
        });
    }
    void editsTouchWhatTheyChange()
    {
        QFETCH(const Change, edit);
        QFETCH(const Frames, needed);
        const Pair pair = MakePair("wipe");
        Trimmed(pair.from, 0, 119);
        Trimmed(pair.to, 0, 99);
        pair.to->SetPosition(100);
        pair.transition->SetPosition(100);
        const QString cached = Path(QTest::currentTestFunction()) + QTest::currentDataTag();
        Cache cache(pair.project, cached);
        QCOMPARE(cache.Render(), NLECache_Finished);
        edit(pair);
        QCOMPARE(cache.Needed(), needed);
    }

private:
    QString Told(const Pair& pair, int frame, const Spots& spots) const
    {
        const QImage image = Frame(pair.project, frame);
        QString text;
        for (const Spot& spot : spots)
            text += QString("(%1, %2): %3, not %4; ")
                        .arg(spot.at.x())
                        .arg(spot.at.y())
                        .arg(image.pixelColor(spot.at).name(), spot.color.name());
        return text;
    }
};

QTEST_MAIN(tst_Transitions)
#include "tst_transitions.moc"
