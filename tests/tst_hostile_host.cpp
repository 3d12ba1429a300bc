// SPDX-License-Identifier: LGPL-2.1-or-later
// Hosts that hold the engine's interfaces wrongly: nulls for all that a call takes, on objects that
// have nothing yet, after what they came from has gone. Each call is refused, and nothing crashes.
// The library gives what stands for nothing.
#include "CommonLib/BaseStateButton.h"
#include "CommonLib/IDragValueChangedHelper.h"
#include "CommonLib/NLEWraper/FPreViewRenderHelper.h"
#include "CommonLib/NLEWraper/FTimelineTransformHelper.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/VideoKeyFrameSetting.h"
#include "CommonLib/PureSlider.h"
#include "CommonLib/TimelineRuler.h"
#include "CommonLib/externalapi/FramelessShadow.h"
#include "CommonLib/externalapi/PixelRatio.h"
#include "CommonLib/externalapi/TimelinePosition.h"
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLEEffects.h"
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLELevels.h"
#include "EngineApi/INLELoudness.h"
#include "EngineApi/INLEMarkers.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLEMixerSetting.h"
#include "EngineApi/INLEPlayer.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLEProxies.h"
#include "EngineApi/INLEReasons.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLESystemFile.h"
#include "EngineApi/INLETimeline.h"
#include "EngineApi/INLETitle.h"
#include "EngineApi/INLETransform.h"
#include "tests/support/EngineFixture.h"

#include <atomic>
#include <functional>
#include <thread>
#include <tuple>

namespace {

constexpr HRESULT kNoObject = 0x0badf00d; // success, so that the row fails

NLEComPtr<INLEEditing> EditingOf(const Node& composite)
{
    NLEComPtr<INLEEditing> editing;
    EngineFixture::Factory()->CreateEditing(composite.get(), editing.put());
    return editing;
}

/// Objects of all kinds, none of them used before.
class Objects
{
public:
    Objects(const EngineFixture& engine, const QString& film)
    {
        const auto factory = engine.Factory();
        const auto nodes = engine.Nodes();
        Take(factory);
        Take(nodes);
        Node project = engine.Project();
        Node clip = engine.Colour(Qt::red);
        engine.Add(project, clip);
        Node title;
        nodes->CreateTitle(L"A", title.put());
        Node loudness;
        nodes->CreateAudioFilter(L"loudness", loudness.put());
        for (const Node& node : {project, clip, title, EngineFixture::Effect("drop-shadow"),
                                 loudness, EngineFixture::Transition("dissolve")})
            Take(node);
        Make(&INLEFactory::GetFontLibrary);
        Make(&INLEFactory::GetSystemConfig);
        Make(&INLEFactory::CreateDocumentSerialize);
        Make(&INLEFactory::CreateFrameExtractor);
        Make(&INLEFactory::CreateThumbnailExtractor);
        Make(&INLEFactory::CreateWaveExtractor);
        Make(&INLEFactory::CreateSceneSegment);
        Make(&INLEFactory::CreateMediaEncoder);
        Make(&INLEFactory::CreateProperties);
        Make(&INLEFactory::CreateProxyMaker);
        Make(&INLEFactory::CreatePlayer);
        Make(&INLEFactory::GetReasons);
        Take(EditingOf(project));
        NLEComPtr<INLETimelineEnumerator> clips;
        project.query<INLETimelineComposite>()->GetEnumerator(1, clips.put());
        Take(clips);
        const Node media = engine.Media(film);
        Take(media);
        NLEComPtr<INLEKeyFrameParam> curve;
        EngineFixture::Facet<INLEAudioStreamProcess>(media)->GetVolumeKeyFrameParam(curve.put());
        Take(curve);
        NLEComPtr<INLEMarkBook> marks;
        factory->CreateMarkBook(film.toStdWString().c_str(), marks.put());
        Take(marks);
        const auto codec = engine.provider->CreateCodecFromFile(film);
        NLEComPtr<INLEMediaInfo> info;
        codec->GetMediaInfo(info.put());
        Take(codec);
        Take(info);
        Take(Find<INLEBackgroundCache>());
        Take(engine.provider->CreateVideoFrame(16, 16));
        Take(engine.provider->CreateAudioFrame(16));
    }
    template <typename Interface>
    NLEComPtr<Interface> Find() const
    {
        for (const NLEComPtr<IUnknown>& object : m_objects) {
            NLEComPtr<Interface> found = object.query<Interface>();
            const auto node = object.query<INLETimeline>();
            if (!found && node)
                node->GetInterface(Interface::Iid, found.putVoid(), 0, 0);
            if (found)
                return found;
        }
        return nullptr;
    }

private:
    template <typename Interface>
    void Take(const NLEComPtr<Interface>& object)
    {
        m_objects.push_back(object.template query<IUnknown>());
    }
    template <typename Interface>
    void Make(HRESULT (INLEFactory::*make)(Interface**))
    {
        NLEComPtr<Interface> object;
        (EngineFixture::Factory().get()->*make)(object.put());
        Take(object);
    }

