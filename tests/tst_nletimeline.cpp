// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedComposite.h"
#include "tests/support/ScriptedMedia.h"
#include "tests/support/ScriptedSession.h"

#include <QtTest>

using namespace Scripted;

namespace {

constexpr QRgb kRed = 0xFFFF0000;

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
    Script& m_script = Script::Get();
    NLEComPtr<Node> m_node;
    NLEComPtr<Source> m_source;
    NLEComPtr<MediaInfo> m_info;
    NLEComPtr<Picture> m_picture;
    NLEComPtr<VideoFrame> m_frame;

private Q_SLOTS:
    void init()
    {
        m_info = MakeCom<MediaInfo>("info");
        m_info->streams.resize(2);
        m_info->streams[0].sampleRate = 48000;
        m_info->streams[0].channels = 2;
        m_info->streams[0].sampleFormat = 8;
        m_info->streams[0].type = NLEStream_Audio;
        m_info->streams[1].type = NLEStream_Video;
        m_info->streams[1].width = 64;
        m_info->streams[1].height = 48;
        m_info->frameCount = 100;
        m_info->rate = {30, 1};
        m_source = MakeCom<Source>("source");
        m_source->filePath = "/ü.mov";
        m_source->videoStream = 1;
        m_source->audioStream = 0;
        m_node = MakeCom<Node>("node");
        m_node->Offer<INLETimelineSource>(m_source);
        m_picture = MakeCom<Picture>("picture");
        m_frame = MakeCom<VideoFrame>("frame");
        m_picture->image = m_frame->image = Filled({8, 6}, kRed);
        m_frame->validRect = {0, 1, 8, 4};

        m_script.results["source.GetMediaInfo"] = m_info;
        m_script.results["node.GetProperties"] = MakeCom<Properties>("bag");
        m_script.results["node.Clone"] = MakeCom<Node>("clone");
        m_script.results["factory.CreateThumbnailExtractor"] =
            MakeCom<ThumbnailExtractor>("thumbs");
        m_script.results["thumbs.Extract"] = m_picture;
        m_script.results["factory.CreateVideoFrame"] = m_frame;
        m_script.results["factory.CreateFrameExtractor"] = MakeCom<FrameExtractor>("frames");
    }

    void cleanup()
    {
        EndSession();
        QCOMPARE(References(m_node.get()), 1u);
        m_node.reset();
        m_source.reset();
        m_info.reset();
        m_picture.reset();
        m_frame.reset();
        QCOMPARE(m_script.liveObjects, QStringList());
    }

    void referencesBalance()
    {
        auto timeline = std::make_unique<NLETimeline>(m_node, ExactType_Video, nullptr);
        INLETimeline* base = nullptr;
        timeline->GetTimelineBase(&base);
        QCOMPARE(base, m_node.get());
        QCOMPARE(References(m_node.get()), 2u);
        QCOMPARE(timeline->GetSrc().get(), m_node.get());
        timeline->SetTimelineBase(m_node);
        QCOMPARE(References(m_node.get()), 2u);
        ULONG atSignal = 0;
        connect(timeline.get(), &NLETimeline::sigBeforeDelete,
                [&] { atSignal = References(m_node.get()); });
        timeline.reset();
        QCOMPARE(atSignal, 2u);
        QCOMPARE(References(m_node.get()), 1u);
        QCOMPARE(m_script.TakeCalls().filter("GetProperties").size(), 2);
    }

    void anotherNodeTakesThePlace()
    {
        NLETimeline replaced(m_node, ExactType_Video, nullptr);
        QCOMPARE(Text(replaced.GetPropW().get()), "bag");
        const auto other = MakeCom<Node>("other");
        replaced.SetTimelineBase(other);
        QCOMPARE(replaced.GetSrc().get(), other.get());
        QCOMPARE(References(m_node.get()), 1u);
        QVERIFY2(!replaced.GetPropW(), "the other node has no bag");
        QCOMPARE(m_script.TakeCalls().filter("GetProperties").join(' ').remove(".GetProperties()"),
                 "node other"); // asked once for each node that is set
    }

