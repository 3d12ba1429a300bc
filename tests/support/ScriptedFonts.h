// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFactory.h"
#include "tests/support/ScriptedEngine.h"

namespace Scripted {

/// A font library with the names that a test gives it.
struct FontLibrary : Object<INLEFontLibrary>
{
    using Object::Object;

    QStringList names;

    HRESULT SetCacheFile(const wchar_t* path) override { return Call("SetCacheFile", path); }
    HRESULT SetFontFolder(const wchar_t* folder) override { return Call("SetFontFolder", folder); }
    HRESULT AddFontFolder(const wchar_t* folder) override { return Call("AddFontFolder", folder); }
    HRESULT LoadSystemFonts() override { return Call("LoadSystemFonts"); }
    HRESULT GetFontCount(int* count) override
    {
        return Value("GetFontCount", int(names.size()), count);
    }
    /// A name of the whole capacity is written without its zero.
    HRESULT GetFontName(int index, wchar_t* buffer, int capacity) override
    {
        const QString name = names[index];
        if (name.size() < capacity)
            return WriteText("GetFontName", name, buffer, capacity);
        name.left(capacity).toWCharArray(buffer);
        return Call("GetFontName", capacity);
    }
};

} // namespace Scripted