    std::vector<NLEComPtr<IUnknown>> m_objects;
};

using Call = HRESULT (*)(const EngineFixture&, const QString& film);

/// Zero for all that the call takes, beside what the object came from, and on another thread after
/// that has gone and the engine has closed what it keeps open.
template <auto Method>
struct NullCall;
template <typename Interface, typename... Arguments, HRESULT (Interface::*Method)(Arguments...)>
struct NullCall<Method>
{
    static HRESULT Make(const EngineFixture& engine, const QString& film)
    {
        auto objects = std::make_unique<Objects>(engine, film);
        const NLEComPtr<Interface> object = objects->Find<Interface>();
        if (!object)
            return kNoObject;
        const HRESULT result = (object.get()->*Method)(std::decay_t<Arguments>()...);
        objects.reset();
        EngineFixture::Factory()->Shutdown(0);
        std::thread([&] { (object.get()->*Method)(std::decay_t<Arguments>()...); }).join();
        return result;
    }
};

/// What a host does at the first call of its own; on another thread after what began it returned.
class FirstCall
{
public:
    explicit FirstCall(std::function<void()> action) : m_action(std::move(action)) {}

    /// For callbacks of any kind, which are given this object.
    template <typename Result, typename... Arguments>
    static Result Hear(Arguments... arguments)
    {
        const auto all = std::make_tuple(arguments...);
        static_cast<FirstCall*>(std::get<sizeof...(arguments) - 1>(all))->Happen();
        return Result();
    }
    HRESULT Await()
    {
        m_hasBegun = true;
        return QTest::qWaitFor([this] { return m_isOver.load(); }, kPatience) ? S_OK : E_FAIL;
    }

private:
    static constexpr int kPatience = 20000; // milliseconds

    void Happen()
    {
        while (!m_hasBegun && std::this_thread::get_id() != m_thread)
            std::this_thread::yield();
        if (m_action)
            std::exchange(m_action, nullptr)();
        m_isOver = true;
    }

    std::function<void()> m_action;
    const std::thread::id m_thread = std::this_thread::get_id();
    std::atomic<bool> m_hasBegun{false};
    std::atomic<bool> m_isOver{false};
};

/// The sound of a film, ready to be kept.
NLEComPtr<INLEWaveCache> WavesOf(const EngineFixture& engine, const QString& film)
{
    NLEComPtr<INLEMediaInfo> info;
    engine.provider->CreateCodecFromFile(film)->GetMediaInfo(info.put());
    const auto waves = engine.provider->CreateWaveExtractor();
    waves->SetSource(info.get(), 1);
    return waves.query<INLEWaveCache>();
}

} // namespace

using Check = bool (*)(const EngineFixture&);

Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(Check)

class tst_HostileHost : public QObject
{
    Q_OBJECT

    std::unique_ptr<EngineFixture> m_engine;
    QString m_film;

private Q_SLOTS:
    void initTestCase()
    {
        m_engine = std::make_unique<EngineFixture>();
        m_film = m_engine->Path("film.mp4");
        TestClip clip;
        clip.frames = 5;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(m_film, clip), QString());
    }
    void cleanupTestCase() { m_engine.reset(); }

    void nullsAreRefused_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<bool>("mayBe");
