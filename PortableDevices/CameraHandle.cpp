// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/CameraHandle.h"

#include <mutex>

namespace devices {
namespace {

// Loads every driver of the library, which takes a while and is not safe from several threads.
CameraAbilitiesList* Drivers(GPContext* context)
{
    static std::mutex s_mutex;
    // Never freed: the thread of a camera that hangs goes on while the process ends.
    static CameraAbilitiesList* s_drivers = nullptr;
    const std::lock_guard lock(s_mutex);
    if (!s_drivers) {
        CameraAbilitiesList* list = nullptr;
        gp_abilities_list_new(&list);
        CameraPtr<CameraAbilitiesList> loaded(list);
        if (gp_abilities_list_load(list, context) >= 0)
            s_drivers = loaded.release();
    }
    return s_drivers;
}

CameraPtr<CameraList> NewList()
{
    CameraList* list = nullptr;
    gp_list_new(&list);
    return CameraPtr<CameraList>(list);
}

std::vector<std::string> Names(CameraList* list)
{
    std::vector<std::string> names;
    for (int i = 0; i < gp_list_count(list); ++i) {
        const char* name = nullptr;
        if (gp_list_get_name(list, i, &name) >= 0 && name)
            names.emplace_back(name);
    }
    return names;
}

} // namespace

HRESULT FromCameraResult(int result)
{
    if (result >= GP_OK)
        return S_OK;
    switch (result) {
    case GP_ERROR_CANCEL:
        return kCancelled;
    case GP_ERROR_NOT_SUPPORTED:
        return kNotSupported;
    case GP_ERROR_FILE_NOT_FOUND:
    case GP_ERROR_DIRECTORY_NOT_FOUND:
    case GP_ERROR_MODEL_NOT_FOUND:
    case GP_ERROR_UNKNOWN_PORT:
        return kNotFound;
    case GP_ERROR_CAMERA_BUSY:
    case GP_ERROR_IO_USB_CLAIM:
    case GP_ERROR_IO_LOCK:
        return kBusy;
    case GP_ERROR_TIMEOUT:
        return kTimedOut;
    case GP_ERROR_NO_SPACE:
        return kDiskFull;
    case GP_ERROR_NO_MEMORY:
        return E_OUTOFMEMORY;
    case GP_ERROR_BAD_PARAMETERS:
        return E_INVALIDARG;
    default:
        return kDeviceError;
    }
}

CameraHandle::CameraHandle() : m_context(gp_context_new())
{
    const auto ask = [](GPContext* /*context*/, void* self) {
        const auto* handle = static_cast<const CameraHandle*>(self);
        return handle->m_cancellable && g_cancellable_is_cancelled(handle->m_cancellable)
                   ? GP_CONTEXT_FEEDBACK_CANCEL
                   : GP_CONTEXT_FEEDBACK_OK;
    };
    gp_context_set_cancel_func(m_context, ask, this);
    gp_camera_new(&m_camera);
}

CameraHandle::~CameraHandle()
{
    gp_camera_exit(m_camera, m_context);
    gp_camera_unref(m_camera);
    gp_context_unref(m_context);
}

HRESULT CameraHandle::Open(const std::string& port)
{
    GPPortInfoList* portList = nullptr;
    gp_port_info_list_new(&portList);
    const CameraPtr<GPPortInfoList> ports(portList);
    CameraAbilitiesList* drivers = Drivers(m_context);
    const CameraPtr<CameraList> found = NewList();
    if (!drivers || !found || gp_port_info_list_load(portList) < 0)
        return E_FAIL;
    if (const int result = gp_abilities_list_detect(drivers, portList, found.get(), m_context);
        result < 0)
        return FromCameraResult(result);
    for (int i = 0; i < gp_list_count(found.get()); ++i) {
        const char* model = nullptr;
        const char* place = nullptr;
        gp_list_get_name(found.get(), i, &model);
        gp_list_get_value(found.get(), i, &place);
        if (port != place)
            continue;
        CameraAbilities abilities = {};
        GPPortInfo info = nullptr;
        gp_abilities_list_get_abilities(drivers, gp_abilities_list_lookup_model(drivers, model),
                                        &abilities);
        gp_port_info_list_get_info(portList, gp_port_info_list_lookup_path(portList, place), &info);
        gp_camera_set_abilities(m_camera, abilities);
        gp_camera_set_port_info(m_camera, info);
        return FromCameraResult(gp_camera_init(m_camera, m_context));
    }
    return kNotFound;
}

HRESULT CameraHandle::Files(const std::string& folder, std::vector<std::string>& names) const
{
    const CameraPtr<CameraList> list = NewList();
    const int result = gp_camera_folder_list_files(m_camera, folder.c_str(), list.get(), m_context);
    names = Names(list.get());
    return FromCameraResult(result);
}

HRESULT CameraHandle::Folders(const std::string& folder, std::vector<std::string>& names) const
{
    const CameraPtr<CameraList> list = NewList();
    const int result =
        gp_camera_folder_list_folders(m_camera, folder.c_str(), list.get(), m_context);
    names = Names(list.get());
    return FromCameraResult(result);
}

CameraHandle::Scope::Scope(CameraHandle& handle, GCancellable* cancellable)
    : m_handle(handle), m_outer(handle.m_cancellable)
{
    handle.m_cancellable = cancellable;
}

CameraHandle::Scope::~Scope()
{
    m_handle.m_cancellable = m_outer;
}

bool CameraHandle::Scope::IsCancelled() const
{
    return g_cancellable_is_cancelled(m_handle.m_cancellable);
}

} // namespace devices
