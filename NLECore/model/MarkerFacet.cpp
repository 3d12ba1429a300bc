// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MarkerFacet.h"

#include "Com/ComGuard.h"
#include "Com/ComObject.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/scene/FrameMath.h"

#include <algorithm>
#include <cmath>

namespace nle {

HRESULT MarkerFacet::GetCount(int* count)
{
    return GiveValue(count, int(settings.size()));
}

HRESULT MarkerFacet::GetMarker(int index, NLEMarkerRecord* record, wchar_t* name, int capacity)
{
    if (!record)
        return Refuse(E_POINTER);
    if (!Has(index))
        return RefuseIndex(index, std::int64_t(settings.size()));
    const Marker& marker = settings[size_t(index)];
    *record = marker.record;
    return capacity == 0 ? S_OK : CopyText(marker.name, name, capacity);
}

HRESULT MarkerFacet::AddMarker(const NLEMarkerRecord* record, const wchar_t* name, int* index)
{
    return ComGuard([&] {
        if (!record || !index)
            return Refuse(E_POINTER);
        const int place = PutMarker(settings, {*record, name ? name : L""});
        if (place < 0)
            return Refuse(E_INVALIDARG);
        *index = place;
        return S_OK;
    });
}

HRESULT MarkerFacet::SetMarker(int index, const NLEMarkerRecord* record, const wchar_t* name,
                               int* newIndex)
{
    return ComGuard([&] {
        if (!record)
            return Refuse(E_POINTER);
        if (!Has(index))
            return RefuseIndex(index, std::int64_t(settings.size()));
        const Marker& old = settings[size_t(index)];
        Marker marker = {*record, name ? name : old.name};
        int place = index;
        if (record->frame != old.record.frame) {
            MarkerList others = settings;
            others.erase(others.begin() + index);
            place = PutMarker(others, std::move(marker));
            if (place >= 0)
                settings.swap(others);
        } else if (IsValid(marker)) {
            settings[size_t(index)] = std::move(marker);
        } else {
            place = -1;
        }
        if (place >= 0 && newIndex)
            *newIndex = place;
        return place < 0 ? Refuse(E_INVALIDARG) : S_OK;
    });
}

HRESULT MarkerFacet::DeleteMarker(int index)
{
    if (!Has(index))
        return RefuseIndex(index, std::int64_t(settings.size()));
    settings.erase(settings.begin() + index);
    return S_OK;
}

HRESULT MarkerFacet::DeleteAll()
{
    settings.clear();
    return S_OK;
}

void MarkerFacet::Rescale(double factor)
{
    for (Marker& marker : settings) {
        NLEMarkerRecord& record = marker.record;
        if (record.length > 0) {
            const double last = double(record.frame) + record.length - 1;
            const NLERange range = ScaleRange({record.frame, ClampToInt(last)}, factor);
            record.frame = range.in;
            record.length = ClampToInt(double(NLERangeLength(range)));
        } else {
            record.frame = ClampToInt(std::round(record.frame * factor));
        }
    }
}

} // namespace nle
