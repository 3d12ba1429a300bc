// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/FileSession.h"

#include "PortableDevices/MountWait.h"
#include "PortableDevices/SpoolFile.h"
#include "PortableDevices/VolumeWatcher.h"
#include "PortableDevices/WideText.h"

#include <cerrno>
#include <fcntl.h>
#include <gio/gfiledescriptorbased.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace devices {
namespace {

constexpr const char* kIdentity = G_FILE_ATTRIBUTE_ID_FILE "," G_FILE_ATTRIBUTE_STANDARD_TYPE;
constexpr const char* kDescription = G_FILE_ATTRIBUTE_ID_FILE
    "," G_FILE_ATTRIBUTE_STANDARD_TYPE "," G_FILE_ATTRIBUTE_STANDARD_NAME
    "," G_FILE_ATTRIBUTE_STANDARD_DISPLAY_NAME "," G_FILE_ATTRIBUTE_STANDARD_SIZE
    "," G_FILE_ATTRIBUTE_TIME_MODIFIED "," G_FILE_ATTRIBUTE_TIME_MODIFIED_USEC;
constexpr int kThumbnailSize = 256; // pixels, where the device can choose
constexpr int kOpenAttempts = 50;
constexpr gulong kOpenPause = 100000; // microseconds
// Links may lead in circles or off the device; they are left out.
constexpr GFileQueryInfoFlags kNoLinks = G_FILE_QUERY_INFO_NOFOLLOW_SYMLINKS;

// The root itself may well be one.
GFileQueryInfoFlags LinkRule(const std::string& path)
{
    return path.empty() ? G_FILE_QUERY_INFO_NONE : kNoLinks;
}

HRESULT ReadStream(GInputStream* stream, void* buffer, std::uint32_t size, std::uint32_t& got,
                   GCancellable* cancellable)
{
    GPtr<GError> error;
    const gssize count = g_input_stream_read(stream, buffer, size, cancellable, ErrorOut(error));
    got = count > 0 ? static_cast<std::uint32_t>(count) : 0;
    return count < 0 ? FromGlibError(error.get()) : S_OK;
}

HRESULT SeekStream(GInputStream* stream, std::uint64_t position, GCancellable* cancellable)
{
    if (!G_IS_SEEKABLE(stream))
        return kNotSupported;
    GPtr<GError> error;
    const bool isDone = g_seekable_seek(G_SEEKABLE(stream), static_cast<goffset>(position),
                                        G_SEEK_SET, cancellable, ErrorOut(error));
    return isDone ? S_OK : FromGlibError(error.get());
}

// For a phone that gives its files only as a whole.
HRESULT OpenWhole(GFile* file, std::unique_ptr<DataReader>& reader, GCancellable* cancellable)
{
    std::unique_ptr<SpoolFile> spool = SpoolFile::Create();
    if (!spool)
        return kDiskFull;
    const GPtr<GFile> target(g_file_new_for_path(spool->Path().c_str()));
    GPtr<GError> error;
    if (!g_file_copy(file, target.get(), G_FILE_COPY_OVERWRITE, cancellable, nullptr, nullptr,
                     ErrorOut(error)))
        return FromGlibError(error.get());
    const HRESULT result = spool->StartReading();
    reader = std::move(spool);
    return result;
}

// Whether a failure may mean that there are no partial reads. GVfs has no code of its own for it.
bool MayLackPartialReads(HRESULT result)
{
    return result == E_FAIL || result == kNotSupported;
}

class LocalReader final : public DataReader
{
public:
    explicit LocalReader(GPtr<GInputStream> stream)
        : m_stream(std::move(stream))
        , m_file(G_IS_FILE_DESCRIPTOR_BASED(m_stream.get())
                     ? g_file_descriptor_based_get_fd(G_FILE_DESCRIPTOR_BASED(m_stream.get()))
                     : -1)
    {
    }

