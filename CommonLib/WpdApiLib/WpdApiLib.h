// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComMemory.h"
#include "Com/ComTypes.h"
#include "CommonLib/CommonLibExport.h"

#include <cstdint>

/// What a call of the host's callback is about; its third argument.
enum WpdCallbackCode : std::uint64_t
{
    /// An object was read during enumeration. The value is the address of a WpdObjectRecord; a
    /// result above 0 stops the enumeration.
    WpdObjectRead = 0,
    /// A chunk of a transfer was written. The value is the number of bytes copied so far; a result
    /// above 0 aborts the transfer.
    WpdChunkWritten = 1,
    /// The open device was removed. Comes on a thread of the device service. The value is 0 and
    /// the result is ignored.
    WpdDeviceRemoved = 2
};

/// The host's callback.
///
/// \param window always null
/// \param message always 0
/// \param code a WpdCallbackCode
/// \param value depends on the code
/// \param user what the host gave together with the callback
using WpdCallbackProc = std::int64_t (*)(HWND window, std::uint32_t message, std::uint64_t code,
                                         std::int64_t value, void* user);

/// One object of a device's content, during the callback that reports it.
///
/// The texts are never null. They belong to the library and end with the callback. What a device
/// does not tell is empty or 0.
struct WpdObjectRecord
{
    const wchar_t* objectId;         ///< of the device, for later calls
    const wchar_t* parentId;         ///< of the folder that holds it
    const wchar_t* originalFileName; ///< with its suffix
    std::uint64_t size;              ///< bytes
    std::int32_t isFolder; ///< 1 for a folder, else 0; the device itself and its storages are none
    double dateModified;   ///< days since 30 December 1899, the day's part as a fraction
    std::int32_t descend;  ///< the callback may set it: visit the children whatever the depth
};

/// Imports from cameras, phones and other portable devices.
///
/// One device is open at a time in the process. All calls come from one thread, usually the GUI
/// thread. Only WpdDeviceRemoved arrives elsewhere, and only Cancel() may be called while another
/// thread is inside an operation.
///
/// On Windows a thread of the host's own that calls has initialised the component library, with
/// CoInitializeEx(); Qt does so for the GUI thread.
///
/// A system without portable-device service has no devices. On Linux the service is a module beside
/// the executable that the first call loads.
class COMMONLIB_EXPORT WpdApiLib
{
public:
    WpdApiLib() = delete;

    /// Sets the host's callback and the pointer that every call passes back. A device that is open
    /// keeps reporting its removal to the callback that was set when it was opened.
    static void SetCallbackProc(WpdCallbackProc callback, void* user);

    /// Lists the devices.
    ///
    /// \param ids array with a place for every device; null to only count. Receives the
    ///        identifiers, each to be freed with SysFreeString
    /// \param names array with a place for every device, or null. Receives the friendly names, or
    ///        the descriptions of devices without, each to be freed with SysFreeString
    /// \return number of devices; 0 on any failure, which is logged
    static unsigned long EnumerateAllDevices(wchar_t** ids, wchar_t** names);

    /// Closes the open device, if any, and opens another; read-only when the device refuses more.
    ///
    /// \param deviceId from EnumerateAllDevices(); null only closes
    /// \param window kept while the device is open
    /// \return 1 when a device is open afterwards, else 0
    static int ChooseDevice(const wchar_t* deviceId, HWND window);

    /// Walks the open device's content and calls the callback with WpdObjectRead for every object.
    ///
    /// The device itself is depth 0. Depths 0 to 2 are always visited (the device, its storages,
    /// their top-level objects); below, the children of those objects whose descend flag the
    /// callback has set.
    ///
    /// \return 1 when the walk came to its end; 0 when a step failed or the callback stopped it
    static int EnumerateAllContent();

    /// Copies an object into a local file, which is created or overwritten. The callback hears of
    /// every chunk. What was written stays when the copy fails or is aborted. A file that lies on
    /// the device as the object itself is left alone; that is a failure.
    ///
    /// \param alternateResource 0 for the object's data, else the small picture that stands for it
    /// \return 1 on success, and with an empty file when there is no memory for a buffer; else 0
    static int TransferContentFromDevice(const wchar_t* objectId, const wchar_t* destinationPath,
                                         int alternateResource);

    /// Deletes one object on the open device. A folder that holds anything stays.
    static void DeleteContentFromDevice(const wchar_t* objectId);

    /// Asks the device that is open, or that another thread is opening, to cancel its pending
    /// operation. 1 on success; 0 without a device and when it refuses, which is logged.
    static int Cancel();

    /// Ends the event registration and releases the open device. Afterwards the callback is not
    /// called for this device any more, and no such call is under way: it waits for one that is,
    /// unless it is called from within.
    static void UnregisterForEventNotifications();

    /// Why the last EnumerateAllContent() returned 0; both hold until the next. To be read only.
    static std::int32_t bFailed;   ///< 1 when a step failed
    static std::int32_t bCanceled; ///< 1 when the callback stopped it

private:
    static HWND g_hwndMsg; ///< as given to ChooseDevice()
    static WpdCallbackProc m_pCallbackProc;
    static void* m_pUserObj;
};
