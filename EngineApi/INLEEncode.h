// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

struct INLEProperties;

/// How the bits of a film are shared out. Flags where a codec tells what it has.
enum NLERateControl : std::int32_t
{
    NLERate_Quality = 1,  ///< as many as NLEKey::Encode::kQuality needs
    NLERate_Bitrate = 2,  ///< a mean rate, NLEKey::Encode::kVideoBitRate
    NLERate_Lossless = 4, ///< what is decoded equals what was encoded
    NLERate_Profile = 8   ///< as many as the profile says
};

/// A container that can be written. Lists in it are separated by commas; texts are ASCII.
struct NLEContainerInfo
{
    char name[32];      ///< short name, for NLEKey::Encode::kContainer
    char title[64];     ///< for a user who reads English
    char suffixes[64];  ///< those that choose it, the usual one first
    std::int32_t files; ///< 1 for a file, 0 for one of each picture: the path then holds the place
                        ///< of their number, counted from 0, as "%04d"
};

/// A codec that a container takes. Lists in it are separated by commas, the first one is chosen
/// when nothing is asked for; empty where the codec has nothing to choose. Texts are ASCII.
struct NLECodecInfo
{
    char name[32];             ///< short name, for NLEKey::Encode::kVideoCodec and kAudioCodec
    char title[64];            ///< for a user who reads English
    std::int32_t type;         ///< NLEStream_Video or NLEStream_Audio
    std::int32_t rateControls; ///< flags of NLERateControl; 0 for sound
    std::int32_t hasAlpha;     ///< 1 when one of the pixel formats keeps what is transparent
    std::int32_t hasFields;    ///< 1 when frames can be of two fields
    std::int32_t highestDepth; ///< most bits of a component or a sample
    char profiles[128];        ///< names with commas between
    char speeds[128];          ///< presets, for NLEKey::Encode::kSpeed
    char pixelFormats[256];    ///< in the names of libavutil, for example "yuv420p10le"
    char sampleFormats[64];    ///< in the names of libavutil without their order, for example "s16"
};

/// What can be encoded, and how it can be combined. Media encoders answer it; it is the same for
/// all of them and does not change. E_INVALIDARG for names and numbers that there are not.
struct INLEEncodeCatalog : IUnknown
{
    static constexpr _GUID Iid = {
        0x2D7F1C3E, 0x58B4, 0x4E0A, {0x9B, 0x36, 0x71, 0xC2, 0x0E, 0x94, 0xAD, 0x57}};

    virtual HRESULT GetContainerCount(int* count) = 0; ///< containers that can be written
    virtual HRESULT GetContainer(int index, NLEContainerInfo* info) = 0; ///< one of them
    /// Codecs of \a type, an NLEStreamType, that \a container takes and this engine has.
    virtual HRESULT GetCodecCount(const char* container, int type, int* count) = 0;
    virtual HRESULT GetCodec(const char* container, int type, int index, NLECodecInfo* info) = 0;

    /// Presets: settings that belong together, under an English name. Those whose codecs are there.
    virtual HRESULT GetPresetCount(int* count) = 0;
    virtual HRESULT GetPresetName(int index, wchar_t* buffer, int capacity) = 0;
    /// Writes the settings of a preset into a bag, container included; other keys stay.
    virtual HRESULT GetPreset(const wchar_t* name, INLEProperties* options) = 0;

    /// Whether \a options, with the size, rates and channels of \a settings (null: 1920 x 1080, 25
    /// frames and 48,000 samples a second, two channels), can be combined: a short film is written
    /// into the folder for temporary files and read back. E_INVALIDARG when not; \a reason, null or
    /// \a capacity characters with the terminating zero, then tells why, in English.
    virtual HRESULT Check(INLEProperties* options, const NLEEncodeSettings* settings,
                          wchar_t* reason, int capacity) = 0;

    /// What the container, codec or preset of an index is called for people, in the language that
    /// the host has installed a translator for (context "NLECore"), cut to \a capacity characters
    /// with the terminating zero.
    virtual HRESULT GetContainerTitle(int index, wchar_t* title, int capacity) = 0;
    virtual HRESULT GetCodecTitle(const char* container, int type, int index, wchar_t* title,
                                  int capacity) = 0;
    virtual HRESULT GetPresetTitle(int index, wchar_t* title, int capacity) = 0;
};

/// How a media encoder is to encode. Media encoders answer it.
struct INLEEncodeOptions : IUnknown
{
    static constexpr _GUID Iid = {
        0x91E6A05B, 0x0C7D, 0x4F28, {0xA4, 0x1F, 0x3D, 0x68, 0xB5, 0x72, 0xE9, 0x10}};

    /// Takes the settings of NLEKey::Encode from a bag, for every later Open; the bag stays the
    /// caller's, and null takes all settings back. E_INVALIDARG for a name or a number that the
    /// catalogue does not have, and nothing is taken then.
    virtual HRESULT SetOptions(INLEProperties* options) = 0;
    /// Writes into a bag what the last Open has settled on: container, codecs, pixel and sample
    /// format, field order. E_FAIL before a successful Open.
    virtual HRESULT GetOptions(INLEProperties* options) = 0;
};