    std::string LocalPath() const override
    {
        return m_file < 0 ? std::string() : "/proc/self/fd/" + std::to_string(m_file);
    }
    std::uint32_t ReadHeld(void* buffer, std::uint32_t size, std::uint64_t position) const override
    {
        const iovec target = {buffer, size};
        const ssize_t count = preadv2(m_file, &target, 1, static_cast<off_t>(position), RWF_NOWAIT);
        return count > 0 ? static_cast<std::uint32_t>(count) : 0;
    }
    HRESULT Read(void* buffer, std::uint32_t size, std::uint32_t& got,
                 GCancellable* cancellable) override
    {
        return ReadStream(m_stream.get(), buffer, size, got, cancellable);
    }
    HRESULT Seek(std::uint64_t position, GCancellable* cancellable) override
    {
        return SeekStream(m_stream.get(), position, cancellable);
    }

private:
    const GPtr<GInputStream> m_stream;
    const int m_file; // of the stream; -1 when it has none
};

class RemoteReader final : public DataReader
{
public:
    /// Without a \a file the stream is all that there is.
    explicit RemoteReader(GPtr<GInputStream> stream, GPtr<GFile> file = nullptr)
        : m_stream(std::move(stream)), m_file(std::move(file))
    {
    }

    HRESULT Read(void* buffer, std::uint32_t size, std::uint32_t& got,
                 GCancellable* cancellable) override
    {
        if (m_whole)
            return m_whole->Read(buffer, size, got, cancellable);
        HRESULT result = ReadStream(m_stream.get(), buffer, size, got, cancellable);
        if (SUCCEEDED(result))
            m_file.reset(); // what has been read once can be read on
        if (!m_file || !MayLackPartialReads(result))
            return result;
        std::unique_ptr<DataReader> whole;
        result = OpenWhole(m_file.get(), whole, cancellable);
        if (SUCCEEDED(result))
            result = whole->Seek(m_position, cancellable);
        if (FAILED(result))
            return result;
        m_whole = std::move(whole);
        return m_whole->Read(buffer, size, got, cancellable);
    }
    HRESULT Seek(std::uint64_t position, GCancellable* cancellable) override
    {
        m_position = position;
        return m_whole ? m_whole->Seek(position, cancellable)
                       : SeekStream(m_stream.get(), position, cancellable);
    }

private:
    const GPtr<GInputStream> m_stream;
    GPtr<GFile> m_file;
    std::uint64_t m_position = 0; // before anything was read
    std::unique_ptr<DataReader> m_whole;
};

// Whether another program has taken up the phone on the device file \a node. The interface for
// files comes first on phones.
bool IsHeld(const std::string& node)
{
    const int file = node.empty() ? -1 : ::open(node.c_str(), O_RDWR | O_CLOEXEC);
    if (file < 0)
        return false;
    unsigned interface = 0;
    const bool isTaken = ioctl(file, USBDEVFS_CLAIMINTERFACE, &interface) == 0;
    const bool isHeld = !isTaken && errno == EBUSY;
    close(file); // gives the interface back
    return isHeld;
}

bool IsFolder(GFileInfo* info)
{
    return g_file_info_get_file_type(info) == G_FILE_TYPE_DIRECTORY;
}

// Anything else, such as a pipe, could block whoever opens it.
bool IsListed(GFileInfo* info)
{
    return IsFolder(info) || g_file_info_get_file_type(info) == G_FILE_TYPE_REGULAR;
}

bool HasUpwardStep(const std::string& path)
{
    return ('/' + path + '/').find("/../") != std::string::npos;
}

std::string Escaped(const char* name)
{
    return GPtr<char>(g_uri_escape_string(name, ":", FALSE)).get();
}

} // namespace

LocalRoot::LocalRoot(const char* path) : m_path(path)
{
    Read(m_device, m_inode);
}

bool LocalRoot::Read(dev_t& device, ino_t& inode) const
{
    struct stat status = {};
    if (stat(m_path.c_str(), &status) != 0)
        return false;
    device = status.st_dev;
    inode = status.st_ino;
    return true;
}

