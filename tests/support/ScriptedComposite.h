// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "tests/support/ScriptedNodes.h"

/// What composites, projects and other kinds of node answer beside INLETimeline.
namespace Scripted {

using Clips = QVector<NLEComPtr<INLETimeline>>;

struct Enumerator : Object<INLETimelineEnumerator>
{
    explicit Enumerator(const Clips& clips) : Object("enumerator"), m_clips(clips) {}

    HRESULT IsEmpty(bool* out) override { return Value("IsEmpty", m_clips.isEmpty(), out); }
    HRESULT Next() override { return ++m_index < m_clips.size() ? S_OK : S_FALSE; }
    HRESULT GetCurrent(INLETimeline** out) override { return m_clips.at(m_index).copyTo(out); }

private:
    const Clips m_clips;
    int m_index = 0;
};

struct Composite : Object<INLETimelineComposite, INLETimelineCompositeEx>
{
    using Object::Object;

    Clips clips;
    Clips allClips; ///< those of held composites too

    HRESULT GetClipCount(int* out) override
    {
        return Value("GetClipCount", int(clips.size()), out);
    }
    HRESULT GetEnumerator(int flags, INLETimelineEnumerator** out) override
    {
        *out = MakeCom<Enumerator>(clips).detach();
        return Call("GetEnumerator", flags);
    }
    HRESULT GetEnumerator(int recursive, int flags, INLETimelineEnumerator** out) override
    {
        *out = MakeCom<Enumerator>(allClips).detach();
        return Call("GetEnumerator", recursive, flags);
    }
    HRESULT AddClip(INLETimeline* clip) override { return Call("AddClip", clip); }
    HRESULT RemoveClip(INLETimeline* clip) override { return Call("RemoveClip", clip); }
};

struct RenderRegion : Object<INLERenderRegion>
{
    using Object::Object;

    SCRIPTED_VALUE(NLERectF, region, RenderRegion)
    SCRIPTED_SETTING(bool, current, Current)
};

struct ProjectSetting : Object<INLEProjectSetting>
{
    using Object::Object;

    SCRIPTED_RECORD(tagNLEProjectProfile, profile, Profile)
};

struct SourceDecoder : Object<INLETimelineSourceDecoder>
{
    using Object::Object;

    SCRIPTED_SETTING(int, gpuFirst, GPUFirst)
};

struct MediaRelink : Object<INLEMediaRelink>
{
    using Object::Object;

    HRESULT Relink(const wchar_t* path, int flags) override { return Call("Relink", path, flags); }
    HRESULT Reload() override { return Call("Reload"); }
};

struct Kinds : Object<INLETimelineEffect, INLETimelineTransition>
{
    using Object::Object;

    HRESULT GetEffectName(wchar_t*, int) override { return E_NOTIMPL; }
    HRESULT GetTransitionName(wchar_t*, int) override { return E_NOTIMPL; }
};

} // namespace Scripted