#define ROW_OF(INTERFACE, METHOD, MAY_BE)                                                          \
    QTest::newRow(#INTERFACE "::" #METHOD) << Call(&NullCall<&INTERFACE::METHOD>::Make) << (MAY_BE);
#define ROW(INTERFACE, METHOD) ROW_OF(INTERFACE, METHOD, false)
#define ROW_WHERE_NULL_SAYS_SOMETHING(INTERFACE, METHOD) ROW_OF(INTERFACE, METHOD, true)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEEditing, GetStepCounts)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEEncodeOptions, SetOptions)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLESceneProgress, SetProgress)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEWaveCache, SetCacheFolder)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLELevels, SetName)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEPlayer, SetListener)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEPlayer, SetSoundDevice)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEProxyMaker, SetFolder)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEProxyMaker, Cancel)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEReasons, GetLast)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEBackgroundCacheAsyncUpdate, SetUpdateCallback)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLELoudness, Cancel)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLELoudness, Apply)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEKeyFrameParam, SetPoint)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEKeyFrameParam, Clear)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEBackgroundCache, Stop)
        ROW(INLEBackgroundCache, DeleteCache)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEBackgroundCache, Update)
        ROW(INLEBackgroundCacheQualitySet, SetQuality)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEEditing, BeginStep)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEEditing, Undo)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEEditing, Redo)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEEditing, ForgetSteps)
        ROW(INLEEditing, Lift)
        ROW(INLEEditing, Extract)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEEditing, CloseGap)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEEditing, SetLevelLocked)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEFactory, Init)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEFactory, Shutdown)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEVideoFrame, Prepare)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEFrameExtractor, Finish)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEFrameScrubber, Interrupt)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEThumbnailExtractor, Finish)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEWaveExtractor, Finish)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEKeyFrameList, DeleteAll)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEKeyFrameStatus, SetStatus)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLELevels, SetFlags)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLELevels, SetHeight)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEMarkers, DeleteAll)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEPlayer, Close)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEPlayer, SetPictureSize)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEPlayer, SetVolume)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEPlayer, SetMute)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEPlayer, SetSoundOffset)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEPlayer, ResetClipping)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEReasons, Forget)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEAudioStreamProcess, SetPitch)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEAudioStreamProcess, SetVolume)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEAudioStreamProcess, SetFadeInRange)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEVideoStreamProcess, SetProxyEnabled)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLETimeline, SetLevel)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLETimeline, SetPosition)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLETimeline, SetEnabled)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLETimelineEnumerator, Next)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLETimelineSourceDecoder, SetGPUFirst)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEMediaRelink, Reload)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLERenderRegion, SetCurrent)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEColorClip, SetColor)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLEBlendSetting, SetAlpha)
        ROW_WHERE_NULL_SAYS_SOMETHING(INLETransform, SetRotation)
        ROW(INLELoudness, Measure)
        ROW(INLELoudness, GetResult)
        ROW(INLEMarkBook, GetMarkCount)
        ROW(INLEMarkBook, GetMark)
        ROW(INLEKeyFrameParam, GetCount)
        ROW(INLEKeyFrameParam, GetPoint)
        ROW(INLEEditing, EndStep)
        ROW(INLEEditing, RewindStep)
        ROW(INLEEditing, SetMostSteps)
        ROW(INLEEffects, MoveEffect)
        ROW(INLEKeyFrameList, DeleteKeyFrame)
        ROW(INLEMarkers, DeleteMarker)
        ROW(INLEPlayer, Refresh)
        ROW(INLEPlayer, Play)
        ROW(INLEPlayer, Pause)
        ROW(INLEPlayer, Seek)
        ROW(INLEPlayer, Step)
        ROW(INLEPlayer, Scrub)
        ROW(INLEPlayer, SetLoop)
        ROW(INLEProxyMaker, SetHeight)
        ROW(INLETimeline, SetRenderFrameRate)
        ROW(INLEBackgroundCache, SetCacheFolder)
        ROW(INLEBackgroundCache, Start)
        ROW(INLEBackgroundCacheStat, GetStat)
        ROW(INLEEditing, GetChanged)
        ROW(INLEEditing, Split)
        ROW(INLEEditing, Trim)
        ROW(INLEEditing, RippleTrim)
        ROW(INLEEditing, Roll)
        ROW(INLEEditing, Slip)
        ROW(INLEEditing, Slide)
        ROW(INLEEditing, Move)
        ROW(INLEEditing, Delete)
        ROW(INLEEditing, RippleDelete)
        ROW(INLEEditing, Place)
        ROW(INLEEditing, AddTransition)
        ROW(INLEEditing, Copy)
        ROW(INLEEditing, Paste)
        ROW(INLEEditing, Group)
        ROW(INLEEditing, Ungroup)
        ROW(INLEEditing, GetGroup)
        ROW(INLEEditing, GetLevelLocked)
        ROW(INLEEditing, GetClipAt)
        ROW(INLEEditing, GetNeighbour)
        ROW(INLEEditing, Snap)
        ROW(INLEParameters, GetParameterCount)
        ROW(INLEParameters, GetParameter)
        ROW(INLEParameters, GetParameterTitle)
        ROW(INLEParameters, GetChoice)
        ROW(INLEParameters, GetChoiceTitle)
        ROW(INLEParameters, GetNumber)
        ROW(INLEParameters, SetNumber)
        ROW(INLEParameters, GetText)
        ROW(INLEParameters, SetText)
        ROW(INLEParameters, GetKeyFrameCount)
        ROW(INLEParameters, GetKeyFrame)
        ROW(INLEParameters, PutKeyFrame)
        ROW(INLEParameters, DeleteKeyFrame)
        ROW(INLEParameters, GetNumberAt)
        ROW(INLEEffects, GetCount)
        ROW(INLEEffects, GetEffect)
        ROW(INLEEffects, AddEffect)
        ROW(INLEEffects, RemoveEffect)
        ROW(INLEEffectCatalog, GetCount)
        ROW(INLEEffectCatalog, GetName)
        ROW(INLEEffectCatalog, GetTitle)
        ROW(INLEEncodeCatalog, GetContainerCount)
        ROW(INLEEncodeCatalog, GetContainer)
        ROW(INLEEncodeCatalog, GetCodecCount)
        ROW(INLEEncodeCatalog, GetCodec)
        ROW(INLEEncodeCatalog, GetPresetCount)
        ROW(INLEEncodeCatalog, GetPresetName)
        ROW(INLEEncodeCatalog, GetPreset)
        ROW(INLEEncodeCatalog, Check)
        ROW(INLEEncodeCatalog, GetContainerTitle)
        ROW(INLEEncodeCatalog, GetCodecTitle)
        ROW(INLEEncodeCatalog, GetPresetTitle)
        ROW(INLEEncodeOptions, GetOptions)
        ROW(INLEFontLibrary, SetCacheFile)
        ROW(INLEFontLibrary, SetFontFolder)
        ROW(INLEFontLibrary, AddFontFolder)
        ROW(INLEFontLibrary, GetFontCount)
        ROW(INLEFontLibrary, GetFontName)
        ROW(INLETimelineFactory, GetDefaultProfile)
        ROW(INLETimelineFactory, CreateProject)
        ROW(INLETimelineFactory, CreateMedia)
        ROW(INLETimelineFactory, CreateFromTemplate)
        ROW(INLETimelineFactory, CreateAudioFilter)
        ROW(INLETimelineFactory, CreateColor)
        ROW(INLETimelineFactory, CreateTipText)
        ROW(INLETimelineFactory, CreateVirtual)
        ROW(INLETimelineFactory, CreateEffect)
        ROW(INLETimelineFactory, CreateTransition)
        ROW(INLETimelineFactory, CreateTitle)
        ROW(INLEDocumentSerialize, Save)
        ROW(INLEDocumentSerialize, Load)
        ROW(INLEDocumentReport, GetRemarkCount)
        ROW(INLEDocumentReport, GetRemark)
        ROW(INLEDocumentReport, GetRemarkTitle)
        ROW(INLESystemConfig, GetProperties)
        ROW(INLEBasin, FillProperties)
        ROW(INLEBasin, TakeProperties)
        ROW(INLEFactory, GetTimelineFactory)
        ROW(INLEFactory, GetFontLibrary)
        ROW(INLEFactory, GetSystemConfig)
        ROW(INLEFactory, CreateVideoFrame)
        ROW(INLEFactory, CreateAudioFrame)
        ROW(INLEFactory, CreateCodecFromFile)
        ROW(INLEFactory, CreateMarkBook)
        ROW(INLEFactory, CreateDocumentSerialize)
        ROW(INLEFactory, CreateFrameExtractor)
        ROW(INLEFactory, CreateThumbnailExtractor)
        ROW(INLEFactory, CreateWaveExtractor)
        ROW(INLEFactory, CreateSceneSegment)
        ROW(INLEFactory, CreateMediaEncoder)
        ROW(INLEFactory, CreateProperties)
        ROW(INLEFactory, CreateProxyMaker)
        ROW(INLEFactory, CreatePlayer)
        ROW(INLEFactory, GetReasons)
        ROW(INLEFactory, CreateEditing)
        ROW(INLEVideoFrame, GetSize)
        ROW(INLEVideoFrame, GetValidRect)
        ROW(INLEVideoFrame, SetValidRect)
        ROW(INLEVideoFrame, GetData)
        ROW(INLEVideoFrame, GetMemory)
        ROW(INLEAudioFrame, GetSampleCount)
        ROW(INLEAudioFrame, GetSampleRate)
        ROW(INLEAudioFrame, GetChannels)
        ROW(INLEAudioFrame, GetData)
        ROW(INLEFrameExtractor, Open)
        ROW(INLEFrameExtractor, Extract)
        ROW(INLEFrameExtractor, ExtractAudio)
        ROW(INLEFrameScrubber, ExtractNear)
        ROW(INLEThumbnailExtractor, SetSource)
        ROW(INLEThumbnailExtractor, Extract)
        ROW(INLEWaveExtractor, SetSource)
        ROW(INLEWaveExtractor, Extract)
        ROW(INLESceneSegment, Open)
        ROW(INLESceneSegment, Next)
        ROW(INLEWaveCache, IsCached)
        ROW(INLEWaveCache, Compute)
        ROW(INLEMediaEncoder, Open)
        ROW(INLEMediaEncoder, Encode)
        ROW(INLEKeyFrameList, GetCount)
        ROW(INLEKeyFrameList, GetKeyFrame)
        ROW(INLEKeyFrameList, SetKeyFrame)
        ROW(INLEKeyFrameList, AddKeyFrame)
        ROW(INLEKeyFrameList, GetParamAt)
        ROW(INLEKeyFrameList, FindIndex)
        ROW(INLEKeyFrameStatus, GetStatus)
        ROW(INLELevels, GetCount)
        ROW(INLELevels, GetFlags)
        ROW(INLELevels, GetName)
        ROW(INLELevels, GetHeight)
        ROW(INLEMarkers, GetCount)
        ROW(INLEMarkers, GetMarker)
        ROW(INLEMarkers, AddMarker)
        ROW(INLEMarkers, SetMarker)
        ROW(INLEMediaInfo, GetKind)
        ROW(INLEMediaInfo, GetStreamCount)
        ROW(INLEMediaInfo, GetStream)
        ROW(INLEMediaInfo, GetFrameCountAndRate)
        ROW(INLEMediaInfo, GetFilePath)
        ROW(INLECodec, GetMediaInfo)
        ROW(INLECodec, GetContainerName)
        ROW(INLECodec, GetCodecName)
        ROW(INLECodec, GetProfileName)
        ROW(INLEMixerSetting, GetParam)
        ROW(INLEMixerSetting, SetParam)
        ROW(INLEPlayer, Open)
        ROW(INLEPlayer, GetState)
        ROW(INLEPlayer, GetPosition)
        ROW(INLEPlayer, GetRate)
        ROW(INLEPlayer, GetLength)
        ROW(INLEPlayer, GetVolume)
        ROW(INLEPlayer, GetMute)
        ROW(INLEPlayer, GetSoundDeviceCount)
        ROW(INLEPlayer, GetSoundDeviceName)
        ROW(INLEPlayer, GetSoundDevice)
        ROW(INLEPlayer, GetSoundOffset)
        ROW(INLEPlayer, GetReport)
        ROW(INLEPlayer, GetTotals)
        ROW(INLEPlayer, GetLevels)
        ROW(INLEProperties, GetInt)
        ROW(INLEProperties, SetInt)
        ROW(INLEProperties, GetDouble)
        ROW(INLEProperties, SetDouble)
        ROW(INLEProperties, GetRational)
        ROW(INLEProperties, SetRational)
        ROW(INLEProperties, GetString)
        ROW(INLEProperties, SetString)
        ROW(INLEPropertyHost, GetProperties)
        ROW(INLEProxyMaker, Find)
        ROW(INLEProxyMaker, Make)
        ROW(INLEReasons, GetText)
        ROW(INLEReasons, GetWords)
        ROW(INLEReasons, GetTitle)
        ROW(INLEAudioStreamProcess, GetPitch)
        ROW(INLEAudioStreamProcess, GetDenoiseLevel)
        ROW(INLEAudioStreamProcess, GetDenoiseEnable)
        ROW(INLEAudioStreamProcess, GetMixToMonoEnable)
        ROW(INLEAudioStreamProcess, GetVolumeEnable)
        ROW(INLEAudioStreamProcess, GetMute)
        ROW(INLEAudioStreamProcess, GetVolumeKeyFrameParam)
        ROW(INLEAudioStreamProcess, GetVolume)
        ROW(INLEAudioStreamProcess, GetBalance)
        ROW(INLEAudioStreamProcess, GetFadeInEnable)
        ROW(INLEAudioStreamProcess, GetFadeInRange)
        ROW(INLEAudioStreamProcess, GetFadeOutEnable)
        ROW(INLEAudioStreamProcess, GetFadeOutRange)
        ROW(INLEAudioStreamProcess, GetEqualizerEnable)
        ROW(INLEAudioStreamProcess, SetEqualizerName)
        ROW(INLEAudioStreamProcess, GetEqualizerName)
        ROW(INLEAudioStreamProcess, SetEqualizerParam)
        ROW(INLEAudioStreamProcess, GetEqualizerParam)
        ROW(INLEVideoStreamProcess, GetAlphaChannel)
        ROW(INLEVideoStreamProcess, SetAlphaChannel)
        ROW(INLEVideoStreamProcess, SetProxyFile)
        ROW(INLEVideoStreamProcess, GetProxyPath)
        ROW(INLEVideoStreamProcess, GetProxyEnabled)
        ROW(INLEVideoStreamProcess, GetPremultipliedAlphaType)
        ROW(INLESystemFile, Save)
        ROW(INLESystemFile, Load)
        ROW(INLETimeline, GetInterface)
        ROW(INLETimeline, GetId)
        ROW(INLETimeline, GetParent)
        ROW(INLETimeline, GetProperties)
        ROW(INLETimeline, SetRange)
        ROW(INLETimeline, GetRange)
        ROW(INLETimeline, GetTotalRange)
        ROW(INLETimeline, GetRenderFrameRate)
        ROW(INLETimeline, GetLevel)
        ROW(INLETimeline, GetPosition)
        ROW(INLETimeline, GetMarginMode)
        ROW(INLETimeline, GetEnabled)
        ROW(INLETimeline, Clone)
        ROW(INLETimelineEnumerator, IsEmpty)
        ROW(INLETimelineEnumerator, GetCurrent)
        ROW(INLETimelineComposite, GetClipCount)
        ROW(INLETimelineComposite, GetEnumerator)
        ROW(INLETimelineComposite, AddClip)
        ROW(INLETimelineComposite, RemoveClip)
        ROW(INLETimelineCompositeEx, GetEnumerator)
        ROW(INLETimelineSource, GetFilePath)
        ROW(INLETimelineSource, SetFilePath)
        ROW(INLETimelineSource, GetMediaInfo)
        ROW(INLETimelineSource, GetVideoStreamIndex)
        ROW(INLETimelineSource, GetAudioStreamIndex)
        ROW(INLETimelineSourceDecoder, GetGPUFirst)
        ROW(INLEMediaRelink, Relink)
        ROW(INLERenderRegion, GetRenderRegion)
        ROW(INLERenderRegion, GetCurrent)
        ROW(INLETimelineEffect, GetEffectName)
        ROW(INLETimelineTransition, GetTransitionName)
        ROW(INLEProjectSetting, GetProfile)
        ROW(INLEProjectSetting, SetProfile)
        ROW(INLETitle, GetTextLength)
        ROW(INLETitle, GetText)
        ROW(INLETitle, SetText)
        ROW(INLETitle, GetFont)
        ROW(INLETitle, SetFont)
        ROW(INLETitle, GetBounds)
        ROW(INLEColorClip, GetColor)
        ROW(INLEBlendSetting, GetEnable)
        ROW(INLEBlendSetting, GetMode)
        ROW(INLEBlendSetting, GetAlpha)
        ROW(INLETransform, GetEnable)
        ROW(INLETransform, SetCenter)
        ROW(INLETransform, GetCenter)
        ROW(INLETransform, SetScale)
        ROW(INLETransform, GetScale)
        ROW(INLETransform, GetRotation)
