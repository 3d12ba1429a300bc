// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/WpdApiLib/PortableDeviceService_p.h"

#include "Com/ClassFactory.h"
#include "Com/ComGuard.h"
#include "Com/ComObject.h"
#include "Com/WideText.h"
#include "CommonLib/ModuleErrors_p.h"
#include "CommonLib/ModuleFolders_p.h"
#include "CommonLib/WpdApiLib/WpdReport_p.h"

#include <QFile>
#include <QLibrary>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

/// The module's entry; null when there is no module. It stays loaded: devices have threads.
DllGetClassObjectFunction GetClassObject()
{
    static DllGetClassObjectFunction s_function = nullptr;
    if (!s_function) {
        QLibrary module(FindModule("PortableDevices.dll"));
        s_function =
            reinterpret_cast<DllGetClassObjectFunction>(module.resolve("DllGetClassObject"));
        NoteModule(module);
    }
    return s_function;
}

/// Writes a local file; unbuffered, so that a full disk shows in the write that meets it. Space for
/// a large file is reserved ahead, which writes it about a tenth faster on ext4.
class FileStream final : public ComObject<IStream>
{
public:
    /// False for anything but a regular file: a pipe would block, and a device is no copy.
    bool Open(const QString& path)
    {
        constexpr int flags = O_WRONLY | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
        constexpr mode_t everyone = 0666; // less what the process masks
        const int descriptor = ::open(QFile::encodeName(path).constData(), flags, everyone);
        if (descriptor < 0)
            return false;
        struct stat status = {};
        // Emptied only now that it is known to be a file.
        if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
            ::ftruncate(descriptor, 0) == 0 &&
            m_file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered,
                        QFileDevice::AutoCloseHandle))
            return true;
        ::close(descriptor);
        return false;
    }

    HRESULT Read(void* /*data*/, ULONG /*count*/, ULONG* /*read*/) override { return E_NOTIMPL; }
    HRESULT Write(const void* data, ULONG count, ULONG* written) override
    {
        ReserveUpTo(m_file.pos() + count);
        const qint64 done = m_file.write(static_cast<const char*>(data), count);
        if (written)
            *written = done < 0 ? 0 : static_cast<ULONG>(done);
        if (done >= 0)
            return S_OK;
        const bool isFull = m_file.error() == QFileDevice::ResourceError || errno == EFBIG;
        return isFull ? STG_E_MEDIUMFULL : STG_E_WRITEFAULT;
    }
    HRESULT Seek(LARGE_INTEGER /*move*/, DWORD /*origin*/, ULARGE_INTEGER* /*position*/) override
    {
        return E_NOTIMPL;
    }
    HRESULT SetSize(ULARGE_INTEGER /*size*/) override { return E_NOTIMPL; }
    HRESULT CopyTo(IStream* /*target*/, ULARGE_INTEGER /*count*/, ULARGE_INTEGER* /*read*/,
                   ULARGE_INTEGER* /*written*/) override
    {
        return E_NOTIMPL;
    }
    HRESULT Commit(DWORD /*flags*/) override { return S_OK; }
    HRESULT Revert() override { return E_NOTIMPL; }
    HRESULT LockRegion(ULARGE_INTEGER /*offset*/, ULARGE_INTEGER /*count*/, DWORD /*type*/) override
    {
        return E_NOTIMPL;
    }
    HRESULT UnlockRegion(ULARGE_INTEGER /*offset*/, ULARGE_INTEGER /*count*/,
                         DWORD /*type*/) override
    {
        return E_NOTIMPL;
    }
    HRESULT Stat(STATSTG* /*out*/, DWORD /*flags*/) override { return E_NOTIMPL; }
    HRESULT Clone(IStream** /*out*/) override { return E_NOTIMPL; }

protected:
    ~FileStream() override
    {
        if (m_reserved > kReserveStep)
            m_file.resize(m_file.size()); // gives back what lies behind the end
    }

private:
    /// Reserves space for the data before \a end. Where it cannot, writing reports a full disk.
    void ReserveUpTo(qint64 end)
    {
        if (!m_canReserve || end <= m_reserved)
            return;
        m_canReserve =
            ::fallocate(m_file.handle(), FALLOC_FL_KEEP_SIZE, m_reserved, kReserveStep) == 0;
        m_reserved += kReserveStep;
    }

    static constexpr qint64 kReserveStep = 64 << 20; // bytes

    QFile m_file;
    qint64 m_reserved = kReserveStep; // smaller files gain nothing
    bool m_canReserve = true;
};

/// Whether \a source reads the file at \a path, by whatever name; only streams over local files
/// tell.
bool ReadsFile(IStream& source, const QString& path)
{
    STATSTG status = {};
    if (FAILED(source.Stat(&status, 0)))
        return false;
    const TaskText name(status.pwcsName);
    std::error_code error;
    return name &&
           std::filesystem::equivalent(QFile::encodeName(FromWide(name.get())).toStdString(),
                                       QFile::encodeName(path).toStdString(), error);
}

} // namespace

HRESULT CreatePortableDeviceComponent(REFCLSID classId, REFIID iid, void** out)
{
    *out = nullptr;
    const DllGetClassObjectFunction getClassObject = GetClassObject();
    return getClassObject ? CreateThrough(getClassObject, classId, nullptr, iid, out)
                          : CLASS_E_CLASSNOTAVAILABLE;
}

HRESULT CreateStreamOnFile(const wchar_t* path, IStream& source, IStream** out)
{
    *out = nullptr;
    return ComGuard([&] {
        const QString file = FromWide(path);
        if (ReadsFile(source, file))
            return STG_E_SHAREVIOLATION; // opening would empty it
        const auto stream = MakeCom<FileStream>();
        if (!stream->Open(file))
            return STG_E_ACCESSDENIED;
        return NLEComPtr<IStream>(stream).copyTo(out);
    });
}
