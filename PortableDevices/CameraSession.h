// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/DeviceSession.h"

struct __locale_struct;

namespace devices {

class CameraHandle;

/// A camera on a USB port, reached through libgphoto2 itself: GVfs would take every file into
/// memory as a whole before it gave the first byte, and could not be stopped.
///
/// Objects are identified by their paths; those of folders end in a slash.
class CameraSession final : public DeviceSession
{
public:
    /// \a uri is the root under which GVfs may have mounted the camera, which is undone by Open();
    /// \a port names the USB port as "usb:BBB,DDD".
    CameraSession(std::string uri, std::string port, std::wstring name);
    ~CameraSession() override;

    HRESULT Open(GCancellable* cancellable) override;
    bool IsPresent(bool hasFailed) override;
    HRESULT List(const std::wstring& parent, std::vector<ObjectInfo>& children,
                 GCancellable* cancellable) override;
    HRESULT Describe(const std::wstring& id, ObjectInfo& info, GCancellable* cancellable) override;
    HRESULT OpenData(const std::wstring& id, Resource resource, std::unique_ptr<DataReader>& reader,
                     GCancellable* cancellable) override;
    /// Not to be believed at once: a protected object stays although the camera reports success.
    HRESULT Remove(const std::wstring& id, GCancellable* cancellable) override;

private:
    void UseUtf8();
    HRESULT DescribeFile(const std::string& path, ObjectInfo& info);
    HRESULT CheckFolder(const std::string& path, bool& isThere);

    const std::string m_uri;
    const std::string m_port;
    const std::wstring m_name;
    std::shared_ptr<CameraHandle> m_camera;
    __locale_struct* m_locale = nullptr;
    std::string m_node; // empty when the system shows none
};

} // namespace devices