#undef ROW_WHERE_NULL_SAYS_SOMETHING
#undef ROW
#undef ROW_OF
    }

    void nullsAreRefused()
    {
        QFETCH(Call, call);
        QFETCH(bool, mayBe);
        const HRESULT result = call(*m_engine, m_film);
        QVERIFY2(result != kNoObject, "There is no such object.");
        QVERIFY2(SUCCEEDED(result) == mayBe, qPrintable(QString::number(uint(result), 16)));
    }

    void wrongOrder_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<HRESULT>("result");
        const auto row = [](const char* name, HRESULT result, Call call) {
            QTest::newRow(name) << call << result;
        };
        row("pixels before there are any", E_FAIL, [](const EngineFixture& engine, const QString&) {
            std::uint8_t* pixels = nullptr;
            return engine.provider->CreateVideoFrame(16, 16)->GetData(&pixels);
        });
        row("a frame of nothing", E_FAIL, [](const EngineFixture& engine, const QString&) {
            const auto picture = engine.provider->CreateVideoFrame(16, 16);
            picture->Prepare();
            return engine.provider->CreateFrameExtractor()->Extract(0, picture.get());
        });
        row("a frame after the end", E_FAIL, [](const EngineFixture& engine, const QString& film) {
            const auto sound = engine.provider->CreateAudioFrame(16);
            const auto extractor = engine.provider->CreateFrameExtractor();
            extractor->Open(engine.Media(film).get(), NLEOpen_Render);
            extractor->ExtractAudio(0, sound.get());
            extractor->Finish();
            return extractor->ExtractAudio(0, sound.get());
        });
        row("a thumbnail of nothing", E_FAIL, [](const EngineFixture& engine, const QString&) {
            NLEComPtr<INLEPicture> picture;
            return engine.provider->CreateThumbnailExtractor()->Extract(0, {16, 16}, picture.put());
        });
        row("the envelope of nothing", E_FAIL, [](const EngineFixture& engine, const QString&) {
            const auto waves = engine.provider->CreateWaveExtractor();
            return waves.query<INLEWaveCache>()->Compute(nullptr, nullptr);
        });
        row("a film of nothing", E_FAIL, [](const EngineFixture& engine, const QString&) {
            return engine.provider->CreateMediaEncoder()->Encode(nullptr, nullptr);
        });
        row("a clip after the last", E_FAIL, [](const EngineFixture& engine, const QString&) {
            NLEComPtr<INLETimelineEnumerator> clips;
            Node clip;
            engine.Project().query<INLETimelineComposite>()->GetEnumerator(1, clips.put());
            clips->Next();
            return clips->GetCurrent(clip.put());
        });
        row("a step within a step", E_FAIL, [](const EngineFixture& engine, const QString&) {
            const auto editing = EditingOf(engine.Project());
            editing->BeginStep();
            return editing->BeginStep();
        });
        row("undo within a step", E_FAIL, [](const EngineFixture& engine, const QString&) {
            const auto editing = EditingOf(engine.Project());
            editing->BeginStep();
            return editing->Undo();
        });
        row("an edit of a clip that was removed", E_INVALIDARG,
            [](const EngineFixture& engine, const QString&) {
                const Node clip = engine.Colour(Qt::red);
                const Node project = engine.ProjectWith(clip);
                const auto editing = EditingOf(project);
                editing->Delete(clip.get(), 0);
                return editing->Slip(clip.get(), 1, 0);
            });
        row("a cache that outlived its clips", E_FAIL,
            [](const EngineFixture& engine, const QString&) {
                const auto cache = EngineFixture::Facet<INLEBackgroundCache>(engine.Project());
                return cache->Update();
            });
    }

    void wrongOrder()
    {
        QFETCH(Call, call);
        QTEST(call(*m_engine, m_film), "result");
    }

    void objectsGoInTheirCallbacks_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<HRESULT>("result");
        const auto row = [](const char* name, HRESULT result, Call call) {
            QTest::newRow(name) << call << result;
        };