bool LocalRoot::IsThere() const
{
    dev_t device = 0;
    ino_t inode = 0;
    return Read(device, inode) && device == m_device && inode == m_inode;
}

FileSession::FileSession(const std::string& uri, std::wstring name, bool hasStorages,
                         std::string usbNode)
    : m_root(g_file_new_for_uri(uri.c_str()))
    , m_name(std::move(name))
    , m_hasStorages(hasStorages)
    , m_usbNode(std::move(usbNode))
{
}

HRESULT FileSession::Open(GCancellable* cancellable)
{
    if (g_file_is_native(m_root.get())) {
        m_local = std::make_unique<LocalRoot>(g_file_peek_path(m_root.get()));
        return CheckRoot(cancellable);
    }
    const HRESULT result = OpenRemote(cancellable);
    if (SUCCEEDED(result))
        VolumeWatcher::Instance().FollowMount(Uri());
    // GVfs has no code of its own for it.
    return result == E_FAIL && IsHeld(m_usbNode) ? kBusy : result;
}

std::string FileSession::Uri() const
{
    return GPtr<char>(g_file_get_uri(m_root.get())).get();
}

HRESULT FileSession::OpenRemote(GCancellable* cancellable) const
{
    HRESULT result = CheckRoot(cancellable);
    for (int attempt = 0; attempt < kOpenAttempts && FAILED(result); ++attempt) {
        if (attempt > 0)
            g_usleep(kOpenPause);
        const HRESULT mounted = MountAndWait(m_root.get(), cancellable);
        result = CheckRoot(cancellable);
        // A device that was plugged in again a moment ago: the daemon of the old mount takes its
        // time to end, and GVfs still asks it.
        const bool isOldMount = result == E_FAIL || (SUCCEEDED(mounted) && result == kDeviceGone);
        if (FAILED(result) && !isOldMount)
            return FAILED(mounted) ? mounted : result;
        if (isOldMount)
            VolumeWatcher::Instance().FollowMount(Uri());
    }
    return result;
}

HRESULT FileSession::CheckRoot(GCancellable* cancellable) const
{
    GPtr<GError> error;
    const GPtr<GFileInfo> info(g_file_query_info(m_root.get(), kIdentity, G_FILE_QUERY_INFO_NONE,
                                                 cancellable, ErrorOut(error)));
    if (!info)
        return FromGlibError(error.get());
    return IsFolder(info.get()) ? S_OK : kNotFound;
}

bool FileSession::IsPresent(bool hasFailed)
{
    if (m_local)
        return m_local->IsThere();
    if (!hasFailed)
        return true;
    GPtr<GError> error;
    const GPtr<GFileInfo> info(g_file_query_info(m_root.get(), G_FILE_ATTRIBUTE_STANDARD_TYPE,
                                                 kNoLinks, nullptr, ErrorOut(error)));
    return info != nullptr;
}

GPtr<GFile> FileSession::FileAt(const std::string& path) const
{
    if (path.empty())
        return Share(m_root.get());
    const GPtr<char> plain(g_uri_unescape_string(path.c_str(), nullptr));
    if (!plain || HasUpwardStep(plain.get()))
        return nullptr;
    return GPtr<GFile>(g_file_resolve_relative_path(m_root.get(), plain.get()));
}

std::wstring FileSession::IdOf(GFileInfo* info, const std::string& path) const
{
    const char* id = g_file_info_get_attribute_string(info, G_FILE_ATTRIBUTE_ID_FILE);
    return WideText((Escaped(id ? id : "") + '/' + path).c_str());
}

HRESULT FileSession::Find(const std::wstring& id, Place& place, const char* attributes,
                          GCancellable* cancellable) const
{
    const std::string text = Utf8Text(id.c_str());
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos && id != kDeviceObject)
        return kNotFound;
    place.path = slash == std::string::npos ? "" : text.substr(slash + 1);
    place.file = FileAt(place.path);
    if (!place.file)
        return kNotFound;
    GPtr<GError> error;
    place.info.reset(g_file_query_info(place.file.get(), attributes, LinkRule(place.path),
                                       cancellable, ErrorOut(error)));
    if (!place.info)
        return FromGlibError(error.get());
    const bool isSame = id == kDeviceObject || IdOf(place.info.get(), place.path) == id;
    return isSame && IsListed(place.info.get()) ? S_OK : kNotFound;
}

