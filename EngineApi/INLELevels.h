// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// How a level plays; added up.
enum NLELevelFlags : std::int32_t
{
    NLELevel_Hidden = 1, ///< its pictures are not drawn
    NLELevel_Muted = 2,  ///< its sound is not mixed; this is the mute of its mixer strip
    NLELevel_Solo = 4    ///< as soon as a level has it, those without it neither show nor sound
};

/// The levels of a composite: what they are called, and which of them play. Editors call them
/// tracks. The object that INLEFactory::CreateEditing gives answers it.
///
/// All that a level has is kept by clones and documents. What plays counts wherever the composite
/// is drawn or heard: frames, player, encoder, preview cache. The solo of mixer strips is another
/// one, which counts for sound alone.
///
/// SetFlags() and SetName() are edits as those of INLEEditing, with undo and redo, a part of the
/// step that is open; they give S_FALSE when nothing had to change. Levels count from 0; one below
/// is E_INVALIDARG. For the thread that edits.
struct INLELevels : IUnknown
{
    static constexpr _GUID Iid = {
        0x9E14D0B3, 0x2A67, 0x4C81, {0xB5, 0x3D, 0x60, 0xF2, 0x8C, 0x17, 0xA9, 0x4E}};

    /// Levels from 0 up to the highest one for which something is set, whatever clips there are.
    virtual HRESULT GetCount(int* count) = 0;
    /// NLELevelFlags; 0 at first.
    virtual HRESULT GetFlags(int level, int* flags) = 0;
    /// E_INVALIDARG for flags that there are not.
    virtual HRESULT SetFlags(int level, int flags) = 0;
    /// At most \a capacity characters with the terminating zero; longer text is cut. Empty at
    /// first.
    virtual HRESULT GetName(int level, wchar_t* name, int capacity) = 0;
    /// Null or an empty text takes the name away.
    virtual HRESULT SetName(int level, const wchar_t* name) = 0;
    /// Height that an editor gives the level, in pixels at a scale of 1; 0, the preset, leaves it
    /// to the editor.
    virtual HRESULT GetHeight(int level, int* height) = 0;
    /// 0 to 10,000, else E_INVALIDARG. A matter of the view, and so no step.
    virtual HRESULT SetHeight(int level, int height) = 0;
};
