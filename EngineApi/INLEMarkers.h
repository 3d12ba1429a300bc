// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// Markers of a node, in order of their frames; of one frame, in the order in which they were set.
/// They say something about the node and show in no picture. Clones and documents keep them.
///
/// An optional facility of nodes. An index that names no marker, and a record that makes no sense,
/// are E_INVALIDARG and change nothing.
struct INLEMarkers : IUnknown
{
    static constexpr _GUID Iid = {
        0xD02AB5F7, 0x0F20, 0x469C, {0x9F, 0x8A, 0xC9, 0x71, 0x27, 0x3D, 0x88, 0xBD}};

    virtual HRESULT GetCount(int* count) = 0; ///< markers of the node
    /// \a name receives at most \a capacity characters with the terminating zero; longer text is
    /// cut. With a capacity of 0 only the record is given.
    virtual HRESULT GetMarker(int index, NLEMarkerRecord* record, wchar_t* name, int capacity) = 0;
    /// \a name may be null for none. \a index receives the new marker's place.
    virtual HRESULT AddMarker(const NLEMarkerRecord* record, const wchar_t* name, int* index) = 0;
    /// Another frame moves the marker to another place, which \a newIndex receives unless it is
    /// null. A null \a name leaves the name as it is.
    virtual HRESULT SetMarker(int index, const NLEMarkerRecord* record, const wchar_t* name,
                              int* newIndex) = 0;
    virtual HRESULT DeleteMarker(int index) = 0;
    virtual HRESULT DeleteAll() = 0;
};
