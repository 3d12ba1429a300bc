// SPDX-License-Identifier: LGPL-2.1-or-later
// Video frames in memory of an OpenCL device, seen from the device and from the host.
#include "EngineApi/INLEReasons.h"
#include "tests/support/EngineFixture.h"

#include <QLibrary>

#include <thread>

Q_DECLARE_METATYPE(Node)

class tst_OpenCLFrames : public QObject, private EngineFixture
{
    Q_OBJECT

    /// A frame from both of its sides.
    struct DeviceFrame
    {
        NLEComPtr<INLEVideoFrame> host;
        NLEComPtr<INLEOpenCLFrame> device;
    };

    NLEComPtr<INLEFactory> m_engine;
    QString m_film = Path("film.mp4");

    DeviceFrame NewFrame(const QSize& size) const
    {
        DeviceFrame frame{provider->CreateVideoFrameOpencl(size.width(), size.height()), {}};
        frame.device = frame.host.query<INLEOpenCLFrame>();
        return frame;
    }
    /// Has the device read (clEnqueueReadBuffer) or write all of a frame's pixels.
    bool Transfer(const char* function, const DeviceFrame& frame, QImage& image) const
    {
        using Call =
            std::int32_t (*)(void* queue, void* buffer, std::uint32_t waits, std::size_t offset,
                             std::size_t size, void* bytes, std::uint32_t, const void*, void*);
        const auto call = reinterpret_cast<Call>(QLibrary::resolve("OpenCL", 1, function));
        void* queue = nullptr;
        void* buffer = nullptr;
        return frame.device->GetQueue(&queue) == S_OK && frame.device->GetBuffer(&buffer) == S_OK &&
               call(queue, buffer, 1, 0, std::size_t(image.sizeInBytes()), image.bits(), 0, nullptr,
                    nullptr) == 0;
    }
    /// The pixels as the device has them; null when it does not give them.
    QImage OnDevice(const DeviceFrame& frame) const
    {
        NLESize size = {};
        frame.host->GetSize(&size);
        QImage image(size.width, size.height, QImage::Format_ARGB32);
        return Transfer("clEnqueueReadBuffer", frame, image) ? image : QImage();
    }
    Node Composite() const
    {
        Node project = ProjectWith(Media(m_film));
        Add(project, Colour(QColor(0, 0, 255, 128), QSize(100, 60)), 0, 1);
        return project;
    }

private slots:
    void initTestCase()
    {
        m_engine = Factory();
        QVERIFY(m_engine);
        if (!provider->CreateVideoFrameOpencl(2, 2)) {
            NLEComPtr<INLEReasons> reasons;
            wchar_t text[600] = L"";
            m_engine->GetReasons(reasons.put());
            reasons->GetText(text, 600);
            QSKIP(qPrintable(QString::fromWCharArray(text)));
        }
        QCOMPARE(MakeTestClip(m_film, TestClip()), QString());
        QVERIFY(PaintFrameNumber(5, QSize(301, 97)).save(Path("still.png")));
    }
    void cleanupTestCase() { m_engine.reset(); }

