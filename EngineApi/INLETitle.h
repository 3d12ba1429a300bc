// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// Answered by titles only. Everything else of a title is set by INLEParameters, under which text
/// and font are also found, as "text" and "font".
struct INLETitle : IUnknown
{
    static constexpr _GUID Iid = {
        0x3AFB6EEC, 0x45C8, 0x45AA, {0x83, 0x92, 0xF0, 0x61, 0xDB, 0xF7, 0xBE, 0x8C}};

    /// Characters of the text, without the terminating zero.
    virtual HRESULT GetTextLength(int* length) = 0;
    /// Writes at most \a capacity characters with the terminating zero; longer text is cut.
    virtual HRESULT GetText(wchar_t* buffer, int capacity) = 0;
    /// Line feeds end lines. An empty text shows nothing.
    virtual HRESULT SetText(const wchar_t* text) = 0;
    /// A family as the font library lists it; empty for the system's own choice.
    virtual HRESULT GetFont(wchar_t* buffer, int capacity) = 0;
    virtual HRESULT SetFont(const wchar_t* family) = 0;
    /// Where the title shows at a frame of its own, counted as its trim range is, with outline,
    /// shadow and box: in shares of its picture's width and height, which it may exceed. Empty
    /// where nothing shows.
    virtual HRESULT GetBounds(int frame, NLERectF* bounds) = 0;
};

/// Answered by clips of one colour only.
struct INLEColorClip : IUnknown
{
    static constexpr _GUID Iid = {
        0x7DB4E853, 0xF681, 0x4E84, {0xB0, 0x20, 0x35, 0xF2, 0xD6, 0x91, 0x8B, 0x58}};

    /// 0xAARRGGBB.
    virtual HRESULT GetColor(std::uint32_t* argb) = 0;
    virtual HRESULT SetColor(std::uint32_t argb) = 0;
};
