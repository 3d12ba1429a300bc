// SPDX-License-Identifier: LGPL-2.1-or-later
// Levels that are hidden, muted or solo: what shows and sounds, and what documents keep of them.
#include "tests/support/EngineFixture.h"

namespace {

/// What the picture of nothing but the project's background is read as.
constexpr int kNothing = 0;
/// Frame of the material that each level shows at the frame that is looked at.
constexpr int kLower = 5;
constexpr int kUpper = 30;
constexpr int kHidden = NLELevel_Hidden;
constexpr int kMuted = NLELevel_Muted;
constexpr int kSolo = NLELevel_Solo;

} // namespace

class tst_Levels : public QObject, private EngineFixture
{
    Q_OBJECT

    using Levels = NLEComPtr<INLELevels>;

    /// Two clips with the same tone, one over the other, on levels with these flags.
    Node Project(int lower, int upper) const
    {
        Node project = EngineFixture::Project();
        Add(project, Trimmed(Media(m_media), 0, 24));
        Add(project, Trimmed(Media(m_media), kUpper - kLower, 49), 0, 1);
        const Levels levels = LevelsOf(project);
        levels->SetFlags(0, lower);
        levels->SetFlags(1, upper);
        return project;
    }
    QString Name(const Node& project, int level) const
    {
        wchar_t name[64] = L"";
        LevelsOf(project)->GetName(level, name, 64);
        return QString::fromWCharArray(name);
    }
    int Flags(const Node& project, int level) const
    {
        int flags = -1;
        LevelsOf(project)->GetFlags(level, &flags);
        return flags;
    }

    const QString m_media = Path("clip.mkv");

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 50;
        clip.audioCodec = "pcm_s16le";
        QCOMPARE(MakeTestClip(m_media, clip), QString());
    }

    void shownAndHeard_data()
    {
        QTest::addColumn<int>("lower");
        QTest::addColumn<int>("upper");
        QTest::addColumn<int>("shown");
        QTest::addColumn<double>("gain");
        const auto row = [](const char* name, int lower, int upper, int shown, double gain) {
            QTest::newRow(name) << lower << upper << shown << gain;
        };
        row("nothing set", 0, 0, kUpper, 2);
        row("the upper one hidden still sounds", 0, kHidden, kLower, 2);
        row("the upper one muted still shows", 0, kMuted, kUpper, 1);
        row("both hidden and muted", kHidden | kMuted, kHidden | kMuted, kNothing, 0);
        row("the lower one solo", kSolo, 0, kLower, 1);
        row("both solo", kSolo, kSolo, kUpper, 2);
        row("solo does not unmute", kSolo | kMuted, 0, kLower, 0);
        row("solo does not show what is hidden", kSolo | kHidden, 0, kNothing, 1);
    }

    /// As edited, cloned, and read from documents of both formats.
    void shownAndHeard()
    {
        QFETCH(int, lower);
        QFETCH(int, upper);
        QFETCH(int, shown);
        QFETCH(double, gain);
        const Node project = Project(lower, upper);
        Node clone;
        QCOMPARE(project->Clone(true, clone.put()), S_OK);
        QVERIFY(Save(project, Path("levels.mlt")));
        QVERIFY(Save(project, Path("levels.otio")));
        for (const Node& node :
             {project, clone, Load(Path("levels.mlt")), Load(Path("levels.otio"))}) {
            QVERIFY(node);
            QCOMPARE(Flags(node, 0), lower);
            QCOMPARE(Flags(node, 1), upper);
            const QImage picture = Frame(node, kLower);
            QImage black = picture;
            black.fill(Qt::black);
            QCOMPARE(picture == black ? kNothing : ReadFrameNumber(picture), shown);
            const double heard = Loudness(Sound(node, kLower)[0]) / kToneLoudness;
            QCOMPARE(Deviation(heard, gain, gain == 0 ? 0.001 : 0.05), QString());
        }
    }

    void documentsKeepNamesAndHeights()
    {
        const Node project = Project(0, 0);
        const Levels levels = LevelsOf(project);
        QCOMPARE(levels->SetName(1, L" B  roll <2>"), S_OK);
        QCOMPARE(levels->SetName(1, L" B  roll <2>"), S_FALSE);
        QCOMPARE(levels->SetHeight(4, 77), S_OK);
        for (const char* file : {"named.mlt", "named.otio"}) {
            QVERIFY(Save(project, Path(file)));
            const Node loaded = Load(Path(file));
            QCOMPARE(Name(loaded, 1), QString(" B  roll <2>"));
            int height = 0;
            int count = 0;
            LevelsOf(loaded)->GetHeight(4, &height);
            LevelsOf(loaded)->GetCount(&count);
            QCOMPARE(height, 77);
            QCOMPARE(count, 5);
        }
    }

    void anotherProgramHidesATrack_data()
    {
        QTest::addColumn<int>("upper");
        QTest::addColumn<QByteArray>("hide");
        QTest::addColumn<int>("flags");
        QTest::newRow("that was shown") << 0 << QByteArray("hide='both'") << (kHidden | kMuted);
        QTest::newRow("and shows what was hidden") << kHidden << QByteArray() << 0;
    }

    void anotherProgramHidesATrack()
    {
        QFETCH(int, upper);
        QFETCH(QByteArray, hide);
        QFETCH(int, flags);
        const QString path = Path("theirs.mlt");
        QVERIFY(Save(Project(0, upper), path));
        QByteArray text = Contents(path).replace("hide=\"video\"", "");
        const int track = text.lastIndexOf("<track producer=\"playlist");
        QVERIFY(track >= 0);
        text.insert(track + int(qstrlen("<track ")), hide + " ");
        QVERIFY(SetContents(path, text));
        const Node loaded = Load(path);
        QCOMPARE(Flags(loaded, 0), 0);
        QCOMPARE(Flags(loaded, 1), flags);
    }

    void refusals()
    {
        const Node project = Project(0, 0);
        const Levels levels = LevelsOf(project);
        QCOMPARE(levels->SetFlags(0, 8), E_INVALIDARG);
        QCOMPARE(levels->SetFlags(-1, kMuted), E_INVALIDARG);
        QCOMPARE(levels->SetHeight(0, -1), E_INVALIDARG);
        QCOMPARE(levels->SetName(-1, L"x"), E_INVALIDARG);
        int count = -1;
        levels->GetCount(&count);
        QCOMPARE(count, 0);
    }
};

QTEST_MAIN(tst_Levels)
#include "tst_levels.moc"
