// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/Results.h"

#include <gphoto2/gphoto2-camera.h>
#include <memory>
#include <string>
#include <vector>

namespace devices {

struct CameraDeleter
{
    void operator()(CameraList* list) const { gp_list_free(list); }
    void operator()(CameraFile* file) const { gp_file_unref(file); }
    void operator()(GPPortInfoList* list) const { gp_port_info_list_free(list); }
    void operator()(CameraAbilitiesList* list) const { gp_abilities_list_free(list); }
};
template <typename T>
using CameraPtr = std::unique_ptr<T, CameraDeleter>;

/// The result code for a failed call of libgphoto2; S_OK for what is not negative.
HRESULT FromCameraResult(int result);

/// A camera of libgphoto2. Its calls end when the cancellable of the running Scope is triggered.
/// Belongs to one thread.
class CameraHandle
{
public:
    CameraHandle();
    CameraHandle(const CameraHandle&) = delete;
    CameraHandle& operator=(const CameraHandle&) = delete;
    ~CameraHandle();

    /// Finds out what is connected to the port and takes it up.
    HRESULT Open(const std::string& port);
    Camera* Get() const { return m_camera; }
    GPContext* Context() const { return m_context; }

    /// Names in \a folder, which has no slash at its end except for the root.
    HRESULT Files(const std::string& folder, std::vector<std::string>& names) const;
    HRESULT Folders(const std::string& folder, std::vector<std::string>& names) const;

    /// Makes \a cancellable the one that ends calls.
    class Scope
    {
    public:
        Scope(CameraHandle& handle, GCancellable* cancellable);
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope();
        bool IsCancelled() const;

    private:
        CameraHandle& m_handle;
        GCancellable* m_outer;
    };

private:
    Camera* m_camera = nullptr;
    GPContext* m_context = nullptr;
    GCancellable* m_cancellable = nullptr;
};

} // namespace devices
