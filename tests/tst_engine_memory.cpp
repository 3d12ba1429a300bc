// SPDX-License-Identifier: LGPL-2.1-or-later
// The open engine when memory is out: whatever allocation fails, no call throws into its caller.
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLEMixerSetting.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/FailingMemory.h"

Q_DECLARE_METATYPE(std::function<HRESULT()>)

class tst_EngineMemory : public QObject, private EngineFixture
{
    Q_OBJECT

    using Call = std::function<HRESULT()>;

    const QString m_media = Path("clip.mp4");
    const std::wstring m_mediaName = m_media.toStdWString();
    const std::wstring m_document = Path("saved.mlt").toStdWString();
    const std::wstring m_film = Path("film.avi").toStdWString();
    const std::wstring m_cache = Path("cache").toStdWString();
    const std::wstring m_long = std::wstring(1000, L'x');
    NLEComPtr<INLEFactory> m_factory;
    NLEComPtr<INLETimelineFactory> m_nodes;

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 5;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(m_media, clip), QString());
        m_factory = Factory();
        QVERIFY(m_factory);
        QCOMPARE(m_factory->GetTimelineFactory(m_nodes.put()), S_OK);
    }

    void cleanupTestCase()
    {
        m_nodes.reset();
        m_factory.reset();
    }

    void noCallThrows_data()
    {
        QTest::addColumn<Call>("call");
        const auto row = [](const char* name, Call call) { QTest::newRow(name) << call; };
        const Node project = Project();
        const Node clip = Media(m_media);
        Add(project, clip);
        Add(project, Colour(Qt::red), 2, 1);
        Save(project, Path("saved.mlt"));
        const auto bag = BagOf(clip);
        const auto keys = clip.query<INLEKeyFrameList>();
        const auto sound = clip.query<INLEAudioStreamProcess>();

        row("the root factory", [] {
            NLEComPtr<IUnknown> factory;
            CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                           INLEFactory::Iid, factory.putVoid());
            return factory ? S_OK : E_OUTOFMEMORY;
        });
        row("ten minutes of sound", [this] {
            NLEComPtr<INLEAudioFrame> frame;
            return m_factory->CreateAudioFrame(600 * kSampleRate, frame.put());
        });
        row("a codec and its names", [this] {
            NLEComPtr<INLECodec> codec;
            wchar_t name[100];
            const HRESULT made = m_factory->CreateCodecFromFile(m_mediaName.c_str(), codec.put());
            return FAILED(made) ? made : codec->GetContainerName(name, 100);
        });
        row("a media clip", [this] {
            Node node;
            return m_nodes->CreateMedia(m_mediaName.c_str(), node.put());
        });
        row("a text clip", [this] {
            Node node;
            return m_nodes->CreateTipText(m_long.c_str(), L"family", node.put());
        });
        row("a virtual timeline", [this] {
            Node node;
            return m_nodes->CreateVirtual(1234567890, node.put());
        });
        row("a text in a bag", [=] { return bag->SetString(m_long.c_str(), m_long.c_str()); });
        row("a range that follows the speed", [=] {
            NLERange range;
            return clip->GetTotalRange(&range);
        });
        row("adding a clip", [=] {
            const Node added = Colour(Qt::blue);
            return !added ? E_OUTOFMEMORY : Add(project, added);
        });
        row("walking the clips", [=] {
            NLEComPtr<INLETimelineEnumerator> clips;
            return project.query<INLETimelineCompositeEx>()->GetEnumerator(1, 1, clips.put());
        });
        row("a deep clone", [=] {
            Node copy;
            return project->Clone(true, copy.put());
        });
        row("the context", [=] { return project.query<INLEBasin>()->TakeProperties(bag.get()); });
        row("key frames", [=] {
            NLEKeyFrameRecord record = {};
            int index = 0;
            keys->DeleteAll();
            const HRESULT first = keys->AddKeyFrame(&record, &index);
            record.time = 0.5;
            return FAILED(first) ? first : keys->SetKeyFrame(0, &record);
        });
        row("a volume curve", [=] {
            NLEComPtr<INLEKeyFrameParam> curve;
            const HRESULT made = sound->GetVolumeKeyFrameParam(curve.put());
            return FAILED(made) ? made : curve->SetPoint(1, 1);
        });
        row("an equaliser's name", [=] { return sound->SetEqualizerName(m_long.c_str()); });
        row("a mixer strip", [=] {
            const tagMixerParam strip = {};
            return project.query<INLEMixerSetting>()->SetParam(0, &strip);
        });
        row("saving", [=] {
            const auto document = provider->CreateDocumentSerialize();
            return !document ? E_OUTOFMEMORY : document->Save(project.get(), m_document.c_str());
        });
        row("loading", [=] {
            Node node;
            const auto document = provider->CreateDocumentSerialize();
            return !document ? E_OUTOFMEMORY : document->Load(m_document.c_str(), node.put());
        });
        row("a frame and its sound", [=] {
            const auto extractor = provider->CreateFrameExtractor();
            const auto picture = provider->CreateVideoFrame(64, 36);
            const auto samples = provider->CreateAudioFrame(100);
            if (!extractor || !picture || !samples || picture->Prepare() != S_OK)
                return E_OUTOFMEMORY;
            const HRESULT opened = extractor->Open(project.get(), NLEOpen_Render);
            const HRESULT shown = extractor->Extract(0, picture.get());
            const HRESULT played = extractor->ExtractAudio(0, samples.get());
            return FAILED(opened) ? opened : FAILED(shown) ? shown : played;
        });
        row("a thumbnail and an envelope", [=] {
            NLEComPtr<INLEMediaInfo> info;
            NLEComPtr<INLEPicture> picture;
            clip.query<INLETimelineSource>()->GetMediaInfo(info.put());
            const auto thumbnails = provider->CreateThumbnailExtractor();
            const auto waves = provider->CreateWaveExtractor();
            if (!info || !thumbnails || !waves || FAILED(thumbnails->SetSource(info.get(), 0)) ||
                FAILED(waves->SetSource(info.get(), 1)))
                return E_OUTOFMEMORY;
            float minimum = 0;
            float maximum = 0;
            const HRESULT shown = thumbnails->Extract(0, {64, 36}, picture.put());
            const HRESULT read = waves->Extract(0, 0.1, 1, &minimum, &maximum);
            return FAILED(shown) ? shown : read;
        });
        row("writing a film", [=] {
            const auto encoder = provider->CreateMediaEncoder();
            if (!encoder)
                return E_OUTOFMEMORY;
            const HRESULT opened = encoder->Open(clip.get(), m_film.c_str(), nullptr);
            return FAILED(opened) ? opened : encoder->Encode(nullptr, nullptr);
        });
        row("the background cache", [=] {
            NLEComPtr<INLEBackgroundCache> cache;
            project->GetInterface(INLEBackgroundCache::Iid, cache.putVoid(), 0, 0);
            const NLESize size = {64, 36};
            const HRESULT set =
                cache ? cache->SetCacheFolder(m_cache.c_str(), 100, 1) : E_OUTOFMEMORY;
            const HRESULT deleted = FAILED(set) ? set : cache->DeleteCache(true);
            const HRESULT started = FAILED(deleted) ? deleted : cache->Start(&size, nullptr, this);
            const HRESULT updated = FAILED(started) ? started : cache->Update();
            if (FAILED(updated))
                return updated;
            cache.query<INLEBackgroundCacheStat>()->GetCount();
            return cache->Stop();
        });
    }

    void noCallThrows()
    {
        QFETCH(const Call, call);
        bool ranOut = true;
        long count = 0;
        int failures = 0;
        // Further and further into the call: every allocation at first, then some.
        for (; ranOut; count += 1 + count / 10) {
            const std::optional<HRESULT> result = FailingMemory::After(count, call, &ranOut);
            QVERIFY2(result, qPrintable(QString("threw after %1 allocations").arg(count)));
            QVERIFY2(ranOut || SUCCEEDED(*result),
                     qPrintable(QString("%1").arg(std::uint32_t(*result), 0, 16)));
            failures += FAILED(*result) ? 1 : 0;
        }
        QVERIFY(failures > 0);
    }
};

QTEST_MAIN(tst_EngineMemory)
#include "tst_engine_memory.moc"
