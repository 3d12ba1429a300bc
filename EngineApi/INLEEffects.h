// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

struct INLETimeline;

/// What a parameter holds. All but texts and files are numbers.
enum NLEParameterKind : std::int32_t
{
    NLEParameter_Number = 0,
    NLEParameter_Whole = 1,  ///< a number without a fraction
    NLEParameter_Switch = 2, ///< 0 or 1
    NLEParameter_Choice = 3, ///< index of one of its choices
    NLEParameter_Color = 4,  ///< 0xAARRGGBB as a number; a key frame's colour is mixed by component
    NLEParameter_Text = 5,
    NLEParameter_File = 6 ///< path of a file, empty for none
};

/// What a number counts in.
enum NLEParameterUnit : std::int32_t
{
    NLEUnit_None = 0,
    NLEUnit_Share = 1, ///< of one
    NLEUnit_Degrees = 2,
    NLEUnit_Pixels = 3, ///< of the picture at its full size; a preview scales them with itself
    NLEUnit_Stops = 4,  ///< of exposure: one doubles the light
    NLEUnit_Decibels = 5,
    NLEUnit_Frames = 6,
    NLEUnit_Seconds = 7,
    NLEUnit_Hertz = 8,
    NLEUnit_Kelvin = 9,
    NLEUnit_Milliseconds = 10
};

/// How a value goes on from a key frame to the next one.
enum NLEParameterInterpolation : std::int32_t
{
    NLEInterpolation_Hold = 0,   ///< stays until the next key frame
    NLEInterpolation_Linear = 1, ///< evenly
    NLEInterpolation_Smooth = 2  ///< starts and ends slowly
};

/// What a parameter accepts. Numbers of lists, texts and files are 0 where they say nothing.
struct NLEParameterRecord
{
    std::int32_t kind;        ///< NLEParameterKind
    std::int32_t unit;        ///< NLEParameterUnit
    std::int32_t canAnimate;  ///< 1: it may have key frames
    std::int32_t choiceCount; ///< of a choice, else 0
    double lowest;            ///< inclusive
    double highest;           ///< inclusive
    double preset;            ///< value of a parameter that was never set
};
static_assert(sizeof(NLEParameterRecord) == 40, "fixed binary layout");

/// One key frame of a parameter.
struct NLEParameterKeyFrame
{
    double time;  ///< place on the key-frame axis of the clip, as NLEKeyFrameRecord::time
    double value; ///< of the parameter at that time
    std::int32_t interpolation; ///< NLEParameterInterpolation, to the next key frame
    std::int32_t reserved;      ///< 0
};
static_assert(sizeof(NLEParameterKeyFrame) == 24, "fixed binary layout");

/// Parameters of an effect, a transition, a title or an audio filter; found on its node. Clones and
/// documents keep them.
///
/// Names are short, English and stable; titles are for people, in the language that the host has
/// installed a translator for (context "NLECore"). An unknown name, an index that names nothing and
/// a value that the parameter does not accept give E_INVALIDARG and change nothing.
struct INLEParameters : IUnknown
{
    static constexpr _GUID Iid = {
        0xB46E3A3E, 0xC47B, 0x4EFE, {0x87, 0xA1, 0xC5, 0x46, 0x4D, 0x53, 0xDC, 0x9A}};

    virtual HRESULT GetParameterCount(int* count) = 0; ///< parameters of the node
    /// Texts are cut to \a capacity characters with the terminating zero, here and below; with a
    /// capacity of 0 only the record is given.
    virtual HRESULT GetParameter(int index, NLEParameterRecord* record, wchar_t* name,
                                 int capacity) = 0;
    virtual HRESULT GetParameterTitle(int index, wchar_t* title, int capacity) = 0;
    /// A choice of the parameter \a index: \a choice is its value.
    virtual HRESULT GetChoice(int index, int choice, wchar_t* name, int capacity) = 0;
    virtual HRESULT GetChoiceTitle(int index, int choice, wchar_t* title, int capacity) = 0;

