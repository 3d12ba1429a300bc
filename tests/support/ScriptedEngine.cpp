// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/ScriptedEngine.h"

#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLEPlayer.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLEProxies.h"
#include "EngineApi/INLEReasons.h"
#include "EngineApi/INLETimeline.h"

namespace Scripted {

Named::Named(const QString& name) : m_name(name)
{
    Script::Get().liveObjects.append(name);
}

Named::~Named()
{
    Script::Get().liveObjects.removeOne(m_name);
}

Script& Script::Get()
{
    static Script s_script;
    return s_script;
}

void Script::Reset()
{
    m_calls.clear();
    statuses.clear();
    results.clear();
}

HRESULT Script::Record(const QString& operation, const QString& arguments)
{
    m_calls.append(operation + '(' + arguments + ')');
    return statuses.value(operation, S_OK);
}

namespace {

struct TimelineFactory : Object<INLETimelineFactory>
{
    using Object::Object;

    HRESULT GetDefaultProfile(tagNLEProjectProfile* profile) override
    {
        const tagNLEProjectProfile value{{1920, 1080}, {25000000, 1000000}, 48000, 2, 1};
        return Value("GetDefaultProfile", value, profile);
    }
    HRESULT CreateProject(const tagNLEProjectProfile* profile, INLETimeline** out) override
    {
        return Give("CreateProject", out, profile->frameSize, profile->frameRate);
    }
    SCRIPTED_OBJECT_FROM(const wchar_t*, INLETimeline, CreateMedia)
    SCRIPTED_OBJECT_FROM(const wchar_t*, INLETimeline, CreateFromTemplate)
    SCRIPTED_OBJECT_FROM(const wchar_t*, INLETimeline, CreateAudioFilter)
    HRESULT CreateColor(std::uint32_t argb, NLESize size, float rate, INLETimeline** out) override
    {
        return Give("CreateColor", out, QString::number(argb, 16), size, rate);
    }
    HRESULT CreateTipText(const wchar_t* text, const wchar_t* family, INLETimeline** out) override
    {
        return Give("CreateTipText", out, text, family);
    }
    SCRIPTED_OBJECT_FROM(int, INLETimeline, CreateVirtual)
    SCRIPTED_OBJECT_FROM(const wchar_t*, INLETimeline, CreateEffect)
    SCRIPTED_OBJECT_FROM(const wchar_t*, INLETimeline, CreateTransition)
    SCRIPTED_OBJECT_FROM(const wchar_t*, INLETimeline, CreateTitle)
};

struct Factory : Object<INLEFactory>
{
    using Object::Object;

    HRESULT Init(int flags) override { return Call("Init", flags); }
    HRESULT GetTimelineFactory(INLETimelineFactory** out) override
    {
        *out = nullptr;
        const HRESULT status = Call("GetTimelineFactory");
        if (SUCCEEDED(status))
            *out = MakeCom<TimelineFactory>("timelineFactory").detach();
        return status;
    }
    SCRIPTED_OBJECT(INLEFontLibrary, GetFontLibrary)
    SCRIPTED_OBJECT(INLESystemConfig, GetSystemConfig)
    HRESULT CreateVideoFrame(int width, int height, int pixelFormat, int memory, int poolFlags,
                             int poolMinimum, int poolMaximum, int poolReserve,
                             INLEVideoFrame** out) override
    {
        return Give("CreateVideoFrame", out, width, height, pixelFormat, memory, poolFlags,
                    poolMinimum, poolMaximum, poolReserve);
    }
    SCRIPTED_OBJECT_FROM(int, INLEAudioFrame, CreateAudioFrame)
    SCRIPTED_OBJECT_FROM(const wchar_t*, INLECodec, CreateCodecFromFile)
    SCRIPTED_OBJECT_FROM(const wchar_t*, INLEMarkBook, CreateMarkBook)
    SCRIPTED_OBJECT(INLEDocumentSerialize, CreateDocumentSerialize)
    SCRIPTED_OBJECT(INLEFrameExtractor, CreateFrameExtractor)
    SCRIPTED_OBJECT(INLEThumbnailExtractor, CreateThumbnailExtractor)
    SCRIPTED_OBJECT(INLEWaveExtractor, CreateWaveExtractor)
    SCRIPTED_OBJECT(INLESceneSegment, CreateSceneSegment)
    SCRIPTED_OBJECT(INLEMediaEncoder, CreateMediaEncoder)
    SCRIPTED_OBJECT(INLEProperties, CreateProperties)
    HRESULT Shutdown(int flags) override { return Call("Shutdown", flags); }
    SCRIPTED_OBJECT(INLEProxyMaker, CreateProxyMaker)
    SCRIPTED_OBJECT(INLEPlayer, CreatePlayer)
    SCRIPTED_OBJECT(INLEReasons, GetReasons)
    SCRIPTED_OBJECT_FROM(INLETimeline*, INLEEditing, CreateEditing)
};

struct ClassFactory : Object<IClassFactory>
{
    using Object::Object;

    HRESULT CreateInstance(IUnknown* outer, REFIID iid, void** out) override
    {
        *out = nullptr;
        const HRESULT status = Call("CreateInstance", outer);
        return FAILED(status) ? status : MakeCom<Factory>("factory")->QueryInterface(iid, out);
    }
    HRESULT LockServer(BOOL lock) override { return Call("LockServer", lock); }
};

} // namespace

HRESULT GetClassObject(REFCLSID classId, REFIID iid, void** out)
{
    *out = nullptr;
    if (classId != INLEFactory::ClassId)
        return CLASS_E_CLASSNOTAVAILABLE;
    const HRESULT status = Script::Get().Record("module.DllGetClassObject", QString());
    return FAILED(status) ? status
                          : MakeCom<ClassFactory>("classFactory")->QueryInterface(iid, out);
}

} // namespace Scripted
