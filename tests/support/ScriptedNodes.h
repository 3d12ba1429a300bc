// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLETimeline.h"
#include "tests/support/ScriptedEngine.h"

#include <QVector>

/// Timeline nodes and their property bags.
namespace Scripted {

/// A property bag that keeps what it is given; a getter fails for a key that has nothing.
struct Properties : Object<INLEProperties>
{
    using Object::Object;

#define SCRIPTED_VALUES(Type, values, Name)                                                        \
    QHash<QString, Type> values;                                                                   \
    HRESULT Get##Name(const wchar_t* key, Type* value) override                                    \
    {                                                                                              \
        return Get("Get" #Name, values, key, value);                                               \
    }                                                                                              \
    HRESULT Set##Name(const wchar_t* key, Type value) override                                     \
    {                                                                                              \
        return Set("Set" #Name, values, key, value);                                               \
    }
    SCRIPTED_VALUES(int, ints, Int)
    SCRIPTED_VALUES(double, doubles, Double)
    SCRIPTED_VALUES(NLERational, rationals, Rational)
    QHash<QString, QString> strings;

    HRESULT GetString(const wchar_t* key, wchar_t* buffer, int capacity) override
    {
        const auto found = strings.constFind(Text(key));
        return found == strings.cend() ? E_FAIL : WriteText("GetString", *found, buffer, capacity);
    }
    HRESULT SetString(const wchar_t* key, const wchar_t* value) override
    {
        return Set("SetString", strings, key, Text(value));
    }

private:
    template <typename T>
    HRESULT Get(const char* operation, const QHash<QString, T>& values, const wchar_t* key, T* out)
    {
        const auto found = values.constFind(Text(key));
        return found == values.cend() ? E_FAIL : Value(operation, *found, out, key);
    }
    template <typename T>
    HRESULT Set(const char* operation, QHash<QString, T>& values, const wchar_t* key,
                const T& value)
    {
        const HRESULT status = Call(operation, key, value);
        if (SUCCEEDED(status))
            values.insert(Text(key), value);
        return status;
    }
};

/// Hands out the script's bag.
struct PropertyHost : Object<INLEPropertyHost>
{
    using Object::Object;

    SCRIPTED_OBJECT(INLEProperties, GetProperties)
};

/// A node. It answers INLETimeline, and whatever other interfaces the test offers.
struct Node : Object<INLETimeline>
{
    using Object::Object;

    /// Answers a query for \a Interface with \a facet, an object of its own.
    template <typename Interface>
    void Offer(NLEComPtr<Interface> facet)
    {
        m_facets.append({InterfaceId<Interface>(), facet});
    }

    HRESULT QueryInterface(REFIID iid, void** out) override
    {
        for (const Facet& facet : m_facets) {
            if (facet.iid == iid)
                return facet.object->QueryInterface(iid, out);
        }
        return Object::QueryInterface(iid, out);
    }
    HRESULT GetInterface(REFIID iid, void** out, int reserved1, int reserved2) override
    {
        *out = nullptr;
        const HRESULT status = Call("GetInterface", iid, reserved1, reserved2);
        return FAILED(status) ? status : QueryInterface(iid, out);
    }
    SCRIPTED_VALUE(std::uint32_t, id, Id)
    HRESULT GetParent(INLETimeline** out) override { return Give("GetParent", out); }
    HRESULT GetProperties(INLEProperties** out) override { return Give("GetProperties", out); }
    SCRIPTED_RECORD(NLERange, range, Range)
    SCRIPTED_VALUE(NLERange, totalRange, TotalRange)
    SCRIPTED_SETTING(NLERational, rate, RenderFrameRate)
    SCRIPTED_SETTING(int, level, Level)
    SCRIPTED_SETTING(int, position, Position)
    SCRIPTED_SETTING(tagNLEMarginMode, marginMode, MarginMode)
    SCRIPTED_SETTING(bool, enabled, Enabled)
    HRESULT Clone(bool deep, INLETimeline** out) override { return Give("Clone", out, deep); }

private:
    struct Facet
    {
        IID iid;
        NLEComPtr<IUnknown> object;
    };

    QVector<Facet> m_facets;
};

/// What a node that plays a media file answers.
struct Source : Object<INLETimelineSource>
{
    using Object::Object;

    SCRIPTED_TEXT(filePath, FilePath)
    HRESULT SetFilePath(const wchar_t* path) override
    {
        return Set("SetFilePath", filePath, Text(path));
    }
    HRESULT GetMediaInfo(INLEMediaInfo** out) override { return Give("GetMediaInfo", out); }
    SCRIPTED_VALUE(std::uint32_t, videoStream, VideoStreamIndex)
    SCRIPTED_VALUE(std::uint32_t, audioStream, AudioStreamIndex)
};

} // namespace Scripted
