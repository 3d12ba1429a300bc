// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/CameraSession.h"

#include "PortableDevices/CameraReader.h"
#include "PortableDevices/GlibPointers.h"
#include "PortableDevices/MountWait.h"
#include "PortableDevices/WideText.h"

#include <algorithm>
#include <locale.h>
#include <unistd.h>

namespace devices {
namespace {

bool IsFolderPath(const std::string& path)
{
    return !path.empty() && path.back() == '/';
}

// "/a/b/" and "c" of "/a/b/c" and of "/a/b/c/".
std::pair<std::string, std::string> Split(const std::string& path)
{
    const std::size_t end = path.size() - (IsFolderPath(path) ? 1 : 0);
    const std::size_t slash = path.rfind('/', end - 1);
    return {path.substr(0, slash + 1), path.substr(slash + 1, end - slash - 1)};
}

// As the library wants a folder: without the slash at the end.
std::string FolderName(const std::string& path)
{
    return path.size() > 1 ? path.substr(0, path.size() - 1) : path;
}

std::wstring ParentId(const std::string& path)
{
    const std::string parent = Split(path).first;
    return parent == "/" ? kDeviceObject : WideText(parent.c_str());
}

// The device itself stands for the root. Empty when the text is no path.
std::string PathOf(const std::wstring& id)
{
    const std::string path = id == kDeviceObject ? "/" : Utf8Text(id.c_str());
    return !path.empty() && path.front() == '/' ? path : std::string();
}

ObjectInfo FolderInfo(const std::string& path)
{
    ObjectInfo info;
    info.id = WideText(path.c_str());
    info.parentId = ParentId(path);
    info.name = WideText(Split(path).second.c_str());
    info.kind = Split(path).first == "/" ? ObjectKind::Storage : ObjectKind::Folder;
    info.isComplete = true;
    return info;
}

bool Contains(const std::vector<std::string>& names, const std::string& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

CameraSession::CameraSession(std::string uri, std::string port, std::wstring name)
    : m_uri(std::move(uri)), m_port(std::move(port)), m_name(std::move(name))
{
}

CameraSession::~CameraSession()
{
    m_camera.reset();
    if (!m_locale)
        return;
    uselocale(LC_GLOBAL_LOCALE);
    freelocale(m_locale);
}

HRESULT CameraSession::Open(GCancellable* cancellable)
{
    const GPtr<GFile> root(g_file_new_for_uri(m_uri.c_str()));
    if (const HRESULT result = UnmountAndWait(root.get(), cancellable); FAILED(result))
        return result;
    UseUtf8();
    const std::string place = m_port.substr(m_port.find(':') + 1);
    m_node = "/dev/bus/usb/" + place;
    std::replace(m_node.begin(), m_node.end(), ',', '/');
    if (access(m_node.c_str(), F_OK) != 0)
        m_node.clear();
    m_camera = std::make_shared<CameraHandle>();
    const CameraHandle::Scope scope(*m_camera, cancellable);
    return m_camera->Open(m_port);
}

// The library converts names to the character set of the locale, and names that it cannot convert
// would turn into question marks. The process's own locale is the host's business.
void CameraSession::UseUtf8()
{
    if (!m_locale)
        m_locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (m_locale)
        uselocale(m_locale);
}

bool CameraSession::IsPresent(bool /*hasFailed*/)
{
    return m_node.empty() || access(m_node.c_str(), F_OK) == 0;
}

HRESULT CameraSession::CheckFolder(const std::string& path, bool& isThere)
{
    std::vector<std::string> names;
    const auto [parent, name] = Split(path);
    const HRESULT result = m_camera->Folders(FolderName(parent), names);
    isThere = Contains(names, name);
    return result;
}

HRESULT CameraSession::List(const std::wstring& parent, std::vector<ObjectInfo>& children,
                            GCancellable* cancellable)
{
    const std::string path = PathOf(parent);
    if (path.empty())
        return kNotFound;
    if (!IsFolderPath(path))
        return S_OK;
    const CameraHandle::Scope scope(*m_camera, cancellable);
    std::vector<std::string> names;
    if (const HRESULT result = m_camera->Folders(FolderName(path), names); FAILED(result))
        return result;
    for (const std::string& name : names)
        children.push_back(FolderInfo(path + name + '/'));
    if (const HRESULT result = m_camera->Files(FolderName(path), names); FAILED(result))
        return result;
    for (const std::string& name : names) {
        children.emplace_back();
        children.back().id = WideText((path + name).c_str());
    }
    return scope.IsCancelled() ? kCancelled : S_OK;
}

HRESULT CameraSession::Describe(const std::wstring& id, ObjectInfo& info, GCancellable* cancellable)
{
    if (id == kDeviceObject) {
        info = DeviceInfo(m_name);
        return S_OK;
    }
    const std::string path = PathOf(id);
    if (path.size() < 2)
        return kNotFound;
    const CameraHandle::Scope scope(*m_camera, cancellable);
    if (!IsFolderPath(path))
        return DescribeFile(path, info);
    bool isThere = false;
    const HRESULT result = CheckFolder(path, isThere);
    info = FolderInfo(path);
    return FAILED(result) || isThere ? result : kNotFound;
}

HRESULT CameraSession::DescribeFile(const std::string& path, ObjectInfo& info)
{
    const auto [folder, name] = Split(path);
    CameraFileInfo answer = {};
    const int result = gp_camera_file_get_info(m_camera->Get(), FolderName(folder).c_str(),
                                               name.c_str(), &answer, m_camera->Context());
    if (result < GP_OK)
        return FromCameraResult(result);
    info = {};
    info.id = WideText(path.c_str());
    info.parentId = ParentId(path);
    info.name = WideText(name.c_str());
    if (answer.file.fields & GP_FILE_INFO_SIZE)
        info.size = answer.file.size;
    // The camera's clock shows local time, and the library passes it on as if it were UTC's.
    if ((answer.file.fields & GP_FILE_INFO_MTIME) && answer.file.mtime > 0)
        info.modified = AutomationDate(answer.file.mtime, 0);
    return S_OK;
}

HRESULT CameraSession::OpenData(const std::wstring& id, Resource resource,
                                std::unique_ptr<DataReader>& reader, GCancellable* cancellable)
{
    const std::string path = PathOf(id);
    if (path.size() < 2)
        return kNotFound;
    if (IsFolderPath(path))
        return kNoElement;
    ObjectInfo info;
    const CameraHandle::Scope scope(*m_camera, cancellable);
    if (const HRESULT result = DescribeFile(path, info); FAILED(result))
        return result;
    const auto [folder, name] = Split(path);
    if (resource == Resource::Data) {
        reader = std::make_unique<CameraReader>(m_camera, FolderName(folder), name, info.size);
        return S_OK;
    }
    CameraFile* target = nullptr;
    gp_file_new(&target);
    CameraPtr<CameraFile> file(target);
    const int result = gp_camera_file_get(m_camera->Get(), FolderName(folder).c_str(), name.c_str(),
                                          GP_FILE_TYPE_PREVIEW, file.get(), m_camera->Context());
    if (result < GP_OK)
        return result == GP_ERROR_NOT_SUPPORTED ? kNoElement : FromCameraResult(result);
    reader = std::make_unique<PreviewReader>(std::move(file));
    return S_OK;
}

HRESULT CameraSession::Remove(const std::wstring& id, GCancellable* cancellable)
{
    const std::string path = PathOf(id);
    const bool isFolder = IsFolderPath(path);
    if (path.size() < 2 || (isFolder && Split(path).first == "/"))
        return E_ACCESSDENIED;
    const CameraHandle::Scope scope(*m_camera, cancellable);
    Camera* camera = m_camera->Get();
    const auto [folder, name] = Split(path);
    const std::string parent = FolderName(folder);
    int result = GP_OK;
    if (isFolder) {
        std::vector<ObjectInfo> children;
        if (const HRESULT listed = List(id, children, cancellable); FAILED(listed))
            return listed;
        if (!children.empty())
            return kNotEmpty;
        result =
            gp_camera_folder_remove_dir(camera, parent.c_str(), name.c_str(), m_camera->Context());
    } else {
        result = gp_camera_file_delete(camera, parent.c_str(), name.c_str(), m_camera->Context());
    }
    if (result < GP_OK)
        return FromCameraResult(result);
    // What the library remembers says that the object is gone; the camera is to say so itself.
    gp_filesystem_reset(camera->fs);
    std::vector<std::string> names;
    const HRESULT listed =
        isFolder ? m_camera->Folders(parent, names) : m_camera->Files(parent, names);
    if (FAILED(listed))
        return listed;
    return Contains(names, name) ? E_ACCESSDENIED : S_OK;
}

} // namespace devices
