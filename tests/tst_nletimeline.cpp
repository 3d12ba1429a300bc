// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedComposite.h"
#include "tests/support/ScriptedMedia.h"
#include "tests/support/ScriptedSession.h"

#include <QtTest>

using namespace Scripted;

namespace {

constexpr QRgb Red = 0xFFFF0000;

QImage Filled(const QSize& size, QRgb colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

} // namespace

/// A clip with a sound and a picture stream, its clone without media, and their red pictures.
class tst_NLETimeline : public QObject
{
    Q_OBJECT

private:
    Script& script = Script::Get();
    NLEComPtr<Node> node;
    NLEComPtr<Source> source;
    NLEComPtr<MediaInfo> info;
    NLEComPtr<Picture> picture;
    NLEComPtr<VideoFrame> frame;

private Q_SLOTS:
    void init()
    {
        info = MakeCom<MediaInfo>("info");
        info->streams.resize(2);
        info->streams[0].sampleRate = 48000;
        info->streams[0].channels = 2;
        info->streams[0].sampleFormat = 8;
        info->streams[0].type = NLEStream_Audio;
        info->streams[1].type = NLEStream_Video;
        info->streams[1].width = 64;
        info->streams[1].height = 48;
        info->frameCount = 100;
        info->rate = {30, 1};
        source = MakeCom<Source>("source");
        source->filePath = "/ü.mov";
        source->videoStream = 1;
        source->audioStream = 0;
        node = MakeCom<Node>("node");
        node->Offer<INLETimelineSource>(source);
        picture = MakeCom<Picture>("picture");
        frame = MakeCom<VideoFrame>("frame");
        picture->image = frame->image = Filled({8, 6}, Red);
        frame->validRect = {0, 1, 8, 4};

        script.results["source.GetMediaInfo"] = info;
        script.results["node.GetProperties"] = MakeCom<Properties>("bag");
        script.results["node.Clone"] = MakeCom<Node>("clone");
        script.results["factory.CreateThumbnailExtractor"] = MakeCom<ThumbnailExtractor>("thumbs");
        script.results["thumbs.Extract"] = picture;
        script.results["factory.CreateVideoFrame"] = frame;
        script.results["factory.CreateFrameExtractor"] = MakeCom<FrameExtractor>("frames");
    }

    void cleanup()
    {
        EndSession();
        QCOMPARE(References(node.get()), 1u);
        node.reset();
        source.reset();
        info.reset();
        picture.reset();
        frame.reset();
        QCOMPARE(script.liveObjects, QStringList());
    }

    void referencesBalance()
    {
        auto timeline = std::make_unique<NLETimeline>(node, ExactType_Video, nullptr);
        INLETimeline* base = nullptr;
        timeline->GetTimelineBase(&base);
        QCOMPARE(base, node.get());
        QCOMPARE(References(node.get()), 2u);
        QCOMPARE(timeline->GetSrc().get(), node.get());
        timeline->SetTimelineBase(node);
        QCOMPARE(References(node.get()), 2u);
        ULONG atSignal = 0;
        connect(timeline.get(), &NLETimeline::sigBeforeDelete,
                [&] { atSignal = References(node.get()); });
        timeline.reset();
        QCOMPARE(atSignal, 2u);
        QCOMPARE(References(node.get()), 1u);
        QCOMPARE(script.TakeCalls().filter("GetProperties").size(), 2);
    }

    void anotherNodeTakesThePlace()
    {
        NLETimeline replaced(node, ExactType_Video, nullptr);
        QCOMPARE(Text(replaced.GetPropW().get()), "bag");
        const auto other = MakeCom<Node>("other");
        replaced.SetTimelineBase(other);
        QCOMPARE(replaced.GetSrc().get(), other.get());
        QCOMPARE(References(node.get()), 1u);
        QVERIFY2(!replaced.GetPropW(), "the other node has no bag");
        QCOMPARE(script.TakeCalls().filter("GetProperties").join(' ').remove(".GetProperties()"),
                 "node other"); // asked once for each node that is set
    }

    void cloneKeepsTheType()
    {
        QObject parent;
        const auto* timeline = new NLETimeline(node, ExactType_Text, &parent);
        const std::unique_ptr<NLETimeline> clone(timeline->Clone());
        QVERIFY(script.TakeCalls().contains("node.Clone(true)"));
        QCOMPARE(Text(clone->GetSrc().get()), "clone");
        QCOMPARE(clone->GetExactType(), ExactType_Text);
        QVERIFY(!clone->parent());
        script.statuses["node.Clone"] = E_FAIL;
        QVERIFY(!timeline->Clone());
    }