#ifdef Q_OS_WIN
        const HRESULT withoutFolder = S_OK; // which stays there, with an open file in it
#else
        const HRESULT withoutFolder = E_FAIL;
#endif
        row("a film, with its folder", withoutFolder,
            [](const EngineFixture& engine, const QString& film) {
                QTemporaryDir folder;
                auto encoder = engine.provider->CreateMediaEncoder();
                encoder->Open(engine.Media(film).get(),
                              folder.filePath("film.mp4").toStdWString().c_str(), nullptr);
                FirstCall first([&] {
                    encoder.reset();
                    folder.remove();
                });
                return encoder->Encode(FirstCall::Hear, &first);
            });
        row("an envelope", S_OK, [](const EngineFixture& engine, const QString& film) {
            engine.SetWaveFolder(engine.Path("waves of one"), 100);
            auto waves = WavesOf(engine, film);
            FirstCall first([&] { waves.reset(); });
            return waves->Compute(FirstCall::Hear, &first);
        });
        row("the source of an envelope", S_OK,
            [](const EngineFixture& engine, const QString& film) {
                engine.SetWaveFolder(engine.Path("waves of two"), 100);
                const auto waves = WavesOf(engine, film);
                FirstCall first([&] { waves.query<INLEWaveExtractor>()->Finish(); });
                return waves->Compute(FirstCall::Hear, &first);
            });
        row("a search for scenes", S_OK, [](const EngineFixture& engine, const QString& film) {
            NLEComPtr<INLESceneSegment> scenes;
            engine.Factory()->CreateSceneSegment(scenes.put());
            scenes->Open(engine.Media(film).get());
            FirstCall first([&] { scenes.reset(); });
            scenes.query<INLESceneProgress>()->SetProgress(FirstCall::Hear, &first);
            int frame = 0;
            return scenes->Next(&frame);
        });
        row("a maker of proxies", S_OK, [](const EngineFixture& engine, const QString& film) {
            NLEComPtr<INLEProxyMaker> maker;
            engine.Factory()->CreateProxyMaker(maker.put());
            maker->SetHeight(64);
            FirstCall first([&] { maker.reset(); });
            maker->Make(film.toStdWString().c_str(), FirstCall::Hear, &first);
            return first.Await();
        });
        row("a preview cache, with its clips", S_OK,
            [](const EngineFixture& engine, const QString&) {
                Node project = engine.ProjectWith(engine.Colour(Qt::red));
                auto cache = EngineFixture::Facet<INLEBackgroundCache>(project);
                cache->SetCacheFolder(engine.Path("cache").toStdWString().c_str(), 100, 0);
                FirstCall first([&] {
                    cache.reset();
                    project.reset();
                });
                const NLESize size = {32, 18};
                cache->Start(&size, FirstCall::Hear, &first);
                return first.Await();
            });
        row("an analysed cache, with its clips", S_OK,
            [](const EngineFixture& engine, const QString&) {
                Node project = engine.ProjectWith(engine.Colour(Qt::red));
                auto cache = EngineFixture::Facet<INLEBackgroundCache>(project)
                                 .query<INLEBackgroundCacheAsyncUpdate>();
                FirstCall first([&] {
                    cache.reset();
                    project.reset();
                });
                cache->SetUpdateCallback(FirstCall::Hear, &first);
                return first.Await();
            });
        row("a measured clip", S_OK, [](const EngineFixture& engine, const QString& film) {
            Node clip = engine.Media(film);
            Node effect;
            engine.Nodes()->CreateAudioFilter(L"loudness", effect.put());
            EngineFixture::Facet<INLEEffects>(clip)->AddEffect(effect.get(), -1);
            auto loudness = EngineFixture::Facet<INLELoudness>(effect);
            FirstCall first([&] {
                loudness.reset();
                effect.reset();
                clip.reset();
            });
            loudness->Measure(FirstCall::Hear, &first);
            return first.Await();
        });
    }

    void objectsGoInTheirCallbacks()
    {
        QFETCH(Call, call);
        QTEST(call(*m_engine, m_film), "result");
    }

    void theLibraryBearsNothing_data()
    {
        QTest::addColumn<Check>("check");
        const auto row = [](const char* name, Check check) { QTest::newRow(name) << check; };
        row("clips that are null", [](const EngineFixture& engine) {
            NLETimeline timeline(engine.Project(), ExactType_Project, nullptr);
            NLETimeline* const none = nullptr;
            timeline.AddClipSuper(NLEComPtr<INLETimeline>());
            timeline.RemoveClip(none);
            timeline.RemoveClip(NLEComPtr<INLETimeline>());
            timeline.SetClipPos(none, 1);
            timeline.SetClipRange(none, 1, 2);
            return timeline.GetClipCount() == 0;
        });
        row("key frames of no clip", [](const EngineFixture&) {
            VideoKeyFrameSetting keys(nullptr);
            int index = 0;
            return keys.GetKeyFrameCount() == 0 && !keys.HasNext(0) && !keys.HasPrevious(0) &&
                   !keys.GetKeyFrameIndex(1, 2, index) && keys.GetAllKeyFrameParams().isEmpty();
        });
        row("helpers of no clip", [](const EngineFixture&) {
            NLETimeline nothing(nullptr, ExactType_Unknown, nullptr);
            nothing.GetTransformHelper()->SetTransformEnable(true);
            return !nothing.GetTransformHelper()->GetTransformEnable();
        });
        row("a preview of no clip", [](const EngineFixture&) {
            FPreViewRenderHelper preview(nullptr, nullptr);
            preview.StopRender();
            preview.StopRenderSync();
            preview.StartRender();
            preview.Update();
            return preview.GetCacheDirectory().isEmpty() && !preview.SetCacheDirectory("x");
        });
        row("what the provider makes of null", [](const EngineFixture& engine) {
            engine.provider->SetTimelineFrameRate(nullptr, 25);
            return !engine.provider->CloneTimeline(nullptr, true) &&
                   engine.provider->GetTimelineFrameRate(nullptr) == 0;
        });
        row("a release without a press", [](const EngineFixture&) {
            TimelineRuler ruler;
            int told = 0;
            connect(&ruler, &TimelineRuler::EndFramesChanged, [&told] { ++told; });
            ruler.doMouseButtonRelease();
            ruler.SetEventFilter(nullptr);
            return told == 0;
        });
        row("states that there are not", [](const EngineFixture&) {
            BaseStateButton button(1, "button", nullptr);
            button.ClickCurrentButton();
            button.SetCurrentButtonId(7);
            button.Restore();
            return !button.GetButton(7) && button.CurrentButtonId() == 0;
        });
        row("a drag on no widget", [](const EngineFixture&) {
            IDragValueChangedHelper drag(nullptr);
            drag.SetValue(5);
            drag.SetDragEnabled(true);
            return true;
        });
        row("windows that are null", [](const EngineFixture&) {
            gOpenFramelessWidgetShadow(nullptr, 0);
            gGetTimelineCenterGlobalPos(nullptr);
            return gGetDevicePixelRatio(nullptr) >= 1 && gGetDevicePixelRatioFor(nullptr) >= 1;
        });
    }

    void theLibraryBearsNothing()
    {
        QFETCH(Check, check);
        QVERIFY(check(*m_engine));
    }
};

QTEST_MAIN(tst_HostileHost)
#include "tst_hostile_host.moc"
