// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/ScriptedEngine.h"

#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLETimeline.h"

namespace Scripted {

Named::Named(const QString& name) : m_name(name)
{
    Script& script = Script::Get();
    QMutexLocker lock(&script.m_mutex);
    script.m_live.append(name);
}

Named::~Named()
{
    Script& script = Script::Get();
    QMutexLocker lock(&script.m_mutex);
    script.m_live.removeOne(m_name);
}

Script& Script::Get()
{
    static Script script;
    return script;
}

void Script::Reset()
{
    decltype(m_results) results; // released outside of the lock
    QMutexLocker lock(&m_mutex);
    m_calls.clear();
    m_statuses.clear();
    results.swap(m_results);
    lock.unlock();
}

void Script::SetStatus(const QString& operation, HRESULT status)
{
    QMutexLocker lock(&m_mutex);
    m_statuses.insert(operation, status);
}

void Script::SetResult(const QString& operation, NLEComPtr<IUnknown> object)
{
    QMutexLocker lock(&m_mutex);
    m_results[operation].swap(object);
    lock.unlock(); // before the old result is released
}

QStringList Script::TakeCalls()
{
    QMutexLocker lock(&m_mutex);
    return std::exchange(m_calls, QStringList());
}

QStringList Script::LiveObjects() const
{
    QMutexLocker lock(&m_mutex);
    QStringList live = m_live;
    live.sort();
    return live;
}

HRESULT Script::Record(const QString& operation, const QString& arguments)
{
    QMutexLocker lock(&m_mutex);
    m_calls.append(operation + '(' + arguments + ')');
    return m_statuses.value(operation, S_OK);
}

NLEComPtr<IUnknown> Script::Result(const QString& operation) const
{
    QMutexLocker lock(&m_mutex);
    return m_results.value(operation);
}

namespace {

// An operation that delivers the script's object.
#define SCRIPTED_OBJECT(Type, Name)                                                                \
    HRESULT Name(Type** out) override                                                              \
    {                                                                                              \
        return Give(#Name, out);                                                                   \
    }

class TimelineFactory : public Object<INLETimelineFactory>
{
public:
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
    HRESULT CreateMedia(const wchar_t* path, INLETimeline** out) override
    {
        return Give("CreateMedia", out, path);
    }
    HRESULT CreateFromTemplate(const wchar_t* folder, INLETimeline** out) override
    {
        return Give("CreateFromTemplate", out, folder);
    }
    HRESULT CreateAudioFilter(const wchar_t* filter, INLETimeline** out) override
    {
        return Give("CreateAudioFilter", out, filter);
    }
    HRESULT CreateColor(std::uint32_t argb, NLESize size, float rate, INLETimeline** out) override
    {
        return Give("CreateColor", out, QString::number(argb, 16), size, rate);
    }
    HRESULT CreateTipText(const wchar_t* text, const wchar_t* family, INLETimeline** out) override
    {
        return Give("CreateTipText", out, text, family);
    }
    HRESULT CreateVirtual(int type, INLETimeline** out) override
    {
        return Give("CreateVirtual", out, type);
    }
};

class Factory : public Object<INLEFactory>
{
public:
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
    HRESULT CreateAudioFrame(int sampleCount, INLEAudioFrame** out) override
    {
        return Give("CreateAudioFrame", out, sampleCount);
    }
    HRESULT CreateCodecFromFile(const wchar_t* path, INLECodec** out) override
    {
        return Give("CreateCodecFromFile", out, path);
    }
    HRESULT CreateMarkBook(const wchar_t* path, INLEMarkBook** out) override
    {
        return Give("CreateMarkBook", out, path);
    }
    SCRIPTED_OBJECT(INLEDocumentSerialize, CreateDocumentSerialize)
    SCRIPTED_OBJECT(INLEFrameExtractor, CreateFrameExtractor)
    SCRIPTED_OBJECT(INLEThumbnailExtractor, CreateThumbnailExtractor)
    SCRIPTED_OBJECT(INLEWaveExtractor, CreateWaveExtractor)
    SCRIPTED_OBJECT(INLESceneSegment, CreateSceneSegment)
    SCRIPTED_OBJECT(INLEMediaEncoder, CreateMediaEncoder)
    SCRIPTED_OBJECT(INLEProperties, CreateProperties)
    HRESULT Shutdown(int flags) override { return Call("Shutdown", flags); }
};

class ClassFactory : public Object<IClassFactory>
{
public:
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
