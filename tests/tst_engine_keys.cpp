// SPDX-License-Identifier: LGPL-2.1-or-later
// Key frames and project-wide settings of the open engine in its pictures, and thumbnails of clips
// that are in use, through the library.
#include "CommonLib/CommonLib.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

#include <QThread>

#include <atomic>
#include <functional>
#include <random>

using Record = NLEKeyFrameRecord;
using Param = VideoKeyFrameParam;
using Setting = VideoKeyFrameSetting;
Q_DECLARE_METATYPE(Param)

/// The project's own context.
struct Context : NLETimelineContextPropertyService
{
    explicit Context(const Node& project) { m_basin = project.query<INLEBasin>(); }
};

class tst_EngineKeys : public QObject, private EngineFixture
{
    Q_OBJECT

    static Node Trimmed(Node clip, int in, int out)
    {
        const NLERange range = {in, out};
        clip->SetRange(&range);
        return clip;
    }
    Node ProjectWith(const Node& clip, int position = 0) const
    {
        Node project = Project();
        Add(project, clip, position);
        return project;
    }

    /// Where the picture is not black; empty when its middle is not as red as \a red.
    static QRect Shown(const QImage& picture, int red)
    {
        QRect shown;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) != qRgb(0, 0, 0))
                    shown |= QRect(x, y, 1, 1);
            }
        }
        return qAbs(picture.pixelColor(shown.center()).red() - red) <= 2 ? shown : QRect();
    }