HRESULT FileSession::ParentOf(const std::string& path, std::wstring& id,
                              GCancellable* cancellable) const
{
    const std::size_t slash = path.rfind('/');
    if (path.empty() || (m_hasStorages && slash == std::string::npos)) {
        id = kDeviceObject;
        return S_OK;
    }
    const std::string parent = slash == std::string::npos ? "" : path.substr(0, slash);
    const GPtr<GFile> file = FileAt(parent);
    GPtr<GError> error;
    const GPtr<GFileInfo> info(
        g_file_query_info(file.get(), kIdentity, LinkRule(parent), cancellable, ErrorOut(error)));
    if (!info)
        return FromGlibError(error.get());
    id = IdOf(info.get(), parent);
    return S_OK;
}

ObjectInfo FileSession::InfoOf(GFileInfo* info, const std::string& path) const
{
    ObjectInfo object;
    object.id = IdOf(info, path);
    object.isComplete = true;
    const bool isTop = path.find('/') == std::string::npos;
    const bool isStorage = m_hasStorages ? isTop : path.empty();
    object.kind = isStorage        ? ObjectKind::Storage
                  : IsFolder(info) ? ObjectKind::Folder
                                   : ObjectKind::File;
    // A local file's display name tells about a name that is not valid; the name is enough.
    const bool isLocal = g_file_is_native(m_root.get());
    object.name = path.empty() ? m_name
                               : WideText(isLocal ? g_file_info_get_name(info)
                                                  : g_file_info_get_display_name(info));
    if (object.kind == ObjectKind::File)
        object.size = static_cast<std::uint64_t>(g_file_info_get_size(info));
    const guint64 seconds = g_file_info_get_attribute_uint64(info, G_FILE_ATTRIBUTE_TIME_MODIFIED);
    if (seconds > 0)
        object.modified = AutomationDate(
            static_cast<std::int64_t>(seconds),
            g_file_info_get_attribute_uint32(info, G_FILE_ATTRIBUTE_TIME_MODIFIED_USEC));
    return object;
}

HRESULT FileSession::Describe(const std::wstring& id, ObjectInfo& info, GCancellable* cancellable)
{
    if (id == kDeviceObject) {
        info = DeviceInfo(m_name);
        return S_OK;
    }
    Place place;
    if (const HRESULT result = Find(id, place, kDescription, cancellable); FAILED(result))
        return result;
    info = InfoOf(place.info.get(), place.path);
    return ParentOf(place.path, info.parentId, cancellable);
}

HRESULT FileSession::List(const std::wstring& parent, std::vector<ObjectInfo>& children,
                          GCancellable* cancellable)
{
    Place place;
    if (const HRESULT result = Find(parent, place, kDescription, cancellable); FAILED(result))
        return result;
    if (parent == kDeviceObject && !m_hasStorages) {
        children.push_back(InfoOf(place.info.get(), ""));
        children.back().parentId = kDeviceObject;
        return S_OK;
    }
    if (!IsFolder(place.info.get()))
        return S_OK;
    GPtr<GError> error;
    const GPtr<GFileEnumerator> files(g_file_enumerate_children(
        place.file.get(), kDescription, kNoLinks, cancellable, ErrorOut(error)));
    if (!files)
        return FromGlibError(error.get());
    const std::string prefix = place.path.empty() ? "" : place.path + '/';
    while (const GPtr<GFileInfo> info{
        g_file_enumerator_next_file(files.get(), cancellable, ErrorOut(error))}) {
        if (!IsListed(info.get()))
            continue;
        children.push_back(InfoOf(info.get(), prefix + Escaped(g_file_info_get_name(info.get()))));
        children.back().parentId = parent;
    }
    return error ? FromGlibError(error.get()) : S_OK;
}