    void pixelsAreThoseOfSystemMemory_data()
    {
        QTest::addColumn<Node>("node");
        QTest::addColumn<int>("frame");
        QTest::addColumn<QSize>("size");
        QTest::newRow("a still") << Media(Path("still.png")) << 0 << QSize(301, 97);
        QTest::newRow("a still with margins") << Media(Path("still.png")) << 0 << QSize(64, 200);
        QTest::newRow("a film") << Media(m_film) << 17 << QSize(320, 180);
        QTest::newRow("a film, odd sides") << Media(m_film) << 49 << QSize(333, 187);
        QTest::newRow("layers") << Composite() << 3 << QSize(320, 180);
        QTest::newRow("layers, larger") << Composite() << 3 << QSize(1920, 1080);
        QTest::newRow("half transparent") << Colour(QColor(9, 99, 200, 77)) << 0 << QSize(160, 90);
        QTest::newRow("one pixel") << Colour(Qt::green) << 0 << QSize(1, 1);
    }
    void pixelsAreThoseOfSystemMemory()
    {
        QFETCH(Node, node);
        QFETCH(int, frame);
        QFETCH(QSize, size);
        const QImage expected = Frame(node, frame, NLEOpen_Render, size);
        QVERIFY(!expected.isNull());
        const DeviceFrame filled = NewFrame(size);
        QCOMPARE(filled.host->Prepare(), S_OK);
        QVERIFY(OnDevice(filled) != expected);
        const auto extractor = provider->CreateFrameExtractor();
        QCOMPARE(extractor->Open(node.get(), NLEOpen_Render), S_OK);
        QCOMPARE(extractor->Extract(frame, filled.host.get()), S_OK);
        QCOMPARE(OnDevice(filled), expected);
        std::uint8_t* pixels = nullptr;
        QCOMPARE(filled.host->GetData(&pixels), S_OK);
        QCOMPARE(QImage(pixels, size.width(), size.height(), QImage::Format_ARGB32), expected);
        QCOMPARE(
            extractor.query<INLEFrameScrubber>()->ExtractNear(frame, filled.host.get(), nullptr),
            S_OK);
        QCOMPARE(OnDevice(filled), expected);
    }

    void isInOneHandAtATime()
    {
        const DeviceFrame frame = NewFrame(QSize(8, 4));
        void* buffer = nullptr;
        std::uint8_t* pixels = nullptr;
        std::uint8_t* again = nullptr;
        QCOMPARE(frame.device->GetBuffer(&buffer), E_FAIL);
        QCOMPARE(frame.host->GetData(&pixels), E_FAIL);
        QCOMPARE(frame.host->Prepare(), S_OK);
        QCOMPARE(frame.device->Unmap(), S_FALSE);
        QCOMPARE(frame.device->Map(0, &pixels), E_INVALIDARG);
        QCOMPARE(frame.host->GetData(&pixels), S_OK);
        QVERIFY(std::all_of(pixels, pixels + 128, [](int value) { return value == 0; }));
        std::fill_n(pixels, 128, std::uint8_t(7));
        QCOMPARE(frame.host->GetData(&again), S_OK);
        QCOMPARE(again, pixels);
        QCOMPARE(OnDevice(frame).pixel(7, 3), 0x07070707u);
        QCOMPARE(frame.device->Unmap(), S_FALSE);

        QImage other(8, 4, QImage::Format_ARGB32);
        other.fill(0x12345678);
        QVERIFY(Transfer("clEnqueueWriteBuffer", frame, other));
        QCOMPARE(frame.device->Map(NLEMap_Read, &pixels), S_OK);
        QCOMPARE(QImage(pixels, 8, 4, QImage::Format_ARGB32), other);
    }

    void framesOfAllThreadsShareOneContext()
    {
        m_engine->Shutdown(0);
        const Node project = Composite();
        const QImage expected = Frame(project, 2);
        std::array<DeviceFrame, 4> frames;
        std::array<std::thread, 4> threads;
        for (std::size_t i = 0; i < 4; ++i) {
            threads[i] = std::thread([this, &project, &frame = frames[i]] {
                frame = NewFrame(QSize(320, 180));
                const auto extractor = provider->CreateFrameExtractor();
                extractor->Open(project.get(), NLEOpen_Render);
                frame.host->Prepare();
                extractor->Extract(2, frame.host.get());
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        void* first = nullptr;
        QCOMPARE(frames[0].device->GetContext(&first), S_OK);
        for (const DeviceFrame& frame : frames) {
            void* context = nullptr;
            QCOMPARE(frame.device->GetContext(&context), S_OK);
            QCOMPARE(context, first);
            QCOMPARE(OnDevice(frame), expected);
        }
        // What is held stays, and what comes later has a device again.
        QCOMPARE(m_engine->Shutdown(0), S_OK);
        QCOMPARE(OnDevice(frames[0]), expected);
        QCOMPARE(NewFrame(QSize(2, 2)).host->Prepare(), S_OK);
    }
};

QTEST_MAIN(tst_OpenCLFrames)
#include "tst_opencl_frames.moc"