    void cloneKeepsTheType()
    {
        QObject parent;
        const auto* timeline = new NLETimeline(m_node, ExactType_Text, &parent);
        const std::unique_ptr<NLETimeline> clone(timeline->Clone());
        QVERIFY(m_script.TakeCalls().contains("node.Clone(true)"));
        QCOMPARE(Text(clone->GetSrc().get()), "clone");
        QCOMPARE(clone->GetExactType(), ExactType_Text);
        QVERIFY(!clone->parent());
        m_script.statuses["node.Clone"] = E_FAIL;
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
            m_script.statuses[operation] = S_FALSE; // any positive status is a success
        NLETimeline timeline(m_node, ExactType_Video, nullptr);
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
        m_info->kind = NLEMedia_Image;
        m_info->streams.removeFirst();
        NLETimeline timeline(m_node, ExactType_Video, nullptr);
        QVERIFY(timeline.HaveVideo());
        QVERIFY(!timeline.HaveAudio());
        QVERIFY(timeline.IsImage());
    }

    void longPathIsCutToItsBuffer()
    {
        m_source->filePath = QString(600, 'x');
        NLETimeline timeline(m_node, ExactType_Video, nullptr);
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
        m_script.statuses[failing] = E_FAIL;
        NLETimeline timeline(m_node, ExactType_Video, nullptr);
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
        m_node->Offer<INLEMediaRelink>(MakeCom<MediaRelink>("media"));
        NLETimeline timeline(m_node, ExactType_Video, nullptr);
        m_script.statuses["media.Relink"] = S_FALSE; // a success
        QVERIFY(timeline.Relink("/ü"));
        m_script.statuses["media.Relink"] = E_FAIL;
        QVERIFY(!timeline.Relink("/"));
        QCOMPARE(m_script.TakeCalls().filter("media."),
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
        m_script.statuses[failing] = E_FAIL;
        LogCapture log;
        NLETimeline timeline(m_node, ExactType_Video, nullptr);
        const QImage image =
            timeline.GetThumbnailFromMediaInfo(9, size.width(), size.height(), clone, true);
        QCOMPARE(image, works ? Filled(size, kRed) : QImage());
        QCOMPARE(image.format(), works ? QImage::Format_ARGB32 : QImage::Format_Invalid);
        QTEST(m_script.TakeCalls().filter("thumbs.").join(' ').remove("thumbs."), "calls");
        const QString line = "-WARN- [LogFailInfo]:  Extract Thumbnail failed: /ü.mov - "
                             "[CommonLib/NLEWraper/NLETimeline(512)]";
        QCOMPARE(log.Take(), works ? QStringList() : QStringList(line));
    }

    void thumbnailOwnsItsPixels()
    {
        NLETimeline timeline(m_node, ExactType_Video, nullptr);
        const QImage thumbnail = timeline.GetThumbnailFromMediaInfo(0, 8, 6, false, false);
        const QImage rendered = timeline.GetThumbnailFromStream(0, 8, 6, false, false);
        for (QImage* pixels : {&m_picture->image, &m_frame->image})
            memset(const_cast<uchar*>(pixels->constBits()), 0, size_t(pixels->sizeInBytes()));
        QCOMPARE(thumbnail, Filled({8, 6}, kRed));
        QCOMPARE(rendered, Filled({8, 4}, kRed));
        QVERIFY(m_script.TakeCalls().filter("Finish").isEmpty());
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
        m_script.statuses[failing] = E_FAIL;
        m_frame->validRect = {valid.x(), valid.y(), valid.width(), valid.height()};
        m_frame->image.setPixel(5, 4, 0xFF00FF00);
        LogCapture log;
        NLETimeline timeline(m_node, ExactType_Video, nullptr);
        const QImage image = timeline.GetThumbnailFromStream(9, 8, 6, true, true);
        QCOMPARE(image, size.isEmpty() ? Filled({8, 6}, 0)
                                       : m_frame->image.copy(QRect(valid.topLeft(), size)));
        if (!size.isEmpty())
            QCOMPARE(m_script.TakeCalls().filter("frames.").join(' ').remove("frames."),
                     "Open(clone, 1) Extract(9, frame) Finish()");
        QVERIFY(timeline.GetThumbnailFromStream(9, 0, -6, false, false).isNull());
        QCOMPARE(log.Take(), QStringList());
    }
};

QTEST_GUILESS_MAIN(tst_NLETimeline)
#include "tst_nletimeline.moc"