HRESULT FileSession::OpenData(const std::wstring& id, Resource resource,
                              std::unique_ptr<DataReader>& reader, GCancellable* cancellable)
{
    Place place;
    const std::string attributes = std::string(kIdentity) + "," G_FILE_ATTRIBUTE_STANDARD_SIZE
                                                            "," G_FILE_ATTRIBUTE_PREVIEW_ICON;
    if (const HRESULT result = Find(id, place, attributes.c_str(), cancellable); FAILED(result))
        return result;
    if (IsFolder(place.info.get()))
        return kNoElement;
    if (resource == Resource::Thumbnail)
        return OpenThumbnail(place.info.get(), reader, cancellable);
    const HRESULT result = OpenFile(std::move(place.file), reader, cancellable);
    if (SUCCEEDED(result))
        reader->SetPromisedSize(static_cast<std::uint64_t>(g_file_info_get_size(place.info.get())));
    return result;
}

HRESULT FileSession::OpenFile(GPtr<GFile> file, std::unique_ptr<DataReader>& reader,
                              GCancellable* cancellable) const
{
    GPtr<GError> error;
    GPtr<GInputStream> stream(
        G_INPUT_STREAM(g_file_read(file.get(), cancellable, ErrorOut(error))));
    if (stream && m_local)
        reader = std::make_unique<LocalReader>(std::move(stream));
    else if (stream)
        reader = std::make_unique<RemoteReader>(std::move(stream), std::move(file));
    if (reader)
        return S_OK;
    const HRESULT result = FromGlibError(error.get());
    return !m_local && MayLackPartialReads(result) ? OpenWhole(file.get(), reader, cancellable)
                                                   : result;
}

HRESULT FileSession::OpenThumbnail(GFileInfo* info, std::unique_ptr<DataReader>& reader,
                                   GCancellable* cancellable) const
{
    GObject* icon = g_file_info_get_attribute_object(info, G_FILE_ATTRIBUTE_PREVIEW_ICON);
    if (!G_IS_LOADABLE_ICON(icon))
        return kNoElement;
    GPtr<GError> error;
    GPtr<GInputStream> stream(g_loadable_icon_load(G_LOADABLE_ICON(icon), kThumbnailSize, nullptr,
                                                   cancellable, ErrorOut(error)));
    if (!stream)
        return FromGlibError(error.get());
    reader = std::make_unique<RemoteReader>(std::move(stream));
    return S_OK;
}

HRESULT FileSession::CheckIsEmpty(GFile* folder, GCancellable* cancellable) const
{
    GPtr<GError> error;
    const GPtr<GFileEnumerator> files(g_file_enumerate_children(
        folder, G_FILE_ATTRIBUTE_STANDARD_NAME, kNoLinks, cancellable, ErrorOut(error)));
    if (!files)
        return FromGlibError(error.get());
    const GPtr<GFileInfo> first(
        g_file_enumerator_next_file(files.get(), cancellable, ErrorOut(error)));
    if (error)
        return FromGlibError(error.get());
    return first ? kNotEmpty : S_OK;
}

HRESULT FileSession::Remove(const std::wstring& id, GCancellable* cancellable)
{
    Place place;
    if (const HRESULT result = Find(id, place, kIdentity, cancellable); FAILED(result))
        return result;
    const bool isTop = place.path.find('/') == std::string::npos;
    if (place.path.empty() || (m_hasStorages && isTop))
        return E_ACCESSDENIED;
    // A phone takes everything below a folder with it.
    if (IsFolder(place.info.get())) {
        if (const HRESULT result = CheckIsEmpty(place.file.get(), cancellable); FAILED(result))
            return result;
    }
    GPtr<GError> error;
    if (!g_file_delete(place.file.get(), cancellable, ErrorOut(error)))
        return FromGlibError(error.get());
    // A protected object stays although the device said that it went.
    return SUCCEEDED(Find(id, place, kIdentity, cancellable)) ? E_ACCESSDENIED : S_OK;
}

} // namespace devices