private slots:
    void interpolation_data()
    {
        QTest::addColumn<Param>("first");
        QTest::addColumn<Param>("last");
        QTest::addColumn<int>("frame");
        QTest::addColumn<QRect>("shown");
        QTest::addColumn<int>("red");
        const Param left = {0.2, 0, 1, {-0.25, 0.25}, {0.5, 0.5}};
        const Param right = {0.6, 0, 1, {0.25, -0.25}, {0.5, 0.5}};
        const auto row = [](const char* name, Param a, Param b, int frame, QRect shown, int red) {
            QTest::newRow(name) << a << b << frame << shown << red;
        };
        row("held before the first", left, right, 50, {0, 0, 160, 90}, 255);
        row("at the first", left, right, 70, {0, 0, 160, 90}, 255);
        row("half way", left, right, 90, {80, 45, 160, 90}, 255);
        row("three quarters", left, right, 100, {120, 68, 160, 90}, 255);
        row("held after the last", left, right, 149, {160, 90, 160, 90}, 255);
        row("growing", left, {0.6, 0, 1, {-0.25, 0.25}, {1, 0.1}}, 90, {-40, 18, 240, 54}, 255);
        row("turning", {0, -90, 1, {}, {0.5, 0.5}}, {1, 270, 1, {}, {0.5, 0.5}}, 100,
            {115, 10, 90, 160}, 255);
        row("fading", {0, 0, 0, {}, {1, 1}}, {1, 0, 1, {}, {1, 1}}, 110, {0, 0, 320, 180}, 153);
        row("opaque at the most", {0, 0, 5, {}, {1, 1}}, {1, 0, 7, {}, {1, 1}}, 75,
            {0, 0, 320, 180}, 255);
        row("invisible", {0, 0, -1, {}, {1, 1}}, right, 50, {}, 0);
        row("beyond all bounds", {0, 1e308, 1, {1e308, 1e308}, {1e308, 1e308}},
            {1, -1e308, 1, {-1e308, -1e308}, {-1e308, -1e308}}, 75, {}, 0);
    }

    void interpolation()
    {
        QFETCH(Param, first);
        QFETCH(Param, last);
        QFETCH(int, frame);
        QFETCH(QRect, shown);
        QFETCH(int, red);
        const Node clip = Trimmed(Colour(Qt::red), 200, 299);
        const Node project = ProjectWith(clip, 50);
        Setting keys(clip);
        QCOMPARE(keys.AddKeyFrame(last), 0);
        QCOMPARE(keys.AddKeyFrame(first), 0);
        const QImage picture = Frame(project, frame);
        QVERIFY(!picture.isNull());
        const QRect found = Shown(picture, red);
        const QRect wanted = shown & picture.rect();
        // To within one pixel: the edge itself may be either.
        QVERIFY2(found == wanted || (wanted.adjusted(-1, -1, 1, 1).contains(found) &&
                                     found.contains(wanted.adjusted(1, 1, -1, -1))),
                 QTest::toString(found));
        QVERIFY(keys.GetKeyFrameStatus() && keys.SetKeyFrameStatus(false));
        QCOMPARE(Frame(project, 75).pixelColor(160, 90), QColor(Qt::red));
        QVERIFY(!keys.GetKeyFrameStatus());
    }

    void staysWithItsFrame()
    {
        const Node clip = Trimmed(Colour(Qt::red), 100, 199);
        clip.query<INLETransform>()->SetRotation(10);
        const Node project = ProjectWith(clip, 50);
        Setting keys(clip);
        for (const int frame : {10, 37, 90})
            keys.AddKeyFrame({CalculateVideoKeyFramePosition(frame, 100),
                              frame * 3.0,
                              frame / 90.0,
                              {frame / 200.0, 0},
                              {0.5, 0.5}});
        const QList<Param> set = keys.GetAllKeyFrameParams();
        std::vector<QImage> before;
        for (const int frame : {55, 80, 99, 120, 145})
            before.push_back(Frame(project, frame));
        const auto same = [&](const Node& other) {
            int i = 0;
            for (const int frame : {55, 80, 99, 120, 145}) {
                if (Frame(other, frame) != before[size_t(i++)])
                    return false;
            }
            return true;
        };
        QVERIFY(before[1] != before[2]);

        // Cut in two at a frame.
        Node second;
        QCOMPARE(clip->Clone(true, second.put()), S_OK);
        Trimmed(clip, 100, 131);
        Add(project, Trimmed(second, 132, 199), 82);
        QVERIFY(same(project));
        int index = -1;
        QVERIFY(Setting(second).GetKeyFrameIndex(90 - 32, 68, index) && index == 2);
        QVERIFY(Setting(second).GetKeyFrameIndex(10 - 32, 68, index) && index == 0);
        QVERIFY(!Setting(second).GetKeyFrameIndex(0, 68, index));
        // Saved and loaded, more than once.
        QVERIFY(Save(project, Path("keys.mlt")));
        const Node loaded = Load(Path("keys.mlt"));
        QVERIFY(same(loaded));
        QVERIFY(Save(loaded, Path("again.mlt")));
        QCOMPARE(Contents(Path("again.mlt")), Contents(Path("keys.mlt")));
        // An empty range, other rates and speeds, and back.
        Trimmed(clip, 5, 4);
        QCOMPARE(keys.GetKeyFrameCount(), 3);
        project->SetRenderFrameRate({50, 1});
        project->SetRenderFrameRate({25, 1});
        NLEComPtr<INLEProperties> bag;
        clip->GetProperties(bag.put());
        bag->SetRational(NLEKey::Speed::kScale, {2, 1});
        bag->SetInt(NLEKey::Speed::kEnabled, 1);
        bag->SetInt(NLEKey::Speed::kEnabled, 0);
        Trimmed(clip, 100, 199);
        QVERIFY(keys.GetAllKeyFrameParams() == set);
        // Twice as fast is the same animation in half the time.
        bag->SetInt(NLEKey::Speed::kEnabled, 1);
        QVERIFY(keys.GetAllKeyFrameParams() == set);
        QCOMPARE(Frame(project, 65), before[1]);
        // A composite that grows.
        const Node group = provider->CreateVirtualTimeline(0);
        Add(group, Trimmed(Colour(Qt::blue), 0, 49));
        Setting grouped(group);
        grouped.AddKeyFrame({0.5});
        Add(group, Trimmed(Colour(Qt::blue), 0, 49), 50);
        Param moved;
        QVERIFY(grouped.GetKeyFrameParam(0, moved) && moved.time == 0.25);
    }

    void listOperations()
    {
        // Against a plain sorted list.
        const Node clip = Trimmed(Colour(Qt::red), 0, 9999);
        const auto keys = clip.query<INLEKeyFrameList>();
        std::map<double, double> model;
        std::mt19937 random(7);
        const auto number = [&](int limit) { return int(random() % unsigned(limit)); };
        for (int step = 0; step < 6000; ++step) {
            const Record record = {number(4000) / 4000.0, double(step), 0, 0, 1, 1, 1, 1};
            const int index = model.empty() ? 0 : number(int(model.size()));
            const auto chosen = model.empty() ? model.end() : std::next(model.begin(), index);
            int found = -1;
            if (step % 7 == 5) {
                QCOMPARE(keys->DeleteKeyFrame(index), S_OK);
                model.erase(chosen);
            } else if (step % 7 == 6) {
                const bool taken = record.time != chosen->first && model.count(record.time) > 0;
                QCOMPARE(keys->SetKeyFrame(index, &record), taken ? E_INVALIDARG : S_OK);
                if (!taken) {
                    model.erase(chosen);
                    model[record.time] = step;
                }
            } else {
                QCOMPARE(keys->AddKeyFrame(&record, &found), S_OK);
                model[record.time] = step;
                const auto place = std::distance(model.begin(), model.find(record.time));
                QCOMPARE(found, int(place));
                QCOMPARE(keys->FindIndex(int(std::lround(record.time * 4000)), 4000, &found), S_OK);
                QCOMPARE(found, int(place));
            }
        }
        int index = 0;
        for (const auto& [time, angle] : model) {
            Record record = {};
            QCOMPARE(keys->GetKeyFrame(index++, &record), S_OK);
            QVERIFY(record.time == time && record.angle == angle);
        }
        QVERIFY(model.size() > 1500);
        QVERIFY(FAILED(keys->GetKeyFrame(index, nullptr)));
    }

    void badKeyFrames()
    {
        const Node clip = Colour(Qt::red);
        const auto list = clip.query<INLEKeyFrameList>();
        Setting keys(clip);
        QVERIFY(keys.GetKeyFrameParam(0.5) == Param());
        keys.AddKeyFrame({0.5});
        Record record = {};
        int index = 0;
        for (double Record::*const field :
             {&Record::time, &Record::angle, &Record::positionX, &Record::positionY,
              &Record::scaleWidth, &Record::scaleHeight, &Record::opacity}) {
            for (const double bad : {qQNaN(), qInf(), -qInf()}) {
                Record broken = {};
                broken.*field = bad;
                QCOMPARE(list->AddKeyFrame(&broken, &index), E_INVALIDARG);
                QCOMPARE(list->SetKeyFrame(0, &broken), E_INVALIDARG);
            }
        }
        for (const int none : {-1, 1, INT_MIN, INT_MAX}) {
            QCOMPARE(list->GetKeyFrame(none, &record), E_INVALIDARG);
            QCOMPARE(list->SetKeyFrame(none, &record), E_INVALIDARG);
            QCOMPARE(list->DeleteKeyFrame(none), E_INVALIDARG);
        }
        QCOMPARE(list->GetParamAt(qQNaN(), &record), E_INVALIDARG);
        QCOMPARE(list->FindIndex(0, 0, &index), E_INVALIDARG);
        QCOMPARE(list->AddKeyFrame(nullptr, &index), E_POINTER);
        QVERIFY(keys.GetAllKeyFrameParams() == QList<Param>{{0.5}});
        keys.ClearAllKeyFrame();
        QCOMPARE(keys.GetKeyFrameCount(), 0);
    }

    void contextReachesEveryRender()
    {
        const Node project = Project();
        Context context(project);
        const auto colour = [&](const Node& node) { return Frame(node, 0).pixelColor(200, 20); };
        QVERIFY(context.SetIntValue(NLEKey::Context::kContext_BackgroundColor, int(0xFF00FF00u)));
        Add(project, provider->CreateVirtualTimeline(0), 0);
        Add(project, Trimmed(Media(Path("clip.mkv")), 0, 9), 10);
        QCOMPARE(colour(project), QColor(Qt::green));
        const QImage full = Frame(project, 12);
        const QImage clipAlone = Frame(ClipAt(project, 1), 2);
        QCOMPARE(clipAlone, full);

        double scale = 0;
        QVERIFY(context.GetDoubleValue(NLEKey::Context::kContext_PreviewScale, scale));
        QCOMPARE(scale, 1.0);
        QVERIFY(context.SetDoubleValue(NLEKey::Context::kContext_PreviewScale, 0.1));
        QVERIFY(context.SetBoolValue(NLEKey::Context::kContext_SmoothScaling, false));
        QVERIFY(context.SetIntValue(L"my own", 5));
        Node clone;
        project->Clone(true, clone.put());
        QVERIFY(Save(project, Path("context.mlt")));
        for (const Node& node : {project, ClipAt(project, 1), clone, Load(Path("context.mlt"))}) {
            const QImage coarse = Frame(node, node == ClipAt(project, 1) ? 2 : 12);
            QCOMPARE(coarse.size(), full.size());
            QVERIFY(coarse != full);
            for (int x = 0; x < 320; ++x)
                QCOMPARE(coarse.pixel(x, 57), coarse.pixel(x / 10 * 10, 50));
        }
        int own = 0;
        QVERIFY(Context(clone).GetIntValue(L"my own", own) && own == 5);

        // Nothing is taken of a bag with one bad value.
        const wchar_t* const scaleKey = NLEKey::Context::kContext_PreviewScale;
        for (const double bad : {0.0, 1.5, qQNaN()})
            QVERIFY(!context.SetDoubleValues({{scaleKey, bad}, {L"other", 1}}));
        QVERIFY(!context.SetDoubleValues({{scaleKey, 0.5}, {L"other", qInf()}}));
        QVERIFY(!context.SetDoubleValue(NLEKey::Context::kContext_BackgroundColor, 1));
        QVERIFY(!context.GetDoubleValue(L"other", scale));
        QVERIFY(context.GetDoubleValue(scaleKey, scale) && scale == 0.1);
    }

    void thumbnailsLeaveTheClipAlone()
    {
        const Node clip = Trimmed(Media(Path("clip.mkv")), 5, 44);
        const Node project = ProjectWith(clip);
        std::atomic<bool> stop{false};
        std::atomic<int> wrong{0};
        const auto extractor = provider->CreateFrameExtractor();
        const auto picture = provider->CreateVideoFrame(320, 180);
        QVERIFY(picture->Prepare() == S_OK && extractor->Open(project.get(), 1) == S_OK);
        std::unique_ptr<QThread> render(QThread::create([&] {
            std::uint8_t* pixels = nullptr;
            for (int frame = 0; !stop; frame = (frame + 1) % 40) {
                const bool ok = extractor->Extract(frame, picture.get()) == S_OK &&
                                picture->GetData(&pixels) == S_OK;
                const QImage image(pixels, 320, 180, QImage::Format_ARGB32);
                wrong += !ok || ReadFrameNumber(image) != frame + 5;
            }
        }));
        render->start();
        NLETimeline timeline(clip, ExactType_Video, nullptr);
        for (int i = 0; i < 40; ++i) {
            const QImage media = timeline.GetThumbnailFromMediaInfo(i, 160, 90, true, i % 2);
            const QImage stream = timeline.GetThumbnailFromStream(i, 160, 90, true, i % 3);
            if (ReadFrameNumber(media) != i || ReadFrameNumber(stream) != i)
                ++wrong;
        }
        stop = true;
        render->wait();
        QCOMPARE(wrong.load(), 0);
        QVERIFY(timeline.GetRange() == qMakePair(5, 44) && timeline.GetParentTimeline() == project);
    }

    void relinkedThumbnails()
    {
        NLETimeline timeline(Trimmed(Media(Path("clip.mkv")), 5, 44), ExactType_Video, nullptr);
        const auto shown = [&](int frame) {
            return qMakePair(
                ReadFrameNumber(timeline.GetThumbnailFromMediaInfo(frame, 160, 90, true, true)),
                ReadFrameNumber(timeline.GetThumbnailFromStream(frame, 160, 90, false, true)));
        };
        using Numbers = QPair<int, int>;
        QVERIFY(QFile::copy(Path("clip.mkv"), Path("moved.mkv")));
        QVERIFY(timeline.Relink(Path("moved.mkv")));
        QCOMPARE(timeline.GetFilePath(), Path("moved.mkv"));
        QCOMPARE(shown(40), Numbers(40, 40));
        QVERIFY(!timeline.Relink(Path("noise.mkv")));
        QCOMPARE(shown(40), Numbers(40, 40));
        QVERIFY(timeline.Relink(Path("short.mp4"))); // 20 frames at 50 a second
        QVERIFY(timeline.GetRange() == qMakePair(5, 44));
        QCOMPARE(timeline.GetSourceSize(), QSizeF(160, 120));
        QCOMPARE(shown(8), Numbers(8, 16)); // frames of the file, frames of the clip
        QCOMPARE(shown(40), Numbers(-1, -1));
        QVERIFY(timeline.Relink(Path("sound.wav")));
        QVERIFY(timeline.GetThumbnailFromMediaInfo(8, 160, 90, true, true).isNull());
        QCOMPARE(timeline.GetThumbnailFromStream(8, 16, 9, true, true).pixel(8, 4), 0u);
        QVERIFY(timeline.Relink(Path("clip.mkv")));
        QCOMPARE(shown(8), Numbers(8, 8));
    }

    void initTestCase()
    {
        TestClip clip;
        QCOMPARE(MakeTestClip(Path("clip.mkv"), clip), QString());
        clip.size = {160, 120};
        clip.frames = 20;
        clip.rateNum = 50;
        QCOMPARE(MakeTestClip(Path("short.mp4"), clip), QString());
        clip.codec.clear();
        clip.audioCodec = "pcm_s16le";
        QCOMPARE(MakeTestClip(Path("sound.wav"), clip), QString());
        QFile noise(Path("noise.mkv"));
        QVERIFY(noise.open(QIODevice::WriteOnly) && noise.write(QByteArray(5000, 'x')) == 5000);
    }
};

QTEST_MAIN(tst_EngineKeys)
#include "tst_engine_keys.moc"
