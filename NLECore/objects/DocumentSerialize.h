// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFactory.h"
#include "NLECore/model/DocumentRemarks.h"

namespace nle {

/// Saves nodes and opens their documents again: OpenTimelineIO's JSON by the suffix ".otio", else
/// MLT's XML.
class DocumentSerialize final : public ComObject<INLEDocumentSerialize, INLEDocumentReport>
{
public:
    HRESULT Save(INLETimeline* timeline, const wchar_t* path) override;
    HRESULT Load(const wchar_t* path, INLETimeline** timeline) override;

    HRESULT GetRemarkCount(int* count) override;
    HRESULT GetRemark(int index, int* code, wchar_t* text, int capacity) override;
    HRESULT GetRemarkTitle(int code, wchar_t* title, int capacity) override;

private:
    DocumentRemarks m_remarks;
};

} // namespace nle
