// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEProperties.h"
#include "NLECore/media/EncodeFormats.h"

namespace nle {

/// Reads the settings of NLEKey::Encode from a bag. E_INVALIDARG, and \a options as it was, for
/// names and numbers that the catalogue does not have.
HRESULT ReadOptions(INLEProperties* bag, EncodeOptions* options);
/// Writes those settings that are set into a bag.
HRESULT WriteOptions(const EncodeOptions& options, INLEProperties* bag);

/// What can be encoded. Counting and queries are those of the object that it is a part of.
class EncodeCatalog : public INLEEncodeCatalog
{
public:
    HRESULT GetContainerCount(int* count) override;
    HRESULT GetContainer(int index, NLEContainerInfo* info) override;
    HRESULT GetCodecCount(const char* container, int type, int* count) override;
    HRESULT GetCodec(const char* container, int type, int index, NLECodecInfo* info) override;
    HRESULT GetPresetCount(int* count) override;
    HRESULT GetPresetName(int index, wchar_t* buffer, int capacity) override;
    HRESULT GetPreset(const wchar_t* name, INLEProperties* options) override;
    HRESULT Check(INLEProperties* options, const NLEEncodeSettings* settings, wchar_t* reason,
                  int capacity) override;
    HRESULT GetContainerTitle(int index, wchar_t* title, int capacity) override;
    HRESULT GetCodecTitle(const char* container, int type, int index, wchar_t* title,
                          int capacity) override;
    HRESULT GetPresetTitle(int index, wchar_t* title, int capacity) override;

protected:
    ~EncodeCatalog() = default;
};

} // namespace nle