    void nothingWrapped()
    {
        NLETimeline timeline(nullptr, ExactType_Unknown, nullptr);
        QVERIFY(!timeline.GetSrc());
        QVERIFY(!timeline.GetPropW());
        QVERIFY(!timeline.Clone());
        QVERIFY(!timeline.HaveVideo());
        QVERIFY(!timeline.HaveAudio());
        QVERIFY(!timeline.IsImage());
        QVERIFY(!timeline.Relink("/"));
        QCOMPARE(timeline.GetSourceSize(), QSizeF(0, 0));
        unsigned int count = 7;
        float rate = 8;
        timeline.GetMediaFrameCount(count, rate);
        QCOMPARE(count, 7u);
        QCOMPARE(rate, 8.f);
    }

    void thumbnailOfNothing_data()
    {
        QTest::addColumn<bool>("clone");
        QTest::newRow("of itself") << false;
        QTest::newRow("of a clone") << true;
    }

    void thumbnailOfNothing()
    {
        QFETCH(bool, clone);
        LogCapture log;
        NLETimeline timeline(nullptr, ExactType_Unknown, nullptr);
        QCOMPARE(timeline.GetThumbnailFromStream(0, 8, 6, clone, true), QImage());
        QCOMPARE(timeline.GetThumbnailFromMediaInfo(0, 8, 6, clone, true), QImage());
        QCOMPARE(log.Take().filter("Extract Thumbnail failed:  - ").size(), 1);
    }

    void sourceFacts()
    {
        for (const char* operation :
             {"source.GetVideoStreamIndex", "source.GetMediaInfo", "info.GetStream"})
            script.statuses[operation] = S_FALSE; // any positive status is a success
        NLETimeline timeline(node, ExactType_Video, nullptr);
        QCOMPARE(timeline.GetFilePath(), "/ü.mov");
        QCOMPARE(timeline.GetSourceSize(), QSizeF(64, 48));
        unsigned int count = 0;
        float rate = 0;
        timeline.GetMediaFrameCount(count, rate);
        QCOMPARE(count, 100u);
        QCOMPARE(rate, 30.f);
        QVERIFY(timeline.HaveVideo());
        QVERIFY(timeline.HaveAudio());
        QVERIFY(!timeline.IsImage());
    }

    void imageHasNoSound()
    {
        info->kind = NLEMedia_Image;
        info->streams.removeFirst();
        NLETimeline timeline(node, ExactType_Video, nullptr);
        QVERIFY(timeline.HaveVideo());
        QVERIFY(!timeline.HaveAudio());
        QVERIFY(timeline.IsImage());
    }

    void longPathIsCutToItsBuffer()
    {
        source->filePath = QString(600, 'x');
        NLETimeline timeline(node, ExactType_Video, nullptr);
        QCOMPARE(timeline.GetFilePath(), QString(511, 'x'));
    }

    void sourceFactsThatFail_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<float>("rate");
        QTest::addColumn<QString>("profile");
        const auto row = [](const char* failing, QSizeF size, float rate, const char* profile) {
            QTest::newRow(failing) << failing << size << rate << profile;
        };
        row("", {64, 48}, 30, "64x48 30/1 48000 2 8");
        row("source.GetMediaInfo", {0, 0}, 25, "1x2 3/4 5 6 7");
        row("source.GetVideoStreamIndex", {0, 0}, 30, "1x2 30/1 48000 2 8");
        row("source.GetAudioStreamIndex", {64, 48}, 30, "64x48 30/1 5 6 7");
        row("info.GetStream", {0, 0}, 30, "1x2 30/1 5 6 7");
        row("info.GetFrameCountAndRate", {64, 48}, 25, "64x48 0/1 48000 2 8");
    }

    void sourceFactsThatFail()
    {
        QFETCH(QString, failing);
        script.statuses[failing] = E_FAIL;
        NLETimeline timeline(node, ExactType_Video, nullptr);
        QTEST(timeline.GetSourceSize(), "size");
        QTEST(timeline.GetSourceFramerate(), "rate");
        tagNLEProjectProfile p{{1, 2}, {3, 4}, 5, 6, 7};
        timeline.GetSourceAVProfile(&p);
        timeline.GetSourceAVProfile(nullptr);
        const QStringList sound{Text(p.sampleRate), Text(p.channels), Text(p.sampleFormat)};
        QTEST(Text(p.frameSize) + ' ' + Text(p.frameRate) + ' ' + sound.join(' '), "profile");
    }

    void relink()
    {
        node->Offer<INLEMediaRelink>(MakeCom<MediaRelink>("media"));
        NLETimeline timeline(node, ExactType_Video, nullptr);
        script.statuses["media.Relink"] = S_FALSE; // a success
        QVERIFY(timeline.Relink("/ü"));
        script.statuses["media.Relink"] = E_FAIL;
        QVERIFY(!timeline.Relink("/"));
        QCOMPARE(script.TakeCalls().filter("media."),
                 QStringList({"media.Relink(/ü, 0)", "media.Reload()", "media.Relink(/, 0)"}));
    }

