// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFrames.h"
#include "NLECore/media/MediaWriter.h"
#include "NLECore/objects/EncodeCatalog.h"
#include "NLECore/scene/Layer.h"

namespace nle {

class TimelineNode;

/// Renders a snapshot frame by frame into a media file.
class MediaEncoder final : public ComObject<INLEMediaEncoder, INLEEncodeOptions, EncodeCatalog>
{
public:
    HRESULT Open(INLETimeline* timeline, const wchar_t* path,
                 const NLEEncodeSettings* settings) override;
    HRESULT Encode(NLEProgressCallback callback, void* userData) override;
    HRESULT SetOptions(INLEProperties* options) override;
    HRESULT GetOptions(INLEProperties* options) override;

private:
    /// False for what no file can hold.
    bool TakeSettings(const TimelineNode& node, const Layer& root, const NLEEncodeSettings& wanted);
    /// Whether the file can be written as deep as its project is drawn; settles on it then. What
    /// the host has chosen goes first.
    bool TryDeep(const RenderContext& context);

    EncodeOptions m_options;
    Snapshot m_root;
    QString m_path;
    NLERange m_range = {0, -1};
    NLERational m_frameRate = {25, 1};
    WriterSettings m_settings;
};

} // namespace nle
