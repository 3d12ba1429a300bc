// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"

#include <cstdint>

/// Result codes of the portable-device service, besides those of every component.
namespace devices {

/// A system error number as a result code.
constexpr HRESULT FromSystemError(std::uint32_t number)
{
    return static_cast<HRESULT>(0x80070000u | number);
}

constexpr HRESULT kNotFound = FromSystemError(2);       // no such object or device
constexpr HRESULT kCutShort = FromSystemError(38);      // less data than the device promised
constexpr HRESULT kNotSupported = FromSystemError(50);  // the device cannot do this
constexpr HRESULT kDiskFull = FromSystemError(112);     // no room for the spool file
constexpr HRESULT kNotEmpty = FromSystemError(145);     // a folder that has children
constexpr HRESULT kTooLarge = FromSystemError(223);     // more than can be fetched
constexpr HRESULT kBusy = FromSystemError(170);         // another program holds the device
constexpr HRESULT kNoElement = FromSystemError(1168);   // no such property or resource
constexpr HRESULT kDeviceGone = FromSystemError(1167);  // the device was removed
constexpr HRESULT kCancelled = FromSystemError(1223);   // ended by Cancel
constexpr HRESULT kTimedOut = FromSystemError(1460);    // the device does not answer
constexpr HRESULT kDeviceError = FromSystemError(1117); // the device failed to read or write
constexpr HRESULT kNotOpen = static_cast<HRESULT>(0x802A0002u);     // Open has to come first
constexpr HRESULT kAlreadyOpen = static_cast<HRESULT>(0x802A0001u); // Open was called before

} // namespace devices