    void thumbnail_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("failing");
        QTest::addColumn<bool>("clone");
        QTest::addColumn<QString>("calls");
        const auto row = [](const char* title, QSize size, bool clone, QString failing,
                            QString calls) {
            QTest::newRow(title) << size << failing << clone << calls;
        };
        const QString asked = "SetSource(info, 1) Extract(9, %1) Finish()";
        row("scaled", {20, 3}, false, "", asked.arg("20x3"));
        row("clone without a stream, asked all the same", {4, 4}, true, "",
            "Extract(9, 4x4) Finish()");
        row("no clone", {4, 4}, true, "node.Clone", "");
        row("no extractor", {4, 4}, false, "factory.CreateThumbnailExtractor", "");
        row("no picture", {4, 4}, false, "thumbs.Extract", asked.arg("4x4"));
        row("no pixels", {4, 4}, false, "picture.GetData", asked.arg("4x4"));
        row("negative size", {4, -4}, false, "size", asked.arg("4x-4"));
    }

    void thumbnail()
    {
        QFETCH(QSize, size);
        QFETCH(QString, failing);
        QFETCH(bool, clone);
        const bool works = failing.isEmpty();
        script.statuses[failing] = E_FAIL;
        LogCapture log;
        NLETimeline timeline(node, ExactType_Video, nullptr);
        const QImage image =
            timeline.GetThumbnailFromMediaInfo(9, size.width(), size.height(), clone, true);
        QCOMPARE(image, works ? Filled(size, Red) : QImage());
        QCOMPARE(image.format(), works ? QImage::Format_ARGB32 : QImage::Format_Invalid);
        QTEST(script.TakeCalls().filter("thumbs.").join(' ').remove("thumbs."), "calls");
        const QString line = "-WARN- [LogFailInfo]:  Extract Thumbnail failed: /ü.mov - "
                             "[CommonLib/NLEWraper/NLETimeline(512)]";
        QCOMPARE(log.Take(), works ? QStringList() : QStringList(line));
    }

    void thumbnailOwnsItsPixels()
    {
        NLETimeline timeline(node, ExactType_Video, nullptr);
        const QImage thumbnail = timeline.GetThumbnailFromMediaInfo(0, 8, 6, false, false);
        const QImage rendered = timeline.GetThumbnailFromStream(0, 8, 6, false, false);
        for (QImage* pixels : {&picture->image, &frame->image})
            memset(const_cast<uchar*>(pixels->constBits()), 0, size_t(pixels->sizeInBytes()));
        QCOMPARE(thumbnail, Filled({8, 6}, Red));
        QCOMPARE(rendered, Filled({8, 4}, Red));
        QVERIFY(script.TakeCalls().filter("Finish").isEmpty());
    }

    void streamThumbnail_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::addColumn<QRect>("valid");
        QTest::addColumn<QSize>("size");
        const QRect valid(1, 2, 5, 3);
        QTest::newRow("works") << "" << valid << valid.size();
        QTest::newRow("rectangle cut to the frame") << "" << QRect(4, 4, 9, 9) << QSize(4, 2);
        QTest::newRow("empty rectangle") << "" << QRect() << QSize();
        for (const char* failing :
             {"factory.CreateVideoFrame", "factory.CreateFrameExtractor", "frame.Prepare",
              "frames.Open", "frames.Extract", "frame.GetValidRect", "frame.GetData"})
            QTest::newRow(failing) << failing << valid << QSize();
    }

    void streamThumbnail()
    {
        QFETCH(QString, failing);
        QFETCH(QRect, valid);
        QFETCH(QSize, size);
        script.statuses[failing] = E_FAIL;
        frame->validRect = {valid.x(), valid.y(), valid.width(), valid.height()};
        frame->image.setPixel(5, 4, 0xFF00FF00);
        LogCapture log;
        NLETimeline timeline(node, ExactType_Video, nullptr);
        const QImage image = timeline.GetThumbnailFromStream(9, 8, 6, true, true);
        QCOMPARE(image, size.isEmpty() ? Filled({8, 6}, 0)
                                       : frame->image.copy(QRect(valid.topLeft(), size)));
        if (!size.isEmpty())
            QCOMPARE(script.TakeCalls().filter("frames.").join(' ').remove("frames."),
                     "Open(clone, 1) Extract(9, frame) Finish()");
        QVERIFY(timeline.GetThumbnailFromStream(9, 0, -6, false, false).isNull());
        QCOMPARE(log.Take(), QStringList());
    }
};

QTEST_GUILESS_MAIN(tst_NLETimeline)
#include "tst_nletimeline.moc"
