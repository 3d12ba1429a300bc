// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/DeviceSession.h"
#include "PortableDevices/GlibPointers.h"

#include <sys/types.h>

namespace devices {

/// Tells whether a local root is still the one that was opened: a folder that came back under the
/// old name, or the bare mount point, is another one.
class LocalRoot
{
public:
    /// \a path has to exist.
    explicit LocalRoot(const char* path);
    bool IsThere() const;

private:
    bool Read(dev_t& device, ino_t& inode) const;

    const std::string m_path;
    dev_t m_device = 0;
    ino_t m_inode = 0;
};

/// A device whose content is reached as files: a folder, a mounted disk, a phone behind GVfs.
///
/// An object's identifier is the file's own ("id::file"), a slash, and its escaped path below the
/// root. The path only leads to the file: whether it still is the same one is checked by the first
/// part, since siblings on a phone may share a name and with it the path.
class FileSession final : public DeviceSession
{
public:
    /// \a uri is the root; \a hasStorages tells that the folders there are the device's storages.
    /// Otherwise the root itself is the only storage. \a usbNode is the device file of a phone.
    FileSession(const std::string& uri, std::wstring name, bool hasStorages, std::string usbNode);

    HRESULT Open(GCancellable* cancellable) override;
    bool IsPresent(bool hasFailed) override;
    HRESULT List(const std::wstring& parent, std::vector<ObjectInfo>& children,
                 GCancellable* cancellable) override;
    HRESULT Describe(const std::wstring& id, ObjectInfo& info, GCancellable* cancellable) override;
    HRESULT OpenData(const std::wstring& id, Resource resource, std::unique_ptr<DataReader>& reader,
                     GCancellable* cancellable) override;
    HRESULT Remove(const std::wstring& id, GCancellable* cancellable) override;

private:
    // Where an identifier leads.
    struct Place
    {
        std::string path; // escaped, below the root; empty for the root
        GPtr<GFile> file;
        GPtr<GFileInfo> info;
    };

    std::string Uri() const;
    HRESULT OpenRemote(GCancellable* cancellable) const;
    HRESULT CheckRoot(GCancellable* cancellable) const;
    HRESULT Find(const std::wstring& id, Place& place, const char* attributes,
                 GCancellable* cancellable) const;
    GPtr<GFile> FileAt(const std::string& path) const;
    std::wstring IdOf(GFileInfo* info, const std::string& path) const;
    HRESULT ParentOf(const std::string& path, std::wstring& id, GCancellable* cancellable) const;
    ObjectInfo InfoOf(GFileInfo* info, const std::string& path) const;
    HRESULT OpenFile(GPtr<GFile> file, std::unique_ptr<DataReader>& reader,
                     GCancellable* cancellable) const;
    HRESULT OpenThumbnail(GFileInfo* info, std::unique_ptr<DataReader>& reader,
                          GCancellable* cancellable) const;
    HRESULT CheckIsEmpty(GFile* folder, GCancellable* cancellable) const;

    GPtr<GFile> m_root;
    std::wstring m_name;
    bool m_hasStorages;
    std::string m_usbNode;
    std::unique_ptr<const LocalRoot> m_local; // null for a root that is not local
};

} // namespace devices