    /// The value that holds as long as the parameter has no key frames.
    virtual HRESULT GetNumber(const wchar_t* name, double* value) = 0;
    virtual HRESULT SetNumber(const wchar_t* name, double value) = 0;
    virtual HRESULT GetText(const wchar_t* name, wchar_t* text, int capacity) = 0;
    /// Of a file, E_FAIL when it is one that cannot be used; an empty text takes it away.
    virtual HRESULT SetText(const wchar_t* name, const wchar_t* text) = 0;

    /// Key frames of a number, in order of time, no two at one time. They decide over its value and
    /// hold before the first and after the last. Each stays with its frame when the clip is
    /// trimmed, and with its instant when its speed or rate changes. E_INVALIDARG for a parameter
    /// that cannot be animated.
    virtual HRESULT GetKeyFrameCount(const wchar_t* name, int* count) = 0;
    virtual HRESULT GetKeyFrame(const wchar_t* name, int index, NLEParameterKeyFrame* key) = 0;
    /// Adds a key frame, or replaces the one at the same time; \a index receives its place and may
    /// be null.
    virtual HRESULT PutKeyFrame(const wchar_t* name, const NLEParameterKeyFrame* key,
                                int* index) = 0;
    virtual HRESULT DeleteKeyFrame(const wchar_t* name, int index) = 0;
    /// The value that applies at a time of the key-frame axis.
    virtual HRESULT GetNumberAt(const wchar_t* name, double time, double* value) = 0;
};

/// Effects that a clip or a composite carries, in the order in which they are applied: first to
/// its own picture, each next one to what the one before has made of it, all before the clip is
/// placed on its parent. A facility of nodes.
///
/// An effect is a node; SetEnabled switches it, INLEParameters sets it, INLETimelineEffect names
/// it. It belongs to one clip at the most.
struct INLEEffects : IUnknown
{
    static constexpr _GUID Iid = {
        0x9A648AC3, 0x922A, 0x42F7, {0x89, 0x59, 0x60, 0x15, 0xBB, 0x2D, 0xFF, 0x80}};

    virtual HRESULT GetCount(int* count) = 0; ///< effects of the node
    /// A new reference; null and E_INVALIDARG for an index that names no effect.
    virtual HRESULT GetEffect(int index, INLETimeline** effect) = 0;
    /// Adds an effect of no clip before the one at \a index; -1 adds it as the last. E_INVALIDARG
    /// for what is no effect, and for one that a clip carries already.
    virtual HRESULT AddEffect(INLETimeline* effect, int index) = 0;
    /// E_INVALIDARG for an effect that is not carried here.
    virtual HRESULT RemoveEffect(INLETimeline* effect) = 0;
    /// Takes the effect at \a from out and puts it where it then stands at \a to.
    virtual HRESULT MoveEffect(int from, int to) = 0;
};

/// What the catalogue lists.
enum NLECatalogKind : std::int32_t
{
    NLECatalog_Effect = 0,     ///< INLETimelineFactory::CreateEffect
    NLECatalog_Transition = 1, ///< INLETimelineFactory::CreateTransition
    NLECatalog_Title = 2,      ///< nothing yet: titles are made of their text
    NLECatalog_AudioFilter = 3 ///< INLETimelineFactory::CreateAudioFilter
};

/// What can be made by name. The open engine's timeline factory answers it.
struct INLEEffectCatalog : IUnknown
{
    static constexpr _GUID Iid = {
        0x340936AC, 0xB14C, 0x4971, {0xB1, 0x99, 0x5E, 0x16, 0x0F, 0xE9, 0x53, 0x47}};

    /// \a kind is an NLECatalogKind, here and below.
    virtual HRESULT GetCount(int kind, int* count) = 0;
    virtual HRESULT GetName(int kind, int index, wchar_t* name, int capacity) = 0;
    /// The name for people, as INLEParameters::GetParameterTitle.
    virtual HRESULT GetTitle(int kind, int index, wchar_t* title, int capacity) = 0;
};
