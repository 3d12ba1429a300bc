// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEMarkers.h"
#include "NLECore/model/NodeFacets.h"

namespace nle {

/// A node's markers. With another rate or speed each stays with its instant of the material.
class MarkerFacet final : public NodeFacet<INLEMarkers>
{
public:
    using NodeFacet::NodeFacet;

    HRESULT GetCount(int* count) override;
    HRESULT GetMarker(int index, NLEMarkerRecord* record, wchar_t* name, int capacity) override;
    /// E_INVALIDARG for a length below 0 and one that leads beyond the last frame there can be.
    HRESULT AddMarker(const NLEMarkerRecord* record, const wchar_t* name, int* index) override;
    HRESULT SetMarker(int index, const NLEMarkerRecord* record, const wchar_t* name,
                      int* newIndex) override;
    HRESULT DeleteMarker(int index) override;
    HRESULT DeleteAll() override;

    /// The same material is counted in \a factor times as many frames from now on.
    void Rescale(double factor);

    MarkerList settings;

private:
    bool Has(int index) const { return index >= 0 && index < int(settings.size()); }
};

} // namespace nle
